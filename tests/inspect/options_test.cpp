#include "vigrel-inspect/options.h"

#include <gtest/gtest.h>

#include "common/dates.h"
#include "common/failure.h"
#include "common/path_text.h"

namespace vigrel::testing {
namespace {

std::string RefusalOf(const std::vector<std::string>& words) {
    const auto failure = CatchFailure([&] { ReadOptions(words); });
    return failure ? failure->what() : "";
}

TEST(InspectOptions, FilesAndTheirForm) {
    const cInspectOptions options = ReadOptions({"a.alm", "--json", "--as", "Schedule", "--", "-b"});
    EXPECT_EQ(options.paths, (std::vector<std::string>{"a.alm", "-b"}));
    EXPECT_TRUE(options.json);
    EXPECT_EQ(options.kind, eFileKind::Schedule);
    EXPECT_FALSE(options.alarms);
}

TEST(InspectOptions, TheMomentAndItsCalendar) {
    const cInspectOptions options =
        ReadOptions({"Profile_0012.dat", "--at", "2026-12-24 18:00", "--calendar", "a.cal"});
    EXPECT_EQ(options.at, DateSerial(2026, 12, 24) + TimeSerial(18, 0, 0));
    EXPECT_EQ(options.calendar, "a.cal");
    EXPECT_EQ(RefusalOf({"x", "--calendar", "a.cal"}), "--calendar needs --at");
    EXPECT_EQ(RefusalOf({"x", "--at", "2026-12-24", "--json"}),
              "--at goes with none of --alarms, --json and --as");
}

TEST(InspectOptions, FiltersOfTheTable) {
    const cInspectOptions options = ReadOptions(
        {"/app", "--alarms", "--csv", "--from", "2026-03-01 10:00", "--category", "Fire", "--category",
         "Br\xC3\xA5nd", "--sender", "North", "--status", "Active", "--observed", "no", "--bom"});
    EXPECT_TRUE(options.alarms);
    EXPECT_TRUE(options.mark);
    EXPECT_EQ(options.filter.from, DateSerial(2026, 3, 1) + TimeSerial(10, 0, 0));
    EXPECT_EQ(options.filter.categories, (std::vector<std::string>{"Fire", "Br\xE5nd"}));
    EXPECT_EQ(options.filter.senders, std::vector<std::string>{"North"});
    EXPECT_EQ(options.filter.states, std::vector<std::int16_t>{1});
    EXPECT_EQ(options.filter.observed, false);
}

TEST(InspectOptions, ToMeansTheWholeDayMinuteOrSecondThatWasWritten) {
    const auto end = [](const std::string& word) {
        return *ReadOptions({"/app", "--alarms", "--csv", "--to", word}).filter.before;
    };
    EXPECT_EQ(end("2026-03-31"), DateSerial(2026, 4, 1));
    EXPECT_NEAR(end("2026-03-31 10:15"), DateSerial(2026, 3, 31) + TimeSerial(10, 16, 0), 1e-9);
    EXPECT_NEAR(end("2026-03-31 10:15:20"), DateSerial(2026, 3, 31) + TimeSerial(10, 15, 21), 1e-9);
}

TEST(InspectOptions, AWrongCommandLineIsRefusedByName) {
    EXPECT_EQ(RefusalOf({}), "no file was named");
    EXPECT_EQ(RefusalOf({"x", "--jsn"}), "the option --jsn is not known");
    EXPECT_EQ(RefusalOf({"x", "--as"}), "--as needs a value");
    EXPECT_EQ(RefusalOf({"x", "--as", "file"}),
              "--as: \"file\" is none of alarm, receiver, profile, schedule, calendar");
    EXPECT_EQ(RefusalOf({"x", "--alarms"}), "--alarms needs --csv");
    EXPECT_EQ(RefusalOf({"x", "y", "--alarms", "--csv"}), "--alarms takes one folder");
    EXPECT_EQ(RefusalOf({"x", "--csv"}), "--csv and its filters need --alarms");
    EXPECT_EQ(RefusalOf({"x", "--sender", "a"}), "--csv and its filters need --alarms");
    EXPECT_EQ(RefusalOf({"x", "--alarms", "--csv", "--json"}),
              "--json and --as are for files, not for --alarms");
    EXPECT_EQ(RefusalOf({"x", "--alarms", "--csv", "--from", "1 March"}),
              "--from: \"1 March\" is no date; write it like 2026-03-15 or \"2026-03-15 12:30\"");
    EXPECT_EQ(RefusalOf({"x", "--alarms", "--csv", "--status", "on"}),
              "--status: \"on\" is none of inactive, active, acked, message");
    EXPECT_EQ(RefusalOf({"x", "--alarms", "--csv", "--observed", "1"}),
              "--observed: \"1\" is neither yes nor no");
    EXPECT_EQ(RefusalOf({"x", "--alarms", "--csv", "--sender", "\xD0\xB6"}),
              "\"?\" has characters outside the code page 1252");
}

TEST(InspectOptions, APathIsWhateverBytesItHas) {
    for (const std::string& path : std::vector<std::string>{"/home/иван/a.alm", "Kn\xE4pp", "a\\b"}) {
        const cInspectOptions options = ReadOptions({path});
        ASSERT_EQ(options.paths.size(), 1u);
        EXPECT_EQ(PathBytes(options.paths[0]), path);
    }
}

TEST(InspectOptions, HelpNeedsNothingElseAndNamesEveryOption) {
    EXPECT_TRUE(ReadOptions({"--help"}).help);
    EXPECT_TRUE(ReadOptions({"-h"}).help);
    for (const char* option :
         {"--json", "--as", "--alarms", "--csv", "--from", "--to", "--category", "--sender", "--status",
          "--observed", "--bom", "--exact", "--quiet", "--version", "Examples:"}) {
        EXPECT_NE(HelpText().find(option), std::string::npos) << option;
    }
}

}  // namespace
}  // namespace vigrel::testing
