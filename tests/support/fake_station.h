#pragma once

#include <memory>
#include <string>
#include <vector>

#include "categories/category_specific_setting.h"
#include "common/dates.h"
#include "common/ini.h"
#include "common/log.h"
#include "common/receiver_state.h"
#include "common/settings.h"
#include "common/text.h"
#include "common/texts.h"
#include "events/acknowledgement.h"
#include "events/alarm_list_view.h"
#include "events/alarm_maker.h"
#include "events/alarm_store.h"
#include "events/listed_alarms.h"
#include "support/fake_clock.h"
#include "support/fake_files.h"
#include "support/fake_random.h"
#include "support/fake_report_list.h"
#include "support/fake_timer.h"
#include "support/fake_windows.h"
#include "support/transcript.h"

namespace vigrel::testing {

inline constexpr const char* kApp = "C:\\App\\";

// The event store, the list and what they stand on, over fakes. Tests change files and settings before the
// call that reads them.
class cFakeStation {
  public:
    cFakeStation() {
        files.PutFolder(kApp);
        files.PutFolder(std::string(kApp) + "Alarms\\");
        files.PutFolder(std::string(kApp) + "LogFiles\\");
    }

    void Ini(const std::string& content) { files.Put(std::string(kApp) + "VigrelReceiver.INI", content); }
    // A text file with "<id>=T<id>;" for each id, so that every text shows where it stands.
    void LoadTexts(const std::vector<int>& ids) {
        std::string content;
        for (const int id : ids) content += std::to_string(id) + "=T" + std::to_string(id) + "\r\n";
        files.Put(std::string(kApp) + "Vigrel_Texts.046", content);
        ini.PutIniString("General", "Language", "046");
        texts.LoadTexts();
    }
    // The lines of today's log without their time stamps.
    std::string Log() const {
        std::string lines;
        const std::string name =
            std::string(kApp) + "LogFiles\\" + FormatDateTime(clock.Now(), "yyyymmdd", {}) + ".Log";
        if (!files.FileExists(name)) return lines;
        for (const std::string& line : SplitLines(files.ReadFile(name))) lines += line.substr(9) + "\n";
        return lines;
    }
    AlarmPtr MakeAlarm(const std::string& t0 = "Fan 3 tripped", const std::string& category = "",
                       std::int16_t status = StatusActive) {
        return maker.Make([&](cVigrelRecieverAlarm& alarm) {
            alarm.m_Sender = "PLC1";
            alarm.m_Alarm.m_Status = status;
            alarm.m_Alarm.SetCondition(0, t0);
            alarm.m_Alarm.SetCondition(2, category);
        });
    }
    // What the intake does with the store and the list.
    AlarmPtr Take(const AlarmPtr& alarm) {
        listed.TakeIn(alarm);
        view.ShowNewAlarm(*alarm);
        return alarm;
    }
    std::vector<std::string> AlarmFiles() const {
        return files.ListFiles(std::string(kApp) + "Alarms\\", "*");
    }

    cTranscript transcript;
    cFakeFiles files;
    cFakeClock clock;
    cFakeRandom random;
    cFakeReportList list{&transcript};
    cFakeScreen screen;
    cFakeClipboard clipboard;
    cFakeMessageBox messageBox{&transcript};
    cFakeWindow mainWindow{"Vigrel_Receiver_Main", &transcript};
    cSettings settings;
    cReceiverState state;
    cLocaleForms forms;
    cIni ini{files, kApp};
    cTexts texts{files, ini};
    cLog log{files, clock, texts, kApp};
    cCategorySettings categories;
    cAlarmMaker maker{clock, categories};
    cAlarmListView view{{list, ini, texts, settings, state, forms, screen, clipboard}};
    cFakeTimer timerSave{10};
    cAlarmStore store{{files, files, clock, random, log, texts, settings, categories, timerSave}, kApp};
    cListedAlarms listed{{store, view, list, log, texts, settings, state}};
    cAcknowledgement acknowledgement{{store, view, list, log, texts, settings, state}};
};

}  // namespace vigrel::testing
