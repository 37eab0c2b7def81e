#include <QContextMenuEvent>
#include <QFile>
#include <QMenu>
#include <QScrollBar>
#include <QStatusBar>
#include <QWheelEvent>

#include "editor_ui/editor_bench.h"
#include "schedule/definition_files.h"
#include "support/qt_wait.h"

namespace vigrel::testing {
namespace {

constexpr auto kShift = Qt::ShiftModifier, kCtrl = Qt::ControlModifier;

class SchedulePage : public ::testing::Test, protected cEditorBench {
  protected:
    QWidget& View() { return Find<QWidget>(m_Page, "Picture_TimeSchedule"); }
    QString Text(const char* field) { return Find<QLineEdit>(m_Page, field).text(); }
    std::string Day(std::int16_t dayType) { return Periods(m_Page.Schedule(), dayType); }
    void Entry(const char* name) { Choose(m_Page, (std::string("Menu_TimeSchedulePopup_") + name).c_str()); }
    QAction& Action(const char* name) {
        return Find<QAction>(m_Page, (std::string("Menu_TimeSchedulePopup_") + name).c_str());
    }
    void Click(int row, int minute) { Drag(View(), {At(row, minute)}); }
    // Entries' keys work while the focus is in the page.
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QApplication::setActiveWindow(m_Window.get());
        View().setFocus();
        QTest::keyClick(&View(), key, modifiers);
    }
    void Type(const char* field, const char* text) {
        auto& edit = Find<QLineEdit>(m_Page, field);
        edit.selectAll();
        QTest::keyClicks(&edit, text);
        QTest::keyClick(&edit, Qt::Key_Return);
    }
    QColor Pixel(int x, int y, qreal scale = 1) {
        QImage image(View().size() * scale, QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        View().render(&image);
        return image.pixelColor(x, y);
    }

    cSchedulePage& m_Page = NewSchedule();
};

TEST_F(SchedulePage, ANewScheduleIsAWorkingWeekAndNotDirty) {
    cTimeSchedule expected;
    expected.SetDefaultPeriod();
    for (std::int16_t day = 0; day < 23; ++day) EXPECT_EQ(Day(day), Periods(expected, day));
    EXPECT_FALSE(m_Page.IsDirty());
    EXPECT_EQ(m_Page.Title(), "Schedule 1");
}

TEST_F(SchedulePage, TheMarkOfTheKeysIsNotPrintedAndStaysOnTheScreen) {
    Click(2, 600);
    View().clearFocus();
    const QRectF area(View().rect());
    const QImage printed = OnPaper(m_Page.Printout(), area);
    const QImage unmarked = View().grab().toImage();
    QApplication::setActiveWindow(m_Window.get());
    View().setFocus();
    const QImage marked = View().grab().toImage();
    EXPECT_NE(marked, unmarked);
    EXPECT_EQ(OnPaper(m_Page.Printout(), area), printed);
    EXPECT_EQ(View().grab().toImage(), marked);
}

TEST_F(SchedulePage, TheMarkOfTheKeysIsTheNamesPlaceInItsRow) {
    Click(2, 600);
    View().clearFocus();
    const QImage unmarked = View().grab().toImage();
    QApplication::setActiveWindow(m_Window.get());
    View().setFocus();
    // Left of the axis, with a pixel between.
    EXPECT_EQ(Difference(unmarked, View().grab().toImage()), QRect(0, 2 * 25 + 1, 29, 21));
}

TEST_F(SchedulePage, ADragMakesAPeriodInOneStepOfUndo) {
    Drag(View(), {At(5, 600), At(5, 640), At(5, 700)});
    EXPECT_EQ(Day(5), "600-700");
    EXPECT_EQ(Text("Text_Schedule_Period_Start"), "10:00");
    EXPECT_EQ(Text("Text_Schedule_Period_Stop"), "11:40");
    EXPECT_TRUE(m_Page.IsDirty());
    EXPECT_EQ(m_Page.UndoStack()->count(), 1);
    Choose(*m_Window, "Menu_Undo");
    EXPECT_EQ(Day(5), "");
    EXPECT_FALSE(m_Page.IsDirty());
    EXPECT_EQ(Text("Text_Schedule_Period_Start"), "");
    Choose(*m_Window, "Menu_Redo");
    EXPECT_EQ(Day(5), "600-700");
}

TEST_F(SchedulePage, AClickThatChangesNothingIsNoStepOfUndo) {
    Click(0, 600);
    EXPECT_EQ(m_Page.UndoStack()->count(), 0);
    EXPECT_EQ(Text("Text_Schedule_Period_Start"), "07:00");
}

TEST_F(SchedulePage, ADragOnAGroupedDayChangesTheGroup) {
    Drag(View(), {At(1, 960), At(1, 1020)});
    for (std::int16_t day = 0; day < 5; ++day) EXPECT_EQ(Day(day), "420-1020");
    Choose(*m_Window, "Menu_Undo");
    for (std::int16_t day = 0; day < 5; ++day) EXPECT_EQ(Day(day), "420-960");
}

TEST_F(SchedulePage, UndoInTheMiddleOfADragTakesTheDragBack) {
    Drag(View(), {At(5, 600), At(5, 700)});
    Press(View(), At(5, 700));
    Move(View(), At(5, 900));
    Choose(*m_Window, "Menu_Undo");
    EXPECT_FALSE(m_Page.Schedule().IsDragging());
    Move(View(), At(5, 1000));
    Release(View(), At(5, 1000));
    EXPECT_EQ(Day(5), "600-700");
    EXPECT_EQ(m_Page.UndoStack()->redoText(), "dragging a period");
}

TEST_F(SchedulePage, ClosingInTheMiddleOfADragAsksAboutIt) {
    Press(View(), At(5, 600));
    Move(View(), At(5, 700));
    EXPECT_FALSE(m_Window->close());
    EXPECT_EQ(m_Prompts.m_Asked, "save Schedule 1\n");
    EXPECT_EQ(Day(5), "600-700");
    EXPECT_EQ(m_Page.UndoStack()->undoText(), "dragging a period");
}

TEST_F(SchedulePage, SavingInTheMiddleOfADragEndsIt) {
    m_Prompts.m_Texts = {"/app/a.sch"};
    Press(View(), At(0, 960));
    Move(View(), At(0, 1020));
    Choose(*m_Window, "Menu_Save");
    // The whole group has what was dragged in one of its days, as when the button is released.
    cTimeSchedule saved;
    LoadScheduleFile(m_Files, "/app/a.sch", saved);
    for (std::int16_t day = 0; day < 5; ++day) EXPECT_EQ(Periods(saved, day), "420-1020");
    Move(View(), At(0, 1100));
    Release(View(), At(0, 1100));
    EXPECT_EQ(Day(0), "420-1020");
    EXPECT_FALSE(m_Page.IsDirty());
    EXPECT_EQ(m_Page.UndoStack()->count(), 1);
}

TEST_F(SchedulePage, AStepInTheMiddleOfADragIsASecondOne) {
    Press(View(), At(5, 600));
    Move(View(), At(5, 700));
    Find<QCheckBox>(m_Page, "Check_TimeSchedule_UseCalendar").click();
    EXPECT_EQ(m_Page.UndoStack()->count(), 2);
    Choose(*m_Window, "Menu_Undo");
    EXPECT_EQ(Day(5), "600-700");
    Choose(*m_Window, "Menu_Undo");
    EXPECT_EQ(Day(5), "");
    EXPECT_FALSE(m_Page.IsDirty());
}

TEST_F(SchedulePage, AnotherPageInTheMiddleOfADragEndsIt) {
    Press(View(), At(5, 600));
    Move(View(), At(5, 700));
    NewCalendar();
    EXPECT_TRUE(m_Page.IsDirty());
    Find<QTabWidget>(*m_Window, "Tabs_Pages").setCurrentWidget(&m_Page);
    Move(View(), At(5, 900));
    EXPECT_EQ(Day(5), "600-700");
}

TEST_F(SchedulePage, EntriesWorkOnTheSelectedDay) {
    Click(0, 600);
    Entry("Copy");
    Click(6, 600);
    Entry("Paste");
    EXPECT_EQ(Day(6), "420-960");
    EXPECT_TRUE(IsGrouped(m_Page.Schedule(), 6));
    Entry("Invert");
    EXPECT_EQ(Day(6), "0-420 960-1440");
    EXPECT_EQ(Day(0), "0-420 960-1440");
    Entry("Grouped");
    EXPECT_FALSE(IsGrouped(m_Page.Schedule(), 6));
    Entry("WholeDay");
    EXPECT_EQ(Day(6), "0-1440");
    EXPECT_FALSE(Action("WholeDay").isEnabled());
    EXPECT_EQ(m_Page.UndoStack()->count(), 4);
    while (m_Page.UndoStack()->canUndo()) Choose(*m_Window, "Menu_Undo");
    EXPECT_EQ(Day(6), "");
}

TEST_F(SchedulePage, DeleteRemovesTheSelectedPeriodAndClearsTheFields) {
    Click(0, 600);
    Entry("Delete");
    EXPECT_EQ(Day(0), "");
    EXPECT_EQ(Day(1), "420-960");
    EXPECT_EQ(Text("Text_Schedule_Period_Start"), "");
    EXPECT_FALSE(Find<QLineEdit>(m_Page, "Text_Schedule_Period_Start").isEnabled());
}

TEST_F(SchedulePage, MondayToFridayIsUngroupedThenGroupedAgain) {
    EXPECT_TRUE(Action("Grouped_MonFri").isChecked());
    Entry("Grouped_MonFri");
    EXPECT_FALSE(IsGrouped(m_Page.Schedule(), 0));
    EXPECT_FALSE(Action("Grouped_MonFri").isChecked());
    Entry("Grouped_MonFri");
    for (int day = 0; day < 23; ++day) EXPECT_EQ(IsGrouped(m_Page.Schedule(), day), day < 5);
    EXPECT_TRUE(Action("Grouped_MonFri").isChecked());
}

TEST_F(SchedulePage, EntriesThatNeedADayAreDisabledWithoutOne) {
    for (const char* name : {"Copy", "Paste", "Delete", "WholeDay", "Invert", "Grouped"}) {
        EXPECT_FALSE(Action(name).isEnabled()) << name;
    }
    Press(View(), At(2, 600), Qt::RightButton);
    for (const char* name : {"Copy", "Delete", "WholeDay", "Invert", "Grouped"}) {
        EXPECT_TRUE(Action(name).isEnabled()) << name;
    }
    EXPECT_FALSE(Action("Paste").isEnabled());
    EXPECT_TRUE(Action("Grouped").isChecked());
}

TEST_F(SchedulePage, TypedTimesAreTakenOverAndNormalised) {
    Click(0, 600);
    Type("Text_Schedule_Period_Start", "8");
    EXPECT_EQ(Day(0), "480-960");
    Type("Text_Schedule_Period_Stop", "1630");
    EXPECT_EQ(Text("Text_Schedule_Period_Stop"), "16:30");
    EXPECT_EQ(Day(4), "480-990");
    Type("Text_Schedule_Period_Stop", "7");
    EXPECT_EQ(Text("Text_Schedule_Period_Start"), "07:00");
    EXPECT_EQ(Text("Text_Schedule_Period_Stop"), "08:00");
    EXPECT_EQ(m_Page.UndoStack()->count(), 3);
}

TEST_F(SchedulePage, AStartBehindTheOldStopWaitsForTheNewStop) {
    QApplication::setActiveWindow(m_Window.get());
    Click(5, 600);
    Drag(View(), {At(5, 480), At(5, 540)});
    auto& start = Find<QLineEdit>(m_Page, "Text_Schedule_Period_Start");
    auto& stop = Find<QLineEdit>(m_Page, "Text_Schedule_Period_Stop");
    start.setFocus();
    start.selectAll();
    QTest::keyClicks(&start, "18");
    QTest::keyClick(&start, Qt::Key_Tab);
    ASSERT_TRUE(stop.hasFocus());
    EXPECT_EQ(Day(5), "480-540");
    Type("Text_Schedule_Period_Stop", "20");
    EXPECT_EQ(Day(5), "1080-1200");
    EXPECT_EQ(start.text(), "18:00");
    // Leaving both by the mouse takes over, too.
    start.setFocus();
    start.selectAll();
    QTest::keyClicks(&start, "19");
    View().setFocus();
    EXPECT_EQ(Day(5), "1140-1200");
}

TEST_F(SchedulePage, ATimeThatIsStillBeingTypedIsSavedWithTheRest) {
    QApplication::setActiveWindow(m_Window.get());
    Click(0, 600);
    auto& stop = Find<QLineEdit>(m_Page, "Text_Schedule_Period_Stop");
    stop.setFocus();
    stop.selectAll();
    QTest::keyClicks(&stop, "1730");
    m_Prompts.m_Texts = {"/app/Office.sch"};
    Choose(*m_Window, "Menu_Save");
    EXPECT_EQ(m_Files.ReadFile("/app/Office.sch"), Saved(m_Page.Schedule()));
    EXPECT_EQ(Day(0), "420-1050");
    EXPECT_FALSE(m_Page.IsDirty());
    stop.selectAll();
    QTest::keyClicks(&stop, "18");
    Choose(*m_Window, "Menu_Close");
    EXPECT_TRUE(m_Prompts.m_Asked.endsWith("save Office.sch\n"));
    EXPECT_EQ(Day(0), "420-1080");
}

TEST_F(SchedulePage, TheTimeUnderThePointerIsShown) {
    Move(View(), At(3, 765));
    EXPECT_EQ(Find<QLabel>(m_Page, "Text_Schedule_Time").text(), "12:45");
}

TEST_F(SchedulePage, TheTimesCanBeReadDuringADrag) {
    auto& start = Find<QLineEdit>(m_Page, "Text_Schedule_Period_Start");
    EXPECT_FALSE(start.isEnabled());
    Press(View(), At(5, 600));
    Move(View(), At(5, 700));
    EXPECT_TRUE(start.isEnabled());
    EXPECT_EQ(start.text(), "10:00");
    Release(View(), At(5, 700));
    EXPECT_TRUE(start.isEnabled());
    Click(6, 600);
    EXPECT_FALSE(start.isEnabled());
}

TEST_F(SchedulePage, ThePopupMenuOpensWithItsSevenEntries) {
    auto& menu = Find<QMenu>(m_Page, "Menu_TimeSchedulePopup");
    QStringList entries;
    for (const QAction* action : menu.actions()) entries += action->text().remove('&');
    EXPECT_EQ(entries.join('|'),
              "Delete the period|Copy the day|Paste into the day||Whole day|Invert the day||Grouped|"
              "Monday to Friday grouped");
    Press(View(), At(2, 600), Qt::RightButton);
    QContextMenuEvent mouse(QContextMenuEvent::Mouse, At(2, 600), View().mapToGlobal(At(2, 600)));
    QCoreApplication::sendEvent(&View(), &mouse);
    EXPECT_TRUE(menu.isVisible());
    menu.hide();
    // Not in the middle of a drag.
    Press(View(), At(5, 600));
    QCoreApplication::sendEvent(&View(), &mouse);
    EXPECT_FALSE(menu.isVisible());
}

// --- keyboard

TEST_F(SchedulePage, ANewPageHasTheKeyboard) {
    EXPECT_EQ(m_Window->focusWidget(), &View());
    cCalendarPage& calendar = NewCalendar();
    EXPECT_EQ(m_Window->focusWidget(), &Find<QWidget>(calendar, "Picture_Calendar"));
}

TEST_F(SchedulePage, ArrowKeysChooseRowsAndPeriods) {
    Key(Qt::Key_Down);
    EXPECT_EQ(m_Page.Schedule().SelectedDayType(), 0);
    EXPECT_EQ(Text("Text_Schedule_Period_Start"), "07:00");
    Entry("Invert");
    Key(Qt::Key_Down);
    EXPECT_EQ(m_Page.Schedule().SelectedDayType(), 1);
    EXPECT_EQ(Text("Text_Schedule_Period_Start"), "00:00");
    Key(Qt::Key_Right);
    EXPECT_EQ(Text("Text_Schedule_Period_Start"), "16:00");
    Key(Qt::Key_Right);
    EXPECT_EQ(Text("Text_Schedule_Period_Start"), "16:00");
    Key(Qt::Key_Left);
    EXPECT_EQ(Text("Text_Schedule_Period_Stop"), "07:00");
    for (int i = 0; i < 9; ++i) Key(Qt::Key_Down);
    EXPECT_EQ(m_Page.Schedule().SelectedDayType(), 6);
    for (int i = 0; i < 9; ++i) Key(Qt::Key_Up);
    EXPECT_EQ(m_Page.Schedule().SelectedDayType(), 0);
}

TEST_F(SchedulePage, WithoutAnyDayTypeKeysHaveNoRowToChoose) {
    Find<QCheckBox>(m_Page, "Check_TimeSchedule_UseCalendar").click();
    auto& list = Find<QListWidget>(m_Page, "List_DayTypes");
    for (int day = 0; day < 7; ++day) list.item(day)->setCheckState(Qt::Unchecked);
    ASSERT_EQ(m_Page.Schedule().m_NumberOfAxisToPaint, 0);
    for (const Qt::Key key :
         {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_Insert, Qt::Key_Delete}) {
        Key(key);
        EXPECT_EQ(m_Page.Schedule().SelectedDayType(), -1) << key;
    }
    EXPECT_EQ(m_Page.Schedule().m_NumberOfAxisToPaint, 0);
}

TEST_F(SchedulePage, InsertMakesAPeriodAndArrowsMoveItsEnds) {
    for (int i = 0; i < 6; ++i) Key(Qt::Key_Down);
    ASSERT_EQ(m_Page.Schedule().SelectedDayType(), 5);
    Key(Qt::Key_Insert);
    EXPECT_EQ(Day(5), "480-540");
    Key(Qt::Key_Right, kShift);
    EXPECT_EQ(Day(5), "480-545");
    Key(Qt::Key_Left, kCtrl);
    EXPECT_EQ(Day(5), "475-545");
    Key(Qt::Key_Insert);
    EXPECT_EQ(Day(5), "475-545 600-660");
    Key(Qt::Key_Delete);
    EXPECT_EQ(Day(5), "475-545");
    EXPECT_EQ(m_Page.UndoStack()->count(), 5);
}

TEST_F(SchedulePage, InsertInAFullDayChangesNothing) {
    Click(5, 600);
    Entry("WholeDay");
    Click(5, 600);
    Key(Qt::Key_Insert);
    EXPECT_EQ(Day(5), "0-1440");
}

TEST_F(SchedulePage, InsertTriesTheNightWhenTheDayIsFull) {
    Drag(View(), {At(5, 480), At(5, 1440)});
    Key(Qt::Key_Insert);
    EXPECT_EQ(Day(5), "480-1440 0-60");
    // A quarter of an hour keeps them apart.
    for (int i = 0; i < 9; ++i) Key(Qt::Key_Insert);
    EXPECT_EQ(Day(5), "480-1440 0-60 120-180 240-300 360-420");
    EXPECT_EQ(m_Window->statusBar()->currentMessage(), "The day has no gap for another period.");
    EXPECT_EQ(m_Page.UndoStack()->count(), 5);
}

TEST_F(SchedulePage, AnEndStopsAtMidnight) {
    Drag(View(), {At(5, 10), At(5, 60)});
    for (int i = 0; i < 4; ++i) Key(Qt::Key_Left, kCtrl);
    EXPECT_EQ(Day(5), "0-60");
    Drag(View(), {At(6, 1380), At(6, 1430)});
    for (int i = 0; i < 4; ++i) Key(Qt::Key_Right, kShift);
    EXPECT_EQ(Day(6), "1380-1440");
}

TEST_F(SchedulePage, TheRenamedDayTypeIsThatOfTheListWhereTheKeyboardIs) {
    QApplication::setActiveWindow(m_Window.get());
    Find<QCheckBox>(m_Page, "Check_TimeSchedule_UseCalendar").click();
    auto& list = Find<QListWidget>(m_Page, "List_DayTypes");
    list.setFocus();
    list.setCurrentRow(7);
    m_Prompts.m_Texts = {"Lucia"};
    Entry("Rename");
    EXPECT_EQ(list.item(7)->text(), "Lucia");
    // A weekday has no name of its own.
    list.setCurrentRow(6);
    m_Prompts.m_Asked.clear();
    Entry("Rename");
    EXPECT_TRUE(m_Prompts.m_Asked.startsWith("failure: Choose a special day type"));
    list.setCurrentRow(22);
    m_Prompts.m_Texts = {"Yule"};
    Entry("Rename");
    EXPECT_EQ(m_Files.ReadFile("/app/VigrelDefinitions.INI"), "[DayTypes]\r\n7=Lucia\r\n22=Yule\r\n");
}

TEST_F(SchedulePage, ReturnGoesToTheStartField) {
    QApplication::setActiveWindow(m_Window.get());
    Click(0, 600);
    Key(Qt::Key_Return);
    EXPECT_TRUE(Find<QLineEdit>(m_Page, "Text_Schedule_Period_Start").hasFocus());
}

// --- what is chosen

TEST_F(SchedulePage, TheMenuSpeaksOfThePeriodUnderThePointer) {
    Drag(View(), {At(0, 1100), At(0, 1200)});
    Click(0, 1150);
    Press(View(), At(0, 600), Qt::RightButton);
    EXPECT_EQ(Text("Text_Schedule_Period_Start"), "07:00");
    Entry("Delete");
    EXPECT_EQ(Day(0), "1100-1200");
}

TEST_F(SchedulePage, WithNoPeriodUnderThePointerNothingCanBeDeleted) {
    Click(0, 600);
    Press(View(), At(1, 1200), Qt::RightButton);
    EXPECT_EQ(m_Page.Schedule().SelectedDayType(), 1);
    EXPECT_FALSE(Action("Delete").isEnabled());
    EXPECT_TRUE(Action("Copy").isEnabled());
    Entry("Delete");
    EXPECT_EQ(Day(0), "420-960");
    EXPECT_TRUE(IsGrouped(m_Page.Schedule(), 1));
    EXPECT_EQ(m_Page.UndoStack()->count(), 0);
}

TEST_F(SchedulePage, ARightPressOnANameChoosesItsDayAndBesideTheRowsNone) {
    Press(View(), QPoint(10, 3 * 25 + 10), Qt::RightButton);
    EXPECT_EQ(m_Page.Schedule().SelectedDayType(), 3);
    EXPECT_FALSE(Action("Delete").isEnabled());
    Click(0, 600);
    Press(View(), QPoint(322, 10), Qt::RightButton);
    EXPECT_EQ(m_Page.Schedule().SelectedDayType(), -1);
    EXPECT_FALSE(Action("Copy").isEnabled());
}

TEST_F(SchedulePage, TheTimeFieldsShowWhatIsThereOrNothing) {
    const auto shown = [this] {
        const auto& start = Find<QLineEdit>(m_Page, "Text_Schedule_Period_Start");
        return (start.text() + "-" + Text("Text_Schedule_Period_Stop") + (start.isEnabled() ? "" : " off"))
            .toStdString();
    };
    Click(0, 600);
    Entry("Invert");
    EXPECT_EQ(shown(), "- off");
    Click(0, 200);
    EXPECT_EQ(shown(), "00:00-07:00");
    Choose(*m_Window, "Menu_Undo");
    EXPECT_EQ(shown(), "- off");
    Drag(View(), {At(5, 600), At(5, 660)});
    Entry("Copy");
    Click(6, 700);
    Drag(View(), {At(6, 300), At(6, 400)});
    EXPECT_EQ(shown(), "05:00-06:40");
    Entry("Paste");
    EXPECT_EQ(shown(), "- off");
    Click(6, 630);
    EXPECT_EQ(shown(), "10:00-11:00");
    // The day joins the group and takes over its periods.
    Entry("Grouped");
    EXPECT_EQ(Day(6), "420-960");
    EXPECT_EQ(shown(), "- off");
    // A period that swallows the chosen one becomes the chosen one.
    Drag(View(), {At(5, 900), At(5, 630)});
    EXPECT_EQ(shown(), "10:00-15:00");
}

TEST_F(SchedulePage, ItIsToldWhichDaysChangeTogether) {
    const auto& chosen = Find<QLabel>(m_Page, "Label_Schedule_Chosen");
    EXPECT_EQ(chosen.text(), "No day chosen");
    Click(1, 600);
    EXPECT_EQ(chosen.text(), "Tuesday, changed together with Monday, Wednesday, Thursday, Friday");
    Press(View(), At(2, 600), Qt::RightButton);
    EXPECT_EQ(chosen.text(), "Wednesday, changed together with Monday, Tuesday, Thursday, Friday");
    EXPECT_EQ(Text("Text_Schedule_Period_Start"), "07:00");
    Click(6, 600);
    EXPECT_EQ(chosen.text(), "Sunday");
}

TEST_F(SchedulePage, ATimeThatIsNoneIsRefusedWithAReasonAndStaysAsTyped) {
    Click(0, 600);
    Type("Text_Schedule_Period_Stop", "25:30");
    const auto& problem = Find<QLabel>(m_Page, "Label_Schedule_Problem");
    EXPECT_EQ(problem.text(), "Stop: \"25:30\" lies behind 24:00.");
    EXPECT_EQ(Day(0), "420-960");
    EXPECT_EQ(Text("Text_Schedule_Period_Stop"), "25:30");
    // It counts as a change and stands in the way of saving.
    EXPECT_TRUE(m_Page.IsDirty());
    QApplication::setActiveWindow(m_Window.get());
    View().setFocus();
    EXPECT_FALSE(m_Page.Save());
    EXPECT_EQ(m_Prompts.m_Asked,
              "failure: Schedule 1 can't be saved.\n\nStop: \"25:30\" lies behind 24:00.\n");
    EXPECT_TRUE(Find<QLineEdit>(m_Page, "Text_Schedule_Period_Stop").hasFocus());
    Type("Text_Schedule_Period_Stop", "1630");
    EXPECT_EQ(problem.text(), "");
    EXPECT_EQ(Day(0), "420-990");
}

// The field loses the keyboard as the page goes, and must not make a step of its time any more.
TEST_F(SchedulePage, APageCanGoWhileATimeIsBeingTyped) {
    auto page = std::make_unique<cSchedulePage>(m_Services, "Week");
    page->resize(900, 600);
    page->show();
    QApplication::setActiveWindow(page.get());
    auto& view = Find<QWidget>(*page, "Picture_TimeSchedule");
    view.setFocus();
    for (int i = 0; i < 7; ++i) QTest::keyClick(&view, Qt::Key_Up);
    auto& stop = Find<QLineEdit>(*page, "Text_Schedule_Period_Stop");
    ASSERT_EQ(stop.text(), "16:00");
    stop.setFocus();
    stop.selectAll();
    QTest::keyClicks(&stop, "1730");
    ASSERT_EQ(QApplication::focusWidget(), &stop);
    int steps = 0;
    QObject::connect(page->UndoStack(), &QUndoStack::indexChanged, [&steps] { ++steps; });
    page.reset();
    EXPECT_EQ(steps, 0);
}

// The sheet is that of the screen: nothing of it is still on the way.
TEST_F(SchedulePage, ATimeThatIsStillBeingTypedIsOnPaperToo) {
    QApplication::setActiveWindow(m_Window.get());
    Click(0, 600);
    auto& stop = Find<QLineEdit>(m_Page, "Text_Schedule_Period_Stop");
    const auto type = [&](const QString& time) {
        stop.setFocus();
        stop.selectAll();
        QTest::keyClicks(&stop, time);
    };
    type("1730");
    m_Prompts.m_Texts = {"/app/week.pdf"};
    Choose(*m_Window, "Menu_Pdf");
    EXPECT_EQ(Day(0), "420-1050");
    EXPECT_TRUE(m_Files.FileExists("/app/week.pdf"));
    type("18");
    m_Prompts.m_PrintedFile = m_Folder.filePath("printed.pdf");
    Choose(*m_Window, "Menu_Print");
    EXPECT_EQ(Day(0), "420-1080");
    EXPECT_TRUE(QFile::exists(m_Prompts.m_PrintedFile));
    // What is no time is told instead.
    const QString told = "failure: Schedule 1 can't be printed.\n\nStop: \"25:30\" lies behind 24:00.\n";
    for (const char* entry : {"Menu_Pdf", "Menu_Print"}) {
        type("25:30");
        m_Prompts.m_Asked.clear();
        Choose(*m_Window, entry);
        EXPECT_EQ(m_Prompts.m_Asked, told);
        EXPECT_TRUE(stop.hasFocus());
        EXPECT_EQ(stop.text(), "25:30");
    }
}

TEST_F(SchedulePage, ATimeThatIsNoneStaysWithItsPeriod) {
    const auto& problem = Find<QLabel>(m_Page, "Label_Schedule_Problem");
    Drag(View(), {At(0, 1100), At(0, 1200)});
    m_Prompts.m_Texts = {"/app/Office.sch"};
    ASSERT_TRUE(m_Page.Save());
    Click(0, 600);
    Type("Text_Schedule_Period_Stop", "25:30");
    Click(0, 1150);
    EXPECT_EQ(Text("Text_Schedule_Period_Stop"), "20:00");
    EXPECT_EQ(problem.text(), "");
    Type("Text_Schedule_Period_Start", "soon");
    Click(6, 600);
    m_Prompts.m_Asked.clear();
    EXPECT_FALSE(m_Page.Save());
    EXPECT_TRUE(m_Prompts.m_Asked.startsWith("failure: Office.sch can't be saved."));
    EXPECT_EQ(problem.text(), "Start: \"soon\" is not a time such as 8, 0830 or 16:30.");
    EXPECT_EQ(Text("Text_Schedule_Period_Start"), "soon");
    Type("Text_Schedule_Period_Start", "18");
    EXPECT_FALSE(m_Page.Save());
    EXPECT_EQ(Text("Text_Schedule_Period_Stop"), "25:30");
    // What is dragged has the times that it was dragged to.
    Drag(View(), {At(0, 960), At(0, 1000)});
    EXPECT_EQ(problem.text(), "");
    EXPECT_TRUE(m_Page.Save());
    while (m_Page.UndoStack()->canUndo()) Choose(*m_Window, "Menu_Undo");
    EXPECT_EQ(Day(0), "420-960");
    EXPECT_EQ(problem.text(), "");
}

TEST_F(SchedulePage, KeysThatMoveAnEndTakeNothingHalfTyped) {
    Click(0, 600);
    Type("Text_Schedule_Period_Stop", "25:30");
    Key(Qt::Key_Right, kCtrl);
    EXPECT_EQ(Day(0), "425-960");
    EXPECT_EQ(Find<QLabel>(m_Page, "Label_Schedule_Problem").text(), "");
}

TEST_F(SchedulePage, UndoInATimeFieldTakesBackTheTypingThenTheStep) {
    QApplication::setActiveWindow(m_Window.get());
    Click(0, 600);
    Type("Text_Schedule_Period_Stop", "1730");
    ASSERT_EQ(Day(0), "420-1050");
    auto& stop = Find<QLineEdit>(m_Page, "Text_Schedule_Period_Stop");
    stop.setFocus();
    stop.selectAll();
    QTest::keyClicks(&stop, "18");
    QTest::keyClick(&stop, Qt::Key_Z, kCtrl);
    EXPECT_EQ(stop.text(), "17:30");
    EXPECT_EQ(Day(0), "420-1050");
    QTest::keyClick(&stop, Qt::Key_Z, kCtrl);
    EXPECT_EQ(Day(0), "420-960");
    EXPECT_EQ(m_Page.UndoStack()->redoText(), "typing times");
}

TEST_F(SchedulePage, ChoosingByKeysChangesNothing) {
    // Tuesday differs from the group that it is in, as files can have it.
    cContent content;
    content.Day(0, {{420, 960}}).Day(1, {{600, 700}}).Grouped({0, 1});
    m_Files.Put("/app/odd.sch", content.Bytes());
    ASSERT_TRUE(m_Window->OpenFile("/app/odd.sch"));
    auto& page = dynamic_cast<cSchedulePage&>(*m_Window->CurrentPage());
    auto& view = Find<QWidget>(page, "Picture_TimeSchedule");
    QApplication::setActiveWindow(m_Window.get());
    view.setFocus();
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_Up}) {
        QTest::keyClick(&view, key);
        EXPECT_EQ(Periods(page.Schedule(), 0), "420-960");
        EXPECT_EQ(Periods(page.Schedule(), 1), "600-700");
    }
    EXPECT_EQ(page.UndoStack()->count(), 0);
    EXPECT_FALSE(page.IsDirty());
}

