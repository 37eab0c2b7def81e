#include "common/missing_file.h"

#include <gtest/gtest.h>

#include "support/faulty_files.h"

namespace vigrel::testing {
namespace {

const std::string kAsked = "C:\\App\\x.dat";

TEST(MissingFile, AFileIsThereWhateverItHolds) {
    cFakeFiles files;
    EXPECT_FALSE(IsThere(files, kAsked));
    EXPECT_TRUE(IsMissing(files, kAsked));
    files.Put(kAsked, "");
    EXPECT_TRUE(IsThere(files, kAsked));
    EXPECT_FALSE(IsMissing(files, kAsked));
}

TEST(MissingFile, OneThatCannotBeReadIsThereAllTheSame) {
    cFakeFiles files;
    files.Put(kAsked, "x");
    files.SetUnreadable(kAsked, true);
    EXPECT_TRUE(IsThere(files, kAsked));
    EXPECT_FALSE(IsMissing(files, kAsked));
}

TEST(MissingFile, ALookThatFailsIsNoAnswer) {
    cFakeFiles disk;
    disk.Put("C:\\App\\y.dat", "y");
    cFaultyFiles files(disk);
    files.m_Count = 1000;
    const auto failure = CatchFailure([&] { IsThere(files, kAsked); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->Number(), eFailure::InputOutput);
    EXPECT_FALSE(IsMissing(files, kAsked));
}

}  // namespace
}  // namespace vigrel::testing
