// What the architecture says of failures and of text, held against the sources.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>

#include "common/text_ids.h"

namespace vigrel::testing {
namespace {

// The files below a folder with a line that fits; tests may name the only ones.
std::set<std::string> FilesWith(const std::string& pattern, const std::string& folder = "src") {
    const std::regex expression(pattern);
    const std::filesystem::path root = std::filesystem::path(VIGREL_PROJECT_DIR) / folder;
    std::set<std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
        const std::string extension = entry.path().extension().string();
        if (extension != ".h" && extension != ".cpp") continue;
        std::ifstream lines(entry.path());
        for (std::string line; std::getline(lines, line);) {
            if (!std::regex_search(line, expression)) continue;
            files.insert(std::filesystem::relative(entry.path(), root).generic_string());
            break;
        }
    }
    return files;
}

bool IsLogic(const std::string& file) {
    const std::string room = file.substr(0, file.find('/'));
    return room != "adapters" && room != "windows" && room != "receiver_ui" && room != "editor_ui" &&
           room != "tool_support";
}

// Two are of threads: what one met is handed to the one that waits for it, and that there is none is a
// failure.
TEST(Failures, AreCaughtInFourPlaces) {
    EXPECT_EQ(FilesWith(R"(\bcatch \()"),
              (std::set<std::string>{"adapters/linux/read_ahead.cpp", "adapters/linux/start_thread.cpp",
                                     "common/failure.h", "windows/application.cpp"}));
}

TEST(Failures, AreOfOneType) {
    EXPECT_EQ(FilesWith(R"(public std::(runtime_error|logic_error|exception))"),
              std::set<std::string>{"common/failure.h"});
}

TEST(Text, IsUnicodeInFewPlacesOfTheLogic) {
    std::set<std::string> logic;
    for (const std::string& file : FilesWith(R"(Utf8|char8_t|char16_t|char32_t)")) {
        if (IsLogic(file)) logic.insert(file);
    }
    EXPECT_EQ(logic, (std::set<std::string>{"common/code_page.cpp", "common/code_page.h",
                                            "common/path_text.cpp", "common/path_text.h",
                                            "common/printable.cpp", "schedule/public_holidays.cpp"}));
}

// A number says nothing of the text, and nobody finds who asks for it.
TEST(Text, IsAskedForByName) {
    for (const char* folder : {"src", "apps", "tools"}) {
        EXPECT_EQ(FilesWith(R"(GetText\([^()]*\b[0-9])", folder), std::set<std::string>()) << folder;
    }
}

TEST(Text, EveryNamedNumberIsAmongThoseThatLanguagesMustHave) {
    std::ifstream file(std::filesystem::path(VIGREL_PROJECT_DIR) / "src/common/text_ids.h");
    const std::string header{std::istreambuf_iterator<char>(file), {}};
    const std::regex named(R"(Text\w+ = (\d+),)");
    std::set<std::string> numbers;
    for (std::sregex_iterator match(header.begin(), header.end(), named), end; match != end; ++match) {
        numbers.insert((*match)[1]);
    }
    std::set<std::string> listed;
    for (const int id : kTextIds) listed.insert(std::to_string(id));
    EXPECT_EQ(numbers, listed);
}

}  // namespace
}  // namespace vigrel::testing
