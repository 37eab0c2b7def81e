#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "architecture/include_rules.h"
#include "support/temporary_folder.h"

namespace vigrel {
namespace {

using testing::CheckIncludes;
using testing::cIncludeRules;
using testing::ReadIncludeRules;

using Complaints = std::vector<std::string>;

TEST(Includes, AreThoseThatTheArchitectureAllows) {
    std::ifstream file(VIGREL_ARCHITECTURE);
    const std::string page{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    const cIncludeRules rules = ReadIncludeRules(page);
    ASSERT_GE(rules.edges.size(), 12u) << "no table in " << VIGREL_ARCHITECTURE;
    EXPECT_EQ(CheckIncludes(VIGREL_SOURCE_DIR, rules), Complaints{});
}

// A small tree of sources of its own.
class IncludeRules : public ::testing::Test {
  protected:
    void Put(const std::string& path, const std::string& content) {
        const std::filesystem::path file = folder.Path() / path;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file) << content;
    }
    Complaints Check() const { return CheckIncludes(folder.Path(), rules); }

    testing::cTemporaryFolder folder;
    cIncludeRules rules{{{"logic", {}}, {"ui", {"logic"}}, {"ui/deep", {"ui"}}}, {{"ui", {"Qt"}}}};
};

TEST_F(IncludeRules, TablesAreReadBetweenTheirMarks) {
    const cIncludeRules read = ReadIncludeRules(
        "| not | this |\n<!-- edges:begin -->\n| from | to |\n|---|---|\n| a | |\n| b/c | a d |\n"
        "<!-- edges:end -->\n<!-- outside:begin -->\n| from | to |\n|---|---|\n| b/c | Qt xcb/xcb.h |\n"
        "<!-- outside:end -->\n| nor | this |\n");
    EXPECT_EQ(read.edges, (decltype(read.edges){{"a", {}}, {"b/c", {"a", "d"}}}));
    EXPECT_EQ(read.outside, (decltype(read.outside){{"b/c", {"Qt", "xcb/xcb.h"}}}));
}

TEST_F(IncludeRules, WhatIsAllowedAndUsedPasses) {
    Put("logic/a.h", "#include <string>\n#include <cstdint>\n");
    Put("logic/a.cpp", "#include \"logic/a.h\"\n");
    Put("ui/b.cpp", "#include <QWidget>\n#include \"logic/a.h\"\n");
    Put("ui/deep/c.cpp", "  #  include \"ui/b.h\"\n");
    EXPECT_EQ(Check(), Complaints{});
}

TEST_F(IncludeRules, AForbiddenFolderIsNamed) {
    Put("ui/b.cpp", "#include <QWidget>\n#include \"logic/a.h\"\n");
    Put("ui/deep/c.cpp", "#include \"ui/b.h\"\n#include \"logic/a.h\"\n");
    Put("logic/a.h", "#include \"ui/b.h\"\n");
    EXPECT_EQ(Check(), (Complaints{"logic/a.h: logic may not include ui",
                                   "ui/deep/c.cpp: ui/deep may not include logic"}));
}

TEST_F(IncludeRules, AHeaderFromOutsideIsNamed) {
    Put("ui/b.cpp", "#include <QWidget>\n#include \"logic/a.h\"\n#include <unistd.h>\n");
    Put("ui/deep/c.cpp", "#include \"ui/b.h\"\n");
    Put("logic/a.h", "#include <QString>\n#include <string.h>\n");
    EXPECT_EQ(Check(), (Complaints{"logic/a.h: logic may not include <QString>",
                                   "logic/a.h: logic may not include <string.h>",
                                   "ui/b.cpp: ui may not include <unistd.h>"}));
}

TEST_F(IncludeRules, ASingleHeaderCanBeAllowed) {
    rules.outside["logic"] = {"unistd.h"};
    Put("logic/a.h", "#include <unistd.h>\n#include <fcntl.h>\n");
    Put("ui/b.cpp", "#include <QWidget>\n#include \"logic/a.h\"\n");
    Put("ui/deep/c.cpp", "#include \"ui/b.h\"\n");
    EXPECT_EQ(Check(), (Complaints{"logic/a.h: logic may not include <fcntl.h>"}));
}

TEST_F(IncludeRules, AnEntryThatNothingUsesIsNamed) {
    Put("logic/a.h", "#include <string>\n");
    Put("ui/deep/c.cpp", "#include \"ui/b.h\"\n");
    EXPECT_EQ(Check(), (Complaints{"nothing uses ui -> logic", "nothing uses ui -> Qt"}));
}

TEST_F(IncludeRules, AFolderWithoutARowIsNamed) {
    rules = {{{"logic", {}}}, {}};
    Put("logic/a.h", "#include \"new/b.h\"\n#include \"a.h\"\n");
    Put("new/b.h", "#include <string>\n");
    EXPECT_EQ(Check(), (Complaints{"logic/a.h: \"new/b.h\" lies in no folder of the table",
                                   "logic/a.h: \"a.h\" lies in no folder of the table",
                                   "new/b.h: its folder has no row"}));
}

}  // namespace
}  // namespace vigrel
