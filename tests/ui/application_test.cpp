#include "ui/application.h"

#include <gtest/gtest.h>

#include <QSessionManager>
#include <QTimer>

#include "common/failure.h"

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
