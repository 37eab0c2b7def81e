#include "signals/tray.h"

#include <limits>
#include <string_view>

#include "common/failure.h"
#include "common/settings.h"

namespace vigrel {
namespace {

// The notice of the product, under its name.
constexpr std::string_view kNotice = "Alarm receiver of the Vigrel suite";
// Kept in every language, so that operators find it wherever they work.
constexpr std::string_view kNewAlarms = "Nya larm: ";
// The tooltip of the start stays for as long, in milliseconds of ticks.
constexpr std::int32_t kTipDelay = 1000;

std::string ToolTipText(std::int16_t notObserved) {
    std::string text(kProductName);
    text.append("\r\n").append(kNotice).append("\r\n").append(kNewAlarms);
    return text + std::to_string(notObserved);
}

}  // namespace

cTray::cTray(const cServices& services) : m_Services(services) {
    m_Services.trayArea.OnFirstClick = [this] { Click(); };
    m_Services.trayArea.OnSecondClick = [this] { Click(); };
    m_Services.trayArea.OnOpen = [this] { Open(); };
}

void cTray::SetUp() {
    if (m_Services.settings.m_ShowInTaskBar) return;
    m_Services.trayArea.SetIcon(cNotificationArea::WindowIcon);
    m_Services.trayArea.SetToolTip(kProductName);
    m_Services.trayArea.SetVisible(true);
}

void cTray::TickTray() {
    if (m_Services.state.m_ListChanged) Recount();
    const std::int16_t icon = NextIcon();
    m_FlashPhase = !m_FlashPhase;
    // Only whether the delay is over matters. The counter rests there: one that grew with every tick would
    // overflow after 24.8 days, and stations run for months.
    if (m_TipDelayCounter <= kTipDelay) m_TipDelayCounter += m_Services.timerPlay.Interval();
    if (m_TipDelayCounter > kTipDelay) UpdateToolTip();
    if (icon == m_TrayIconIndex) return;
    m_Services.trayArea.SetIcon(icon);
    m_TrayIconIndex = icon;
}

// The count rests at 32,767: a station without a limit of events can hold more, and to the operator who reads
// the tooltip that number says all; ending the program there would lose the alarms' signals.
void cTray::Recount() {
    m_NotObservedCount = 0;
    for (const AlarmPtr& alarm : m_Services.alarms) {
        if (alarm->m_Observed == False16 && m_NotObservedCount < std::numeric_limits<std::int16_t>::max()) {
            ++m_NotObservedCount;
        }
    }
    m_Services.list.Redraw();
    m_Services.state.m_ListChanged = false;
}

std::int16_t cTray::NextIcon() const {
    return m_NotObservedCount > 0 && m_FlashPhase ? kFlashIcon : kRestingIcon;
}

void cTray::UpdateToolTip() {
    const std::string text = ToolTipText(m_NotObservedCount);
    if (text != m_Services.trayArea.ToolTip()) m_Services.trayArea.SetToolTip(text);
}

void cTray::Click() {
    if (m_Services.settings.m_EventSignalStopByNotifyClick) m_Services.state.m_SoundState = SoundSilent;
}

void cTray::Open() {
    m_Services.mainWindow.SetState(eWindowState::Normal);
    m_Services.mainWindow.Show();
    // Some desktops bring a window back only after a while, and one that isn't back yet takes no focus.
    SkipFailure([&] { m_Services.mainWindow.SetFocus(); });
}

}  // namespace vigrel
