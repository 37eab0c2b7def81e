// The real program, run as a user runs it, on files of a folder of its own.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "common/binary.h"
#include "common/numbers.h"
#include "events/vigrel_reciever_alarm.h"
#include "inspect/alarm_samples.h"
#include "support/fake_clock.h"
#include "support/samples.h"
#include "support/tool_run.h"

namespace vigrel::testing {
namespace {

namespace fs = std::filesystem;

using cRun = cToolRun;

class VigrelInspect : public ::testing::Test, protected cToolFolder {
  protected:
    using cToolFolder::Run;
    VigrelInspect() : cToolFolder(VIGREL_INSPECT) {
        fs::create_directories(m_Folder.Path() / "App" / "Alarms");
    }
    fs::path Put(const std::string& name, const std::string& bytes) {
        fs::path path = m_Folder.Path() / name;
        std::ofstream(path, std::ios::binary) << bytes;
        return path;
    }
};

TEST_F(VigrelInspect, PrintsAFileAndLeavesItAsItIs) {
    const fs::path path = Put("Receiver_0007.dat", testing::Sample("receiver_version_3.dat"));
    fs::permissions(path, fs::perms::owner_read);
    const auto before = fs::last_write_time(path);
    const cRun run = Run("Receiver_0007.dat");
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.output.substr(0, 48), "Receiver_0007.dat: receiver, version 3, 30 bytes");
    EXPECT_NE(run.output.find("Everything fits."), std::string::npos);
    EXPECT_EQ(Content("Receiver_0007.dat"), testing::Sample("receiver_version_3.dat"));
    EXPECT_EQ(fs::last_write_time(path), before);
}

TEST_F(VigrelInspect, PrintsSeveralFilesAsOneJsonArray) {
    Put("Receiver_0007.dat", testing::Sample("receiver_version_5.dat"));
    Put("A0042917.alm", samples::kAlarm.substr(0, 30));
    const cRun run = Run("--json Receiver_0007.dat A0042917.alm");
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.output.starts_with("[\n{\n  \"file\": \"Receiver_0007.dat\","));
    EXPECT_NE(run.output.find("\"problems\": []\n},\n{\n  \"file\": \"A0042917.alm\","), std::string::npos);
    EXPECT_TRUE(
        run.output.ends_with("\"problems\": [\n    {\"offset\": 29, \"field\": \"t1\", "
                             "\"description\": \"the file ends inside this field\"}\n  ]\n}\n]\n"));
    EXPECT_EQ(RunTelling("--json missing.alm").output, "[]\n");
}

TEST_F(VigrelInspect, GoesOnBehindAFileThatCantBeRead) {
    Put("A0042917.alm", samples::kAlarm);
    const cRun run = RunTelling("missing.alm A0042917.alm");
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_NE(run.errors.find("missing.alm: No such file"), std::string::npos) << run.errors;
    EXPECT_NE(run.output.find("A0042917.alm: alarm, 193 bytes"), std::string::npos);
}

TEST_F(VigrelInspect, NamesAFileWhoseKindCantBeTold) {
    Put("notes.txt", "hello");
    const cRun run = Run("notes.txt");
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_NE(run.output.find("the kind can't be told from the name; --as says it"), std::string::npos);
}

// Friday, 25 December 2026, is day 9855 of a calendar; there it is of the first special type, which the week
// knows and gives no period.
TEST_F(VigrelInspect, TellsWhatIsInForceAtAMoment) {
    Put("Profile_0012.dat", testing::Sample("profile_version_5.dat"));
    Put("Week.sch", testing::Sample("schedule.dat"));
    std::string calendar(29220, '\0');
    calendar[2 * 9855] = 8;
    Put("Calendar.cal", calendar);
    const cRun weekday = Run("Week.sch --at '2026-12-25 10:00'");
    EXPECT_EQ(weekday.exitCode, 0);
    EXPECT_EQ(weekday.output,
              "Week.sch\nWhen: 2026-12-25 10:00, Friday\n"
              "Day type: Friday, by the weekday; no calendar was named\n"
              "In a group with: Monday, Tuesday, Wednesday, Thursday\nPeriods: 07:00-16:00\n"
              "Active: yes, until 16:00\n");
    const cRun holiday = Run("Profile_0012.dat Week.sch --at '2026-12-25 10:00' --calendar Calendar.cal");
    EXPECT_EQ(holiday.exitCode, 0);
    EXPECT_TRUE(holiday.output.starts_with("Profile_0012.dat (Night)\nWhen: 2026-12-25 10:00, Friday\n"))
        << holiday.output;
    EXPECT_TRUE(
        holiday.output.ends_with("\n\nWeek.sch\nWhen: 2026-12-25 10:00, Friday\n"
                                 "Day type: special day type 1, by Calendar.cal\nPeriods: none\n"
                                 "Active: no, until 24:00 at least\n"))
        << holiday.output;
    EXPECT_EQ(Content("Week.sch"), testing::Sample("schedule.dat"));
}

TEST_F(VigrelInspect, GoesOnBehindAFileThatHasNothingInForce) {
    Put("Week.sch", testing::Sample("schedule.dat"));
    Put("Receiver_0007.dat", testing::Sample("receiver_version_5.dat"));
    const cRun run = RunTelling("Receiver_0007.dat Week.sch --at '2026-12-25 10:00'");
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.errors, "vigrel-inspect: Receiver_0007.dat is neither a profile nor a time schedule\n");
    EXPECT_TRUE(run.output.starts_with("Week.sch\n")) << run.output;
    EXPECT_EQ(RunTelling("Week.sch --at '25 December'").exitCode, 2);
    const cRun missing = RunTelling("Week.sch --at '2026-12-25 10:00' --calendar none.cal");
    EXPECT_EQ(missing.exitCode, 1);
    EXPECT_EQ(missing.output, "");
    EXPECT_NE(missing.errors.find("none.cal: No such file"), std::string::npos) << missing.errors;
}

