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

void cHolidays::Add(std::vector<cHolidayLabel> labels) {
    for (cHolidayLabel& label : labels) {
        if (label.m_Day < 0 || label.m_Day >= kCalendarDays) continue;
        m_HolidayMarks[static_cast<std::size_t>(label.m_Day)] = True16;
        m_HolidayLabels.push_back(std::move(label));
    }
    std::stable_sort(m_HolidayLabels.begin(), m_HolidayLabels.end(), ComesBefore);
}

const cHolidayLabel* cHolidays::LabelOf(std::int32_t day) const {
    if (day < 0 || day >= kCalendarDays || m_HolidayMarks[static_cast<std::size_t>(day)] == False16) {
        return nullptr;
    }
    const auto found = std::lower_bound(
        m_HolidayLabels.begin(), m_HolidayLabels.end(), day,
        [](const cHolidayLabel& label, std::int32_t searched) { return label.m_Day < searched; });
    return found == m_HolidayLabels.end() || found->m_Day != day ? nullptr : &*found;
}

}  // namespace vigrel
