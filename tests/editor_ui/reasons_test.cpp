// What the logic says, such as why a text is refused or a file can't be read, is said in the editor's
// language.

#include "editor_ui/pages/reasons.h"

#include <QPlainTextEdit>
#include <QTableWidget>
#include <QUndoStack>

#include "common/failure.h"
#include "editor_ui/calendar/own_holidays_page.h"
#include "editor_ui/colours/colour_rules_page.h"
#include "editor_ui/marks.h"
#include "editor_ui/page_fixture.h"
#include "editor_ui/records/receivers_page.h"
#include "editor_ui/schedule/schedule_page.h"
#include "editor_ui/window/definitions_window.h"

namespace vigrel::testing {
namespace {

// What of a text stands outside of the marks, and is not figures and signs alone.
std::string Unmarked(const std::string& text) {
    std::string outside;
    int depth = 0;
    for (const char c : text) {
        if (c == '<') ++depth;
        if (depth == 0) outside += c;
        if (c == '>') --depth;
    }
    const bool isWord = std::any_of(outside.begin(), outside.end(), [](char c) { return std::isalpha(c); });
    return isWord ? text : "";
}

// A page whose translator marks all that it is asked for.
class Reasons : public PageTest {
  protected:
    Reasons() { QCoreApplication::installTranslator(&m_Marks); }
    ~Reasons() override {
        QCoreApplication::removeTranslator(&m_Marks);
        EXPECT_EQ(m_Lacking, std::set<std::string>{});
    }
    static void ExpectTold(const std::string& shown, const std::string& reason) {
        EXPECT_NE(shown.find(reason), std::string::npos) << shown;
        EXPECT_EQ(Unmarked(shown), "");
    }

