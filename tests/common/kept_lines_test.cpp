#include "common/kept_lines.h"

#include <gtest/gtest.h>

#include "support/fake_files.h"

namespace vigrel::testing {
namespace {

struct cWord {
    std::string m_Word;
    std::vector<std::string> m_LinesBefore;
};

// A list of words, of which none may hold a blank.
struct cWords {
    std::vector<cLineProblem> Parse(std::string_view text) {
        const auto wordOf = [](const std::string& line) {
            if (line.find(' ') != std::string::npos) throw cFailure(eFailure::InvalidCall, "two words");
            return cWord{line, {}};
        };
        return ParseKeptLines(text, wordOf, m_Words, m_LinesAfter);
    }
    std::string Text() const {
        return TextOfKeptLines(
            m_Words, [](const cWord& word) { return word.m_Word; }, m_LinesAfter);
    }
    std::vector<cWord> m_Words;
    std::vector<std::string> m_LinesAfter;
};

TEST(KeptLines, ACommentHasAHashInFrontOrNothingAtAll) {
    for (const char* line : {"", " \t", "# a", " \t# a", "#"}) EXPECT_TRUE(IsCommentLine(line)) << line;
    for (const char* line : {"a", " a # b", "; a"}) EXPECT_FALSE(IsCommentLine(line)) << line;
}

TEST(KeptLines, EveryLineStaysInFrontOfTheEntryThatFollowsIt) {
    const std::string text = "# head\r\na\r\n\r\nnot one\r\n# of b\r\nb\r\nc\r\n# tail\r\n";
    cWords words;
    EXPECT_EQ(words.Parse(text), (std::vector<cLineProblem>{{4, "two words"}}));
    ASSERT_EQ(words.m_Words.size(), 3U);
    EXPECT_EQ(words.m_Words[1].m_Word, "b");
    EXPECT_EQ(words.m_Words[1].m_LinesBefore, (std::vector<std::string>{"", "not one", "# of b"}));
    EXPECT_EQ(words.Text(), text);
}

TEST(KeptLines, AnotherTextReplacesAll) {
    cWords words;
    words.Parse("a\n# of a\n");
    EXPECT_TRUE(words.Parse("b\n").empty());
    EXPECT_EQ(words.Text(), "b\r\n");
}

TEST(KeptLines, TheLinesInFrontOfARemovedEntryGoToWhatFollows) {
    cWords words;
    words.Parse("# 1\na\n# 2\nb\n# 3\n");
    RemoveKeptEntry(0, words.m_Words, words.m_LinesAfter);
    EXPECT_EQ(words.Text(), "# 1\r\n# 2\r\nb\r\n# 3\r\n");
    RemoveKeptEntry(0, words.m_Words, words.m_LinesAfter);
    EXPECT_EQ(words.Text(), "# 1\r\n# 2\r\n# 3\r\n");
}

TEST(KeptLines, AMissingFileHasNoLinesAndOneThatCannotBeReadIsToldOf) {
    const std::string path = "C:\\App\\Words.txt";
    cFakeFiles files;
    cWords words;
    words.Parse("old\n");
    EXPECT_TRUE(LoadLines(files, path, words).empty());
    EXPECT_EQ(words.Text(), "");
    files.Put(path, "a\r\nb c\r\n");
    EXPECT_EQ(LoadLines(files, path, words), (std::vector<cLineProblem>{{2, "two words"}}));
    EXPECT_EQ(words.Text(), "a\r\nb c\r\n");
    files.SetUnreadable(path, true);
    const auto problems = LoadLines(files, path, words);
    ASSERT_EQ(problems.size(), 1U);
    EXPECT_EQ(problems[0].line, 0U);
    EXPECT_NE(problems[0].description.English().find(path), std::string::npos);
    EXPECT_EQ(words.Text(), "");
}

TEST(LineProblem, IsToldWithTheFileAndWithTheLineWhereOneIsMeant) {
    EXPECT_EQ(LineProblemPhrase("Types.txt", {3, "the name is empty"}).English(),
              "Types.txt, line 3: the name is empty");
    EXPECT_EQ(LineProblemPhrase("Types.txt", {0, "no permission"}).English(), "Types.txt: no permission");
}

}  // namespace
}  // namespace vigrel::testing
