#include "definitions/receiver_types.h"

#include <gtest/gtest.h>

#include "support/fake_files.h"

namespace vigrel::testing {
namespace {

const char* const kPath = "C:\\App\\ReceiverTypes.txt";

class ReceiverTypesFile : public ::testing::Test {
  protected:
    std::vector<cLineProblem> Load(const std::string& content) {
        m_Files.Put(kPath, content);
        return m_Types.Load(m_Files, kPath);
    }
    testing::cFakeFiles m_Files;
    cReceiverTypes m_Types;
};

TEST_F(ReceiverTypesFile, EveryLineIsARow) {
    EXPECT_TRUE(Load("# comment\r\n\r\n1;PRINTER;Alarm printer\r\n 7 ; XRT ; Radio; Radio.INI \n").empty());
    EXPECT_EQ(m_Types.m_ReceiverTypes, (std::vector<cReceiverType>{{1, "Alarm printer", "PRINTER", ""},
                                                                   {7, "Radio", "XRT", "Radio.INI"}}));
    EXPECT_EQ(m_Types.ReceiverTypeCount(), 2);
}

TEST_F(ReceiverTypesFile, AnIdIsFoundAtItsRow) {
    Load("1;PRINTER;Printer\n7;XRT;Radio\n");
    EXPECT_EQ(m_Types.RowOf(7), 1);
    EXPECT_EQ(m_Types.RowOf(8), -1);
    EXPECT_EQ(m_Types.RowOf(-1), -1);
}

TEST_F(ReceiverTypesFile, TheLargestIdIs32767) {
    EXPECT_EQ(
        Load("32767;XRT;Radio\n32768;XRT;Radio\n"),
        (std::vector<cLineProblem>{{2, "the type id \"32768\" is not a whole number from 0 to 32767"}}));
    EXPECT_EQ(m_Types.RowOf(32767), 0);
}

TEST_F(ReceiverTypesFile, AWrongLineIsNamedAndSkipped) {
    const auto problems = Load(
        "1;PRINTER;Printer\n"
        "x;XRT;Radio\n"
        "2;XRT\n"
        "3;;Radio\n"
        "4;XRT;\n"
        "1;MAIL;Mail\n"
        "5;XRT;Radio;..\\Other.INI\n"
        "6;XRT;Radio;a;b\n"
        "40000;XRT;Radio\n"
        "-2;XRT;Radio\n"
        "1.5;XRT;Radio\n"
        "9;XRT;Radio\n"
        "10;XRT;Radio;.hidden\n");
    EXPECT_EQ(problems,
              (std::vector<cLineProblem>{
                  {2, "the type id \"x\" is not a whole number from 0 to 32767"},
                  {3, "a line has three or four fields (id; kind; name; settings file), this one has 2"},
                  {4, "the kind is empty"},
                  {5, "the name is empty"},
                  {6, "the type id 1 stands on an earlier line too"},
                  {7,
                   "the settings file \"..\\Other.INI\" is not the plain name of a file of the application "
                   "folder"},
                  {8, "a line has three or four fields (id; kind; name; settings file), this one has 5"},
                  {9, "the type id \"40000\" is not a whole number from 0 to 32767"},
                  {10, "the type id \"-2\" is not a whole number from 0 to 32767"},
                  {11, "the type id \"1.5\" is not a whole number from 0 to 32767"},
                  {13,
                   "the settings file \".hidden\" is not the plain name of a file of the application "
                   "folder"}}));
    EXPECT_EQ(m_Types.ReceiverTypeCount(), 2);
    EXPECT_EQ(LineProblemPhrase(kReceiverTypesFile, problems[2]),
              "ReceiverTypes.txt, line 4: the kind is empty");
}

TEST_F(ReceiverTypesFile, TheTableHoldsThreeHundredRows) {
    std::string content;
    for (int i = 0; i < 302; ++i) content += std::to_string(i) + ";MAIL;Mail\n";
    const auto problems = Load(content);
    EXPECT_EQ(m_Types.ReceiverTypeCount(), 300);
    ASSERT_EQ(problems.size(), 2u);
    EXPECT_EQ(problems[0], (cLineProblem{301, "the table is full: it has room for 300 types"}));
}

TEST_F(ReceiverTypesFile, AMissingFileGivesAnEmptyTableAndSaysSo) {
    Load("1;PRINTER;Printer\n");
    const auto problems = m_Types.Load(m_Files, "C:\\App\\Other.txt");
    EXPECT_EQ(m_Types.ReceiverTypeCount(), 0);
    ASSERT_EQ(problems.size(), 1u);
    EXPECT_EQ(problems[0].line, 0u);
    EXPECT_EQ(LineProblemPhrase("Other.txt", problems[0]), "Other.txt: " + problems[0].description.English());
}

}  // namespace
}  // namespace vigrel::testing
