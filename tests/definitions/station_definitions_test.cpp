#include "definitions/station_definitions.h"

#include "definitions/definition_fixture.h"
#include "support/samples.h"

namespace vigrel::testing {
namespace {

class StationDefinitions : public DefinitionTest {
  protected:
    cStationDefinitions m_Station{m_Files, m_Clock, m_Random, m_Texts, m_Ini};
};

TEST_F(StationDefinitions, LoadsTypesReceiversAndProfiles) {
    m_Files.Put("C:\\App\\ReceiverTypes.txt", "9;XRT;Radio\n");
    m_Files.Put(ReceiverPath("0007"), testing::Sample("receiver_version_5.dat"));
    m_Files.Put(ProfilePath("0012"), testing::Sample("profile_version_5.dat"));
    m_Station.OpenReceivers();
    ASSERT_EQ(m_Station.Receivers().Count(), 1u);
    EXPECT_EQ(m_Station.Receivers().At(0).m_ReceiverTypeName, "Radio");
    ASSERT_EQ(m_Station.Profiles().Count(), 1u);
    EXPECT_TRUE(m_Station.TakeNotes().empty());
}

TEST_F(StationDefinitions, WrongLinesOfTheTypesUpgradesAndFailuresAreNotes) {
    m_Files.Put("C:\\App\\ReceiverTypes.txt", "x\n");
    m_Files.Put(ReceiverPath("0007"), testing::Sample("receiver_version_3.dat"));
    m_Files.Put(ProfilePath("0012"), "12");
    m_Station.OpenReceivers();
    const auto notes = m_Station.TakeNotes();
    ASSERT_EQ(notes.size(), 3u);
    EXPECT_EQ(notes[0].line,
              "ReceiverTypes.txt, line 1: a line has three or four fields (id; kind; name; settings file), "
              "this one "
              "has 1");
    EXPECT_EQ(notes[1].kind, cDefinitionNote::eKind::Upgraded);
    EXPECT_EQ(notes[2].kind, cDefinitionNote::eKind::Failed);
    EXPECT_TRUE(m_Station.TakeNotes().empty());
}

TEST_F(StationDefinitions, OpeningMakesTheFolders) {
    for (const bool profiles : {true, false}) {
        testing::cFakeFiles files;
        files.PutFolder("C:\\Other");
        cIni ini(files, "C:\\Other\\");
        cStationDefinitions station(files, m_Clock, m_Random, m_Texts, ini);
        profiles ? station.OpenProfiles() : station.OpenReceivers();
        for (const char* folder : {"LogFiles", "Receivers", "Profiles"}) {
            EXPECT_TRUE(files.HasFolder(std::string("C:\\Other\\") + folder)) << folder;
        }
    }
}

TEST_F(StationDefinitions, OpeningTheProfilesReadsTheReceiversOnce) {
    m_Files.Put(ReceiverPath("0007"), testing::Sample("receiver_version_5.dat"));
    m_Station.OpenProfiles();
    ASSERT_EQ(m_Station.Receivers().Count(), 1u);
    m_Station.Receivers().At(0).m_ReceiverName = "x";
    m_Station.OpenProfiles();
    EXPECT_EQ(m_Station.Receivers().At(0).m_ReceiverName, "x");
}

TEST_F(StationDefinitions, TellsWhichProfilesListAReceiver) {
    m_Files.Put(ProfilePath("0012"), testing::Sample("profile_version_5.dat"));
    m_Station.OpenReceivers();
    EXPECT_EQ(m_Station.ProfilesWith(7), std::vector<std::string>{"Night"});
    EXPECT_EQ(m_Station.ProfilesWith(9), std::vector<std::string>{"Night"});
    EXPECT_TRUE(m_Station.ProfilesWith(10).empty());
    // One without changes is as its file has it.
    int reads = 0;
    m_Files.m_OnRead = [&](std::string_view) { ++reads; };
    EXPECT_TRUE(m_Station.ProfilesWith(10).empty());
    EXPECT_EQ(reads, 0);
}

TEST_F(StationDefinitions, AProfileThatOthersAddedIsToldToo) {
    m_Station.OpenReceivers();
    EXPECT_TRUE(m_Station.ProfilesWith(7).empty());
    m_Files.Put(ProfilePath("0012"), testing::Sample("profile_version_5.dat"));
    EXPECT_EQ(m_Station.ProfilesWith(7), std::vector<std::string>{"Night"});
}

TEST_F(StationDefinitions, AProfileListsAReceiverAsLongAsItsFileDoes) {
    m_Files.Put(ProfilePath("0012"), testing::Sample("profile_version_5.dat"));
    m_Station.OpenReceivers();
    cProfile& profile = m_Station.Profiles().At(0);
    profile.m_ParallellReceivers = "8";
    profile.m_SequentialReceivers = "10";
    // Taken out and not saved: the file has it still. Put in and not saved: it is meant.
    EXPECT_EQ(m_Station.ProfilesWith(7), std::vector<std::string>{"Night"});
    EXPECT_EQ(m_Station.ProfilesWith(9), std::vector<std::string>{"Night"});
    EXPECT_EQ(m_Station.ProfilesWith(10), std::vector<std::string>{"Night"});
    EXPECT_TRUE(m_Station.ProfilesWith(11).empty());
    ASSERT_TRUE(m_Station.Profiles().Save(0));
    EXPECT_TRUE(m_Station.ProfilesWith(7).empty());
    EXPECT_EQ(m_Station.ProfilesWith(10), std::vector<std::string>{"Night"});
}

TEST_F(StationDefinitions, ANewProfileListsWhatItHasWithoutAFile) {
    m_Station.OpenReceivers();
    const std::size_t position = m_Station.Profiles().Add("Day");
    m_Station.Profiles().At(position).m_ParallellReceivers = "7";
    EXPECT_EQ(m_Station.ProfilesWith(7), std::vector<std::string>{"Day"});
    EXPECT_TRUE(m_Station.ProfilesWith(8).empty());
}

TEST_F(StationDefinitions, OpeningOneKindAgainGivesUpItsChangesAndKeepsTheOthers) {
    m_Files.Put(ReceiverPath("0007"), testing::Sample("receiver_version_5.dat"));
    m_Files.Put(ProfilePath("0012"), testing::Sample("profile_version_5.dat"));
    m_Station.OpenReceivers();
    m_Station.Receivers().At(0).m_ReceiverName = "x";
    m_Station.Profiles().At(0).SetName("y");
    m_Station.OpenReceivers();
    EXPECT_EQ(m_Station.Receivers().At(0).m_ReceiverName, "\xD6st");
    EXPECT_EQ(m_Station.Profiles().At(0).GetName(), "y");
    m_Station.OpenProfiles();
    EXPECT_EQ(m_Station.Profiles().At(0).GetName(), "Night");
}

}  // namespace
}  // namespace vigrel::testing
