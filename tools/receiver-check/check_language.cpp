#include <algorithm>
#include <set>

#include "common/failure.h"
#include "common/numbers.h"
#include "common/text.h"
#include "common/text_ids.h"
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

// The texts of a language that the program asks for and the file lacks.
std::vector<std::string> MissingTexts(const cInstallation& installation, const std::string& language) {
    std::set<std::int32_t> there;
    const std::string path = installation.Path() + std::string(kTextFile) + language;
    for (const std::string& line : SplitLines(installation.Files().ReadFile(path))) {
        const std::size_t equals = line.find('=');
        if (equals + 1 < line.size() && equals != std::string::npos) {
            there.insert(ToInt32(Val(GetField(line, 0, "="))));
        }
    }
    std::vector<std::string> missing;
    for (const int id : kTextIds) {
        if (!there.contains(id)) missing.push_back(std::to_string(id));
    }
    return missing;
}

// Of a language that isn't in use the operator sees nothing yet.
void CheckTexts(const cInstallation& installation, const std::string& language, bool inUse,
                cFindings& findings) {
    const cPlace place{std::string(kTextFile) + language, 0, "", "", ""};
    std::vector<std::string> missing;
    const auto failure = CatchFailure([&] { missing = MissingTexts(installation, language); });
    if (failure) {
        findings.Add(inUse ? eSeverity::Error : eSeverity::Remark, "texts-unreadable", place,
                     failure->what());
    } else if (!missing.empty()) {
        findings.Add(inUse ? eSeverity::Warning : eSeverity::Remark, "texts-missing", place,
                     "lacks texts that the program shows: " + Listed(missing) +
                         "; the next start of the station adds them");
    }
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
    }
    for (const std::string& other : languages) {
        CheckTexts(installation, other, other == language, findings);
    }
}

}  // namespace vigrel
