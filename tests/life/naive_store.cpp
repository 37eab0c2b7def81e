#include "life/naive_store.h"

#include <algorithm>
#include <cmath>

namespace vigrel::testing {

bool cNaiveStore::IsTooOld(const cNaiveAlarm& alarm, double now) const {
    return m_Days > 0 && alarm.created + m_Days < now;
}

// The numbers that the tests line up: 1/2, 1/4, 3/4, 1/8, ... of the largest.
int cNaiveStore::DrawNumber() {
    int number = 0;
    do {
        double part = 0, weight = 1;
        for (unsigned n = ++m_Drawn; n > 0; n /= 2) part += (n % 2) * (weight /= 2);
        number = static_cast<int>(std::nearbyint(part * 9999999));
    } while (m_Disk.count(number) > 0);
    return number;
}

cNaiveStore::Alarm cNaiveStore::Add(const cNaiveAlarm& alarm, double now) {
    auto added = std::make_shared<cNaiveAlarm>(alarm);
    added->number = DrawNumber();
    m_Listed.push_back(added);
    m_Disk[added->number] = *added;
    Insert(added, now);
    return added;
}

// Where there are several of the same age, the place depends on which of them halving the range meets first.
void cNaiveStore::Insert(const Alarm& alarm, double now) {
    if (IsTooOld(*alarm, now)) return Remove(alarm);
    long low = 0, high = static_cast<long>(m_Alarms.size()), place = 0;
    auto middle = static_cast<long>(std::nearbyint(static_cast<double>(high) / 2));
    while (!m_Alarms.empty()) {
        const double other = m_Alarms.at(static_cast<std::size_t>(middle))->created;
        if (alarm->created == other) {
            place = middle + 1;
            break;
        }
        long& bound = alarm->created < other ? high : low;
        if (bound == middle) {
            place = alarm->created < other ? high : low + 1;
            break;
        }
        bound = middle;
        middle = low + (high - low) / 2;
    }
    m_Alarms.insert(m_Alarms.begin() + place, alarm);
    if (m_Most > 0 && m_Alarms.size() > static_cast<std::size_t>(m_Most)) RemoveOldest();
}

void cNaiveStore::Remove(const Alarm& alarm) {
    alarm->removed = true;
    m_Disk.erase(alarm->number);
    std::erase(m_Listed, alarm);
}

void cNaiveStore::RemoveOldest() {
    Remove(m_Alarms.front());
    m_Alarms.erase(m_Alarms.begin());
}

void cNaiveStore::Acknowledge(const Alarm& alarm) {
    alarm->acknowledged = true;
    if (!alarm->removed) m_Disk[alarm->number] = *alarm;
}

void cNaiveStore::RemoveOld(double now) {
    while (!m_Alarms.empty() && IsTooOld(*m_Alarms.front(), now)) RemoveOldest();
}

void cNaiveStore::Restart(int most, int days, double now) {
    m_Most = most;
    m_Days = days;
    m_Drawn = 0;
    m_Alarms.clear();
    m_Listed.clear();
    const std::map<int, cNaiveAlarm> found = m_Disk;
    for (const auto& [number, alarm] : found) Insert(std::make_shared<cNaiveAlarm>(alarm), now);
    m_Listed = m_Alarms;
}

std::size_t cNaiveStore::CountUnseen() const {
    return static_cast<std::size_t>(std::count_if(m_Alarms.begin(), m_Alarms.end(),
                                                  [](const Alarm& alarm) { return !alarm->acknowledged; }));
}

std::vector<cNaiveStore::Alarm> cNaiveStore::Rows() const {
    std::vector<Alarm> rows = m_Listed;
    std::stable_sort(rows.begin(), rows.end(),
                     [](const Alarm& a, const Alarm& b) { return a->created < b->created; });
    return rows;
}

}  // namespace vigrel::testing
