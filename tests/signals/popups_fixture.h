#pragma once

#include <gtest/gtest.h>

#include <string>

#include "signals/popups.h"
#include "support/fake_popups.h"
#include "support/popup_station.h"

namespace vigrel::testing {

// Popups over fake windows, beside a main window that opened first.
class cPopupsTest : public ::testing::Test, protected cPopupStation {
  protected:
    cPopupsTest() { m_List.Add(m_Main); }

    // Opens a popup, a second after what was before. Its number among the popups.
    int Show(const std::string& category, std::int16_t status = StatusActive) {
        m_Clock.AddSeconds(1);
        m_Popups.ShowPopup(Alarm(category, status));
        return ++m_Shown;
    }
    // What the transcript says since the last look, of the steps that begin with a word.
    std::string Steps(const std::string& beginning) {
        std::string steps;
        for (const std::string& line : SplitLines(m_Transcript.Take())) {
            const std::size_t subject = line.find(": ");
            const std::string step = subject == std::string::npos ? line : line.substr(subject + 2);
            if (step.starts_with(beginning)) steps += (steps.empty() ? "" : ", ") + step;
        }
        return steps;
    }

    cFakeWindowList m_List;
    cFakeWindow m_Main;
    cFakePopupMaker m_Maker{m_Transcript, m_List};
    cPopups m_Popups{Services(m_List, m_Maker)};
    int m_Shown = 0;
};

}  // namespace vigrel::testing
