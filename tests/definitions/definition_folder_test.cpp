#include "definitions/definition_folder.h"

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

TEST_F(DefinitionFolder, TheIdentitiesRiseWhateverOrderTheFolderGives) {
    m_Files.m_ListsBackwards = true;
    m_Receivers.Load();
    ASSERT_EQ(m_Receivers.Count(), 2u);
    EXPECT_EQ(m_Receivers.At(0).m_DiskIdentity, 7);
    EXPECT_EQ(m_Receivers.At(1).m_DiskIdentity, 9);
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
}

TEST_F(DefinitionFolder, AnUpgradeThatCantBeWrittenIsTold) {
    m_Files.m_FolderReadOnly = true;
    m_Receivers.Load();
    EXPECT_EQ(m_Notes.back().kind, eNote::NotUpgraded);
    EXPECT_EQ(m_Notes.back().line, ReceiverPath("0009"));
    EXPECT_EQ(m_Receivers.Count(), 2u);
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
    EXPECT_TRUE(ReceiverItems("").empty());
    EXPECT_EQ(ReceiverText({"7", "12", "abc"}), "7;12;abc");
    EXPECT_EQ(ReceiverText({}), "");
    EXPECT_EQ(ReceiverIdentity("0012"), 12);
    EXPECT_EQ(ReceiverIdentity("abc"), std::nullopt);
    EXPECT_EQ(ReceiverIdentity("12345"), std::nullopt);
    EXPECT_EQ(ReceiverIdentity("-1"), std::nullopt);
}

}  // namespace
}  // namespace vigrel::testing
