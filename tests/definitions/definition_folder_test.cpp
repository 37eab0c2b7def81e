#include "definitions/definition_folder.h"

#include <map>
#include <memory>
#include <set>

#include "definitions/definition_fixture.h"
#include "definitions/receiver_list.h"
#include "support/samples.h"

namespace vigrel::testing {
namespace {

using eNote = cDefinitionNote::eKind;

class DefinitionFolder : public DefinitionTest {
  protected:
    DefinitionFolder() {
        m_Services.m_OnNote = [this](const cDefinitionNote& note) { m_Notes.push_back(note); };
        m_Files.Put(ReceiverPath("0009"), testing::Sample("receiver_version_3.dat"));
        m_Files.Put(ReceiverPath("0007"), testing::Sample("receiver_version_5.dat"));
        m_Files.Put(ReceiverPath("0008"), "\x06\x01");
        m_Files.Put(ReceiverPath("00x1"), "x");
        m_Files.Put(ReceiverPath("0007") + ".$~", "x");
    }
    std::vector<cDefinitionNote> m_Notes;
    cReceiverFolder m_Receivers{m_Services};
};

TEST_F(DefinitionFolder, LoadsWhatCanBeReadInTheOrderOfTheIdentities) {
    m_Receivers.Load();
    ASSERT_EQ(m_Receivers.Count(), 2u);
    EXPECT_EQ(m_Receivers.At(0).m_DiskIdentity, 7);
    EXPECT_EQ(m_Receivers.At(1).m_DiskIdentity, 9);
    const std::vector<cUnreadableFile> unreadable{
        {ReceiverPath("0008"), "The file's version is 262, not one of 3 to 5."}};
    EXPECT_EQ(m_Receivers.Unreadable(), unreadable);
    EXPECT_FALSE(m_Receivers.HasChanges());
}

TEST_F(DefinitionFolder, AFileThatIsLeftOutIsToldWithItsReason) {
    m_Files.Put(ReceiverPath("0002"), "");
    m_Files.Put(ReceiverPath("0003"), "x");
    m_Files.Put(ReceiverPath("0004"), std::string("\x02\x00", 2));
    m_Files.Put(ReceiverPath("0005"), std::string("\x05\x00", 2));
    m_Files.Put(ReceiverPath("0006"), std::string("\x03\x00", 2));
    m_Receivers.Load();
    const std::vector<cUnreadableFile> unreadable{
        {ReceiverPath("0002"), "The file has 0 bytes: it is empty."},
        {ReceiverPath("0003"), "The file has 1 bytes: it is empty."},
        {ReceiverPath("0004"), "The file's version is 2, not one of 3 to 5."},
        {ReceiverPath("0005"), "The file is damaged: it ends too early or holds a value that is none."},
        {ReceiverPath("0006"), "The file is damaged: it ends too early or holds a value that is none."},
        {ReceiverPath("0008"), "The file's version is 262, not one of 3 to 5."}};
    EXPECT_EQ(m_Receivers.Unreadable(), unreadable);
}

TEST_F(DefinitionFolder, ThatCannotBeListedIsToldAndIsNews) {
    const std::string path = ReceiverPath("0007"), folder = path.substr(0, path.rfind('\\') + 1);
    const auto none = [](std::size_t) { return false; };
    m_Receivers.Load();
    m_Files.m_FolderProblems[folder] = "Permission denied";
    EXPECT_TRUE(m_Receivers.HasNews(none));
    m_Receivers.Load();
    EXPECT_EQ(m_Receivers.Count(), 0u);
    const std::vector<cUnreadableFile> unreadable{{folder.substr(0, folder.size() - 1), "Permission denied"}};
    EXPECT_EQ(m_Receivers.Unreadable(), unreadable);
    EXPECT_FALSE(m_Receivers.HasNews(none));

    m_Files.m_FolderProblems.clear();
    EXPECT_TRUE(m_Receivers.HasNews(none));
    m_Receivers.Rescan(none);
    EXPECT_EQ(m_Receivers.Count(), 2u);
    EXPECT_EQ(m_Receivers.Unreadable().size(), 1u);
}

// With folders among the files.
class cFilesAndFolders : public testing::cFakeFiles {
  public:
    std::set<std::string> m_Folders;  // their names
    std::vector<std::string> ListNames(std::string_view folder, std::string_view mask) const override {
        std::vector<std::string> names = cFakeFiles::ListNames(folder, mask);
        names.insert(names.begin(), m_Folders.begin(), m_Folders.end());
        return names;
    }
    std::string ReadFile(std::string_view path) const override {
        for (const std::string& folder : m_Folders) {
            if (path.ends_with(folder)) throw cFailure(eFailure::PathAccess, "no ordinary file");
        }
        return cFakeFiles::ReadFile(path);
    }
};

TEST_F(DefinitionFolder, WhatIsNoFileIsToldAndIsNews) {
    const auto none = [](std::size_t) { return false; };
    cFilesAndFolders files;
    files.Put(ReceiverPath("0007"), testing::Sample("receiver_version_5.dat"));
    const cDefinitionServices services{files, m_Clock, m_Random, m_Texts, m_Log, m_Ini, m_Types};
    cReceiverFolder folder(services);
    folder.Load();
    EXPECT_TRUE(folder.Unreadable().empty());
    files.m_Folders = {"Receiver_0012.dat", "Receiver_0003.dat", "Receiver_00AB.dat"};
    EXPECT_TRUE(folder.HasNews(none));
    EXPECT_FALSE(folder.Rescan(none));
    const std::vector<cUnreadableFile> unreadable{{ReceiverPath("0003"), "no ordinary file"},
                                                  {ReceiverPath("0012"), "no ordinary file"}};
    EXPECT_EQ(folder.Unreadable(), unreadable);
    EXPECT_EQ(folder.Count(), 1u);
    EXPECT_FALSE(folder.HasNews(none));
}

TEST_F(DefinitionFolder, TheIdentitiesRiseWhateverOrderTheFolderGives) {
    m_Files.m_ListsBackwards = true;
    m_Receivers.Load();
    ASSERT_EQ(m_Receivers.Count(), 2u);
    EXPECT_EQ(m_Receivers.At(0).m_DiskIdentity, 7);
    EXPECT_EQ(m_Receivers.At(1).m_DiskIdentity, 9);
}

TEST_F(DefinitionFolder, AFileThatCannotBeReadIsToldOnceWhateverOrderTheFolderGives) {
    m_Files.SetUnreadable(ReceiverPath("0007"), true);
    m_Files.SetUnreadable(ReceiverPath("0009"), true);
    for (const bool backwards : {false, true}) {
        m_Files.m_ListsBackwards = backwards;
        m_Receivers.Load();
        EXPECT_EQ(m_Receivers.Unreadable().size(), 3u) << backwards;
    }
}

TEST_F(DefinitionFolder, EveryLoadTellsAgainWhatCannotBeRead) {
    m_Receivers.Load();
    m_Notes.clear();
    m_Receivers.Load();
    ASSERT_EQ(m_Notes.size(), 1u);
    EXPECT_EQ(m_Notes[0].kind, eNote::Failed);
}

TEST_F(DefinitionFolder, OneOfTheNumber0IsLikeEveryOther) {
    m_Files.Put(ReceiverPath("0000"), testing::Sample("receiver_version_5.dat"));
    m_Receivers.Load();
    ASSERT_EQ(m_Receivers.At(0).m_DiskIdentity, 0);
    m_Receivers.At(0).m_ReceiverName = "x";
    EXPECT_TRUE(m_Receivers.Revert(0));
    EXPECT_EQ(m_Receivers.Count(), 3u);
    EXPECT_EQ(m_Receivers.At(0).m_ReceiverName, "\xD6st");
    m_Receivers.At(0).m_ReceiverName = "x";
    EXPECT_TRUE(m_Receivers.Save(0));
    EXPECT_EQ(m_Receivers.At(0).m_DiskIdentity, 0);
    EXPECT_EQ(m_Receivers.At(0).m_HasUpdatedDiskIdentity, False16);
    m_Files.Put(ReceiverPath("0000"), testing::Sample("receiver_version_4.dat"));
    EXPECT_EQ(m_Receivers.StateOfFile(0), eFileState::Changed);
    const auto content = m_Receivers.CopyOf(0);
    EXPECT_TRUE(m_Receivers.Remove(0));
    EXPECT_FALSE(m_Files.FileExists(ReceiverPath("0000")));
    EXPECT_TRUE(m_Receivers.BringBack(0, *content, 0, std::nullopt));
    EXPECT_EQ(m_Receivers.At(0).m_DiskIdentity, 0);
}

TEST_F(DefinitionFolder, WhatACrashLeftOfASaveGoesAtTheNextLoad) {
    cProfileFolder profiles(m_Services);
    const std::string profile = profiles.At(profiles.Add("Day")).CreateFileName(5);
    m_Files.Put(profile + ".$~", "x");
    m_Files.m_Links[ReceiverPath("0009")] = "C:\\Shared\\nine.dat";
    m_Files.Put("C:\\Shared\\nine.dat.$~", "x");
    m_Files.Put("C:\\Shared\\other.dat.$~", "x");
    m_Receivers.Load();
    profiles.Load();
    EXPECT_FALSE(m_Files.FileExists("C:\\Shared\\nine.dat.$~"));
    EXPECT_TRUE(m_Files.FileExists("C:\\Shared\\other.dat.$~"));
    EXPECT_FALSE(m_Files.FileExists(ReceiverPath("0007") + ".$~"));
    EXPECT_FALSE(m_Files.FileExists(profile + ".$~"));
    EXPECT_TRUE(m_Files.FileExists(ReceiverPath("00x1")));
    EXPECT_TRUE(m_Files.FileExists(ReceiverPath("0007")));
}

TEST_F(DefinitionFolder, UpgradesAndFailuresAreTold) {
    m_Receivers.Load();
    ASSERT_EQ(m_Notes.size(), 2u);
    EXPECT_EQ(m_Notes[0].kind, eNote::Failed);
    EXPECT_EQ(m_Notes[0].line, "File '1' (262) is no receiver");
    EXPECT_EQ(m_Notes[1].kind, eNote::Upgraded);
    EXPECT_EQ(m_Notes[1].line, "Receiver brought up '" + ReceiverPath("0009") + "' (version 3 -> 5)");
}

TEST_F(DefinitionFolder, ANewDefinitionIsUnsavedUntilItIsSaved) {
    m_Receivers.Load();
    const std::size_t position = m_Receivers.Add("New");
    EXPECT_TRUE(m_Receivers.HasChanges());
    EXPECT_TRUE(m_Receivers.At(position).SaveToDisk());
    EXPECT_FALSE(m_Receivers.HasChanges());
    cReceiverFolder again(m_Services);
    again.Load();
    EXPECT_EQ(again.Count(), 3u);
}

TEST_F(DefinitionFolder, ANewProfileHasTheDefaultScheduleAndCanBeSaved) {
    cProfileFolder profiles(m_Services);
    cProfile& profile = profiles.At(profiles.Add("Day"));
    std::int16_t start = 0;
    std::int16_t stop = 0;
    ASSERT_TRUE(profile.m_TimeSchedule->GetNextTimePeriod(0, start, stop, nullptr));
    EXPECT_EQ(start, 420);
    EXPECT_TRUE(profile.SaveToDisk());
}

TEST_F(DefinitionFolder, ACopyHasAFreeNameAndNoIdentity) {
    m_Receivers.Load();
    EXPECT_EQ(m_Receivers.FreeName("Duty1"), "Duty1 2");
    EXPECT_EQ(m_Receivers.FreeName("Other"), "Other");
    const std::size_t position = m_Receivers.AddCopy(1, m_Receivers.FreeName("Duty1"));
    EXPECT_EQ(m_Receivers.At(position).m_ReceiverName, "Duty1 2");
    EXPECT_EQ(m_Receivers.At(position).m_DiskIdentity, -1);
    EXPECT_EQ(m_Receivers.At(position).GetSetting(1), cVariant::Int16(60));
    EXPECT_EQ(m_Receivers.FreeName("Duty1"), "Duty1 3");
}

TEST_F(DefinitionFolder, ASaveReadsBackWhatTheFileHas) {
    m_Receivers.Load();
    m_Receivers.At(0).m_ReceiverName = "Changed";
    m_Clock.Set(2026, 5, 1);
    EXPECT_TRUE(m_Receivers.Save(0));
    EXPECT_EQ(m_Receivers.At(0).m_FileDateTimeStamp, m_Clock.Now());
    m_Receivers.At(0).m_ReceiverName = "Again";
    m_Files.m_FolderReadOnly = true;
    EXPECT_FALSE(m_Receivers.Save(0));
    EXPECT_EQ(m_Receivers.At(0).m_ReceiverName, "Again");
}

TEST_F(DefinitionFolder, ASaveThatCannotBeReadBackIsNoneAndIsReadWhenItCan) {
    m_Receivers.Load();
    m_Receivers.At(0).m_ReceiverName = "Changed";
    m_Files.m_OnCall = [this](std::string_view operation, std::string_view) {
        if (operation == "sync") m_Files.SetUnreadable(ReceiverPath("0007"), true);
    };
    EXPECT_FALSE(m_Receivers.Save(0));
    m_Files.m_OnCall = nullptr;
    EXPECT_EQ(m_Notes.back().kind, eNote::Failed);
    EXPECT_EQ(m_Receivers.At(0).m_ReceiverName, "Changed");
    EXPECT_EQ(m_Receivers.StateOfFile(0), eFileState::Changed);
    m_Files.SetUnreadable(ReceiverPath("0007"), false);
    EXPECT_TRUE(m_Receivers.Rescan([](std::size_t) { return false; }));
    EXPECT_EQ(m_Receivers.At(0).m_ReceiverName, "Changed");
    EXPECT_EQ(m_Receivers.StateOfFile(0), eFileState::Unchanged);
}

TEST_F(DefinitionFolder, RemovingTakesTheFileAwayToo) {
    m_Receivers.Load();
    EXPECT_TRUE(m_Receivers.Remove(0));
    EXPECT_FALSE(m_Files.FileExists(ReceiverPath("0007")));
    EXPECT_EQ(m_Receivers.Count(), 1u);
    EXPECT_EQ(m_Notes.back().kind, eNote::Removed);
    m_Receivers.Add("New");
    EXPECT_TRUE(m_Receivers.Remove(1));
    EXPECT_EQ(m_Receivers.Count(), 1u);
}

TEST_F(DefinitionFolder, WhatCantBeRemovedStays) {
    m_Receivers.Load();
    m_Files.m_FolderReadOnly = true;
    EXPECT_FALSE(m_Receivers.Remove(0));
    EXPECT_EQ(m_Receivers.Count(), 2u);
    EXPECT_EQ(m_Notes.back().kind, eNote::Failed);
}

TEST_F(DefinitionFolder, RevertingReadsTheFileAgainOrDropsANewOne) {
    m_Receivers.Load();
    m_Receivers.At(0).m_ReceiverName = "x";
    EXPECT_TRUE(m_Receivers.Revert(0));
    EXPECT_EQ(m_Receivers.At(0).m_ReceiverName, "\xD6st");
    m_Receivers.Add("New");
    EXPECT_TRUE(m_Receivers.Revert(2));
    EXPECT_EQ(m_Receivers.Count(), 2u);
    m_Receivers.At(0).m_ReceiverName = "x";
    m_Files.Put(ReceiverPath("0007"), "");
    EXPECT_FALSE(m_Receivers.Revert(0));
    EXPECT_EQ(m_Receivers.At(0).m_ReceiverName, "x");
    EXPECT_EQ(m_Receivers.StateOfFile(0), eFileState::Changed);
}

TEST_F(DefinitionFolder, AnUpgradeThatCantBeWrittenIsTold) {
    m_Files.m_FolderReadOnly = true;
    m_Receivers.Load();
    EXPECT_EQ(m_Notes.back().kind, eNote::NotUpgraded);
    EXPECT_EQ(m_Notes.back().line, ReceiverPath("0009"));
    EXPECT_EQ(m_Receivers.Count(), 2u);
}

// What others did to the folder since it was loaded, told by Rescan: "0 changed: old name", one a line.
struct cOthers {
    cReceiverFolder::Taken Taken() {
        return [this](std::size_t position, const std::unique_ptr<cReceiver>& before, bool isGone) {
            told += std::to_string(position) + (isGone ? " gone: " : " changed: ") + before->m_ReceiverName +
                    "\n";
        };
    }
    std::string told;
};

bool HoldsNone(std::size_t) {
    return false;
}

bool HoldsAll(std::size_t) {
    return true;
}

TEST_F(DefinitionFolder, AFileThatOthersChangedIsTakenUpWithWhatItWas) {
    m_Receivers.Load();
    m_Files.Put(ReceiverPath("0007"), testing::Sample("receiver_version_4.dat"));
    EXPECT_EQ(m_Receivers.StateOfFile(0), eFileState::Changed);
    EXPECT_TRUE(m_Receivers.HasNews(HoldsNone));
    cOthers others;
    EXPECT_TRUE(m_Receivers.Rescan(HoldsNone, others.Taken()));
    EXPECT_EQ(others.told, "0 changed: \xD6st\n");
    EXPECT_EQ(m_Receivers.At(0).m_ReceiverName, "Nord");
    EXPECT_EQ(m_Receivers.StateOfFile(0), eFileState::Unchanged);
    EXPECT_FALSE(m_Receivers.Rescan(HoldsNone, others.Taken()));
}

// Once, as soon as the bytes of a file were taken. The first time it is only looked whether there is one.
void ChangeWhenRead(cFakeFiles& files, const std::string& file, const std::string& bytes) {
    files.m_OnRead = [&files, file, bytes, reads = 0](std::string_view path) mutable {
        if (path == file && ++reads == 2) files.Put(file, bytes);
    };
}

TEST_F(DefinitionFolder, WhatOthersWriteWhileAFileIsReadIsNoticed) {
    const std::string ours = testing::Sample("receiver_version_5.dat");
    const std::string theirs = std::string(ours).replace(10, 3, "XYZ");
    ChangeWhenRead(m_Files, ReceiverPath("0007"), theirs);
    m_Receivers.Load();
    EXPECT_EQ(m_Receivers.At(0).m_ReceiverName, "XYZ");
    EXPECT_EQ(m_Receivers.StateOfFile(0), eFileState::Unchanged);
    m_Receivers.At(0).m_ReceiverName = "Mine";
    ChangeWhenRead(m_Files, ReceiverPath("0007"), ours);
    EXPECT_TRUE(m_Receivers.Revert(0));
    EXPECT_EQ(m_Receivers.At(0).m_ReceiverName, "\xD6st");
    m_Receivers.At(0).m_ReceiverName = "Mine";
    ChangeWhenRead(m_Files, ReceiverPath("0007"), theirs);
    EXPECT_TRUE(m_Receivers.Save(0));
    EXPECT_EQ(m_Receivers.At(0).m_ReceiverName, "XYZ");
    EXPECT_EQ(m_Receivers.StateOfFile(0), eFileState::Unchanged);
}

// Somebody who goes on writing is seen at the next look.
TEST_F(DefinitionFolder, AFileThatOthersWriteAgainAndAgainCountsAsChanged) {
    const std::string sample = testing::Sample("receiver_version_5.dat");
    int reads = 0;
    m_Files.m_OnRead = [&](std::string_view path) {
        if (path != ReceiverPath("0007")) return;
        m_Files.Put(ReceiverPath("0007"), sample);
        ++reads;
    };
    m_Receivers.Load();
    m_Files.m_OnRead = nullptr;
    // Twice it was looked whether it is there, then read.
    EXPECT_EQ(reads, 4);
    EXPECT_EQ(m_Receivers.StateOfFile(0), eFileState::Changed);
    EXPECT_TRUE(m_Receivers.Rescan(HoldsNone));
    EXPECT_EQ(m_Receivers.StateOfFile(0), eFileState::Unchanged);
}

TEST_F(DefinitionFolder, AFileThatOthersRemovedGoes) {
    m_Receivers.Load();
    m_Files.RemoveFile(ReceiverPath("0007"));
    EXPECT_EQ(m_Receivers.StateOfFile(0), eFileState::Gone);
    EXPECT_TRUE(m_Receivers.HasNews(HoldsNone));
    cOthers others;
    EXPECT_TRUE(m_Receivers.Rescan(HoldsNone, others.Taken()));
    EXPECT_EQ(others.told, "0 gone: \xD6st\n");
    ASSERT_EQ(m_Receivers.Count(), 1u);
    EXPECT_EQ(m_Receivers.At(0).m_DiskIdentity, 9);
    EXPECT_FALSE(m_Receivers.HasNews(HoldsNone));
}

TEST_F(DefinitionFolder, WhatOthersAddedComesLast) {
    m_Receivers.Load();
    m_Files.Put(ReceiverPath("0001"), testing::Sample("receiver_version_5.dat"));
    EXPECT_TRUE(m_Receivers.HasNews(HoldsAll));
    EXPECT_TRUE(m_Receivers.Rescan(HoldsAll));
    ASSERT_EQ(m_Receivers.Count(), 3u);
    EXPECT_EQ(m_Receivers.At(2).m_DiskIdentity, 1);
}

TEST_F(DefinitionFolder, SeveralNewsAreToldFromTheLastPositionOnWithNobodyToTellTheyAreTakenUpToo) {
    m_Files.Put(ReceiverPath("0001"), testing::Sample("receiver_version_5.dat"));
    for (const bool told : {true, false}) {
        m_Files.Put(ReceiverPath("0007"), testing::Sample("receiver_version_5.dat"));
        m_Files.Put(ReceiverPath("0009"), testing::Sample("receiver_version_5.dat"));
        m_Receivers.Load();
        ASSERT_EQ(m_Receivers.Count(), 3u);
        m_Files.RemoveFile(ReceiverPath("0009"));
        m_Files.Put(ReceiverPath("0007"), testing::Sample("receiver_version_4.dat"));
        cOthers others;
        EXPECT_TRUE(m_Receivers.Rescan(HoldsNone, told ? others.Taken() : nullptr));
        EXPECT_EQ(others.told, told ? "2 gone: \xD6st\n1 changed: \xD6st\n" : "");
        ASSERT_EQ(m_Receivers.Count(), 2u);
        EXPECT_EQ(m_Receivers.At(1).m_ReceiverName, "Nord");
    }
}

TEST_F(DefinitionFolder, OneThatCannotBeReadAgainDoesNotHideThatAnotherWasTakenUp) {
    m_Receivers.Load();
    m_Files.Put(ReceiverPath("0009"), testing::Sample("receiver_version_4.dat"));
    m_Files.Put(ReceiverPath("0007"), "??");
    EXPECT_TRUE(m_Receivers.Rescan(HoldsNone));
    EXPECT_EQ(m_Receivers.At(1).m_ReceiverName, "Nord");
    EXPECT_EQ(m_Receivers.At(0).m_ReceiverName, "\xD6st");
}

TEST_F(DefinitionFolder, WhatIsHeldStaysAndIsNoNews) {
    m_Receivers.Load();
    m_Receivers.At(0).m_ReceiverName = "mine";
    m_Files.Put(ReceiverPath("0007"), testing::Sample("receiver_version_4.dat"));
    m_Files.RemoveFile(ReceiverPath("0009"));
    EXPECT_FALSE(m_Receivers.HasNews(HoldsAll));
    EXPECT_FALSE(m_Receivers.Rescan(HoldsAll));
    EXPECT_EQ(m_Receivers.Count(), 2u);
    EXPECT_EQ(m_Receivers.At(0).m_ReceiverName, "mine");
}

TEST_F(DefinitionFolder, OneThatWasNeverSavedHasNoFileToChange) {
    m_Receivers.Load();
    const std::size_t position = m_Receivers.Add("New");
    EXPECT_EQ(m_Receivers.StateOfFile(position), eFileState::Unchanged);
    EXPECT_FALSE(m_Receivers.HasNews(HoldsNone));
    EXPECT_FALSE(m_Receivers.Rescan(HoldsNone));
    EXPECT_EQ(m_Receivers.Count(), 3u);
    EXPECT_EQ(m_Receivers.InFile(position), nullptr);
    EXPECT_EQ(m_Receivers.FileOf(position), std::nullopt);
    EXPECT_EQ(m_Receivers.AddFromFile(position), std::nullopt);
    // Nor does it take what has the name that its missing number would give.
    m_Files.Put(m_Receivers.At(position).CreateFileName(-1), testing::Sample("receiver_version_5.dat"));
    EXPECT_EQ(m_Receivers.StateOfFile(position), eFileState::Unchanged);
    EXPECT_EQ(m_Receivers.InFile(position), nullptr);
    EXPECT_EQ(m_Receivers.FileOf(position), std::nullopt);
}

// Stamps of paths in this set can't be had, though the files are there and can be read.
class cFilesWithoutStamps : public testing::cFakeFiles {
  public:
    std::set<std::string> m_Without;
    std::map<std::string, std::int64_t> m_Attributes;  // when they changed last
    cStamp Stamp(std::string_view path) const override {
        if (m_Without.contains(std::string(path))) return {};
        cStamp stamp = cFakeFiles::Stamp(path);
        if (const auto changed = m_Attributes.find(std::string(path)); changed != m_Attributes.end())
            stamp.changedNs = changed->second;
        return stamp;
    }
};

TEST_F(DefinitionFolder, ALookThatFailsLetsNoneGo) {
    cFilesWithoutStamps files;
    files.Put(ReceiverPath("0007"), testing::Sample("receiver_version_5.dat"));
    const cDefinitionServices services{files, m_Clock, m_Random, m_Texts, m_Log, m_Ini, m_Types};
    cReceiverFolder folder(services);
    folder.Load();
    files.m_Without.insert(ReceiverPath("0007"));
    EXPECT_EQ(folder.StateOfFile(0), eFileState::Gone);
    EXPECT_FALSE(folder.HasNews(HoldsNone));
    EXPECT_FALSE(folder.Rescan(HoldsNone));
    EXPECT_EQ(folder.Count(), 1u);
}

TEST_F(DefinitionFolder, AnUnreadableFileIsTriedAgainWhenItsContentOrItsPermissionsChange) {
    cFilesWithoutStamps files;
    const std::string path = ReceiverPath("0007");
    files.Put(path, testing::Sample("receiver_version_5.dat"));
    files.SetUnreadable(path, true);
    const cDefinitionServices services{files, m_Clock, m_Random, m_Texts, m_Log, m_Ini, m_Types};
    cReceiverFolder folder(services);
    folder.Load();
    EXPECT_EQ(folder.Unreadable().size(), 1u);
    EXPECT_FALSE(folder.HasNews(HoldsNone));
    // Allowed now, which changes the attributes alone.
    files.SetUnreadable(path, false);
    files.m_Attributes[path] = 77;
    EXPECT_TRUE(folder.HasNews(HoldsNone));
    EXPECT_TRUE(folder.Rescan(HoldsNone));
    EXPECT_EQ(folder.Count(), 1u);
    EXPECT_TRUE(folder.Unreadable().empty());
    // Damaged, and mended by others.
    files.Put(ReceiverPath("0008"), "??");
    EXPECT_FALSE(folder.Rescan(HoldsNone));
    EXPECT_EQ(folder.Unreadable().size(), 1u);
    files.Put(ReceiverPath("0008"), testing::Sample("receiver_version_5.dat"));
    EXPECT_TRUE(folder.HasNews(HoldsNone));
    EXPECT_TRUE(folder.Rescan(HoldsNone));
    EXPECT_EQ(folder.Count(), 2u);
}

TEST_F(DefinitionFolder, WhoOnlyLooksLetsTheEditorTakeUpWhatOthersDid) {
    m_Receivers.Load();
    m_Files.RemoveFile(ReceiverPath("0007"));
    int takenUp = 0;
    auto editor = std::make_shared<const cReceiverFolder::TakeUp>([&] { ++takenUp; });
    m_Receivers.SetEditor(editor);
    m_Receivers.LookAgain();
    EXPECT_EQ(takenUp, 1);
    EXPECT_EQ(m_Receivers.Count(), 2u);
    // Once the editor is gone, the folder looks itself.
    editor.reset();
    m_Receivers.LookAgain();
    EXPECT_EQ(takenUp, 1);
    EXPECT_EQ(m_Receivers.Count(), 1u);
}

TEST_F(DefinitionFolder, TheirVersionCanBeAddedBesideOnesOwn) {
    m_Receivers.Load();
    m_Receivers.At(0).m_ReceiverName = "mine";
    m_Files.Put(ReceiverPath("0007"), testing::Sample("receiver_version_4.dat"));
    const auto added = m_Receivers.AddFromFile(0);
    ASSERT_TRUE(added);
    EXPECT_EQ(m_Receivers.At(*added).m_ReceiverName, "Nord");
    EXPECT_EQ(m_Receivers.At(*added).m_DiskIdentity, -1);
    EXPECT_EQ(m_Receivers.At(0).m_ReceiverName, "mine");
    // Whose name is taken gets a free one.
    const auto second = m_Receivers.AddFromFile(0);
    ASSERT_TRUE(second);
    EXPECT_EQ(m_Receivers.At(*second).m_ReceiverName, "Nord 2");
    m_Files.Put(ReceiverPath("0007"), "??");
    EXPECT_EQ(m_Receivers.AddFromFile(0), std::nullopt);
    m_Files.RemoveFile(ReceiverPath("0007"));
    EXPECT_EQ(m_Receivers.AddFromFile(0), std::nullopt);
    EXPECT_FALSE(m_Files.FileExists(ReceiverPath("0007")));
}

TEST_F(DefinitionFolder, OneWhoseFileOthersRemovedIsRemovedWithoutAFailure) {
    m_Receivers.Load();
    m_Files.RemoveFile(ReceiverPath("0007"));
    EXPECT_FALSE(m_Receivers.Revert(0));
    EXPECT_TRUE(m_Receivers.Remove(0));
    EXPECT_EQ(m_Receivers.Count(), 1u);
}

TEST_F(DefinitionFolder, WhatComesBackWithoutAFileHasItsNumberAgainUnlessSomebodyElseHasIt) {
    m_Receivers.Load();
    const auto content = m_Receivers.CopyOf(0);
    const std::string file = m_Files.ReadFile(ReceiverPath("0007"));
    ASSERT_TRUE(m_Receivers.Remove(0));
    EXPECT_TRUE(m_Receivers.BringBack(0, *content, 7, std::nullopt));
    EXPECT_EQ(m_Receivers.At(0).m_DiskIdentity, 7);
    EXPECT_FALSE(m_Files.FileExists(ReceiverPath("0007")));
    // Another definition of the list has it by now, without a file too.
    EXPECT_TRUE(m_Receivers.BringBack(1, *content, 7, std::nullopt));
    EXPECT_EQ(m_Receivers.At(1).m_DiskIdentity, -1);
    EXPECT_EQ(m_Receivers.At(0).m_DiskIdentity, 7);
    ASSERT_TRUE(m_Receivers.Remove(1));
    // One that was never saved.
    EXPECT_TRUE(m_Receivers.BringBack(2, *content, -1, std::nullopt));
    EXPECT_EQ(m_Receivers.At(2).m_DiskIdentity, -1);
    // Another definition of the list has the number.
    EXPECT_TRUE(m_Receivers.BringBack(3, *content, 9, std::nullopt));
    EXPECT_EQ(m_Receivers.At(3).m_DiskIdentity, -1);
    // A file that others made has it.
    m_Files.Put(ReceiverPath("0011"), file);
    EXPECT_TRUE(m_Receivers.BringBack(4, *content, 11, std::nullopt));
    EXPECT_EQ(m_Receivers.At(4).m_DiskIdentity, -1);
}

TEST_F(DefinitionFolder, WhatComesBackOverwritesNoFileOfOthersAndNeedsOneThatCanBeRead) {
    m_Receivers.Load();
    const auto content = m_Receivers.CopyOf(0);
    const auto file = m_Receivers.FileOf(0);
    ASSERT_TRUE(m_Receivers.Remove(0));
    m_Files.Put(ReceiverPath("0007"), "of others");
    EXPECT_FALSE(m_Receivers.BringBack(0, *content, 7, file));
    EXPECT_EQ(m_Receivers.At(0).m_DiskIdentity, -1);
    EXPECT_EQ(m_Files.ReadFile(ReceiverPath("0007")), "of others");
    EXPECT_FALSE(m_Receivers.BringBack(0, *content, 12, std::string("??")));
    EXPECT_EQ(m_Receivers.At(0).m_ReceiverName, "\xD6st");
    EXPECT_EQ(m_Receivers.StateOfFile(0), eFileState::Changed);
}

// Two spellings of one name, as other systems can put them into the folder.
class cFilesWithTwins : public testing::cFakeFiles {
  public:
    bool m_HasTwins = true;
    std::vector<std::string> ListFiles(std::string_view folder, std::string_view mask) const override {
        std::vector<std::string> names = cFakeFiles::ListFiles(folder, mask);
        if (m_HasTwins && mask.starts_with("Receiver_")) names.insert(names.begin(), "RECEIVER_0007.DAT");
        return names;
    }
};

TEST_F(DefinitionFolder, OfTwoFilesWithOneNumberOneIsOpenedAndTheOtherTold) {
    cFilesWithTwins files;
    files.Put(ReceiverPath("0007"), testing::Sample("receiver_version_5.dat"));
    const cDefinitionServices services{files, m_Clock, m_Random, m_Texts, m_Log, m_Ini, m_Types};
    cReceiverFolder folder(services);
    folder.Load();
    EXPECT_EQ(folder.Count(), 1u);
    const std::vector<cUnreadableFile> others{
        {"C:\\App\\Receivers\\RECEIVER_0007.DAT",
         "It has the same number as Receiver_0007.dat; rename one of them."}};
    EXPECT_EQ(folder.Unreadable(), others);
}

// A folder of receivers whose names others have spelled.
class cFilesOfOthers : public testing::cFakeFiles {
  public:
    explicit cFilesOfOthers(std::vector<std::string> names) : m_Names(std::move(names)) {}
    std::vector<std::string> ListFiles(std::string_view folder, std::string_view mask) const override {
        return mask.starts_with("Receiver_") ? m_Names : cFakeFiles::ListFiles(folder, mask);
    }

