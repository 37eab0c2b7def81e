#include <gtest/gtest.h>

#include "support/toolkit_warnings.h"
#include "windows/application.h"

// The leak checker looks for pointers in what threads keep for themselves, and takes that of libraries that
// are loaded while the program runs (printing loads some) to be where it isn't: it then crashes at the end
// of a good test. Without that look, what such libraries keep counts as lost. The names are the checker's.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" const char* __lsan_default_options();
extern "C" const char* __lsan_default_options() {
    return "use_tls=0";
}
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
    return "leak:_cupsGlobals\nleak:libglib-2.0.so\n";
}
// NOLINTEND(bugprone-reserved-identifier)

// Window tests need no display: they run on the toolkit's off-screen platform unless told otherwise.
int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    vigrel::testing::cToolkitWarnings::FailTests();
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const vigrel::cApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
