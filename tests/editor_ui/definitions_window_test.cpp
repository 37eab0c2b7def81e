#include <sys/resource.h>

#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <csignal>

#include "common/path_text.h"
#include "editor_ui/editor_bench.h"
#include "support/samples.h"

namespace vigrel::testing {
namespace {

class DefinitionsWindow : public ::testing::Test, protected cEditorBench {
  protected:
    // A change of the page in front.
    static void Change(cSchedulePage& page) {
        Drag(Find<QWidget>(page, "Picture_TimeSchedule"), {At(6, 600), At(6, 700)});
    }
    QStringList Recent() const { return m_Settings.value("RecentFiles").toStringList(); }
    QString Tab(int index) { return Find<QTabWidget>(*m_Window, "Tabs_Pages").tabText(index); }
    bool CloseTab() {
        const auto before = m_Window->Pages().size();
        Choose(*m_Window, "Menu_Close");
        return m_Window->Pages().size() < before;
    }
};

TEST_F(DefinitionsWindow, StartsWithNothingOpenAndOffersWhatCanBeDone) {
    EXPECT_TRUE(m_Window->Pages().isEmpty());
    EXPECT_TRUE(Find<QPushButton>(*m_Window, "Button_NewSchedule").isVisible());
    EXPECT_FALSE(Find<QAction>(*m_Window, "Menu_Save").isEnabled());
    Find<QPushButton>(*m_Window, "Button_NewCalendar").click();
    EXPECT_EQ(m_Window->Pages().size(), 1);
    EXPECT_FALSE(Find<QPushButton>(*m_Window, "Button_NewSchedule").isVisible());
}

TEST_F(DefinitionsWindow, AScheduleIsSavedUnderANameAndReadAgain) {
    cSchedulePage& page = NewSchedule();
    Change(page);
    const std::string saved = Saved(page.Schedule());
    EXPECT_EQ(Tab(0), "Schedule 1 *");
    m_Prompts.m_Texts = {"/app/Office.sch"};
    Choose(*m_Window, "Menu_Save");
    EXPECT_EQ(m_Prompts.m_Asked, "save as /app/Schedule 1.sch (sch)\n");
    EXPECT_EQ(m_Files.ReadFile("/app/Office.sch"), saved);
    EXPECT_EQ(Tab(0), "Office.sch");
    EXPECT_FALSE(page.IsDirty());
    ASSERT_TRUE(CloseTab());
    m_Prompts.m_Texts = {"/app/Office.sch"};
    Choose(*m_Window, "Menu_Open");
    ASSERT_EQ(m_Window->Pages().size(), 1);
    EXPECT_EQ(Saved(dynamic_cast<cSchedulePage&>(*m_Window->CurrentPage()).Schedule()), saved);
    EXPECT_FALSE(m_Window->CurrentPage()->IsDirty());
}

TEST_F(DefinitionsWindow, ACalendarIsTheFileOf29220Bytes) {
    cCalendarPage& page = NewCalendar();
    page.Editor().ShowMonth(2000, 1);
    Find<QListWidget>(page, "List_Calendar_DayType").setCurrentRow(9);
    Drag(Find<QWidget>(page, "Picture_Calendar"), {QPoint(30 + 5 * 40 + 20, 32)});
    m_Prompts.m_Texts = {"/app/Site.cal"};
    Choose(*m_Window, "Menu_Save");
    EXPECT_EQ(m_Files.ReadFile("/app/Site.cal"), "\x09" + std::string(29219, '\0'));
}

TEST_F(DefinitionsWindow, FilesOfBothKindsAreToldApart) {
    m_Files.Put("/app/a.dat", Sample("schedule.dat"));
    m_Files.Put("/app/b.dat", Sample("calendar.dat"));
    EXPECT_TRUE(m_Window->OpenFile("/app/a.dat"));
    EXPECT_TRUE(m_Window->OpenFile("/app/b.dat"));
    EXPECT_NE(dynamic_cast<cSchedulePage*>(m_Window->Pages()[0]), nullptr);
    EXPECT_NE(dynamic_cast<cCalendarPage*>(m_Window->Pages()[1]), nullptr);
}

TEST_F(DefinitionsWindow, AFileThatIsNoneOfThemIsRefusedWithAReason) {
    m_Files.Put("/app/letter.txt", "Dear operator");
    m_Files.Put("/app/short.cal", "abc");
    EXPECT_FALSE(m_Window->OpenFile("/app/letter.txt"));
    EXPECT_FALSE(m_Window->OpenFile("/app/short.cal"));
    EXPECT_FALSE(m_Window->OpenFile("/app/missing.sch"));
    EXPECT_EQ(
        m_Prompts.m_Asked,
        "failure: /app/letter.txt is not a time schedule: it has 13 bytes, and a schedule at least 186.\n"
        "failure: /app/short.cal is not a calendar: it has 3 bytes in place of 29220.\n"
        "failure: /app/missing.sch: the file does not exist\n");
    EXPECT_TRUE(m_Window->Pages().isEmpty());
    EXPECT_TRUE(Recent().isEmpty());
    EXPECT_EQ(m_Prompts.m_Window, m_Window.get());
}

TEST_F(DefinitionsWindow, AFileThatIsOpenComesToTheFront) {
    m_Files.Put("/app/a.sch", Sample("schedule.dat"));
    m_Window->OpenFile("/app/a.sch");
    NewCalendar();
    EXPECT_TRUE(m_Window->OpenFile("/app/x/../a.sch"));
    EXPECT_EQ(m_Window->Pages().size(), 2);
    EXPECT_EQ(m_Window->CurrentPage(), m_Window->Pages()[0]);
}

TEST_F(DefinitionsWindow, AFileMayBeNamedInAnyScript) {
    cSchedulePage& page = NewSchedule();
    const QString path = QString::fromUtf8("/app/日本 ä.sch");
    m_Prompts.m_Texts = {path};
    EXPECT_TRUE(page.SaveAs());
    EXPECT_EQ(page.Path(), path);
    EXPECT_EQ(page.Title(), QString::fromUtf8("日本 ä.sch"));
    EXPECT_TRUE(m_Files.FileExists(PathText("/app/日本 ä.sch")));
    EXPECT_EQ(Recent(), QStringList{path});
    m_Files.Put(PathText("/app/Łódź.sch"), Sample("schedule.dat"));
    EXPECT_TRUE(m_Window->OpenFile(QString::fromUtf8("/app/Łódź.sch")));
    EXPECT_EQ(m_Window->CurrentPage()->Title(), QString::fromUtf8("Łódź.sch"));
}

// The print dialog prints into files, too.
TEST_F(DefinitionsWindow, ASheetOnAFullDiskIsTold) {
    NewSchedule();
    m_Prompts.m_PrintedFile = m_Folder.filePath("printed.pdf");
    // A file can't become larger than this.
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit full{1000, before.rlim_max};
    const auto signalBefore = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &full), 0);
    Choose(*m_Window, "Menu_Print");
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, signalBefore);
    EXPECT_EQ(m_Prompts.m_Asked.toStdString(),
              "printer for Schedule 1\nfailure: Schedule 1 was not printed.\n");
}

