// The year at a glance: twelve months on one page, painted on like the month.

#include <QFile>
#include <QImage>
#include <QLabel>
#include <QListWidget>
#include <QToolButton>
#include <set>

#include "common/dates.h"
#include "editor_ui/calendar/year_drawing.h"
#include "editor_ui/editor_bench.h"

namespace vigrel::testing {
namespace {

constexpr std::int16_t kHoliday = 8;

class YearOverview : public ::testing::Test, protected cEditorBench {
  protected:
    YearOverview() {
        Find<QToolButton>(m_Page, "Button_Calendar_ShowYear").click();
        Find<QListWidget>(m_Page, "List_Calendar_DayType").setCurrentRow(kHoliday);
        m_Window->resize(1200, 800);
        QCoreApplication::processEvents();
    }
    QWidget& View() { return Find<QWidget>(m_Page, "Picture_Calendar_Year"); }
    static std::int32_t Index(int year, int month, int day) {
        return CalendarIndex(DateSerial(year, month, day));
    }
    std::int16_t Value(int year, int month, int day) {
        return m_Page.Editor().Calendar().GetDayType(Index(year, month, day));
    }
    cYearDrawing Drawing(int year) { return {QRectF(View().rect()).adjusted(0, 0, -1, -1), year}; }
    QPoint Cell(int month, int day, int year = 2026) {
        return Drawing(year).CellOf(Index(year, month, day)).center().toPoint();
    }
    QColor Corner(int month, int day) {
        const QPoint corner =
            Drawing(2026).CellOf(Index(2026, month, day)).topLeft().toPoint() + QPoint(2, 2);
        return View().grab().toImage().pixelColor(corner);
    }

