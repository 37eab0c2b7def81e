// What the operator does with the alarm list, and what must not happen by it.

#include <QAbstractItemModelTester>
#include <QFocusEvent>
#include <QPainter>
#include <random>

#include "receiver_ui/list/key_codes.h"
#include "receiver_ui/report_list_rig.h"
#include "support/markup.h"

namespace vigrel::testing {
namespace {

// --- keys

TEST(VirtualKeyCode, IsThatOfTheKeysOnEveryKeyboard) {
    const std::pair<int, int> expected[] = {
        {Qt::Key_Backspace, 0x08}, {Qt::Key_Tab, 0x09},      {Qt::Key_Backtab, 0x09}, {Qt::Key_Return, 0x0D},
        {Qt::Key_Enter, 0x0D},     {Qt::Key_Shift, 0x10},    {Qt::Key_Control, 0x11}, {Qt::Key_Alt, 0x12},
        {Qt::Key_Pause, 0x13},     {Qt::Key_CapsLock, 0x14}, {Qt::Key_Escape, 0x1B},  {Qt::Key_Space, 0x20},
        {Qt::Key_PageUp, 0x21},    {Qt::Key_PageDown, 0x22}, {Qt::Key_End, 0x23},     {Qt::Key_Home, 0x24},
        {Qt::Key_Left, 0x25},      {Qt::Key_Up, 0x26},       {Qt::Key_Right, 0x27},   {Qt::Key_Down, 0x28},
        {Qt::Key_Insert, 0x2D},    {Qt::Key_Delete, 0x2E},   {Qt::Key_0, 0x30},       {Qt::Key_9, 0x39},
        {Qt::Key_A, 0x41},         {Qt::Key_Z, 0x5A},        {Qt::Key_Menu, 0x5D},    {Qt::Key_F1, 0x70},
        {Qt::Key_F9, 0x78},        {Qt::Key_F24, 0x87}};
    for (const auto& [key, code] : expected) EXPECT_EQ(VirtualKeyCode(key, Qt::NoModifier), code) << key;
    EXPECT_EQ(VirtualKeyCode(Qt::Key_0, Qt::KeypadModifier), 0x60);
    EXPECT_EQ(VirtualKeyCode(Qt::Key_9, Qt::KeypadModifier), 0x69);
    for (const int none : {int{Qt::Key_A} - 1, int{Qt::Key_Z} + 1, int{Qt::Key_0} - 1, int{Qt::Key_9} + 1,
                           int{Qt::Key_F24} + 1, int{Qt::Key_VolumeUp}}) {
        EXPECT_EQ(VirtualKeyCode(none, Qt::NoModifier), 0) << none;
    }
}

TEST_F(ReportListKeys, AKeyWithoutACodeIsNotTold) {
    QTest::keyClick(&View(), Qt::Key_VolumeUp);
    EXPECT_TRUE(m_Keys.empty());
}

TEST_F(ReportListKeys, WithOtherKeysEnterAndSpaceChooseNothing) {
    View().setCurrentIndex(Cell(3, 1));
    for (const Qt::KeyboardModifier modifier : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier}) {
        QTest::keyClick(&View(), Qt::Key_Return, modifier);
        QTest::keyClick(&View(), Qt::Key_Enter, modifier);
    }
    EXPECT_TRUE(m_Chosen.empty());
}

TEST_F(ReportListKeys, OnlyCtrlAloneMakesAKeyTheOwners) {
    const auto isTaken = [this](int key, Qt::KeyboardModifiers modifiers) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        QCoreApplication::sendEvent(&View(), &event);
        return event.isAccepted();
    };
    EXPECT_TRUE(isTaken(Qt::Key_Escape, Qt::ShiftModifier));
    EXPECT_FALSE(isTaken(Qt::Key_C, Qt::ControlModifier | Qt::AltModifier));
    EXPECT_FALSE(isTaken(Qt::Key_X, Qt::ControlModifier));
    EXPECT_FALSE(isTaken(Qt::Key_F10, Qt::NoModifier));
}

