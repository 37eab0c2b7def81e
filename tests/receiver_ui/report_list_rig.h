#pragma once

#include <gtest/gtest.h>

#include <QMouseEvent>
#include <QTest>
#include <string>
#include <utility>
#include <vector>

#include "receiver_ui/list/qt_report_list.h"
#include "support/item_table.h"
#include "support/qt_wait.h"

namespace vigrel::testing {

// A list of three columns (an icon, a text, the hidden time stamp) that shows 20 rows or so.
class ReportList : public ::testing::Test {
  protected:
    ReportList() {
        m_List.AddColumn("State", 50);
        m_List.AddColumn("Text", 300);
        m_List.AddColumn("CreatedTimeStamp", 0);
        m_List.OnRowHeight = [] { return 21; };
        m_List.SetFont("Arial", 12);
        m_List.View().resize(600, 450);
        m_List.View().show();
        m_List.View().activateWindow();
        m_List.View().setFocus();
        EXPECT_TRUE(WaitUntil([this] { return m_List.View().hasFocus(); }));
    }
    RecordId Add(const std::string& text, double created) {
        const RecordId record = m_Items.Add({std::string("1"), text, created});
        m_Items.SetIcon(record, 0, 999);  // a number without picture
        m_Items.SetText(record, 1, text);
        m_Items.SetColours(record, 1, 0xFFFFFF, 0x0000FF);  // white on red
        return record;
    }
    // What the intake does with each alarm.
    RecordId Arrive(const std::string& text, double created) {
        const RecordId record = Add(text, created);
        m_List.TakeOverRecords();
        m_List.SelectAndShow(record);
        m_List.ClearSelection();
        return record;
    }
    void Fill(int count) {
        m_List.ClearSortOrder();
        m_List.AddSortColumn(2, true);
        for (int i = 0; i < count; ++i) m_Records.push_back(Add("alarm " + std::to_string(i), i));
        m_List.TakeOverRecords();
        m_List.Rows();
    }
    // Until what was done stands on the screen.
    static void LetItFlush() { RunEvents(cQtReportList::kFlushMilliseconds + 20); }
    QTableView& View() { return m_List.View(); }
    QModelIndex Cell(int row, int column) { return View().model()->index(row, column); }
    QPoint Middle(int row, int column) { return View().visualRect(Cell(row, column)).center(); }
    QString Text(int row, int column) { return Cell(row, column).data().toString(); }
    void ClickHeader(int column) {
        QHeaderView* header = View().horizontalHeader();
        const QPoint middle(header->sectionViewportPosition(column) + header->sectionSize(column) / 2,
                            header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, middle);
    }

    cIconStrip m_Icons;
    cQtReportList m_List{nullptr, m_Icons};
    cItemTable m_Items{m_List};
    std::vector<RecordId> m_Records;
};

class ReportListResizing : public ReportList {
  protected:
    ReportListResizing() {
        m_List.OnColumnWidthChanged = [this](int column) { m_Told.push_back(column); };
    }
    // Takes hold of the right edge of a column and moves it in steps of ten pixels.
    void Drag(int column, int steps) {
        QHeaderView* header = View().horizontalHeader();
        QWidget* viewport = header->viewport();
        QPoint edge(header->sectionViewportPosition(column) + header->sectionSize(column) - 1,
                    header->height() / 2);
        QTest::mouseMove(viewport, edge);
        QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier, edge);
        for (int i = 0; i < std::abs(steps); ++i) {
            edge.rx() += steps > 0 ? 10 : -10;
            QMouseEvent move(QEvent::MouseMove, edge, viewport->mapToGlobal(edge), Qt::NoButton,
                             Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(viewport, &move);
        }
        EXPECT_TRUE(m_Told.empty()) << "told before the mouse was let go";
        QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, edge);
    }
    int BoldWidth(const QString& text) {
        QFont font = View().font();
        font.setBold(true);
        return QFontMetrics(font).horizontalAdvance(text);
    }
    void DoubleClickEdge(int column) {
        QHeaderView* header = View().horizontalHeader();
        const QPoint edge(header->sectionViewportPosition(column) + header->sectionSize(column) - 1,
                          header->height() / 2);
        QTest::mouseMove(header->viewport(), edge);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, edge);
        QTest::mouseDClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, edge);
        QTest::mouseRelease(header->viewport(), Qt::LeftButton, Qt::NoModifier, edge);
    }
    std::vector<int> m_Told;
};

class ReportListKeys : public ReportList {
  protected:
    ReportListKeys() {
        m_List.OnKeyDown = [this](int code, int shift) {
            const bool shiftKey = code >= 16 && code <= 18;
            if (!shiftKey) m_Keys.emplace_back(code, shift);
        };
        m_List.OnRowDoubleClick = [this](RecordId record) { m_Chosen.push_back(record); };
        Fill(5);
    }
    using Keys = std::vector<std::pair<int, int>>;
    Keys m_Keys;
    std::vector<RecordId> m_Chosen;
};

class ReportListPicture : public ReportList {
  protected:
    // The cell as it stands on the screen.
    QImage Picture(int row, int column) {
        LetItFlush();
        return View().viewport()->grab(View().visualRect(Cell(row, column))).toImage();
    }
    // How many pixels of the picture have about that colour.
    static int Count(const QImage& image, QColor colour) {
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor pixel = image.pixelColor(x, y);
                count += std::abs(pixel.red() - colour.red()) + std::abs(pixel.green() - colour.green()) +
                             std::abs(pixel.blue() - colour.blue()) <
                         12;
            }
        }
        return count;
    }
};

}  // namespace vigrel::testing