TEST_F(SchedulePage, KeysBearAScheduleWithoutRows) {
    Find<QCheckBox>(m_Page, "Check_TimeSchedule_UseCalendar").click();
    auto& list = Find<QListWidget>(m_Page, "List_DayTypes");
    for (int day = 0; day < 7; ++day) list.item(day)->setCheckState(Qt::Unchecked);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Right, Qt::Key_Insert, Qt::Key_Delete})
        Key(key);
    EXPECT_EQ(m_Page.Schedule().SelectedDayType(), -1);
    EXPECT_EQ(m_Page.UndoStack()->count(), 8);
}

TEST_F(SchedulePage, ARowThatIsNoLongerShownIsNotChosen) {
    auto& useCalendar = Find<QCheckBox>(m_Page, "Check_TimeSchedule_UseCalendar");
    useCalendar.click();
    Find<QListWidget>(m_Page, "List_DayTypes").item(7)->setCheckState(Qt::Checked);
    Click(7, 600);
    ASSERT_EQ(m_Page.Schedule().SelectedDayType(), 7);
    useCalendar.click();
    EXPECT_EQ(m_Page.Schedule().SelectedDayType(), -1);
    for (int i = 0; i < 9; ++i) Key(Qt::Key_Down);
    EXPECT_EQ(m_Page.Schedule().SelectedDayType(), 6);
}

