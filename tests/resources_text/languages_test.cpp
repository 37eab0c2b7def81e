#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "common/code_page.h"
#include "common/numbers.h"
#include "common/text.h"
#include "common/text_ids.h"
#include "common/texts.h"
#include "resources_text/share_files.h"
#include "support/fake_files.h"

namespace vigrel::testing {
namespace {

// A language file, with the upper-cased name by which desktops set to that language call it.
struct cLanguage {
    std::string number, name;
};

class Languages : public ::testing::TestWithParam<cLanguage> {
  protected:
    void SetUp() override {
        m_Files.Put("C:\\App\\VigrelReceiver.INI", "[General]\r\nLanguage=" + GetParam().number + "\r\n");
        m_Files.Put("C:\\App\\" + std::string(kTextFile) + GetParam().number, Content());
        ASSERT_TRUE(m_Texts.LoadTexts());
    }
    static std::string Content() {
        return vigrel::testing::ReadShareFile(std::string(kTextFile) + GetParam().number);
    }
    // Every line with a text, as it stands.
    static std::vector<std::string> Entries() {
        std::vector<std::string> entries = SplitLines(Content());
        std::erase_if(entries, [](const std::string& l) { return l.find('=') == std::string::npos; });
        return entries;
    }
    // The letters that open the entries of one menu, lower-cased.
    std::vector<char> AccessKeys(const std::vector<int>& ids) const {
        std::vector<char> keys;
        for (const int id : ids) keys.push_back(AccessKey(m_Texts.GetText(id)));
        return keys;
    }
    static char AccessKey(const std::string& caption) {
        EXPECT_EQ(std::count(caption.begin(), caption.end(), '&'), 1) << caption;
        const std::string letter = Mid(caption, caption.find('&') + 2, 1);
        EXPECT_TRUE(letter.size() == 1 && ToUpper(letter) != ToLower(letter)) << caption;
        return letter.empty() ? ' ' : ToLower(letter[0]);
    }

    vigrel::testing::cFakeFiles m_Files;
    cIni m_Ini{m_Files, "C:\\App\\"};
    cTexts m_Texts{m_Files, m_Ini};
};

TEST_P(Languages, HasATextForEveryIdOfTheProgram) {
    for (const int id : kTextIds) EXPECT_FALSE(m_Texts.GetText(id).starts_with("*** ")) << id;
}

TEST_P(Languages, HasNoIdThatTheProgramDoesNotUseAndNoneTwice) {
    std::multiset<std::string> ids, known;
    for (const std::string& entry : Entries()) ids.insert(GetField(entry, 0, "="));
    for (const int id : kTextIds) known.insert(std::to_string(id));
    EXPECT_EQ(ids, known);
}

TEST_P(Languages, HasItsNameAtTheVeryStartOfALineForTheLanguageWindow) {
    const auto entries = Entries();
    EXPECT_EQ(std::count_if(entries.begin(), entries.end(), [](auto& e) { return e.starts_with("0="); }), 1);
    EXPECT_EQ(ToUpper(m_Texts.GetText(0)), Utf8ToCodePage(GetParam().name));
}

TEST_P(Languages, EveryLineEndsInCrLf) {
    const std::string content = Content();
    EXPECT_TRUE(content.ends_with("\r\n"));
    EXPECT_EQ(std::count(content.begin(), content.end(), '\n'),
              std::count(content.begin(), content.end(), '\r'));
}

TEST_P(Languages, NoTextBeginsOrEndsWithABlank) {
    for (const int id : kTextIds) EXPECT_EQ(Trim(m_Texts.GetText(id)), m_Texts.GetText(id)) << id;
}

TEST_P(Languages, NoTextHoldsAReplacementForALostCharacter) {
    for (const int id : kTextIds) {
        // The question before the program closes is the only one.
        if (id != 10022) {
            EXPECT_EQ(m_Texts.GetText(id).find('?'), std::string::npos) << id;
        }
    }
}

TEST_P(Languages, AccessKeysOfTheFileMenuAreDistinct) {
    auto keys = AccessKeys({10034, 10019, 10006, 10007});
    keys.push_back('p');  // "... &popupfönster", the entry that has one caption in every language
    EXPECT_EQ(std::set<char>(keys.begin(), keys.end()).size(), keys.size());
}

TEST_P(Languages, AccessKeysOfTheMenuBarAreDistinct) {
    const auto keys = AccessKeys({10004, 10008});
    EXPECT_NE(keys[0], keys[1]);
}

TEST_P(Languages, TheOtherMenusHaveAnAccessKeyEach) {
    EXPECT_EQ(AccessKeys({10009, 401}).size(), 2u);
}

TEST_P(Languages, OnlyMenuCaptionsHoldAnAmpersand) {
    const std::set<int> captions{10004, 10006, 10007, 10008, 10009, 10019, 10034, 401};
    for (const int id : kTextIds) {
        if (captions.contains(id)) continue;
        EXPECT_EQ(m_Texts.GetText(id).find('&'), std::string::npos) << id;
    }
}

TEST_P(Languages, WeekdaysDifferInTheirFirstThreeLetters) {
    std::set<std::string> headings;
    for (int id = 611; id <= 617; ++id) headings.insert(Mid(m_Texts.GetText(id), 1, 3));
    EXPECT_EQ(headings.size(), 7u);
    for (const std::string& heading : headings) EXPECT_EQ(heading.size(), 3u);
}

TEST_P(Languages, StatesHaveThreeNames) {
    EXPECT_EQ(
        std::set<std::string>({m_Texts.GetText(837), m_Texts.GetText(838), m_Texts.GetText(839)}).size(), 3u);
}

TEST_P(Languages, TheTextBeforeADeletedLogOpensTheBracketThatTheLineCloses) {
    const std::string text = m_Texts.GetText(141);
    EXPECT_EQ(std::count(text.begin(), text.end(), '('), 1);
    EXPECT_EQ(std::count(text.begin(), text.end(), ')'), 0);
}

TEST_P(Languages, TheTextThatFollowsASendersNameWithoutABlankBeginsWithPunctuation) {
    EXPECT_EQ(m_Texts.GetText(10029).substr(0, 2), ": ");
}

std::string NameOf(const ::testing::TestParamInfo<cLanguage>& info) {
    return "Vigrel_Texts_" + info.param.number;
}

INSTANTIATE_TEST_SUITE_P(Delivered, Languages,
                         ::testing::Values(cLanguage{"044", "ENGLISH"}, cLanguage{"045", "DANSK"},
                                           cLanguage{"046", "SVENSKA"}, cLanguage{"047", "NORSK BOKMÅL"},
                                           cLanguage{"049", "DEUTSCH"}, cLanguage{"358", "SUOMI"}),
                         NameOf);

}  // namespace
}  // namespace vigrel::testing
