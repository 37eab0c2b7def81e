#include <gtest/gtest.h>

#include <QIcon>
#include <vector>

#include "resources/picture.h"

namespace vigrel::testing {
namespace {

constexpr int kLastStripNumber = 47;
constexpr int kDayTypePictures = 23;
// A dot of this share of a 16 pixel picture is 5 by 5: the least that is seen as something.
constexpr double kSeen = 0.1;
// 13 of the 256 pixels at size 16.
constexpr double kDistinct = 0.05;

const QColor kWhite(Qt::white);
const QColor kNearBlack("#202020");

std::vector<QString> Numbered(const QString& set, int first, int last, int digits) {
    std::vector<QString> paths;
    for (int number = first; number <= last; ++number) paths.push_back(PicturePath(set, number, digits));
    return paths;
}

std::vector<QString> Strip() {
    return Numbered("strip", 0, kLastStripNumber, 2);
}
std::vector<QString> Popups() {
    return Numbered("popup", 0, 3, 1);
}
std::vector<QString> Trays() {
    return Numbered("tray", 0, 2, 1);
}
std::vector<QString> DayTypes() {
    return Numbered("daytype", 1, kDayTypePictures, 2);
}

void ExpectSeen(const std::vector<QString>& paths, const std::vector<int>& sizes) {
    for (const QString& path : paths) {
        for (const int size : sizes) {
            const QImage picture = Drawn(path, size);
            ASSERT_FALSE(picture.isNull()) << qPrintable(path);
            EXPECT_GE(Covered(picture), kSeen) << qPrintable(path) << " at " << size;
            EXPECT_GE(Readable(picture, kWhite), kSeen) << qPrintable(path) << " on white at " << size;
            EXPECT_GE(Readable(picture, kNearBlack), kSeen) << qPrintable(path) << " on dark at " << size;
        }
    }
}

void ExpectDistinctShapes(const std::vector<QString>& paths, int size) {
    for (std::size_t i = 0; i < paths.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            EXPECT_GE(ShapeDifference(Drawn(paths[i], size), Drawn(paths[j], size)), kDistinct)
                << qPrintable(paths[j]) << " and " << qPrintable(paths[i]) << " at " << size;
        }
    }
}

TEST(Pictures, EveryNumberOfTheStripIsSeenOnLightGroundAndOnDark) {
    ExpectSeen(Strip(), {16, 32});
}

TEST(Pictures, ObservedIsToldFromNotObservedByItsSilhouette) {
    for (int number = 0; number < kLastStripNumber; number += 2) {
        for (const int size : {16, 32}) {
            const QImage notObserved = Drawn(PicturePath("strip", number, 2), size);
            const QImage observed = Drawn(PicturePath("strip", number + 1, 2), size);
            EXPECT_GE(SilhouetteDifference(notObserved, observed), kDistinct) << number << " at " << size;
        }
    }
}

TEST(Pictures, NoTwoNumbersOfTheStripLookAlikeWithoutColour) {
    ExpectDistinctShapes(Strip(), 16);
    ExpectDistinctShapes(Strip(), 32);
}

TEST(Pictures, PopupsShowFourDistinctStates) {
    ExpectSeen(Popups(), {32, 64});
    ExpectDistinctShapes(Popups(), 32);
}

// A category may give its popups any colour as their ground.
TEST(Pictures, PopupPicturesStandOutFromEveryGround) {
    for (const QString& path : Popups()) {
        const QImage picture = Drawn(path, 32);
        for (int red = 0; red <= 255; red += 51) {
            for (int green = 0; green <= 255; green += 51) {
                for (int blue = 0; blue <= 255; blue += 51) {
                    const QColor ground(red, green, blue);
                    EXPECT_GE(Readable(picture, ground), kSeen)
                        << qPrintable(path) << " on " << qPrintable(ground.name());
                }
            }
        }
    }
}

TEST(Pictures, TheTrayFlashesByShape) {
    ExpectSeen(Trays(), {16, 22, 24});
    for (const int size : {16, 22, 24}) ExpectDistinctShapes(Trays(), size);
}

TEST(Pictures, DayTypesAreDistinctShapes) {
    ExpectSeen(DayTypes(), {16, 32});
    ExpectDistinctShapes(DayTypes(), 16);
}

TEST(Pictures, TracedDirectionsAreDistinctShapes) {
    const std::vector<QString> directions{":/icons/debug-out.svg", ":/icons/debug-in.svg"};
    ExpectSeen(directions, {16, 32});
    ExpectDistinctShapes(directions, 16);
}

TEST(Pictures, ProgramsHaveIconsOfEverySize) {
    const std::vector<QString> programs{":/icons/vigrel-receiver.svg", ":/icons/vigrel-definitions.svg"};
    ExpectSeen(programs, {16, 24, 32, 48, 64, 128, 256});
    for (const int size : {16, 48, 256}) ExpectDistinctShapes(programs, size);
}

// Windows and the notification area take the pictures as icons, which needs the toolkit's icon engine for
// SVG.
TEST(Pictures, ServeAsIconsOfTheToolkit) {
    for (const QString& path : Trays()) {
        const QImage picture = QIcon(path).pixmap(QSize(24, 24), 1.0).toImage();
        ASSERT_EQ(picture.size(), QSize(24, 24)) << qPrintable(path);
        EXPECT_GE(Covered(picture), kSeen) << qPrintable(path);
    }
}

}  // namespace
}  // namespace vigrel::testing