    std::set<std::string> m_Lacking;
    cMarks m_Marks{m_Lacking};
};

TEST_F(Reasons, OfAMistypedTimeAreTold) {
    m_Settings.setValue("Zoom", 1.0);
    cDefinitionsWindow window(m_Services);
    window.show();
    window.NewSchedule();
    QWidget& page = *window.CurrentPage();
    // A period has times only once one is chosen.
    QTest::mouseClick(Find<QWidget>(page, "Picture_TimeSchedule"), Qt::LeftButton, {}, QPoint(30 + 120, 10));
    for (const char* time : {"8:60", "25:30", "", "soon"}) {
        Type(page, "Text_Schedule_Period_Stop", time);
        QTest::keyClick(Find<QLineEdit>(page, "Text_Schedule_Period_Stop"), Qt::Key_Return);
        ExpectTold(LabelOf(page, "Label_Schedule_Problem"), *time == '\0' ? "<The time is missing." : time);
    }
}

TEST_F(Reasons, OfARefusedSettingAreTold) {
    PutSample("Receivers\\Receiver_0007.dat", "receiver_version_5.dat");
    Put("ReceiverTypes.txt", "9;XRT;Radio;Radio.INI\n");
    cReceiversPage page(m_Services);
    page.resize(900, 600);
    page.show();
    for (const char* value : {"soon", "1.5", "4000000000"}) {
        Type(page, "Text_Setting_1", value);
        ExpectTold(LabelOf(page, "Label_Setting_1_Problem"), value);
    }
}

TEST_F(Reasons, OfAWrongColourRuleAreTold) {
    Put("ColourRules.txt", "* | * | * | 0,0,0 | 255,255,255 | 15\r\nnonsense\r\n");
    cColourRulesPage page(m_Services);
    ASSERT_TRUE(page.Open(Path("ColourRules.txt")));
    ExpectTold(LabelOf(page, "Label_Problems"), "<a rule has six fields");
    auto* rules = Find<QTableWidget>(page, "List_Rules");
    const std::pair<int, const char*> wrong[] = {
        {0, ""},    {0, "#P"}, {0, "a|b"},     {0, "\xC4\x80"}, {1, "300"},
        {1, "9-7"}, {2, "x"},  {3, "0,0,0,0"}, {4, "-1,0,0"},   {5, "dark"},
    };
    for (const auto& [column, text] : wrong) {
        rules->item(0, column)->setText(QString::fromUtf8(text));
        ASSERT_FALSE(LabelOf(page, "Label_CellProblem").empty()) << column << " " << text;
        ExpectTold(LabelOf(page, "Label_CellProblem"), "<");
        ExpectTold(rules->item(0, column)->toolTip().toStdString(), "<");
        page.UndoStack()->undo();
    }
}

TEST_F(Reasons, OfAWrongHolidayAreTold) {
    Put("OwnHolidays.txt", "2026-12-24..2026-12-26 | Eve\r\nnonsense\r\n12-24.. | x\r\n");
    cOwnHolidaysPage page(m_Services);
    ASSERT_TRUE(page.Open(Path("OwnHolidays.txt")));
    ExpectTold(LabelOf(page, "Label_Problems"), "<a holiday has two fields");
    ExpectTold(LabelOf(page, "Label_Problems"), "has no last day");
    auto* holidays = Find<QTableWidget>(page, "List_OwnHolidays");
    const std::pair<int, const char*> wrong[] = {
        {0, ""},           {0, "24.12."},   {0, "2026-02-29"}, {0, "1999-12-31"}, {0, "2027-01-01"},
        {1, "2026-12-23"}, {3, "\xC4\x80"}, {3, ""},           {3, "a|b"},
    };
    for (const auto& [column, text] : wrong) {
        holidays->item(0, column)->setText(QString::fromUtf8(text));
        ASSERT_FALSE(LabelOf(page, "Label_CellProblem").empty()) << column << " " << text;
        ExpectTold(LabelOf(page, "Label_CellProblem"), "<");
        ExpectTold(holidays->item(0, column)->toolTip().toStdString(), "<");
        page.UndoStack()->undo();
    }
}

TEST_F(Reasons, OfFilesThatCantBeReadAreTold) {
    PutSample("Receivers\\Receiver_0007.dat", "receiver_version_5.dat");
    PutSample("Receivers\\receiver_0007.dat", "receiver_version_5.dat");
    PutSample("Receivers\\Receiver_0008.dat", "receiver_version_4.dat");
    Put("Receivers\\Receiver_0041.dat", "");
    Put("Receivers\\Receiver_0043.dat", "??");
    Put("Receivers\\Receiver_0044.dat", std::string("\x05\x00\x01", 3));
    Put("ReceiverTypes.txt", "1;A\n-1;A;B\n1;;B\n1;A;\n1;A;B;../x\n1;A;B\n1;A;B\n");
    cReceiversPage page(m_Services);
    const QAbstractItemModel& model = *Find<QAbstractItemView>(page, "List_Definitions")->model();
    int unreadable = 0;
    for (int row = 0; row < model.rowCount(); ++row) {
        const std::string tip = model.index(row, 1).data(Qt::ToolTipRole).toString().toStdString();
        if (tip.empty()) continue;
        ++unreadable;
        ExpectTold(tip, "<");
    }
    EXPECT_GE(unreadable, 3);
    const QString notes = Find<QPlainTextEdit>(page, "Text_Notes")->toPlainText();
    int told = 0;
    for (const QString& line : notes.split('\n')) {
        // What an unknown version is told by are the station's own texts.
        if (line.contains("(16191)")) continue;
        ++told;
        ExpectTold(line.toStdString(), "<");
    }
    EXPECT_GE(told, 8) << notes.toStdString();
}

TEST_F(Reasons, OfADamagedScheduleOrCalendarAreTold) {
    Put("short.sch", "xx");
    Put("flags.sch", std::string(186, 'x'));
    cDefinitionsWindow window(m_Services);
    window.NewSchedule();
    auto& page = dynamic_cast<cSchedulePage&>(*window.CurrentPage());
    for (const char* name : {"short.sch", "flags.sch"}) {
        EXPECT_FALSE(page.Open(Path(name)));
        ExpectTold(Asked().substr(9), name);
    }
}

TEST_F(Reasons, OfAPdfThatCantBeWrittenAreTold) {
    cDefinitionsWindow window(m_Services);
    window.NewCalendar();
    m_Files.m_OnCall = [](std::string_view, std::string_view path) {
        throw cFailure(
            eFailure::PermissionDenied,
            {Pattern("Reasons", "%1: a link that another user made is not followed"), {std::string(path)}});
    };
    m_Prompts.m_Texts = {"C:/App/year.pdf"};
    Find<QAction>(window, "Menu_Pdf")->trigger();
    m_Files.m_OnCall = nullptr;
    const std::string asked = Asked();
    const std::size_t failure = asked.find("failure: ");
    ASSERT_NE(failure, std::string::npos) << asked;
    ExpectTold(asked.substr(failure + 9), "<The file was not saved.\n<C:/App/");
}

// Each pattern's place has its value, with letters of the code page and marks that look like a place.
TEST(ReasonsInGerman, HaveTheirValuesAndLetters) {
    cEditorWords words("049");
    QCoreApplication::installTranslator(&words);
    const cPhrase phrase(Pattern("Reasons", "\"%1\" is no value of the type %2"),
                         {"%2 \xE4", cPhrase(Pattern("Reasons", "currency"))});
    EXPECT_EQ(Told(phrase), QString::fromUtf8("„%2 ä“ ist kein Wert des Typs Währung"));
    EXPECT_EQ(phrase.English(), "\"%2 \xE4\" is no value of the type currency");
    EXPECT_EQ(Told(cFailure(eFailure::Device, "as it is").Description()), "as it is");
    QCoreApplication::removeTranslator(&words);
}

}  // namespace
}  // namespace vigrel::testing