TEST_F(DefinitionsWindow, AFailedSaveTellsWhyAndKeepsTheChanges) {
    m_Files.Put("/app/a.sch", Sample("schedule.dat"));
    m_Window->OpenFile("/app/a.sch");
    auto& page = dynamic_cast<cSchedulePage&>(*m_Window->CurrentPage());
    Change(page);
    m_Files.m_DiskFull = true;
    EXPECT_FALSE(page.Save());
    EXPECT_TRUE(m_Prompts.m_Asked.startsWith("failure: The file was not saved.\n"));
    EXPECT_TRUE(m_Prompts.m_Asked.contains("the disk is full"));
    EXPECT_TRUE(page.IsDirty());
    EXPECT_EQ(m_Files.ReadFile("/app/a.sch"), Sample("schedule.dat"));
}

TEST_F(DefinitionsWindow, ClosingAsksForEachPageWithChanges) {
    NewSchedule();
    Change(NewSchedule());
    NewCalendar();
    EXPECT_FALSE(m_Window->close());
    EXPECT_EQ(m_Prompts.m_Asked, "save Schedule 2\n");
    EXPECT_EQ(m_Window->CurrentPage()->Title(), "Schedule 2");
    m_Prompts.m_SaveAnswers = {cPrompts::eSave::Save};
    // The name is refused: cancelled.
    EXPECT_FALSE(m_Window->close());
    m_Prompts.m_SaveAnswers = {cPrompts::eSave::Discard};
    bool closed = false;
    QObject::connect(m_Window.get(), &cDefinitionsWindow::Closed, [&] { closed = true; });
    EXPECT_TRUE(m_Window->close());
    EXPECT_TRUE(closed);
    EXPECT_TRUE(m_Files.AllPaths().empty());
}

