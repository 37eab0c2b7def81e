#pragma once

#include <gtest/gtest.h>

#include <deque>
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
#include "support/fake_popups.h"

namespace vigrel::testing {

// Popups over fake windows, beside a main window that opened first.
class cPopupsTest : public ::testing::Test {
  protected:
    cPopupsTest() {
        m_Files.Put("C:\\App\\Vigrel_Texts.001", "10000=Title\n10037=closed\n10038=ended\n10043=shown\n");
        m_Files.PutFolder("C:\\App\\LogFiles\\");
        Configure("");
        m_Texts.LoadTexts();
        m_List.Add(m_Main);
    }

    // The configuration file, with lines of section "PopupForm".
    void Configure(const std::string& popupForm, const std::string& object = "Object=Plant\n") {
        m_Files.Put("C:\\App\\VigrelReceiver.INI",
                    "[General]\nLanguage=001\n" + object + "[PopupForm]\n" + popupForm);
    }
    AlarmPtr Alarm(const std::string& category, std::int16_t status = StatusActive) {
        auto alarm = std::make_shared<cVigrelRecieverAlarm>(m_Clock);
        alarm->m_Alarm.m_Status = status;
        alarm->m_Alarm.SetCondition(0, "Alarm " + std::to_string(++m_Alarms));
        alarm->m_Alarm.SetCondition(2, category);
        alarm->m_CategorySpecificSetting = &m_Setting;
        return alarm;
    }
    // Opens a popup, a second after what was before. Its number among the popups.
    int Show(const std::string& category, std::int16_t status = StatusActive) {
        m_Clock.AddSeconds(1);
        m_Popups.ShowPopup(Alarm(category, status));
        return ++m_Shown;
    }
    // The log of the day without its times.
    std::string LogText() const {
        std::string text;
        for (const std::string& line : SplitLines(m_Files.ReadFile("C:\\App\\LogFiles\\20260315.Log"))) {
            text += line.substr(9) + "\n";
        }
        return text;
    }
    // What the transcript says of a popup since the last look, of the steps that begin with a word.
    std::string Steps(const std::string& beginning) {
        std::string steps;
        for (const std::string& line : SplitLines(m_Transcript.Take())) {
            const std::size_t subject = line.find(": ");
            const std::string step = subject == std::string::npos ? line : line.substr(subject + 2);
            if (step.starts_with(beginning)) steps += (steps.empty() ? "" : ", ") + step;
        }
        return steps;
    }

    cTranscript m_Transcript;
    cFakeClock m_Clock;
    cFakeFiles m_Files;
    cIni m_Ini{m_Files, "C:\\App\\"};
    cTexts m_Texts{m_Files, m_Ini};
    cLog m_Log{m_Files, m_Clock, m_Texts, "C:\\App\\"};
    cSettings m_Settings;
    cReceiverState m_State;
    cCategorySpecificSetting m_Setting;
    cFakeScreen m_Screen;
    cFakeWindowList m_List;
    cFakeWindow m_Main;
    cFakePopupMaker m_Maker{m_Transcript, m_List};
    cPopups m_Popups{
        {m_Settings, m_State, m_Ini, m_Texts, m_Log, m_Clock, m_Screen, m_List, m_Maker,
         [](const cVigrelRecieverAlarm& alarm, std::string_view eventTemplate, std::string_view extraText) {
             return alarm.m_Alarm.GetCondition(0) + "/" + std::string(eventTemplate) + "/" +
                    std::string(extraText);
         },
         [this](const AlarmPtr& alarm) {
             m_Transcript.Add("acknowledge " +
                              (alarm ? alarm->m_Alarm.GetCondition(0) : std::string("nothing")));
             if (m_FailAck) throw cFailure(eFailure::InvalidCall, "not acknowledged");
         }}};
    bool m_FailAck = false;
    int m_Alarms = 0, m_Shown = 0;
};

}  // namespace vigrel::testing
