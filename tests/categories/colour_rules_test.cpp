#include "categories/colour_rules.h"

#include <gtest/gtest.h>

#include "common/failure.h"
#include "support/fake_files.h"

namespace vigrel::testing {
namespace {

const char* const kPath = "C:\\App\\ColourRules.txt";

class ColourRules : public ::testing::Test {
  protected:
    std::vector<cLineProblem> Load(const std::string& content) {
        m_Files.Put(kPath, content);
        return m_Rules.Load(m_Files, kPath);
    }
    static cColourRule Rule() {
        cColourRule rule;
        rule.m_TagFilter = "P*";
        rule.m_CategoryFilter = "5;7-9";
        rule.m_AreaFilter = "*";
        rule.m_ForeColor = "255,255,255";
        rule.m_BackColor = "10,20,30";
        rule.m_ZebraFade = 15;
        return rule;
    }
    static std::string Refusal(const cColourRule& rule) {
        const auto failure = CatchFailure([&] { MakeUserColor(rule); });
        return failure ? failure->what() : "";
    }

    testing::cFakeFiles m_Files;
    cColourRules m_Rules;
};

TEST_F(ColourRules, ALineIsARule) {
    EXPECT_TRUE(Load("P* | 5;7-9 | * | 255,255,255 | 10,20,30 | 15\r\n").empty());
    EXPECT_EQ(m_Rules.m_Rules, std::vector<cColourRule>{Rule()});
}

TEST_F(ColourRules, ARuleAtWorkHasFiltersColoursAndTheTextOfItsAreas) {
    const cUserColor color = MakeUserColor(Rule());
    EXPECT_TRUE(color.IsMatching("Pump", 5, 0));
    EXPECT_TRUE(color.IsMatching("Pump", 8, 999));
    EXPECT_FALSE(color.IsMatching("Pump", 6, 0));
    EXPECT_FALSE(color.IsMatching("Fan", 5, 0));
    EXPECT_EQ(color.m_AreaFilter, "*");
    EXPECT_EQ(color.m_ForeColor, 0xFFFFFF);
    EXPECT_EQ(color.m_BackColor, 10 + 20 * 256 + 30 * 65536);
    EXPECT_EQ(color.m_BackColorFade, 5 * 256 + 15 * 65536);
    EXPECT_EQ(color.m_BackColorFlash, 0);
}

TEST_F(ColourRules, ASingleItemNeedsNoSeparator) {
    cColourRule rule = Rule();
    rule.m_CategoryFilter = "5";
    rule.m_AreaFilter = "3;";
    EXPECT_TRUE(MakeUserColor(rule).IsMatching("Pump", 5, 3));
    EXPECT_FALSE(MakeUserColor(rule).IsMatching("Pump", 5, 4));
}

TEST_F(ColourRules, ASeparatorAtTheEndEndsTheLastItemAlone) {
    cColourRule rule = Rule();
    for (const char* filter : {"5;;6;", "5;;", ";", ";5"}) {
        rule.m_CategoryFilter = filter;
        EXPECT_EQ(Refusal(rule), "categories: \"\" is not a number from 0 to 255") << filter;
    }
    rule.m_CategoryFilter = "5; 6 ; ";
    EXPECT_TRUE(MakeUserColor(rule).IsMatching("Pump", 6, 0));
}

TEST_F(ColourRules, OfSeveralFaultsTheOneFurthestLeftIsTold) {
    std::vector<std::string> fields{"", "a", "b", "c", "d", "e"};
    const std::vector<std::string> right{"P", "5", "*", "0,0,0", "0,0,0", "0"};
    const std::vector<std::string> told{"tag", "categories", "areas", "text colour", "background", "fade"};
    for (std::size_t first = 0; first < fields.size(); ++first) {
        std::string line = fields[0];
        for (std::size_t i = 1; i < fields.size(); ++i) line += " | " + fields[i];
        const auto problems = Load(line + "\n");
        ASSERT_EQ(problems.size(), 1u) << line;
        EXPECT_TRUE(problems[0].description.English().starts_with(told[first] + ":")) << line;
        fields[first] = right[first];
    }
}

TEST_F(ColourRules, TheFirstRuleThatMatchesCounts) {
    Load("P* | 5 | * | 0,0,0 | 1,1,1 | 0\n* | * | * | 0,0,0 | 1,1,1 | 0\n");
    std::vector<cUserColor> colors;
    for (const cColourRule& rule : m_Rules.m_Rules) colors.push_back(MakeUserColor(rule));
    EXPECT_EQ(FirstMatch(colors, "Pump", 5, 0), 0u);
    EXPECT_EQ(FirstMatch(colors, "Pump", 6, 0), 1u);
    EXPECT_EQ(FirstMatch(colors, "Pump", 256, 0), std::nullopt);
}

TEST_F(ColourRules, AWrongLineIsNamedAndSkipped) {
    const auto problems = Load(
        "# rules\n"
        "\n"
        "P* | 5 | * | 255,255,255 | 10,20,30\n"
        " | 5 | * | 255,255,255 | 10,20,30 | 0\n"
        "P | 300 | * | 255,255,255 | 10,20,30 | 0\n"
        "P | 5 | 9-3 | 255,255,255 | 10,20,30 | 0\n"
        "P | 5;;6 | * | 255,255,255 | 10,20,30 | 0\n"
        "P | 5 | * | 255,256,255 | 10,20,30 | 0\n"
        "P | 5 | * | 255,255,255 | red | 0\n"
        "P | 5 | * | 255,255,255 | 10,20,30 | -1\n"
        "P | 5 | * | 255,255,255 | 10,20,30 | 0\n");
    EXPECT_EQ(problems,
              (std::vector<cLineProblem>{
                  {3,
                   "a rule has six fields (tag | categories | areas | text colour | background | fade), this "
                   "line has 5"},
                  {4, "tag: it is empty; \"*\" stands for every tag"},
                  {5, "categories: \"300\" is not a number from 0 to 255"},
                  {6, "areas: the range \"9-3\" ends before it begins"},
                  {7, "categories: \"\" is not a number from 0 to 255"},
                  {8, "text colour: \"256\" is not a number from 0 to 255"},
                  {9, "background: \"red\" is not red,green,blue"},
                  {10, "fade: \"-1\" is not a number from 0 to 255"}}));
    ASSERT_EQ(m_Rules.m_Rules.size(), 1u);
    EXPECT_EQ(m_Rules.m_Rules[0].m_TagFilter, "P");
}

TEST_F(ColourRules, EveryNumberIsTakenUpToItsLast) {
    EXPECT_TRUE(Load("P | 0;255;000255 | 0;999;000999 | 0,255,255 | 255,0,0 | 0\n"
                     "P | 0-255;7-7 | 0-999 | 0,0,0 | 0,0,0 | 255\n")
                    .empty());
    for (const char* line : {"P | 256 | * | 0,0,0 | 0,0,0 | 0", "P | 0-256 | * | 0,0,0 | 0,0,0 | 0",
                             "P | * | 1000 | 0,0,0 | 0,0,0 | 0", "P | * | * | 0,0,256 | 0,0,0 | 0",
                             "P | * | * | 0,0,0 | 256,0,0 | 0", "P | * | * | 0,0,0 | 0,0,0 | 256",
                             "P | 0000255 | * | 0,0,0 | 0,0,0 | 0", "P | * | * | 0,0,0,0 | 0,0,0 | 0",
                             "P | * | * | 0,0,0 | 0,0,0 | 0 | 0", "P | 1- | * | 0,0,0 | 0,0,0 | 0"}) {
        EXPECT_EQ(Load(line).size(), 1u) << line;
    }
}

TEST_F(ColourRules, FieldsThatCantBeWrittenAreRefused) {
    cColourRule rule = Rule();
    rule.m_TagFilter = "a|b";
    EXPECT_EQ(Refusal(rule), "tag: it must not hold \"|\"");
    rule.m_TagFilter = "#1";
    EXPECT_EQ(Refusal(rule), "tag: it must not begin with \"#\"; write \"?\" for it");
    rule = Rule();
    rule.m_ZebraFade = 256;
    EXPECT_EQ(Refusal(rule), "fade: it is not a number from 0 to 255");
    rule = Rule();
    rule.m_AreaFilter = "";
    EXPECT_EQ(Refusal(rule), "areas: \"\" is not a number from 0 to 999");
    m_Rules.m_Rules = {rule};
    m_Files.Put(kPath, "old");
    EXPECT_THROW(m_Rules.Save(m_Files, kPath), cFailure);
    EXPECT_EQ(m_Files.ReadFile(kPath), "old");
}

TEST_F(ColourRules, AFadeIsTakenFromNothingToTheWholeAndIsNothingUnlessGiven) {
    cColourRule rule = Rule();
    rule.m_ZebraFade = cColourRule().m_ZebraFade;
    EXPECT_EQ(MakeUserColor(rule).m_BackColorFade, MakeUserColor(rule).m_BackColor);
    rule.m_ZebraFade = 255;
    EXPECT_EQ(MakeUserColor(rule).m_BackColorFade, 0);
}

TEST_F(ColourRules, AMissingFileIsAnEmptyListAndAnUnreadableOneSaysSo) {
    EXPECT_TRUE(m_Rules.Load(m_Files, kPath).empty());
    EXPECT_TRUE(m_Rules.m_Rules.empty());
    m_Files.Put(kPath, "x");
    m_Files.SetUnreadable(kPath, true);
    const auto problems = m_Rules.Load(m_Files, kPath);
    ASSERT_EQ(problems.size(), 1u);
    EXPECT_EQ(problems[0].line, 0u);
}

TEST_F(ColourRules, SavingKeepsCommentsAndLinesThatWereNotUnderstood) {
    const std::string content =
        "# rules\r\n\r\nA | 1 | 1 | 0,0,0 | 1,1,1 | 0\r\nnonsense\r\nB | 2 | 2 | 0,0,0 | 1,1,1 | 0\r\n# "
        "end\r\n";
    EXPECT_EQ(Load(content).size(), 1u);
    m_Rules.Save(m_Files, kPath);
    EXPECT_EQ(m_Files.ReadFile(kPath), content);
}

TEST_F(ColourRules, ARemovedRuleLeavesTheLinesInFrontOfIt) {
    Load("# a\r\nA | 1 | 1 | 0,0,0 | 1,1,1 | 0\r\n# b\r\nB | 2 | 2 | 0,0,0 | 1,1,1 | 0\r\n# end\r\n");
    m_Rules.Remove(0);
    m_Rules.Save(m_Files, kPath);
    EXPECT_EQ(m_Files.ReadFile(kPath), "# a\r\n# b\r\nB | 2 | 2 | 0,0,0 | 1,1,1 | 0\r\n# end\r\n");
    m_Rules.Remove(0);
    m_Rules.Save(m_Files, kPath);
    EXPECT_EQ(m_Files.ReadFile(kPath), "# a\r\n# b\r\n# end\r\n");
}

TEST_F(ColourRules, AFailedSaveLeavesTheOldFile) {
    Load("A | 1 | 1 | 0,0,0 | 1,1,1 | 0\r\n");
    const std::string old = m_Files.ReadFile(kPath);
    m_Rules.m_Rules[0].m_TagFilter = "B";
    for (int call = 0; call < 3; ++call) {
        m_Files.m_Calls = 0;
        m_Files.m_FailCall = call;
        EXPECT_THROW(m_Rules.Save(m_Files, kPath), cFailure) << call;
        m_Files.m_FailCall = -1;
        m_Files.Crash();
        EXPECT_EQ(m_Files.ReadFile(kPath), old) << call;
    }
}

}  // namespace
}  // namespace vigrel::testing
