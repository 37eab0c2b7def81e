#include "receiver_ui/dialogs/debug_window.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QClipboard>
#include <QFontInfo>
#include <QHeaderView>
#include <QMenu>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <memory>

#include "common/ini.h"
#include "common/text.h"
#include "support/fake_clock.h"
#include "support/fake_files.h"
#include "support/fake_settings.h"
#include "support/qt_wait.h"

namespace vigrel::testing {
namespace {

class DebugWindow : public ::testing::Test {
  protected:
    DebugWindow() {
        m_Files.Put("C:\\App\\VigrelReceiver.INI", "[General]\nLanguage=001\n");
        m_Files.Put("C:\\App\\Vigrel_Texts.001", "272=Time\n273=Way\n274=Text\n400=Debug view\n401=&File\n");
        m_Files.PutFolder("C:\\App\\LogFiles\\");
        m_Texts.LoadTexts();
    }
    cDebugWindow& Open() {
        m_Window = std::make_unique<cDebugWindow>(m_Windows, m_Trace, m_Texts, m_Settings);
        m_Window->Show();
        m_State.m_DebugMode = true;
        return *m_Window;
    }
    QTableView& List() const { return *m_Window->findChild<QTableView*>("ListView_Debug"); }
    // Adds rows and lets the window take them over.
    void Trace(int rows) {
        for (int i = 0; i < rows; ++i) m_Trace.WriteTrace("row " + std::to_string(m_Next++), 1);
        QCoreApplication::processEvents();
    }
    QString Cell(int row, int column) const { return List().model()->index(row, column).data().toString(); }
    QString TopRow() const { return List().indexAt({5, 1}).siblingAtColumn(2).data().toString(); }
    bool ShowsRow(int row) const {
        return List().viewport()->rect().contains(List().visualRect(List().model()->index(row, 0)));
    }

