#include "life/naive_sound.h"

#include <utility>

namespace vigrel::testing {

void cNaiveSound::Restart(const cPlan& plan) {
    *this = {};
    m_Plan = plan;
    Open(plan.general.sound);
    m_Told.clear();
}

void cNaiveSound::Open(const std::string& file) {
    if (file.empty() || file == m_File) return;
    Tell("type WaveAudio");
    Tell("Close");
    Cut();
    m_File = file;
    Tell("file " + file);
    Tell("Open");
}

void cNaiveSound::Signal(const cPlan::cCategory& category, int status) {
    if (status != 1 && m_Plan.soundOnlyForActive) return;
    Open(category.sound);
    if (category.signal == 1) m_Told += "beep\n";
    if (category.signal == 2 && m_State != eState::Pause && m_State != eState::RepeatPlays)
        m_State = eState::OnceWanted;
    if (category.signal == 3) {
        m_State = eState::Pause;
        m_Waited = m_Plan.pause;
    }
}

bool cNaiveSound::Tick() {
    if (m_State == eState::Silent && m_Busy) {
        Tell("Stop");
        Cut();
        m_Busy = false;
    }
    if (m_State == eState::Silent || m_State == eState::OncePlays) return true;
    if (!m_Busy) {
        if (m_State != eState::OnceWanted) {
            m_Waited += 500;
            if (m_Waited < m_Plan.pause) return false;
            m_Waited = 0;
        }
        Tell("Prev");
        Cut();
        Tell("notify on");
        m_Tells = true;
        Tell("wait off");
        Tell("Play");
        m_Plays = true;
        m_EndIsNews = false;
        m_Busy = true;
        m_State = m_State == eState::OnceWanted ? eState::OncePlays : eState::RepeatPlays;
    }
    if (m_State != eState::OncePlays && !m_Plays) m_Busy = false;
    return true;
}

void cNaiveSound::Cut() {
    m_EndIsNews = m_EndIsNews || m_Plays;
    m_Plays = false;
}

void cNaiveSound::PlayEnds() {
    Cut();
    EventIsOver();
}

void cNaiveSound::EventIsOver() {
    if (!std::exchange(m_EndIsNews, false) || !m_Tells) return;
    if (m_State == eState::OncePlays) m_State = eState::Silent;
    if (m_State == eState::RepeatPlays) m_State = eState::Pause;
    m_Busy = false;
}

std::string cNaiveSound::Take() {
    return std::exchange(m_Told, {});
}

}  // namespace vigrel::testing
