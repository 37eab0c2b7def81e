#pragma once

#include <memory>
#include <stdexcept>
#include <string>

#include "common/text.h"
#include "core/vigrel_receiver_main.h"
#include "support/fake_clock.h"
#include "support/fake_devices.h"
#include "support/fake_files.h"
#include "support/fake_locale.h"
#include "support/fake_popups.h"
#include "support/fake_random.h"
#include "support/fake_report_list.h"
#include "support/fake_sockets.h"
#include "support/fake_timer.h"
#include "support/fake_windows.h"
#include "support/transcript.h"

namespace vigrel::testing {

class cFakeOtherWindows : public cOtherWindows {
  public:
    explicit cFakeOtherWindows(cTranscript& transcript) : m_Transcript(transcript) {}
    void ShowLanguageWindow() override {
        m_Transcript.Add("language window");
        if (m_OnLanguageWindow) m_OnLanguageWindow();
    }
    void ShowDebugWindow(const cTexts&, cReceiverState& state) override {
        m_Transcript.Add(state.m_DebugMode ? "debug window in debug mode" : "debug window");
        m_CloseDebugWindow = [&state] { state.m_DebugMode = false; };
    }
    void WriteTrace(std::string_view text, std::int16_t kind) override {
        m_Trace += std::to_string(kind) + ":" + std::string(text) + ";";
    }
    void ShowAboutBox(const cTexts&) override {
        m_Transcript.Add("about box");
        if (m_OnAboutBox) m_OnAboutBox();
    }
    void UnloadAboutBox() override { m_Transcript.Add("about box unloaded"); }
    void ShowNotice(std::string_view text) override { m_Notices.emplace_back(text); }
    void RefuseDialogs() override {
        m_DialogsRefused = true;
        m_Transcript.Add("dialogs refused");
    }
    void AllowDialogs() override { m_DialogsRefused = false; }

    std::function<void()> m_OnLanguageWindow;
    std::function<void()> m_OnAboutBox;
    std::function<void()> m_CloseDebugWindow;
    std::string m_Trace;
    std::vector<std::string> m_Notices;
    bool m_DialogsRefused = false;

  private:
    cTranscript& m_Transcript;
};

class cFakeStatus : public cStatus {
  public:
    void SetStatus(std::string_view text) override { m_Texts.emplace_back(text); }
    std::vector<std::string> m_Texts;
};

class cFakeServiceManager : public cServiceManager {
  public:
    void Ready() override { m_Told.emplace_back("ready"); }
    void Stopping() override { m_Told.emplace_back("stopping"); }
    void SetStatus(std::string_view line) override { m_Told.emplace_back(line); }
    std::vector<std::string> m_Told;
};

// A whole receiver over fakes. What a test changes before Load is found by the start.
class cFakeReceiver {
  public:
    cFakeReceiver() {
        files.PutFolder("C:\\App\\");
        Texts("046");
        Ini("");
    }
    // On files that others own.
    explicit cFakeReceiver(cFiles& others) : filesPort(&others) {}
    // A text file "<id>=T<id>".
    void Texts(const std::string& language) {
        std::string content;
        for (const auto& [first, last] : {std::pair{0, 1100}, {10000, 10060}, {11000, 11020}}) {
            for (int id = first; id < last; ++id)
                content += std::to_string(id) + "=T" + std::to_string(id) + "\r\n";
        }
        files.Put("C:\\App\\Vigrel_Texts." + language, content);
    }
    // The configuration: lines of section General, then further sections.
    void Ini(const std::string& general, const std::string& sections = "") {
        files.Put("C:\\App\\VigrelReceiver.INI", "[General]\r\nLanguage=046\r\n" + general + sections);
    }
    cVigrelReceiverMain& Make(const std::string& commandLine = "") {
        receiver.reset();
        receiver = std::make_unique<cVigrelReceiverMain>(
            cReceiverPorts{*filesPort,     *filesPort, clock,          random,         locale,
                           singleInstance, listener,   data,           timerKeepAlive, timerPlay,
                           timerSave,      list,       mainWindow,     menus,          screen,
                           windows,        popups,     messageBox,     clipboard,      beeper,
                           waveDevice,     trayArea,   light,          runningApps,    printerPorts,
                           otherWindows,   status,     deliveredTexts, serviceManager},
            "C:\\App\\", commandLine);
        return *receiver;
    }
    eStartUp Load(const std::string& commandLine = "") { return Make(commandLine).Form_Load(); }
    // Loaded and shown, as the program does it. Throws std::logic_error when the start ends otherwise.
    cVigrelReceiverMain& Start(const std::string& commandLine = "") {
        if (Load(commandLine) != eStartUp::Running) throw std::logic_error("the station did not start");
        mainWindow.Show();
        transcript.Take();
        return *receiver;
    }
    // The lines of a day's log without their time stamps.
    std::string Log(const std::string& day = "20260315") const {
        const std::string name = "C:\\App\\LogFiles\\" + day + ".Log";
        std::string lines;
        if (!files.FileExists(name)) return lines;
        for (const std::string& line : SplitLines(files.ReadFile(name))) lines += line.substr(9) + "\n";
        return lines;
    }
    std::vector<std::string> AlarmFiles() const { return files.ListFiles("C:\\App\\Alarms\\", "*"); }

    cTranscript transcript;
    cFakeFiles files;
    cFiles* filesPort = &files;  // what the receiver is given for them
    cFakeClock clock;
    cFakeRandom random;
    cFakeLocale locale;
    cFakeSingleInstance singleInstance;
    cFakeListener listener{&transcript};
    cFakeDataSocket data{listener};
    cFakeTimer timerKeepAlive{10000};
    cFakeTimer timerPlay{500};
    cFakeTimer timerSave{10};
    cFakeReportList list;
    cFakeWindowList windows;
    cFakeWindow mainWindow{"Vigrel_Receiver_Main", &transcript, &windows};
    cFakeMenus menus;
    cFakeScreen screen;
    cFakePopupMaker popups{transcript, windows};
    cFakeMessageBox messageBox{&transcript};
    cFakeClipboard clipboard;
    cFakeBeeper beeper{&transcript};
    cFakeWaveDevice waveDevice{&transcript};
    cFakeNotificationArea trayArea{&transcript};
    cFakeSignalLight light{&transcript};
    cFakeRunningApps runningApps{&transcript};
    cFakePrinterPorts printerPorts;
    cFakeOtherWindows otherWindows{transcript};
    cFakeStatus status;
    cDeliveredTexts deliveredTexts;
    cFakeServiceManager serviceManager;
    std::unique_ptr<cVigrelReceiverMain> receiver;
};

}  // namespace vigrel::testing