    cReceiverState m_State;
    cFakeClock m_Clock;
    cFakeFiles m_Files;
    cIni m_Ini{m_Files, "C:\\App\\"};
    cTexts m_Texts{m_Files, m_Ini};
    cProtocolTrace m_Trace{m_State, m_Clock, m_Files, "C:\\App\\"};
    cFakeSettings m_Settings;
    cOpenWindows m_Windows;
    std::unique_ptr<cDebugWindow> m_Window;
    int m_Next = 0;
};

TEST_F(DebugWindow, HasItsNamesAndCaptions) {
    cDebugWindow& window = Open();
    EXPECT_EQ(window.Name(), "Vigrel_Receiver_Debug");
    EXPECT_EQ(window.windowTitle(), "Debug view");
    EXPECT_EQ(window.findChild<QMenu*>("Menu_File")->title(), "&File");
    EXPECT_EQ(window.findChild<QAction*>("Menu_Save")->text(), "&Save to DEBUG.TXT");
    const auto* model = List().model();
    EXPECT_EQ(model->headerData(0, Qt::Horizontal).toString(), "Time");
    EXPECT_EQ(model->headerData(1, Qt::Horizontal).toString(), "Way");
    EXPECT_EQ(model->headerData(2, Qt::Horizontal).toString(), "Text");
    EXPECT_EQ(m_Windows.OpenWindows(), (std::vector<cWindow*>{&window}));
}

TEST_F(DebugWindow, ShowsTimeTagTextAndIcon) {
    Open();
    m_Trace.WriteTrace("\x02\xE5", 1);
    m_Trace.WriteTrace("x", 2);
    QCoreApplication::processEvents();
    ASSERT_EQ(List().model()->rowCount(), 2);
    EXPECT_EQ(Cell(0, 0), "12:30:15");
    EXPECT_EQ(Cell(0, 1), "V<-S");
    EXPECT_EQ(Cell(0, 2), "<2><229>");
    EXPECT_EQ(Cell(1, 1), "V->S");
    const auto icon = [&](int row) {
        return List().model()->index(row, 0).data(Qt::DecorationRole).value<QIcon>().pixmap(16).toImage();
    };
    EXPECT_FALSE(icon(0).isNull());
    EXPECT_FALSE(icon(1).isNull());
    EXPECT_NE(icon(0), icon(1));
    EXPECT_TRUE(List().model()->index(0, 1).data(Qt::TextAlignmentRole).toInt() & Qt::AlignHCenter);
    EXPECT_TRUE(List().model()->index(0, 2).data(Qt::TextAlignmentRole).toInt() & Qt::AlignLeft);
}

TEST_F(DebugWindow, TheTextStandsInAFixedWidthFont) {
    Open();
    Trace(1);
    const QFont font = List().model()->index(0, 2).data(Qt::FontRole).value<QFont>();
    EXPECT_TRUE(QFontInfo(font).fixedPitch());
}

TEST_F(DebugWindow, TextThatDoesNotFitCanBeReadWhole) {
    Open();
    m_Trace.WriteTrace(std::string(181, 'x'), 1);
    QCoreApplication::processEvents();
    EXPECT_EQ(List().model()->index(0, 2).data(Qt::ToolTipRole).toString().size(), 181);
}

TEST_F(DebugWindow, ColumnsAreWideEnoughForWhatStandsInThem) {
    Open();
    Trace(1);
    for (int column = 0; column < 2; ++column) {
        EXPECT_GE(List().columnWidth(column),
                  List().sizeHintForIndex(List().model()->index(0, column)).width());
    }
}

TEST_F(DebugWindow, ColumnsAreWideEnoughForTheirCaptionsInEveryLanguage) {
    m_Files.Put("C:\\App\\Vigrel_Texts.001",
                "272=Time of the record by the clock\n273=To or from here\n274=Text\n");
    m_Texts.LoadTexts();
    Open();
    for (int column = 0; column < 2; ++column) {
        const QHeaderView& header = *List().horizontalHeader();
        const QString caption = List().model()->headerData(column, Qt::Horizontal).toString();
        const int margins = 2 * header.style()->pixelMetric(QStyle::PM_HeaderMargin);
        EXPECT_GE(header.sectionSize(column), header.fontMetrics().horizontalAdvance(caption) + margins);
    }
}

TEST_F(DebugWindow, ColumnsTakeTheUsersWidths) {
    m_Settings.m_Values = {{"DebugViewColWidth1", "1500"}, {"DebugViewColWidth2", "50"}};
    Open();
    EXPECT_EQ(List().columnWidth(0), 100);
    EXPECT_EQ(List().columnWidth(1), 7);  // 100 twips at least
}

TEST_F(DebugWindow, TheLastColumnFillsTheWindowAtEachResize) {
    cDebugWindow& window = Open();
    for (const int width : {900, 500}) {
        window.resize(width, 300);
        QCoreApplication::processEvents();
        const int all = List().columnWidth(0) + List().columnWidth(1) + List().columnWidth(2);
        EXPECT_EQ(all, List().width() - 20);
        EXPECT_EQ(List().horizontalScrollBar()->maximum(), 0);
    }
}

TEST_F(DebugWindow, AWindowTooNarrowForTheColumnsKeepsTheLastOne) {
    m_Settings.m_Values = {{"DebugViewColWidth1", "6000"}, {"DebugViewColWidth2", "6000"}};
    cDebugWindow& window = Open();
    window.resize(1000, 300);
    QCoreApplication::processEvents();
    EXPECT_EQ(List().columnWidth(2), 180);
    window.resize(300, 300);
    QCoreApplication::processEvents();
    EXPECT_EQ(List().columnWidth(2), 180);
}

TEST_F(DebugWindow, FollowsTheNewestRow) {
    Open();
    Trace(100);
    EXPECT_TRUE(ShowsRow(99));
    Trace(350);
    EXPECT_EQ(List().model()->rowCount(), 400);
    EXPECT_EQ(Cell(0, 2), "row 50");
    EXPECT_EQ(Cell(399, 2), "row 449");
    EXPECT_TRUE(ShowsRow(399));
}

TEST_F(DebugWindow, DoesNotFollowAnOperatorWhoReadsFurtherUp) {
    Open();
    Trace(400);
    List().verticalScrollBar()->setValue(100);
    QCoreApplication::processEvents();
    EXPECT_EQ(TopRow(), "row 100");
    Trace(10);
    EXPECT_EQ(TopRow(), "row 100");
    // Back at the end it follows again.
    List().scrollToBottom();
    Trace(5);
    EXPECT_TRUE(ShowsRow(399));
}

TEST_F(DebugWindow, RowsThatCameAndWentBetweenTwoLooksLeaveTheRightOnes) {
    Open();
    Trace(10);
    Trace(1000);
    EXPECT_EQ(List().model()->rowCount(), 400);
    EXPECT_EQ(Cell(0, 2), "row 610");
    EXPECT_EQ(Cell(399, 2), "row 1009");
}

TEST_F(DebugWindow, RowsThatWereThereBeforeTheWindowShow) {
    m_State.m_DebugMode = true;
    m_Trace.WriteTrace("early", 1);
    Open();
    EXPECT_EQ(Cell(0, 2), "early");
}

TEST_F(DebugWindow, TheMenuSavesTheRows) {
    cDebugWindow& window = Open();
    Trace(1);
    window.findChild<QAction*>("Menu_Save")->trigger();
    const auto lines = SplitLines(m_Files.ReadFile("C:\\App\\LogFiles\\Debug.txt"));
    ASSERT_EQ(lines.size(), 5u);
    EXPECT_EQ(lines[4], "000 12:30:15 V<-S row 0");
}

TEST_F(DebugWindow, SelectedRowsCanBeCopied) {
    Open();
    Trace(3);
    List().selectAll();
    QTest::keyClick(&List(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(),
              "12:30:15\tV<-S\trow 0\n12:30:15\tV<-S\trow 1\n12:30:15\tV<-S\trow 2");
}

TEST_F(DebugWindow, AClickSelectsTheWholeRowAndCopiesStandInTheOrderOfTheList) {
    Open();
    Trace(4);
    const auto click = [&](int row, int column, Qt::KeyboardModifiers modifiers) {
        const QPoint place = List().visualRect(List().model()->index(row, column)).center();
        QTest::mouseClick(List().viewport(), Qt::LeftButton, modifiers, place);
    };
    click(3, 1, Qt::NoModifier);
    click(0, 0, Qt::ControlModifier);
    click(2, 1, Qt::ControlModifier);
    QTest::keyClick(&List(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(),
              "12:30:15\tV<-S\trow 0\n12:30:15\tV<-S\trow 2\n12:30:15\tV<-S\trow 3");
}

TEST_F(DebugWindow, TheKeyOfTheMenuSavesTheRows) {
    cDebugWindow& window = Open();
    Trace(1);
    window.activateWindow();
    ASSERT_TRUE(WaitUntil([&] { return window.isActiveWindow(); }));
    QTest::keyClick(&List(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(m_Files.FileExists("C:\\App\\LogFiles\\Debug.txt"));
}

TEST_F(DebugWindow, ABurstOfRowsIsTakenOverAtOnce) {
    Open();
    QSignalSpy taken(List().model(), &QAbstractItemModel::rowsInserted);
    Trace(50);
    Trace(50);
    ASSERT_EQ(taken.count(), 2);
    EXPECT_EQ(taken[0][1].toInt(), 0);
    EXPECT_EQ(taken[0][2].toInt(), 49);
    EXPECT_EQ(taken[1][1].toInt(), 50);
    EXPECT_EQ(taken[1][2].toInt(), 99);
}

// What a view is told of rows that come and go, before and behind each change.
TEST_F(DebugWindow, TellsTheViewTheTruthOfEachChange) {
    Open();
    const QAbstractItemModelTester tester(List().model(),
                                          QAbstractItemModelTester::FailureReportingMode::Warning);
    Trace(399);
    Trace(1);
    Trace(1);
    Trace(300);
    Trace(2000);
    EXPECT_EQ(Cell(399, 2), "row 2700");
    EXPECT_EQ(List().model()->rowCount(List().model()->index(0, 0)), 0);
    EXPECT_EQ(List().model()->columnCount(List().model()->index(0, 0)), 0);
    EXPECT_FALSE(List().model()->data(QModelIndex(), Qt::DisplayRole).isValid());
}

TEST_F(DebugWindow, AsManyRowsOnceMoreLeaveTheNewOnes) {
    Open();
    Trace(400);
    for (int more = 0; more < 3; ++more) Trace(1);
    EXPECT_EQ(Cell(0, 2), "row 3");
    EXPECT_EQ(Cell(399, 2), "row 402");
}

TEST_F(DebugWindow, RowsShowTheWayByTheirPictures) {
    Open();
    m_Trace.WriteTrace("to here", 1);
    m_Trace.WriteTrace("from here", 2);
    QCoreApplication::processEvents();
    const auto picture = [&](int row) {
        return List().model()->index(row, 0).data(Qt::DecorationRole).value<QIcon>().pixmap(16).toImage();
    };
    EXPECT_EQ(picture(0), QIcon(":/icons/debug-in.svg").pixmap(16).toImage());
    EXPECT_EQ(picture(1), QIcon(":/icons/debug-out.svg").pixmap(16).toImage());
    EXPECT_EQ(List().iconSize(), QSize(16, 16));
    EXPECT_FALSE(List().model()->index(0, 1).data(Qt::DecorationRole).isValid());
}

TEST_F(DebugWindow, TheTextAloneStandsInItsOwnFont) {
    Open();
    Trace(1);
    for (const int column : {0, 1}) {
        EXPECT_FALSE(List().model()->index(0, column).data(Qt::FontRole).isValid()) << column;
    }
}

TEST_F(DebugWindow, TheCaptionsStandAsTheirColumnsDo) {
    Open();
    Trace(1);
    for (int column = 0; column < 3; ++column) {
        const QVariant caption = List().model()->headerData(column, Qt::Horizontal, Qt::TextAlignmentRole);
        EXPECT_EQ(caption, List().model()->index(0, column).data(Qt::TextAlignmentRole)) << column;
        EXPECT_FALSE(List().model()->headerData(column, Qt::Horizontal, Qt::DecorationRole).isValid());
        EXPECT_FALSE(List().model()->headerData(column, Qt::Vertical, Qt::DisplayRole).isValid());
    }
}

TEST_F(DebugWindow, RowsStandCloseTogetherEachOnOneLine) {
    m_Settings.m_Values = {{"DebugViewColWidth3", "600"}};
    cDebugWindow& window = Open();
    m_Trace.WriteTrace("many words that need a second line where there is room for it", 1);
    Trace(2);
    const int line = std::max(16, window.fontMetrics().height()) + 4;
    for (int row = 0; row < 3; ++row) EXPECT_EQ(List().rowHeight(row), line);
    EXPECT_FALSE(List().wordWrap());
    EXPECT_FALSE(List().showGrid());
    EXPECT_TRUE(List().verticalHeader()->isHidden());
    EXPECT_EQ(List().verticalHeader()->sectionResizeMode(0), QHeaderView::Fixed);
    EXPECT_FALSE(List().horizontalHeader()->highlightSections());
    EXPECT_EQ(List().horizontalScrollMode(), QAbstractItemView::ScrollPerPixel);
}

TEST_F(DebugWindow, TheTabKeyMovesNoCell) {
    Open();
    Trace(2);
    List().setCurrentIndex(List().model()->index(0, 0));
    QTest::keyClick(&List(), Qt::Key_Tab);
    EXPECT_EQ(List().currentIndex(), List().model()->index(0, 0));
}

TEST_F(DebugWindow, AUsualRecordIsSeenWhole) {
    const cDebugWindow& window = Open();
    EXPECT_EQ(window.size(), QSize(1000, 420));
}

TEST_F(DebugWindow, AResizeIsTold) {
    cDebugWindow& window = Open();
    int told = 0;
    window.OnResize = [&] { ++told; };
    window.resize(700, 300);
    EXPECT_EQ(told, 1);
}

TEST_F(DebugWindow, AWindowOfJustTheTwoColumnsLeavesNothingToTheLast) {
    cDebugWindow& window = Open();
    const int others = List().columnWidth(0) + List().columnWidth(1) + 20;
    window.resize(others + 1, 300);
    EXPECT_EQ(List().columnWidth(2), 1);
    List().setColumnWidth(2, 50);
    window.resize(others - 1, 300);
    EXPECT_EQ(List().columnWidth(2), 50);
}

TEST_F(DebugWindow, ItsEndTakesItsEarFromTheTrace) {
    Open();
    ASSERT_TRUE(m_Trace.OnChange);
    m_Window.reset();
    EXPECT_FALSE(m_Trace.OnChange);
}

TEST_F(DebugWindow, ClosingItEndsTheTrace) {
    cDebugWindow& window = Open();
    Trace(1);
    window.close();
    EXPECT_FALSE(window.isVisible());
    EXPECT_FALSE(m_State.m_DebugMode);
    EXPECT_TRUE(m_Windows.OpenWindows().empty());
    Trace(1);
    EXPECT_EQ(m_Trace.Rows().size(), 1u);
    // Whoever still writes after the window's own end finds no window behind.
    m_State.m_DebugMode = true;
    m_Trace.WriteTrace("x", 1);
    m_Window.reset();
    m_Trace.WriteTrace("x", 1);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_Trace.Rows().size(), 3u);
}

}  // namespace
}  // namespace vigrel::testing
