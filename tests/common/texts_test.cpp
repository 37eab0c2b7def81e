#include "common/texts.h"

#include <gtest/gtest.h>

#include "common/app_folder.h"
#include "common/failure.h"
#include "support/fake_files.h"

namespace vigrel::testing {
namespace {

// A station whose language is 046, with that text file.
struct cStation {
    explicit cStation(std::string_view content, std::string_view language = "046") {
        files.Put(kFolder + "VigrelReceiver.INI", "[General]\r\nLanguage=" + std::string(language) + "\r\n");
        files.Put(kFolder + "Vigrel_Texts.046", content);
    }
    std::string Loaded(std::int32_t id) {
        EXPECT_TRUE(texts.LoadTexts());
        return texts.GetText(id);
    }

    cFakeFiles files;
    cIni ini{files, kFolder};
    cTexts texts{files, ini};
};

TEST(GetText, GivesTheTextOfAnId) {
    cStation station("10000=Vigrel\r\n10004=&File\r\n");
    EXPECT_EQ(station.Loaded(10000), "Vigrel");
    EXPECT_EQ(station.Loaded(10004), "&File");
}

TEST(GetText, ATextBeginsBehindTheFirstEqualsSignAndIsTakenAsItStands) {
    EXPECT_EQ(cStation("10032=a=b\r\n").Loaded(10032), "a=b");
    EXPECT_EQ(cStation("7=  x\\n \t \r\n").Loaded(7), "  x\\n \t ");
}

TEST(GetText, AnEmptyTextIsMissing) {
    EXPECT_EQ(cStation("10032=\r\n").Loaded(10032), "*** Missing text (10032)");
}

TEST(GetText, AnUnknownIdIsInvalid) {
    EXPECT_EQ(cStation("1=a\r\n").Loaded(99999), "*** Invalid Text (99999)");
    EXPECT_EQ(cStation("1=a\r\n").Loaded(-7), "*** Invalid Text (-7)");
}

TEST(GetText, WithoutALanguageEveryIdIsInvalid) {
    const cStation station("1=a\r\n");
    EXPECT_EQ(station.texts.GetText(1), "*** Invalid Text (1)");
}

TEST(GetText, OfARepeatedIdTheFirstCounts) {
    EXPECT_EQ(cStation("5=first\r\n5=second\r\n").Loaded(5), "first");
}

TEST(LoadTexts, LinesWithoutAnEqualsSignAreIgnored) {
    cStation station("\r\nHeading\r\n; comment\r\n3=c\r\n");
    EXPECT_EQ(station.Loaded(3), "c");
    EXPECT_EQ(station.Loaded(0), "*** Invalid Text (0)");
}

TEST(LoadTexts, IdsAreReadAsNumbersFromTheBeginning) {
    EXPECT_EQ(cStation("  12 x=a\r\n").Loaded(12), "a");
    EXPECT_EQ(cStation("  12 3=a\r\n").Loaded(12), "a");
    EXPECT_EQ(cStation("2.5=a\r\n").Loaded(2), "a");
    EXPECT_EQ(cStation("; note=1\r\n").Loaded(0), "1");
    EXPECT_EQ(cStation("=bare\r\n").Loaded(0), "bare");
}

TEST(LoadTexts, ATabEndsANumberAsABlankDoes) {
    cStation station("12\t9=tab\r\n13 9=blank\r\n\t 14\t=around\r\n");
    EXPECT_EQ(station.Loaded(12), "tab");
    EXPECT_EQ(station.Loaded(13), "blank");
    EXPECT_EQ(station.Loaded(14), "around");
}

TEST(LoadTexts, SixtyFourAndSixtyFiveEntriesAreAllRead) {
    for (const int count : {64, 65, 1000}) {
        std::string content;
        for (int i = 1; i <= count; ++i) content += std::to_string(i) + "=text " + std::to_string(i) + "\r\n";
        cStation station(content);
        for (int i = 1; i <= count; ++i) EXPECT_EQ(station.Loaded(i), "text " + std::to_string(i));
    }
}

TEST(LoadTexts, NoLanguageOrNoFileIsFalse) {
    EXPECT_FALSE(cStation("1=a\r\n", "").texts.LoadTexts());
    EXPECT_FALSE(cStation("1=a\r\n", "49").texts.LoadTexts());
    EXPECT_FALSE(cStation("1=a\r\n", "46").texts.LoadTexts());
}

TEST(LoadTexts, ReadsAnyExtensionThatTheSettingNames) {
    cStation station("", "eng");
    station.files.Put(kFolder + "Vigrel_Texts.eng", "1=one\r\n");
    EXPECT_EQ(station.Loaded(1), "one");
}

TEST(LoadTexts, ASecondLoadReplacesTheFirst) {
    cStation station("1=a\r\n2=b\r\n");
    EXPECT_EQ(station.Loaded(2), "b");
    station.files.Put(kFolder + "Vigrel_Texts.046", "1=long text\r\n");
    EXPECT_EQ(station.Loaded(1), "long text");
    EXPECT_EQ(station.texts.GetText(2), "*** Invalid Text (2)");
}

TEST(LoadTexts, AReadFailureReachesTheCaller) {
    cStation station("1=a\r\n");
    station.files.SetUnreadable(kFolder + "Vigrel_Texts.046", true);
    EXPECT_THROW(station.texts.LoadTexts(), cFailure);
}

TEST(LoadTexts, AnIdBeyond32BitsIsAnOverflowThatNamesFileAndLine) {
    cStation station("1=a\r\n\r\n99999999999=x\r\n");
    const auto failure = CatchFailure([&] { station.texts.LoadTexts(); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->Number(), eFailure::Overflow);
    EXPECT_STREQ(failure->what(),
                 "C:\\App\\Vigrel_Texts.046, line 3: the number 99999999999 does not fit 32 bits");
}

}  // namespace
}  // namespace vigrel::testing
