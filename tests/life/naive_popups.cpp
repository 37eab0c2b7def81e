#include "life/naive_popups.h"

#include <algorithm>

#include "life/naive_template.h"

namespace vigrel::testing {
namespace {

constexpr int kUnlisted = 9999;

bool HoldsWhole(const std::string& list, const std::string& category) {
    return InLowerCase("," + list + ",").find(InLowerCase("," + category + ",")) != std::string::npos;
}

}  // namespace

const cPlan::cCategory& CategoryOf(const cPlan& plan, const cNaiveAlarm& alarm) {
    for (const cPlan::cCategory& category : plan.categories) {
        if (InLowerCase(category.name) == InLowerCase(alarm.texts[2])) return category;
    }
    return plan.general;
}

void cNaivePopups::Restart(const cPlan& plan) {
    m_Plan = plan;
    m_Open.clear();
    m_Stack.clear();
    m_Last = 0;
}

bool cNaivePopups::Wanted(const cNaiveAlarm& alarm) const {
    return m_Plan.popups && (m_Plan.popupsFor.empty() || HoldsWhole(m_Plan.popupsFor, alarm.texts[2])) &&
           (alarm.status == 1 || !m_Plan.popupsOnlyForActive);
}

int cNaivePopups::PriorityOf(const std::string& category) const {
    int priority = 0;
    for (const std::string& field : CutAt(m_Plan.topMost, ',')) {
        if (WithoutOuterBlanks(field).empty()) return kUnlisted;
        if (InLowerCase(WithoutOuterBlanks(field)) == InLowerCase(category)) return priority;
        ++priority;
    }
    return kUnlisted;
}

bool cNaivePopups::IsTopMost(const std::string& category) const {
    return !m_Plan.oneAtATime || m_Plan.topMost.empty() || HoldsWhole(m_Plan.topMost, category);
}

// The one that stands before all others: of the best priority the oldest, of equally old ones the last. One
// of no listed category doesn't count as long as the clock, set back, says that it is to come.
const cNaivePopups::cPopup* cNaivePopups::First(double now, bool unlistedToo) const {
    const cPopup* first = nullptr;
    for (const cPopup& popup : m_Open) {
        if (popup.priority == kUnlisted && (!unlistedToo || popup.opened > now)) continue;
        if (!first || popup.priority < first->priority ||
            (popup.priority == first->priority && popup.opened <= first->opened))
            first = &popup;
    }
    return first;
}

void cNaivePopups::ShowFirst(double now) {
    const cPopup* first = First(now, true);
    m_Shown = first ? first->number : 0;
}

std::string cNaivePopups::Text(const cNaiveAlarm& alarm) const {
    const cPlan::cCategory& category = CategoryOf(m_Plan, alarm);
    return NaiveExpanded(alarm, category.popupFormat, category.extra, m_Plan.object);
}

void cNaivePopups::Open(const std::shared_ptr<cNaiveAlarm>& alarm, double now) {
    if (!Wanted(*alarm)) return;
    const std::string& category = alarm->texts[2];
    const cPopup* first = First(now, false);
    const bool ofFirstCategory =
        InLowerCase(category) == InLowerCase(WithoutOuterBlanks(CutAt(m_Plan.topMost, ',')[0]));
    const auto place = m_Plan.oneAtATime || !first || ofFirstCategory
                           ? m_Stack.begin()
                           : std::find(m_Stack.begin(), m_Stack.end(), first->number) + 1;
    m_Stack.insert(place, ++m_Last);
    m_Open.push_back({m_Last, alarm, now, PriorityOf(category), IsTopMost(category), Text(*alarm)});
    ShowFirst(now);
}

void cNaivePopups::Close(int number, double now) {
    std::erase(m_Stack, number);
    std::erase_if(m_Open, [number](const cPopup& popup) { return popup.number == number; });
    ShowFirst(now);
}

std::string cNaivePopups::Told() const {
    std::string told;
    for (const int number : m_Stack) {
        for (const cPopup& popup : m_Open) {
            if (popup.number != number || (m_Plan.oneAtATime && number != m_Shown)) continue;
            told += std::to_string(number) + (popup.topMost ? " top " : " ") + popup.text + "; ";
        }
    }
    return told;
}

}  // namespace vigrel::testing
