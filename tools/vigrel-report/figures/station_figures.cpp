#include "vigrel-report/figures/station_figures.h"

namespace vigrel::report {
namespace {

std::size_t CountWithin(const std::vector<Moment>& moments, const cSpan& period) {
    return static_cast<std::size_t>(
        std::count_if(moments.begin(), moments.end(), [&](Moment moment) { return period.Holds(moment); }));
}

// The times that a sender was lost. Nothing is known of a sender once its station has ended.
class cLosses {
  public:
    cLosses(const cStationRecord& station, const cSpan& period, cSenderFigures& sender)
        : m_Station(station), m_Period(period), m_Sender(sender) {}

    void Take(const cSenderEvent& event) {
        if (m_Since && !HoldsRun(*m_Since, event.time)) Close(EndOfRun(*m_Since));
        if (event.lost && !m_Since) {
            m_Since = event.time;
            m_Sender.lost += m_Period.Holds(event.time) ? 1 : 0;
        } else if (!event.lost && m_Since) {
            m_Sender.returned += m_Period.Holds(event.time) ? 1 : 0;
            Close(event.time);
        }
    }
    void Finish() {
        if (!m_Since) return;
        const Moment end = EndOfRun(*m_Since);
        m_Sender.isLost = *m_Since < m_Period.end && end >= m_Period.end;
        Close(end);
    }

  private:
    // Without a log the station counts as running.
    Moment EndOfRun(Moment moment) const {
        for (const cOutage& outage : m_Station.outages) {
            if (outage.span.begin >= moment) return outage.span.begin;
        }
        return m_Period.end;
    }
    bool HoldsRun(Moment from, Moment to) const { return EndOfRun(from) >= to || m_Station.outages.empty(); }
    void Close(Moment end) {
        const Spans loss = Within({{*m_Since, std::max(*m_Since, end)}}, m_Period);
        m_Sender.losses.insert(m_Sender.losses.end(), loss.begin(), loss.end());
        m_Sender.without += TotalLength(loss);
        m_Since.reset();
    }

    const cStationRecord& m_Station;
    const cSpan& m_Period;
    cSenderFigures& m_Sender;
    std::optional<Moment> m_Since;
};

cSenderFigures& SenderOf(std::vector<cSenderFigures>& senders, std::uint32_t sender) {
    const auto known = std::find_if(senders.begin(), senders.end(),
                                    [&](const cSenderFigures& row) { return row.sender == sender; });
    if (known != senders.end()) return *known;
    senders.push_back({});
    senders.back().sender = sender;
    return senders.back();
}

std::vector<cSenderFigures> MeasureSenders(const cStationRecord& station, const cSpan& period) {
    std::vector<cSenderFigures> senders;
    for (const cSupervision& row : station.supervisions) SenderOf(senders, row.sender).minutes = row.minutes;
    for (const cSenderEvent& event : station.senderEvents) {
        if (event.time < period.end) SenderOf(senders, event.sender);
    }
    for (cSenderFigures& sender : senders) {
        cLosses losses(station, period, sender);
        for (const cSenderEvent& event : station.senderEvents) {
            if (event.sender == sender.sender && event.time < period.end) losses.Take(event);
        }
        losses.Finish();
        for (const cSilence& silence : station.silences) {
            if (silence.sender != sender.sender) continue;
            sender.longestSilence =
                std::max(sender.longestSilence, TotalLength(Within({silence.span}, period)));
        }
    }
    std::stable_sort(senders.begin(), senders.end(),
                     [](const cSenderFigures& a, const cSenderFigures& b) { return a.without > b.without; });
    return senders;
}

}  // namespace

cStationFigures MeasureStation(const cStationRecord& station, const cSpan& period) {
    cStationFigures figures;
    figures.name = station.name;
    figures.folder = station.folder;
    figures.senders = MeasureSenders(station, period);
    figures.starts = CountWithin(station.starts, period);
    figures.orderlyEnds = CountWithin(station.ends, period);
    Spans down;
    for (const cOutage& outage : station.outages) {
        down.push_back(outage.span);
        const Spans within = Within({outage.span}, period);
        if (within.empty()) continue;
        figures.outages.push_back({within[0], outage.end});
        figures.unexpectedEnds += outage.end == eEnd::Unexpected && period.Holds(outage.span.begin) ? 1 : 0;
    }
    down = Joined(std::move(down));
    const Spans all = {period};
    figures.running = TotalLength(Within(station.running, period));
    figures.down = Within(Without(down, station.running), period);
    figures.notRunning = TotalLength(figures.down);
    figures.gaps = Without(Without(all, station.running), down);
    figures.notKnown = TotalLength(figures.gaps);
    figures.failedPrints = CountWithin(station.failedPrints, period);
    figures.messages = CountWithin(station.messages, period);
    figures.unknownSenders = CountWithin(station.unknownSenders, period);
    for (const cStationRecord::cRemoval& removal : station.removals) {
        if (period.Holds(removal.time)) figures.removed += removal.alarms;
    }
    return figures;
}

}  // namespace vigrel::report
