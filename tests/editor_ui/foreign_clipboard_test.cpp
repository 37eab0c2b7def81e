// What other programs put on the clipboard: a cell of a spreadsheet has a line break at its end, two cells a
// tab between them. A field shows one line, and stores what it shows.

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QMimeData>
#include <QTableWidget>

#include "editor_ui/editor_bench.h"
#include "editor_ui/records/profiles_page.h"
#include "editor_ui/records/receivers_page.h"
#include "support/samples.h"

namespace vigrel::testing {
namespace {

class ForeignClipboard : public ::testing::Test, protected cEditorBench {
  protected:
    ForeignClipboard() {
        m_Files.Put("/app/Receivers/Receiver_0007.dat", Sample("receiver_version_5.dat"));
        m_Files.Put("/app/Profiles/Profile_0012.dat", Sample("profile_version_5.dat"));
        m_Files.Put("/app/ReceiverTypes.txt", "7;MAIL;Mail;Mail.INI\r\n");
        m_Files.Put(
            "/app/Mail.INI",
            "[ReceiverTypeSettings]\r\nSetting0=Address\r\nSetting1=Port\r\nSetting1Type=Integer16\r\n");
    }
    ~ForeignClipboard() override { QGuiApplication::clipboard()->clear(); }

    QWidget& Page() { return *m_Window->CurrentPage(); }
    static void PasteInto(QLineEdit& field, const QString& text) {
        QGuiApplication::clipboard()->setText(text);
        field.selectAll();
        field.paste();
    }
    void Paste(const char* field, const QString& text) { PasteInto(Find<QLineEdit>(Page(), field), text); }
    // Into a cell of a table, as a user does.
    void PasteInCell(const char* list, int row, int column, const QString& text) {
        auto& table = Find<QTableWidget>(Page(), list);
        table.setCurrentCell(row, column);
        table.editItem(table.item(row, column));
        auto* cell = table.findChild<QLineEdit*>();
        ASSERT_NE(cell, nullptr);
        PasteInto(*cell, text);
        QTest::keyClick(cell, Qt::Key_Return);
        QCoreApplication::processEvents();
    }
    const cReceiver& Receiver() { return m_Station.Receivers().At(0); }
    const cProfile& Profile() { return m_Station.Profiles().At(0); }
};

TEST_F(ForeignClipboard, GivesAFieldTheLineThatItShows) {
    m_Window->ShowReceivers();
    Paste("Text_ReceiverName", "Pump house\r\n");
    EXPECT_EQ(Receiver().m_ReceiverName, "Pump house");
    Paste("Text_ReceiverName", "\tPump\thouse\r\n2\n\n");
    EXPECT_EQ(Receiver().m_ReceiverName, "Pump house 2");
    Paste("Text_ParallellNumbers", QString::fromUtf8("11\xE2\x80\xA8"
                                                     "22"));
    EXPECT_EQ(Receiver().m_ParallellNumbers, "11 22");
}

// An alarm would never match it, and nothing of that is to be seen.
TEST_F(ForeignClipboard, GivesAConditionNoLineBreak) {
    m_Window->ShowProfiles();
    Paste("Text_Condition_0", "Fire\n");
    EXPECT_EQ(Profile().GetCondition(0), "Fire");
    Paste("Text_ExternalTagName", "\nB1\n");
    EXPECT_EQ(Profile().m_ExternalTagName, "B1");
}

TEST_F(ForeignClipboard, IsPastedWhereTheCursorStands) {
    m_Window->ShowReceivers();
    auto& name = Find<QLineEdit>(Page(), "Text_ReceiverName");
    PasteInto(name, "Hall");
    name.setCursorPosition(2);
    QGuiApplication::clipboard()->setText("x\ny");
    name.paste();
    EXPECT_EQ(Receiver().m_ReceiverName, "Hax yll");
    EXPECT_EQ(name.cursorPosition(), 5);
}

TEST_F(ForeignClipboard, GivesASettingTheLineThatItShows) {
    m_Window->ShowReceivers();
    auto& type = Find<QComboBox>(Page(), "Combo_ReceiverType");
    emit type.activated(type.findText("Mail"));
    Paste("Text_Setting_0", "10.0.0.1\n");
    EXPECT_EQ(Receiver().GetSetting(0).Text(), "10.0.0.1");
    Paste("Text_Setting_1", "25\r\n");
    EXPECT_EQ(Receiver().GetSetting(1).Text(), "25");
    EXPECT_EQ(Find<QLineEdit>(Page(), "Text_Setting_1").text(), "25");
}

// A text for a file may have several lines, of which one field can't show all.
TEST_F(ForeignClipboard, LeavesTheLinesOfAStoredText) {
    m_Window->ShowProfiles();
    cProfile stored(m_Station.Services());
    stored.CopyFrom(Profile());
    stored.m_ExternalFileText = "one\r\ntwo";
    ASSERT_TRUE(stored.SaveToDisk());
    m_Window->ShowReceivers();
    m_Window->ShowProfiles();
    ASSERT_EQ(m_Station.Profiles().Count(), 2u);
    dynamic_cast<cDefinitionPage&>(Page()).Choose(1);
    auto& text = Find<QLineEdit>(Page(), "Text_ExternalFileText");
    QTest::keyClick(&text, Qt::Key_End);
    QTest::keyClicks(&text, "!");
    EXPECT_EQ(m_Station.Profiles().At(1).m_ExternalFileText, "one\r\ntwo!");
}

TEST_F(ForeignClipboard, GivesATimeThatIsRead) {
    cSchedulePage& page = NewSchedule();
    Drag(Find<QWidget>(page, "Picture_TimeSchedule"), {At(0, 600)});
    PasteInto(Find<QLineEdit>(page, "Text_Schedule_Period_Start"), "8:00\r\n");
    page.FinishInput();
    EXPECT_EQ(Find<QLineEdit>(page, "Text_Schedule_Period_Start").text(), "08:00");
    EXPECT_EQ(Periods(page.Schedule(), 0), "480-960");
}

TEST_F(ForeignClipboard, GivesACellOfATableOneLine) {
    m_Window->ShowOwnHolidays();
    Choose(Page(), "Action_Add");
    PasteInCell("List_OwnHolidays", 0, 3, "Summer\r\nbreak\r\n");
    EXPECT_EQ(Find<QTableWidget>(Page(), "List_OwnHolidays").item(0, 3)->text(), "Summer break");
    m_Window->ShowColourRules();
    Choose(Page(), "Action_Add");
    PasteInCell("List_Rules", 0, 0, "B1\tB2\n");
    EXPECT_EQ(Find<QTableWidget>(Page(), "List_Rules").item(0, 0)->text(), "B1 B2");
    EXPECT_TRUE(m_Window->CurrentPage()->Save());
    EXPECT_EQ(m_Prompts.m_Asked, "");
}

// A second line would stand in the station's configuration as an entry of its own.
TEST_F(ForeignClipboard, GivesADayTypeANameOfOneLine) {
    cSchedulePage& page = NewSchedule();
    Find<QCheckBox>(page, "Check_TimeSchedule_UseCalendar").click();
    auto& list = Find<QListWidget>(page, "List_DayTypes");
    list.item(7)->setCheckState(Qt::Checked);
    Drag(Find<QWidget>(page, "Picture_TimeSchedule"), {At(7, 600)});
    m_Prompts.m_Texts = {"Night\n8=shift"};
    Choose(page, "Menu_TimeSchedulePopup_Rename");
    EXPECT_EQ(m_Services.m_DayTypeNames.Name(7), "Night 8=shift");
    EXPECT_EQ(m_Services.m_DayTypeNames.OwnName(8), "");
}

TEST_F(ForeignClipboard, IsSearchedForByTheLineThatTheFieldShows) {
    m_Window->ShowReceivers();
    const QString name = ToQString(Receiver().m_ReceiverName);
    Paste("Text_Search", name + "\r\n");
    EXPECT_EQ(Find<QAbstractItemView>(Page(), "List_Definitions").model()->rowCount(), 1);
}

// A picture, or the data of another program, is no text.
TEST_F(ForeignClipboard, WithoutATextChangesNothing) {
    m_Window->ShowReceivers();
    const std::string before = Receiver().m_ReceiverName;
    auto* data = new QMimeData;
    data->setImageData(QImage(4, 4, QImage::Format_RGB32));
    data->setData("application/x-other", "abc");
    QGuiApplication::clipboard()->setMimeData(data);
    auto& name = Find<QLineEdit>(Page(), "Text_ReceiverName");
    name.setCursorPosition(0);
    name.paste();
    EXPECT_EQ(Receiver().m_ReceiverName, before);
    cSchedulePage& page = NewSchedule();
    Drag(Find<QWidget>(page, "Picture_TimeSchedule"), {At(0, 600)});
    Choose(page, "Menu_TimeSchedulePopup_Paste");
    EXPECT_FALSE(page.IsDirty());
}

}  // namespace
}  // namespace vigrel::testing
