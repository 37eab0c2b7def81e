#include "receiver_ui/dialogs/debug_window.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QMenuBar>
#include <QScrollBar>
#include <QShortcut>
#include <QTableView>

#include "common/failure.h"

namespace vigrel {
namespace {

constexpr int kIconSize = 16;
constexpr int kLastColumn = static_cast<int>(kTraceColumns.size()) - 1;

}  // namespace

cDebugWindow::cDebugWindow(cOpenWindows& windows, cProtocolTrace& trace, const cTexts& texts,
                           const cSettingStore& settings)
    : cWidgetWindow("Vigrel_Receiver_Debug", windows),
      m_Trace(trace),
      m_Model(trace, texts),
      m_List(new QTableView(this)) {
    cDebugWindow::SetCaption(texts.GetText(TextTraceTitle));
    AddMenu(texts);
    SetUpList();
    SetColumnWidths(settings);
    resize(1000, 420);  // a usual record is seen whole
    m_Trace.OnChange = [this] {
        if (m_SyncScheduled) return;
        m_SyncScheduled = true;
        QMetaObject::invokeMethod(
            this, [this] { Follow(); }, Qt::QueuedConnection);
    };
}

cDebugWindow::~cDebugWindow() {
    m_Trace.OnChange = nullptr;
}

void cDebugWindow::AddMenu(const cTexts& texts) {
    QMenu* file = menuBar()->addMenu(ToQString(texts.GetText(TextTraceFileMenu)));
    file->setObjectName("Menu_File");
    QAction* save = file->addAction("&Save to DEBUG.TXT");
    save->setObjectName("Menu_Save");
    save->setShortcut(QKeySequence::Save);
    QObject::connect(save, &QAction::triggered, this, [this] {
        CleanUpBehind([this] { m_Trace.Menu_Save(); },
                      [this] {
                          if (OnSaveFails) OnSaveFails();
                      });
    });
}

void cDebugWindow::SetUpList() {
    m_List->setObjectName("ListView_Debug");
    m_List->setAccessibleName(windowTitle());
    m_List->setModel(&m_Model);
    m_List->setIconSize({kIconSize, kIconSize});
    m_List->setShowGrid(false);
    m_List->setWordWrap(false);
    m_List->setTabKeyNavigation(false);
    m_List->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_List->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_List->verticalHeader()->hide();
    m_List->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_List->verticalHeader()->setDefaultSectionSize(std::max(kIconSize, fontMetrics().height()) + 4);
    m_List->horizontalHeader()->setMinimumSectionSize(1);
    m_List->horizontalHeader()->setHighlightSections(false);
    QObject::connect(new QShortcut(QKeySequence::Copy, m_List, nullptr, nullptr, Qt::WidgetShortcut),
                     &QShortcut::activated, this, [this] { CopyRows(); });
    setCentralWidget(m_List);
}

// The design's widths come from fonts of another day: a column starts wide enough for what stands in it,
// unless the user's settings say otherwise.
void cDebugWindow::SetColumnWidths(const cSettingStore& settings) {
    for (int column = 0; column <= kLastColumn; ++column) {
        const double design = kTraceColumns[static_cast<std::size_t>(column)].width;
        const double present = std::max(design, ToTwips(FittingWidth(column)));
        m_List->setColumnWidth(column, ToPixels(TraceColumnWidth(settings, column + 1, present)));
    }
}

int cDebugWindow::FittingWidth(int column) const {
    if (column == kLastColumn) return 0;
    constexpr int kMargins = 12;
    const int icon = column == 0 ? kIconSize + 4 : 0;
    const QString widest = column == 0 ? "00:00:00" : "V<-S";
    const QString caption = m_Model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    return kMargins + std::max(icon + fontMetrics().horizontalAdvance(widest),
                               m_List->horizontalHeader()->fontMetrics().horizontalAdvance(caption));
}

void cDebugWindow::resizeEvent(QResizeEvent* event) {
    cWidgetWindow::resizeEvent(event);
    const double width =
        LastTraceColumnWidth(InnerWidth(), ToTwips(m_List->columnWidth(0)), ToTwips(m_List->columnWidth(1)));
    if (width >= 0) m_List->setColumnWidth(kLastColumn, ToPixels(width));
}

// Takes over new rows. An operator who reads further up keeps the rows in view.
void cDebugWindow::Follow() {
    m_SyncScheduled = false;
    QScrollBar* bar = m_List->verticalScrollBar();
    const int value = bar->value();
    const bool atEnd = value >= bar->maximum();
    const int removed = m_Model.Sync();
    if (atEnd) {
        m_List->scrollToBottom();
    } else {
        bar->setValue(value - removed);
    }
}

void cDebugWindow::CopyRows() const {
    QStringList lines;
    QModelIndexList selected = m_List->selectionModel()->selectedRows();
    std::sort(selected.begin(), selected.end());
    for (const QModelIndex& row : selected) {
        QStringList cells;
        for (int column = 0; column <= kLastColumn; ++column) {
            cells += row.siblingAtColumn(column).data().toString();
        }
        lines += cells.join('\t');
    }
    QApplication::clipboard()->setText(lines.join('\n'));
}

void cDebugWindow::Closed() {
    m_Trace.Form_Unload();
}

}  // namespace vigrel
