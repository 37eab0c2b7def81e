// The operator's pages, one in each language: they use the words that the station shows, and tell the same.

#include <filesystem>

#include "common/code_page.h"
#include "common/texts.h"
#include "resources_text/default_configuration.h"
#include "resources_text/doc_pages.h"

namespace vigrel::testing {
namespace {

using namespace vigrel::testing;

class OperatorPage : public EveryTemplate {
  protected:
    void SetUp() override {
        EveryTemplate::SetUp();
        m_Files.Put("C:\\App\\Vigrel_Texts." + Language(), ReadShareFile("Vigrel_Texts." + Language()));
        m_Ini.PutIniString("General", "Language", Language());
        ASSERT_TRUE(m_Texts.LoadTexts());
        m_Page = Page(Language());
    }
    // Line breaks are blanks, since a caption can stand across one.
    static std::string Page(const std::string& language) {
        std::string text;
        for (const std::string& line : ReadPage("operator/" + language + ".md")) text += line + "\n";
        return text;
    }
    bool Names(const std::string& utf8) const {
        std::string joined = m_Page;
        std::replace(joined.begin(), joined.end(), '\n', ' ');
        return joined.find(utf8) != std::string::npos;
    }
    // A caption as it is read: without the mark of its access key.
    std::string Caption(std::int32_t id) const {
        std::string caption = m_Texts.GetText(id);
        caption.erase(std::remove(caption.begin(), caption.end(), '&'), caption.end());
        return CodePageToUtf8(caption);
    }
    static std::size_t Count(const std::string& text, const std::string& part) {
        std::size_t count = 0;
        for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
        return count;
    }

    cTexts m_Texts{m_Files, m_Ini};
    std::string m_Page;
};

INSTANTIATE_TEST_SUITE_P(Languages, OperatorPage, ::testing::ValuesIn(kDeliveredLanguages));

TEST_P(OperatorPage, UsesTheCaptionsOfTheMenu) {
    for (const int id : {10004, 10006, 10007, 10019, 10034}) {
        EXPECT_TRUE(Names("*" + Caption(id) + "*")) << Caption(id);
    }
}

TEST_P(OperatorPage, UsesTheNamesOfStatesColumnsAndTheCategoryOfLostSenders) {
    for (const int id : {837, 838, 839}) EXPECT_TRUE(Names(Caption(id))) << Caption(id);
    for (const char* column : {"DateTime", "StateText", "t2", "t0", "t1", "t4", "Observed"}) {
        const std::string caption = CodePageToUtf8(m_Ini.GetIniString(column, "ColumnText", ""));
        EXPECT_TRUE(Names("| " + caption) || Names(", " + caption)) << caption;
    }
    EXPECT_TRUE(Names("*" + CodePageToUtf8(m_Ini.GetIniString("General", "SystemErrorCategory", "")) + "*"));
}

TEST_P(OperatorPage, HasItsPictures) {
    for (const std::string& picture : {"list." + Language() + ".png", "popup." + Language() + ".png"}) {
        EXPECT_TRUE(Names("](" + picture + ")")) << picture;
        EXPECT_TRUE(std::filesystem::exists(std::string(VIGREL_DOCS_DIR) + "/operator/" + picture))
            << picture;
    }
}

TEST_P(OperatorPage, TellsAsMuchAsTheEnglishOne) {
    const std::string english = Page("044");
    for (const std::string part : {"\n## ", "\n| ", "\n- ", "\n1. ", "\n6. ", "**"}) {
        EXPECT_EQ(Count(m_Page, part), Count(english, part)) << part;
    }
}

}  // namespace
}  // namespace vigrel::testing
