#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "common/line_problem.h"
#include "platform/files.h"
#include "schedule/holidays.h"

namespace vigrel {

// The name of the list of a station's own holidays, in the application folder (docs/formats/own-holidays.md).
inline constexpr std::string_view kOwnHolidaysFile = "OwnHolidays.txt";

// One day or several on end, in one year or in each, as people write it.
struct cOwnHoliday {
    std::string m_First;  // "2026-12-24", or "12-24" for each year
    std::string m_Last;   // in the same form; empty for a single day
    std::string m_Name;
    std::string m_Line;  // as it stands in the file; kept as long as it says the same
    // What stands in front of it in the file: comments, empty lines, lines that were not understood.
    std::vector<std::string> m_LinesBefore;

    bool IsEveryYear() const;
};

// Throws cFailure with a description for the user when a field is wrong.
void CheckOwnHoliday(const cOwnHoliday& holiday);

// The list of a station, in the order of its file.
class cOwnHolidays {
  public:
    // Replaces the list by that of a text and says which lines of it were skipped; and the text of the list.
    std::vector<cLineProblem> Parse(std::string_view text);
    std::string Text() const;
    // Replaces the list by that of a file and says which lines of it were skipped. A file that is missing
    // gives an empty list; one that can't be read says so too.
    std::vector<cLineProblem> Load(const cFileReader& files, std::string_view path);
    // Throws cFailure, also for a holiday that is wrong; the old file stands then.
    void Save(cFiles& files, std::string_view path) const;
    // Removes one; the lines in front of it go to what follows.
    void Remove(std::size_t index);

    // Marks each day of each of them, as far as the calendar reaches; 29 February in leap years alone.
    void AddTo(cHolidays& holidays) const;

    std::vector<cOwnHoliday> m_Holidays;
    std::vector<std::string> m_LinesAfter;  // what stands behind the last one
};

}  // namespace vigrel
