#pragma once

#include <string>

#include "common/texts.h"
#include "events/alarm_store.h"
#include "platform/service_manager.h"
#include "platform/suite_library.h"

namespace vigrel {

// The station's state in one line, for whoever asks the service manager after it: where it listens, how many
// alarms it has, and what is wrong.
class cStationStatus {
  public:
    struct cServices {
        const cAlarmStore& store;
        const cTexts& texts;
        const cPrinterPorts& printerPorts;
        cServiceManager& serviceManager;
    };
    explicit cStationStatus(const cServices& services) : m_Services(services) {}

    // "12412", or "192.168.1.10 12412".
    void SetPort(const std::string& port) { m_Port = port; }
    // Tells the line when it is another one than was told last.
    void Tick();

  private:
    std::string Line() const;

    cServices m_Services;
    std::string m_Port, m_Told;
};

}  // namespace vigrel
