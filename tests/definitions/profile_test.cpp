#include "definitions/profile.h"

#include <algorithm>

#include "common/dates.h"
#include "common/failure.h"
#include "definitions/definition_fixture.h"
#include "definitions/profile_samples.h"
#include "support/samples.h"

namespace vigrel::testing {
namespace {

using samples::kProfileSchedule;
using samples::kProfileVersion4;
using samples::kProfileVersion5;

class Profile : public DefinitionTest {
  protected:
    void Load(cProfile& profile, const std::string& bytes) {
        m_Files.Put(ProfilePath("0012"), bytes);
        EXPECT_TRUE(profile.LoadFromDisk(12));
    }
    void ExpectRefused(const std::string& bytes) {
        m_Files.Put(ProfilePath("0012"), bytes);
        cProfile profile(m_Services);
        EXPECT_FALSE(profile.LoadFromDisk(12));
        EXPECT_EQ(m_Files.ReadFile(ProfilePath("0012")), bytes);
    }
    std::string OnDisk() const { return m_Files.ReadFile(ProfilePath("0012")); }
};

void ExpectNight(const cProfile& profile) {
    EXPECT_EQ(profile.m_DiskIdentity, 12);
    EXPECT_EQ(profile.m_Enabled, True16);
    EXPECT_EQ(profile.GetName(), "Night");
    EXPECT_EQ(profile.GetState(0), 1);
    EXPECT_EQ(profile.GetState(1), 0);
    EXPECT_EQ(profile.GetState(2), 2);
    EXPECT_EQ(profile.m_UseTimeSchedule, True16);
    EXPECT_EQ(profile.m_ParallellReceivers, "7;8");
    EXPECT_EQ(profile.m_SequentialReceivers, "9");
    EXPECT_EQ(profile.GetCondition(0), "Fire");
    EXPECT_EQ(profile.GetCondition(1), "");
    EXPECT_EQ(profile.GetCondition(3), "*");
    EXPECT_EQ(profile.GetCondition(5),
              "\xD6"
              "1");
    EXPECT_EQ(profile.m_TimeSchedule_ViewDayType, 5);
    EXPECT_EQ(profile.m_Calendar_ViewTimeAxis, 1);
    EXPECT_EQ(profile.m_UseExternalTag, True16);
    EXPECT_EQ(profile.m_ExternalTagName, "TAG");
    EXPECT_EQ(profile.m_IgnoreExternalTagInOtherProfiles, False16);
    EXPECT_EQ(profile.m_UseExternalFile, False16);
    EXPECT_EQ(profile.m_ExternalFileName, "a.txt");
    EXPECT_EQ(profile.m_ExternalFileText, "hi");
    EXPECT_EQ(profile.m_ScanSpecificSystems, True16);
    EXPECT_EQ(profile.GetSystem(0), 1);
    EXPECT_EQ(profile.GetSystem(62), 0);
    EXPECT_EQ(profile.GetSystem(63), 3);
    ASSERT_TRUE(profile.m_TimeSchedule);
    EXPECT_EQ(profile.m_TimeSchedule->m_UseCalendar, True16);
    std::int16_t start = 0;
    std::int16_t stop = 0;
    ASSERT_TRUE(profile.m_TimeSchedule->GetNextTimePeriod(0, start, stop, nullptr));
    EXPECT_EQ(start, 420);
    EXPECT_EQ(stop, 960);
}

TEST_F(Profile, TheFrozenSamplesAreTheBytesWrittenByHand) {
    EXPECT_EQ(testing::Sample("profile_version_4.dat"), kProfileVersion4);
    EXPECT_EQ(testing::Sample("profile_version_5.dat"), kProfileVersion5);
}

TEST_F(Profile, TheFileNameHoldsTheIdentityAsFourDigits) {
    EXPECT_EQ(cProfile(m_Services).CreateFileName(12), "C:\\App\\Profiles\\Profile_0012.dat");
}

TEST_F(Profile, ANewProfileIsEnabledWithoutIdentityOrSchedule) {
    const cProfile profile(m_Services);
    EXPECT_EQ(profile.m_DiskIdentity, -1);
    EXPECT_EQ(profile.m_Enabled, True16);
    EXPECT_FALSE(profile.m_TimeSchedule);
    EXPECT_EQ(profile.m_ParentName, "");
    EXPECT_EQ(profile.m_NestingLevels, 0);
    EXPECT_EQ(profile.m_FileDateTimeStamp, 0);
    EXPECT_TRUE(profile.HasChangedSinceLastLoadFromDisk());
}

TEST_F(Profile, AVersion4FileIsRead) {
    cProfile profile(m_Services);
    Load(profile, kProfileVersion4);
    ExpectNight(profile);
    EXPECT_EQ(profile.m_FileDateTimeStamp, 0);
}

// Every field with a value of its own, so that no two can stand for each other.
const std::string kDistinctFields =
    Bytes(
        "00 00 (reserved)"
        "01 01 (enabled)"
        "01 00 4E (name N)"
        "02 01 03 01 04 01 (states)"
        "05 01 (use schedule)"
        "00 00 00 00 (reserved)"
        "01 00 50 (parallel receivers P)"
        "01 00 53 (sequential receivers S)"
        "01 00 61 01 00 62 01 00 63 01 00 64 01 00 65 01 00 66 (conditions a to f)"
        "06 01 (view day type)"
        "07 01 (view time axis)"
        "08 01 (use tag)"
        "01 00 54 (tag T)"
        "09 01 (ignore tag)"
        "0A 01 (use file)"
        "01 00 46 (file F)"
        "01 00 58 (text X)"
        "0B 01 (scan systems)") +
    [] {
        std::string systems;
        for (int i = 0; i < 64; ++i) systems += std::string(1, static_cast<char>(i)) + '\x02';
        return systems;
    }();

TEST_F(Profile, EveryFieldHasItsOwnPlaceInTheFile) {
    const std::string bytes = Bytes("05 00") + kDistinctFields + Bytes("0C 01 6C C1 16 AC 10 82 E6 40") +
                              std::string(2048, '\0') + kProfileSchedule;
    cProfile profile(m_Services);
    Load(profile, bytes);
    EXPECT_EQ(profile.m_Enabled, 0x101);
    for (std::int16_t i = 0; i < 3; ++i) EXPECT_EQ(profile.GetState(i), 0x102 + i);
    EXPECT_EQ(profile.m_UseTimeSchedule, 0x105);
    EXPECT_EQ(profile.m_ParallellReceivers, "P");
    EXPECT_EQ(profile.m_SequentialReceivers, "S");
    for (std::int16_t i = 0; i < 6; ++i)
        EXPECT_EQ(profile.GetCondition(i), std::string(1, static_cast<char>('a' + i)));
    EXPECT_EQ(profile.m_TimeSchedule_ViewDayType, 0x106);
    EXPECT_EQ(profile.m_Calendar_ViewTimeAxis, 0x107);
    EXPECT_EQ(profile.m_UseExternalTag, 0x108);
    EXPECT_EQ(profile.m_ExternalTagName, "T");
    EXPECT_EQ(profile.m_IgnoreExternalTagInOtherProfiles, 0x109);
    EXPECT_EQ(profile.m_UseExternalFile, 0x10A);
    EXPECT_EQ(profile.m_ExternalFileName, "F");
    EXPECT_EQ(profile.m_ExternalFileText, "X");
    EXPECT_EQ(profile.m_ScanSpecificSystems, 0x10B);
    for (std::int16_t i = 0; i < 64; ++i) EXPECT_EQ(profile.GetSystem(i), 0x200 + i);
    EXPECT_EQ(profile.m_OffDutyAlarmBehaviour, 0x10C);
    EXPECT_TRUE(profile.SaveToDisk());
    EXPECT_EQ(OnDisk(), bytes);
    cProfile copy(m_Services);
    copy.CopyFrom(profile);
    EXPECT_TRUE(copy.HasSameContentAs(profile));
    copy.m_DiskIdentity = 12;
    EXPECT_TRUE(copy.SaveToDisk());
    EXPECT_EQ(OnDisk(), bytes);
}

TEST_F(Profile, AVersion4FileHasTheSamePlaces) {
    cProfile profile(m_Services);
    profile.m_OffDutyAlarmBehaviour = 0x10C;
    Load(profile, Bytes("04 00") + kDistinctFields + kProfileSchedule);
    EXPECT_EQ(OnDisk().substr(2, kDistinctFields.size()), kDistinctFields);
    EXPECT_EQ(profile.m_ScanSpecificSystems, 0x10B);
}

TEST_F(Profile, EveryLoadIsRemembered) {
    for (const std::string& bytes : {Bytes("06 00"), kProfileVersion5.substr(0, 30), kProfileVersion4}) {
        m_Files.Put(ProfilePath("0012"), bytes);
        m_Files.m_OnCall = [this](std::string_view operation, std::string_view) {
            m_Files.m_DiskFull = operation == "write";
        };
        cProfile profile(m_Services);
        profile.SetName("before");
        profile.LoadFromDisk(12);
        EXPECT_EQ(profile.m_DiskIdentity, 12);
        EXPECT_FALSE(profile.HasChangedSinceLastLoadFromDisk());
        profile.SetName("behind");
        EXPECT_TRUE(profile.HasChangedSinceLastLoadFromDisk());
    }
}

TEST_F(Profile, ALoadGivesAScheduleOfItsOwnInPlaceOfTheOldOne) {
    cProfile profile(m_Services);
    Load(profile, kProfileVersion5);
    const cTimeSchedule* before = profile.m_TimeSchedule.get();
    Load(profile, kProfileVersion5);
    EXPECT_NE(profile.m_TimeSchedule.get(), before);
    ExpectNight(profile);
}

TEST_F(Profile, AVersion4FileIsRewrittenAsVersion5ByteByByte) {
    cProfile profile(m_Services);
    profile.m_OffDutyAlarmBehaviour = 2;
    Load(profile, kProfileVersion4);
    EXPECT_EQ(OnDisk(), kProfileVersion5);
    EXPECT_EQ(OnDisk().size(), kProfileVersion4.size() + 2048 + 10);
    EXPECT_EQ(Log(),
              "12:30:15 Profile brought up 'C:\\App\\Profiles\\Profile_0012.dat' (version 4 -> 5)\r\n");
}

TEST_F(Profile, OffDutyBehaviourKeepsItsValueOverAVersion4Load) {
    cProfile profile(m_Services);
    profile.m_OffDutyAlarmBehaviour = 7;
    Load(profile, kProfileVersion4);
    EXPECT_EQ(profile.m_OffDutyAlarmBehaviour, 7);
    Load(profile, kProfileVersion5);
    EXPECT_EQ(profile.m_OffDutyAlarmBehaviour, 2);
}

TEST_F(Profile, AVersion5FileIsReadWithoutALogLineAndWithoutRewriting) {
    m_Clock.Set(2027, 1, 1);
    cProfile profile(m_Services);
    Load(profile, kProfileVersion5);
    ExpectNight(profile);
    EXPECT_EQ(profile.m_OffDutyAlarmBehaviour, 2);
    EXPECT_EQ(profile.m_FileDateTimeStamp, DateSerial(2026, 3, 15) + TimeSerial(12, 30, 15));
    EXPECT_EQ(OnDisk(), kProfileVersion5);
    EXPECT_EQ(m_Files.m_Calls, 0);
}

TEST_F(Profile, AnUnchangedLoadHasNotChangedAlsoAfterARewrite) {
    for (const std::string& bytes : {kProfileVersion4, kProfileVersion5}) {
        cProfile profile(m_Services);
        Load(profile, bytes);
        EXPECT_FALSE(profile.HasChangedSinceLastLoadFromDisk());
    }
}

TEST_F(Profile, AFileOfLength0Or1LoadsAsFalseAndStays) {
    ExpectRefused("");
    ExpectRefused("\x05");
    EXPECT_EQ(Log(), "");
}

TEST_F(Profile, LoadingAMissingFileLeavesAnEmptyOne) {
    cProfile profile(m_Services);
    EXPECT_FALSE(profile.LoadFromDisk(12));
    EXPECT_EQ(profile.m_DiskIdentity, -1);
    EXPECT_EQ(OnDisk(), "");
}

TEST_F(Profile, AnUnknownVersionIsRefusedWithTheNameOfTheFileAndNotChanged) {
    for (const char version : {'\x03', '\x06'}) {
        std::string bytes = kProfileVersion5;
        bytes[0] = version;
        ExpectRefused(bytes);
    }
    EXPECT_EQ(Log(),
              "12:30:15 File 'C:\\App\\Profiles\\Profile_0012.dat' (3) is no profile\r\n"
              "12:30:15 File 'C:\\App\\Profiles\\Profile_0012.dat' (6) is no profile\r\n");
}

TEST_F(Profile, AFileCutAtAnyLengthIsRefusedAndStaysAsItIs) {
    for (const std::string& bytes : {kProfileVersion4, kProfileVersion5}) {
        for (std::size_t length = 0; length < bytes.size(); ++length) {
            // Nothing is told apart inside the filler.
            if (length > 400 && length < bytes.size() - 250 && length % 100 != 0) continue;
            SCOPED_TRACE(length);
            ExpectRefused(bytes.substr(0, length));
        }
    }
    EXPECT_NE(Log().find("12:30:15 Profile not loaded C:\\App\\Profiles\\Profile_0012.dat "
                         "Err:the file ends too early, at its byte 2\r\n"),
              std::string::npos);
}

TEST_F(Profile, AFileWithFlippedBytesNeverDoesWorseThanAFalseResult) {
    for (std::size_t place = 0; place < kProfileVersion4.size(); ++place) {
        for (const int pattern : {0x01, 0x80, 0xFF}) {
            std::string bytes = kProfileVersion4;
            bytes[place] = static_cast<char>(bytes[place] ^ pattern);
            m_Files.Put(ProfilePath("0012"), bytes);
            cProfile profile(m_Services);
            const bool loaded = profile.LoadFromDisk(12);
            EXPECT_TRUE(loaded ? OnDisk()[0] == 5 : OnDisk() == bytes) << place << " ^ " << pattern;
        }
    }
}

TEST_F(Profile, AProfileThatWasNeverGivenConditionsHoldsSixEmptyStrings) {
    m_Random.m_Values = {0};
    cProfile profile(m_Services);
    profile.m_TimeSchedule = std::make_unique<cTimeSchedule>();
    ASSERT_TRUE(profile.SaveToDisk());
    EXPECT_EQ(profile.m_DiskIdentity, 1);
    EXPECT_EQ(profile.m_HasUpdatedDiskIdentity, True16);
    const std::string bytes = m_Files.ReadFile(ProfilePath("0001"));
    EXPECT_EQ(bytes.substr(0, 36), Bytes("05 00 00 00 FF FF"
                                         "00 00 (name)"
                                         "00 00 00 00 00 00 (states)"
                                         "00 00 00 00 00 00 (use schedule, reserved)"
                                         "00 00 00 00 (receivers)"
                                         "00 00 00 00 00 00 00 00 00 00 00 00 (conditions)"));
    const std::size_t savedAt = bytes.size() - 186 - 2048 - 8;
    EXPECT_EQ(bytes.substr(36, savedAt - 36), std::string(savedAt - 36, '\0'));
    EXPECT_EQ(bytes.size(), 2u + 2 + 2 + 2 + 6 + 2 + 4 + 2 + 2 + 12 + 2 + 2 + 2 + 2 + 2 + 2 + 2 + 2 + 2 +
                                128 + 2 + 8 + 2048 + 186);
}

TEST_F(Profile, AProfileWithoutScheduleCantBeSaved) {
    cProfile profile(m_Services);
    EXPECT_FALSE(profile.SaveToDisk());
    EXPECT_EQ(profile.m_DiskIdentity, -1);
    EXPECT_TRUE(m_Files.ListFiles("C:\\App\\Profiles\\", "*").empty());
    EXPECT_NE(Log().find("Profile not saved"), std::string::npos);
    EXPECT_NE(Log().find("Err:the profile has no time schedule"), std::string::npos);
}

TEST_F(Profile, ASaveOfANewProfileNeverOverwritesAFileOfAnotherIdentity) {
    m_Files.Put(ProfilePath("0001"), "first");
    m_Random.m_Values = {0, 0, 0.5};
    cProfile profile(m_Services);
    profile.m_TimeSchedule = std::make_unique<cTimeSchedule>();
    EXPECT_TRUE(profile.SaveToDisk());
    EXPECT_EQ(profile.m_DiskIdentity, 4996);
    EXPECT_EQ(m_Files.ReadFile(ProfilePath("0001")), "first");
}

TEST_F(Profile, AFailureAtAnyCallOfASaveLeavesTheOldFileOrTheNewOneWhole) {
    for (int call = 0;; ++call) {
        cProfile profile(m_Services);
        Load(profile, kProfileVersion5);
        profile.SetName("Changed");
        m_Files.m_Calls = 0;
        m_Files.m_FailCall = call;
        const bool saved = profile.SaveToDisk();
        m_Files.m_FailCall = -1;
        EXPECT_EQ(profile.HasChangedSinceLastLoadFromDisk(), !saved);
        m_Files.Crash();
        cProfile again(m_Services);
        ASSERT_TRUE(again.LoadFromDisk(12)) << call;
        EXPECT_EQ(again.GetName(), saved ? "Changed" : "Night") << call;
        if (!saved) continue;
        EXPECT_GE(call, 3);
        return;
    }
}

TEST_F(Profile, AFailedSaveIsALogLineWithTheDescription) {
    cProfile profile(m_Services);
    Load(profile, kProfileVersion5);
    m_Files.m_DiskFull = true;
    m_Files.m_OnCall = [this](std::string_view operation, std::string_view) {
        m_Files.m_DiskFull = operation == "write";
    };
    EXPECT_FALSE(profile.SaveToDisk());
    EXPECT_EQ(Log(),
              "12:30:15 Profile not saved C:\\App\\Profiles\\Profile_0012.dat "
              "Err:C:\\App\\Profiles\\Profile_0012.dat.$~: the disk is full\r\n");
}

TEST_F(Profile, RemovingIsALogLineWithNameAndFile) {
    cProfile profile(m_Services);
    Load(profile, kProfileVersion5);
    EXPECT_TRUE(profile.RemoveFromDisk());
    EXPECT_FALSE(m_Files.FileExists(ProfilePath("0012")));
    EXPECT_EQ(Log(), "12:30:15 Profile removed 'Night' C:\\App\\Profiles\\Profile_0012.dat\r\n");
}

TEST_F(Profile, AFailedRemovalIsTheSameLineWithTheDescriptionBehind) {
    cProfile profile(m_Services);
    profile.SetName("Gone");
    profile.m_DiskIdentity = 3;
    EXPECT_FALSE(profile.RemoveFromDisk());
    EXPECT_EQ(Log(),
              "12:30:15 Profile removed 'Gone' C:\\App\\Profiles\\Profile_0003.dat "
              "Err:C:\\App\\Profiles\\Profile_0003.dat: the file does not exist\r\n");
}

TEST_F(Profile, EveryStoredFieldCountsAsAChange) {
    const std::vector<std::function<void(cProfile&)>> changes = {
        [](cProfile& p) { p.SetName("x"); },
        [](cProfile& p) { p.m_Enabled = False16; },
        [](cProfile& p) { p.m_ParentName = "x"; },
        [](cProfile& p) { p.m_NestingLevels = 4; },
        [](cProfile& p) { p.SetState(0, 9); },
        [](cProfile& p) { p.SetState(2, 9); },
        [](cProfile& p) { p.m_UseTimeSchedule = False16; },
        [](cProfile& p) { p.m_ParallellReceivers = "x"; },
        [](cProfile& p) { p.m_SequentialReceivers = "x"; },
        [](cProfile& p) { p.SetCondition(0, "x"); },
        [](cProfile& p) { p.SetCondition(5, "x"); },
        [](cProfile& p) { p.m_TimeSchedule_ViewDayType = 9; },
        [](cProfile& p) { p.m_Calendar_ViewTimeAxis = 9; },
        [](cProfile& p) { p.m_UseExternalTag = False16; },
        [](cProfile& p) { p.m_ExternalTagName = "x"; },
        [](cProfile& p) { p.m_IgnoreExternalTagInOtherProfiles = True16; },
        [](cProfile& p) { p.m_UseExternalFile = True16; },
        [](cProfile& p) { p.m_ExternalFileName = "x"; },
        [](cProfile& p) { p.m_ExternalFileText = "x"; },
        [](cProfile& p) { p.m_ScanSpecificSystems = False16; },
        [](cProfile& p) { p.SetSystem(0, 9); },
        [](cProfile& p) { p.SetSystem(63, 9); },
        [](cProfile& p) { p.m_OffDutyAlarmBehaviour = 9; },
        [](cProfile& p) { p.m_TimeSchedule->m_UseCalendar = False16; },
        [](cProfile& p) { p.m_TimeSchedule = nullptr; },
    };
    for (std::size_t i = 0; i < changes.size(); ++i) {
        cProfile profile(m_Services);
        Load(profile, kProfileVersion5);
        changes[i](profile);
        EXPECT_TRUE(profile.HasChangedSinceLastLoadFromDisk()) << i;
        profile.RememberOriginalSettings();
        EXPECT_FALSE(profile.HasChangedSinceLastLoadFromDisk()) << i;
    }
}

TEST_F(Profile, AChangeOfOnePeriodInTheScheduleIsAChange) {
    cProfile profile(m_Services);
    Load(profile, kProfileVersion5);
    std::int16_t start = 0;
    std::int16_t stop = 0;
    profile.m_TimeSchedule->GetNextTimePeriod(0, start, stop, nullptr)->m_StopMinute = 961;
    EXPECT_TRUE(profile.HasChangedSinceLastLoadFromDisk());
    EXPECT_TRUE(profile.SaveToDisk());
    EXPECT_FALSE(profile.HasChangedSinceLastLoadFromDisk());
}

TEST_F(Profile, TheCopyOfTheScheduleIsAScheduleOfItsOwn) {
    cProfile profile(m_Services);
    Load(profile, kProfileVersion5);
    ASSERT_TRUE(profile.m_Original->m_TimeSchedule);
    EXPECT_NE(profile.m_Original->m_TimeSchedule.get(), profile.m_TimeSchedule.get());
    EXPECT_EQ(profile.m_Original->m_Enabled, True16);
    EXPECT_EQ(profile.m_Original->m_ParallellReceivers, "7;8");
}

TEST_F(Profile, CopyFromTakesEverythingButTheIdentityAndSharesNothing) {
    cProfile source(m_Services);
    Load(source, kProfileVersion5);
    cProfile copy(m_Services);
    copy.CopyFrom(source);
    EXPECT_EQ(copy.m_DiskIdentity, -1);
    EXPECT_EQ(copy.m_OffDutyAlarmBehaviour, 2);
    std::int16_t start = 0;
    std::int16_t stop = 0;
    copy.m_TimeSchedule->GetNextTimePeriod(0, start, stop, nullptr)->m_StopMinute = 500;
    EXPECT_FALSE(source.HasChangedSinceLastLoadFromDisk());
    copy.m_TimeSchedule->GetNextTimePeriod(0, start, stop, nullptr)->m_StopMinute = 960;
    copy.m_DiskIdentity = 12;
    ExpectNight(copy);
    EXPECT_TRUE(copy.SaveToDisk());
    EXPECT_EQ(OnDisk(), kProfileVersion5);
}

TEST_F(Profile, CopyFromAProfileWithoutScheduleHasNone) {
    const cProfile source(m_Services);
    cProfile copy(m_Services);
    copy.m_TimeSchedule = std::make_unique<cTimeSchedule>();
    copy.CopyFrom(source);
    EXPECT_FALSE(copy.m_TimeSchedule);
}

TEST_F(Profile, AnIndexOutsideItsRangeIsABoundsFailure) {
    cProfile profile(m_Services);
    const std::vector<std::function<void()>> calls = {
        [&] { profile.GetCondition(6); },     [&] { profile.GetCondition(-1); },
        [&] { profile.SetCondition(6, ""); }, [&] { profile.GetState(3); },
        [&] { profile.SetState(-1, 0); },     [&] { profile.GetSystem(64); },
        [&] { profile.SetSystem(64, 0); }};
    for (const auto& call : calls) {
        const auto failure = CatchFailure(call);
        ASSERT_TRUE(failure);
        EXPECT_EQ(failure->Number(), eFailure::OutOfBounds);
    }
}

TEST_F(Profile, WithoutNestingANameHasNoParent) {
    cProfile profile(m_Services);
    profile.SetName("Building@Floor@Room");
    EXPECT_EQ(profile.GetName(), "Building@Floor@Room");
    EXPECT_EQ(profile.m_ParentName, "");
    EXPECT_EQ(profile.m_NestingLevels, 0);
}

TEST_F(Profile, WithNestingANameOfThreePartsHasTheFirstTwoAsParentAndLevel2) {
    m_Services.m_ProfileNesting = true;
    cProfile profile(m_Services);
    profile.SetName("Byggnad@V\xE5ning@Rum");
    EXPECT_EQ(profile.m_ParentName, "BYGGNAD@V\xC5NING");
    EXPECT_EQ(profile.m_NestingLevels, 2);
    profile.SetName("@x");
    EXPECT_EQ(profile.m_ParentName, "");
    EXPECT_EQ(profile.m_NestingLevels, 1);
}

TEST_F(Profile, WithNestingALoadedNameHasItsParentToo) {
    m_Services.m_ProfileNesting = true;
    std::string bytes = kProfileVersion5;
    bytes.replace(bytes.find("Night"), 5, "Ni@ht");
    cProfile profile(m_Services);
    Load(profile, bytes);
    EXPECT_EQ(profile.GetName(), "Ni@ht");
    EXPECT_EQ(profile.m_ParentName, "NI");
    EXPECT_EQ(profile.m_NestingLevels, 1);
    EXPECT_FALSE(profile.HasChangedSinceLastLoadFromDisk());
}

TEST_F(Profile, WithNestingANameWithoutSignHasLevel0) {
    m_Services.m_ProfileNesting = true;
    cProfile profile(m_Services);
    profile.SetName("Building@Floor");
    profile.SetName("Building");
    EXPECT_EQ(profile.m_ParentName, "");
    EXPECT_EQ(profile.m_NestingLevels, 0);
}

}  // namespace
}  // namespace vigrel::testing
