#include "receiver_ui/report_list_rig.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <random>

#include "adapters/qt/qt_text.h"
#include "contract/report_list_contract.h"
#include "support/fake_report_list.h"
#include "support/markup.h"
#include "support/qt_wait.h"
#include "windows/colours.h"

namespace vigrel::testing {
namespace {

class cQtReportListRig {
  public:
    cReportList& List() { return m_List; }

  private:
    cIconStrip m_Icons;
    cQtReportList m_List{nullptr, m_Icons};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, ReportListContract, cQtReportListRig);

// --- flush

TEST_F(ReportList, ABurstOfArrivalsIsPaintedOnceAndStandsWithinTheFlushTime) {
    Fill(1);
    LetItFlush();
    QSignalSpy inserted(View().model(), &QAbstractItemModel::rowsInserted);
    for (int i = 0; i < 500; ++i) Arrive("burst", 1000 + i);
    EXPECT_EQ(View().model()->rowCount(), 1);
    EXPECT_TRUE(
        WaitUntil([&] { return View().model()->rowCount() == 501; }, 2 * cQtReportList::kFlushMilliseconds));
    EXPECT_EQ(inserted.count(), 1);
}

TEST_F(ReportList, ALoneArrivalShowsAtTheNextTurnOfTheLoop) {
    Fill(1);
    LetItFlush();
    Arrive("lone", 1000);
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    EXPECT_EQ(View().model()->rowCount(), 2);
}

TEST_F(ReportList, AnArrivalIsScrolledIntoView) {
    Fill(200);
    LetItFlush();
    EXPECT_EQ(View().verticalScrollBar()->value(), 0);
    Arrive("last", 1000);
    LetItFlush();
    EXPECT_TRUE(View().viewport()->rect().contains(View().visualRect(Cell(200, 1))));
    EXPECT_TRUE(m_List.SelectedRows().empty());
}

TEST_F(ReportList, ScrollingToAnArrivalLeavesTheColumnsWhereTheyAre) {
    m_List.SetColumnWidth(1, 2000);
    Fill(200);
    LetItFlush();
    View().horizontalScrollBar()->setValue(300);
    Arrive("last", 1000);
    LetItFlush();
    EXPECT_EQ(View().horizontalScrollBar()->value(), 300);
}

TEST_F(ReportList, TheNewestRowStandsOnTopOfADescendingList) {
    Fill(50);
    m_List.ClearSortOrder();
    m_List.AddSortColumn(2, false);
    const RecordId newest = Arrive("newest", 1000);
    EXPECT_EQ(m_List.Rows().front(), newest);
    EXPECT_EQ(Text(0, 1), "newest");
}

// --- columns

TEST_F(ReportList, AColumnOfWidth0DoesNotShow) {
    QHeaderView* header = View().horizontalHeader();
    EXPECT_TRUE(header->isSectionHidden(2));
    EXPECT_EQ(header->length(), 350);
    m_List.SetColumnWidth(2, 40);
    EXPECT_FALSE(header->isSectionHidden(2));
    m_List.SetColumnWidth(2, 0);
    EXPECT_TRUE(header->isSectionHidden(2));
}

TEST_F(ReportList, HeadersCarryTheColumnsCaptionsAndPlacement) {
    m_List.AddColumn("\xC5tg\xE4rd", 80);
    m_List.SetColumnPlacement(3, 1, 1);
    QAbstractItemModel* model = View().model();
    EXPECT_EQ(model->headerData(3, Qt::Horizontal, Qt::DisplayRole).toString(), QString::fromUtf8("Åtgärd"));
    const auto alignment = [&](int column) {
        return model->headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).value<Qt::Alignment>();
    };
    EXPECT_TRUE(alignment(3).testFlag(Qt::AlignHCenter));
    EXPECT_TRUE(alignment(1).testFlag(Qt::AlignLeft));
}

TEST_F(ReportListResizing, ADraggedWidthIsToldOnceWhenTheMouseIsLetGo) {
    Drag(1, 5);
    EXPECT_EQ(m_Told, std::vector<int>{1});
    EXPECT_EQ(m_List.ColumnWidth(1), 350);
}

TEST_F(ReportListResizing, AColumnCannotBeDraggedOutOfReach) {
    Drag(0, -20);
    EXPECT_GE(m_List.ColumnWidth(0), 8);
    EXPECT_EQ(m_Told, std::vector<int>{0});
}

TEST_F(ReportListResizing, AFixedColumnDoesNotFollowTheMouse) {
    m_List.SetColumnResizable(1, false);
    Drag(1, 5);
    EXPECT_TRUE(m_Told.empty());
    EXPECT_EQ(m_List.ColumnWidth(1), 300);
}

TEST_F(ReportListResizing, ShowingAndResizingTheWindowChangesNoWidth) {
    View().resize(900, 500);
    RunEvents(20);
    View().hide();
    View().show();
    RunEvents(20);
    EXPECT_TRUE(m_Told.empty());
}

TEST_F(ReportListResizing, CtrlWithPlusAndMinusResizesTheColumnThatSorts) {
    QTest::keyClick(&View(), Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_TRUE(m_Told.empty());  // none sorts yet
    QTest::keyClick(&View(), Qt::Key_2, Qt::ControlModifier);
    QTest::keyClick(&View(), Qt::Key_Plus, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(m_List.ColumnWidth(1), 320);
    QTest::keyClick(&View(), Qt::Key_Minus, Qt::ControlModifier);
    QTest::keyClick(&View(), Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(m_List.ColumnWidth(1), 280);
    EXPECT_EQ(m_Told, (std::vector<int>{1, 1, 1}));
    m_List.SetColumnResizable(1, false);
    QTest::keyClick(&View(), Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(m_List.ColumnWidth(1), 280);
}

TEST_F(ReportListResizing, AColumnCannotBeMadeUnreachableByKeys) {
    QTest::keyClick(&View(), Qt::Key_1, Qt::ControlModifier);
    for (int i = 0; i < 10; ++i) QTest::keyClick(&View(), Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(m_List.ColumnWidth(0), 8);
}

// --- sorting by the headers

TEST_F(ReportList, CtrlWithADigitSortsByTheColumnThatShowsThereAndTurnsTheOrder) {
    const RecordId b = Add("b", 1), a = Add("a", 2);
    m_List.TakeOverRecords();
    m_List.Rows();
    QTest::keyClick(&View(), Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(m_List.Rows(), (std::vector<RecordId>{a, b}));
    QTest::keyClick(&View(), Qt::Key_2, Qt::ControlModifier | Qt::KeypadModifier);
    EXPECT_EQ(m_List.Rows(), (std::vector<RecordId>{b, a}));
    m_List.SetColumnWidth(0, 0);
    QTest::keyClick(&View(), Qt::Key_1, Qt::ControlModifier);  // the text is the first that shows now
    EXPECT_EQ(m_List.Rows(), (std::vector<RecordId>{a, b}));
    for (const Qt::Key key : {Qt::Key_2, Qt::Key_9, Qt::Key_0}) {
        QTest::keyClick(&View(), key, Qt::ControlModifier);  // no such column
        EXPECT_EQ(m_List.Rows(), (std::vector<RecordId>{a, b}));
    }
    m_List.SetColumnSortable(1, false);
    QTest::keyClick(&View(), Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(m_List.Rows(), (std::vector<RecordId>{a, b}));
}

TEST_F(ReportList, AZeroByteInATextSortsInFrontOfEveryCharacter) {
    const RecordId longer = Add("aa", 1), withZero = Add(std::string("a\0b", 3), 2), a = Add("a", 3);
    m_List.AddSortColumn(1, true);
    m_List.TakeOverRecords();
    EXPECT_EQ(m_List.Rows(), (std::vector<RecordId>{a, withZero, longer}));
}

TEST_F(ReportList, ARecordThatChangesItsPlaceTwiceBeforeTheListIsSortedStandsThereOnce) {
    const RecordId a = Add("a", 1), b = Add("b", 2), c = Add("c", 3);
    m_List.AddSortColumn(1, true);
    m_List.TakeOverRecords();
    ASSERT_EQ(m_List.Rows(), (std::vector<RecordId>{a, b, c}));
    m_Items.SetText(a, 1, "x");
    m_Items.SetText(a, 1, "y");
    m_List.TakeOverRecords();
    EXPECT_EQ(m_List.Rows(), (std::vector<RecordId>{b, c, a}));
    EXPECT_EQ(View().model()->rowCount(), 3);
}

TEST_F(ReportList, AClickOnAHeaderSortsByItAndASecondClickTurnsTheOrder) {
    const RecordId b = Add("b", 1), a = Add("a", 2);
    m_List.TakeOverRecords();
    m_List.Rows();
    ClickHeader(1);
    EXPECT_EQ(m_List.Rows(), (std::vector<RecordId>{a, b}));
    EXPECT_TRUE(View().horizontalHeader()->isSortIndicatorShown());
    EXPECT_EQ(View().horizontalHeader()->sortIndicatorSection(), 1);
    EXPECT_EQ(View().horizontalHeader()->sortIndicatorOrder(), Qt::AscendingOrder);
    ClickHeader(1);
    EXPECT_EQ(m_List.Rows(), (std::vector<RecordId>{b, a}));
    EXPECT_EQ(View().horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
}

TEST_F(ReportList, TheOperatorsOrderSurvivesNewAlarms) {
    Fill(3);
    ClickHeader(1);
    const RecordId first = Arrive("aaa", 1000);
    EXPECT_EQ(m_List.Rows().front(), first);
    EXPECT_EQ(View().horizontalHeader()->sortIndicatorSection(), 1);
}

TEST_F(ReportList, AListThatIsNotSortableIgnoresClicks) {
    Fill(3);
    for (int column = 0; column < 3; ++column) m_List.SetColumnSortable(column, false);
    const auto rows = m_List.Rows();
    ClickHeader(1);
    ClickHeader(1);
    EXPECT_EQ(m_List.Rows(), rows);
    EXPECT_NE(View().horizontalHeader()->sortIndicatorSection(), 1);
    EXPECT_FALSE(View().horizontalHeader()->sectionsClickable());
}

TEST_F(ReportList, AColumnThatIsNotSortableLeavesOrderAndMarkAlone) {
    Fill(3);
    m_List.SetColumnSortable(0, false);
    ClickHeader(1);
    const auto rows = m_List.Rows();
    ClickHeader(0);
    EXPECT_EQ(m_List.Rows(), rows);
    EXPECT_EQ(View().horizontalHeader()->sortIndicatorSection(), 1);
}

TEST_F(ReportList, SortingByAClickTakesNothingOver) {
    Fill(2);
    Add("not taken over", 5);
    ClickHeader(1);
    EXPECT_EQ(m_List.Rows().size(), 2u);
}

// --- keys

TEST_F(ReportListKeys, KeysComeAsVirtualKeyCodesWithTheirShiftState) {
    QTest::keyClick(&View(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&View(), Qt::Key_C, Qt::ControlModifier);
    QTest::keyClick(&View(), Qt::Key_Escape);
    QTest::keyClick(&View(), Qt::Key_F9, Qt::ShiftModifier);
    QTest::keyClick(&View(), Qt::Key_Down, Qt::AltModifier | Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(m_Keys, (Keys{{65, 2}, {67, 2}, {27, 0}, {120, 1}, {40, 7}}));
}

TEST_F(ReportListKeys, TheOwnersKeysHaveNoEffectOfTheToolkits) {
    QTest::keyClick(&View(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_TRUE(m_List.SelectedRows().empty());
    m_List.SelectAllRows();
    QTest::keyClick(&View(), Qt::Key_Escape);
    EXPECT_EQ(m_List.SelectedRows().size(), 5u);
}

TEST_F(ReportListKeys, TheOwnersKeysGoNoFurtherThanTheList) {
    const auto IsTaken = [this](int key, Qt::KeyboardModifiers modifiers) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        QCoreApplication::sendEvent(&View(), &event);
        return event.isAccepted();
    };
    EXPECT_TRUE(IsTaken(Qt::Key_Escape, Qt::NoModifier));
    EXPECT_TRUE(IsTaken(Qt::Key_F9, Qt::NoModifier));
    EXPECT_TRUE(IsTaken(Qt::Key_A, Qt::ControlModifier));
    EXPECT_TRUE(IsTaken(Qt::Key_C, Qt::ControlModifier));
    EXPECT_FALSE(IsTaken(Qt::Key_F8, Qt::NoModifier));
}

TEST_F(ReportListKeys, NoOtherKeyCopies) {
    QGuiApplication::clipboard()->setText("before");
    View().setCurrentIndex(Cell(1, 1));
    m_List.SelectAllRows();
    QTest::keyClick(&View(), Qt::Key_Insert, Qt::ControlModifier);
    QKeyEvent copyKey(QEvent::KeyPress, Qt::Key_Copy, Qt::NoModifier);
    QCoreApplication::sendEvent(&View(), &copyKey);
    QTest::keyClick(&View(), Qt::Key_C, Qt::ControlModifier);  // the owner's, which here does nothing
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "before");
}

TEST_F(ReportListKeys, TheArrowKeysMoveTheCurrentRow) {
    View().setCurrentIndex(Cell(1, 1));
    QTest::keyClick(&View(), Qt::Key_Down);
    EXPECT_EQ(View().currentIndex().row(), 2);
    EXPECT_EQ(m_List.SelectedRows(), std::vector<RecordId>{m_Records[2]});
}

TEST_F(ReportListKeys, HomeAndEndLeadToTheFirstAndTheLastRow) {
    View().setCurrentIndex(Cell(2, 1));
    QTest::keyClick(&View(), Qt::Key_End);
    EXPECT_EQ(View().currentIndex(), Cell(4, 1));
    EXPECT_EQ(m_List.SelectedRows(), std::vector<RecordId>{m_Records[4]});
    QTest::keyClick(&View(), Qt::Key_Home);
    EXPECT_EQ(View().currentIndex(), Cell(0, 1));
    EXPECT_EQ(m_List.SelectedRows(), std::vector<RecordId>{m_Records[0]});
    QTest::keyClick(&View(), Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(m_List.SelectedRows().size(), 5u);
}

TEST_F(ReportList, HomeAndEndOfAnEmptyListLeadNowhere) {
    QTest::keyClick(&View(), Qt::Key_End);
    QTest::keyClick(&View(), Qt::Key_Home);
    EXPECT_FALSE(View().currentIndex().isValid());
}

TEST_F(ReportListKeys, EnterAndSpaceChooseTheCurrentRow) {
    View().setCurrentIndex(Cell(3, 1));
    QTest::keyClick(&View(), Qt::Key_Return);
    QTest::keyClick(&View(), Qt::Key_Enter, Qt::KeypadModifier);
    QTest::keyClick(&View(), Qt::Key_Space);
    EXPECT_EQ(m_Chosen, std::vector<RecordId>(3, m_Records[3]));
}

TEST_F(ReportListKeys, AHeldEnterChoosesOnce) {
    View().setCurrentIndex(Cell(3, 1));
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    QCoreApplication::sendEvent(&View(), &repeat);
    EXPECT_TRUE(m_Chosen.empty());
}

TEST_F(ReportListKeys, EnterWithoutACurrentRowDoesNothing) {
    QTest::keyClick(&View(), Qt::Key_Return);
    EXPECT_TRUE(m_Chosen.empty());
}

TEST_F(ReportListKeys, EnterOnARowThatAnArrivalDeselectedDoesNothing) {
    View().setCurrentIndex(Cell(3, 1));
    m_List.ClearSelection();
    ASSERT_TRUE(m_List.SelectedRows().empty());
    QTest::keyClick(&View(), Qt::Key_Return);
    QTest::keyClick(&View(), Qt::Key_Space);
    EXPECT_TRUE(m_Chosen.empty());
}

TEST_F(ReportListKeys, EnterOnARowWhoseRecordHasJustGoneDoesNothing) {
    View().setCurrentIndex(Cell(3, 1));
    m_List.RemoveRecord(m_Records[3]);
    QTest::keyClick(&View(), Qt::Key_Return);
    EXPECT_TRUE(m_Chosen.empty());
}

// --- mouse

TEST_F(ReportListKeys, ADoubleClickChoosesItsRow) {
    QTest::mouseClick(View().viewport(), Qt::LeftButton, Qt::NoModifier, Middle(2, 1));
    QTest::mouseDClick(View().viewport(), Qt::LeftButton, Qt::NoModifier, Middle(2, 1));
    EXPECT_EQ(m_Chosen, std::vector<RecordId>{m_Records[2]});
}

TEST_F(ReportListKeys, ADoubleClickWithAnotherButtonChoosesNothing) {
    QTest::mouseDClick(View().viewport(), Qt::RightButton, Qt::NoModifier, Middle(2, 1));
    EXPECT_TRUE(m_Chosen.empty());
}

TEST_F(ReportListKeys, ARowThatSlipsUnderThePointerBetweenTheClicksIsNotChosen) {
    const QPoint pointer = Middle(2, 1);
    QTest::mouseClick(View().viewport(), Qt::LeftButton, Qt::NoModifier, pointer);
    Add("in front", -1);
    m_List.TakeOverRecords();
    m_List.Rows();
    QTest::mouseDClick(View().viewport(), Qt::LeftButton, Qt::NoModifier, pointer);
    EXPECT_TRUE(m_Chosen.empty());
}

// As the oldest rows do when the list is full or they are too old.
TEST_F(ReportListKeys, ARowThatTakesTheOneClickedsPlaceIsNotChosen) {
    const auto clickWhileItGoes = [&](int row) {
        const QPoint pointer = Middle(row, 1);
        QTest::mouseClick(View().viewport(), Qt::LeftButton, Qt::NoModifier, pointer);
        m_List.RemoveRecord(m_List.SelectedRows().at(0));
        m_List.TakeOverRecords();
        m_List.Rows();
        QTest::mouseDClick(View().viewport(), Qt::LeftButton, Qt::NoModifier, pointer);
    };
    clickWhileItGoes(0);
    EXPECT_TRUE(m_Chosen.empty());
    Add("in front", -1);  // comes in as the last one goes
    clickWhileItGoes(m_List.RecordCount() - 2);
    EXPECT_TRUE(m_Chosen.empty());
    // Both clicks on the row that is there now are meant.
    QTest::mouseClick(View().viewport(), Qt::LeftButton, Qt::NoModifier, Middle(1, 1));
    QTest::mouseDClick(View().viewport(), Qt::LeftButton, Qt::NoModifier, Middle(1, 1));
    EXPECT_EQ(m_Chosen, m_List.SelectedRows());
}

TEST_F(ReportListKeys, AClickSelectsTheWholeRow) {
    QTest::mouseClick(View().viewport(), Qt::LeftButton, Qt::NoModifier, Middle(1, 1));
    QTest::mouseClick(View().viewport(), Qt::LeftButton, Qt::ControlModifier, Middle(3, 0));
    EXPECT_EQ(m_List.SelectedRows(), (std::vector<RecordId>{m_Records[1], m_Records[3]}));
}

// --- what the toolkit asks

TEST_F(ReportList, AColumnIsThereWhenItsComingIsTold) {
    int told = 0;
    QObject::connect(View().model(), &QAbstractItemModel::columnsInserted, &View(), [&] {
        ++told;
        EXPECT_EQ(View().model()->columnCount(), 4);
    });
    m_List.AddColumn("Address", 80);
    EXPECT_EQ(told, 1);
}

TEST_F(ReportList, OnlyACutCellHasAToolTipAndNothingElseOfHelp) {
    Fill(1);
    LetItFlush();
    const auto ToolTipFor = [this](QEvent::Type type, QPoint place) {
        QToolTip::hideText();
        EXPECT_TRUE(WaitUntil([] { return ShownToolTip() == nullptr; }));
        QHelpEvent help(type, place, View().viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(View().viewport(), &help);
        const QLabel* shown = ShownToolTip();
        return shown != nullptr ? shown->text() : QString();
    };
    EXPECT_EQ(ToolTipFor(QEvent::ToolTip, Middle(0, 1)), "");
    View().setColumnWidth(1, 20);
    EXPECT_EQ(ToolTipFor(QEvent::ToolTip, Middle(0, 1)), "alarm 0");
    EXPECT_EQ(ToolTipFor(QEvent::WhatsThis, Middle(0, 1)), "");
    EXPECT_EQ(ToolTipFor(QEvent::ToolTip, Middle(0, 1) + QPoint(0, 100)), "");
    QToolTip::hideText();
}

// --- focus

TEST_F(ReportList, TheFocusPutsTheKeysOnTheFirstRowAndChoosesNone) {
    Fill(3);
    View().clearFocus();
    ASSERT_FALSE(View().currentIndex().isValid());
    View().setFocus();
    EXPECT_EQ(View().currentIndex().row(), 0);
    EXPECT_TRUE(m_List.SelectedRows().empty());
}

TEST_F(ReportList, LosingTheFocusIsTold) {
    int told = 0;
    m_List.OnFocusChange = [&] { ++told; };
    QWidget other;
    other.show();
    QFocusEvent away(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(&View(), &away);
    EXPECT_EQ(told, 1);
}

TEST_F(ReportList, AMenuOfTheWindowDoesNotCountAsLosingTheFocus) {
    int told = 0;
    m_List.OnFocusChange = [&] { ++told; };
    for (const Qt::FocusReason reason : {Qt::PopupFocusReason, Qt::MenuBarFocusReason}) {
        QFocusEvent away(QEvent::FocusOut, reason);
        QCoreApplication::sendEvent(&View(), &away);
    }
    EXPECT_EQ(told, 0);
}

// --- look

TEST_F(ReportList, TheRowHeightIsAskedForWhenTheFontChanges) {
    Fill(2);
    EXPECT_EQ(View().visualRect(Cell(0, 1)).height(), 21);
    m_List.OnRowHeight = [] { return 37; };
    m_List.SetFont("Arial", 24);
    EXPECT_EQ(View().visualRect(Cell(1, 1)).height(), 37);
    EXPECT_EQ(View().horizontalHeader()->font().pointSizeF(), 24);
}

TEST_F(ReportListPicture, AColouredCellIsDrawnInItsColours) {
    Fill(2);
    const QImage cell = Picture(0, 1);
    EXPECT_GT(Count(cell, Qt::red), cell.width() * cell.height() / 2);
    EXPECT_GT(Count(cell, Qt::white), 20);
}

TEST_F(ReportListPicture, ACellWithoutCaptionAndColoursShowsTheListsOwnColourAlone) {
    Fill(2);
    m_Items.SetIcon(m_Records[1], 0, -1);
    const QImage cell = Picture(1, 0);
    EXPECT_EQ(Count(cell, View().palette().color(QPalette::Base)), cell.width() * (cell.height() - 1));
}

TEST_F(ReportListPicture, ATextThatDoesNotFitIsCutAtTheSamePlaceHoweverLongItIs) {
    Fill(2);
    const std::string narrow(400, 'i');
    m_Items.SetText(m_Records[1], 1, narrow);
    m_List.Redraw();
    const QImage cut = Picture(1, 1);
    m_Items.SetText(m_Records[1], 1, narrow + std::string(30'000, 'W'));
    m_List.Redraw();
    EXPECT_EQ(Picture(1, 1), cut);
    m_Items.SetText(m_Records[1], 1, std::string(20, 'i'));
    m_List.Redraw();
    EXPECT_NE(Picture(1, 1), cut);
}

TEST_F(ReportListPicture, ACellWithIconShowsItsPicture) {
    Fill(2);
    m_Items.SetIcon(m_Records[1], 0, 2);
    m_List.Redraw();
    EXPECT_NE(Picture(1, 0), Picture(0, 0));
}

TEST_F(ReportListPicture, ASelectedRowIsFramedOnEveryColour) {
    Fill(2);
    const QImage plain = Picture(1, 1);
    m_List.SelectAndShow(m_Records[1]);
    const QImage selected = Picture(1, 1);
    EXPECT_GT(Count(selected, Qt::black), 2 * plain.width() - 10);
    EXPECT_LT(Count(plain, Qt::black), plain.width());
}

TEST_F(ReportListPicture, ASelectedRowHasALightLineWithinTheDarkOne) {
    Fill(2);
    m_List.SelectAndShow(m_Records[1]);
    const QImage first = Picture(1, 0);
    const QImage last = Picture(1, 1);
    const int across = last.width() - 1;
    const int down = last.height() - 1;
    // From the outside in, where no text stands.
    const auto ExpectFrame = [](const QImage& cell, QPoint from, QPoint step) {
        EXPECT_EQ(cell.pixelColor(from), QColor(Qt::black));
        EXPECT_EQ(cell.pixelColor(from + step), QColor(Qt::white));
        EXPECT_NE(cell.pixelColor(from + 2 * step), QColor(Qt::white));
        EXPECT_NE(cell.pixelColor(from + 2 * step), QColor(Qt::black));
    };
    ExpectFrame(last, {across - 20, 0}, {0, 1});
    ExpectFrame(last, {across - 20, down}, {0, -1});
    ExpectFrame(last, {across, down / 2}, {-1, 0});
    ExpectFrame(first, {0, down / 2}, {1, 0});
}

TEST_F(ReportListPicture, ASelectedCellWithoutColoursShowsTheSelectionsColour) {
    Fill(2);
    Picture(1, 0);
    m_List.SelectAndShow(m_Records[1]);
    const QImage cell = Picture(1, 0);
    // Whether the window is the active one is the machine's matter here.
    const QPalette palette = View().palette();
    const int shown = std::max(Count(cell, palette.color(QPalette::Active, QPalette::Highlight)),
                               Count(cell, palette.color(QPalette::Inactive, QPalette::Highlight)));
    EXPECT_GT(shown, cell.width() * cell.height() / 2);
}

TEST_F(ReportListPicture, TheRowOfTheKeysIsMarked) {
    Fill(3);
    const QImage plain = Picture(1, 1);
    View().selectionModel()->setCurrentIndex(Cell(1, 1), QItemSelectionModel::NoUpdate);
    EXPECT_NE(Picture(1, 1), plain);
}

TEST_F(ReportListPicture, BoldRowsAreDrawnBold) {
    Fill(2);
    const int plain = Count(Picture(1, 1), Qt::white);
    std::vector<RecordId> asked;
    m_List.OnBeforeDrawRow = [&](RecordId record, cReportList::cFontStyle& style) {
        asked.push_back(record);
        style.bold = record == m_Records[1];
    };
    m_List.Redraw();
    EXPECT_GT(Count(Picture(1, 1), Qt::white), plain * 5 / 4);
    EXPECT_NE(std::find(asked.begin(), asked.end(), m_Records[1]), asked.end());
}

TEST_F(ReportListPicture, ItalicRowsAreDrawnInAShapeOfTheirOwn) {
    Fill(1);
    std::vector<QImage> pictures;
    for (const auto& [bold, italic] : {std::pair{false, false}, {false, true}, {true, false}, {true, true}}) {
        const cReportList::cFontStyle wanted{bold, italic};
        m_List.OnBeforeDrawRow = [wanted](RecordId, cReportList::cFontStyle& style) { style = wanted; };
        m_List.Redraw();
        const QImage picture = Picture(0, 1);
        EXPECT_EQ(std::find(pictures.begin(), pictures.end(), picture), pictures.end()) << bold << italic;
        pictures.push_back(picture);
    }
}

TEST_F(ReportListPicture, TheListsOwnStyleIsWhereARowStartsFrom) {
    Fill(1);
    m_List.SetFontStyle(true, true);
    bool bold = false, italic = false;
    m_List.OnBeforeDrawRow = [&](RecordId, cReportList::cFontStyle& style) {
        bold = style.bold;
        italic = style.italic;
    };
    Picture(0, 1);
    EXPECT_TRUE(bold);
    EXPECT_TRUE(italic);
}

TEST_F(ReportListPicture, AnEmptyListShowsItsText) {
    LetItFlush();
    const QImage blank = View().viewport()->grab().toImage();
    m_List.SetEmptyText("(nothing to show)");
    LetItFlush();
    EXPECT_NE(View().viewport()->grab().toImage(), blank);
    Fill(1);
    m_List.RemoveAllRecords();
    LetItFlush();
    EXPECT_NE(View().viewport()->grab().toImage(), blank);
}

TEST_F(ReportListPicture, ARowOfARemovedRecordCanStillBePainted) {
    Fill(3);
    m_List.OnBeforeDrawRow = [&](RecordId record, cReportList::cFontStyle&) { m_List.RecordTagOf(record); };
    m_List.RemoveRecord(m_Records[1]);
    EXPECT_NO_THROW(View().viewport()->grab());
    m_List.RemoveAllRecords();
    EXPECT_NO_THROW(View().viewport()->grab());
}

TEST(LayoutCell, TheIconStandsInFrontOfTheText) {
    const cCellLayout layout = LayoutCell(QRect(100, 50, 80, 21), 16, true, false);
    EXPECT_EQ(layout.icon, QRect(104, 52, 16, 16));
    EXPECT_EQ(layout.text, QRect(124, 50, 52, 21));
}
TEST(LayoutCell, AnIconAloneIsCentredInACentredColumn) {
    const cCellLayout layout = LayoutCell(QRect(0, 0, 80, 20), 16, false, true);
    EXPECT_EQ(layout.icon, QRect(32, 2, 16, 16));
    EXPECT_TRUE(layout.text.isEmpty());
}
TEST(LayoutCell, WithoutIconTheTextHasTheCell) {
    EXPECT_EQ(LayoutCell(QRect(0, 0, 80, 20), 0, true, false).text, QRect(4, 0, 72, 20));
}
TEST(ColourFromNumber, RedIsInTheLowByte) {
    EXPECT_EQ(ColourFromNumber(0x0000FF), QColor(255, 0, 0));
    EXPECT_EQ(ColourFromNumber(0x14C896), QColor(0x96, 0xC8, 0x14));
}

// --- assistive tools

TEST_F(ReportList, ACellWithoutCaptionIsReadByItsValue) {
    Fill(1);
    EXPECT_EQ(Cell(0, 0).data(Qt::AccessibleTextRole).toString(), "1");
    EXPECT_EQ(Cell(0, 1).data(Qt::AccessibleTextRole).toString(), "alarm 0");
    EXPECT_EQ(Cell(0, 0).data(Qt::DisplayRole).toString(), "");
}

// --- against the fake

// The list and the fake do the same at random; their answers never differ.
TEST(ReportListAtRandom, AnswersAsTheFakeDoes) {
    std::mt19937 random(20260315);
    const auto dice = [&](int sides) { return static_cast<int>(random() % static_cast<unsigned>(sides)); };
    const cIconStrip icons;
    cQtReportList real(nullptr, icons);
    cFakeReportList fake;
    cItemTable realItems(real), fakeItems(fake);
    std::vector<RecordId> alive;
    const auto both = [&](auto&& step) {
        step(static_cast<cReportList&>(real));
        step(static_cast<cReportList&>(fake));
    };
    both([](cReportList& list) { list.AddColumn("a", 10), list.AddColumn("b", 10); });
    for (int step = 0; step < 4000; ++step) {
        const RecordId some =
            alive.empty() ? 0 : alive[static_cast<std::size_t>(dice(static_cast<int>(alive.size())))];
        const int value = dice(30), column = dice(2);
        switch (alive.empty() ? 0 : dice(12)) {
            case 0:
            case 1:
            case 2: {
                const std::vector<ItemValue> values{static_cast<double>(value),
                                                    std::string(1, static_cast<char>('a' + value % 5))};
                alive.push_back(fakeItems.Add(values));
                ASSERT_EQ(realItems.Add(values), alive.back());
                break;
            }
            case 3:
                both([&](cReportList& list) { list.RemoveRecord(some); });
                std::erase(alive, some);
                break;
            case 4:
                // What was taken over counts with the values that it has when somebody looks.
                both([](cReportList& list) { list.Rows(); });
                for (cItemTable* items : {&realItems, &fakeItems}) {
                    items->SetValue(some, column, static_cast<double>(value));
                }
                break;
            case 5:
                both([&](cReportList& list) { list.SelectAndShow(some); });
                break;
            case 6:
                if (dice(10) == 0) both([](cReportList& list) { list.SelectAllRows(); });
                break;
            case 7:
                if (dice(5) == 0) both([](cReportList& list) { list.ClearSelection(); });
                break;
            case 8:
                if (dice(10) != 0) break;
                both([&](cReportList& list) {
                    list.ClearSortOrder();
                    list.AddSortColumn(column, value % 2 == 0);
                    list.TakeOverRecords();
                });
                break;
            case 9:
                if (dice(300) != 0) break;
                both([](cReportList& list) { list.RemoveAllRecords(); });
                alive.clear();
                break;
            default:
                both([](cReportList& list) { list.TakeOverRecords(); });
        }
        if (dice(4) != 0) continue;
        ASSERT_EQ(real.Rows(), fake.Rows()) << "at step " << step;
        ASSERT_EQ(real.SelectedRows(), fake.SelectedRows()) << "at step " << step;
    }
    EXPECT_GT(alive.size(), 10u);
}

}  // namespace
}  // namespace vigrel::testing