    cCalendarPage& m_Page = NewCalendar();
};

TEST(YearDrawing, FindsEachDayOfTheYearAtItsCellAndNoOther) {
    for (const int year : {2000, 2026, 2039}) {
        const cYearDrawing drawing(QRectF(10, 20, 1000, 700), year);
        const std::int32_t first = CalendarIndex(DateSerial(year, 1, 1));
        const std::int32_t end = CalendarIndex(DateSerial(year + 1, 1, 1));
        for (std::int32_t day = first; day < end; ++day) {
            EXPECT_EQ(drawing.DayAt(drawing.CellOf(day).center()), day) << year;
            EXPECT_TRUE(QRectF(10, 20, 1000, 700).contains(drawing.CellOf(day)));
        }
        EXPECT_EQ(drawing.DayAt({12, 22}), std::nullopt);
    }
}

// Each month has six weeks and two lines above them, one beside and one below the other without much lost.
TEST(YearDrawing, FillsTheAreaAboveItsLegend) {
    const cYearDrawing drawing(QRectF(0, 0, 1000, 800), 2028);
    const auto CellOf = [&](int month, int day) {
        return drawing.CellOf(CalendarIndex(DateSerial(2028, month, day)));
    };
    // January and October 2028 begin with the last days of a first week, and need six.
    const QRectF january = CellOf(1, 31), october = CellOf(10, 31), december = CellOf(12, 31);
    const double weeks = 6, head = 2, below = 4;
    EXPECT_DOUBLE_EQ(january.height(), 240 * 0.92 / (head + weeks));
    EXPECT_DOUBLE_EQ(january.bottom(), 240 * 0.96);
    EXPECT_DOUBLE_EQ(october.bottom(), 2 * 240 + 240 * 0.96);
    EXPECT_DOUBLE_EQ(december.right(), 1000 - 250 * 0.04);
    EXPECT_DOUBLE_EQ(december.width() * 7, (1000 / below) * 0.92);
    EXPECT_GT(drawing.LegendAt(0, 1).box.top(), october.bottom());
}

TEST(YearDrawing, GivesEachSpecialDayTypeAColourOfItsOwn) {
    std::set<QRgb> colours;
    for (std::int16_t value = kWeekDays + 1; value <= kDayTypes; ++value) {
        const QColor colour = cYearDrawing::ColourOf(value);
        EXPECT_GE(colour.lightness(), 150) << value;
        colours.insert(colour.rgb());
    }
    EXPECT_EQ(colours.size(), 16u);
    EXPECT_EQ(cYearDrawing::ColourOf(0), QColor(Qt::white));
}

TEST_F(YearOverview, GrowsWithTheWindow) {
    const int width = View().width();
    EXPECT_GT(width, 700);
    m_Window->resize(1500, 800);
    QCoreApplication::processEvents();
    EXPECT_GE(View().width(), width + 250);
}

TEST_F(YearOverview, IsPaintedOnInOneStepAcrossMonths) {
    Drag(View(), {Cell(6, 30), Cell(6, 30), Cell(7, 1), Cell(7, 2)});
    EXPECT_EQ(Value(2026, 6, 30), kHoliday);
    EXPECT_EQ(Value(2026, 7, 1), kHoliday);
    EXPECT_EQ(Value(2026, 7, 2), kHoliday);
    EXPECT_EQ(m_Page.UndoStack()->count(), 1);
    Choose(*m_Window, "Menu_Undo");
    EXPECT_EQ(Value(2026, 6, 30), 0);
    EXPECT_EQ(Value(2026, 7, 2), 0);
}

TEST_F(YearOverview, AStrokeThatIsUnderWayIsAskedAboutAtTheEnd) {
    Press(View(), Cell(6, 30));
    EXPECT_FALSE(m_Window->close());
    EXPECT_EQ(m_Prompts.m_Asked, "save Calendar 1\n");
    EXPECT_EQ(m_Page.UndoStack()->undoText(), "painting days");
    Move(View(), Cell(7, 1));
    EXPECT_EQ(Value(2026, 7, 1), 0);
}

TEST_F(YearOverview, ColoursADayByItsType) {
    EXPECT_EQ(Corner(6, 30), QColor(Qt::white));
    Drag(View(), {Cell(6, 30)});
    EXPECT_EQ(Corner(6, 30).rgb(), cYearDrawing::ColourOf(kHoliday).rgb());
}

TEST_F(YearOverview, TellsDateTypeAndHolidayInItsTip) {
    QComboBox& countries = Find<QComboBox>(m_Page, "Combo_Calendar_Holidays");
    countries.setCurrentIndex(countries.findData("DE-BY"));
    emit countries.activated(0);
    Drag(View(), {Cell(11, 1)});
    Move(View(), Cell(11, 1));
    EXPECT_EQ(View().toolTip(), "2026-11-01: Special day type 1 (Allerheiligen)");
}

TEST_F(YearOverview, TurnsByYearsAndIsPaintedOnByKeys) {
    EXPECT_EQ(Find<QLabel>(m_Page, "Text_Calendar_Month").text(), "2026");
    Find<QToolButton>(m_Page, "Button_Calendar_Next").click();
    EXPECT_EQ(Find<QLabel>(m_Page, "Text_Calendar_Month").text(), "2027");
    QTest::keyClick(&View(), Qt::Key_Right);
    QTest::keyClick(&View(), Qt::Key_Space);
    EXPECT_EQ(Value(2027, 3, 16), kHoliday);
    Find<QToolButton>(m_Page, "Button_Calendar_ShowYear").click();
    EXPECT_EQ(Find<QLabel>(m_Page, "Text_Calendar_Month").text(), "March 2027");
}

TEST_F(YearOverview, LeavesTheChoiceOfAMonthToTheMonth) {
    auto& months = Find<QComboBox>(m_Page, "Combo_Calendar_Month");
    EXPECT_FALSE(months.isEnabled());
    Find<QToolButton>(m_Page, "Button_Calendar_ShowYear").click();
    EXPECT_TRUE(months.isEnabled());
}

// On a narrow sheet too, with names that have no room.
TEST_F(YearOverview, TellsTheColoursOfAllItsDayTypes) {
    std::string bytes(29220, '\0');
    const auto first = static_cast<std::size_t>(Index(2026, 3, 2));
    for (int i = 0; i < kDayTypes; ++i)
        bytes[2 * (first + static_cast<std::size_t>(i))] = static_cast<char>(i + 1);
    m_Files.Put("/app/all.cal", bytes);
    m_Ini.PutIniString("DayTypes", "7", "A name of a day type that is as long as a whole sentence",
                       kDefinitionsIni);
    ASSERT_TRUE(m_Page.Open("/app/all.cal"));
    m_Page.Editor().ShowMonth(2026, 3);
    const QRectF area(0, 0, 700, 500);
    const QImage sheet = OnPaper(m_Page.Printout(), area);
    const cYearDrawing drawing(area, 2026);
    for (int i = 0; i < kDayTypes; ++i) {
        const cYearDrawing::cLegend legend = drawing.LegendAt(i, kDayTypes);
        EXPECT_TRUE(area.contains(legend.box)) << i;
        EXPECT_LE(legend.name.right(), area.right() + 0.01) << i;
        EXPECT_EQ(sheet.pixelColor(legend.box.center().toPoint()).rgb(),
                  cYearDrawing::ColourOf(static_cast<std::int16_t>(i + 1)).rgb())
            << i;
        if (i >= 3) continue;
        EXPECT_LE(legend.name.right(), drawing.LegendAt(i + 3, kDayTypes).box.left()) << i;
    }
}

// --- paper

std::string PdfWith(cFakeFiles& files, const std::string& path) {
    std::string pdf = files.ReadFile(path);
    EXPECT_TRUE(pdf.starts_with("%PDF-")) << path;
    return pdf;
}

TEST_F(YearOverview, AndMonthAndWeekAreSavedAsPdf) {
    m_Prompts.m_Texts = {"/app/year.pdf"};
    Choose(*m_Window, "Menu_Pdf");
    EXPECT_EQ(m_Prompts.m_Asked, "save as /app/Calendar 1 - 2026.pdf (pdf)\n");
    const std::size_t year = PdfWith(m_Files, "/app/year.pdf").size();
    Find<QToolButton>(m_Page, "Button_Calendar_ShowYear").click();
    m_Prompts.m_Asked.clear();
    m_Prompts.m_Texts = {"/app/month.pdf"};
    Choose(*m_Window, "Menu_Pdf");
    EXPECT_EQ(m_Prompts.m_Asked, "save as /app/Calendar 1 - March 2026.pdf (pdf)\n");
    EXPECT_NE(PdfWith(m_Files, "/app/month.pdf").size(), year);
    NewSchedule();
    m_Prompts.m_Texts = {"/app/week.pdf"};
    Choose(*m_Window, "Menu_Pdf");
    EXPECT_GT(PdfWith(m_Files, "/app/week.pdf").size(), 1000u);
    m_Files.m_DiskFull = true;
    m_Prompts.m_Asked.clear();
    m_Prompts.m_Texts = {"/app/full.pdf"};
    Choose(*m_Window, "Menu_Pdf");
    EXPECT_TRUE(m_Prompts.m_Asked.contains("failure: The file was not saved."))
        << m_Prompts.m_Asked.toStdString();
    EXPECT_FALSE(m_Files.FileExists("/app/full.pdf"));
}

// The sheet has what the screen has: a painted day is in its colour.
TEST_F(YearOverview, OnPaperHasItsColours) {
    Drag(View(), {Cell(6, 30)});
    const QRectF area(0, 0, 1200, 900);
    const QImage sheet = OnPaper(m_Page.Printout(), area);
    const QRectF cell = cYearDrawing(area, 2026).CellOf(Index(2026, 6, 30));
    EXPECT_EQ(sheet.pixelColor(cell.topLeft().toPoint() + QPoint(2, 2)).rgb(),
              cYearDrawing::ColourOf(kHoliday).rgb());
}

// Types without a name of their own differ in the number at the end.
TEST_F(YearOverview, KeepsItsLettersWithinTheirCellsOnANarrowSheet) {
    const QRectF area(0, 0, 280, 1200);
    const QImage sheet = OnPaper(m_Page.Printout(), area);
    // Between two months beside each other nothing is drawn.
    const cYearDrawing drawing(area, 2026);
    const QRectF left = drawing.CellOf(Index(2026, 2, 1)), right = drawing.CellOf(Index(2026, 3, 2));
    const int from = static_cast<int>(left.right()) + 2, to = static_cast<int>(right.left()) - 1;
    ASSERT_GT(to, from);
    for (int y = static_cast<int>(left.top() - left.height()); y < left.bottom(); ++y) {
        for (int x = from; x < to; ++x) EXPECT_EQ(sheet.pixelColor(x, y), QColor(Qt::white)) << x << "," << y;
    }
}

// Letters of a size of their own would cover all of it.
TEST_F(YearOverview, HasNoLettersOnASheetWithoutRoomForThem) {
    const QRectF area(0, 0, 40, 1200);
    const QImage sheet = OnPaper(m_Page.Printout(), area);
    const QRectF cell = cYearDrawing(area, 2026).CellOf(Index(2026, 1, 1));
    // Over the month's name, which stands in the middle of its line.
    const int name = static_cast<int>(cell.top() - 1.5 * cell.height());
    for (int y = name - 12; y < name - 2; ++y) {
        for (int x = 0; x < 10; ++x) EXPECT_EQ(sheet.pixelColor(x, y), QColor(Qt::white)) << x << "," << y;
    }
}

TEST_F(YearOverview, NamesItsMonthsInBold) {
    const QRectF area(0, 0, 1200, 900);
    const QImage sheet = OnPaper(m_Page.Printout(), area);
    // September 2026 begins on a Tuesday.
    const QRectF first = cYearDrawing(area, 2026).CellOf(Index(2026, 9, 1));
    const QRectF line(first.left() - first.width(), first.top() - 2 * first.height(), 7 * first.width(),
                      first.height());
    QImage expected(sheet.size(), QImage::Format_RGB32);
    expected.fill(Qt::white);
    QPainter painter(&expected);
    QFont letters = painter.font();
    letters.setPixelSize(static_cast<int>(std::min(first.height() * 0.75, first.width() * 0.55)));
    letters.setBold(true);
    painter.setFont(letters);
    painter.drawText(line, Qt::AlignCenter, "September");
    painter.end();
    EXPECT_EQ(sheet.copy(line.toRect()), expected.copy(line.toRect()));
}

// The letters' edges are mixed with the ground, their middle is not.
TEST_F(YearOverview, HasSundaysAndHolidaysInRed) {
    QComboBox& countries = Find<QComboBox>(m_Page, "Combo_Calendar_Holidays");
    countries.setCurrentIndex(countries.findData("DE-BY"));
    emit countries.activated(0);
    const QRectF area(0, 0, 2400, 1800);
    const QImage sheet = OnPaper(m_Page.Printout(), area);
    const auto has = [&](int month, int day, const QColor& colour) {
        const QImage cell = sheet.copy(
            cYearDrawing(area, 2026).CellOf(Index(2026, month, day)).toRect().adjusted(2, 2, -2, -2));
        for (int y = 0; y < cell.height(); ++y) {
            for (int x = 0; x < cell.width(); ++x) {
                if (cell.pixelColor(x, y) == colour) return true;
            }
        }
        return false;
    };
    const QColor red(176, 0, 0);
    EXPECT_TRUE(has(6, 28, red));  // a Sunday
    EXPECT_TRUE(has(5, 1, red));   // a holiday on a Friday
    for (const int day : {26, 27}) {
        EXPECT_FALSE(has(6, day, red)) << day;
        EXPECT_TRUE(has(6, day, Qt::black)) << day;
    }
}

TEST_F(YearOverview, TellsDayTypesApartWhoseNamesHaveNoRoom) {
    std::string bytes(29220, '\0');
    const auto first = static_cast<std::size_t>(Index(2026, 3, 2));
    for (int i = 0; i < kDayTypes; ++i)
        bytes[2 * (first + static_cast<std::size_t>(i))] = static_cast<char>(i + 1);
    m_Files.Put("/app/all.cal", bytes);
    ASSERT_TRUE(m_Page.Open("/app/all.cal"));
    const QRectF area(0, 0, 700, 500);
    const QImage sheet = OnPaper(m_Page.Printout(), area);
    // The name's room is higher than its line.
    const auto name = [&](int place) {
        const cYearDrawing::cLegend legend = cYearDrawing(area, 2026).LegendAt(place, kDayTypes);
        return sheet.copy(
            QRectF(legend.name.left(), legend.box.top(), legend.name.width(), legend.box.height()).toRect());
    };
    // In the middle line of two columns that lie on pixels alike.
    EXPECT_NE(name(10), name(16));
}

TEST_F(YearOverview, IsPrintedThroughTheDialogOfTheSystem) {
    m_Prompts.m_PrintedFile = m_Folder.filePath("printed.pdf");
    Choose(*m_Window, "Menu_Print");
    EXPECT_EQ(m_Prompts.m_Asked, "printer for Calendar 1 - 2026\n");
    QFile printed(m_Prompts.m_PrintedFile);
    ASSERT_TRUE(printed.open(QIODevice::ReadOnly));
    EXPECT_TRUE(printed.readAll().startsWith("%PDF-"));
}

TEST_F(YearOverview, IsPrintedAsTheDialogSays) {
    QPrinter printer;
    printer.setOutputFileName(m_Folder.filePath("upright.pdf"));
    SetUpSheet(printer);
    EXPECT_EQ(printer.pageLayout().orientation(), QPageLayout::Landscape);
    printer.setPageOrientation(QPageLayout::Portrait);
    printer.setPageMargins({30, 30, 30, 30}, QPageLayout::Millimeter);
    EXPECT_TRUE(PrintOn(printer, *m_Page.Printout()));
    EXPECT_EQ(printer.pageLayout().orientation(), QPageLayout::Portrait);
    EXPECT_EQ(printer.pageLayout().margins(QPageLayout::Millimeter).left(), 30);
}

TEST_F(YearOverview, TakesTheWholeSheetBelowItsTitle) {
    QPrinter printer;
    printer.setOutputFileName(m_Folder.filePath("whole.pdf"));
    SetUpSheet(printer);
    QRectF place;
    bool isBold = true;
    const auto paint = [&](QPainter& painter, const QRectF& given) {
        place = given;
        isBold = painter.font().bold();
    };
    ASSERT_TRUE(PrintOn(printer, {"Title", {}, paint, {}}));
    const QRectF sheet(0, 0, printer.width(), printer.height());
    EXPECT_EQ(place, sheet.adjusted(0, sheet.height() * 0.05, 0, 0));
    EXPECT_FALSE(isBold);
}

TEST_F(YearOverview, StandsUnderItsTitleInBold) {
    QImage sheet(1000, 700, QImage::Format_RGB32), expected = sheet;
    for (QImage* each : {&sheet, &expected}) each->fill(Qt::white);
    QPainter painter(&sheet), wanted(&expected);
    PaintSheet(painter, sheet.rect(), {"Calendar 1 - 2026", {}, [](QPainter&, const QRectF&) {}, {}});
    QFont letters = QGuiApplication::font();
    letters.setPixelSize(21);
    letters.setBold(true);
    wanted.setFont(letters);
    wanted.drawText(QRectF(0, 0, 1000, 35), Qt::AlignTop, "Calendar 1 - 2026");
    painter.end();
    wanted.end();
    EXPECT_EQ(sheet, expected);
}

QStringList NamesOf(const cPrintout& printout) {
    QStringList names;
    for (const auto& sign : printout.legend) names += sign.name;
    return names;
}

// At the wall nobody can rest the pointer on a picture.
TEST_F(YearOverview, APrintedMonthTellsWhatItsPicturesMean) {
    m_Ini.PutIniString("DayTypes", "7", "Holiday", kDefinitionsIni);
    Drag(View(), {Cell(6, 30)});
    Find<QToolButton>(m_Page, "Button_Calendar_ShowYear").click();
    m_Page.Editor().ShowMonth(2026, 6);
    const auto printout = m_Page.Printout();
    EXPECT_EQ(NamesOf(*printout).join("|"), "Holiday");
    QImage sheet(1000, 700, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    {
        QPainter painter(&sheet);
        PaintSheet(painter, sheet.rect(), *printout);
    }
    // The star in the first place of the foot, and its name beside it.
    EXPECT_EQ(sheet.pixelColor(11, 655), QColor("#b86a00"));
    const QImage name = sheet.copy(28, 644, 100, 24);
    EXPECT_NE(name, QImage(sheet.copy(500, 644, 100, 24)));
    m_Page.Editor().ShowMonth(2026, 7);
    EXPECT_TRUE(m_Page.Printout()->legend.isEmpty());
}

TEST_F(YearOverview, APrintedWeekTellsWhatItsPicturesMean) {
    cSchedulePage& week = NewSchedule();
    EXPECT_TRUE(week.Printout()->legend.isEmpty());
    auto& list = Find<QListWidget>(week, "List_DayTypes");
    list.item(8)->setCheckState(Qt::Checked);
    // Without special day types it has no row.
    EXPECT_TRUE(week.Printout()->legend.isEmpty());
    Find<QCheckBox>(week, "Check_TimeSchedule_UseCalendar").click();
    EXPECT_EQ(NamesOf(*week.Printout()).join("|"), "Special day type 2");
}

TEST_F(YearOverview, APageThatPrintsNothingOffersNoPrint) {
    EXPECT_TRUE(Find<QAction>(*m_Window, "Menu_Print").isEnabled());
    m_Window->ShowReceivers();
    EXPECT_FALSE(Find<QAction>(*m_Window, "Menu_Print").isEnabled());
    m_Window->ShowProfiles();
    EXPECT_FALSE(Find<QAction>(*m_Window, "Menu_Pdf").isEnabled());
    cEditorPage& profiles = *m_Window->CurrentPage();
    Choose(profiles, "Action_New");
    Find<QLineEdit>(profiles, "Text_ProfileName").setText("East/West");
    emit Find<QLineEdit>(profiles, "Text_ProfileName").textEdited("East/West");
    m_Prompts.m_Texts = {"/app/profile.pdf"};
    Choose(*m_Window, "Menu_Pdf");
    EXPECT_EQ(m_Prompts.m_Asked, "save as /app/East-West.pdf (pdf)\n");
    EXPECT_GT(PdfWith(m_Files, "/app/profile.pdf").size(), 1000u);
    m_Window->ShowReceivers();
    EXPECT_FALSE(Find<QAction>(*m_Window, "Menu_Pdf").isEnabled());
}

}  // namespace
}  // namespace vigrel::testing
