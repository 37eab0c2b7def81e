#include "vigrel-report/figures/nuisance.h"

#include "vigrel-report/figures/periods.h"

namespace vigrel::report {
namespace {

constexpr std::size_t kBurst = 3;  // activations
constexpr Seconds kBurstTime = 60, kRepeatTime = 60, kFleetingTime = 10, kStaleTime = kDay;

using Row = std::vector<const cActivation*>;  // of one source, in order

template <class Item>
void SortByCount(std::vector<Item>& items) {
    std::stable_sort(items.begin(), items.end(),
                     [](const Item& a, const Item& b) { return a.activations > b.activations; });
}

class cFinder {
  public:
    cFinder(const cPlant& plant, const cAlarmNames& names, const cSpan& period, const cTimeZone& zone)
        : m_Plant(plant), m_Names(names), m_Period(period), m_Zone(zone), m_Rows(names.SourceCount()) {
        m_RecordEnd = plant.known.empty() ? period.end : plant.known.back().end;
        m_End = std::min(period.end, m_RecordEnd);
    }

    // What an activation is doesn't depend on the period that counts it, so the rows hold all of the record.
    cNuisance Find() {
        for (const cActivation& activation : m_Plant.activations) {
            m_Rows[activation.source].push_back(&activation);
        }
        for (const Row& row : m_Rows) FindBursts(row);
        for (const Row& row : m_Rows) FindFleeting(row);
        FindLong();
        SortByCount(m_Found.chattering);
        SortByCount(m_Found.fleeting);
        return std::move(m_Found);
    }

  private:
    // Marks the activations that lie in a minute with three of them; marks that touch are one burst.
    void FindBursts(const Row& row) {
        std::vector<bool> marks(row.size());
        for (std::size_t i = 0; i + kBurst <= row.size(); ++i) {
            if (row[i + kBurst - 1]->order - row[i]->order > kBurstTime) continue;
            for (std::size_t j = i; j < i + kBurst; ++j) marks[j] = true;
        }
        cChattering chattering;
        std::size_t counted = 0;  // of the burst, within the period
        for (std::size_t i = 0; i < row.size(); ++i) {
            if (!marks[i]) continue;
            const bool goesOn = i > 0 && marks[i - 1] && row[i]->order - row[i - 1]->order <= kBurstTime;
            if (!goesOn) counted = 0;
            m_Found.excluded.insert(row[i]);
            if (m_Period.Holds(row[i]->start)) AddToBurst(chattering, *row[i], ++counted);
        }
        if (chattering.activations > 0) m_Found.chattering.push_back(chattering);
    }

    static void AddToBurst(cChattering& chattering, const cActivation& activation, std::size_t counted) {
        if (chattering.activations == 0) {
            chattering.source = activation.source;
            chattering.first = activation.start;
        }
        if (counted == 1) ++chattering.bursts;
        ++chattering.activations;
        chattering.most = std::max(chattering.most, counted);
    }

    void FindFleeting(const Row& row) {
        std::size_t count = 0;
        for (std::size_t i = 0; i < row.size(); ++i) {
            const bool isShort = row[i]->activeFor >= 0 && row[i]->activeFor < kFleetingTime;
            const bool before = i > 0 && row[i]->order - row[i - 1]->order <= kRepeatTime;
            const bool behind = i + 1 < row.size() && row[i + 1]->order - row[i]->order <= kRepeatTime;
            if (!isShort || before || behind || m_Found.excluded.contains(row[i])) continue;
            m_Found.excluded.insert(row[i]);
            if (m_Period.Holds(row[i]->start)) ++count;
        }
        if (count == 0) return;
        m_Found.fleeting.push_back({row[0]->source, count});
        m_Found.fleetingActivations += count;
    }

    // How long an alarm was active, as far as an end of the period or of the record.
    static Seconds ActiveFor(const cActivation& activation, Moment recordedUntil) {
        const Seconds untilEnd = recordedUntil - activation.start;
        return activation.activeFor < 0 ? untilEnd : std::min(activation.activeFor, untilEnd);
    }

    void FindLong() {
        std::vector<cSpan> staleTimes;
        for (const cActivation& activation : m_Plant.activations) {
            if (activation.start >= m_End || !m_Plant.KnowsReturn(m_Names, activation.source)) continue;
            if (ActiveFor(activation, m_RecordEnd) > kStaleTime) m_Found.excluded.insert(&activation);
            const Seconds length = ActiveFor(activation, m_End);
            const Moment end = activation.start + length;
            const bool isActive = end >= m_End;
            const cStale found{activation.source, activation.start, isActive, length,
                               activation.acknowledged};
            if (isActive) m_Found.standing.push_back(found);
            if (length <= kStaleTime || end <= m_Period.begin) continue;
            m_Found.stale.push_back(found);
            staleTimes.push_back({activation.start + kStaleTime, end});
        }
        CountStaleDays(staleTimes);
        for (auto* list : {&m_Found.stale, &m_Found.standing}) {
            std::stable_sort(list->begin(), list->end(),
                             [](const cStale& a, const cStale& b) { return a.activeFor > b.activeFor; });
        }
    }

    void CountStaleDays(const std::vector<cSpan>& staleTimes) {
        for (Moment day = m_Zone.Midnight(m_Period.begin); day < m_Period.end;
             day = m_Zone.Midnight(day, 1)) {
            const cSpan span{std::max(day, m_Period.begin), std::min(m_Zone.Midnight(day, 1), m_Period.end)};
            std::size_t alarms = 0;
            for (const cSpan& stale : staleTimes) {
                alarms += stale.begin < span.end && stale.end > span.begin ? 1 : 0;
            }
            m_Found.staleDays.push_back({day, alarms});
            m_Found.mostStale = std::max(m_Found.mostStale, alarms);
        }
    }

    const cPlant& m_Plant;
    const cAlarmNames& m_Names;
    cSpan m_Period;
    const cTimeZone& m_Zone;
    Moment m_RecordEnd = 0;   // of the period without a record
    Moment m_End = 0;         // of the period, or of the record when that ends before
    std::vector<Row> m_Rows;  // by source
    cNuisance m_Found;
};

}  // namespace

cNuisance FindNuisance(const cPlant& plant, const cAlarmNames& names, const cSpan& period,
                       const cTimeZone& zone) {
    return cFinder(plant, names, period, zone).Find();
}

}  // namespace vigrel::report
