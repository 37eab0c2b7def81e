#include <gtest/gtest.h>

#include <QApplication>
#include <QProcess>
#include <cstdio>
#include <exception>
#include <stdexcept>

#include "support/toolkit_warnings.h"
#include "tray_bus/bus_host.h"
#include "x11/x_server.h"

namespace {

// A message bus for this program alone.
class cMessageBus {
  public:
    cMessageBus() {
        m_Daemon.start("dbus-daemon", {"--session", "--nofork", "--nopidfile", "--print-address=1"});
        if (!m_Daemon.waitForStarted() || !m_Daemon.waitForReadyRead()) {
            throw std::runtime_error("dbus-daemon did not start; is package dbus-daemon installed?");
        }
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_Daemon.readLine().trimmed());
    }
    ~cMessageBus() {
        m_Daemon.kill();
        m_Daemon.waitForFinished();
    }

  private:
    QProcess m_Daemon;
};

}  // namespace

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    vigrel::testing::cToolkitWarnings::FailTests();
    // Listing the tests, as a build does, needs no screen.
    if (GTEST_FLAG_GET(list_tests)) return RUN_ALL_TESTS();
    try {
        const cMessageBus bus;
        const vigrel::testing::cXServer server;
        qputenv("QT_QPA_PLATFORM", "xcb");
        const QApplication application(argc, argv);
        QApplication::setQuitOnLastWindowClosed(false);
        return RUN_ALL_TESTS();
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
}