TEST_F(DefinitionsWindow, ClosingATabAsksToo) {
    Change(NewSchedule());
    EXPECT_FALSE(CloseTab());
    m_Prompts.m_SaveAnswers = {cPrompts::eSave::Save};
    m_Prompts.m_Texts = {"/app/Kept.sch"};
    EXPECT_TRUE(CloseTab());
    EXPECT_TRUE(m_Files.FileExists("/app/Kept.sch"));
}

TEST_F(DefinitionsWindow, ATabIsClosedByItsButton) {
    NewSchedule();
    NewCalendar();
    auto& tabs = Find<QTabWidget>(*m_Window, "Tabs_Pages");
    EXPECT_TRUE(tabs.tabsClosable());
    emit tabs.tabCloseRequested(0);
    ASSERT_EQ(m_Window->Pages().size(), 1);
    EXPECT_EQ(m_Window->Pages()[0]->Title(), "Calendar 1");
}

TEST_F(DefinitionsWindow, ADragInAProfileIsAskedAboutAtTheEnd) {
    m_Files.Put("/app/Profiles/Profile_0012.dat", Sample("profile_version_5.dat"));
    m_Window->ShowProfiles();
    cEditorPage& page = *m_Window->CurrentPage();
    Find<QTabWidget>(page, "Tabs_Profile").setCurrentIndex(3);
    auto& view = Find<QWidget>(page, "Picture_TimeSchedule");
    Press(view, At(6, 600));
    Move(view, At(6, 700));
    EXPECT_FALSE(page.IsDirty());
    EXPECT_FALSE(m_Window->close());
    EXPECT_EQ(m_Prompts.m_Asked, "save Profiles\n");
    EXPECT_EQ(page.UndoStack()->count(), 1);
}

TEST_F(DefinitionsWindow, EachPageOffersWhatItCanDo) {
    const auto offered = [this] {
        QStringList names;
        for (const char* name : {"Save", "SaveAs", "Print", "Pdf", "Close", "Undo", "Redo"}) {
            const std::string entry = std::string("Menu_") + name;
            if (Find<QAction>(*m_Window, entry.c_str()).isEnabled()) names += name;
        }
        return names.join(' ').toStdString();
    };
    EXPECT_EQ(offered(), "");
    cSchedulePage& schedule = NewSchedule();
    EXPECT_EQ(offered(), "Save SaveAs Print Pdf Close");
    Change(schedule);
    EXPECT_EQ(offered(), "Save SaveAs Print Pdf Close Undo");
    Choose(*m_Window, "Menu_Undo");
    EXPECT_EQ(offered(), "Save SaveAs Print Pdf Close Redo");
    m_Window->ShowColourRules();
    EXPECT_EQ(offered(), "Save Close");
    m_Window->ShowOwnHolidays();
    EXPECT_EQ(offered(), "Save Close");
    m_Window->ShowReceivers();
    EXPECT_EQ(offered(), "Save Close");
    for (int i = 0; i < 4; ++i) Choose(*m_Window, "Menu_Close");
    EXPECT_EQ(offered(), "");
}

