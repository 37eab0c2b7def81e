#include "schedule/holidays.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace vigrel {
namespace {

bool ComesBefore(const cHolidayLabel& a, const cHolidayLabel& b) {
    const bool hiddenA = a.m_ViewInCalendar == False16, hiddenB = b.m_ViewInCalendar == False16;
    return std::tie(a.m_Day, hiddenA) < std::tie(b.m_Day, hiddenB);
}

}  // namespace

void cHolidays::Add(cHolidayLabel label) {
    if (label.m_Day < 0 || label.m_Day >= kCalendarDays) return;
    m_HolidayMarks[static_cast<std::size_t>(label.m_Day)] = True16;
    const auto place = std::upper_bound(m_HolidayLabels.begin(), m_HolidayLabels.end(), label, ComesBefore);
    m_HolidayLabels.insert(place, std::move(label));
}

const cHolidayLabel* cHolidays::LabelOf(std::int32_t day) const {
    if (day < 0 || day >= kCalendarDays || m_HolidayMarks[static_cast<std::size_t>(day)] == False16) {
        return nullptr;
    }
    const auto found = std::find_if(m_HolidayLabels.begin(), m_HolidayLabels.end(),
                                    [day](const cHolidayLabel& label) { return label.m_Day == day; });
    return found == m_HolidayLabels.end() ? nullptr : &*found;
}

}  // namespace vigrel
