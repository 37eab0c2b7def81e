#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vigrel::report {

enum class eLanguage { English, Swedish, German, Danish, Norwegian, Finnish };
inline constexpr std::size_t kLanguages = 6;

// The numbers are those of the station's text files ("046"); codes are those of pages ("sv").
std::optional<eLanguage> LanguageFromNumber(std::string_view number);
std::optional<eLanguage> LanguageFromCode(std::string_view code);
std::string CodeOf(eLanguage language);

// Everything that a report says. {1}, {2}... are filled in.
enum class eWord {
#define VIGREL_REPORT_WORD(name, ...) name,
#include "vigrel-report/page/word_list.h"
#undef VIGREL_REPORT_WORD
    NumberOfWords
};

// UTF-8.
std::string_view Word(eLanguage language, eWord word);
std::string Filled(std::string_view text, const std::vector<std::string>& values);

}  // namespace vigrel::report
