#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSvgRenderer>

#include "resources/picture.h"

namespace vigrel::testing {
namespace {

QString ReadText(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// What the toolkit's SVG reader has to say about what it can't draw.
class cWarnings {
  public:
    cWarnings() {
        s_Texts.clear();
        m_Previous = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& text) { s_Texts << text; });
    }
    ~cWarnings() { qInstallMessageHandler(m_Previous); }
    cWarnings(const cWarnings&) = delete;
    cWarnings& operator=(const cWarnings&) = delete;

    QString Texts() const { return s_Texts.join('\n'); }

  private:
    static inline QStringList s_Texts;
    QtMessageHandler m_Previous;
};

TEST(ResourceFile, HoldsEveryPictureOfTheFolder) {
    ASSERT_FALSE(FilesBelow(VIGREL_ICONS).isEmpty());
    EXPECT_EQ(FilesBelow(":/icons").join('\n').toStdString(),
              FilesBelow(VIGREL_ICONS).join('\n').toStdString());
}

TEST(ResourceFile, HoldsNothingTheToolkitCannotDraw) {
    for (const QString& file : FilesBelow(":/icons")) {
        const cWarnings warnings;
        EXPECT_TRUE(QSvgRenderer(":/icons/" + file).isValid()) << qPrintable(file);
        EXPECT_EQ(warnings.Texts().toStdString(), "") << qPrintable(file);
    }
}

// These pass unnoticed: the toolkit draws the rest without them.
TEST(ResourceFile, UsesNoPartOfSvgThatTheToolkitLeavesOut) {
    const QRegularExpression leftOut("<(filter|mask|clipPath|style|script|image|text)\\b|\\b(class|style)=");
    for (const QString& file : FilesBelow(":/icons")) {
        const QString text = ReadText(":/icons/" + file);
        ASSERT_FALSE(text.isEmpty()) << qPrintable(file);
        EXPECT_FALSE(leftOut.match(text).hasMatch()) << qPrintable(file);
    }
}

TEST(ResourceFile, ItsSheetShowsEveryPictureOnce) {
    const QString folder = QFileInfo(VIGREL_ICON_SHEET).path();
    QStringList shown;
    auto link = QRegularExpression("\\]\\(([^)]*\\.svg)\\)").globalMatch(ReadText(VIGREL_ICON_SHEET));
    while (link.hasNext()) {
        const QString target = QDir::cleanPath(folder + "/" + link.next().captured(1));
        shown << QDir(VIGREL_ICONS).relativeFilePath(target);
    }
    shown.sort();
    EXPECT_EQ(shown.join('\n').toStdString(), FilesBelow(VIGREL_ICONS).join('\n').toStdString());
}

}  // namespace
}  // namespace vigrel::testing
