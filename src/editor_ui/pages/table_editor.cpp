#include "editor_ui/pages/table_editor.h"

#include <QAction>
#include <QApplication>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QStyle>
#include <QToolButton>
#include <algorithm>

#include "editor_ui/pages/editor_action.h"
#include "windows/short_text.h"

namespace vigrel {

cTableEditor::cTableEditor(const char* tableName, const QStringList& captions, QWidget* parent)
    : cContentEditor(parent), m_Table(new QTableWidget(0, static_cast<int>(captions.size()))) {
    setFocusProxy(m_Table);
    m_Table->setObjectName(tableName);
    m_Table->setHorizontalHeaderLabels(captions);
    m_Table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_Table->setTabKeyNavigation(false);
    connect(m_Table, &QTableWidget::itemChanged, this,
            [this](const QTableWidgetItem* item) { TakeItem(*item); });
    connect(m_Table, &QTableWidget::currentCellChanged, this, [this] { UpdateActions(); });
}

QAction* cTableEditor::MakeAction(const char* objectName, const QString& text, const QString& keys,
                                  const std::function<void()>& press) {
    QAction* action = MakeEditorAction(*this, objectName, text, QKeySequence(keys));
    connect(action, &QAction::triggered, this, press);
    return action;
}

QWidget* cTableEditor::MakeButtons(const QList<QAction*>& actions) {
    auto* panel = new QWidget;
    auto* layout = new QHBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QAction* action : actions) {
        auto* button = new QToolButton;
        button->setDefaultAction(action);
        button->setFocusPolicy(Qt::TabFocus);
        button->setObjectName(QString(action->objectName()).replace("Action_", "Button_"));
        layout->addWidget(button);
    }
    layout->addStretch(1);
    return panel;
}

void cTableEditor::FillAnew() {
    m_Typed.Clear(Rows());
    Fill();
    if (m_Table->rowCount() > 0) m_Table->setCurrentCell(0, 0);
}

void cTableEditor::Fill() {
    const QSignalBlocker quiet(m_Table);
    m_Table->setRowCount(static_cast<int>(Rows()));
    for (int row = 0; row < m_Table->rowCount(); ++row) {
        for (int column = 0; column < m_Table->columnCount(); ++column) {
            // An item that tells of its own change must not be replaced meanwhile.
            if (m_Table->item(row, column) == nullptr) m_Table->setItem(row, column, new QTableWidgetItem);
            m_Table->item(row, column)->setIcon({});
            m_Table->item(row, column)->setToolTip({});
        }
        FillRow(row);
        ShowTyped(row);
    }
    const QString reasons = Reasons();
    if (reasons != m_Problem.text()) {
        m_Problem.Show(reasons);
        emit ProblemChanged();
    }
    Filled();
    UpdateActions();
}

void cTableEditor::ShowTyped(int row) {
    for (const auto& [column, typed] : m_Typed.Rows()[static_cast<std::size_t>(row)]) {
        QTableWidgetItem& item = *m_Table->item(row, column);
        item.setText(typed.text);
        item.setIcon(QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning));
        item.setToolTip(typed.problem);
    }
}

// One a line, each with its place.
QString cTableEditor::Reasons() const {
    QStringList reasons;
    for (std::size_t row = 0; row < m_Typed.Rows().size(); ++row) {
        for (const auto& [column, typed] : m_Typed.Rows()[row]) {
            reasons += tr("Row %1, %2: %3")
                           .arg(row + 1)
                           .arg(m_Table->horizontalHeaderItem(column)->text(), typed.problem);
        }
    }
    return FewLines(reasons.join('\n'));
}

// Opens the first of the cells.
void cTableEditor::FocusProblem() {
    const auto& rows = m_Typed.Rows();
    const auto row = std::find_if(rows.begin(), rows.end(), [](const auto& cells) { return !cells.empty(); });
    if (row == rows.end()) return;
    m_Table->setFocus();
    m_Table->setCurrentCell(static_cast<int>(row - rows.begin()), row->begin()->first);
    if (!m_Table->isPersistentEditorOpen(m_Table->currentItem())) m_Table->editItem(m_Table->currentItem());
}

void cTableEditor::Change(const QString& step, const std::function<void()>& change, int row) {
    const int column = std::max(m_Table->currentColumn(), 0);
    Edit(step, [&] {
        change();
        Fill();
    });
    m_Table->setCurrentCell(std::min(row, m_Table->rowCount() - 1), column);
    UpdateActions();
}

void cTableEditor::Restore(const std::string& state) {
    const cTexts before = Texts();
    const cTypedState restored = cTypedState::Of(state);
    Parse(restored.content);
    m_Typed.Restore(restored.typed, Rows());
    Fill();
    ShowFirstDifference(before);
}

// What the rows show.
cTableEditor::cTexts cTableEditor::Texts() const {
    cTexts texts(static_cast<std::size_t>(m_Table->rowCount()));
    for (int row = 0; row < m_Table->rowCount(); ++row) {
        for (int column = 0; column < m_Table->columnCount(); ++column) {
            const QTableWidgetItem& item = *m_Table->item(row, column);
            texts[static_cast<std::size_t>(row)] += item.text() + QString::number(item.checkState());
        }
    }
    return texts;
}

void cTableEditor::ShowFirstDifference(const cTexts& before) {
    const cTexts after = Texts();
    const auto [now, then] = std::mismatch(after.begin(), after.end(), before.begin(), before.end());
    if ((now == after.end() && then == before.end()) || after.empty()) return;
    const int row = std::min(static_cast<int>(now - after.begin()), m_Table->rowCount() - 1);
    const bool isCell = now != after.end() && then != before.end() && after.size() == before.size();
    const auto column = isCell ? std::mismatch(now->begin(), now->end(), then->begin()).first - now->begin()
                               : std::max(m_Table->currentColumn(), 0);
    m_Table->setCurrentCell(row, static_cast<int>(column));
}

}  // namespace vigrel
