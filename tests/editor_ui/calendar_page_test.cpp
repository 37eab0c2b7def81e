#include <QContextMenuEvent>
#include <QMenu>
#include <QStatusBar>
#include <QToolButton>

#include "editor_ui/editor_bench.h"
#include "schedule/calendar_geometry.h"
#include "support/qt_wait.h"

namespace vigrel::testing {
namespace {

class CalendarPage : public ::testing::Test, protected cEditorBench {
  protected:
    QWidget& View() { return Find<QWidget>(m_Page, "Picture_Calendar"); }
    QComboBox& Combo(const char* name) { return Find<QComboBox>(m_Page, name); }
    QListWidget& DayTypes() { return Find<QListWidget>(m_Page, "List_Calendar_DayType"); }
    QString Month() { return Find<QLabel>(m_Page, "Text_Calendar_Month").text(); }
    std::int16_t Value(int year, int month, int day) {
        return m_Page.Editor().Calendar().GetDayType(CalendarIndex(DateSerial(year, month, day)));
    }
    static QPoint Cell(int column, int row) { return {30 + 40 * column + 20, 20 + 25 * row + 12}; }
    void Key(Qt::Key key) {
        QApplication::setActiveWindow(m_Window.get());
        View().setFocus();
        QTest::keyClick(&View(), key);
    }
    QColor Pixel(int x, int y) {
        QImage image(View().size(), QImage::Format_RGB32);
        View().render(&image);
        return image.pixelColor(x, y);
    }

