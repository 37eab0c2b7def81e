#include "windows/application.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QPalette>
#include <QSessionManager>
#include <QTimer>
#include <algorithm>
#include <cmath>
#include <utility>

#include "common/failure.h"
#include "support/qt_wait.h"

namespace vigrel::testing {
namespace {

// The application under which all window tests run.
cApplication& Application() {
    return *static_cast<cApplication*>(QCoreApplication::instance());
}

void FailInTheEventLoop() {
    QTimer::singleShot(0, [] { throw cFailure(eFailure::Overflow, "the \xE4pple overflowed"); });
    QTimer::singleShot(0, [] { std::fputs("went on\n", stderr); });
    QCoreApplication::exec();
}

class ApplicationDeathTest : public ::testing::Test {
  protected:
    ApplicationDeathTest() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

TEST_F(ApplicationDeathTest, AFailureThatNoHandlerTakesEndsTheProgramWithCode70) {
    EXPECT_EXIT(FailInTheEventLoop(), ::testing::ExitedWithCode(70), "Failure: the äpple overflowed\n$");
}

TEST_F(ApplicationDeathTest, AFailureBeforeTheEventLoopEndsTheProgramAlike) {
    EXPECT_EXIT(Application().Guard([] { throw cFailure(eFailure::PathAccess, "no folder"); }),
                ::testing::ExitedWithCode(70), "Failure: no folder");
}

TEST_F(ApplicationDeathTest, OtherExceptionsAreFailuresToo) {
    EXPECT_EXIT(Application().Guard([] { throw std::bad_alloc(); }), ::testing::ExitedWithCode(70),
                "Failure: ");
}

TEST_F(ApplicationDeathTest, AFailureInAnEventThatIsSentIsNotTheSendersToSkip) {
    class cFailing : public QObject {
      public:
        bool event(QEvent*) override { throw cFailure(eFailure::InvalidCall, "in an event"); }
    };
    cFailing failing;
    QEvent event(QEvent::User);
    EXPECT_EXIT(SkipFailure([&] { QCoreApplication::sendEvent(&failing, &event); }),
                ::testing::ExitedWithCode(70), "in an event");
}

TEST(Application, AStepWithoutFailureRuns) {
    bool run = false;
    Application().Guard([&] { run = true; });
    EXPECT_TRUE(run);
}

TEST(Application, GoesOnWithoutWindows) {
    EXPECT_FALSE(QApplication::quitOnLastWindowClosed());
}

TEST(Application, AStepIsRepeatedUntilAnotherTakesItsPlaceOrNone) {
    int first = 0, second = 0;
    Application().Repeat(1, [&] { ++first; });
    EXPECT_TRUE(WaitUntil([&] { return first >= 3; }));
    Application().Repeat(1, [&] { ++second; });
    const int before = first;
    EXPECT_TRUE(WaitUntil([&] { return second >= 3; }));
    EXPECT_EQ(first, before);
    Application().Repeat(0, [&] { ++second; });
    const int last = second;
    RunEvents(20);
    EXPECT_EQ(second, last);
}

TEST(Application, RefusedDialogsAreClosedTheOneThatStandsAndTheNextUntilTheyAreAllowed) {
    QDialog standing, next, allowed;
    QTimer::singleShot(0, [] { Application().RefuseDialogs(); });
    EXPECT_EQ(standing.exec(), QDialog::Rejected);
    EXPECT_EQ(next.exec(), QDialog::Rejected);
    Application().AllowDialogs();
    QTimer::singleShot(200, &allowed, &QDialog::accept);
    EXPECT_EQ(allowed.exec(), QDialog::Accepted);
}

double Luminance(const QColor& colour) {
    const auto linear = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

// The contrast of hints, which let their ground shine through, in the colours of the application.
double HintContrast() {
    const QColor ground = QApplication::palette().color(QPalette::Base);
    const QColor hint = QApplication::palette().color(QPalette::PlaceholderText);
    const auto mix = [&](float above, float below) {
        return above * hint.alphaF() + below * (1 - hint.alphaF());
    };
    const QColor seen = QColor::fromRgbF(mix(hint.redF(), ground.redF()), mix(hint.greenF(), ground.greenF()),
                                         mix(hint.blueF(), ground.blueF()));
    const double one = Luminance(ground), other = Luminance(seen);
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

// What is set stands against the desktop's next change.
TEST(Application, OfTheDesktopsColoursOnlyTheHintsAreSet) {
    const QPalette palette = QApplication::palette();
    EXPECT_TRUE(palette.isBrushSet(QPalette::Active, QPalette::PlaceholderText));
    for (const auto role : {QPalette::Window, QPalette::WindowText, QPalette::Base, QPalette::Text}) {
        EXPECT_FALSE(palette.isBrushSet(QPalette::Active, role)) << role;
    }
}

TEST(Application, HintsCanBeReadInEveryDesktopsColours) {
    const QPalette before = QApplication::palette();
    EXPECT_GE(HintContrast(), 4.5);
    for (const auto& [ground, text] : {std::pair{"#1b1e20", "#fcfcfc"}, std::pair{"#ffffff", "#000000"}}) {
        QPalette desktop = before;
        desktop.setColor(QPalette::Base, ground);
        desktop.setColor(QPalette::Text, text);
        desktop.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
        QApplication::setPalette(desktop);
        QCoreApplication::processEvents();
        EXPECT_GE(HintContrast(), 4.5) << ground;
    }
    QApplication::setPalette(before);
}

// What the environment makes of the platform.
class ApplicationPlatform : public ::testing::Test {
  protected:
    ApplicationPlatform() {
        for (const char* name : kNames) m_Saved.push_back(qgetenv(name));
        for (const char* name : kNames) qunsetenv(name);
    }
    ~ApplicationPlatform() override {
        for (std::size_t i = 0; i < m_Saved.size(); ++i) {
            m_Saved[i].isNull() ? qunsetenv(kNames[i]) : qputenv(kNames[i], m_Saved[i]);
        }
    }
    static QByteArray Chosen() {
        cApplication::ChoosePlatform();
        return qgetenv("QT_QPA_PLATFORM");
    }
    static constexpr std::array kNames{"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"};
    std::vector<QByteArray> m_Saved;
};

TEST_F(ApplicationPlatform, AWaylandSessionWithX11UsesIt) {
    qputenv("WAYLAND_DISPLAY", "wayland-0");
    qputenv("DISPLAY", ":0");
    EXPECT_EQ(Chosen(), "xcb;wayland");
}
TEST_F(ApplicationPlatform, AWaylandSessionAloneIsLeftToTheToolkit) {
    qputenv("WAYLAND_DISPLAY", "wayland-0");
    EXPECT_EQ(Chosen(), "");
}
TEST_F(ApplicationPlatform, WithoutADisplayTheProgramRunsUnseen) {
    EXPECT_EQ(Chosen(), "offscreen");
}
TEST_F(ApplicationPlatform, TheUsersChoiceStands) {
    qputenv("QT_QPA_PLATFORM", "vnc");
    qputenv("DISPLAY", ":0");
    EXPECT_EQ(Chosen(), "vnc");
}

}  // namespace
}  // namespace vigrel::testing
