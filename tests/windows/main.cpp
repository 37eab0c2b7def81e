#include <gtest/gtest.h>

#include "support/toolkit_warnings.h"
#include "windows/application.h"

// Window tests need no display: they run on the toolkit's off-screen platform unless told otherwise.
int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    vigrel::testing::cToolkitWarnings::FailTests();
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const vigrel::cApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
