// The station's own holidays: a table over a text file, and what calendars make of them.

#include "editor_ui/calendar/own_holidays_page.h"

#include <QAction>
#include <QLabel>
#include <QTabWidget>
#include <QTableWidget>

#include "common/dates.h"
#include "editor_ui/editor_bench.h"

namespace vigrel::testing {
namespace {

const char* const kPath = "/app/OwnHolidays.txt";

class OwnHolidaysPage : public ::testing::Test, protected cEditorBench {
  protected:
    cOwnHolidaysPage& Page() {
        m_Window->ShowOwnHolidays();
        return dynamic_cast<cOwnHolidaysPage&>(*m_Window->CurrentPage());
    }
    QTableWidget& Table() { return Find<QTableWidget>(Page(), "List_OwnHolidays"); }
    std::string Cell(int row, int column) { return Table().item(row, column)->text().toStdString(); }
    void Type(int row, int column, const char* text) { Table().item(row, column)->setText(text); }
    // Types in a cell as a user does, and leaves it open.
    void OpenCell(int row, int column, const char* text) {
        Table().setCurrentCell(row, column);
        Table().setFocus();
        QTest::keyClick(&Table(), Qt::Key_F2);
        QTest::keyClicks(Page().focusWidget(), text);
    }
    std::string Row(int row) {
        const bool every = Table().item(row, 2)->checkState() == Qt::Checked;
        return Cell(row, 0) + " " + Cell(row, 1) + (every ? " every year " : " once ") + Cell(row, 3);
    }
    std::string Asked() { return std::exchange(m_Prompts.m_Asked, {}).toStdString(); }
};

TEST_F(OwnHolidaysPage, AHolidayIsMadeEditedSavedAndReadAgain) {
    Choose(Page(), "Action_Add");
    EXPECT_EQ(Row(0), "2026-03-15  once Company holiday");
    Type(0, 0, "2026-12-27");
    Type(0, 1, "2026-12-30");
    Type(0, 3, "Stocktaking");
    EXPECT_TRUE(Page().IsDirty());
    EXPECT_TRUE(Page().Save());
    EXPECT_EQ(m_Files.ReadFile(kPath), "2026-12-27..2026-12-30 | Stocktaking\r\n");
    Choose(*m_Window, "Menu_Close");
    EXPECT_EQ(Row(0), "2026-12-27 2026-12-30 once Stocktaking");
    Choose(Page(), "Action_Remove");
    EXPECT_TRUE(Page().Save());
    EXPECT_EQ(m_Files.ReadFile(kPath), "");
}

TEST_F(OwnHolidaysPage, EveryYearAndOnceAreATickApart) {
    m_Files.Put(kPath, "2026-12-24..2027-01-06 | Winter break\r\n");
    Table().item(0, 2)->setCheckState(Qt::Checked);
    EXPECT_EQ(Row(0), "12-24 01-06 every year Winter break");
    Table().item(0, 2)->setCheckState(Qt::Unchecked);
    EXPECT_EQ(Row(0), "2026-12-24 2027-01-06 once Winter break");
    EXPECT_EQ(Page().UndoStack()->count(), 2);
    Type(0, 0, "12-27");
    EXPECT_EQ(Row(0), "12-27 01-06 every year Winter break");
    Page().UndoStack()->undo();
    Page().UndoStack()->undo();
    Page().UndoStack()->undo();
    EXPECT_EQ(Row(0), "2026-12-24 2027-01-06 once Winter break");
    EXPECT_FALSE(Page().IsDirty());
    EXPECT_EQ(Asked(), "");
}

TEST_F(OwnHolidaysPage, ATickThatCantBeIsTakenBackWithAReason) {
    m_Files.Put(kPath, "02-29 | Leap day\r\n");
    // This year has no such day.
    Table().item(0, 2)->setCheckState(Qt::Unchecked);
    EXPECT_EQ(Row(0), "02-29  every year Leap day");
    EXPECT_TRUE(Asked().starts_with("failure: "));
    EXPECT_EQ(Page().UndoStack()->count(), 0);
    EXPECT_FALSE(Page().IsDirty());
}

TEST_F(OwnHolidaysPage, AHolidayIsAddedBelowTheChosenOneAndTheChosenOneIsDeleted) {
    m_Files.Put(kPath, "01-01 | A\r\n01-02 | B\r\n01-03 | C\r\n");
    const auto names = [this] {
        std::string all;
        for (int row = 0; row < Table().rowCount(); ++row) all += Cell(row, 3) + ";";
        return all;
    };
    Table().setCurrentCell(1, 3);
    Choose(Page(), "Action_Add");
    EXPECT_EQ(names(), "A;B;Company holiday;C;");
    EXPECT_EQ(Table().currentRow(), 2);
    Type(2, 3, "new");
    Table().setCurrentCell(1, 3);
    Choose(Page(), "Action_Remove");
    EXPECT_EQ(names(), "A;new;C;");
    EXPECT_EQ(Table().currentRow(), 1);
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(Find<QAction>(Page(), "Action_Remove").isEnabled());
        Choose(Page(), "Action_Remove");
    }
    EXPECT_EQ(names(), "");
    EXPECT_FALSE(Find<QAction>(Page(), "Action_Remove").isEnabled());
}

TEST_F(OwnHolidaysPage, AWrongFieldStaysAsTypedAndStandsInTheWayOfSaving) {
    m_Files.Put(kPath, "12-24 | Eve\r\n");
    const auto problem = [this] { return Find<QLabel>(Page(), "Label_CellProblem").text().toStdString(); };
    Type(0, 0, "24.12.");
    EXPECT_EQ(problem(),
              "Row 1, First day: \"24.12.\" is no day such as 2026-12-24, or 12-24 for every year");
    Type(0, 3, "");
    EXPECT_TRUE(problem().ends_with("\nRow 1, Holiday: the name is empty")) << problem();
    Type(0, 3, "a|b");
    EXPECT_TRUE(problem().ends_with("\nRow 1, Holiday: the name must not hold \"|\"")) << problem();
    EXPECT_EQ(Row(0), "24.12.  every year a|b");
    EXPECT_EQ(Asked(), "");
    Choose(*m_Window, "Menu_Close");
    EXPECT_EQ(Asked(), "save OwnHolidays.txt\n");
    EXPECT_FALSE(Page().Save());
    EXPECT_TRUE(Asked().starts_with("failure: OwnHolidays.txt can't be saved.\n\nRow 1, First day: "));
    Type(0, 0, "12-23");
    EXPECT_EQ(problem(), "Row 1, Holiday: the name must not hold \"|\"");
    Type(0, 3, "Eves");
    EXPECT_TRUE(Page().Save());
    EXPECT_EQ(m_Files.ReadFile(kPath), "12-23 | Eves\r\n");
}

// What is wrong beside one day may be right beside the next that is typed.
TEST_F(OwnHolidaysPage, DaysAreTypedInAnyOrder) {
    m_Files.Put(kPath, "2026-12-24..2026-12-26 | Break\r\n");
    Type(0, 0, "2027-12-24");
    EXPECT_TRUE(Find<QLabel>(Page(), "Label_CellProblem").isVisible());
    Type(0, 3, "Winter break");
    EXPECT_EQ(Row(0), "2027-12-24 2026-12-26 once Winter break");
    Type(0, 1, "2027-12-31");
    EXPECT_FALSE(Find<QLabel>(Page(), "Label_CellProblem").isVisible());
    EXPECT_TRUE(Page().Save());
    EXPECT_EQ(m_Files.ReadFile(kPath), "2027-12-24..2027-12-31 | Winter break\r\n");
}

TEST_F(OwnHolidaysPage, ACellThatIsStillOpenIsSavedAndAskedAbout) {
    m_Files.Put(kPath, "12-24 | Eve\r\n");
    OpenCell(0, 3, "Christmas");
    Choose(*m_Window, "Menu_Save");
    EXPECT_EQ(m_Files.ReadFile(kPath), "12-24 | Christmas\r\n");
    OpenCell(0, 3, "Yule");
    Choose(*m_Window, "Menu_Close");
    EXPECT_EQ(Asked(), "save OwnHolidays.txt\n");
    EXPECT_EQ(Cell(0, 3), "Yule");
    OpenCell(0, 3, "Noel");
    EXPECT_FALSE(m_Window->close());
    EXPECT_EQ(Asked(), "save OwnHolidays.txt\n");
    OpenCell(0, 3, "Eve");
    Choose(*m_Window, "Menu_Undo");
    EXPECT_EQ(Cell(0, 3), "Noel");
}

TEST_F(OwnHolidaysPage, LinesThatWereNotUnderstoodAreToldAndStayInTheFile) {
    m_Files.Put(kPath, "# ours\r\n12-24 | Eve\r\nnonsense\r\n");
    auto& problems = Find<QLabel>(Page(), "Label_Problems");
    EXPECT_TRUE(problems.isVisible());
    EXPECT_TRUE(problems.text().endsWith(
        "\nOwnHolidays.txt, line 3: a holiday has two fields (day | name), this line has 1"))
        << problems.text().toStdString();
    Type(0, 3, "Christmas Eve");
    EXPECT_TRUE(Page().Save());
    EXPECT_EQ(m_Files.ReadFile(kPath), "# ours\r\n12-24 | Christmas Eve\r\nnonsense\r\n");
}

TEST_F(OwnHolidaysPage, AFileThatCantBeReadIsNotOpened) {
    m_Files.Put(kPath, "12-24 | Eve\r\n");
    m_Files.SetUnreadable(kPath, true);
    m_Window->ShowOwnHolidays();
    EXPECT_EQ(m_Window->CurrentPage(), nullptr);
    EXPECT_NE(Asked(), "");
}

// A calendar that is open already knows what was saved as soon as it is seen again.
TEST_F(OwnHolidaysPage, CalendarsMarkThemAndGiveThemTheDayType) {
    cCalendarPage& calendar = NewCalendar();
    auto& country = Find<QComboBox>(calendar, "Combo_Calendar_Holidays");
    country.setCurrentIndex(0);
    emit country.activated(0);
    Choose(calendar, "Menu_Calendar_HolidaysOfYear");
    EXPECT_FALSE(calendar.IsDirty());
    Choose(Page(), "Action_Add");
    Type(0, 0, "03-20");
    EXPECT_TRUE(Page().Save());
    Find<QTabWidget>(*m_Window, "Tabs_Pages").setCurrentWidget(&calendar);
    Choose(calendar, "Menu_Calendar_HolidaysOfYear");
    const auto value = [&](int year, int month, int day) {
        return calendar.Editor().Calendar().GetDayType(CalendarIndex(DateSerial(year, month, day)));
    };
    EXPECT_EQ(value(2026, 3, 20), 8);
    EXPECT_EQ(value(2026, 3, 21), 0);
    EXPECT_EQ(value(2027, 3, 20), 0);
}

TEST_F(OwnHolidaysPage, ACalendarNamesTheLinesThatItLeavesOut) {
    m_Files.Put(kPath, "12-24\r\n");
    const auto& problems = Find<QLabel>(NewCalendar(), "Label_Problems");
    EXPECT_TRUE(problems.isVisible());
    EXPECT_TRUE(problems.text().contains("OwnHolidays.txt, line 1")) << problems.text().toStdString();
}

}  // namespace
}  // namespace vigrel::testing
