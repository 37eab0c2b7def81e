#include "common/text_files.h"

#include <algorithm>
#include <string_view>

#include "common/failure.h"
#include "common/file_procedures.h"
#include "common/numbers.h"
#include "common/path_text.h"
#include "common/text_ids.h"

namespace vigrel {
namespace {

std::string Listed(const std::vector<std::string>& numbers) {
    constexpr std::size_t kMostNamed = 20;
    std::string list;
    for (std::size_t i = 0; i < std::min(numbers.size(), kMostNamed); ++i)
        list += (i == 0 ? "" : ", ") + numbers[i];
    if (numbers.size() <= kMostNamed) return list;
    return list + "... (+" + std::to_string(numbers.size() - kMostNamed) + ")";
}

// Empty for a file that lacks nothing.
std::string CompleteFile(cFiles& files, const std::string& path, const std::string& name,
                         std::string_view delivered, const cTexts& texts) {
    const cCompletedTexts completed = CompleteTexts(files.ReadFile(path), delivered);
    if (completed.added.empty()) return {};
    const std::string line = name + ": " + std::to_string(completed.added.size()) + " ";
    const auto failure = CatchFailure([&] { ReplaceFile(files, path, completed.content); });
    if (!failure) return line + texts.GetText(TextTextsAdded) + ": " + Listed(completed.added);
    return line + texts.GetText(TextTextsNotAdded) + ": " + WithPathsInCodePage(failure->what());
}

}  // namespace

std::vector<std::string> CompleteTextFiles(cFiles& files, const std::string& applicationPath,
                                           const cDeliveredTexts& delivered, const cTexts& texts) {
    std::vector<std::string> names = files.ListFiles(applicationPath, std::string(kTextFile) + "???");
    std::sort(names.begin(), names.end());
    std::vector<std::string> lines;
    for (const std::string& name : names) {
        const std::string language = name.substr(kTextFile.size());
        std::string line;
        // What can't be read is told where it is needed.
        if (IsNumeric(language)) {
            SkipFailure([&] {
                line = CompleteFile(files, applicationPath + name, name, delivered.Of(language), texts);
            });
        }
        if (!line.empty()) lines.push_back(line);
    }
    return lines;
}

}  // namespace vigrel
