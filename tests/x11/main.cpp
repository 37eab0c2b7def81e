#include <gtest/gtest.h>

#include <QApplication>
#include <cstdio>
#include <exception>

#include "support/toolkit_warnings.h"
#include "x11/x_server.h"

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    vigrel::testing::cToolkitWarnings::FailTests();
    // Listing the tests, as a build does, needs no screen.
    if (GTEST_FLAG_GET(list_tests)) return RUN_ALL_TESTS();
    try {
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
