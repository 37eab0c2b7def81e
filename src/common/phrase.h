#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace vigrel {

// What is said in English and can be said in other languages: its text, with the places "%1" to "%9".
struct cPattern {
    const char* context;  // among which words the translations have it
    const char* english;
};
// Marks a text for whoever collects what is to be translated (resources/translations/update.sh).
constexpr cPattern Pattern(const char* context, const char* english) {
    return {context, english};
}

// A sentence for people, such as why something failed. Logs and tools tell it in English; a window that
// speaks another language has words of its own for the pattern and for what stands in its places.
class cPhrase {
  public:
    // Says the pattern in a language, in the code page.
    using Words = std::function<std::string(const cPattern& pattern)>;

    // What is the same in every language: a name, a number, what a user typed.
    cPhrase(std::string text) : m_Text(std::move(text)) {}
    cPhrase(const char* text) : m_Text(text) {}
    // The value at an index stands in the place of the number one above. A place without a value stays.
    cPhrase(const cPattern& pattern, std::vector<cPhrase> values = {});

    // Where the operating system has its own words, which logs and tools pass on: those, and the pattern for
    // who speaks another language.
    static cPhrase OfSystem(const cPattern& pattern, std::string text);

    std::string English() const { return Told(nullptr); }
    // Without words it is English.
    std::string Told(const Words& words) const;

    bool operator==(const cPhrase& other) const { return English() == other.English(); }

  private:
    cPattern m_Pattern{};
    std::vector<cPhrase> m_Values;
    std::string m_Text;  // without a pattern, or in place of its English
};

}  // namespace vigrel
