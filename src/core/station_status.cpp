#include "core/station_status.h"

#include <algorithm>

#include "common/date_text.h"
#include "common/text_ids.h"

namespace vigrel {

std::string cStationStatus::Line() const {
    const cAlarmStore& store = m_Services.store;
    const auto notAcknowledged =
        std::count_if(store.m_Alarms.begin(), store.m_Alarms.end(),
                      [](const AlarmPtr& alarm) { return alarm->m_Observed == False16; });
    const cTexts& texts = m_Services.texts;
    std::string line = texts.GetText(TextStatusPort) + " " + m_Port + "; " + texts.GetText(TextStatusAlarms) +
                       ": " + std::to_string(store.m_Alarms.size()) + ", " +
                       texts.GetText(TextStatusNotAcknowledged) + ": " + std::to_string(notAcknowledged);
    if (store.UnsavedCount() > 0) {
        line += "; " + texts.GetText(TextUnsaved) + " " + std::to_string(store.UnsavedCount()) + ", " +
                texts.GetText(TextUnsavedSince) + " " + DateTimeText(store.UnsavedSince()) + " (" +
                store.UnsavedReason() + ")";
    }
    const std::string printer = m_Services.printerPorts.Problem();
    if (!printer.empty()) line += "; " + texts.GetText(TextStatusPrinter) + " " + printer;
    return line;
}

void cStationStatus::Tick() {
    const std::string line = Line();
    if (line == m_Told) return;
    m_Services.serviceManager.SetStatus(line);
    m_Told = line;
}

}  // namespace vigrel
