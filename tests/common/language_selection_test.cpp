#include "common/language_selection.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "common/texts.h"
#include "support/fake_files.h"
#include "support/fake_locale.h"

namespace vigrel::testing {
namespace {

class LanguageSelection : public ::testing::Test {
  protected:
    LanguageSelection() { m_Files.PutFolder("C:\\App\\"); }
    void Put(const std::string& extension, std::string_view content) {
        m_Files.Put("C:\\App\\Vigrel_Texts." + extension, content);
    }
    // "046 svenska, 044 English", the selected one with a star.
    std::string Loaded() {
        m_Selection.Load();
        std::string text;
        for (std::size_t i = 0; i < m_Selection.Languages().size(); ++i) {
            const auto& language = m_Selection.Languages()[i];
            text += (i > 0 ? ", " : "") + std::to_string(language.number) + " " + language.name;
            if (static_cast<int>(i) == m_Selection.Selected()) text += "*";
        }
        return text;
    }
    std::string Setting(std::string_view key) { return m_Ini.GetIniString("General", key, "(none)"); }

    testing::cFakeFiles m_Files;
    testing::cFakeLocale m_Locale;
    cIni m_Ini{m_Files, "C:\\App\\"};
    cLanguageSelection m_Selection{m_Files, m_Ini, m_Locale};
};

TEST_F(LanguageSelection, ListsTheLanguagesOfTheApplicationFolder) {
    Put("044", "0=English\r\n10000=Alarm Receiver\r\n");
    Put("049", "; a heading\r\n10000=x\r\n0=Deutsch\r\n");
    EXPECT_EQ(Loaded(), "44 English, 49 Deutsch");
}

// A file system lists a folder as it likes.
class cBackwardFiles : public testing::cFakeFiles {
  public:
    std::vector<std::string> ListFiles(std::string_view folder, std::string_view mask) const override {
        std::vector<std::string> names = cFakeFiles::ListFiles(folder, mask);
        std::reverse(names.begin(), names.end());
        return names;
    }
};

TEST_F(LanguageSelection, TheLanguagesStandInTheOrderOfTheirNumbersHoweverTheFolderIsListed) {
    cBackwardFiles files;
    files.PutFolder("C:\\App\\");
    for (const char* name : {"Vigrel_Texts.049", "VIGREL_TEXTS.046", "vigrel_texts.044"}) {
        files.Put("C:\\App\\" + std::string(name), "0=" + std::string(name) + "\r\n");
    }
    cIni ini{files, "C:\\App\\"};
    cLanguageSelection selection{files, ini, m_Locale};
    selection.Load();
    std::string numbers;
    for (const auto& language : selection.Languages()) numbers += std::to_string(language.number) + " ";
    EXPECT_EQ(numbers, "44 46 49 ");
}

TEST_F(LanguageSelection, AnExtensionThatIsNoNumberIsNoLanguage) {
    Put("eng", "0=English\r\n");
    Put("bak", "0=Old\r\n");
    Put("046", "0=svenska\r\n");
    EXPECT_EQ(Loaded(), "46 svenska*");
}

TEST_F(LanguageSelection, AnExtensionOfAnotherLengthIsNoLanguage) {
    Put("0460", "0=svenska\r\n");
    EXPECT_EQ(Loaded(), "");
}

TEST_F(LanguageSelection, TheUsersLanguageIsFoundByItsEnglishOrNativeNameInAnyCase) {
    Put("046", "0=SVENSKA\r\n");
    EXPECT_EQ(Loaded(), "46 SVENSKA*");
    Put("046", "0=swedish\r\n");
    EXPECT_EQ(Loaded(), "46 swedish*");
}

TEST_F(LanguageSelection, CaseFollowsTheCodePage) {
    m_Locale.m_NativeLanguageName =
        "fran\xE7"
        "ais";
    Put("033",
        "0=FRAN\xC7"
        "AIS\r\n");
    EXPECT_EQ(Loaded(),
              "33 FRAN\xC7"
              "AIS*");
}

TEST_F(LanguageSelection, OfSeveralMatchesTheLastStaysSelected) {
    Put("046", "0=svenska\r\n");
    Put("047", "0=norsk\r\n");
    Put("358", "0=Swedish\r\n");
    EXPECT_EQ(Loaded(), "46 svenska, 47 norsk, 358 Swedish*");
}

TEST_F(LanguageSelection, WithoutAMatchNothingIsSelected) {
    Put("044", "0=English\r\n");
    EXPECT_EQ(Loaded(), "44 English");
    EXPECT_EQ(m_Selection.Selected(), -1);
}

TEST_F(LanguageSelection, AFileWithoutANameIsNotListed) {
    Put("044", "10000=Alarm Receiver\r\n");
    EXPECT_EQ(Loaded(), "");
}

TEST_F(LanguageSelection, AnEmptyNameIsPassedOverForTheNextOne) {
    Put("044", "0=\r\n10=x\r\n0=English\r\n0=Other\r\n");
    EXPECT_EQ(Loaded(), "44 English");
}

TEST_F(LanguageSelection, TheNameMustBeginItsLine) {
    Put("044", " 0=blank\r\n00=zeros\r\n10=0=ten\r\n");
    EXPECT_EQ(Loaded(), "");
}

TEST_F(LanguageSelection, ANameIsTakenAsItStands) {
    Put("044", "0= English=UK \r\n");
    EXPECT_EQ(Loaded(), "44  English=UK ");
}

TEST_F(LanguageSelection, AnUnreadableFileIsPassedOver) {
    Put("044", "0=English\r\n");
    Put("046", "0=svenska\r\n");
    m_Files.SetUnreadable("C:\\App\\Vigrel_Texts.044", true);
    EXPECT_EQ(Loaded(), "46 svenska*");
}

TEST_F(LanguageSelection, ANumberTooLargeLeavesTheOneBefore) {
    Put("046", "0=svenska\r\n");
    Put("9e9", "0=too large\r\n");
    EXPECT_EQ(Loaded(), "46 svenska*, 46 too large");
}

TEST_F(LanguageSelection, LoadingAgainStartsAfresh) {
    Put("046", "0=svenska\r\n");
    Loaded();
    EXPECT_EQ(Loaded(), "46 svenska*");
}

TEST_F(LanguageSelection, TheNumberIsWrittenWithThreeDigits) {
    Put("046", "0=svenska\r\n");
    m_Selection.Load();
    m_Selection.Confirm();
    EXPECT_EQ(Setting("Language"), "046");
}

TEST_F(LanguageSelection, WhatIsWrittenIsWhatTheTextsAreLoadedBy) {
    Put("046", "0=svenska\r\n10000=Larmmottagare\r\n");
    cTexts texts(m_Files, m_Ini);
    EXPECT_FALSE(texts.LoadTexts());
    m_Selection.Load();
    m_Selection.Confirm();
    EXPECT_TRUE(texts.LoadTexts());
    EXPECT_EQ(texts.GetText(10000), "Larmmottagare");
}

TEST_F(LanguageSelection, TheOperatorsChoiceCounts) {
    Put("044", "0=English\r\n");
    Put("046", "0=svenska\r\n");
    m_Selection.Load();
    m_Selection.Select(0);
    m_Selection.Confirm();
    EXPECT_EQ(Setting("Language"), "044");
}

TEST_F(LanguageSelection, TheCountryIsWrittenOnce) {
    Put("046", "0=svenska\r\n");
    m_Selection.Load();
    m_Selection.Confirm();
    EXPECT_EQ(Setting("CountryFilter"), "Sweden");
    m_Locale.m_EnglishCountryName = "Finland";
    m_Selection.Load();
    m_Selection.Confirm();
    EXPECT_EQ(Setting("CountryFilter"), "Sweden");
}

TEST_F(LanguageSelection, ACountryOfBlanksIsReplaced) {
    m_Files.Put("C:\\App\\VigrelReceiver.INI", "[General]\r\nCountryFilter=\"  \"\r\n");
    Put("046", "0=svenska\r\n");
    m_Selection.Load();
    m_Selection.Confirm();
    EXPECT_EQ(Setting("CountryFilter"), "Sweden");
}

TEST_F(LanguageSelection, WithoutSelectionNothingIsWritten) {
    Put("044", "0=English\r\n");
    m_Selection.Load();
    m_Selection.Confirm();
    EXPECT_EQ(Setting("Language"), "(none)");
    EXPECT_EQ(Setting("CountryFilter"), "(none)");
    EXPECT_FALSE(m_Files.FileExists("C:\\App\\VigrelReceiver.INI"));
}

TEST_F(LanguageSelection, AChoiceBehindTheListWritesNothing) {
    Put("044", "0=English\r\n");
    m_Selection.Load();
    m_Selection.Select(1);
    m_Selection.Confirm();
    EXPECT_EQ(Setting("Language"), "(none)");
    EXPECT_EQ(Setting("CountryFilter"), "(none)");
    m_Selection.Select(0);
    m_Selection.Confirm();
    EXPECT_EQ(Setting("Language"), "044");
}

TEST_F(LanguageSelection, AnEmptyListLeavesNothingSelected) {
    EXPECT_EQ(Loaded(), "");
    m_Selection.Confirm();
    EXPECT_EQ(Setting("Language"), "(none)");
}

}  // namespace
}  // namespace vigrel::testing
