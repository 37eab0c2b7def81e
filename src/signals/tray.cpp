#include "signals/tray.h"

#include <algorithm>
#include <limits>
#include <string>

namespace vigrel {
namespace {

constexpr const char* kTitle = "Vigrel Alarm Receiver";
constexpr const char* kNotice = "Alarm receiver of the Vigrel suite";
constexpr std::int16_t kFlashIcon = 1;
constexpr std::int16_t kRestIcon = 2;
constexpr std::int32_t kTipDelay = 1000;  // milliseconds

}  // namespace

cTray::cTray(const cServices& services) : m_Services(services) {
    m_Services.trayArea.OnFirstClick = [this] { Click(); };
    m_Services.trayArea.OnSecondClick = [this] { Click(); };
    m_Services.trayArea.OnOpen = [this] { Open(); };
}

void cTray::SetUp() {
    if (m_Services.settings.m_ShowInTaskBar) return;
    m_Services.trayArea.SetIcon(cNotificationArea::WindowIcon);
    m_Services.trayArea.SetToolTip(kTitle);
    m_Services.trayArea.SetVisible(true);
}

void cTray::TickTray() {
    if (m_Services.state.m_ListChanged) Recount();
    const std::int16_t icon = m_NotObservedCount > 0 && m_FlashPhase ? kFlashIcon : kRestIcon;
    m_FlashPhase = !m_FlashPhase;
    // Past its mark the counter says all that it ever will; left growing it would overflow after 24.8 days.
    if (m_TipDelayCounter <= kTipDelay) m_TipDelayCounter += m_Services.timerPlay.Interval();
    if (m_TipDelayCounter > kTipDelay) UpdateToolTip();
    if (icon == m_TrayIconIndex) return;
    m_Services.trayArea.SetIcon(icon);
    m_TrayIconIndex = icon;
}

void cTray::Recount() {
    const auto count = std::count_if(m_Services.alarms.begin(), m_Services.alarms.end(),
                                     [](const AlarmPtr& alarm) { return alarm->m_Observed == False16; });
    // A flood beyond 16 bits must not stop the station; the operator reads "very many" either way.
    m_NotObservedCount =
        static_cast<std::int16_t>(std::min<std::ptrdiff_t>(count, std::numeric_limits<std::int16_t>::max()));
    m_Services.list.Redraw();
    m_Services.state.m_ListChanged = false;
}

void cTray::UpdateToolTip() {
    const std::string tip =
        std::string(kTitle) + "\r\n" + kNotice + "\r\nNya larm: " + std::to_string(m_NotObservedCount);
    if (tip != m_Services.trayArea.ToolTip()) m_Services.trayArea.SetToolTip(tip);
}

void cTray::Click() {
    if (m_Services.settings.m_EventSignalStopByNotifyClick) m_Services.state.m_SoundState = 0;
}

void cTray::Open() {
    m_Services.mainWindow.SetState(eWindowState::Normal);
    m_Services.mainWindow.Show();
    m_Services.mainWindow.SetFocus();
}

}  // namespace vigrel
