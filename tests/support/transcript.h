#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace vigrel::testing {

// What the fakes of one test were told, in order, one step a line. Tests compare it as one text.
class cTranscript {
  public:
    void Add(std::string_view step) { m_Text += std::string(step) + "\n"; }
    const std::string& Text() const { return m_Text; }
    // The text so far; the transcript starts anew.
    std::string Take() { return std::exchange(m_Text, {}); }

  private:
    std::string m_Text;
};

}  // namespace vigrel::testing
