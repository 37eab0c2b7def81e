#pragma once

#include <string>
#include <vector>

#include "adapters/linux/linux_files.h"
#include "adapters/linux/standard_random.h"
#include "categories/category_specific_setting.h"
#include "common/ini.h"
#include "common/log.h"
#include "common/receiver_state.h"
#include "common/settings.h"
#include "common/texts.h"
#include "events/acknowledgement.h"
#include "events/alarm_list_view.h"
#include "events/alarm_maker.h"
#include "events/alarm_store.h"
#include "events/listed_alarms.h"
#include "receiver_ui/list/qt_report_list.h"
#include "support/fake_clock.h"
#include "support/fake_timer.h"
#include "support/fake_windows.h"

namespace vigrel::campaign {

// The machine's files without the waits for its disk, which no check here depends on.
class cUnsyncedFiles : public cLinuxFiles {
  public:
    void WriteFile(std::string_view path, std::string_view bytes, bool) override {
        cLinuxFiles::WriteFile(path, bytes, false);
    }
    void SyncFolder(std::string_view) override {}
    std::unique_ptr<cPendingSync> StartSync(std::string_view) override { return std::make_unique<cNoWait>(); }

  private:
    class cNoWait : public cPendingSync {
        bool Done() const override { return true; }
        bool Wait() override { return true; }
    };
};

// The store, the list on the screen and the acknowledgement of a station, on a folder of the machine.
class cDamagedStation {
  public:
    // The folder ends in a backslash.
    explicit cDamagedStation(const std::string& folder);

    void Load() { listed.LoadAlarms(); }
    // What the intake does with an alarm.
    void Take(const AlarmPtr& alarm);
    void SortBy(int column, bool ascending, bool alone);
    void Copy();
    // What must hold at any moment: the store in order, a row for each of its alarms and none besides. Throws
    // std::runtime_error that tells what doesn't.
    void Check();
    // A file for each alarm and none besides, which reads back as the alarm. Throws alike.
    void CheckFiles() const;

    std::string path;
    cUnsyncedFiles files;
    testing::cFakeClock clock;
    cStandardRandom random;
    cIconStrip icons;
    cQtReportList list{nullptr, icons};
    testing::cFakeScreen screen;
    testing::cFakeClipboard clipboard;
    cSettings settings;
    cReceiverState state;
    cLocaleForms forms;
    cIni ini{files, path};
    cTexts texts{files, ini};
    cLog log{files, clock, texts, path};
    cCategorySettings categories;
    cAlarmMaker maker{clock, categories};
    cAlarmListView view{{list, ini, texts, settings, state, forms, screen, clipboard}};
    testing::cFakeTimer timerSave{10};
    cAlarmStore store{{files, files, clock, random, log, texts, settings, categories, timerSave}, path};
    cListedAlarms listed{{store, view, list, log, texts, settings, state}};
    cAcknowledgement acknowledgement{{store, view, list, log, texts, settings, state}};

  private:
    void CheckStore() const;
    void CheckRows();
};

}  // namespace vigrel::campaign