    cCalendarPage& m_Page = NewCalendar();
};

TEST_F(CalendarPage, ANewCalendarShowsTheMonthOfToday) {
    EXPECT_EQ(Month(), "March 2026");
    EXPECT_FALSE(m_Page.IsDirty());
    EXPECT_EQ(m_Page.Title(), "Calendar 1");
}

TEST_F(CalendarPage, ADragPaintsTheChosenTypeInOneStepOfUndo) {
    m_Page.Editor().ShowMonth(2026, 6);
    DayTypes().setCurrentRow(8);
    Drag(View(), {Cell(0, 0), Cell(1, 0), Cell(2, 0)});
    for (int day = 1; day <= 4; ++day) EXPECT_EQ(Value(2026, 6, day), day < 4 ? 8 : 0);
    EXPECT_EQ(m_Page.UndoStack()->count(), 1);
    Choose(*m_Window, "Menu_Undo");
    EXPECT_EQ(Value(2026, 6, 1), 0);
    Choose(*m_Window, "Menu_Redo");
    EXPECT_EQ(Value(2026, 6, 3), 8);
    DayTypes().setCurrentRow(0);
    Drag(View(), {Cell(1, 0), Cell(2, 0)});
    EXPECT_EQ(Value(2026, 6, 1), 8);
    EXPECT_EQ(Value(2026, 6, 2), 0);
    EXPECT_EQ(Value(2026, 6, 3), 0);
}

TEST_F(CalendarPage, ClosingInTheMiddleOfAStrokeAsksAboutIt) {
    m_Page.Editor().ShowMonth(2026, 6);
    Press(View(), Cell(0, 0));
    Move(View(), Cell(1, 0));
    EXPECT_FALSE(m_Window->close());
    EXPECT_EQ(m_Prompts.m_Asked, "save Calendar 1\n");
    EXPECT_EQ(m_Page.UndoStack()->undoText(), "painting days");
}

TEST_F(CalendarPage, SavingInTheMiddleOfAStrokeEndsIt) {
    m_Page.Editor().ShowMonth(2026, 6);
    m_Prompts.m_Texts = {"/app/a.cal"};
    Press(View(), Cell(0, 0));
    Move(View(), Cell(1, 0));
    Choose(*m_Window, "Menu_Save");
    Move(View(), Cell(2, 0));
    Release(View(), Cell(2, 0));
    EXPECT_EQ(Value(2026, 6, 2), 8);
    EXPECT_EQ(Value(2026, 6, 3), 0);
    EXPECT_FALSE(m_Page.IsDirty());
    Choose(*m_Window, "Menu_Undo");
    EXPECT_EQ(Value(2026, 6, 2), 0);
    EXPECT_TRUE(m_Page.IsDirty());
}

TEST_F(CalendarPage, AStepInTheMiddleOfAStrokeIsASecondOne) {
    m_Page.Editor().ShowMonth(2026, 6);
    Press(View(), Cell(0, 0));
    Choose(m_Page, "Menu_Calendar_ClearYear");
    EXPECT_EQ(Value(2026, 6, 1), 0);
    Choose(*m_Window, "Menu_Undo");
    EXPECT_EQ(Value(2026, 6, 1), 8);
    Choose(*m_Window, "Menu_Undo");
    EXPECT_EQ(Value(2026, 6, 1), 0);
}

TEST_F(CalendarPage, TurningToTheYearInTheMiddleOfAStrokeKeepsItAsAStep) {
    m_Page.Editor().ShowMonth(2026, 6);
    Press(View(), Cell(0, 0));
    Find<QToolButton>(m_Page, "Button_Calendar_ShowYear").click();
    EXPECT_EQ(Value(2026, 6, 1), 8);
    EXPECT_TRUE(m_Page.IsDirty());
    Choose(*m_Window, "Menu_Undo");
    EXPECT_EQ(Value(2026, 6, 1), 0);
}

TEST_F(CalendarPage, AnotherPageInTheMiddleOfAStrokeEndsIt) {
    m_Page.Editor().ShowMonth(2026, 6);
    Press(View(), Cell(0, 0));
    NewSchedule();
    EXPECT_TRUE(m_Page.IsDirty());
    Find<QTabWidget>(*m_Window, "Tabs_Pages").setCurrentWidget(&m_Page);
    Move(View(), Cell(1, 0));
    EXPECT_EQ(Value(2026, 6, 2), 0);
}

TEST_F(CalendarPage, WithoutAChosenTypeADragPaintsNothing) {
    m_Page.Editor().ShowMonth(2026, 6);
    DayTypes().setCurrentRow(-1);
    Drag(View(), {Cell(0, 0), Cell(1, 0)});
    EXPECT_EQ(Value(2026, 6, 1), 0);
    EXPECT_EQ(Value(2026, 6, 2), 0);
    EXPECT_FALSE(m_Page.IsDirty());
}

TEST_F(CalendarPage, TheMarkOfTheKeysIsNotPrintedAndStaysOnTheScreen) {
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

TEST_F(CalendarPage, TheMarkOfTheKeysIsTheBoxOfItsDay) {
    m_Page.Editor().ShowMonth(2026, 6);
    const QImage unmarked = View().grab().toImage();
    QApplication::setActiveWindow(m_Window.get());
    View().setFocus();
    Key(Qt::Key_Home);
    m_Page.Editor().ShowMonth(2026, 6);
    // The 15th is a Monday in the third week.
    const QPoint cell = Cell(0, 2) - QPoint(20, 12);
    EXPECT_EQ(Difference(unmarked, View().grab().toImage()), QRect(cell + QPoint(1, 1), QSize(38, 23)));
}

TEST_F(CalendarPage, TheFirstPressPaintsASpecialDayType) {
    m_Page.Editor().ShowMonth(2026, 6);
    Drag(View(), {Cell(0, 0), Cell(1, 0)});
    EXPECT_EQ(Value(2026, 6, 1), 8);
    EXPECT_EQ(Value(2026, 6, 2), 8);
}

TEST_F(CalendarPage, TheDayTypesArePicturesToPickFrom) {
    EXPECT_EQ(DayTypes().count(), 24);
    for (int row = 8; row < 24; ++row) EXPECT_FALSE(DayTypes().item(row)->icon().isNull()) << row;
    QTest::mouseClick(DayTypes().viewport(), Qt::LeftButton, {},
                      DayTypes().visualItemRect(DayTypes().item(3)).center());
    m_Page.Editor().ShowMonth(2026, 6);
    Drag(View(), {Cell(0, 0)});
    EXPECT_EQ(Value(2026, 6, 1), 3);
}

TEST_F(CalendarPage, AChoiceBesideTheDrawingHasRoomForTwelveLetters) {
    for (const char* name : {"Combo_Calendar_Holidays", "Combo_Calendar_TimeSchedule"}) {
        const QComboBox& choice = Combo(name);
        EXPECT_EQ(choice.minimumWidth(), 12 * choice.fontMetrics().averageCharWidth()) << name;
    }
}

// The drawing is the main thing: what the window gains is the drawing's, and the choices keep their width.
TEST_F(CalendarPage, GrowsWithTheWindow) {
    Choose(*m_Window, "Menu_Zoom_Fit");
    m_Window->resize(900, 560);
    ASSERT_TRUE(WaitUntil([&] { return View().width() > 500; })) << View().width();
    const int panel = DayTypes().width();
    m_Window->resize(1700, 1050);
    EXPECT_TRUE(WaitUntil([&] { return View().width() > 1200; })) << View().width();
    EXPECT_GT(View().height(), 680);
    EXPECT_LE(DayTypes().width(), panel + 40);
}

TEST_F(CalendarPage, OnlyTheLeftButtonPaints) {
    m_Page.Editor().ShowMonth(2026, 6);
    DayTypes().setCurrentRow(8);
    Press(View(), Cell(0, 0), Qt::RightButton);
    Move(View(), Cell(1, 0));
    EXPECT_EQ(Value(2026, 6, 1), 0);
    EXPECT_EQ(Value(2026, 6, 2), 0);
}

TEST_F(CalendarPage, TheToolTipNamesDayTypeAndHoliday) {
    Combo("Combo_Calendar_Holidays").setCurrentIndex(Combo("Combo_Calendar_Holidays").findText("Sweden"));
    emit Combo("Combo_Calendar_Holidays").activated(0);
    m_Page.Editor().ShowMonth(2026, 6);
    DayTypes().setCurrentRow(9);
    Drag(View(), {Cell(5, 0)});
    Move(View(), Cell(4, 0));
    Move(View(), Cell(5, 0));
    EXPECT_EQ(View().toolTip(), "Special day type 2 (Sveriges nationaldag)");
    EXPECT_EQ(m_Ini.GetIniString("Calendar", "Holidays", "", "VigrelDefinitions.INI"), "SE");
}

TEST_F(CalendarPage, TheToolTipIsNeverThatOfTheMonthBefore) {
    m_Page.Editor().ShowMonth(2026, 6);
    DayTypes().setCurrentRow(9);
    Drag(View(), {Cell(5, 0)});
    Move(View(), Cell(5, 0));
    EXPECT_EQ(View().toolTip(), "Special day type 2");
    m_Page.Editor().ShowMonth(2026, 9);
    EXPECT_EQ(View().toolTip(), "");
    m_Page.Editor().ShowMonth(2026, 6);
    Move(View(), Cell(5, 0));
    EXPECT_EQ(View().toolTip(), "Special day type 2");
}

TEST_F(CalendarPage, TheFirstDayHasItsToolTipWhenThePointerComesFirst) {
    Combo("Combo_Calendar_Holidays").setCurrentIndex(Combo("Combo_Calendar_Holidays").findText("Germany"));
    emit Combo("Combo_Calendar_Holidays").activated(0);
    m_Page.Editor().ShowMonth(2026, 1);
    Move(View(), Cell(3, 0));
    EXPECT_EQ(View().toolTip(), " (Neujahr)");
}

TEST_F(CalendarPage, AClickedDayHasItsNewTypeInTheToolTip) {
    m_Page.Editor().ShowMonth(2026, 6);
    DayTypes().setCurrentRow(8);
    Move(View(), Cell(2, 1));
    Press(View(), Cell(2, 1));
    Release(View(), Cell(2, 1));
    Move(View(), Cell(2, 1));
    EXPECT_EQ(View().toolTip(), "Special day type 1");
}

TEST_F(CalendarPage, TheChosenCountryIsThatOfTheNextCalendar) {
    m_Ini.PutIniString("Calendar", "Holidays", "DK", "VigrelDefinitions.INI");
    EXPECT_EQ(Find<QComboBox>(NewCalendar(), "Combo_Calendar_Holidays").currentText(), "Denmark");
    m_Ini.PutIniString("Calendar", "Holidays", "", "VigrelDefinitions.INI");
    EXPECT_EQ(Find<QComboBox>(NewCalendar(), "Combo_Calendar_Holidays").currentText(), "None");
}

TEST_F(CalendarPage, ACountryThatCannotBeStoredIsTold) {
    auto& countries = Combo("Combo_Calendar_Holidays");
    const auto take = [&](const char* country) {
        countries.setCurrentIndex(countries.findText(country));
        emit countries.activated(countries.currentIndex());
        return std::exchange(m_Prompts.m_Asked, {});
    };
    EXPECT_EQ(take("Denmark"), "");
    EXPECT_EQ(take("None"), "");
    m_Files.m_DiskFull = true;
    EXPECT_EQ(take("Germany"), "failure: The choice could not be stored in /app/VigrelDefinitions.INI.\n");
    // It holds here all the same.
    m_Page.Editor().ShowMonth(2026, 1);
    Move(View(), Cell(3, 0));
    EXPECT_EQ(View().toolTip(), " (Neujahr)");
}

TEST_F(CalendarPage, MonthsAreTurnedUpToTheEndsOfTheCalendar) {
    auto& previous = Find<QToolButton>(m_Page, "Button_Calendar_Previous");
    auto& next = Find<QToolButton>(m_Page, "Button_Calendar_Next");
    next.click();
    EXPECT_EQ(Month(), "April 2026");
    for (int i = 0; i < 4; ++i) previous.click();
    EXPECT_EQ(Month(), "December 2025");
    Find<QSpinBox>(m_Page, "Spin_Calendar_Year").setValue(2039);
    EXPECT_EQ(Month(), "December 2039");
    EXPECT_FALSE(next.isEnabled());
    Combo("Combo_Calendar_Month").setCurrentIndex(0);
    Find<QSpinBox>(m_Page, "Spin_Calendar_Year").setValue(2000);
    EXPECT_EQ(Month(), "January 2000");
    EXPECT_FALSE(previous.isEnabled());
    EXPECT_TRUE(next.isEnabled());
    Key(Qt::Key_PageUp);
    EXPECT_EQ(Month(), "January 2000");
    Find<QToolButton>(m_Page, "Button_Calendar_Today").click();
    EXPECT_EQ(Month(), "March 2026");
}

TEST_F(CalendarPage, KeysChooseADayAcrossMonthsAndPaintIt) {
    DayTypes().setCurrentRow(7);
    Key(Qt::Key_Space);
    EXPECT_EQ(Value(2026, 3, 15), 7);
    Key(Qt::Key_Right);
    Key(Qt::Key_Down);
    Key(Qt::Key_Space);
    EXPECT_EQ(Value(2026, 3, 23), 7);
    Key(Qt::Key_Down);
    Key(Qt::Key_Down);
    EXPECT_EQ(Month(), "April 2026");
    Key(Qt::Key_Space);
    EXPECT_EQ(Value(2026, 4, 6), 7);
    Key(Qt::Key_PageDown);
    Key(Qt::Key_Space);
    EXPECT_EQ(Value(2026, 5, 6), 7);
    Key(Qt::Key_Home);
    EXPECT_EQ(Month(), "March 2026");
    Key(Qt::Key_Left);
    Key(Qt::Key_Up);
    Key(Qt::Key_Space);
    EXPECT_EQ(Value(2026, 3, 7), 7);
    EXPECT_EQ(m_Page.UndoStack()->count(), 5);
}

TEST_F(CalendarPage, AMonthThatIsShorterHasItsLastDayChosen) {
    m_Clock.Set(2026, 3, 31);
    Key(Qt::Key_Home);
    Key(Qt::Key_PageDown);
    DayTypes().setCurrentRow(7);
    Key(Qt::Key_Space);
    EXPECT_EQ(Value(2026, 4, 30), 7);
    EXPECT_EQ(m_Page.UndoStack()->count(), 1);
}

TEST_F(CalendarPage, KeysGoOnFromTheDayThatWasClicked) {
    m_Page.Editor().ShowMonth(2026, 6);
    DayTypes().setCurrentRow(7);
    Drag(View(), {Cell(2, 1)});
    Drag(View(), {QPoint(5, 5)});
    Key(Qt::Key_Right);
    Key(Qt::Key_Space);
    EXPECT_EQ(Value(2026, 6, 11), 7);
}

TEST_F(CalendarPage, KeysStopAtTheEndsOfTheCalendar) {
    m_Page.Editor().ShowMonth(2000, 1);
    for (int i = 0; i < 20; ++i) Key(Qt::Key_Left);
    DayTypes().setCurrentRow(7);
    Key(Qt::Key_Space);
    EXPECT_EQ(Value(2000, 1, 1), 7);
    EXPECT_EQ(Month(), "January 2000");
}

TEST_F(CalendarPage, KeysStopAtTheLastDayOfTheCalendar) {
    m_Page.Editor().ShowMonth(2039, 12);
    for (int i = 0; i < 20; ++i) Key(Qt::Key_Right);
    DayTypes().setCurrentRow(7);
    Key(Qt::Key_Space);
    EXPECT_EQ(Value(2039, 12, 31), 7);
    EXPECT_EQ(Month(), "December 2039");
}

TEST_F(CalendarPage, OutsideItsYearsTheNearestMonthIsThatOfToday) {
    for (const int year : {1999, 2000, 2039, 2040}) {
        m_Clock.Set(year, 6, 15);
        Key(Qt::Key_Home);
        EXPECT_EQ(Month(), year < 2000   ? "January 2000"
                           : year > 2039 ? "December 2039"
                                         : QString("June %1").arg(year));
    }
}

TEST_F(CalendarPage, ItIsToldHowManyHolidaysWerePainted) {
    const auto told = [this] { return m_Window->statusBar()->currentMessage().toStdString(); };
    auto& countries = Combo("Combo_Calendar_Holidays");
    countries.setCurrentIndex(0);
    emit countries.activated(0);
    Choose(m_Page, "Menu_Calendar_HolidaysOfYear");
    EXPECT_EQ(told(), "There are no holidays: choose their country, or write your own.");
    countries.setCurrentIndex(countries.findData("DE-BY"));
    emit countries.activated(0);
    DayTypes().setCurrentRow(9);
    Choose(m_Page, "Menu_Calendar_HolidaysOfYear");
    int painted = 0;
    for (std::int32_t day = 0; day < kCalendarDays; ++day)
        painted += m_Page.Editor().Calendar().GetDayType(day) == 9 ? 1 : 0;
    EXPECT_GT(painted, 9);
    EXPECT_EQ(told(), "Painted holidays: " + std::to_string(painted) + " (Special day type 2)");
}

TEST_F(CalendarPage, TheYearsHolidaysTakeTheChosenType) {
    Combo("Combo_Calendar_Holidays").setCurrentIndex(Combo("Combo_Calendar_Holidays").findText("Sweden"));
    emit Combo("Combo_Calendar_Holidays").activated(0);
    DayTypes().setCurrentRow(7);
    m_Page.Editor().ShowMonth(2026, 5);
    Choose(m_Page, "Menu_Calendar_HolidaysOfYear");
    EXPECT_EQ(Value(2026, 1, 6), 7);
    EXPECT_EQ(Value(2026, 5, 14), 7);
    EXPECT_EQ(Value(2026, 12, 24), 0);
    EXPECT_EQ(Value(2027, 1, 6), 0);
    Choose(m_Page, "Menu_Calendar_HolidaysOfAllYears");
    EXPECT_EQ(Value(2027, 1, 6), 7);
    EXPECT_EQ(Value(2000, 1, 1), 7);
    Choose(m_Page, "Menu_Calendar_ClearYear");
    EXPECT_EQ(Value(2026, 1, 6), 0);
    EXPECT_EQ(Value(2027, 1, 6), 7);
    EXPECT_EQ(m_Page.UndoStack()->count(), 3);
    Choose(*m_Window, "Menu_Undo");
    EXPECT_EQ(Value(2026, 1, 6), 7);
}

TEST_F(CalendarPage, WithoutACountryNoHolidayIsPainted) {
    Combo("Combo_Calendar_Holidays").setCurrentIndex(0);
    emit Combo("Combo_Calendar_Holidays").activated(0);
    DayTypes().setCurrentRow(7);
    Choose(m_Page, "Menu_Calendar_HolidaysOfYear");
    EXPECT_FALSE(m_Page.IsDirty());
}

TEST_F(CalendarPage, UndoTurnsToTheMonthThatItChanges) {
    m_Page.Editor().ShowMonth(2026, 6);
    DayTypes().setCurrentRow(8);
    Drag(View(), {Cell(0, 0)});
    m_Page.Editor().ShowMonth(2031, 2);
    Choose(*m_Window, "Menu_Undo");
    EXPECT_EQ(Month(), "June 2026");
    m_Page.Editor().ShowMonth(2031, 2);
    Choose(*m_Window, "Menu_Redo");
    EXPECT_EQ(Month(), "June 2026");
    // The keyboard's day is that of the change.
    Key(Qt::Key_Right);
    Key(Qt::Key_Space);
    EXPECT_EQ(Value(2026, 6, 2), 8);
}

TEST_F(CalendarPage, UndoStaysInAMonthThatItChanges) {
    DayTypes().setCurrentRow(8);
    Combo("Combo_Calendar_Holidays").setCurrentIndex(Combo("Combo_Calendar_Holidays").findData("DE-BW"));
    emit Combo("Combo_Calendar_Holidays").activated(0);
    Choose(*m_Window, "Menu_Calendar_HolidaysOfYear");
    EXPECT_EQ(Value(2026, 11, 1), 8);
    m_Page.Editor().ShowMonth(2026, 5);
    Choose(*m_Window, "Menu_Undo");
    EXPECT_EQ(Month(), "May 2026");
    EXPECT_EQ(Value(2026, 5, 1), 0);
}

TEST_F(CalendarPage, AYearIsCopiedToTheNextInOneStep) {
    m_Page.Editor().ShowMonth(2026, 6);
    DayTypes().setCurrentRow(8);
    Drag(View(), {Cell(0, 0)});
    Choose(*m_Window, "Menu_Calendar_CopyYear");
    EXPECT_EQ(Month(), "June 2027");
    EXPECT_EQ(Value(2027, 6, 1), 8);
    Choose(*m_Window, "Menu_Undo");
    EXPECT_EQ(Value(2027, 6, 1), 0);
    m_Page.Editor().ShowMonth(2039, 6);
    Choose(*m_Window, "Menu_Calendar_CopyYear");
    EXPECT_EQ(Month(), "June 2039");
}

TEST_F(CalendarPage, TheLastYearIsNotCopiedAndThatIsTold) {
    m_Page.Editor().ShowMonth(2039, 5);
    Choose(m_Page, "Menu_Calendar_CopyYear");
    EXPECT_EQ(m_Page.UndoStack()->count(), 0);
    EXPECT_EQ(m_Window->statusBar()->currentMessage().toStdString(),
              "2039 is the last year of a calendar: there is none to copy it to.");
}

TEST_F(CalendarPage, ThePopupMenuOpensOverMonthAndYear) {
    auto& menu = Find<QMenu>(m_Page, "Menu_CalendarPopup");
    QStringList entries;
    for (const QAction* action : menu.actions()) entries += action->text().remove('&');
    EXPECT_EQ(entries.join('|'),
              "Give the year's holidays the chosen day type|Give all years' holidays the chosen day type||"
              "Copy the year to the next|Clear the year");
    const auto open = [&](QWidget& view, QContextMenuEvent::Reason reason) {
        QContextMenuEvent event(reason, Cell(0, 0), view.mapToGlobal(Cell(0, 0)));
        QCoreApplication::sendEvent(&view, &event);
        const bool isOpen = menu.isVisible();
        menu.hide();
        return isOpen;
    };
    EXPECT_TRUE(open(View(), QContextMenuEvent::Mouse));
    EXPECT_TRUE(open(View(), QContextMenuEvent::Keyboard));
    // Not in the middle of a stroke.
    Press(View(), Cell(0, 0));
    EXPECT_FALSE(open(View(), QContextMenuEvent::Mouse));
    Release(View(), Cell(0, 0));
    Find<QToolButton>(m_Page, "Button_Calendar_ShowYear").click();
    EXPECT_TRUE(open(Find<QWidget>(m_Page, "Picture_Calendar_Year"), QContextMenuEvent::Mouse));
}

TEST_F(CalendarPage, TheTimeAxisIsThatOfTheChosenSchedule) {
    cSchedulePage& schedule = NewSchedule();
    m_Page.Editor().ShowMonth(2026, 6);
    auto& combo = Combo("Combo_Calendar_TimeSchedule");
    auto& check = Find<QCheckBox>(m_Page, "Check_Calendar_ShowTimeAxis");
    EXPECT_EQ(combo.count(), 2);
    EXPECT_FALSE(check.isEnabled());
    combo.setCurrentIndex(1);
    EXPECT_EQ(combo.currentText(), "Schedule 1");
    check.click();
    // Monday the 1st: 07:00 is 10.8 units from the box's left.
    EXPECT_EQ(Pixel(32 + 20, 22 + 17), QColor(0, 240, 0));
    EXPECT_EQ(Pixel(32 + 5, 22 + 17), QColor(220, 220, 220));
    // An edit of the schedule is seen at once.
    auto& view = Find<QWidget>(schedule, "Picture_TimeSchedule");
    Drag(view, {At(0, 420), At(0, 0)});
    EXPECT_EQ(Pixel(32 + 5, 22 + 17), QColor(0, 240, 0));
}

TEST_F(CalendarPage, AClosedScheduleIsLetGo) {
    NewSchedule();
    Combo("Combo_Calendar_TimeSchedule").setCurrentIndex(1);
    ASSERT_NE(m_Page.Editor().Calendar().m_AssociatedTimeSchedule, nullptr);
    Choose(*m_Window, "Menu_Close");
    EXPECT_EQ(m_Page.Editor().Calendar().m_AssociatedTimeSchedule, nullptr);
    EXPECT_EQ(Combo("Combo_Calendar_TimeSchedule").count(), 1);
    EXPECT_FALSE(Find<QCheckBox>(m_Page, "Check_Calendar_ShowTimeAxis").isEnabled());
}

TEST_F(CalendarPage, TheChosenScheduleStaysWhenAnotherIsOpenedOrRenamed) {
    cSchedulePage& schedule = NewSchedule();
    Combo("Combo_Calendar_TimeSchedule").setCurrentIndex(1);
    NewSchedule();
    EXPECT_EQ(Combo("Combo_Calendar_TimeSchedule").currentText(), "Schedule 1");
    EXPECT_EQ(m_Page.Editor().Calendar().m_AssociatedTimeSchedule, &schedule.Schedule());
    m_Prompts.m_Texts = {"/app/Office.sch"};
    EXPECT_TRUE(schedule.SaveAs());
    EXPECT_EQ(Combo("Combo_Calendar_TimeSchedule").currentText(), "Office.sch");
}

TEST_F(CalendarPage, BandsAndBoxesStandWhereTheyShould) {
    // Sunday 15 March 2026 is today: green over red, in the third row.
    EXPECT_EQ(Pixel(30 + 6 * 40 + 2 + 13, 20 + 2 * 25 + 2 + 21), QColor(0, 192, 0));
    EXPECT_EQ(Pixel(30 + 6 * 40 + 2 + 13, 20 + 25 + 2 + 21), QColor(255, 129, 129));
    EXPECT_EQ(Pixel(30 + 40, 100), QColor(0, 0, 0));
    EXPECT_EQ(Pixel(31 + 40, 100), QColor(255, 255, 255));
}

TEST_F(CalendarPage, TheDrawingFillsItsFrameAtEveryScale) {
    auto& frame = Find<QFrame>(m_Page, "Picture_Calendar_Frame");
    EXPECT_GT(frame.frameWidth(), 0);
    for (const double zoom : {1.0, 1.5, 1.0}) {
        m_Page.SetZoom(zoom);
        QCoreApplication::sendPostedEvents();
        EXPECT_TRUE(WaitUntil([&] { return View().geometry() == frame.contentsRect(); })) << zoom;
    }
}

TEST_F(CalendarPage, ADaysNumberAndItsShortNameFitIntoItsBox) {
    const cPaintSurface& surface = dynamic_cast<cDrawingView&>(View()).Surface();
    for (const char* name : {"Wed", "Mon", "tors", "Do", "ma"}) {
        EXPECT_LE(surface.TextWidth("28") + surface.TextWidth(name), kBoxWidth) << name;
    }
}

TEST_F(CalendarPage, TheListOfDayTypesFollowsANewName) {
    cSchedulePage& schedule = NewSchedule();
    Find<QCheckBox>(schedule, "Check_TimeSchedule_UseCalendar").click();
    Find<QListWidget>(schedule, "List_DayTypes").item(22)->setCheckState(Qt::Checked);
    Drag(Find<QWidget>(schedule, "Picture_TimeSchedule"), {QPoint(150, 7 * 25 + 10)});
    DayTypes().setCurrentRow(3);
    m_Prompts.m_Texts = {QString::fromUtf8("Årsmöte")};
    Choose(schedule, "Menu_TimeSchedulePopup_Rename");
    EXPECT_EQ(DayTypes().item(23)->text(), QString::fromUtf8("Årsmöte"));
    EXPECT_EQ(DayTypes().currentRow(), 3);
}

}  // namespace
}  // namespace vigrel::testing
