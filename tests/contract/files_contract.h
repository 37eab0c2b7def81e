#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "common/failure.h"
#include "common/file_procedures.h"
#include "platform/files.h"

namespace vigrel::testing {

// What the system relies on, whatever files it is given. A rig offers cFiles& Files() and std::string
// Folder(), an empty folder with its trailing separator.
template <class Rig>
class FilesContract : public ::testing::Test {
  protected:
    cFiles& Files() { return m_Rig.Files(); }
    std::string Path(const std::string& name) { return m_Rig.Folder() + name; }
    std::vector<std::string> List(const std::string& mask) {
        auto names = Files().ListFiles(m_Rig.Folder(), mask);
        std::sort(names.begin(), names.end());
        return names;
    }
    template <class Call>
    eFailure FailureOf(Call&& call) {
        try {
            call();
        } catch (const cFailure& failure) {
            EXPECT_NE(std::string(failure.what()), "");
            return failure.Number();
        }
        ADD_FAILURE() << "no failure";
        return eFailure::InvalidCall;
    }
    Rig m_Rig;
};
TYPED_TEST_SUITE_P(FilesContract);

TYPED_TEST_P(FilesContract, WhatIsWrittenIsReadInEveryByte) {
    std::string bytes;
    for (int i = 0; i < 256; ++i) bytes += static_cast<char>(i);
    this->Files().WriteFile(this->Path("a.bin"), bytes, true);
    EXPECT_EQ(this->Files().ReadFile(this->Path("a.bin")), bytes);
    this->Files().WriteFile(this->Path("a.bin"), "short", false);
    EXPECT_EQ(this->Files().ReadFile(this->Path("a.bin")), "short");
}

TYPED_TEST_P(FilesContract, AppendingCreatesAndGoesOn) {
    this->Files().AppendFile(this->Path("a.log"), "one");
    this->Files().AppendFile(this->Path("a.log"), "two");
    EXPECT_EQ(this->Files().ReadFile(this->Path("a.log")), "onetwo");
}

TYPED_TEST_P(FilesContract, NamesAreFoundInAnyCaseInEveryPartOfThePath) {
    this->Files().MakeFolder(this->Path("LogFiles"));
    this->Files().WriteFile(this->Path("LogFiles\\20260315.Log"), "x", false);
    EXPECT_TRUE(this->Files().FileExists(this->Path("logfiles\\20260315.LOG")));
    EXPECT_EQ(this->Files().ReadFile(this->Path("LOGFILES/20260315.log")), "x");
    this->Files().AppendFile(this->Path("logfiles\\20260315.LOG"), "y");
    EXPECT_EQ(this->Files().ReadFile(this->Path("LogFiles\\20260315.Log")), "xy");
    this->Files().RemoveFile(this->Path("logfiles\\20260315.LOG"));
    EXPECT_FALSE(this->Files().FileExists(this->Path("LogFiles\\20260315.Log")));
}

TYPED_TEST_P(FilesContract, ALongNameIsFoundInAnyCaseToo) {
    this->Files().WriteFile(this->Path("VigrelReceiver.INI"), "x", false);
    EXPECT_TRUE(this->Files().FileExists(this->Path("vigrelreceiver.ini")));
    EXPECT_EQ(this->List("VIGREL*.ini"), std::vector<std::string>{"VigrelReceiver.INI"});
}

TYPED_TEST_P(FilesContract, NamesKeepTheSpellingTheyWereMadeWith) {
    this->Files().WriteFile(this->Path("A0000001.alm"), "x", false);
    this->Files().WriteFile(this->Path("a0000001.ALM"), "y", false);
    EXPECT_EQ(this->List("*"), std::vector<std::string>{"A0000001.alm"});
}

TYPED_TEST_P(FilesContract, NamesOutsideAsciiAreTheCodePages) {
    this->Files().WriteFile(this->Path("Kn\xE4"
                                       "pp.wav"),
                            "x", false);
    EXPECT_EQ(this->List("kn\xC4"
                         "PP.*"),
              std::vector<std::string>{"Kn\xE4"
                                       "pp.wav"});
    EXPECT_TRUE(
        this->Files().FileExists(this->Path("KN\xC4"
                                            "PP.WAV")));
}

TYPED_TEST_P(FilesContract, AMaskListsRegularFilesThatFit) {
    this->Files().MakeFolder(this->Path("A0000000.alm"));
    for (const char* name :
         {"A0000001.alm", "A0000002.ALM", "A00000031.alm", "B0000004.alm", "A0000005.al", ".A000006.alm"}) {
        this->Files().WriteFile(this->Path(name), "x", false);
    }
    EXPECT_EQ(this->List("A???????.Alm"), (std::vector<std::string>{"A0000001.alm", "A0000002.ALM"}));
    EXPECT_EQ(this->List("*.alm").size(), 4u);
    EXPECT_EQ(this->List("*1*").size(), 2u);
    EXPECT_EQ(this->List("nothing?").size(), 0u);
}

TYPED_TEST_P(FilesContract, AMissingFolderListsAsEmpty) {
    EXPECT_TRUE(this->Files().ListFiles(this->Path("none\\"), "*").empty());
    EXPECT_TRUE(this->Files().ListNames(this->Path("none\\"), "*").empty());
}

TYPED_TEST_P(FilesContract, NamesAreListedAsTheFilesAre) {
    for (const char* name : {"A0000001.alm", "A0000002.ALM", "other"}) {
        this->Files().WriteFile(this->Path(name), "x", false);
    }
    auto names = this->Files().ListNames(this->m_Rig.Folder(), "A???????.alm");
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::string>{"A0000001.alm", "A0000002.ALM"}));
}

