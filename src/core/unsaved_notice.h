#pragma once

#include <cstddef>

#include "common/texts.h"
#include "core/receiver_ports.h"
#include "events/alarm_store.h"

namespace vigrel {

// Tells the operator, in a window and by the program's status, that alarms are not on disk: how many, and
// since when. Senders are answered all the same, and the log can be on the same disk; nothing else would
// tell. Tells likewise, once, that the stored alarms could not be read at the start.
class cUnsavedNotice {
  public:
    struct cServices {
        const cAlarmStore& store;
        const cTexts& texts;
        const cSettings& settings;
        const cLocaleForms& forms;
        const cClock& clock;
        cOtherWindows& windows;
        cStatus& status;
    };
    explicit cUnsavedNotice(const cServices& services) : m_Services(services) {}

    // Compares what is with what was told. The window follows at once, the status at most every ten seconds
    // while the number only changes.
    void Tick();
    // Behind the last try to write: by the status alone, what has changed since it was told. Alarms of the
    // last moment are lost with the program, unheard of, if they are not named here.
    void TellTheLast();

  private:
    std::string Summary() const;
    // Empty where the folder could be read.
    std::string FolderText() const;
    void TellOfFolder();
    void TellStatus();

    cServices m_Services;
    bool m_ToldOfFolder = false;
    std::size_t m_Shown = 0, m_Told = 0;  // alarms, in the window and by the status
    double m_ToldSteady = 0;              // on the steady clock, days
};

}  // namespace vigrel
