#include "core/station_status.h"

#include <algorithm>

#include "common/date_text.h"

namespace vigrel {

std::string cStationStatus::Line() const {
    const cAlarmStore& store = m_Services.store;
    const auto notAcknowledged =
        std::count_if(store.m_Alarms.begin(), store.m_Alarms.end(),
                      [](const AlarmPtr& alarm) { return alarm->m_Observed == False16; });
    std::string line = "Listening on port " + m_Port + "; alarms: " + std::to_string(store.m_Alarms.size()) +
                       ", not acknowledged: " + std::to_string(notAcknowledged);
    if (store.UnsavedCount() > 0) {
        line += "; NOT ON DISK: " + std::to_string(store.UnsavedCount()) + " since " +
                DateTimeText(store.UnsavedSince()) + " (" + store.UnsavedReason() + ")";
    }
    const std::string printer = m_Services.printerPorts.Problem();
    if (!printer.empty()) line += "; printer " + printer;
    return line;
}

void cStationStatus::Tick() {
    const std::string line = Line();
    if (line == m_Told) return;
    m_Services.serviceManager.SetStatus(line);
    m_Told = line;
}

}  // namespace vigrel