TYPED_TEST_P(FilesContract, AMissingFileFailsAsSuchAndNamesThePath) {
    EXPECT_EQ(this->FailureOf([&] { this->Files().ReadFile(this->Path("none.txt")); }),
              eFailure::FileNotFound);
    EXPECT_EQ(this->FailureOf([&] { this->Files().RemoveFile(this->Path("none.txt")); }),
              eFailure::FileNotFound);
    EXPECT_EQ(this->FailureOf([&] { this->Files().RenameFile(this->Path("none.txt"), this->Path("x")); }),
              eFailure::FileNotFound);
    try {
        this->Files().ReadFile(this->Path("none.txt"));
    } catch (const cFailure& failure) {
        EXPECT_NE(std::string(failure.what()).find("none.txt"), std::string::npos);
    }
}

TYPED_TEST_P(FilesContract, WritingIntoAMissingFolderFails) {
    EXPECT_THROW(this->Files().WriteFile(this->Path("none\\a.txt"), "x", false), cFailure);
    EXPECT_THROW(this->Files().AppendFile(this->Path("none\\a.txt"), "x"), cFailure);
}

TYPED_TEST_P(FilesContract, AFolderIsMadeOnce) {
    this->Files().MakeFolder(this->Path("Alarms"));
    EXPECT_THROW(this->Files().MakeFolder(this->Path("Alarms")), cFailure);
    EXPECT_THROW(this->Files().MakeFolder(this->Path("ALARMS")), cFailure);
    EXPECT_FALSE(this->Files().FileExists(this->Path("Alarms")));
}

TYPED_TEST_P(FilesContract, ARenameReplacesItsTarget) {
    this->Files().WriteFile(this->Path("new"), "new", true);
    this->Files().WriteFile(this->Path("old"), "old", true);
    this->Files().RenameFile(this->Path("new"), this->Path("old"));
    this->Files().SyncFolder(this->m_Rig.Folder());
    EXPECT_EQ(this->List("*"), std::vector<std::string>{"old"});
    EXPECT_EQ(this->Files().ReadFile(this->Path("old")), "new");
}

TYPED_TEST_P(FilesContract, TheStampChangesWithTheContentAndTellsAMissingFile) {
    const auto missing = this->Files().Stamp(this->Path("a.txt"));
    EXPECT_EQ(missing.size, -1);
    this->Files().WriteFile(this->Path("a.txt"), "one", false);
    const auto first = this->Files().Stamp(this->Path("a.txt"));
    EXPECT_EQ(first.size, 3);
    EXPECT_EQ(this->Files().Stamp(this->Path("A.TXT")), first);
    ReplaceFile(this->Files(), this->Path("a.txt"), "two");
    EXPECT_FALSE(this->Files().Stamp(this->Path("a.txt")) == first);
}

TYPED_TEST_P(FilesContract, AStartedSyncComesToItsEnd) {
    this->Files().WriteFile(this->Path("a"), "a", false);
    const auto sync = this->Files().StartSync(this->m_Rig.Folder());
    EXPECT_TRUE(sync->Wait());
    EXPECT_TRUE(sync->Done());
    EXPECT_TRUE(sync->Wait());
}

REGISTER_TYPED_TEST_SUITE_P(FilesContract, WhatIsWrittenIsReadInEveryByte, AppendingCreatesAndGoesOn,
                            NamesAreFoundInAnyCaseInEveryPartOfThePath, ALongNameIsFoundInAnyCaseToo,
                            NamesKeepTheSpellingTheyWereMadeWith, NamesOutsideAsciiAreTheCodePages,
                            AMaskListsRegularFilesThatFit, AMissingFolderListsAsEmpty,
                            NamesAreListedAsTheFilesAre, AMissingFileFailsAsSuchAndNamesThePath,
                            WritingIntoAMissingFolderFails, AFolderIsMadeOnce, ARenameReplacesItsTarget,
                            TheStampChangesWithTheContentAndTellsAMissingFile, AStartedSyncComesToItsEnd);

}  // namespace vigrel::testing
