#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace vigrel {

// The texts that the program brings along, as the contents of text files (docs/formats/text-file.md).
class cDeliveredTexts {
  public:
    // The number of a language has three digits.
    void Add(const std::string& language, std::string content) { m_Contents[language] = std::move(content); }
    // The texts of a language; of one that the program doesn't bring along the English ones. Empty when there
    // are none at all.
    std::string_view Of(const std::string& language) const;

  private:
    std::map<std::string, std::string> m_Contents;
};

// The number of a line's text: the one at the beginning; unlike elsewhere, a blank behind its first digit
// ends it. Throws cFailure (Overflow) for one beyond 32 bits.
std::int32_t TextIdOf(const std::string& line);

// A text file with what it lacks of the delivered texts behind its end. What it has stays, whatever it says;
// a language's name is nobody's but its own.
struct cCompletedTexts {
    std::string content;
    std::vector<std::string> added;  // numbers
};
cCompletedTexts CompleteTexts(std::string content, std::string_view delivered);

}  // namespace vigrel
