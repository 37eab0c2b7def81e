// The exit codes are told alike wherever somebody looks for them.

#include "common/exit_codes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string>

#include "resources_text/doc_pages.h"

namespace vigrel::testing {
namespace {

std::string Packaged(const std::string& name) {
    std::ifstream file(std::string(VIGREL_PACKAGING_DIR) + "/" + name);
    return {std::istreambuf_iterator<char>(file), {}};
}

bool HasLine(const std::string& page, const std::string& line) {
    const auto lines = ReadPage(page);
    return std::find(lines.begin(), lines.end(), line) != lines.end();
}

TEST(ExitCodes, TheManualTellsEachAndItsMeaning) {
    for (const auto& [code, meaning] : kExitCodes) {
        EXPECT_TRUE(HasLine("installer.md", "| " + std::to_string(code) + " | " + meaning + " |")) << code;
    }
}

TEST(ExitCodes, TheInstallersPageTellsEachBeginningWithItsMeaning) {
    for (const auto& [code, meaning] : kExitCodes) {
        const auto lines = ReadPage("install.md");
        const auto tells = [code = code, meaning = meaning](const std::string& line) {
            return line.starts_with("| " + std::string(meaning).substr(0, std::string(meaning).find(','))) &&
                   line.find(" | " + std::to_string(code) + " | ") != std::string::npos;
        };
        EXPECT_EQ(std::count_if(lines.begin(), lines.end(), tells), 1) << code;
    }
}

TEST(ExitCodes, TheManualPageTellsEachAndItsMeaning) {
    const std::string page = Packaged("man/vigrel-receiver.1");
    for (const auto& [code, meaning] : kExitCodes) {
        EXPECT_NE(page.find(".It " + std::to_string(code) + "\n" + meaning + "\n"), std::string::npos)
            << code;
    }
}

// An orderly end in the start, before the station has said that it is ready, counts as a failure otherwise.
TEST(ExitCodes, TheServiceStaysDownAfterARefusalAndAnOrderlyEndAlone) {
    const std::string unit = Packaged("vigrel-receiver.service");
    EXPECT_NE(unit.find("\nRestart=on-failure\n"), std::string::npos);
    EXPECT_NE(unit.find("\nRestartPreventExitStatus=0 " + std::to_string(kExitRefused) + "\n"),
              std::string::npos);
}

}  // namespace
}  // namespace vigrel::testing
