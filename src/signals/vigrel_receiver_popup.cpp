#include "signals/vigrel_receiver_popup.h"

#include "common/failure.h"
#include "common/numbers.h"

namespace vigrel {

void Vigrel_Receiver_Popup::Load() {
    const std::string object = cSettingReader(m_Services.ini, "General").Text("Object");
    m_Window.SetCaption(m_Services.texts.GetText(TextTitle) + " (" + object + ")");
    m_Services.state.m_PopupFormCount = ToInt16(m_Services.state.m_PopupFormCount + 1);
}

void Vigrel_Receiver_Popup::Resize() {
    constexpr double kTop = 100, kGap = 200;
    const double left = m_Window.PictureLeft(0) + m_Window.PictureWidth(0) + kGap;
    SkipFailure([&] { m_Window.SetLabelTop(kTop); });
    SkipFailure([&] { m_Window.SetLabelLeft(left); });
    // A window narrower than the label's left, or lower than its top, leaves the label as it is.
    SkipFailure([&] { m_Window.SetLabelWidth(m_Window.InnerWidth() - left); });
    SkipFailure([&] { m_Window.SetLabelHeight(m_Window.InnerHeight() - kTop); });
}

void Vigrel_Receiver_Popup::Picture_Alarm_Click() {
    m_Window.Close();
}

void Vigrel_Receiver_Popup::LogClose(eText text) {
    m_Services.log.WriteLog(m_Services.texts.GetText(text) + " " + (m_Alarm ? m_Alarm->SysLogText() : ""));
}

void Vigrel_Receiver_Popup::Unload(const std::function<void()>& selectNext) {
    cReceiverState& state = m_Services.state;
    const bool last = state.m_PopupFormCount < 2;
    if (!m_Services.settings.m_EventSignalUntilNoMorePopupForms || last) state.m_SoundState = SoundSilent;
    if (m_UnloadMode == eCloseReason::Control || m_UnloadMode == eCloseReason::Code) {
        SkipFailure([&] { LogClose(TextPopupClosed); });
        if (m_Services.settings.m_AckEventWhenPopupFormIsClosed) {
            SkipFailure([&] { m_Services.ackAlarm(m_Alarm); });
        }
    } else {
        SkipFailure([&] { LogClose(TextPopupClosedBySystem); });
    }
    SkipFailure(selectNext);
    --state.m_PopupFormCount;
}

}  // namespace vigrel