TEST_F(DefinitionsWindow, UndoAndRedoNameTheirSteps) {
    const auto entries = [this] {
        return Find<QAction>(*m_Window, "Menu_Undo").text() + "|" +
               Find<QAction>(*m_Window, "Menu_Redo").text();
    };
    EXPECT_EQ(entries(), "&Undo|&Redo");
    Change(NewSchedule());
    EXPECT_EQ(entries(), "&Undo dragging a period|&Redo");
    Choose(*m_Window, "Menu_Undo");
    EXPECT_EQ(entries(), "&Undo|&Redo dragging a period");
    // A sign in a name is no access key.
    m_Files.Put("/app/Receivers/Receiver_0007.dat", Sample("receiver_version_5.dat"));
    m_Window->ShowReceivers();
    auto& name = Find<QLineEdit>(*m_Window->CurrentPage(), "Text_ReceiverName");
    name.selectAll();
    QTest::keyClicks(&name, "A&B");
    Choose(*m_Window->CurrentPage(), "Action_Copy");
    EXPECT_EQ(entries(), "&Undo copying \"A&&B\"|&Redo");
    Choose(*m_Window, "Menu_Undo");
    EXPECT_EQ(entries(), "&Undo changing Name|&Redo copying \"A&&B\"");
}

TEST_F(DefinitionsWindow, ASignInTheNameOfAFileIsNoAccessKey) {
    m_Files.Put("/app/A&B.sch", Sample("schedule.dat"));
    m_Window->OpenFile("/app/A&B.sch");
    EXPECT_EQ(Tab(0), "A&&B.sch");
    EXPECT_EQ(Find<QTabWidget>(*m_Window, "Tabs_Pages").tabToolTip(0), "/app/A&B.sch");
    auto& menu = Find<QMenu>(*m_Window, "Menu_Recent");
    emit menu.aboutToShow();
    EXPECT_EQ(menu.actions().first()->text(), "/app/A&&B.sch");
}

TEST_F(DefinitionsWindow, ASizeIsThatOfAllPagesAndOfThoseToCome) {
    cSchedulePage& first = NewSchedule();
    NewCalendar();
    Choose(*m_Window, "Menu_Zoom_200");
    EXPECT_EQ(Find<QWidget>(first, "Picture_TimeSchedule").height(), 2 * 179);
    EXPECT_EQ(Find<QWidget>(NewSchedule(), "Picture_TimeSchedule").height(), 2 * 179);
    EXPECT_TRUE(Find<QAction>(*m_Window, "Menu_Zoom_200").isChecked());
    EXPECT_FALSE(Find<QAction>(*m_Window, "Menu_Zoom_100").isChecked());
}

TEST_F(DefinitionsWindow, TheListsOfTheStationAreKnownByTheirNamesInAnyCase) {
    m_Files.Put("/app/COLOURRULES.TXT", "");
    m_Files.Put("/app/ownholidays.txt", "");
    EXPECT_TRUE(m_Window->OpenFile("/app/COLOURRULES.TXT"));
    EXPECT_EQ(m_Window->CurrentPage()->objectName(), "Page_ColourRules");
    EXPECT_TRUE(m_Window->OpenFile("/app/ownholidays.txt"));
    EXPECT_EQ(m_Window->CurrentPage()->objectName(), "Page_OwnHolidays");
    m_Files.Put("/app/short.CAL", "abc");
    EXPECT_FALSE(m_Window->OpenFile("/app/short.CAL"));
    EXPECT_TRUE(m_Prompts.m_Asked.contains("is not a calendar"));
}

TEST_F(DefinitionsWindow, RecentFilesAreTheNewestTen) {
    for (int i = 0; i < 12; ++i) {
        const std::string path = "/app/" + std::to_string(i) + ".sch";
        m_Files.Put(path, Sample("schedule.dat"));
        m_Window->OpenFile(ToQString(path));
    }
    m_Prompts.m_Texts = {"/app/new.sch"};
    m_Window->CurrentPage()->SaveAs();
    ASSERT_EQ(Recent().size(), 10);
    EXPECT_EQ(Recent().first(), "/app/new.sch");
    EXPECT_EQ(Recent().last(), "/app/3.sch");
}

