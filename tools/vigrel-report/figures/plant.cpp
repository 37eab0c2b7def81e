#include "vigrel-report/figures/plant.h"

#include "vigrel-report/record/merge.h"

namespace vigrel::report {
namespace {

// Two stations that receive the same record have clocks of their own.
constexpr Seconds kSameEvent = kMinute;

std::vector<cAlarmEvent> EventsOf(const std::vector<cStationRecord>& stations, std::size_t& toldTwice) {
    std::vector<cAlarmEvent> events;
    for (const cStationRecord& station : stations) {
        if (events.empty()) {
            events = station.alarms;
        } else {
            toldTwice += MergeAlarms(events, station.alarms, {kSameEvent, kSameEvent});
        }
    }
    return events;
}

// Walks through the events and keeps the state of every alarm.
class cTransitions {
  public:
    cTransitions(cPlant& plant, cAlarmNames& names) : m_Plant(plant), m_Names(names) {}

    void Take(const cAlarmEvent& event) {
        const std::uint32_t source = m_Names.SourceOf(event.sender, event.body);
        if (m_Active.size() <= source) m_Active.resize(source + 1, kNone);
        if (event.state == 1) Activate(source, event);
        if (event.state == 0) Return(source, event.order);
        if (event.state == 2) AcknowledgeAtSource(source, event.order);
    }

  private:
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

    void Activate(std::uint32_t source, const cAlarmEvent& event) {
        if (m_Active[source] != kNone && m_Plant.tellsReturns[event.sender]) {
            m_Plant.repeats.push_back(event.time);
            Acknowledge(source, event);
            return;
        }
        m_Active[source] = m_Plant.activations.size();
        m_Plant.activations.push_back({source, event.time, event.order});
        Acknowledge(source, event);
    }

    // A row of the list was acknowledged: that of the activation, or of a repetition of it.
    void Acknowledge(std::uint32_t source, const cAlarmEvent& event) {
        cActivation& activation = m_Plant.activations[m_Active[source]];
        if (event.acknowledgedAfter >= 0) {
            AcknowledgeAt(activation, event.order + event.acknowledgedAfter);
        } else if (event.observed) {
            activation.acknowledged = true;
        }
    }

    static void AcknowledgeAt(cActivation& activation, Moment order) {
        const Seconds after = order - activation.order;
        if (activation.acknowledgedAfter < 0 || after < activation.acknowledgedAfter) {
            activation.acknowledgedAfter = after;
        }
        activation.acknowledged = true;
    }

    void AcknowledgeAtSource(std::uint32_t source, Moment order) {
        if (m_Active[source] != kNone) AcknowledgeAt(m_Plant.activations[m_Active[source]], order);
    }

    void Return(std::uint32_t source, Moment order) {
        if (m_Active[source] == kNone) return;
        cActivation& activation = m_Plant.activations[m_Active[source]];
        activation.activeFor = order - activation.order;
        m_Active[source] = kNone;
    }

    cPlant& m_Plant;
    cAlarmNames& m_Names;
    std::vector<std::size_t> m_Active;  // by source
};

// Stored alarms without a log tell of the alarms of a time, unless the station is known not to have run.
void CollectKnownTimes(cPlant& plant) {
    Spans logged, stored, down;
    for (const cStationRecord& station : plant.stations) {
        logged.insert(logged.end(), station.running.begin(), station.running.end());
        stored.insert(stored.end(), station.stored.begin(), station.stored.end());
        for (const cOutage& outage : station.outages) down.push_back(outage.span);
    }
    logged = Joined(std::move(logged));
    plant.unlogged = Without(Without(Joined(std::move(stored)), Joined(std::move(down))), logged);
    plant.known = logged;
    plant.known.insert(plant.known.end(), plant.unlogged.begin(), plant.unlogged.end());
    plant.known = Joined(std::move(plant.known));
}

}  // namespace

cPlant MakePlant(std::vector<cStationRecord> stations, cAlarmNames& names) {
    cPlant plant;
    const std::vector<cAlarmEvent> events = EventsOf(stations, plant.toldTwice);
    plant.stations = std::move(stations);
    plant.tellsReturns.resize(names.SenderCount());
    for (const cAlarmEvent& event : events) {
        if (event.state == 0) plant.tellsReturns[event.sender] = true;
    }
    cTransitions transitions(plant, names);
    for (const cAlarmEvent& event : events) transitions.Take(event);
    CollectKnownTimes(plant);
    return plant;
}

}  // namespace vigrel::report
