#include "tool_support/options.h"

#include "common/code_page.h"
#include "common/date_text.h"
#include "common/failure.h"
#include "common/path_text.h"
#include "common/text.h"

namespace vigrel {
namespace {

// A word with characters that the code page lacks can't be a text of the system.
std::string ToCodePage(const std::string& word) {
    std::string text = Utf8ToCodePage(word);
    if (CodePageToUtf8(text) != word)
        RefuseOption("\"" + text + "\" has characters outside the code page 1252");
    return text;
}

// An empty name comes from a variable of the shell that was never set, and is no wish for the default.
std::string PathIn(const std::string& word, const std::string& refusal) {
    if (word.empty()) RefuseOption(refusal);
    return PathText(word);
}

}  // namespace

void RefuseOption(const std::string& description) {
    throw cFailure(eFailure::InvalidCall, description);
}

void ReadOptionWords(const std::vector<std::string>& words, const cOptionTable& table) {
    bool onlyPaths = false;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (onlyPaths || !word.starts_with("-") || word == "-") {
            table.path(PathIn(word, "the name of a file or folder is empty"));
        } else if (word == "--") {
            onlyPaths = true;
        } else if (const auto flag = table.flags.find(word); flag != table.flags.end()) {
            *flag->second = true;
        } else if (const auto value = table.values.find(word); value != table.values.end()) {
            if (++i >= words.size()) RefuseOption(word + " needs a value");
            value->second(ToCodePage(words[i]));
        } else if (const auto path = table.paths.find(word); path != table.paths.end()) {
            if (++i >= words.size()) RefuseOption(word + " needs a value");
            path->second(PathIn(words[i], word + " needs a value"));
        } else {
            RefuseOption("the option " + Utf8ToCodePage(word) + " is not known");
        }
    }
}

DateTime DateFromWord(const std::string& option, const std::string& word) {
    const auto date = ParseDateTimeText(word);
    if (!date)
        RefuseOption(option + ": \"" + word +
                     "\" is no date; write it like 2026-03-15 or \"2026-03-15 12:30\"");
    return *date;
}

DateTime EndFromWord(const std::string& option, const std::string& word) {
    const DateTime date = DateFromWord(option, word);
    const std::size_t length = Trim(word).size();
    if (length <= 10) return date + 1;
    return date + (length <= 16 ? 60.0 : 1.0) / 86400;
}

}  // namespace vigrel