TEST_F(ReportList, TheKeysOfTheColumnsActWithCtrlAlone) {
    const RecordId b = Add("b", 1), a = Add("a", 2);
    m_List.TakeOverRecords();
    const std::vector<RecordId> before{b, a};
    for (const Qt::KeyboardModifiers modifiers :
         {Qt::KeyboardModifiers(Qt::NoModifier), Qt::ControlModifier | Qt::ShiftModifier,
          Qt::ControlModifier | Qt::AltModifier, Qt::KeyboardModifiers(Qt::AltModifier)}) {
        QTest::keyClick(&View(), Qt::Key_2, modifiers);
        EXPECT_EQ(m_List.Rows(), before) << modifiers.toInt();
    }
    QTest::keyClick(&View(), Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(m_List.Rows(), (std::vector<RecordId>{a, b}));
    for (const Qt::KeyboardModifiers modifiers :
         {Qt::KeyboardModifiers(Qt::NoModifier), Qt::ControlModifier | Qt::AltModifier}) {
        QTest::keyClick(&View(), Qt::Key_Plus, modifiers);
        QTest::keyClick(&View(), Qt::Key_Minus, modifiers);
        EXPECT_EQ(m_List.ColumnWidth(1), 300);
    }
    QTest::keyClick(&View(), Qt::Key_Minus, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(m_List.ColumnWidth(1), 300);
}

TEST_F(ReportList, CtrlWithTheFirstAndTheNinthDigitReachesThoseColumns) {
    for (int i = 0; i < 7; ++i) m_List.AddColumn("more", 30);  // the ninth that shows is column 9
    Add("b", 1);
    m_List.TakeOverRecords();
    m_List.Rows();
    QTest::keyClick(&View(), Qt::Key_9, Qt::ControlModifier);
    EXPECT_EQ(View().horizontalHeader()->sortIndicatorSection(), 9);
    QTest::keyClick(&View(), Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(View().horizontalHeader()->sortIndicatorSection(), 0);
}

TEST_F(ReportListResizing, TheEqualSignIsAPlusAndTheKeypadCounts) {
    QTest::keyClick(&View(), Qt::Key_2, Qt::ControlModifier);
    QTest::keyClick(&View(), Qt::Key_Equal, Qt::ControlModifier);
    EXPECT_EQ(m_List.ColumnWidth(1), 320);
    QTest::keyClick(&View(), Qt::Key_Plus, Qt::ControlModifier | Qt::KeypadModifier);
    EXPECT_EQ(m_List.ColumnWidth(1), 340);
    QTest::keyClick(&View(), Qt::Key_Minus, Qt::ControlModifier | Qt::KeypadModifier);
    EXPECT_EQ(m_List.ColumnWidth(1), 320);
}

TEST_F(ReportListResizing, AHiddenColumnThatSortsStaysHidden) {
    m_List.AddSortColumn(2, true);
    m_List.TakeOverRecords();
    m_List.Rows();
    QTest::keyClick(&View(), Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_TRUE(m_Told.empty());
    EXPECT_EQ(m_List.ColumnWidth(2), 0);
    EXPECT_TRUE(View().horizontalHeader()->isSectionHidden(2));
}

TEST_F(ReportListResizing, AColumnCannotBeMadeWiderByKeysThanEveryScreen) {
    QTest::keyClick(&View(), Qt::Key_2, Qt::ControlModifier);
    m_List.SetColumnWidth(1, 31990);
    for (int i = 0; i < 2; ++i) QTest::keyClick(&View(), Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(m_List.ColumnWidth(1), 32000);
}

TEST_F(ReportListResizing, AWidthMadeByKeysIsNotToldAgainByAClick) {
    QTest::keyClick(&View(), Qt::Key_2, Qt::ControlModifier);
    QTest::keyClick(&View(), Qt::Key_Plus, Qt::ControlModifier);
    ASSERT_EQ(m_Told, std::vector<int>{1});
    ClickHeader(0);
    const QHeaderView* header = View().horizontalHeader();
    QTest::mouseDClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, {20, header->height() / 2});
    EXPECT_EQ(m_Told.size(), 1u);
}

// --- columns

TEST_F(ReportListResizing, ADoubleClickOnAnEdgeFitsTheColumnToItsTexts) {
    Add("a text of some width, in bold", 1);
    m_List.TakeOverRecords();
    m_List.Rows();
    LetItFlush();
    DoubleClickEdge(1);
    EXPECT_EQ(m_Told, std::vector<int>{1});
    EXPECT_EQ(m_List.ColumnWidth(1), 8 + BoldWidth("a text of some width, in bold"));
}

TEST_F(ReportListResizing, AFittedColumnHasRoomForTheIconBesideItsText) {
    for (const int icon : {0, 2}) {
        m_List.RemoveAllRecords();
        m_Items.SetIcon(Add("a text of some width, in bold", 1), 1, icon);
        m_List.TakeOverRecords();
        m_List.Rows();
        LetItFlush();
        m_Told.clear();
        DoubleClickEdge(1);
        EXPECT_EQ(m_List.ColumnWidth(1), 8 + 16 + 4 + BoldWidth("a text of some width, in bold")) << icon;
    }
}

TEST_F(ReportListResizing, IconsOfLowRowsCanStillBeMadeOut) {
    m_List.OnRowHeight = [] { return 10; };
    m_List.SetFont("Arial", 6);
    m_Items.SetIcon(Add("a text of some width", 1), 1, 2);
    m_List.TakeOverRecords();
    m_List.Rows();
    LetItFlush();
    DoubleClickEdge(1);
    EXPECT_EQ(m_List.ColumnWidth(1), 8 + 8 + 4 + BoldWidth("a text of some width"));
}

TEST_F(ReportListResizing, AColumnThatJustFitsItsTextHasNoToolTip) {
    Add("a text of some width, in bold", 1);
    m_List.TakeOverRecords();
    m_List.Rows();
    LetItFlush();
    const auto hasToolTip = [this] {
        QToolTip::hideText();
        EXPECT_TRUE(WaitUntil([] { return ShownToolTip() == nullptr; }));
        const QPoint place = Middle(0, 1);
        QHelpEvent help(QEvent::ToolTip, place, View().viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(View().viewport(), &help);
        return ShownToolTip() != nullptr;
    };
    DoubleClickEdge(1);
    EXPECT_FALSE(hasToolTip());
    View().setColumnWidth(1, View().columnWidth(1) - 1);
    EXPECT_TRUE(hasToolTip());
    QToolTip::hideText();
}

TEST_F(ReportListResizing, AWidthThatTheOwnerSetsIsToldOnceAndReachesTheHeader) {
    m_List.SetColumnWidth(1, 120);
    EXPECT_EQ(m_Told, std::vector<int>{1});
    EXPECT_EQ(View().columnWidth(1), 120);
    m_List.SetColumnWidth(1, 120);
    EXPECT_EQ(m_Told.size(), 1u);
}

TEST_F(ReportListResizing, AWidthBeyondEveryScreenIsCut) {
    m_List.SetColumnWidth(1, 1'000'000);
    EXPECT_EQ(View().columnWidth(1), 32000);
    EXPECT_EQ(m_List.ColumnWidth(1), 1'000'000);
    m_List.SetColumnWidth(1, -5);
    EXPECT_TRUE(View().isColumnHidden(1));
}

TEST_F(ReportListResizing, AClickThatMovesNoEdgeTellsOfNoWidth) {
    Drag(1, 1);
    ASSERT_EQ(m_Told.size(), 1u);
    ClickHeader(0);
    ClickHeader(1);
    EXPECT_EQ(m_Told.size(), 1u);
}

TEST_F(ReportListResizing, AColumnThatWasFixedCanBeFreedAgain) {
    m_List.SetColumnResizable(1, false);
    m_List.SetColumnResizable(1, true);
    Drag(1, 2);
    EXPECT_EQ(m_List.ColumnWidth(1), 320);
}

TEST_F(ReportList, OneColumnThatCanBeSortedLeavesTheHeadersClickable) {
    for (const int column : {0, 2}) m_List.SetColumnSortable(column, false);
    EXPECT_TRUE(View().horizontalHeader()->sectionsClickable());
    m_List.SetColumnSortable(1, false);
    EXPECT_FALSE(View().horizontalHeader()->sectionsClickable());
    m_List.SetColumnSortable(2, true);
    EXPECT_TRUE(View().horizontalHeader()->sectionsClickable());
}

TEST_F(ReportList, HeadersSayTheirCaptionsAndNothingElse) {
    const QAbstractItemModel* model = View().model();
    EXPECT_EQ(model->headerData(1, Qt::Horizontal, Qt::AccessibleTextRole).toString(), "Text");
    EXPECT_FALSE(model->headerData(1, Qt::Horizontal, Qt::DecorationRole).isValid());
    EXPECT_FALSE(model->headerData(1, Qt::Vertical, Qt::DisplayRole).isValid());
    EXPECT_FALSE(model->headerData(-1, Qt::Horizontal, Qt::DisplayRole).isValid());
    EXPECT_FALSE(model->headerData(3, Qt::Horizontal, Qt::DisplayRole).isValid());
    EXPECT_FALSE(View().horizontalHeader()->highlightSections());
    EXPECT_EQ(View().horizontalHeader()->textElideMode(), Qt::ElideRight);
}

TEST_F(ReportList, ACellOfNoRowHoldsNothing) {
    Fill(2);
    const QAbstractItemModel* model = View().model();
    EXPECT_FALSE(model->data(QModelIndex(), Qt::DisplayRole).isValid());
    EXPECT_FALSE(model->data(Cell(0, 1), Qt::ToolTipRole).isValid());
    EXPECT_EQ(model->rowCount(Cell(0, 0)), 0);
    EXPECT_EQ(model->columnCount(Cell(0, 0)), 0);
}

// --- order

TEST_F(ReportList, TheThirdClickTurnsTheOrderBack) {
    const RecordId b = Add("b", 1), a = Add("a", 2);
    m_List.TakeOverRecords();
    for (int i = 0; i < 3; ++i) ClickHeader(1);
    EXPECT_EQ(m_List.Rows(), (std::vector<RecordId>{a, b}));
    EXPECT_EQ(View().horizontalHeader()->sortIndicatorOrder(), Qt::AscendingOrder);
}

TEST_F(ReportList, AClickOnTheSecondColumnOfAnOrderSortsByItAloneUpwards) {
    m_List.AddSortColumn(2, true);
    m_List.AddSortColumn(1, true);
    const RecordId b = Add("b", 1), other = Add("a", 2), a = Add("a", 3);
    m_List.TakeOverRecords();
    m_List.Rows();
    EXPECT_EQ(View().horizontalHeader()->sortIndicatorSection(), 2);
    ClickHeader(1);
    EXPECT_EQ(m_List.Rows(), (std::vector<RecordId>{other, a, b}));
    ClickHeader(1);
    EXPECT_EQ(m_List.Rows(), (std::vector<RecordId>{b, a, other}));
}

TEST_F(ReportList, WithoutAnOrderNoHeaderBearsTheMark) {
    Fill(2);
    LetItFlush();
    EXPECT_EQ(View().horizontalHeader()->sortIndicatorSection(), 2);
    m_List.ClearSortOrder();
    m_List.TakeOverRecords();
    LetItFlush();
    EXPECT_EQ(View().horizontalHeader()->sortIndicatorSection(), -1);
}

// The keys go on where the operator was, not where the row stood.
TEST_F(ReportList, TheRowOfTheKeysGoesAlongWhenTheOrderTurns) {
    Fill(5);
    View().setCurrentIndex(Cell(1, 1));
    m_List.ClearSelection();
    ClickHeader(1);
    ClickHeader(1);
    ASSERT_EQ(m_List.Rows().front(), m_Records[4]);
    EXPECT_EQ(View().currentIndex().row(), 3);
    EXPECT_TRUE(m_List.SelectedRows().empty());
}

TEST_F(ReportList, TheRowOfTheKeysThatIsGoneIsNowhere) {
    Fill(5);
    View().setCurrentIndex(Cell(1, 1));
    m_List.RemoveAllRecords();
    m_List.Rows();
    EXPECT_FALSE(View().currentIndex().isValid());
    Add("new", 9);
    m_List.TakeOverRecords();
    m_List.Rows();
    EXPECT_TRUE(m_List.SelectedRows().empty());
}

// --- mouse

TEST_F(ReportListKeys, ADoubleClickBesideTheRowsChoosesNothing) {
    View().setCurrentIndex(Cell(4, 1));
    QTest::mouseDClick(View().viewport(), Qt::LeftButton, Qt::NoModifier, Middle(4, 1) + QPoint(0, 60));
    EXPECT_TRUE(m_Chosen.empty());
}

TEST_F(ReportListKeys, ARowBehindAGapIsNotTakenForTheOneClicked) {
    for (const auto& [clicked, gone] : {std::pair{1, std::vector{1, 2}}, {1, {0, 1}}, {0, {0, 1, 2}}}) {
        m_List.RemoveAllRecords();
        m_Records.clear();
        Fill(6);
        const QPoint pointer = Middle(clicked, 1);
        QTest::mouseClick(View().viewport(), Qt::LeftButton, Qt::NoModifier, pointer);
        for (const int row : gone) m_List.RemoveRecord(m_Records[static_cast<std::size_t>(row)]);
        m_List.TakeOverRecords();
        m_List.Rows();
        QTest::mouseDClick(View().viewport(), Qt::LeftButton, Qt::NoModifier, pointer);
        EXPECT_TRUE(m_Chosen.empty()) << clicked;
    }
}

TEST_F(ReportListKeys, ARowThatGoesElsewhereLeavesTheClickedOneMeant) {
    QTest::mouseClick(View().viewport(), Qt::LeftButton, Qt::NoModifier, Middle(1, 1));
    m_List.RemoveRecord(m_Records[2]);
    m_List.TakeOverRecords();
    m_List.Rows();
    QTest::mouseDClick(View().viewport(), Qt::LeftButton, Qt::NoModifier, Middle(1, 1));
    EXPECT_EQ(m_Chosen, std::vector<RecordId>{m_Records[1]});
}

// --- focus

TEST_F(ReportList, ToGoElsewhereFromAMenuCountsOnceAsLosingTheFocus) {
    int told = 0;
    m_List.OnFocusChange = [&] { ++told; };
    QFocusEvent toMenu(QEvent::FocusOut, Qt::PopupFocusReason);
    QFocusEvent back(QEvent::FocusIn, Qt::PopupFocusReason);
    QEvent elsewhere(QEvent::WindowDeactivate);
    QCoreApplication::sendEvent(&View(), &elsewhere);
    EXPECT_EQ(told, 0) << "of the list itself, whose own event it is";
    QCoreApplication::sendEvent(&View(), &toMenu);
    QCoreApplication::sendEvent(&View(), &elsewhere);
    QCoreApplication::sendEvent(&View(), &elsewhere);
    EXPECT_EQ(told, 1);
    QCoreApplication::sendEvent(&View(), &toMenu);
    QCoreApplication::sendEvent(&View(), &back);
    QCoreApplication::sendEvent(&View(), &elsewhere);
    EXPECT_EQ(told, 1);
}

TEST(ReportListAlone, AWindowLeftBeforeTheListHadTheFocusIsNotTold) {
    const cIconStrip icons;
    cQtReportList list(nullptr, icons);
    int told = 0;
    list.OnFocusChange = [&] { ++told; };
    QEvent elsewhere(QEvent::WindowDeactivate);
    QCoreApplication::sendEvent(&list.View(), &elsewhere);
    EXPECT_EQ(told, 0);
}

TEST_F(ReportListResizing, WhatTheOperatorDoesWhereNobodyHearsItWorksAllTheSame) {
    Fill(3);
    LetItFlush();
    m_List.OnColumnWidthChanged = nullptr;
    Drag(1, 2);
    EXPECT_EQ(m_List.ColumnWidth(1), 320);
    QTest::mouseClick(View().viewport(), Qt::LeftButton, Qt::NoModifier, Middle(1, 1));
    QTest::mouseDClick(View().viewport(), Qt::LeftButton, Qt::NoModifier, Middle(1, 1));
    QTest::keyClick(&View(), Qt::Key_Return);
    QTest::keyClick(&View(), Qt::Key_Down);
    EXPECT_EQ(m_List.SelectedRows(), std::vector<RecordId>{m_Records[2]});
    QFocusEvent toMenu(QEvent::FocusOut, Qt::PopupFocusReason);
    QFocusEvent away(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QEvent elsewhere(QEvent::WindowDeactivate);
    for (QEvent* event : {static_cast<QEvent*>(&toMenu), &elsewhere, static_cast<QEvent*>(&away)}) {
        QCoreApplication::sendEvent(&View(), event);
    }
    EXPECT_EQ(m_List.Rows(), m_Records);
}

// --- look

TEST(ReportListAlone, ItsRowsFitItsFontUntilSomebodyKnowsBetter) {
    const cIconStrip icons;
    cQtReportList list(nullptr, icons);
    list.AddColumn("Text", 100);
    list.SetFont("Arial", 20);
    QHeaderView* rows = list.View().verticalHeader();
    EXPECT_EQ(rows->defaultSectionSize(), list.View().fontMetrics().height() + 3);
    list.OnRowHeight = [] { return 77; };
    list.Redraw();
    list.Rows();
    EXPECT_EQ(rows->defaultSectionSize(), 77);
    list.OnRowHeight = [] { return 0; };
    list.SetFont("Arial", 20);
    EXPECT_EQ(rows->defaultSectionSize(), 1);
}

TEST(ReportListAlone, HasNoFrameAndNoMarkOfAnOrderToBeginWith) {
    const cIconStrip icons;
    cQtReportList list(nullptr, icons);
    list.AddColumn("Text", 100);
    list.View().show();
    EXPECT_EQ(list.View().viewport()->x(), 0);
    EXPECT_EQ(list.View().Header().y(), 0);
    EXPECT_EQ(list.View().Header().sortIndicatorSection(), -1);
}

TEST(ReportListAlone, TheKeysBeginInTheFirstColumnThatShows) {
    const cIconStrip icons;
    for (const auto& [key, row] : {std::pair{Qt::Key_End, 2}, {Qt::Key_Home, 0}}) {
        cQtReportList list(nullptr, icons);
        cItemTable items(list);
        for (const int width : {0, 100, 100}) list.AddColumn("Text", width);
        for (int i = 0; i < 3; ++i) items.Add({"text"});
        list.TakeOverRecords();
        ASSERT_EQ(list.Rows().size(), 3u);
        QTest::keyClick(&list.View(), key);
        EXPECT_EQ(list.View().currentIndex(), list.View().model()->index(row, 1));
    }
}

TEST(ReportListAlone, CanBeHiddenAndShown) {
    const cIconStrip icons;
    QWidget window;
    cQtReportList list(&window, icons);
    window.show();
    list.SetVisible(false);
    EXPECT_FALSE(list.View().isVisible());
    list.SetVisible(true);
    EXPECT_TRUE(list.View().isVisible());
}

TEST_F(ReportListPicture, AControlCharacterIsABlank) {
    Fill(2);
    m_Items.SetText(m_Records[0], 1, "first\r\nsecond\tthird");
    m_Items.SetText(m_Records[1], 1, "first  second third");
    EXPECT_EQ(Picture(0, 1), Picture(1, 1));
}

TEST_F(ReportListPicture, ASelectedCellShowsItsOwnColourThroughTheSelections) {
    Fill(2);
    m_Items.SetText(m_Records[1], 1, "");
    m_List.SelectAndShow(m_Records[1]);
    const QImage cell = Picture(1, 1);
    const QColor middle = cell.pixelColor(cell.width() / 2, cell.height() / 2);
    // Whether the window is the active one is the machine's matter here.
    const auto through = [&](QPalette::ColorGroup group) {
        const QColor over = View().palette().color(group, QPalette::Highlight);
        return QColor(qRound(255 * 0.75 + over.red() * 0.25), qRound(over.green() * 0.25),
                      qRound(over.blue() * 0.25));
    };
    EXPECT_TRUE(middle == through(QPalette::Active) || middle == through(QPalette::Inactive))
        << middle.name().toStdString();
}

TEST_F(ReportListPicture, TheWordsOfACellWithoutColoursAreTheListsAndTheSelectionsWhereItIsSelected) {
    QPalette palette = View().palette();
    palette.setColor(QPalette::Text, QColor(0, 0, 200));
    palette.setColor(QPalette::HighlightedText, QColor(200, 200, 0));
    palette.setColor(QPalette::Highlight, QColor(0, 100, 0));
    View().setPalette(palette);
    Fill(1);
    m_Items.SetText(m_Records[0], 0, "HH");
    m_Items.SetIcon(m_Records[0], 0, -1);
    const QImage plain = Picture(0, 0);
    m_List.SelectAndShow(m_Records[0]);
    const QImage selected = Picture(0, 0);
    EXPECT_GT(Count(plain, QColor(0, 0, 200)), 5);
    EXPECT_EQ(Count(plain, QColor(200, 200, 0)), 0);
    EXPECT_GT(Count(selected, QColor(200, 200, 0)), 5);
    EXPECT_EQ(Count(selected, QColor(0, 0, 200)), 0);
}

TEST_F(ReportListPicture, WhatChangesTheLookIsPaintedByItself) {
    Fill(1);
    LetItFlush();
    int painted = 0;
    m_List.OnBeforeDrawRow = [&](RecordId, cReportList::cFontStyle&) { ++painted; };
    const auto isPainted = [&] {
        painted = 0;
        return WaitUntil([&] { return painted > 0; }, 2 * cQtReportList::kFlushMilliseconds);
    };
    RunEvents(50);
    EXPECT_FALSE(isPainted());
    m_List.Redraw();
    EXPECT_TRUE(isPainted());
    m_List.SetFontStyle(true, false);
    EXPECT_TRUE(isPainted());
    m_List.SetColumnPlacement(1, 1, 0);
    EXPECT_TRUE(isPainted());
}

TEST_F(ReportListPicture, AFineLinePartsTheRows) {
    Fill(2);
    m_Items.SetText(m_Records[0], 1, "");
    const QImage cell = Picture(0, 1);
    const QColor line = cell.pixelColor(50, cell.height() - 1);
    EXPECT_EQ(cell.pixelColor(50, cell.height() - 2), QColor(Qt::red));
    EXPECT_EQ(line.green(), 0);
    EXPECT_EQ(line.blue(), 0);
    EXPECT_NEAR(line.red(), 255 - 40, 1);
}

TEST_F(ReportListPicture, WithoutTheKeyboardNoRowIsMarkedForItsKeys) {
    Fill(3);
    View().selectionModel()->setCurrentIndex(Cell(1, 1), QItemSelectionModel::NoUpdate);
    const QImage marked = Picture(1, 1);
    View().clearFocus();
    const QImage plain = Picture(1, 1);
    EXPECT_NE(marked, plain);
    EXPECT_LT(Count(plain, Qt::black), 10);
    // A dashed line, where a selected row has a whole one.
    EXPECT_GT(Count(marked, Qt::black), marked.width() / 2);
    EXPECT_LT(Count(marked, Qt::black), marked.width() * 2);
}

TEST_F(ReportListPicture, AnIconStandsInFrontInTheMiddleOfTheRowsHeight) {
    Fill(1);
    m_Items.SetIcon(m_Records[0], 0, 2);
    const QImage cell = Picture(0, 0);
    const QPixmap icon = m_Icons.Image(2, 16, cell.devicePixelRatio());
    ASSERT_FALSE(icon.isNull());
    QImage expected(cell.size(), QImage::Format_RGB32);
    expected.fill(View().palette().color(QPalette::Base));
    QPainter painter(&expected);
    painter.drawPixmap(4, 2, icon);
    painter.end();
    const QRect inside(0, 0, cell.width(), cell.height() - 1);
    EXPECT_EQ(cell.copy(inside).convertToFormat(QImage::Format_RGB32), expected.copy(inside));
}

TEST_F(ReportListPicture, ACentredTextStandsInTheMiddle) {
    Fill(1);
    m_Items.SetText(m_Records[0], 1, "H");
    const auto middleOfText = [](const QImage& cell) {
        int first = cell.width(), last = -1;
        for (int x = 0; x < cell.width(); ++x) {
            if (cell.pixelColor(x, cell.height() / 2).green() < 100) continue;
            first = std::min(first, x);
            last = x;
        }
        return (first + last) / 2;
    };
    EXPECT_LT(middleOfText(Picture(0, 1)), 30);
    m_List.SetColumnPlacement(1, 1, 0);
    EXPECT_NEAR(middleOfText(Picture(0, 1)), 150, 4);
    EXPECT_TRUE(View()
                    .model()
                    ->headerData(1, Qt::Horizontal, Qt::TextAlignmentRole)
                    .value<Qt::Alignment>()
                    .testFlag(Qt::AlignLeft));
    m_List.SetColumnPlacement(1, 0, 1);
    EXPECT_LT(middleOfText(Picture(0, 1)), 30);
}

TEST_F(ReportListPicture, EachPaintingAsksOnceForTheStyleOfARow) {
    m_List.SetColumnWidth(2, 60);
    Fill(2);
    for (const RecordId record : m_Records) m_Items.SetText(record, 2, "text");
    LetItFlush();
    std::vector<RecordId> asked;
    m_List.OnBeforeDrawRow = [&](RecordId record, cReportList::cFontStyle&) { asked.push_back(record); };
    View().viewport()->grab();
    EXPECT_EQ(asked, m_Records);
    asked.clear();
    View().viewport()->grab();
    EXPECT_EQ(asked, m_Records);
}

TEST_F(ReportListPicture, TheTextOfAnEmptyListStandsInItsMiddleInAFaintColour) {
    LetItFlush();
    QPalette palette = View().palette();
    palette.setColor(QPalette::PlaceholderText, QColor(0, 0, 200));
    View().setPalette(palette);
    m_List.SetEmptyText("HHHHH");
    LetItFlush();
    const QImage picture = View().viewport()->grab().toImage();
    QRect text;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) == QColor(0, 0, 200)) text |= QRect(x, y, 1, 1);
        }
    }
    EXPECT_GT(text.width(), 10);
    EXPECT_LT(std::abs(text.center().x() - picture.width() / 2), 5);
    EXPECT_LT(std::abs(text.center().y() - picture.height() / 2), 5);
}

TEST_F(ReportListPicture, TheTextOfAnEmptyListGoesWithTheFirstRow) {
    Fill(1);
    LetItFlush();
    const QImage without = View().viewport()->grab().toImage();
    m_List.SetEmptyText("(nothing to show)");
    LetItFlush();
    EXPECT_EQ(View().viewport()->grab().toImage(), without);
}

// --- what the toolkit is told

TEST(ReportListAtRandom, TellsTheViewTheTruthOfEachChange) {
    std::mt19937 random(20260401);
    const auto dice = [&](std::size_t sides) { return random() % sides; };
    const cIconStrip icons;
    cQtReportList list(nullptr, icons);
    cItemTable items(list);
    list.AddColumn("a", 10);
    const QAbstractItemModelTester tester(list.View().model(),
                                          QAbstractItemModelTester::FailureReportingMode::Warning);
    std::vector<RecordId> alive;
    for (int step = 0; step < 300; ++step) {
        for (std::size_t more = dice(step % 50 == 0 ? 40 : 4); more > 0; --more) {
            alive.push_back(items.Add({static_cast<double>(dice(20))}));
        }
        for (std::size_t less = dice(4); less > 0 && !alive.empty(); --less) {
            const auto gone = alive.begin() + static_cast<std::ptrdiff_t>(dice(alive.size()));
            list.RemoveRecord(*gone);
            alive.erase(gone);
        }
        if (step % 20 == 0) {
            list.ClearSortOrder();
            list.AddSortColumn(0, step % 40 == 0);
        }
        list.TakeOverRecords();
        ASSERT_EQ(list.Rows().size(), alive.size());
    }
}

}  // namespace
}  // namespace vigrel::testing
