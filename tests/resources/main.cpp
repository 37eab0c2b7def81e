#include <gtest/gtest.h>

#include <QGuiApplication>

#include "support/toolkit_warnings.h"

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    vigrel::testing::cToolkitWarnings::FailTests();
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
