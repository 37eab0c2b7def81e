#pragma once

#include <QTableView>
#include <functional>

#include "receiver_ui/list/report_header.h"

namespace vigrel {

// The table of a report list: rows of one height, whole rows selected, keys handed to the list's owner before
// the toolkit acts on them.
class cReportView : public QTableView {
    Q_OBJECT
  public:
    explicit cReportView(QWidget* parent = nullptr);
    cReportHeader& Header() { return *m_Header; }
    void SetRowHeight(int pixels);
    void SetEmptyText(const QString& text);
    // Scrolls up or down only.
    void ShowRow(int row);

    std::function<void(int keyCode, int shift)> OnKeyDown;
    std::function<void()> OnFocusLost;
    std::function<void(const QModelIndex&)> OnRowChosen;  // double click, Enter or Space
    std::function<void()> OnPaint;                        // a painting begins

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last) override;

  private:
    void ChooseRow(const QModelIndex& index);
    cReportHeader* m_Header;  // the toolkit's to delete
    QString m_EmptyText;
    bool m_ClickedIsGone = false;  // the row of the last click
    bool m_InMenu = false;         // a menu of the window has taken the focus over
};

}  // namespace vigrel
