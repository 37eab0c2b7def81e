#pragma once

#include <string>
#include <string_view>

#include "signals/event_text.h"
#include "support/fake_clock.h"
#include "support/fake_files.h"

namespace vigrel::testing {

// What the expansion of an event template looks at: an active event of sender PLC1, and a station named
// Plant.
struct cEventTextStation {
    cEventTextStation() {
        files.Put("C:\\App\\VigrelReceiver.INI", "[General]\r\nLanguage=046\r\nObject=Plant\r\n");
        files.Put("C:\\App\\Vigrel_Texts.046", "837=Normal\r\n838=Alarm\r\n839=Acknowledged\r\n");
        texts.LoadTexts();
        alarm.m_Sender = "PLC1";
        alarm.m_Alarm.m_Status = StatusActive;
        alarm.m_Alarm.m_EventId = 0x12AB;
        alarm.m_Alarm.m_TimeStampFromSCADA = DateSerial(2026, 3, 14) + TimeSerial(6, 7, 8);
        constexpr const char* kConditions[] = {"Fan 3 tripped", "banana", "HVAC",
                                               "a:b-c",         "",       "[SENDER] {ACTIVE?x}"};
        for (int i = 0; i < 6; ++i) alarm.m_Alarm.SetCondition(i, kConditions[i]);
    }
    std::string Expand(std::string_view text) const {
        return eventText.ExpandEventText(alarm, text, "extra");
    }

    cFakeFiles files;
    cFakeClock clock;
    cIni ini{files, "C:\\App\\"};
    cTexts texts{files, ini};
    cSettings settings;
    cLocaleForms forms;
    cVigrelRecieverAlarm alarm{clock, kNoCategorySetting};
    cEventText eventText{settings, texts, ini, forms};
};

}  // namespace vigrel::testing