TEST_F(DefinitionsWindow, TheRecentMenuOpensAndForgetsWhatIsGone) {
    m_Files.Put("/app/a.sch", Sample("schedule.dat"));
    m_Window->OpenFile("/app/a.sch");
    ASSERT_TRUE(CloseTab());
    auto& menu = Find<QMenu>(*m_Window, "Menu_Recent");
    emit menu.aboutToShow();
    ASSERT_EQ(menu.actions().size(), 1);
    menu.actions().first()->trigger();
    EXPECT_EQ(m_Window->Pages().size(), 1);
    ASSERT_TRUE(CloseTab());
    m_Files.RemoveFile("/app/a.sch");
    emit menu.aboutToShow();
    menu.actions().first()->trigger();
    EXPECT_TRUE(m_Prompts.m_Asked.contains("does not exist"));
    EXPECT_TRUE(Recent().isEmpty());
    emit menu.aboutToShow();
    EXPECT_FALSE(menu.actions().first()->isEnabled());
}

TEST_F(DefinitionsWindow, TheEditMenuIsThatOfThePageInFront) {
    const auto entries = [this] {
        QStringList names;
        for (QAction* menu : m_Window->menuBar()->actions()) {
            if (menu->text() != "&Edit") continue;
            for (QAction* action : menu->menu()->actions()) names.append(action->objectName());
        }
        return names;
    };
    cSchedulePage& schedule = NewSchedule();
    EXPECT_TRUE(entries().contains("Menu_TimeSchedulePopup_Invert"));
    NewCalendar();
    EXPECT_FALSE(entries().contains("Menu_TimeSchedulePopup_Invert"));
    EXPECT_TRUE(entries().contains("Menu_Calendar_ClearYear"));
    Find<QTabWidget>(*m_Window, "Tabs_Pages").setCurrentWidget(&schedule);
    EXPECT_TRUE(entries().contains("Menu_TimeSchedulePopup_Invert"));
    EXPECT_TRUE(entries().startsWith("Menu_Undo"));
}

TEST_F(DefinitionsWindow, UndoIsThatOfThePageInFront) {
    cSchedulePage& first = NewSchedule();
    Change(first);
    cSchedulePage& second = NewSchedule();
    EXPECT_FALSE(Find<QAction>(*m_Window, "Menu_Undo").isEnabled());
    Change(second);
    Choose(*m_Window, "Menu_Undo");
    EXPECT_TRUE(first.IsDirty());
    EXPECT_FALSE(second.IsDirty());
}

// The menu leaves the keyboard in the field. What is typed there is a step, which is undone whole.
TEST_F(DefinitionsWindow, UndoByTheMenuTakesBackATimeThatIsBeingTyped) {
    m_Files.Put("/app/Profiles/Profile_0012.dat", Sample("profile_version_5.dat"));
    m_Window->ShowProfiles();
    QApplication::setActiveWindow(m_Window.get());
    cEditorPage& page = *m_Window->CurrentPage();
    Find<QTabWidget>(page, "Tabs_Profile").setCurrentIndex(3);
    auto& view = Find<QWidget>(page, "Picture_TimeSchedule");
    view.setFocus();
    QTest::keyClick(&view, Qt::Key_Down);
    QTest::keyClick(&view, Qt::Key_Insert);
    auto& stop = Find<QLineEdit>(page, "Text_Schedule_Period_Stop");
    const QString before = stop.text();
    stop.setFocus();
    stop.selectAll();
    QTest::keyClicks(&stop, "2330");
    Choose(*m_Window, "Menu_Undo");
    QUndoStack& steps = *page.UndoStack();
    EXPECT_EQ(steps.count(), 2);
    EXPECT_EQ(steps.redoText().toStdString(), "typing times");
    Choose(*m_Window, "Menu_Undo");
    EXPECT_FALSE(page.IsDirty());
    Choose(*m_Window, "Menu_Redo");
    Choose(*m_Window, "Menu_Redo");
    EXPECT_EQ(steps.index(), 2);
    EXPECT_FALSE(steps.canRedo());
}

