#include "tool_support/stored_alarms.h"

#include <gtest/gtest.h>

#include <array>
#include <utility>

#include "common/failure.h"
#include "inspect/alarm_samples.h"
#include "support/fake_files.h"

namespace vigrel::testing {
namespace {

// Notes what is asked for together.
class cNotingFiles : public cFakeFiles {
  public:
    void ReadFiles(const std::string& folder, const std::vector<std::string>& names,
                   const TakeContent& take) const override {
        m_Together.push_back(names);
        cFakeFiles::ReadFiles(folder, names, take);
    }
    mutable std::vector<std::vector<std::string>> m_Together;
};

class StoredAlarms : public ::testing::Test {
  protected:
    void Put(const std::string& name, const std::string& bytes = samples::kAlarm) {
        m_Files.Put("/Alarms/" + name, bytes);
    }
    void Read(const TakeStoredAlarm& take) const {
        ReadStoredAlarms(m_Files, "/Alarms/", AlarmFileNames(m_Files, "/Alarms/"), take);
    }
    // The name of each file, with what is wrong with it.
    std::string Told() const {
        std::string told;
        Read([&](const std::string& name, const cStoredAlarm& stored) {
            told += name + (stored.problem.empty() ? "" : ": ") + stored.problem + "\n";
        });
        return told;
    }
    cNotingFiles m_Files;
};

TEST_F(StoredAlarms, HaveNamesOfSevenDigitsAndAreSorted) {
    for (const char* name : {"A0000010.alm", "A0000002.alm", "A000000x.alm", "A00000003.alm", "B0000004.alm"})
        Put(name);
    m_Files.m_ListsBackwards = true;
    EXPECT_EQ(AlarmFileNames(m_Files, "/Alarms/"),
              (std::vector<std::string>{"A0000002.alm", "A0000010.alm"}));
}

TEST_F(StoredAlarms, AreAskedForTogether) {
    Put("A0000001.alm");
    Put("A0000002.alm");
    EXPECT_EQ(Told(), "A0000001.alm\nA0000002.alm\n");
    EXPECT_EQ(m_Files.m_Together, (std::vector<std::vector<std::string>>{{"A0000001.alm", "A0000002.alm"}}));
}

TEST_F(StoredAlarms, AFileThatCantBeReadKeepsNoOtherAwayWhereverItStands) {
    const std::array<std::string, 3> names{"A0000001.alm", "A0000002.alm", "A0000003.alm"};
    for (const std::string& name : names) Put(name);
    for (const std::string& broken : names) {
        m_Files.SetUnreadable("/Alarms/" + broken, true);
        std::string expected;
        for (const std::string& name : names)
            expected += name + (name == broken ? ": /Alarms/" + name + ": the file can't be read\n" : "\n");
        EXPECT_EQ(Told(), expected);
        m_Files.SetUnreadable("/Alarms/" + broken, false);
    }
}

TEST_F(StoredAlarms, AFileThatCantBeReadHasNoMoment) {
    Put("A0000001.alm");
    m_Files.SetUnreadable("/Alarms/A0000001.alm", true);
    int taken = 0;
    Read([&](const std::string&, const cStoredAlarm& stored) {
        ++taken;
        EXPECT_EQ(stored.alarm.m_CreatedTime, 0);
        EXPECT_EQ(stored.alarm.m_Alarm.m_TimeStampFromPC, 0);
    });
    EXPECT_EQ(taken, 1);
}

TEST_F(StoredAlarms, AFileOfMoreThanFourMebibytesIsNotReadAsAnAlarm) {
    constexpr std::size_t kLargest = 4'194'304;
    Put("A0000001.alm", samples::kAlarm + std::string(kLargest - samples::kAlarm.size(), 'x'));
    Put("A0000002.alm", samples::kAlarm + std::string(kLargest - samples::kAlarm.size() + 1, 'x'));
    EXPECT_EQ(Told(),
              "A0000001.alm: 4194111 bytes lie behind the alarm\n"
              "A0000002.alm: the file is too large for an alarm\n");
}

TEST_F(StoredAlarms, AFailureOfWhoTakesThemEndsTheReading) {
    Put("A0000001.alm");
    Put("A0000002.alm");
    int taken = 0;
    const auto take = [&](const std::string&, const cStoredAlarm&) {
        ++taken;
        throw cFailure(eFailure::DiskFull, "full");
    };
    EXPECT_THROW(Read(take), cFailure);
    EXPECT_EQ(taken, 1);
}

TEST(StateNames, StandForTheFourNumbersInAnyCase) {
    const std::vector<std::pair<std::string, std::string>> names{
        {"inactive", "INACTIVE"}, {"active", "Active"}, {"acked", "ackeD"}, {"message", "message"}};
    for (std::int16_t status = 0; status < 4; ++status) {
        const auto& [name, written] = names[static_cast<std::size_t>(status)];
        EXPECT_EQ(StateName(status), name);
        EXPECT_EQ(StateFromName(written), status);
    }
    EXPECT_EQ(StateName(-1), "");
    EXPECT_EQ(StateName(4), "");
    EXPECT_EQ(StateFromName("activ"), std::nullopt);
    EXPECT_EQ(StateFromName(""), std::nullopt);
}

}  // namespace
}  // namespace vigrel::testing
