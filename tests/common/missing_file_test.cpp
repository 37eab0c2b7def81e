#include "common/missing_file.h"

#include <gtest/gtest.h>

#include "support/faulty_files.h"

namespace vigrel::testing {
namespace {

const std::string kPath = "C:\\App\\x.dat";

TEST(MissingFile, AFileIsThereWhateverItHolds) {
    cFakeFiles files;
    EXPECT_FALSE(IsThere(files, kPath));
    EXPECT_TRUE(IsMissing(files, kPath));
    files.Put(kPath, "");
    EXPECT_TRUE(IsThere(files, kPath));
    EXPECT_FALSE(IsMissing(files, kPath));
}

TEST(MissingFile, OneThatCannotBeReadIsThereAllTheSame) {
    cFakeFiles files;
    files.Put(kPath, "x");
    files.SetUnreadable(kPath, true);
    EXPECT_TRUE(IsThere(files, kPath));
    EXPECT_FALSE(IsMissing(files, kPath));
}

TEST(MissingFile, ALookThatFailsIsNoAnswer) {
    cFakeFiles disk;
    disk.Put("C:\\App\\y.dat", "y");
    cFaultyFiles files(disk);
    files.m_Count = 1000;
    const auto failure = CatchFailure([&] { IsThere(files, kPath); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->Number(), eFailure::InputOutput);
    EXPECT_FALSE(IsMissing(files, kPath));
}

}  // namespace
}  // namespace vigrel::testing