TEST_F(DefinitionsWindow, KeysTurnThePagesFromEveryField) {
    Choose(*m_Window, "Menu_NextPage");
    NewSchedule();
    cCalendarPage& calendar = NewCalendar();
    NewSchedule();
    QApplication::setActiveWindow(m_Window.get());
    const auto press = [this](Qt::KeyboardModifiers modifiers) {
        QTest::keyClick(m_Window->focusWidget(),
                        modifiers & Qt::ShiftModifier ? Qt::Key_Backtab : Qt::Key_Tab, modifiers);
        return m_Window->CurrentPage()->Title();
    };
    EXPECT_EQ(press(Qt::ControlModifier), "Schedule 1");
    EXPECT_EQ(press(Qt::ControlModifier | Qt::ShiftModifier), "Schedule 2");
    EXPECT_EQ(press(Qt::ControlModifier | Qt::ShiftModifier), "Calendar 1");
    Find<QComboBox>(calendar, "Combo_Calendar_Month").setFocus();
    EXPECT_EQ(press(Qt::ControlModifier), "Schedule 2");
}

TEST_F(DefinitionsWindow, TheTitleNamesPageAndChange) {
    EXPECT_EQ(m_Window->windowTitle(), "Vigrel Definitions");
    cSchedulePage& page = NewSchedule();
    EXPECT_EQ(m_Window->windowTitle(), "Schedule 1[*] - Vigrel Definitions");
    EXPECT_FALSE(m_Window->isWindowModified());
    Change(page);
    EXPECT_TRUE(m_Window->isWindowModified());
}

TEST_F(DefinitionsWindow, TheZoomIsRemembered) {
    cSchedulePage& page = NewSchedule();
    Choose(*m_Window, "Menu_Zoom_300");
    EXPECT_EQ(Find<QWidget>(page, "Picture_TimeSchedule").height(), 3 * 179);
    const cDefinitionsWindow another(m_Services);
    EXPECT_TRUE(another.findChild<QAction*>("Menu_Zoom_300")->isChecked());
    m_Settings.setValue("Zoom", -5);
    const cDefinitionsWindow damaged(m_Services);
    EXPECT_TRUE(damaged.findChild<QAction*>("Menu_Zoom_Fit")->isChecked());
}

// --- what the next start finds

TEST_F(DefinitionsWindow, ThePageOfTheLastTimeComesBack) {
    m_Files.Put("/app/Site.sch", Sample("schedule.dat"));
    const auto nextStart = [&] {
        EXPECT_TRUE(m_Window->close());
        m_Window = std::make_unique<cDefinitionsWindow>(m_Services);
        m_Window->show();
        m_Window->ShowLastPage();
        const cEditorPage* page = m_Window->CurrentPage();
        return page == nullptr ? std::string("start page") : page->Title().toStdString();
    };
    EXPECT_EQ(nextStart(), "start page");
    m_Window->OpenFile("/app/Site.sch");
    EXPECT_EQ(nextStart(), "Site.sch");
    m_Window->ShowProfiles();
    EXPECT_EQ(nextStart(), "Profiles");
    m_Window->ShowReceivers();
    EXPECT_EQ(nextStart(), "Receivers");
    m_Window->ShowOwnHolidays();
    EXPECT_EQ(nextStart(), "OwnHolidays.txt");
    m_Window->ShowColourRules();
    EXPECT_EQ(nextStart(), "ColourRules.txt");
    Choose(*m_Window, "Menu_Close");
    EXPECT_EQ(nextStart(), "start page");
    // One that is gone meanwhile is nothing to be told of.
    m_Window->OpenFile("/app/Site.sch");
    m_Files.RemoveFile("/app/Site.sch");
    EXPECT_EQ(nextStart(), "start page");
    EXPECT_EQ(m_Prompts.m_Asked.toStdString(), "");
}