TEST_F(SchedulePage, UndoShowsTheRowThatItChanges) {
    Find<QCheckBox>(m_Page, "Check_TimeSchedule_UseCalendar").click();
    auto& list = Find<QListWidget>(m_Page, "List_DayTypes");
    for (int day = 7; day < 20; ++day) list.item(day)->setCheckState(Qt::Checked);
    auto& scroll = Find<QScrollBar>(m_Page, "VScroll_Schedule");
    scroll.setValue(scroll.maximum());
    Drag(View(), {At(19, 600), At(19, 700)});
    scroll.setValue(0);
    Click(0, 600);
    Choose(*m_Window, "Menu_Undo");
    EXPECT_EQ(scroll.value(), scroll.maximum());
    EXPECT_EQ(m_Page.Schedule().SelectedDayType(), 19);
}

// --- rows

TEST_F(SchedulePage, SpecialDayTypesAddRowsAndTheScrollBarReachesThem) {
    auto& list = Find<QListWidget>(m_Page, "List_DayTypes");
    auto& scroll = Find<QScrollBar>(m_Page, "VScroll_Schedule");
    EXPECT_TRUE(list.item(7)->isHidden());
    EXPECT_FALSE(scroll.isEnabled());
    Find<QCheckBox>(m_Page, "Check_TimeSchedule_UseCalendar").click();
    EXPECT_FALSE(list.item(7)->isHidden());
    list.item(9)->setCheckState(Qt::Checked);
    list.item(22)->setCheckState(Qt::Checked);
    EXPECT_EQ(m_Page.Schedule().m_NumberOfAxisToPaint, 9);
    EXPECT_EQ(scroll.maximum(), 8);
    EXPECT_EQ(View().height(), 9 * 25 + 4);
    const int top = View().y();
    scroll.setValue(8);
    EXPECT_EQ(View().y(), top - 50);
    Drag(View(), {At(8, 600), At(8, 700)});
    EXPECT_EQ(Day(22), "600-700");
    list.item(9)->setCheckState(Qt::Unchecked);
    EXPECT_EQ(m_Page.Schedule().m_NumberOfAxisToPaint, 8);
    while (m_Page.UndoStack()->canUndo()) Choose(*m_Window, "Menu_Undo");
    EXPECT_EQ(m_Page.Schedule().m_NumberOfAxisToPaint, 7);
    EXPECT_FALSE(m_Page.Schedule().GetActive(22));
    EXPECT_FALSE(Find<QCheckBox>(m_Page, "Check_TimeSchedule_UseCalendar").isChecked());
}

