#pragma once

#include <functional>
#include <memory>
#include <string>

#include "common/ini.h"
#include "common/protocol_trace.h"
#include "core/receiver_ports.h"
#include "platform/setting_store.h"
#include "receiver_ui/dialogs/about_window.h"
#include "receiver_ui/dialogs/debug_window.h"
#include "receiver_ui/dialogs/notice_window.h"
#include "windows/application.h"
#include "windows/open_windows.h"

namespace vigrel {

// The receiver's further windows on the screen.
//
// Without a display nobody could choose in the language window: a message says instead where a language is
// set.
class cQtOtherWindows : public cOtherWindows {
  public:
    struct cServices {
        cFiles& files;
        const cClock& clock;
        const cLocale& locale;
        const cScreen& screen;
        const cSettingStore& settings;
        cOpenWindows& windows;
        cApplication& application;
        cMessageBox& messageBox;
    };
    cQtOtherWindows(const cServices& services, const std::string& applicationPath)
        : m_Services(services), m_ApplicationPath(applicationPath), m_Ini(services.files, applicationPath) {}
    void ShowLanguageWindow() override;
    void ShowDebugWindow(const cTexts& texts, cReceiverState& state) override;
    void WriteTrace(std::string_view text, std::int16_t kind) override;
    void ShowAboutBox(const cTexts& texts) override;
    void UnloadAboutBox() override;
    void ShowNotice(std::string_view text) override;
    void RefuseDialogs() override { m_Services.application.RefuseDialogs(); }
    void AllowDialogs() override { m_Services.application.AllowDialogs(); }

    // The language window was closed; what was chosen stands in the settings.
    std::function<void()> OnLanguageChosen;

  private:
    cServices m_Services;
    std::string m_ApplicationPath;
    cIni m_Ini;
    std::unique_ptr<cProtocolTrace> m_Trace;
    std::unique_ptr<cDebugWindow> m_Debug;
    std::unique_ptr<cAboutWindow> m_About;
    std::unique_ptr<cNoticeWindow> m_Notice;
};

}  // namespace vigrel
