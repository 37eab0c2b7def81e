#include <algorithm>
#include <set>

#include "common/failure.h"
#include "common/numbers.h"
#include "common/text.h"
#include "common/texts.h"
#include "receiver-check/checks.h"

namespace vigrel {
namespace {

constexpr std::size_t kNumbersNamed = 5;

// The numbers of the folder's text files: "044".
std::vector<std::string> Languages(const cInstallation& installation) {
    std::vector<std::string> numbers;
    for (const std::string& name :
         installation.Files().ListFiles(installation.Path(), std::string(kTextFile) + "???")) {
        const std::string number = name.substr(kTextFile.size());
        if (IsNumeric(number)) numbers.push_back(number);
    }
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

std::string Listed(const std::vector<std::string>& names) {
    std::string list;
    for (std::size_t i = 0; i < names.size() && i < kNumbersNamed; ++i) {
        list += (i == 0 ? "" : ", ") + names[i];
    }
    return list + (names.size() > kNumbersNamed
                       ? " and " + std::to_string(names.size() - kNumbersNamed) + " more"
                       : "");
}

// The numbers of the texts that any of the files has.
std::set<std::int32_t> TextsOf(const cInstallation& installation, const std::vector<std::string>& languages) {
    std::set<std::int32_t> ids;
    for (const std::string& language : languages) {
        SkipFailure([&] {
            const std::string path = installation.Path() + std::string(kTextFile) + language;
            for (const std::string& line : SplitLines(installation.Files().ReadFile(path))) {
                if (line.find('=') != std::string::npos) ids.insert(ToInt32(Val(GetField(line, 0, "="))));
            }
        });
    }
    return ids;
}

void CheckTexts(const cInstallation& installation, const std::string& language,
                const std::vector<std::string>& languages, cFindings& findings) {
    const cPlace place{std::string(kTextFile) + language, 0, "", "", ""};
    cTexts texts(installation.Files(), installation.Ini());
    if (const auto failure = CatchFailure([&] { texts.LoadTexts(); })) {
        findings.Error("texts-unreadable", place, failure->what());
        return;
    }
    std::vector<std::string> missing;
    for (const std::int32_t id : TextsOf(installation, languages)) {
        const std::string text = texts.GetText(id);
        if (text.starts_with("*** Invalid Text (") || text.starts_with("*** Missing text (")) {
            missing.push_back(std::to_string(id));
        }
    }
    if (missing.empty()) return;
    findings.Warning("texts-missing", place, "lacks texts that another language has: " + Listed(missing));
}

}  // namespace

void CheckLanguage(const cInstallation& installation, cFindings& findings) {
    const std::string language = installation.Value("General", "Language");
    const std::vector<std::string> languages = Languages(installation);
    const cPlace place = installation.PlaceOf("General", "Language");
    if (languages.empty()) {
        findings.Error("no-texts", {std::string(kTextFile) + "NNN", 0, "", "", ""},
                       "the folder has no text file: the start ends without a word");
    } else if (language.empty()) {
        findings.Remark("language-not-set", place,
                        "the program asks for the language at its start; there are " + Listed(languages));
    } else if (!installation.Files().FileExists(installation.Path() + std::string(kTextFile) + language)) {
        findings.Error("language-missing", place,
                       "there is no file " + std::string(kTextFile) + language + ": the start waits for " +
                           "somebody to choose a language; there are " + Listed(languages));
    } else {
        CheckTexts(installation, language, languages, findings);
    }
}

}  // namespace vigrel