TEST_F(SchedulePage, TheWheelScrollsTheRows) {
    Find<QCheckBox>(m_Page, "Check_TimeSchedule_UseCalendar").click();
    auto& list = Find<QListWidget>(m_Page, "List_DayTypes");
    for (int day = 7; day < 12; ++day) list.item(day)->setCheckState(Qt::Checked);
    QWheelEvent down(QPointF(50, 50), View().mapToGlobal(QPointF(50, 50)), {}, {0, -120}, Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    // The view leaves the wheel to its frame.
    QCoreApplication::sendEvent(View().parentWidget(), &down);
    EXPECT_GT(Find<QScrollBar>(m_Page, "VScroll_Schedule").value(), 0);
}

TEST_F(SchedulePage, ARowChosenByKeysScrollsIntoSight) {
    Find<QCheckBox>(m_Page, "Check_TimeSchedule_UseCalendar").click();
    auto& list = Find<QListWidget>(m_Page, "List_DayTypes");
    for (int day = 7; day < 12; ++day) list.item(day)->setCheckState(Qt::Checked);
    auto& scroll = Find<QScrollBar>(m_Page, "VScroll_Schedule");
    for (int i = 0; i < 12; ++i) Key(Qt::Key_Down);
    EXPECT_EQ(m_Page.Schedule().SelectedDayType(), 11);
    EXPECT_EQ(scroll.value(), 20);
    for (int i = 0; i < 11; ++i) Key(Qt::Key_Up);
    EXPECT_EQ(scroll.value(), 0);
}

TEST_F(SchedulePage, ASpecialDayTypeGetsANameOfTheInstallation) {
    auto& list = Find<QListWidget>(m_Page, "List_DayTypes");
    EXPECT_EQ(list.item(7)->text(), "Special day type 1");
    Find<QCheckBox>(m_Page, "Check_TimeSchedule_UseCalendar").click();
    list.item(7)->setCheckState(Qt::Checked);
    Click(6, 600);
    Entry("Rename");
    EXPECT_TRUE(m_Prompts.m_Asked.startsWith("failure: Choose a special day type"));
    Drag(View(), {QPoint(150, 7 * 25 + 10)});
    m_Prompts.m_Texts = {"Lucia"};
    Entry("Rename");
    EXPECT_TRUE(m_Prompts.m_Asked.endsWith("Name of the day type: Special day type 1\n"));
    EXPECT_EQ(list.item(7)->text(), "Lucia");
    EXPECT_EQ(m_Files.ReadFile("/app/VigrelDefinitions.INI"), "[DayTypes]\r\n7=Lucia\r\n");
}

TEST_F(SchedulePage, ANameThatCantBeStoredIsRefusedAndCanBeMended) {
    Find<QCheckBox>(m_Page, "Check_TimeSchedule_UseCalendar").click();
    Find<QListWidget>(m_Page, "List_DayTypes").item(7)->setCheckState(Qt::Checked);
    Drag(View(), {QPoint(150, 7 * 25 + 10)});
    const QString greek = QString::fromUtf8("\xCE\x91\xCE\xB8\xCE\xAE\xCE\xBD\xCE\xB1");
    m_Prompts.m_Texts = {greek, "Athens"};
    Entry("Rename");
    EXPECT_EQ(m_Prompts.m_Asked.toStdString(),
              "Name of the day type: Special day type 1\n"
              "failure: Only letters and signs of Western European languages can be stored.\n"
              "Name of the day type: " +
                  greek.toStdString() + "\n");
    EXPECT_EQ(m_Files.ReadFile("/app/VigrelDefinitions.INI"), "[DayTypes]\r\n7=Athens\r\n");
    m_Prompts.m_Texts = {greek};
    Entry("Rename");
    EXPECT_EQ(m_Files.ReadFile("/app/VigrelDefinitions.INI"), "[DayTypes]\r\n7=Athens\r\n");
}

TEST_F(SchedulePage, TheListOfDayTypesTicksThoseThatHaveARow) {
    auto& list = Find<QListWidget>(m_Page, "List_DayTypes");
    const auto ticks = [&] {
        std::string all;
        for (int row = 0; row < list.count(); ++row)
            all += list.item(row)->checkState() == Qt::Checked ? 'x' : '-';
        return all;
    };
    EXPECT_EQ(ticks(), "xxxxxxx----------------");
    list.item(0)->setCheckState(Qt::Unchecked);
    list.item(22)->setCheckState(Qt::Checked);
    EXPECT_EQ(ticks(), "-xxxxxx---------------x");
    Choose(*m_Window, "Menu_Undo");
    Choose(*m_Window, "Menu_Undo");
    EXPECT_EQ(ticks(), "xxxxxxx----------------");
}

TEST_F(SchedulePage, TheMenuOfTheListOfDayTypesGivesThemNameAndImage) {
    const auto& list = Find<QListWidget>(m_Page, "List_DayTypes");
    EXPECT_EQ(list.contextMenuPolicy(), Qt::ActionsContextMenu);
    QStringList entries;
    for (const QAction* entry : list.actions()) entries += entry->text().remove('&');
    EXPECT_EQ(entries.join('|'), "Rename the day type...|Image of the day type");
}

// Escape, for one, is the window's.
TEST_F(SchedulePage, AKeyThatIsNotTheDrawingsGoesOnToThePage) {
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_A}) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        // To the view alone, without those that the toolkit would hand it on to.
        static_cast<QObject&>(View()).event(&press);
        EXPECT_FALSE(press.isAccepted()) << key;
    }
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
    static_cast<QObject&>(View()).event(&down);
    EXPECT_TRUE(down.isAccepted());
}

