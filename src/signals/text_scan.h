#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "common/text.h"

namespace vigrel {

// One walk from left to right over a template, which is rewritten on the way. The work is that of reading the
// text once, however many brackets it holds.
//
// Positions count in the text as it stands with the replacements made so far: what stands behind the last
// one is neither looked at nor found, and stays as it is.
class cTextScan {
  public:
    cTextScan(std::string_view text, char open, char close);

    bool AtEnd() const { return m_From >= m_Text.size() || m_Out.size() >= kLastPosition; }
    // Whether a bracket opens here that closes before the next one opens.
    bool AtBrackets();
    // What the brackets here enclose.
    std::string_view Inside() { return m_Text.substr(m_From + 1, m_Close.From(m_From) - m_From - 1); }
    // Passes one character, which stays.
    void Keep() { m_Out.push_back(m_Text[m_From++]); }
    // Puts a text, which isn't walked over, in place of the brackets here and what they enclose.
    void Replace(std::string_view replacement);
    // The whole text with its replacements; the walk is over.
    std::string Take();

  private:
    // Finds one character, remembering the last find while the walk is still in front of it.
    class cFinder {
      public:
        cFinder(std::string_view text, char character)
            : m_Text(text), m_Character(character), m_Found(text.find(character)) {}
        std::size_t From(std::size_t offset) {
            if (m_Found < offset) m_Found = m_Text.find(m_Character, offset);
            return m_Found;
        }

      private:
        std::string_view m_Text;
        char m_Character;
        std::size_t m_Found;
    };

    std::string_view m_Text;
    std::size_t m_From = 0;  // what stands in front of it has been moved to m_Out
    std::string m_Out;
    char m_OpenCharacter;
    cFinder m_Open, m_Close;
};

}  // namespace vigrel
