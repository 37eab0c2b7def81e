#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <vector>

#include "life/naive_alarm.h"

namespace vigrel::testing {

// The alarms of the plain station: in memory, in the list, and on a disk that outlives it.
class cNaiveStore {
  public:
    using Alarm = std::shared_ptr<cNaiveAlarm>;

    Alarm Add(const cNaiveAlarm& alarm, double now);
    void Acknowledge(const Alarm& alarm);
    void RemoveOld(double now);
    // With limits that may be others.
    void Restart(int most, int days, double now);
    std::size_t CountUnseen() const;

    // As they are listed: by age, and what is equally old as it came.
    std::vector<Alarm> Rows() const;

  private:
    bool IsTooOld(const cNaiveAlarm& alarm, double now) const;
    void Insert(const Alarm& alarm, double now);
    void Remove(const Alarm& alarm);
    void RemoveOldest();
    int DrawNumber();

    int m_Most = 0, m_Days = 0;
    unsigned m_Drawn = 0;
    std::vector<Alarm> m_Alarms;  // the oldest first
    std::vector<Alarm> m_Listed;  // in the order in which they came
    std::map<int, cNaiveAlarm> m_Disk;
};

}  // namespace vigrel::testing