TEST_F(SchedulePage, ASpecialDayTypeGetsOneOfTheDrawings) {
    cCalendarPage& calendar = NewCalendar();
    Find<QTabWidget>(*m_Window, "Tabs_Pages").setCurrentWidget(&m_Page);
    Find<QCheckBox>(m_Page, "Check_TimeSchedule_UseCalendar").click();
    auto& list = Find<QListWidget>(m_Page, "List_DayTypes");
    list.item(7)->setCheckState(Qt::Checked);
    auto& menu = Find<QMenu>(m_Page, "Menu_DayTypeImages");
    ASSERT_EQ(menu.actions().size(), 23);
    Click(6, 600);
    menu.actions()[2]->trigger();
    EXPECT_TRUE(m_Prompts.m_Asked.startsWith("failure: Choose a special day type"));
    Drag(View(), {QPoint(150, 7 * 25 + 10)});
    menu.actions()[2]->trigger();
    EXPECT_EQ(m_Files.ReadFile("/app/VigrelDefinitions.INI"), "[DayTypeImages]\r\n7=3\r\n");
    // The fir tree is green where the star was brown, in the row and in both lists.
    EXPECT_EQ(Pixel(20, 7 * 25 + 12), QColor("#2f8a3c"));
    const auto middle = [](const QIcon& icon) {
        return icon.pixmap(16, 16).toImage().scaled(16, 16).pixelColor(8, 8);
    };
    const auto& dayTypes = Find<QListWidget>(calendar, "List_Calendar_DayType");
    EXPECT_EQ(middle(list.item(7)->icon()), QColor("#2f8a3c"));
    EXPECT_EQ(middle(dayTypes.item(8)->icon()), QColor("#2f8a3c"));
    // The next start knows it; a number that is no drawing counts as no choice.
    EXPECT_EQ(cDayTypeImages(m_Ini).DrawingOf(1), 3);
    m_Ini.PutIniString("DayTypeImages", "7", "24", "VigrelDefinitions.INI");
    EXPECT_EQ(cDayTypeImages(m_Ini).DrawingOf(1), 1);
}