  private:
    std::vector<std::string> m_Names;
};

TEST_F(DefinitionFolder, OfTwoFilesOfOneNumberWithoutTheOwnSpellingTheFirstIsOpened) {
    cFilesOfOthers files({"RECEIVER_0007.DAT", "receiver_0007.dat"});
    files.Put(ReceiverPath("0007"), testing::Sample("receiver_version_5.dat"));
    const cDefinitionServices services{files, m_Clock, m_Random, m_Texts, m_Log, m_Ini, m_Types};
    cReceiverFolder folder(services);
    folder.Load();
    EXPECT_EQ(folder.Count(), 1u);
    const std::vector<cUnreadableFile> others{
        {"C:\\App\\Receivers\\receiver_0007.dat",
         "It has the same number as RECEIVER_0007.DAT; rename one of them."}};
    EXPECT_EQ(folder.Unreadable(), others);
}

TEST_F(DefinitionFolder, TwinsThatLieApartInTheFolderHaveOneNumber) {
    cFilesOfOthers files({"RECEIVER_0007.DAT", "Receiver_0009.dat", "receiver_0007.dat"});
    const cDefinitionServices services{files, m_Clock, m_Random, m_Texts, m_Log, m_Ini, m_Types};
    EXPECT_EQ(DefinitionIdentities(services, cReceiver::kKind), (std::vector<std::int16_t>{7, 9}));
}

TEST_F(DefinitionFolder, TwinsThatComeAndGoAreNews) {
    const auto held = [](std::size_t) { return false; };
    cFilesWithTwins files;
    files.m_HasTwins = false;
    files.Put(ReceiverPath("0007"), testing::Sample("receiver_version_5.dat"));
    const cDefinitionServices services{files, m_Clock, m_Random, m_Texts, m_Log, m_Ini, m_Types};
    cReceiverFolder folder(services);
    folder.Load();
    for (const bool hasTwins : {true, false}) {
        files.m_HasTwins = hasTwins;
        EXPECT_TRUE(folder.HasNews(held)) << hasTwins;
        folder.Rescan(held);
        EXPECT_EQ(folder.Unreadable().size(), hasTwins ? 1u : 0u);
        EXPECT_FALSE(folder.HasNews(held)) << hasTwins;
    }
}

TEST_F(DefinitionFolder, WhatCantBeReadIsToldOnce) {
    const auto held = [](std::size_t) { return false; };
    m_Receivers.Load();
    m_Notes.clear();
    m_Files.Put(ReceiverPath("0011"), "??");
    EXPECT_TRUE(m_Receivers.HasNews(held));
    m_Receivers.Rescan(held);
    // Of the new one, not of 0008 again.
    ASSERT_EQ(m_Notes.size(), 1u);
    EXPECT_EQ(m_Receivers.Unreadable().size(), 2u);
    EXPECT_FALSE(m_Receivers.HasNews(held));
}

TEST_F(DefinitionFolder, WhatIsBroughtBackHasItsFileAndItsChanges) {
    m_Receivers.Load();
    m_Receivers.At(0).m_ReceiverName = "x";
    const auto content = m_Receivers.CopyOf(0);
    const auto file = m_Receivers.FileOf(0);
    ASSERT_TRUE(file.has_value());
    ASSERT_TRUE(m_Receivers.Remove(0));
    EXPECT_TRUE(m_Receivers.BringBack(0, *content, 7, file));
    EXPECT_EQ(m_Files.ReadFile(ReceiverPath("0007")), *file);
    EXPECT_EQ(m_Receivers.At(0).m_ReceiverName, "x");
    EXPECT_TRUE(m_Receivers.At(0).HasChangedSinceLastLoadFromDisk());
    EXPECT_EQ(m_Receivers.StateOfFile(0), eFileState::Unchanged);
    // A disk that refuses leaves it without a file.
    ASSERT_TRUE(m_Receivers.Remove(0));
    m_Files.m_DiskFull = true;
    EXPECT_FALSE(m_Receivers.BringBack(0, *content, 7, file));
    EXPECT_EQ(m_Receivers.At(0).m_DiskIdentity, -1);
    EXPECT_EQ(m_Receivers.Count(), 2u);
}

TEST_F(DefinitionFolder, AChangedFileThatCantBeReadIsLookedAtOnce) {
    m_Receivers.Load();
    const auto held = [](std::size_t) { return false; };
    EXPECT_FALSE(m_Receivers.HasNews(held));
    m_Files.Put(ReceiverPath("0007"), "??");
    EXPECT_TRUE(m_Receivers.HasNews(held));
    EXPECT_FALSE(m_Receivers.Rescan(held));
    EXPECT_FALSE(m_Receivers.HasNews(held));
    EXPECT_EQ(m_Receivers.At(0).m_ReceiverName, "\xD6st");
    EXPECT_EQ(m_Receivers.StateOfFile(0), eFileState::Changed);
}

TEST(ReceiverList, IsIdentitiesSeparatedBySemicolons) {
    EXPECT_EQ(ReceiverItems("7; 12 ;;abc"), (std::vector<std::string>{"7", "12", "abc"}));
    EXPECT_EQ(ReceiverItems("7;8;9"), (std::vector<std::string>{"7", "8", "9"}));
    EXPECT_TRUE(ReceiverItems("").empty());
    EXPECT_EQ(ReceiverText({"7", "12", "abc"}), "7;12;abc");
    EXPECT_EQ(ReceiverText({}), "");
    EXPECT_EQ(ReceiverIdentity("0012"), 12);
    EXPECT_EQ(ReceiverIdentity("abc"), std::nullopt);
    EXPECT_EQ(ReceiverIdentity("12345"), std::nullopt);
    EXPECT_EQ(ReceiverIdentity("-1"), std::nullopt);
    EXPECT_EQ(ReceiverIdentity(""), std::nullopt);
}

}  // namespace
}  // namespace vigrel::testing
