#pragma once

#include <memory>
#include <string>
#include <vector>

#include "life/naive_alarm.h"
#include "life/plan.h"

namespace vigrel::testing {

// The popups of the plain station. It keeps nothing that it can find anew.
class cNaivePopups {
  public:
    struct cPopup {
        int number;  // from 1, in the order in which they open
        std::shared_ptr<cNaiveAlarm> alarm;
        double opened;
        int priority;
        bool topMost;
        std::string text;
    };
    void Restart(const cPlan& plan);
    // Whether one opens for the alarm is asked here too.
    void Open(const std::shared_ptr<cNaiveAlarm>& alarm, double now);
    void Close(int number, double now);

    std::vector<cPopup> m_Open;  // the oldest first
    // Numbers, the uppermost first, and what each says: "3 top text; 1 text; ". Hidden ones are not there.
    std::string Told() const;

  private:
    bool Wanted(const cNaiveAlarm& alarm) const;
    int PriorityOf(const std::string& category) const;
    bool IsTopMost(const std::string& category) const;
    const cPopup* First(double now, bool unlistedToo) const;
    void ShowFirst(double now);
    std::string Text(const cNaiveAlarm& alarm) const;

    cPlan m_Plan;
    int m_Last = 0;
    int m_Shown = 0;           // the one, where only one shows
    std::vector<int> m_Stack;  // numbers, the uppermost first
};

// The settings that an alarm's category has.
const cPlan::cCategory& CategoryOf(const cPlan& plan, const cNaiveAlarm& alarm);

}  // namespace vigrel::testing
