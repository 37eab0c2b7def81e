#pragma once

#include <memory>
#include <string>

#include "common/ini.h"
#include "common/log.h"
#include "common/receiver_state.h"
#include "common/settings.h"
#include "common/text.h"
#include "common/texts.h"
#include "signals/popups.h"
#include "support/fake_clock.h"
#include "support/fake_files.h"
#include "support/fake_windows.h"
#include "support/transcript.h"

namespace vigrel::testing {

// What popups need of a receiver, without its windows. The text of a popup is "TEXT/TEMPLATE/EXTRA TEXT".
class cPopupStation {
  public:
    cPopupStation() {
        m_Files.Put("C:\\App\\Vigrel_Texts.001", "10000=Title\n10037=closed\n10038=ended\n10043=shown\n");
        m_Files.PutFolder("C:\\App\\LogFiles\\");
        Configure("");
        m_Texts.LoadTexts();
    }

    // The configuration file, with lines of section "PopupForm".
    void Configure(const std::string& popupForm, const std::string& object = "Object=Plant\n") {
        m_Files.Put("C:\\App\\VigrelReceiver.INI",
                    "[General]\nLanguage=001\n" + object + "[PopupForm]\n" + popupForm);
    }
    // Category settings from lines of a section.
    static cCategorySpecificSetting Setting(const std::string& lines) {
        cFakeFiles files;
        files.Put("C:\\App\\VigrelReceiver.INI", "[CategorySpecificSetting_C]\n" + lines);
        cCategorySpecificSetting setting;
        setting.GetSettings("CategorySpecificSetting_C", nullptr, cIni(files, "C:\\App\\"));
        return setting;
    }
    // Alarms are numbered from 1 in their text.
    AlarmPtr Alarm(const std::string& category, std::int16_t status = StatusActive) {
        auto alarm = std::make_shared<cVigrelRecieverAlarm>(m_Clock, m_Setting);
        alarm->m_Alarm.m_Status = status;
        alarm->m_Alarm.SetCondition(0, "Alarm " + std::to_string(++m_Alarms));
        alarm->m_Alarm.SetCondition(2, category);
        return alarm;
    }
    cPopupServices Services(cWindowList& windows, cPopupMaker& maker) {
        return {m_Settings,
                m_State,
                m_Ini,
                m_Texts,
                m_Log,
                m_Clock,
                m_Screen,
                windows,
                maker,
                [](const cVigrelRecieverAlarm& alarm, std::string_view eventTemplate,
                   std::string_view extraText) {
                    return alarm.m_Alarm.GetCondition(0) + "/" + std::string(eventTemplate) + "/" +
                           std::string(extraText);
                },
                [this](const AlarmPtr& alarm) {
                    m_Transcript.Add("acknowledge " +
                                     (alarm ? alarm->m_Alarm.GetCondition(0) : std::string("nothing")));
                    if (m_FailAck) throw cFailure(eFailure::InvalidCall, "not acknowledged");
                }};
    }
    // The log of the day without its times.
    std::string LogText() const {
        std::string text;
        for (const std::string& line : SplitLines(m_Files.ReadFile("C:\\App\\LogFiles\\20260315.Log"))) {
            text += line.substr(9) + "\n";
        }
        return text;
    }

    cTranscript m_Transcript;
    cFakeClock m_Clock;
    cFakeFiles m_Files;
    cIni m_Ini{m_Files, "C:\\App\\"};
    cTexts m_Texts{m_Files, m_Ini};
    cLog m_Log{m_Files, m_Clock, m_Texts, "C:\\App\\"};
    cSettings m_Settings;
    cReceiverState m_State;
    cCategorySpecificSetting m_Setting;  // of every alarm, unless a test sets another
    cFakeScreen m_Screen;
    bool m_FailAck = false;

  private:
    int m_Alarms = 0;
};

}  // namespace vigrel::testing
