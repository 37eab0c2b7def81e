#include "receiver_ui/dialogs/other_windows.h"

#include "adapters/qt/qt_timer.h"
#include "common/failure.h"
#include "common/language_selection.h"
#include "receiver_ui/dialogs/language_window.h"

namespace vigrel {

void cQtOtherWindows::ShowLanguageWindow() {
    if (!cApplication::HasDisplay()) {
        m_Services.messageBox.Show(
            "No language: key Language of section General in VigrelReceiver.INI names no language file here, "
            "and without a display nobody can be asked",
            eMessageIcon::Stop, eMessageButtons::Ok);
        return;
    }
    cLanguageSelection selection(m_Services.files, m_Ini, m_Services.locale);
    cLanguageWindow::Choose(selection);
    if (OnLanguageChosen) OnLanguageChosen();
}

void cQtOtherWindows::ShowDebugWindow(const cTexts& texts, cReceiverState& state) {
    m_Trace = std::make_unique<cProtocolTrace>(state, m_Services.clock, m_Services.files, m_ApplicationPath);
    m_Debug = std::make_unique<cDebugWindow>(m_Services.windows, *m_Trace, texts, m_Services.settings);
    m_Debug->OnSaveFails = [this] {
        if (OnFailing) OnFailing();
    };
    m_Debug->Show();
}

void cQtOtherWindows::WriteTrace(std::string_view text, std::int16_t kind) {
    if (m_Trace) m_Trace->WriteTrace(text, kind);
}

void cQtOtherWindows::ShowAboutBox(const cTexts& texts) {
    m_About = std::make_unique<cAboutWindow>(m_Services.windows, m_Services.screen, texts,
                                             std::make_unique<cQtTimer>(cAboutBox::kTickInterval));
    m_About->Show();
}

// The same window, so that one that the operator has moved aside stays there.
void cQtOtherWindows::ShowNotice(std::string_view text) {
    if (text.empty()) {
        if (m_Notice) SkipFailure([&] { m_Notice->Close(); });
        return;
    }
    if (!m_Notice) m_Notice = std::make_unique<cNoticeWindow>(m_Services.windows);
    m_Notice->SetText(text);
    if (m_Notice->State() == eWindowState::Minimised) m_Notice->SetState(eWindowState::Normal);
    m_Notice->Show();
}

void cQtOtherWindows::UnloadAboutBox() {
    if (m_About) SkipFailure([&] { m_About->Close(); });
}

}  // namespace vigrel
