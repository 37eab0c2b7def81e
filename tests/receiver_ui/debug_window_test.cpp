#include "receiver_ui/dialogs/debug_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QFontInfo>
#include <QHeaderView>
#include <QMenu>
#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <map>
#include <memory>

#include "common/ini.h"
#include "common/text.h"
#include "support/fake_clock.h"
#include "support/fake_files.h"
#include "support/qt_wait.h"

namespace vigrel::testing {
namespace {

class cFixedSettings : public cSettingStore {
  public:
    std::string GetSetting(std::string_view, std::string_view, std::string_view key,
                           std::string_view defaultValue) const override {
        const auto found = m_Values.find(std::string(key));
        return found == m_Values.end() ? std::string(defaultValue) : found->second;
    }
    std::map<std::string, std::string> m_Values;
};

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
    cFixedSettings m_Settings;
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
