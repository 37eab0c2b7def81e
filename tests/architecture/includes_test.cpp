#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "architecture/include_rules.h"
#include "architecture/unit_cycles.h"
#include "support/temporary_folder.h"

namespace vigrel::testing {
namespace {

using Complaints = std::vector<std::string>;

TEST(Includes, AreThoseThatTheArchitectureAllows) {
    std::ifstream file(VIGREL_ARCHITECTURE);
    const std::string page{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    const cIncludeRules rules = ReadIncludeRules(page);
    ASSERT_GE(rules.edges.size(), 12u) << "no table in " << VIGREL_ARCHITECTURE;
    EXPECT_EQ(CheckIncludes(cSourceTree(VIGREL_PROJECT_DIR), rules), Complaints{});
}

// A small tree of sources of its own.
class IncludeRules : public ::testing::Test {
  protected:
    // In src, unless the path says otherwise.
    void Put(const std::string& path, const std::string& content) {
        const bool elsewhere = path.starts_with("tests/") || path.starts_with("tools/");
        const std::filesystem::path file = folder.Path() / (elsewhere ? "" : "src") / path;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file) << content;
    }
    cSourceTree Tree() const { return cSourceTree(folder.Path()); }
    Complaints Check() const { return CheckIncludes(Tree(), rules); }

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
    Put("ui/b.h", "#include <vector>\n");
    Put("ui/b.cpp", "#include <QWidget>\n#include \"logic/a.h\"\n");
    Put("ui/deep/c.cpp", "  #  include \"ui/b.h\"\n");
    EXPECT_EQ(Check(), Complaints{});
}

TEST_F(IncludeRules, AForbiddenFolderIsNamed) {
    Put("ui/b.h", "#include <vector>\n");
    Put("ui/b.cpp", "#include <QWidget>\n#include \"logic/a.h\"\n");
    Put("ui/deep/c.cpp", "#include \"ui/b.h\"\n#include \"logic/a.h\"\n");
    Put("logic/a.h", "#include \"ui/b.h\"\n");
    EXPECT_EQ(Check(), (Complaints{"logic/a.h: logic may not include ui",
                                   "ui/deep/c.cpp: ui/deep may not include logic"}));
}

TEST_F(IncludeRules, AHeaderFromOutsideIsNamed) {
    Put("ui/b.h", "#include <vector>\n");
    Put("ui/b.cpp", "#include <QWidget>\n#include \"logic/a.h\"\n#include <unistd.h>\n");
    Put("ui/deep/c.cpp", "#include \"ui/b.h\"\n");
    Put("logic/a.h", "#include <QString>\n#include <string.h>\n");
    EXPECT_EQ(Check(), (Complaints{"logic/a.h: <QString> is not allowed here",
                                   "logic/a.h: <string.h> is not allowed here",
                                   "ui/b.cpp: <unistd.h> is not allowed here"}));
}

TEST_F(IncludeRules, ASingleHeaderCanBeAllowed) {
    rules.outside["logic"] = {"unistd.h"};
    Put("logic/a.h", "#include <unistd.h>\n#include <fcntl.h>\n");
    Put("ui/b.h", "#include <vector>\n");
    Put("ui/b.cpp", "#include <QWidget>\n#include \"logic/a.h\"\n");
    Put("ui/deep/c.cpp", "#include \"ui/b.h\"\n");
    EXPECT_EQ(Check(), (Complaints{"logic/a.h: <fcntl.h> is not allowed here"}));
}

TEST_F(IncludeRules, AnEntryThatNothingUsesIsNamed) {
    Put("logic/a.h", "#include <string>\n");
    Put("ui/b.h", "#include <vector>\n");
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

TEST_F(IncludeRules, ProgramsAndTestsHaveRowsToo) {
    rules = {{{"logic", {}}, {"tests/logic", {"logic"}}, {"tests", {"*"}}, {"tools/tool", {}}}, {}};
    Put("logic/a.h", "#include <string>\n");
    Put("tests/logic/a_test.cpp", "#include \"logic/fixture.h\"\n#include \"logic/a.h\"\n");
    Put("tests/logic/fixture.h", "#include \"tool/t.h\"\n");
    Put("tests/whole/b_test.cpp", "#include \"tool/t.h\"\n");
    Put("tools/tool/t.h", "#include \"logic/a.h\"\n");
    EXPECT_EQ(Check(), (Complaints{"tests/logic/fixture.h: tests/logic may not include tools/tool",
                                   "tools/tool/t.h: tools/tool may not include logic"}));
}

using UnitCycles = IncludeRules;

TEST(Units, IncludeNoneThatIncludesThem) {
    EXPECT_EQ(FindUnitCycles(cSourceTree(VIGREL_PROJECT_DIR)), Complaints{});
}

TEST_F(UnitCycles, AUnitThatReachesItselfIsNamedWithItsPartners) {
    Put("logic/a.h", "#include \"logic/b.h\"\n");
    Put("logic/b.h", "class a;\n");
    Put("logic/b.cpp", "#include \"logic/b.h\"\n#include \"logic/c.h\"\n");
    Put("logic/c.h", "#include \"logic/a.h\"\n#include \"logic/d.h\"\n");
    Put("logic/d.h", "#include <string>\n");
    EXPECT_EQ(FindUnitCycles(Tree()), (Complaints{"logic/a <-> logic/b <-> logic/c"}));
}

TEST_F(UnitCycles, AHeaderAndItsSourceAreOne) {
    Put("logic/a.h", "#include <string>\n");
    Put("logic/a.cpp", "#include \"logic/a.h\"\n");
    EXPECT_EQ(FindUnitCycles(Tree()), Complaints{});
}

}  // namespace
}  // namespace vigrel::testing
