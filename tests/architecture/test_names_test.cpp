// CONTRIBUTING.md's rule for the names of tests, held against the tests.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>

namespace vigrel::testing {
namespace {

// What a test file has against the rule, one a line.
std::string Problems(const std::string& content) {
    static const std::regex suite(R"(\bTEST(?:_F|_P)?\((\w+),)");
    static const std::regex odd("c[A-Z].*|.*Test");
    std::string problems;
    for (std::sregex_iterator match(content.begin(), content.end(), suite), end; match != end; ++match) {
        const std::string name = (*match)[1];
        if (!std::regex_match(name, odd) || name.ends_with("DeathTest")) continue;
        problems += name + "\n";
    }
    if (content.find("\nnamespace vigrel {") != std::string::npos) problems += "namespace vigrel\n";
    return problems;
}

TEST(TestNames, FollowTheRule) {
    const std::filesystem::path root = std::filesystem::path(VIGREL_PROJECT_DIR) / "tests";
    int files = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
        const std::string path = entry.path().string();
        if (!path.ends_with("_test.cpp") || path.ends_with("test_names_test.cpp")) continue;
        std::ifstream file(path);
        EXPECT_EQ(Problems({std::istreambuf_iterator<char>(file), {}}), "") << path;
        ++files;
    }
    EXPECT_GT(files, 100);
}

TEST(TestNames, ThatBreakTheRuleAreFound) {
    EXPECT_EQ(Problems("TEST_F(cLight, X) {\nTEST(LightTest, X) {\nTEST_P(Light, X)"), "cLight\nLightTest\n");
    EXPECT_EQ(Problems("TEST(ApplicationDeathTest, X)\nnamespace vigrel::testing {\n"), "");
    EXPECT_EQ(Problems("\nnamespace vigrel {\n"), "namespace vigrel\n");
}

}  // namespace
}  // namespace vigrel::testing
