// Input: the content of a list of own holidays. Every line stays as it was written; what is written anew
// reads back the same; what is marked lies in the calendar.

#include "schedule/own_holidays.h"
#include <algorithm>

#include "common/text.h"
#include "fuzz/fuzz_target.h"
#include "support/fake_files.h"

namespace {

using namespace vigrel;

constexpr std::string_view kPath = "C:\\App\\OwnHolidays.txt";

std::string AsLines(std::string_view text) {
    std::string lines;
    for (const std::string& line : SplitLines(text)) lines += line + "\r\n";
    return lines;
}

bool AreAlike(const cOwnHolidays& a, const cOwnHolidays& b) {
    return std::equal(a.m_Holidays.begin(), a.m_Holidays.end(), b.m_Holidays.begin(), b.m_Holidays.end(),
                      [](const cOwnHoliday& left, const cOwnHoliday& right) {
                          return left.m_First == right.m_First && left.m_Last == right.m_Last &&
                                 left.m_Name == right.m_Name && left.m_LinesBefore == right.m_LinesBefore;
                      }) &&
           a.m_LinesAfter == b.m_LinesAfter;
}

void CheckWriting(const cOwnHolidays& list, std::size_t problems) {
    testing::cFakeFiles files;
    files.PutFolder("C:\\App");
    list.Save(files, kPath);
    cOwnHolidays again;
    fuzz::Require(again.Load(files, kPath).size() == problems, "the same lines are skipped again");
    fuzz::Require(AreAlike(again, list), "a list that was saved reads back");
    cOwnHolidays changed = list;
    for (cOwnHoliday& holiday : changed.m_Holidays) holiday.m_Line.clear();
    again.Parse(changed.Text());
    fuzz::Require(AreAlike(again, list), "lines that are written anew say the same");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = fuzz::Text(data, size);
    cOwnHolidays list;
    const std::size_t problems = list.Parse(text).size();
    fuzz::Require(list.Text() == AsLines(text), "every line stays as it was written");
    CheckWriting(list, problems);
    cHolidays holidays;
    list.AddTo(holidays);
    for (const cHolidayLabel& label : holidays.m_HolidayLabels)
        fuzz::Require(holidays.LabelOf(label.m_Day) != nullptr, "what is marked lies in the calendar");
    for (; !list.m_Holidays.empty(); list.Remove(list.m_Holidays.size() / 2)) {
        const cOwnHoliday& holiday = list.m_Holidays.back();
        fuzz::Require(holiday.IsEveryYear() || holiday.m_First.size() == 10, "a day has one of two forms");
    }
    fuzz::Require(cOwnHolidays(list).Parse(list.Text()).size() == problems, "what was not understood stays");
    return 0;
}
