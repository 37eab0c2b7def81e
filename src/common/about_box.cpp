#include "common/about_box.h"

#include "common/settings.h"

namespace vigrel {

std::string AboutText(const cTexts& texts) {
    const std::string paragraph = "\r\n\r\n";
    return texts.GetText(TextTitle) + paragraph + texts.GetText(TextVersion) + " " + kVersion + paragraph +
           texts.GetText(TextDevelopedBy) + " Kelmora AB";
}

cAboutBox::cAboutBox(cTimer& timerUnload) : m_TimerUnload(timerUnload) {
    m_TimerUnload.OnTick = [this] { Timer_Unload_Tick(); };
}

cAboutBox::~cAboutBox() {
    m_TimerUnload.OnTick = nullptr;
}

void cAboutBox::Timer_Unload_Tick() {
    m_Elapsed += m_TimerUnload.Interval();
    if (m_Elapsed <= kShownFor) return;
    m_Elapsed = 0;
    if (OnClose) OnClose();
}

void cAboutBox::Unload() {
    m_TimerUnload.SetEnabled(false);
}

}  // namespace vigrel
