#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/clock.h"

namespace vigrel {

// Throws cFailure (InvalidCall) with a description for the user: the command line can't be followed.
[[noreturn]] void RefuseOption(const std::string& description);

// What a program's command line may hold. Values are in the code page, paths as in common/path_text.h.
struct cOptionTable {
    using Setter = std::function<void(const std::string& value)>;
    std::map<std::string, bool*> flags;
    std::map<std::string, Setter> values;
    Setter path;                          // a word that is no option, and all behind "--"
    std::map<std::string, Setter> paths;  // options whose value is a path
};
// Reads the words of a command line (without the program's name; UTF-8, or whatever bytes a path has) into
// what the table points to. What can't be followed is refused by RefuseOption.
void ReadOptionWords(const std::vector<std::string>& words, const cOptionTable& table);

// "2026-03-15", "2026-03-15 12:30", "2026-03-15 12:30:15".
DateTime DateFromWord(const std::string& option, const std::string& word);
// The first moment that is too late for --to: a day alone and a minute alone are meant as a whole.
DateTime EndFromWord(const std::string& option, const std::string& word);

}  // namespace vigrel