TEST_F(DefinitionsWindow, TheWindowHasTheSizeOfTheLastTime) {
    m_Window->resize(777, 555);
    EXPECT_TRUE(m_Window->close());
    cDefinitionsWindow another(m_Services);
    another.show();
    EXPECT_EQ(another.size(), QSize(777, 555));
}

TEST_F(DefinitionsWindow, TwoFilesOfOneNameTellTheirFolders) {
    m_Files.Put("/app/north/Site.sch", Sample("schedule.dat"));
    m_Files.Put("/app/south/Site.sch", Sample("schedule.dat"));
    m_Window->OpenFile("/app/north/Site.sch");
    EXPECT_EQ(Tab(0), "Site.sch");
    m_Window->OpenFile("/app/south/Site.sch");
    EXPECT_EQ(Tab(0), "north/Site.sch");
    EXPECT_EQ(Tab(1), "south/Site.sch");
    EXPECT_TRUE(m_Window->windowTitle().startsWith("south/Site.sch[*]"));
    Choose(*m_Window, "Menu_Close");
    EXPECT_EQ(Tab(0), "Site.sch");
}

// A page of another kind finds its place without the window knowing it.
class cOtherPage : public cEditorPage {
  public:
    using cEditorPage::cEditorPage;
    QString Title() const override { return "Receivers"; }
    bool IsDirty() const override { return m_Dirty; }
    bool Save() override {
        m_Dirty = false;
        emit StateChanged();
        return true;
    }
    bool m_Dirty = true;
};

TEST_F(DefinitionsWindow, TheEditorsInsideAProfileAreHeardAsWell) {
    cCalendarPage& calendar = NewCalendar();
    m_Files.Put("/app/Profiles/Profile_0012.dat", Sample("profile_version_5.dat"));
    m_Window->ShowProfiles();
    cEditorPage& profiles = *m_Window->CurrentPage();
    auto* schedule = profiles.findChild<cScheduleEditor*>();
    ASSERT_NE(schedule, nullptr);
    emit schedule->Message("There is no gap.");
    EXPECT_EQ(m_Window->statusBar()->currentMessage(), "There is no gap.");
    m_Services.m_DayTypeNames.Rename(22, "Lucia");
    emit schedule->DayTypesChanged();
    EXPECT_EQ(Find<QListWidget>(calendar, "List_Calendar_DayType").item(23)->text(), "Lucia");
    m_Files.Put("/app/Site.cal", Sample("calendar.dat"));
    auto* document = profiles.findChild<cFileDocument*>();
    ASSERT_NE(document, nullptr);
    EXPECT_TRUE(document->Open("/app/Site.cal"));
    EXPECT_EQ(Recent().first(), "/app/Site.cal");
}

TEST_F(DefinitionsWindow, APageWithoutFileOrUndoIsSavedAndClosedLikeTheOthers) {
    auto* page = new cOtherPage;
    m_Window->AddPage(page);
    EXPECT_EQ(Tab(0), "Receivers *");
    EXPECT_TRUE(Find<QAction>(*m_Window, "Menu_Save").isEnabled());
    EXPECT_FALSE(Find<QAction>(*m_Window, "Menu_SaveAs").isEnabled());
    EXPECT_FALSE(m_Window->close());
    Choose(*m_Window, "Menu_Save");
    EXPECT_EQ(Tab(0), "Receivers");
    EXPECT_TRUE(m_Window->close());
}

// So that the keys of the page work before the mouse was in it.
TEST_F(DefinitionsWindow, APageOfTheStationHasTheKeyboardAtOnce) {
    const auto focused = [this] { return m_Window->focusWidget()->objectName().toStdString(); };
    m_Window->ShowReceivers();
    EXPECT_EQ(focused(), "List_Definitions");
    m_Window->ShowColourRules();
    EXPECT_EQ(focused(), "List_Rules");
    m_Window->ShowProfiles();
    EXPECT_EQ(focused(), "List_Definitions");
    EXPECT_TRUE(m_Window->CurrentPage()->isAncestorOf(m_Window->focusWidget()));
}

}  // namespace
}  // namespace vigrel::testing