TEST_F(VigrelInspect, PrintsHelpWithExamples) {
    const cRun run = Run("--help");
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_NE(run.output.find("Examples:\n"), std::string::npos);
}

TEST_F(VigrelInspect, RefusesAWrongCommandLine) {
    const cRun run = RunTelling("--nonsense");
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(run.errors, "vigrel-inspect: the option --nonsense is not known\nTry vigrel-inspect --help\n");
}

TEST_F(VigrelInspect, SaysThatItsOutputCantBeWritten) {
    Put("A0042917.alm", samples::kAlarm);
    const cRun run = RunTelling("A0042917.alm", "/dev/full");
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.errors, "vigrel-inspect: standard output can't be written\n");
}

TEST_F(VigrelInspect, ExportsTheAlarmsOfAnApplicationFolder) {
    Put("App/Alarms/A0042917.alm", samples::kAlarm);
    const cRun run =
        RunTelling("App --alarms --csv --from 2026-03-15 --to 2026-03-15 --status active --observed no");
    EXPECT_EQ(run.exitCode, 0) << run.errors;
    EXPECT_NE(run.output.find("\"A0042917.alm\",\"2026-03-15 12:30:15\",\"\xC3\x96st\",\"active\""),
              std::string::npos);
    EXPECT_EQ(run.errors, "1 file read, 1 alarm exported, 0 files damaged\n");
    EXPECT_EQ(Run("App --alarms --csv --from 2026-03-16 --quiet").output.find("A0042917"), std::string::npos);
    EXPECT_EQ(RunTelling("App --alarms --csv --bom").output.substr(0, 3), "\xEF\xBB\xBF");
}

TEST_F(VigrelInspect, SaysThatAFolderHoldsNoAlarms) {
    const cRun run = RunTelling("App --alarms --csv");
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.errors, "vigrel-inspect: App: there is no alarm file here, nor in its folder Alarms\n");
}

TEST_F(VigrelInspect, ExportsEveryAlarmOfALargeFolder) {
    constexpr int kAlarms = 2500;
    for (int i = 0; i < kAlarms; ++i) Put("App/Alarms/A" + Digits(i, 7) + ".alm", samples::kAlarm);
    const cRun run = RunTelling("App --alarms --csv");
    EXPECT_EQ(run.exitCode, 0);
    std::size_t at = 0;
    for (int i = 0; i < kAlarms && at != std::string::npos; ++i) {
        at = run.output.find("\"A" + Digits(i, 7) + ".alm\",", at);
    }
    EXPECT_NE(at, std::string::npos) << "an alarm is missing, or out of its order";
    EXPECT_TRUE(run.errors.ends_with("2500 files read, 2500 alarms exported, 0 files damaged\n"))
        << run.errors;
}

// What a terminal gets to see: the program's output through a pseudo terminal.
std::string OnATerminal(const std::string& command) {
    const int terminal = posix_openpt(O_RDWR | O_NOCTTY);
    EXPECT_TRUE(terminal >= 0 && grantpt(terminal) == 0 && unlockpt(terminal) == 0);
    const std::string device = ptsname(terminal);
    const int keepOpen = open(device.c_str(), O_RDWR | O_NOCTTY);
    std::system((command + " >" + device + " 2>/dev/null").c_str());
    std::string shown(65536, '\0');
    const ssize_t count = read(terminal, shown.data(), shown.size());
    shown.resize(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    close(keepOpen);
    close(terminal);
    return shown;
}

TEST_F(VigrelInspect, ATableOnATerminalSteersItByNoAlarm) {
    const testing::cFakeClock clock;
    cVigrelRecieverAlarm alarm(clock, kNoCategorySetting);
    alarm.m_Alarm.SetCondition(0, "\x1B]0;owned\x07");
    cBinaryWriter bytes;
    alarm.WriteToDisk(bytes);
    Put("App/Alarms/A0000001.alm", bytes.Bytes());
    const std::string shown =
        OnATerminal("cd '" + m_Folder.Path().string() + "' && " VIGREL_INSPECT " App --alarms --csv");
    EXPECT_NE(shown.find("\\x1B]0;owned\\x07"), std::string::npos) << shown;
    EXPECT_EQ(shown.find('\x1B'), std::string::npos);
    EXPECT_NE(RunTelling("App --alarms --csv").output.find('\x1B'), std::string::npos);
}

TEST_F(VigrelInspect, AFolderIsAnsweredByWhatCanBeDoneWithIt) {
    Put("App/Alarms/A0000001.alm", samples::kAlarm);
    const auto told = [this](const std::string& folder) {
        const cRun run = RunTelling(folder);
        EXPECT_EQ(run.exitCode, 1);
        return run.errors;
    };
    for (const std::string folder : {"App", "App/Alarms"}) {
        const std::string errors = told(folder);
        EXPECT_NE(errors.find(folder + " is a folder: \"vigrel-inspect " + folder + " --alarms --csv\""),
                  std::string::npos)
            << errors;
        EXPECT_NE(errors.find("such as App/Alarms/*.alm"), std::string::npos) << errors;
    }
    const std::string errors = told(".");
    EXPECT_NE(errors.find(". is a folder; to print files, name them"), std::string::npos) << errors;
    EXPECT_TRUE(Run("--version").output.starts_with("vigrel-inspect "));
}

}  // namespace
}  // namespace vigrel::testing