TEST_F(SchedulePage, ADayTypesNameAndImageAreStepsThatUndoTakesBack) {
    auto& list = Find<QListWidget>(m_Page, "List_DayTypes");
    Find<QCheckBox>(m_Page, "Check_TimeSchedule_UseCalendar").click();
    list.item(7)->setCheckState(Qt::Checked);
    Drag(View(), {QPoint(150, 7 * 25 + 10)});
    const int before = m_Page.UndoStack()->count();
    m_Prompts.m_Texts = {"Lucia", "Lucia", "Yule"};
    Entry("Rename");
    // The same name again is none.
    Entry("Rename");
    EXPECT_EQ(m_Page.UndoStack()->undoText(), "renaming a day type");
    Find<QMenu>(m_Page, "Menu_DayTypeImages").actions()[2]->trigger();
    EXPECT_EQ(m_Page.UndoStack()->undoText(), "choosing an image");
    Entry("Rename");
    EXPECT_EQ(m_Page.UndoStack()->count(), before + 3);
    const auto now = [&] {
        return list.item(7)->text().toStdString() + " " +
               std::to_string(m_Services.m_DayTypeImages.DrawingOf(1));
    };
    EXPECT_EQ(now(), "Yule 3");
    Choose(*m_Window, "Menu_Undo");
    EXPECT_EQ(now(), "Lucia 3");
    Choose(*m_Window, "Menu_Undo");
    EXPECT_EQ(now(), "Lucia 1");
    Choose(*m_Window, "Menu_Undo");
    EXPECT_EQ(now(), "Special day type 1 1");
    EXPECT_EQ(cDayTypeNames(m_Ini, m_Forms).Name(7), "Special day type 1");
    for (int i = 0; i < 3; ++i) Choose(*m_Window, "Menu_Redo");
    EXPECT_EQ(now(), "Yule 3");
    EXPECT_EQ(cDayTypeNames(m_Ini, m_Forms).Name(7), "Yule");
    EXPECT_EQ(cDayTypeImages(m_Ini).DrawingOf(1), 3);
}

