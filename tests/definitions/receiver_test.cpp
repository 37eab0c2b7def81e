#include "definitions/receiver.h"

#include "common/dates.h"
#include "common/failure.h"
#include "definitions/definition_fixture.h"
#include "definitions/receiver_samples.h"
#include "support/samples.h"

namespace vigrel::testing {
namespace {

using samples::kReceiverVersion3;
using samples::kReceiverVersion4;
using samples::kReceiverVersion5;

class Receiver : public DefinitionTest {
  protected:
    cReceiver Loaded(const std::string& bytes) {
        m_Files.Put(ReceiverPath("0007"), bytes);
        cReceiver receiver(m_Services);
        EXPECT_TRUE(receiver.LoadFromDisk(7));
        return receiver;
    }
    // Loads number 7 from these bytes and expects that nothing but the log changes on disk.
    void ExpectRefused(const std::string& bytes) {
        m_Files.Put(ReceiverPath("0007"), bytes);
        cReceiver receiver(m_Services);
        EXPECT_FALSE(receiver.LoadFromDisk(7));
        EXPECT_EQ(m_Files.ReadFile(ReceiverPath("0007")), bytes);
    }
};

TEST_F(Receiver, TheFileNameHoldsTheIdentityAsFourDigits) {
    const cReceiver receiver(m_Services);
    EXPECT_EQ(receiver.CreateFileName(7), "C:\\App\\Receivers\\Receiver_0007.dat");
    EXPECT_EQ(receiver.CreateFileName(9991), "C:\\App\\Receivers\\Receiver_9991.dat");
    EXPECT_EQ(receiver.CreateFileName(12345), "C:\\App\\Receivers\\Receiver_2345.dat");
}

TEST_F(Receiver, ANewReceiverIsEnabledWithoutIdentityOrType) {
    const cReceiver receiver(m_Services);
    EXPECT_EQ(receiver.m_DiskIdentity, -1);
    EXPECT_EQ(receiver.m_Enabled, True16);
    EXPECT_EQ(receiver.m_ReceiverTypeIndex, -1);
    EXPECT_EQ(receiver.GetReceiverTypeId(), -1);
    EXPECT_EQ(receiver.m_KeepAliveInterval, 0);
    EXPECT_EQ(receiver.m_LastKeepAlive, 0);
    EXPECT_TRUE(receiver.HasChangedSinceLastLoadFromDisk());
    EXPECT_TRUE(m_Files.ListFiles("C:\\App\\Receivers\\", "*").empty());
}

TEST_F(Receiver, TheFrozenSamplesAreTheBytesWrittenByHand) {
    EXPECT_EQ(testing::Sample("receiver_version_3.dat"), kReceiverVersion3);
    EXPECT_EQ(testing::Sample("receiver_version_4.dat"), kReceiverVersion4);
    EXPECT_EQ(testing::Sample("receiver_version_5.dat"), kReceiverVersion5);
}

TEST_F(Receiver, AVersion3FileEnablesTheObjectThatLoadsItAndEmptiesItsNumbers) {
    m_Files.Put(ReceiverPath("0007"), kReceiverVersion3);
    cReceiver receiver(m_Services);
    receiver.m_Enabled = False16;
    receiver.m_ParallellNumbers = "12;13";
    ASSERT_TRUE(receiver.LoadFromDisk(7));
    EXPECT_EQ(receiver.m_Enabled, True16);
    EXPECT_EQ(receiver.m_ParallellNumbers, "");
}

TEST_F(Receiver, AVersion3FileIsReadWithEmptyNumbersAndEnabled) {
    const cReceiver receiver = Loaded(kReceiverVersion3);
    EXPECT_EQ(receiver.m_DiskIdentity, 7);
    EXPECT_EQ(receiver.m_Enabled, True16);
    EXPECT_EQ(receiver.m_ReceiverName, "Duty1");
    EXPECT_EQ(receiver.m_ParallellNumbers, "");
    EXPECT_EQ(receiver.GetReceiverTypeId(), 7);
    EXPECT_EQ(receiver.m_ReceiverTypeIndex, 1);
    EXPECT_EQ(receiver.m_ReceiverTypeName, "Radio transmitter");
    EXPECT_EQ(receiver.GetSetting(0), cVariant::String("COM"));
    EXPECT_EQ(receiver.GetSetting(1), cVariant::Int16(60));
    EXPECT_EQ(receiver.GetSetting(2), cVariant());
    EXPECT_EQ(receiver.GetSetting(3), cVariant::Boolean(true));
    EXPECT_FALSE(receiver.HasChangedSinceLastLoadFromDisk());
}

TEST_F(Receiver, AVersion3FileIsRewrittenAsVersion5ByteByByte) {
    Loaded(kReceiverVersion3);
    EXPECT_EQ(m_Files.ReadFile(ReceiverPath("0007")), Bytes("05 00 (version)"
                                                            "07 00 (identity)"
                                                            "FF FF (enabled)"
                                                            "07 00 (type id)"
                                                            "05 00 44 75 74 79 31"
                                                            "08 00 03 00 43 4F 4D"
                                                            "02 00 3C 00"
                                                            "00 00"
                                                            "0B 00 FF FF"
                                                            "00 00 00 00 00 00 00 00 00 00 (reserved)"
                                                            "00 00 (numbers)"
                                                            "6C C1 16 AC 10 82 E6 40 (saved at)") +
                                                          std::string(2048, '\0'));
    EXPECT_EQ(Log(),
              "12:30:15 Receiver brought up 'C:\\App\\Receivers\\Receiver_0007.dat' (version 3 -> 5)\r\n");
}

TEST_F(Receiver, AVersion4FileIsReadAndRewrittenAsVersion5ByteByByte) {
    cReceiver receiver = Loaded(kReceiverVersion4);
    EXPECT_EQ(receiver.m_Enabled, False16);
    EXPECT_EQ(receiver.m_ReceiverName, "Nord");
    EXPECT_EQ(receiver.m_ReceiverTypeName, "Network transmitter");
    EXPECT_EQ(receiver.m_ParallellNumbers, "123;456");
    EXPECT_EQ(receiver.m_FileDateTimeStamp, 0);
    EXPECT_EQ(m_Files.ReadFile(ReceiverPath("0007")), Bytes("05 00 07 00 00 00 08 00 04 00 4E 6F 72 64"
                                                            "08 00 00 00"
                                                            "08 00 02 00 34 35"
                                                            "01 00"
                                                            "11 00 C8"
                                                            "00 00 00 00 00 00 00 00 00 00"
                                                            "07 00 31 32 33 3B 34 35 36"
                                                            "6C C1 16 AC 10 82 E6 40") +
                                                          std::string(2048, '\0'));
    EXPECT_EQ(Log(),
              "12:30:15 Receiver brought up 'C:\\App\\Receivers\\Receiver_0007.dat' (version 4 -> 5)\r\n");
}

TEST_F(Receiver, AVersion5FileIsReadWithoutALogLineAndWithoutRewriting) {
    m_Clock.Set(2027, 1, 1);
    const cReceiver receiver = Loaded(kReceiverVersion5);
    EXPECT_EQ(receiver.m_ReceiverName, "\xD6st");
    EXPECT_EQ(receiver.m_ParallellNumbers, "17");
    EXPECT_EQ(receiver.m_ReceiverTypeName, "Tele unit");
    EXPECT_EQ(receiver.GetSetting(2), cVariant::Currency(1234500));
    EXPECT_EQ(receiver.GetSetting(3), cVariant::Date(DateSerial(2024, 1, 1) + 0.25));
    EXPECT_EQ(receiver.m_FileDateTimeStamp, DateSerial(2026, 3, 15) + TimeSerial(12, 30, 15));
    EXPECT_EQ(m_Files.ReadFile(ReceiverPath("0007")), kReceiverVersion5);
    EXPECT_EQ(m_Files.m_Calls, 0);
    EXPECT_FALSE(receiver.HasChangedSinceLastLoadFromDisk());
}

TEST_F(Receiver, TheNameOfTheFileDecidesTheIdentity) {
    m_Files.Put(ReceiverPath("0012"), kReceiverVersion5);
    cReceiver receiver(m_Services);
    EXPECT_TRUE(receiver.LoadFromDisk(12));
    EXPECT_EQ(receiver.m_DiskIdentity, 12);
}

TEST_F(Receiver, AFileOfLength0Or1LoadsAsFalseAndStays) {
    for (const std::string bytes : {"", "\x05"}) {
        m_Files.Put(ReceiverPath("0007"), bytes);
        cReceiver receiver(m_Services);
        receiver.m_ReceiverName = "kept";
        EXPECT_FALSE(receiver.LoadFromDisk(7));
        EXPECT_EQ(receiver.m_DiskIdentity, -1);
        EXPECT_EQ(receiver.m_ReceiverName, "kept");
        EXPECT_FALSE(receiver.HasChangedSinceLastLoadFromDisk());
        EXPECT_EQ(m_Files.ReadFile(ReceiverPath("0007")), bytes);
    }
    EXPECT_EQ(Log(), "");
}

TEST_F(Receiver, LoadingAMissingFileLeavesAnEmptyOne) {
    cReceiver receiver(m_Services);
    EXPECT_FALSE(receiver.LoadFromDisk(7));
    EXPECT_EQ(m_Files.ReadFile(ReceiverPath("0007")), "");
    EXPECT_EQ(Log(), "");
}

TEST_F(Receiver, LoadingWithoutTheFolderIsALogLine) {
    testing::cFakeFiles empty;
    empty.PutFolder("C:\\App\\LogFiles");
    const cDefinitionServices services{empty, m_Clock, m_Random, m_Texts, m_Log, m_Ini, m_Types};
    cReceiver receiver(services);
    EXPECT_FALSE(receiver.LoadFromDisk(7));
    EXPECT_EQ(receiver.m_DiskIdentity, -1);
    EXPECT_EQ(Log(),
              "12:30:15 Receiver not loaded C:\\App\\Receivers\\Receiver_0007.dat "
              "Err:C:\\App\\Receivers\\Receiver_0007.dat: the folder does not exist\r\n");
}

TEST_F(Receiver, AnUnreadableFileIsALogLine) {
    m_Files.Put(ReceiverPath("0007"), kReceiverVersion5);
    m_Files.SetUnreadable(ReceiverPath("0007"), true);
    cReceiver receiver(m_Services);
    EXPECT_FALSE(receiver.LoadFromDisk(7));
    EXPECT_EQ(Log(),
              "12:30:15 Receiver not loaded C:\\App\\Receivers\\Receiver_0007.dat "
              "Err:C:\\App\\Receivers\\Receiver_0007.dat: the file can't be read\r\n");
}

TEST_F(Receiver, AVersion6FileIsRefusedWithTheNumberOfTheOpenFileAndNotChanged) {
    std::string bytes = kReceiverVersion5;
    bytes[0] = 6;
    ExpectRefused(bytes);
    EXPECT_EQ(Log(), "12:30:15 File '1' (6) is no receiver\r\n");
}

TEST_F(Receiver, AVersionBelow3IsRefusedToo) {
    std::string bytes = kReceiverVersion3;
    bytes[0] = 2;
    ExpectRefused(bytes);
    EXPECT_EQ(Log(), "12:30:15 File '1' (2) is no receiver\r\n");
}

TEST_F(Receiver, ARefusedFileStillGivesItsIdentity) {
    m_Files.Put(ReceiverPath("0007"), Bytes("06 00"));
    cReceiver receiver(m_Services);
    EXPECT_FALSE(receiver.LoadFromDisk(7));
    EXPECT_EQ(receiver.m_DiskIdentity, 7);
}

TEST_F(Receiver, ADamagedFileGivesItsIdentityToo) {
    m_Files.Put(ReceiverPath("0007"), kReceiverVersion5.substr(0, 20));
    cReceiver receiver(m_Services);
    EXPECT_FALSE(receiver.LoadFromDisk(7));
    EXPECT_EQ(receiver.m_DiskIdentity, 7);
}

// What an object holds behind a load, whole or not, is what it is compared with from then on.
TEST_F(Receiver, EveryLoadIsRemembered) {
    for (const std::string& bytes : {Bytes("06 00"), kReceiverVersion5.substr(0, 20), kReceiverVersion3}) {
        m_Files.Put(ReceiverPath("0007"), bytes);
        m_Files.m_OnCall = [this](std::string_view operation, std::string_view) {
            m_Files.m_DiskFull = operation == "write";
        };
        cReceiver receiver(m_Services);
        receiver.m_ReceiverName = "before";
        receiver.LoadFromDisk(7);
        EXPECT_FALSE(receiver.HasChangedSinceLastLoadFromDisk());
        receiver.m_ReceiverName = "behind";
        EXPECT_TRUE(receiver.HasChangedSinceLastLoadFromDisk());
    }
}

TEST_F(Receiver, AVersion3TypeIdBeyond16BitsIsAFailureAndTheFileStays) {
    std::string bytes = kReceiverVersion3;
    bytes[4] = 1;
    ExpectRefused(bytes);
    EXPECT_EQ(Log(),
              "12:30:15 Receiver not loaded C:\\App\\Receivers\\Receiver_0007.dat "
              "Err:the number 65543 does not fit 16 bits\r\n");
}

// What stands in front of the type id has been taken by then, what follows it not.
TEST_F(Receiver, AVersion3TypeIdThatDoesNotFitLeavesTheNumbersOfTheObject) {
    std::string bytes = kReceiverVersion3;
    bytes[4] = 1;
    m_Files.Put(ReceiverPath("0007"), bytes);
    cReceiver receiver(m_Services);
    receiver.m_ParallellNumbers = "12";
    EXPECT_FALSE(receiver.LoadFromDisk(7));
    EXPECT_EQ(receiver.m_ReceiverName, "Duty1");
    EXPECT_EQ(receiver.m_ParallellNumbers, "12");
}

TEST_F(Receiver, AnUnknownVariantTypeIsAFailureThatNamesIt) {
    std::string bytes = kReceiverVersion3;
    bytes[13] = 9;
    ExpectRefused(bytes);
    EXPECT_EQ(Log(),
              "12:30:15 Receiver not loaded C:\\App\\Receivers\\Receiver_0007.dat "
              "Err:a value has the unknown type code 9\r\n");
}

TEST_F(Receiver, AFileCutAtAnyLengthIsRefusedAndStaysAsItIs) {
    // What follows the last field of a version carries nothing and may be missing.
    const struct {
        std::string bytes;
        std::size_t needed;
    } versions[] = {{kReceiverVersion3, kReceiverVersion3.size()},
                    {kReceiverVersion4, kReceiverVersion4.size() - 11},
                    {kReceiverVersion5, kReceiverVersion5.size() - 2048}};
    for (const auto& version : versions) {
        for (std::size_t length = 0; length < version.needed; ++length) {
            SCOPED_TRACE(length);
            ExpectRefused(version.bytes.substr(0, length));
        }
        Loaded(version.bytes.substr(0, version.needed));
    }
}

TEST_F(Receiver, AFileWithFlippedBytesNeverDoesWorseThanAFalseResult) {
    for (const std::string& version : {kReceiverVersion3, kReceiverVersion4, kReceiverVersion5}) {
        for (std::size_t place = 0; place < std::min<std::size_t>(version.size(), 120); ++place) {
            for (const int pattern : {0x01, 0x80, 0xFF}) {
                std::string bytes = version;
                bytes[place] = static_cast<char>(bytes[place] ^ pattern);
                m_Files.Put(ReceiverPath("0007"), bytes);
                cReceiver receiver(m_Services);
                const bool loaded = receiver.LoadFromDisk(7);
                const std::string after = m_Files.ReadFile(ReceiverPath("0007"));
                // Loaded means that it is now, or already was, of the current version.
                EXPECT_TRUE(loaded ? after[0] == 5 : after == bytes) << place << " ^ " << pattern;
            }
        }
    }
}

TEST_F(Receiver, AFileOfManyMegabytesIsNotTakenIntoMemory) {
    ExpectRefused(kReceiverVersion5 + std::string(9 << 20, '\0'));
    EXPECT_NE(Log().find("Err:a file of 9439"), std::string::npos) << Log();
}

TEST_F(Receiver, AFileOf8MegabytesIsTheLargestThatIsRead) {
    constexpr std::size_t kLargest = 8 << 20;
    Loaded(kReceiverVersion5 + std::string(kLargest - kReceiverVersion5.size(), '\0'));
    ExpectRefused(kReceiverVersion5 + std::string(kLargest + 1 - kReceiverVersion5.size(), '\0'));
}

TEST_F(Receiver, AFirstSaveInventsAnIdentityOf1To9991) {
    for (const auto& [random, digits] : {std::pair{0.0, "0001"}, {0.5, "4996"}, {0.99999, "9991"}}) {
        m_Random.m_Values = {random};
        cReceiver receiver(m_Services);
        EXPECT_TRUE(receiver.SaveToDisk());
        EXPECT_EQ(receiver.m_HasUpdatedDiskIdentity, True16);
        EXPECT_TRUE(m_Files.FileExists(ReceiverPath(digits))) << receiver.m_DiskIdentity;
        EXPECT_TRUE(receiver.SaveToDisk());
        EXPECT_EQ(receiver.m_HasUpdatedDiskIdentity, False16);
    }
}

TEST_F(Receiver, ASaveOfANewObjectNeverOverwritesAFileOfAnotherIdentity) {
    m_Files.Put(ReceiverPath("0001"), "first");
    m_Files.Put(ReceiverPath("4996"), "second");
    m_Random.m_Values = {0, 0.5, 0, 0.5, 0.25};
    cReceiver receiver(m_Services);
    EXPECT_TRUE(receiver.SaveToDisk());
    EXPECT_EQ(receiver.m_DiskIdentity, 2498);
    EXPECT_EQ(m_Files.ReadFile(ReceiverPath("0001")), "first");
    EXPECT_EQ(m_Files.ReadFile(ReceiverPath("4996")), "second");
}

TEST_F(Receiver, AThousandNumbersAreTriedAtRandomThenTheFirstFreeOneIsTaken) {
    m_Files.Put(ReceiverPath("4996"), "taken");
    m_Random.m_Values.assign(999, 0.5);
    m_Random.m_Values.push_back(0.25);
    cReceiver random(m_Services);
    EXPECT_TRUE(random.SaveToDisk());
    EXPECT_EQ(random.m_DiskIdentity, 2498);
    m_Random.m_Values.assign(1000, 0.5);
    m_Random.m_Values.push_back(0.75);
    cReceiver first(m_Services);
    EXPECT_TRUE(first.SaveToDisk());
    EXPECT_EQ(first.m_DiskIdentity, 1);
}

TEST_F(Receiver, TheLastFreeIdentityIsFoundAndAFullFolderIsAFailure) {
    const cReceiver name(m_Services);
    for (std::int16_t i = 1; i <= 9991; ++i) {
        if (i != 9991) m_Files.Put(name.CreateFileName(i), "taken");
    }
    m_Random.m_Values.assign(1000, 0.0);
    cReceiver last(m_Services);
    EXPECT_TRUE(last.SaveToDisk());
    EXPECT_EQ(last.m_DiskIdentity, 9991);
    cReceiver none(m_Services);
    EXPECT_FALSE(none.SaveToDisk());
    EXPECT_EQ(none.m_DiskIdentity, -1);
    EXPECT_NE(Log().find("Err:all numbers for new files are taken"), std::string::npos);
}

TEST_F(Receiver, ASaveStampsTheMomentInTheFileAndNotInTheObject) {
    cReceiver receiver = Loaded(kReceiverVersion5);
    const DateTime before = receiver.m_FileDateTimeStamp;
    m_Clock.Set(2026, 4, 1, 8);
    EXPECT_TRUE(receiver.SaveToDisk());
    EXPECT_EQ(receiver.m_FileDateTimeStamp, before);
    EXPECT_TRUE(receiver.LoadFromDisk(7));
    EXPECT_EQ(receiver.m_FileDateTimeStamp, m_Clock.Now());
}

TEST_F(Receiver, AFailureAtAnyCallOfASaveLeavesTheOldFileOrTheNewOneWhole) {
    for (int call = 0;; ++call) {
        m_Files.Put(ReceiverPath("0007"), kReceiverVersion5);
        cReceiver receiver(m_Services);
        ASSERT_TRUE(receiver.LoadFromDisk(7));
        receiver.m_ReceiverName = "Changed";
        m_Files.m_Calls = 0;
        m_Files.m_FailCall = call;
        const bool saved = receiver.SaveToDisk();
        m_Files.m_FailCall = -1;
        EXPECT_EQ(receiver.HasChangedSinceLastLoadFromDisk(), !saved);
        EXPECT_EQ(receiver.m_DiskIdentity, 7);
        m_Files.Crash();
        m_Files.PutFolder("C:\\App\\LogFiles");
        cReceiver again(m_Services);
        ASSERT_TRUE(again.LoadFromDisk(7)) << call;
        if (saved) {
            EXPECT_EQ(again.m_ReceiverName, "Changed");
            EXPECT_GE(call, 3);
            return;
        }
        EXPECT_EQ(again.m_ReceiverName, "\xD6st") << call;
    }
}

TEST_F(Receiver, AFailedSaveIsALogLineWithTheDescription) {
    cReceiver receiver = Loaded(kReceiverVersion5);
    m_Files.m_FailCall = 0;
    m_Files.m_Calls = 0;
    EXPECT_FALSE(receiver.SaveToDisk());
    EXPECT_EQ(Log(),
              "12:30:15 Receiver not saved C:\\App\\Receivers\\Receiver_0007.dat "
              "Err:C:\\App\\Receivers\\Receiver_0007.dat.$~: made to fail\r\n");
}

TEST_F(Receiver, AFailedFirstSaveLeavesTheObjectWithoutIdentity) {
    cReceiver receiver(m_Services);
    m_Files.m_FailCall = 0;
    EXPECT_FALSE(receiver.SaveToDisk());
    EXPECT_EQ(receiver.m_DiskIdentity, -1);
    EXPECT_EQ(receiver.m_HasUpdatedDiskIdentity, False16);
    EXPECT_TRUE(receiver.SaveToDisk());
    EXPECT_EQ(receiver.m_HasUpdatedDiskIdentity, True16);
}

TEST_F(Receiver, AFirstSaveWhoseFolderCantBeSyncedKeepsTheNumberOfItsFile) {
    cReceiver receiver(m_Services);
    m_Files.m_FailCall = 2;
    EXPECT_FALSE(receiver.SaveToDisk());
    EXPECT_TRUE(m_Files.FileExists(receiver.CreateFileName(receiver.m_DiskIdentity)));
}

TEST_F(Receiver, AnUpgradeThatCantBeWrittenLeavesTheOldFileAndTheLoadedObject) {
    m_Files.Put(ReceiverPath("0007"), kReceiverVersion3);
    m_Files.m_OnCall = [this](std::string_view operation, std::string_view) {
        m_Files.m_DiskFull = operation == "write";
    };
    cReceiver receiver(m_Services);
    EXPECT_TRUE(receiver.LoadFromDisk(7));
    EXPECT_EQ(receiver.m_ReceiverName, "Duty1");
    EXPECT_EQ(m_Files.ReadFile(ReceiverPath("0007")), kReceiverVersion3);
    EXPECT_NE(Log().find("Receiver not saved C:\\App\\Receivers\\Receiver_0007.dat Err:"), std::string::npos);
}

TEST_F(Receiver, ATextTooLongForItsFieldIsAFailedSave) {
    cReceiver receiver = Loaded(kReceiverVersion5);
    receiver.m_ParallellNumbers = std::string(65536, '1');
    EXPECT_FALSE(receiver.SaveToDisk());
    EXPECT_EQ(m_Files.ReadFile(ReceiverPath("0007")), kReceiverVersion5);
}

TEST_F(Receiver, RemovingDeletesTheFileForGoodAndLogsTheName) {
    cReceiver receiver = Loaded(kReceiverVersion5);
    EXPECT_TRUE(receiver.RemoveFromDisk());
    m_Files.Crash();
    EXPECT_FALSE(m_Files.FileExists(ReceiverPath("0007")));
}

TEST_F(Receiver, RemovingIsALogLineWithNameAndFile) {
    Loaded(kReceiverVersion5).RemoveFromDisk();
    EXPECT_EQ(Log(), "12:30:15 Receiver removed '\xD6st' C:\\App\\Receivers\\Receiver_0007.dat\r\n");
}

TEST_F(Receiver, AFailedRemovalIsALogLineWithTheDescription) {
    cReceiver receiver(m_Services);
    receiver.m_ReceiverName = "Lost";
    receiver.m_DiskIdentity = 33;
    EXPECT_FALSE(receiver.RemoveFromDisk());
    EXPECT_EQ(Log(),
              "12:30:15 Receiver not removed 'Lost' C:\\App\\Receivers\\Receiver_0033.dat "
              "Err:C:\\App\\Receivers\\Receiver_0033.dat: the file does not exist\r\n");
}

TEST_F(Receiver, EveryStoredFieldCountsAsAChange) {
    cReceiver receiver = Loaded(kReceiverVersion5);
    const auto changes = [&](auto&& change) {
        cReceiver changed = receiver;
        change(changed);
        return changed.HasChangedSinceLastLoadFromDisk();
    };
    EXPECT_TRUE(changes([](cReceiver& r) { r.m_ReceiverName = "x"; }));
    EXPECT_TRUE(changes([](cReceiver& r) { r.SetReceiverTypeId(2); }));
    EXPECT_TRUE(changes([](cReceiver& r) { r.m_ParallellNumbers = "x"; }));
    EXPECT_TRUE(changes([](cReceiver& r) { r.m_Enabled = False16; }));
    for (std::int16_t i = 0; i < 4; ++i) {
        EXPECT_TRUE(changes([i](cReceiver& r) { r.SaveSetting(i, cVariant::String("x")); })) << i;
    }
    EXPECT_FALSE(changes([](cReceiver& r) { r.m_SendingFailed = True16; }));
    EXPECT_FALSE(changes([](cReceiver& r) { r.m_DiskIdentity = 8; }));
}

TEST_F(Receiver, CopyFromTakesEverythingButTheIdentity) {
    const cReceiver source = Loaded(kReceiverVersion4);
    cReceiver copy(m_Services);
    copy.m_DiskIdentity = 99;
    copy.CopyFrom(source);
    EXPECT_EQ(copy.m_DiskIdentity, 99);
    EXPECT_EQ(copy.GetReceiverTypeId(), 8);
    EXPECT_EQ(copy.m_ReceiverTypeName, "Network transmitter");
    EXPECT_EQ(copy.m_ReceiverName, "Nord");
    EXPECT_EQ(copy.m_Enabled, False16);
    EXPECT_EQ(copy.m_ParallellNumbers, "123;456");
    for (std::int16_t i = 0; i < 4; ++i) EXPECT_EQ(copy.GetSetting(i), source.GetSetting(i));
}

TEST_F(Receiver, ACopyWorksOutTheKeepAliveBeforeItTakesTheSettings) {
    cReceiver source(m_Services);
    source.SaveSetting(1, cVariant::Int16(60));
    source.SetReceiverTypeId(7);
    cReceiver copy(m_Services);
    copy.SaveSetting(1, cVariant::Int16(5));
    copy.CopyFrom(source);
    EXPECT_EQ(copy.m_KeepAliveInterval, 5);
    EXPECT_EQ(copy.GetSetting(1), cVariant::Int16(60));
}

TEST_F(Receiver, ASettingOutside0To3IsABoundsFailure) {
    cReceiver receiver(m_Services);
    for (const std::int16_t index : {std::int16_t{-1}, std::int16_t{4}}) {
        const auto read = CatchFailure([&] { receiver.GetSetting(index); });
        const auto written = CatchFailure([&] { receiver.SaveSetting(index, cVariant()); });
        ASSERT_TRUE(read && written);
        EXPECT_EQ(read->Number(), eFailure::OutOfBounds);
        EXPECT_EQ(written->Number(), eFailure::OutOfBounds);
        EXPECT_STREQ(read->what(), ("setting " + std::to_string(index) + " is not one of 0 to 3").c_str());
    }
}

TEST_F(Receiver, AnUnknownTypeIdShowsTheBracketedNameWithFourDigits) {
    cReceiver receiver(m_Services);
    receiver.SetReceiverTypeId(42);
    EXPECT_EQ(receiver.m_ReceiverTypeName, "(Unknown type: 0042)");
    EXPECT_EQ(receiver.m_ReceiverTypeIndex, -1);
    EXPECT_EQ(receiver.GetReceiverTypeId(), 42);
}

TEST_F(Receiver, TheKeepAliveOfAnXrtIsItsSetting1InAnyCaseOfTheKind) {
    for (const std::int16_t type : {std::int16_t{7}, std::int16_t{8}}) {
        cReceiver receiver(m_Services);
        receiver.SaveSetting(1, cVariant::String("30.5"));
        receiver.SetReceiverTypeId(type);
        EXPECT_EQ(receiver.m_KeepAliveInterval, 30);
        EXPECT_EQ(receiver.m_LastKeepAlive, m_Clock.Now());
    }
}

TEST_F(Receiver, AKeepAliveThatIsNoWholeNumberIsRounded) {
    m_Files.Put("C:\\App\\Tele.INI", "[ReceiverTypeSettings]\r\nT11=10.7\r\n");
    for (const auto& [text, interval] :
         {std::pair{"30.7", 31}, {"31.5", 32}, {"30.5", 30}, {"0.4", 0}, {"1", 1}}) {
        cReceiver receiver(m_Services);
        receiver.SaveSetting(1, cVariant::String(text));
        receiver.SetReceiverTypeId(7);
        EXPECT_EQ(receiver.m_KeepAliveInterval, interval) << text;
        EXPECT_EQ(receiver.m_LastKeepAlive > 0, interval > 0) << text;
    }
    cReceiver tele(m_Services);
    tele.SetReceiverTypeId(9);
    EXPECT_EQ(tele.m_KeepAliveInterval, 11);
}

TEST_F(Receiver, ASetting1ThatIsNoNumberLeavesTheKeepAliveAtZero) {
    cReceiver receiver(m_Services);
    receiver.SaveSetting(1, cVariant::Int16(30));
    receiver.SetReceiverTypeId(7);
    ASSERT_EQ(receiver.m_KeepAliveInterval, 30);
    for (const cVariant& value : {cVariant::String("abc"), cVariant::Null(), cVariant::Date(46096),
                                  cVariant::Int16(-5), cVariant::Double(1e12), cVariant()}) {
        receiver.SaveSetting(1, value);
        receiver.SetReceiverTypeId(7);
        EXPECT_LE(receiver.m_KeepAliveInterval, 0) << value.Text();
        EXPECT_EQ(receiver.m_LastKeepAlive, 0) << value.Text();
    }
}

TEST_F(Receiver, TheKeepAliveOfATeleUnitStandsInTheSettingsFileOfItsType) {
    cReceiver receiver(m_Services);
    receiver.SaveSetting(1, cVariant::Int16(30));
    receiver.SetReceiverTypeId(9);
    EXPECT_EQ(receiver.m_KeepAliveInterval, 0);
    m_Files.Put("C:\\App\\Tele.INI", "[ReceiverTypeSettings]\r\nT11=90\r\n");
    receiver.SetReceiverTypeId(9);
    EXPECT_EQ(receiver.m_KeepAliveInterval, 90);
    EXPECT_EQ(receiver.m_LastKeepAlive, m_Clock.Now());
}

TEST_F(Receiver, OtherKindsHaveNoKeepAlive) {
    cReceiver receiver(m_Services);
    receiver.SaveSetting(1, cVariant::Int16(30));
    receiver.SetReceiverTypeId(7);
    receiver.SetReceiverTypeId(2);
    EXPECT_EQ(receiver.m_KeepAliveInterval, 0);
    EXPECT_EQ(receiver.m_LastKeepAlive, 0);
    m_Files.Put("C:\\App\\Tele.INI", "[ReceiverTypeSettings]\r\nT11=30\r\n");
    m_Types.m_ReceiverTypes[0].m_SettingsFile = "Tele.INI";
    receiver.SetReceiverTypeId(2);
    EXPECT_EQ(receiver.m_KeepAliveInterval, 0);
}

TEST_F(Receiver, AnUnknownTypeKeepsTheIntervalAndCountsItFromNow) {
    cReceiver receiver(m_Services);
    receiver.SetReceiverTypeId(42);
    EXPECT_EQ(receiver.m_KeepAliveInterval, 0);
    EXPECT_EQ(receiver.m_LastKeepAlive, 0);
    receiver.SaveSetting(1, cVariant::Int16(30));
    receiver.SetReceiverTypeId(7);
    m_Clock.AddSeconds(20);
    receiver.SetReceiverTypeId(42);
    EXPECT_EQ(receiver.m_KeepAliveInterval, 30);
    EXPECT_EQ(receiver.m_LastKeepAlive, m_Clock.Now());
}

TEST_F(Receiver, ALoadWorksOutTheKeepAliveBeforeItTakesTheSettings) {
    cReceiver receiver(m_Services);
    receiver.SaveSetting(1, cVariant::Int16(15));
    m_Files.Put(ReceiverPath("0007"), kReceiverVersion3);
    EXPECT_TRUE(receiver.LoadFromDisk(7));
    EXPECT_EQ(receiver.m_KeepAliveInterval, 15);
    EXPECT_TRUE(receiver.LoadFromDisk(7));
    EXPECT_EQ(receiver.m_KeepAliveInterval, 60);
}

}  // namespace
}  // namespace vigrel::testing
