#include "adapters/qt/qt_text.h"

#include <QFile>
#include <QList>
#include <algorithm>

#include "common/code_page.h"
#include "common/path_text.h"

namespace vigrel {
namespace {

// The nearest that the code page has to a code point.
char Nearest(char32_t codePoint) {
    if (HasCharacter(codePoint)) return FromUnicode(codePoint);
    if (QChar::isSpace(codePoint)) return ' ';
    const QString parts = QChar::decomposition(codePoint);
    return parts.isEmpty() ? '?' : FromUnicode(parts.at(0).unicode());
}

// Marks of the writing direction and their like, which show nothing.
bool IsInvisible(char32_t codePoint) {
    return QChar::category(codePoint) == QChar::Other_Format && !HasCharacter(codePoint);
}

}  // namespace

QString ToQString(std::string_view text) {
    QString result(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
    QChar* out = result.data();
    for (const char c : text) *out++ = QChar(static_cast<char16_t>(ToUnicode(c)));
    return result;
}

std::string FromQString(const QString& text) {
    std::string result;
    for (const uint codePoint : text.normalized(QString::NormalizationForm_C).toUcs4()) {
        if (!IsInvisible(codePoint)) result += Nearest(codePoint);
    }
    return result;
}

QString PathToQString(std::string_view path) {
    return QFile::decodeName(QByteArray::fromStdString(PathBytes(path)));
}

std::string PathFromQString(const QString& path) {
    return PathText(QFile::encodeName(path).toStdString());
}

QString WithPathsToQString(std::string_view text) {
    return QString::fromStdString(WithPathsToUtf8(text));
}

bool FitsCodePage(const QString& text) {
    const auto codePoints = text.toUcs4();
    return std::all_of(codePoints.begin(), codePoints.end(), [](uint c) { return HasCharacter(c); });
}

}  // namespace vigrel
