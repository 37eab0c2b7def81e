#include "windows/icon_strip.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QImage>

#include "support/temporary_folder.h"

namespace vigrel::testing {
namespace {

// A strip of two images, 2 in red and 12 in blue.
class IconStrip : public ::testing::Test {
  protected:
    IconStrip() {
        Put("02.svg", "red");
        Put("12.svg", "blue");
    }
    void Put(const char* name, const char* colour) {
        QFile file(QString::fromStdString((m_Folder.Path() / name).string()));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(
            "<svg xmlns='http://www.w3.org/2000/svg' width='8' height='4'><rect width='8' height='4' fill='" +
            QByteArray(colour) + "'/></svg>");
    }
    QImage Image(int number, int size = 16, qreal scale = 1) const {
        return m_Strip.Image(number, size, scale).toImage();
    }
    const cTemporaryFolder m_Folder;
    const cIconStrip m_Strip{QString::fromStdString(m_Folder.Path().string())};
};

TEST_F(IconStrip, FindsItsImagesByTwoDigits) {
    EXPECT_EQ(Image(2).pixelColor(8, 8), QColor(Qt::red));
    EXPECT_EQ(Image(12).pixelColor(8, 8), QColor(Qt::blue));
}

TEST_F(IconStrip, HasNothingForANumberOrASizeThatThereIsNot) {
    for (const int number : {-1, 0, 1, 3}) EXPECT_TRUE(Image(number).isNull()) << number;
    for (const int size : {-1, 0}) EXPECT_TRUE(Image(2, size).isNull()) << size;
    EXPECT_FALSE(Image(2, 1).isNull());
}

TEST_F(IconStrip, IsSharpAtEveryScaleAndKeepsItsShape) {
    EXPECT_EQ(Image(2).size(), QSize(16, 16));
    const QPixmap large = m_Strip.Image(2, 16, 1.5);
    EXPECT_EQ(large.size(), QSize(24, 24));
    EXPECT_EQ(large.devicePixelRatio(), 1.5);
    // Twice as wide as high, in a square.
    EXPECT_EQ(Image(2).pixelColor(8, 1).alpha(), 0);
    EXPECT_EQ(Image(2).pixelColor(8, 14).alpha(), 0);
    EXPECT_EQ(Image(2).pixelColor(1, 8), QColor(Qt::red));
}

TEST_F(IconStrip, DrawsAnImageOnceForEachSize) {
    const qint64 first = m_Strip.Image(2, 16, 1).cacheKey();
    EXPECT_NE(m_Strip.Image(2, 20, 1).cacheKey(), first);
    EXPECT_NE(m_Strip.Image(2, 16, 2).cacheKey(), first);
    EXPECT_EQ(m_Strip.Image(2, 16, 1).cacheKey(), first);
}

}  // namespace
}  // namespace vigrel::testing