TEST_F(SchedulePage, AnImageThatCannotBeStoredIsTold) {
    Find<QCheckBox>(m_Page, "Check_TimeSchedule_UseCalendar").click();
    Find<QListWidget>(m_Page, "List_DayTypes").item(7)->setCheckState(Qt::Checked);
    Drag(View(), {QPoint(150, 7 * 25 + 10)});
    m_Files.m_DiskFull = true;
    Find<QMenu>(m_Page, "Menu_DayTypeImages").actions()[3]->trigger();
    EXPECT_EQ(m_Prompts.m_Asked, "failure: The choice could not be stored in /app/VigrelDefinitions.INI.\n");
}

// --- drawing

TEST_F(SchedulePage, AUnitIsAPixelAt100PercentAndTwoAt200) {
    EXPECT_EQ(View().height(), 179);
    // The left end of Monday's period, 420 minutes: unit 30 + 84.
    EXPECT_EQ(Pixel(113, 4), QColor(220, 220, 220));
    EXPECT_EQ(Pixel(114, 4), QColor(0, 0, 0));
    EXPECT_EQ(Pixel(115, 4), QColor(0, 240, 0));
    EXPECT_EQ(Pixel(115, 18), QColor(0, 142, 0));
    EXPECT_EQ(Pixel(222, 18), QColor(0, 0, 0));
    Choose(*m_Window, "Menu_Zoom_200");
    EXPECT_EQ(View().height(), 358);
    EXPECT_EQ(Pixel(227, 9), QColor(220, 220, 220));
    EXPECT_EQ(Pixel(228, 8), QColor(0, 0, 0));
    EXPECT_EQ(Pixel(229, 37), QColor(0, 0, 0));
    EXPECT_EQ(Pixel(230, 8), QColor(0, 240, 0));
    EXPECT_EQ(Pixel(230, 9), QColor(0, 240, 0));
    EXPECT_EQ(Pixel(230, 10), QColor(0, 233, 0));
}

