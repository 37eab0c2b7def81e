// Input: the content of a file, read as a schedule section, as a schedule's text form and as a calendar.

#include "fuzz/fuzz_target.h"

#include <algorithm>

#include "schedule/calendar_bench.h"
#include "schedule/definition_files.h"

namespace {

using namespace vigrel;

std::string Text(const cTimeSchedule& schedule) {
    std::string text;
    schedule.ComposePeriodArray(text);
    return text;
}

void CheckSection(std::string_view content) {
    cTimeSchedule schedule, again;
    cBinaryReader reader(content);
    schedule.ReadFromDisk(reader);
    const std::string saved = testing::Saved(schedule);
    fuzz::Require(saved.size() <= 186 + content.size() + 4, "no more periods than the file has bytes for");
    if (!FaultOfScheduleFile(content)) fuzz::Require(saved == content, "a sound file is saved as it was");
    cBinaryReader second(saved);
    again.ReadFromDisk(second);
    fuzz::Require(testing::Saved(again) == saved, "a saved section reads back equal");
    again.ExtractPeriodArray(Text(schedule));
    fuzz::Require(testing::Saved(again) == saved, "the text form reads back equal");
}

void CheckText(std::string_view content) {
    cTimeSchedule schedule, again;
    schedule.ExtractPeriodArray(content);
    again.ExtractPeriodArray(Text(schedule));
    fuzz::Require(testing::Saved(again) == testing::Saved(schedule), "a text reads back equal");
}

void CheckCalendar(std::string_view content) {
    testing::cCalendarBench bench;
    cTimeSchedule schedule;
    schedule.SetActive(22, True16);
    bench.m_Files.Put("C:\\App\\a.cal", content);
    fuzz::Require(bench.m_Calendar.ReadFromDisk("C:\\App\\a.cal"), "a file is read");
    fuzz::Require(bench.m_Calendar.CompareToDisk("C:\\App\\a.cal"), "the table is that of the file");
    bench.Show(2000, 1);
    for (int day = 0; day < 42; ++day) bench.Move(bench.X(day % 7), bench.Y(day / 7));
    // Behind the end of the file one week is as the next.
    const auto ofFile =
        static_cast<std::int32_t>(std::min(content.size() / 2 + 8, std::size_t{kCalendarDays}));
    for (std::int32_t i = 0; i < ofFile; ++i) {
        const std::int16_t dayType = bench.m_Calendar.ResolveDayType(i, schedule);
        fuzz::Require(dayType >= 0 && (dayType < 7 || dayType == 22), "a date has a day type in use");
    }
    bench.m_Calendar.SaveToDisk("C:\\App\\a.cal");
    const std::string saved = bench.m_Files.ReadFile("C:\\App\\a.cal");
    fuzz::Require(saved.size() == kCalendarFileSize, "a calendar has its size");
    if (!FaultOfCalendarFile(content)) fuzz::Require(saved == content, "a sound file is saved as it was");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    CheckSection(vigrel::fuzz::Text(data, size));
    CheckText(vigrel::fuzz::Text(data, size));
    CheckCalendar(vigrel::fuzz::Text(data, size));
    return 0;
}
