#include "vigrel-report/page/words.h"

namespace vigrel::report {
namespace {

struct cLanguageName {
    std::string_view number, code;
};
constexpr std::array<cLanguageName, kLanguages> kNames = {
    {{"044", "en"}, {"046", "sv"}, {"049", "de"}, {"045", "da"}, {"047", "nb"}, {"358", "fi"}}};

constexpr std::array<std::array<std::string_view, kLanguages>, static_cast<std::size_t>(eWord::NumberOfWords)>
    kWords = {{
#define VIGREL_REPORT_WORD(name, en, sv, de, da, nb, fi) {en, sv, de, da, nb, fi},
#include "vigrel-report/page/word_list.h"
#undef VIGREL_REPORT_WORD
    }};

}  // namespace

std::optional<eLanguage> LanguageFromNumber(std::string_view number) {
    for (std::size_t i = 0; i < kLanguages; ++i) {
        if (kNames[i].number == number) return static_cast<eLanguage>(i);
    }
    return std::nullopt;
}

std::optional<eLanguage> LanguageFromCode(std::string_view code) {
    for (std::size_t i = 0; i < kLanguages; ++i) {
        if (kNames[i].code == code) return static_cast<eLanguage>(i);
    }
    return std::nullopt;
}

std::string CodeOf(eLanguage language) {
    return std::string(kNames[static_cast<std::size_t>(language)].code);
}

std::string_view Word(eLanguage language, eWord word) {
    return kWords[static_cast<std::size_t>(word)][static_cast<std::size_t>(language)];
}

// A value is not searched again: names can hold braces.
std::string Filled(std::string_view text, const std::vector<std::string>& values) {
    std::string filled;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool place = text[i] == '{' && i + 2 < text.size() && text[i + 2] == '}' &&
                           text[i + 1] >= '1' && text[i + 1] <= '9';
        const std::size_t number = place ? static_cast<std::size_t>(text[i + 1] - '1') : values.size();
        if (number < values.size()) {
            filled += values[number];
            i += 2;
        } else {
            filled += text[i];
        }
    }
    return filled;
}

}  // namespace vigrel::report
