#include "common/delivered_texts.h"

#include <gtest/gtest.h>

#include "common/app_folder.h"
#include "common/failure.h"
#include "common/text_files.h"
#include "common/texts.h"
#include "support/fake_files.h"

namespace vigrel::testing {
namespace {

const std::string kFile = kFolder + "Vigrel_Texts.046";
constexpr std::string_view kDelivered =
    "0=Svenska\r\nA remark\r\n10011=klar\r\n\r\n10049=larm\r\n10050=sedan\r\n";

TEST(CompleteTexts, AddsWhatIsMissingBehindTheEnd) {
    const cCompletedTexts completed = CompleteTexts("0=Egna\r\n10011=start\r\n", kDelivered);
    EXPECT_EQ(completed.content, "0=Egna\r\n10011=start\r\n10049=larm\r\n10050=sedan\r\n");
    EXPECT_EQ(completed.added, (std::vector<std::string>{"10049", "10050"}));
}

TEST(CompleteTexts, ALastLineWithoutAnEndStaysALine) {
    EXPECT_EQ(CompleteTexts("10011=x\r\n10049=y", kDelivered).content,
              "10011=x\r\n10049=y\r\n10050=sedan\r\n");
    EXPECT_EQ(CompleteTexts("10011=x\n10049=y", kDelivered).content, "10011=x\n10049=y\n10050=sedan\n");
    EXPECT_EQ(CompleteTexts("10011=x\r10049=y", kDelivered).content, "10011=x\r10049=y\r10050=sedan\r");
}

TEST(CompleteTexts, ALastLineOfAnyEndNeedsNoOther) {
    EXPECT_EQ(CompleteTexts("10011=x\n10049=y\n", kDelivered).content, "10011=x\n10049=y\n10050=sedan\n");
    EXPECT_EQ(CompleteTexts("10011=x\r10049=y\r", kDelivered).content, "10011=x\r10049=y\r10050=sedan\r");
}

TEST(CompleteTexts, WhatIsThereStaysInEveryByte) {
    const std::string own = "  10011 = own \r\n10049=\r\n10050=a=b\r\nno entry\r\n99999999999=x";
    const cCompletedTexts completed = CompleteTexts(own, kDelivered);
    EXPECT_EQ(completed.content, own);
    EXPECT_TRUE(completed.added.empty());
}

TEST(CompleteTexts, ANumberWithoutATextIsNoEntry) {
    EXPECT_EQ(CompleteTexts("10011=x\r\n10049\r\n", kDelivered).content,
              "10011=x\r\n10049\r\n10049=larm\r\n10050=sedan\r\n");
}

TEST(CompleteTexts, ALanguagesNameIsNotAdded) {
    EXPECT_EQ(CompleteTexts("", kDelivered).content, "10011=klar\r\n10049=larm\r\n10050=sedan\r\n");
}

TEST(DeliveredTexts, AreEnglishForALanguageOfItsOwn) {
    cDeliveredTexts texts;
    EXPECT_EQ(texts.Of("046"), "");
    texts.Add("044", "english");
    texts.Add("046", "svenska");
    EXPECT_EQ(texts.Of("046"), "svenska");
    EXPECT_EQ(texts.Of("033"), "english");
}

class TextFiles : public ::testing::Test {
  protected:
    TextFiles() {
        files.Put(kFolder + "VigrelReceiver.INI", "[General]\r\nLanguage=046\r\n");
        // With the words of the lines that tell of it.
        delivered.Add("046", std::string(kDelivered) + "11000=added\r\n11001=not added\r\n");
    }
    std::vector<std::string> Complete() {
        texts.LoadTexts();
        return CompleteTextFiles(files, kFolder, delivered, texts);
    }
    cFakeFiles files;
    cIni ini{files, kFolder};
    cDeliveredTexts delivered;
    cTexts texts{files, ini, &delivered};
};

TEST_F(TextFiles, AreCompletedOnceAndToldInALine) {
    files.Put(kFile, "11000=added\r\n10011=mine");
    EXPECT_EQ(Complete(), std::vector<std::string>{"Vigrel_Texts.046: 3 added: 10049, 10050, 11001"});
    EXPECT_EQ(files.ReadFile(kFile),
              "11000=added\r\n10011=mine\r\n10049=larm\r\n10050=sedan\r\n11001=not added\r\n");
    const int calls = files.m_Calls;
    EXPECT_TRUE(CompleteTextFiles(files, kFolder, delivered, texts).empty());
    EXPECT_EQ(files.m_Calls, calls);
}

TEST_F(TextFiles, AreToldByTheirNamesWhateverOrderTheFolderGives) {
    delivered.Add("044", "10049=alarms\r\n");
    for (const bool backwards : {false, true}) {
        files.m_ListsBackwards = backwards;
        files.Put(kFolder + "Vigrel_Texts.044", "10011=x\r\n");
        files.Put(kFile, "11000=added\r\n11001=not added\r\n10011=x\r\n10050=x\r\n");
        EXPECT_EQ(Complete(), (std::vector<std::string>{"Vigrel_Texts.044: 1 added: 10049",
                                                        "Vigrel_Texts.046: 1 added: 10049"}))
            << backwards;
    }
}

TEST_F(TextFiles, OfManyAddedTextsTheFirstTwentyAreNamed) {
    cDeliveredTexts many;
    std::string texts046, named;
    for (int id = 20001; id <= 20021; ++id) texts046 += std::to_string(id) + "=x\r\n";
    for (int id = 20001; id <= 20020; ++id)
        named += std::string(id == 20001 ? "" : ", ") + std::to_string(id);
    many.Add("046", texts046);
    files.Put(kFile, "11000=added\r\n");
    ASSERT_TRUE(texts.LoadTexts());
    EXPECT_EQ(CompleteTextFiles(files, kFolder, many, texts),
              std::vector<std::string>{"Vigrel_Texts.046: 21 added: " + named + "... (+1)"});
    files.Put(kFile, "11000=added\r\n20021=mine\r\n");
    EXPECT_EQ(CompleteTextFiles(files, kFolder, many, texts),
              std::vector<std::string>{"Vigrel_Texts.046: 20 added: " + named});
}

TEST_F(TextFiles, OnlyLanguagesAreCompleted) {
    for (const char* name : {"Vigrel_Texts.eng", "Vigrel_Texts.bak", "Vigrel_Texts.0461"}) {
        files.Put(kFolder + name, "11000=added\r\n");
        EXPECT_TRUE(Complete().empty()) << name;
        EXPECT_EQ(files.ReadFile(kFolder + name), "11000=added\r\n");
    }
}

TEST_F(TextFiles, ThatCannotBeWrittenAreToldAndTheTextsAreThereAllTheSame) {
    files.Put(kFile, "11000=added\r\n10011=mine");
    files.m_DiskFull = true;
    const auto lines = Complete();
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_TRUE(lines[0].starts_with("Vigrel_Texts.046: 3 not added: ")) << lines[0];
    EXPECT_EQ(files.ReadFile(kFile), "11000=added\r\n10011=mine");
    EXPECT_TRUE(texts.LoadTexts());
    EXPECT_EQ(texts.GetText(10011), "mine");
    EXPECT_EQ(texts.GetText(10050), "sedan");
    EXPECT_EQ(texts.GetText(10051), "*** Invalid Text (10051)");
    EXPECT_EQ(texts.Problem(), "");
}

TEST_F(TextFiles, AFileThatCannotBeReadIsStoodForAndLeftAlone) {
    files.Put(kFile, "10011=mine");
    files.SetUnreadable(kFile, true);
    EXPECT_TRUE(Complete().empty());
    EXPECT_TRUE(texts.LoadTexts());
    EXPECT_EQ(texts.GetText(10011), "klar");
    EXPECT_EQ(texts.GetText(0), "*** Invalid Text (0)");
    EXPECT_EQ(texts.Problem(), kFile + ": the file can't be read");
    files.SetUnreadable(kFile, false);
    EXPECT_TRUE(texts.LoadTexts());
    EXPECT_EQ(texts.GetText(10011), "mine");
    EXPECT_EQ(texts.Problem(), "");
}

TEST_F(TextFiles, AMissingFileStaysMissing) {
    EXPECT_TRUE(Complete().empty());
    EXPECT_FALSE(texts.LoadTexts());
}

TEST_F(TextFiles, ALineWithAnImpossibleNumberIsAFailureStill) {
    files.Put(kFile, "99999999999=x\r\n");
    EXPECT_THROW(texts.LoadTexts(), cFailure);
}

}  // namespace
}  // namespace vigrel::testing
