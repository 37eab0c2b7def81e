// Names and files come from elsewhere and can be of any length: the window stays on its screen all the same,
// and everything in it can be reached.

#include <QComboBox>
#include <QMenu>
#include <QPushButton>
#include <QTableWidget>

#include "definitions/receiver.h"
#include "editor_ui/editor_bench.h"
#include "editor_ui/records/definition_page.h"
#include "support/samples.h"

namespace vigrel::testing {
namespace {

constexpr QSize kRoom(1000, 700);

class LongTexts : public ::testing::Test, protected cEditorBench {
  protected:
    LongTexts() {
        m_Files.Put("/app/ReceiverTypes.txt", "7;MAIL;Mail;Mail.INI\r\n");
        m_Files.Put("/app/Mail.INI", "[ReceiverTypeSettings]\r\nSetting0=Port\r\nSetting0Type=Integer16\r\n");
        m_Files.PutFolder("/app/Receivers/");
        m_Window->resize(kRoom);
    }
    QWidget& Page() { return *m_Window->CurrentPage(); }
    QString Entry(const char* name) { return Find<QAction>(*m_Window, name).text(); }
    void AddReceiver(const std::string& name) {
        cReceiver receiver(m_Station.Services());
        receiver.m_ReceiverName = name;
        receiver.SetReceiverTypeId(7);
        ASSERT_TRUE(receiver.SaveToDisk());
    }
    // The window as large as its layout makes it.
    QSize Size() {
        QCoreApplication::processEvents();
        return m_Window->size();
    }
    static std::string Lines(int count) {
        std::string lines;
        for (int i = 1; i <= count; ++i) lines += "2026-01-01;no line of these files\r\n";
        return lines;
    }
};

TEST_F(LongTexts, OfManyLinesThatWereNotUnderstoodTheFirstAndTheLastAreTold) {
    for (const char* file : {"/app/OwnHolidays.txt", "/app/ColourRules.txt"}) m_Files.Put(file, Lines(300));
    m_Window->ShowOwnHolidays();
    const QString told = Find<QLabel>(Page(), "Label_Problems").text();
    EXPECT_TRUE(told.contains("OwnHolidays.txt, line 1:")) << told.toStdString();
    EXPECT_TRUE(told.contains("OwnHolidays.txt, line 300:")) << told.toStdString();
    EXPECT_LT(told.count('\n'), 10);
    EXPECT_EQ(Size(), kRoom);
    m_Window->ShowColourRules();
    EXPECT_EQ(Size(), kRoom);
    NewCalendar();
    EXPECT_EQ(Size(), kRoom);
}

TEST_F(LongTexts, ThatAreNoValueAreToldInAFewLines) {
    AddReceiver("Mail");
    m_Window->ShowReceivers();
    Find<QLineEdit>(Page(), "Text_Setting_0").insert(QString("7 ").repeated(20000));
    EXPECT_LT(Find<QLabel>(Page(), "Label_Setting_0_Problem").text().size(), 1000);
    m_Window->ShowColourRules();
    Choose(Page(), "Action_Add");
    Find<QTableWidget>(Page(), "List_Rules").item(0, 3)->setText(QString("7 ").repeated(20000));
    EXPECT_EQ(Size(), kRoom);
}

TEST_F(LongTexts, InAQuestionAndInAnEntryAreTheEndsOfAName) {
    AddReceiver(std::string(30000, 'A') + std::string(30000, 'Z'));
    m_Window->ShowReceivers();
    m_Prompts.m_YesNoAnswers = {true};
    Choose(*m_Window, "Action_Delete");
    EXPECT_LT(m_Prompts.m_Asked.size(), 200) << m_Prompts.m_Asked.size();
    EXPECT_TRUE(m_Prompts.m_Asked.contains("\"AAA")) << m_Prompts.m_Asked.right(200).toStdString();
    EXPECT_TRUE(m_Prompts.m_Asked.contains("ZZZ\"")) << m_Prompts.m_Asked.right(200).toStdString();
    EXPECT_LT(Entry("Menu_Undo").size(), 200);
    Choose(*m_Window, "Menu_Undo");
    EXPECT_LT(Entry("Menu_Redo").size(), 200);
    EXPECT_EQ(m_Station.Receivers().At(0).m_ReceiverName.size(), 60000u);
}

TEST_F(LongTexts, OfThePathsOfRecentFilesLeaveTheMenuNarrow) {
    const QString path = "/app/" + QString("long/").repeated(200) + "a.sch";
    m_Files.Put(path.toStdString(), Sample("schedule.dat"));
    ASSERT_TRUE(m_Window->OpenFile(path));
    QMenu& recent = Find<QMenu>(*m_Window, "Menu_Recent");
    emit recent.aboutToShow();
    const QString entry = recent.actions().at(0)->text();
    EXPECT_LT(entry.size(), 200);
    EXPECT_TRUE(entry.endsWith("/a.sch")) << entry.toStdString();
}

// The toolkit would put them side by side, out of the screen.
TEST_F(LongTexts, ManyReceiversToAddStandBelowEachOther) {
    for (int i = 0; i < 300; ++i) AddReceiver("Receiver " + std::to_string(i));
    AddReceiver(std::string(60000, 'A'));
    m_Files.Put("/app/Profiles/Profile_0012.dat", Sample("profile_version_5.dat"));
    m_Window->ShowProfiles();
    QMenu& menu = *Find<QPushButton>(Page(), "Button_Parallel_Add").menu();
    menu.popup(QPoint());
    const QList<QAction*> entries = menu.actions();
    ASSERT_EQ(entries.size(), 301);
    EXPECT_EQ(menu.actionGeometry(entries.back()).left(), menu.actionGeometry(entries.front()).left());
    EXPECT_LT(menu.width(), 900);
    // The last one is led to.
    QTest::keyClick(&menu, Qt::Key_End);
    EXPECT_EQ(menu.activeAction(), entries.back());
    EXPECT_TRUE(menu.rect().contains(menu.actionGeometry(entries.back())));
    menu.close();
}

TEST_F(LongTexts, OfAProfileGiveItsSheetAFileNameThatCanBe) {
    m_Files.Put("/app/Profiles/Profile_0012.dat", Sample("profile_version_5.dat"));
    m_Window->ShowProfiles();
    Find<QLineEdit>(Page(), "Text_ProfileName").setText({});
    Find<QLineEdit>(Page(), "Text_ProfileName").insert(QString("A").repeated(60000));
    Choose(*m_Window, "Menu_Pdf");
    EXPECT_LT(m_Prompts.m_Asked.size(), 200) << m_Prompts.m_Asked.size();
}

}  // namespace
}  // namespace vigrel::testing
