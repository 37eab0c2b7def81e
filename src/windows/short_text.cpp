#include "windows/short_text.h"

#include <QStringList>

namespace vigrel {
namespace {

constexpr const char* kLeftOut = "...";
constexpr qsizetype kNameLength = 80, kBoxLines = 24, kBoxLength = 1200, kLabelLines = 6, kLabelLength = 800;

// Not through the middle of a character of two parts.
qsizetype Between(const QString& text, qsizetype place) {
    return text[place].isLowSurrogate() ? place + 1 : place;
}

QString WithoutMiddle(const QString& text, qsizetype characters) {
    if (text.size() <= characters) return text;
    const qsizetype half = (characters - 3) / 2;
    return text.left(Between(text, half)) + kLeftOut + text.mid(Between(text, text.size() - half));
}

}  // namespace

QString Shortened(const QString& text, qsizetype lines, qsizetype characters) {
    QStringList all = text.split('\n');
    if (all.size() > lines) {
        const qsizetype behind = (lines - 1) / 2, before = lines - 1 - behind;
        all = all.mid(0, before) + QStringList(kLeftOut) + all.mid(all.size() - behind);
    }
    return WithoutMiddle(all.join('\n'), characters);
}

QString BoxText(const QString& text) {
    return Shortened(text, kBoxLines, kBoxLength);
}

QString FewLines(const QString& text) {
    return Shortened(text, kLabelLines, kLabelLength);
}

QString ShortLine(const QString& text, qsizetype characters) {
    return WithoutMiddle(QString(text).replace('\n', ' '), characters);
}

QString ShortName(const QString& name) {
    return ShortLine(name, kNameLength);
}

}  // namespace vigrel