TEST_F(SchedulePage, OnAScreenOfDoubleDensityAUnitIsTwoOfItsPixels) {
    EXPECT_EQ(Pixel(227, 9, 2), QColor(220, 220, 220));
    EXPECT_EQ(Pixel(228, 8, 2), QColor(0, 0, 0));
    EXPECT_EQ(Pixel(229, 37, 2), QColor(0, 0, 0));
    EXPECT_EQ(Pixel(230, 9, 2), QColor(0, 240, 0));
    EXPECT_EQ(Pixel(230, 10, 2), QColor(0, 233, 0));
    EXPECT_EQ(Pixel(635, 8, 2), QColor(255, 255, 255));
}

TEST_F(SchedulePage, AtOneAndAHalfTheLinesOfABarLeaveNoGap) {
    Choose(*m_Window, "Menu_Zoom_150");
    for (int y = 6; y < 28; ++y) EXPECT_EQ(Pixel(200, y).red(), 0) << y;
}

TEST_F(SchedulePage, TheMouseSpeaksOfUnitsAtEverySize) {
    for (const int percent : {150, 200, 300}) {
        Choose(*m_Window, QString("Menu_Zoom_%1").arg(percent).toLatin1());
        const auto zoomed = [percent](QPoint unit) { return unit * percent / 100.0 + QPoint(1, 1); };
        Drag(View(), {zoomed(At(5, 600)), zoomed(At(5, 700))});
        EXPECT_EQ(Day(5), "600-700") << percent;
        Choose(*m_Window, "Menu_Undo");
    }
}

TEST_F(SchedulePage, TheSelectedPeriodIsDrawnLighter) {
    Click(0, 600);
    EXPECT_EQ(Pixel(150, 18), QColor(64, 206, 64));
    Click(3, 1200);
    EXPECT_EQ(Pixel(150, 18), QColor(0, 142, 0));
}

TEST_F(SchedulePage, TextIsNotThickenedByPaintingAgain) {
    Find<QCheckBox>(m_Page, "Check_TimeSchedule_ViewDayType").click();
    const auto picture = [&] {
        QImage image(View().size(), QImage::Format_RGB32);
        View().render(&image);
        return image;
    };
    const QImage before = picture();
    for (int i = 0; i < 3; ++i) Move(View(), At(1, 100 * i));
    EXPECT_EQ(picture(), before);
}

TEST_F(SchedulePage, OnADarkDesktopTheDrawingStaysLight) {
    const QPalette usual = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(49, 54, 59), QColor(42, 46, 50)));
    auto& view = Find<QWidget>(NewSchedule(), "Picture_TimeSchedule");
    QImage image(view.size(), QImage::Format_RGB32);
    view.render(&image);
    QApplication::setPalette(usual);
    EXPECT_EQ(image.pixelColor(2, 2), QColor(240, 240, 240));
    EXPECT_EQ(view.palette().color(QPalette::WindowText), QColor(Qt::black));
}

TEST_F(SchedulePage, TheDrawingStaysLightWhenTheDesktopBecomesDark) {
    auto& view = Find<QWidget>(NewSchedule(), "Picture_TimeSchedule");
    const QPalette usual = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(49, 54, 59), QColor(42, 46, 50)));
    QCoreApplication::sendPostedEvents();
    QImage image(view.size(), QImage::Format_RGB32);
    view.render(&image);
    QApplication::setPalette(usual);
    EXPECT_EQ(image.pixelColor(2, 2), QColor(240, 240, 240));
    EXPECT_EQ(view.palette().color(QPalette::WindowText), QColor(Qt::black));
}

TEST_F(SchedulePage, SpecialDayTypesShowTheirImageInTheRow) {
    Find<QCheckBox>(m_Page, "Check_TimeSchedule_UseCalendar").click();
    Find<QListWidget>(m_Page, "List_DayTypes").item(7)->setCheckState(Qt::Checked);
    // The star of the first one, left of the axis.
    EXPECT_EQ(Pixel(20, 7 * 25 + 12), QColor("#b86a00"));
}

// The drawing is the main thing: what the window gains is the drawing's, and the panel keeps its width. A
// place of it is the same minute at every size.
TEST_F(SchedulePage, GrowsWithTheWindow) {
    Choose(*m_Window, "Menu_Zoom_Fit");
    m_Window->resize(900, 560);
    ASSERT_TRUE(WaitUntil([&] { return View().width() > 500; })) << View().width();
    const int panel = Find<QWidget>(m_Page, "List_DayTypes").width();
    m_Window->resize(1700, 1050);
    EXPECT_TRUE(WaitUntil([&] { return View().width() > 1300; })) << View().width();
    EXPECT_EQ(Find<QWidget>(m_Page, "List_DayTypes").width(), panel);
    const double zoom = View().width() / 326.0;
    const auto middle = [&](QPoint unit) { return ((QPointF(unit) + QPointF(0.5, 0.5)) * zoom).toPoint(); };
    Drag(View(), {middle(At(5, 600)), middle(At(5, 660))});
    EXPECT_EQ(Day(5), "600-660");
}

// What is drawn reaches the frame's lower or right edge, whatever the window's shape.
TEST_F(SchedulePage, FillsItsRoomInHeightOrWidth) {
    Choose(*m_Window, "Menu_Zoom_Fit");
    const QWidget& frame = Find<QWidget>(m_Page, "Picture_TimeSchedule_Frame");
    for (const QSize size : {QSize(1500, 560), QSize(900, 1100)}) {
        m_Window->resize(size);
        QCoreApplication::processEvents();
        const QWidget& content = *frame.parentWidget();
        const QSize left = content.parentWidget()->size() - content.size();
        EXPECT_GE(left.width(), 0);
        EXPECT_GE(left.height(), 0);
        EXPECT_LE(std::min(left.width(), left.height()), 1);
        EXPECT_EQ(frame.geometry().bottomRight(), content.rect().bottomRight());
    }
}

}  // namespace
}  // namespace vigrel::testing
