#include <gtest/gtest.h>

#include <QCoreApplication>

#include "support/toolkit_warnings.h"

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    vigrel::testing::cToolkitWarnings::FailTests();
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
