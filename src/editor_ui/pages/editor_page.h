#pragma once

#include <QList>
#include <QString>
#include <QWidget>
#include <optional>

#include "editor_ui/pages/printout.h"

class QAction;
class QUndoStack;

namespace vigrel {

class cContentEditor;

// One tab of the editor's window.
class cEditorPage : public QWidget {
    Q_OBJECT
  public:
    using QWidget::QWidget;
    // For the tab and in questions: a file's name, the name of a list.
    virtual QString Title() const = 0;
    // Where the content comes from, for the tab's tip and to find a page that is open already; empty for
    // none.
    virtual QString Path() const;
    virtual bool IsDirty() const = 0;
    // Takes over what stands in a field, or in an open cell of a table, that still has the keyboard, and a
    // stroke of the mouse as far as it has come: neither a key of the menu nor the menu itself ends them.
    void FinishInput();
    // Turns the tabs around something on the page to it.
    void BringIntoSight(QWidget& inner);
    // False when nothing was saved; the operator has been told why, or has cancelled.
    virtual bool Save() = 0;
    // The page closes: what others may see of its changes goes back to what is saved.
    virtual void GiveUp() {}
    // Whether the content can be saved under another name, by SaveAs.
    virtual bool HasSaveAs() const { return false; }
    virtual bool SaveAs() { return Save(); }
    // What the page shows, for paper, and the editor of it; none for one that prints nothing.
    virtual bool CanPrint() const { return false; }
    virtual std::optional<cPrintout> Printout() { return std::nullopt; }
    virtual cContentEditor* PrintedEditor() { return nullptr; }
    // None for a page that can't undo.
    virtual QUndoStack* UndoStack();
    // The page's entries of the menu Edit; null stands for a separator.
    virtual QList<QAction*> EditActions() const;
    // Sets the drawing's size, 1 is 100 %.
    virtual void SetZoom(double) {}
    // Names or images of day types have changed.
    virtual void RefreshDayTypes() {}

  protected:
    // The page comes into sight, or its window to the front: other programs may have worked on its files.
    virtual void SeenAgain() {}
    void showEvent(QShowEvent* event) override;
    // The wheel turns a choice or a number only where the keyboard is, so that scrolling past changes
    // nothing.
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void LeaveWheelToScrolling();

  signals:
    // Title, path or dirty state have changed.
    void StateChanged();
    // The content has changed.
    void ContentChanged();
    // The operator has given a day type another name or image.
    void DayTypesChanged();
    // A file was opened or saved.
    void FileUsed(const QString& path);
    // What a file holds is to be shown beside the page's own version of it.
    void BothWanted(const QString& path);
    // The operator has let the page's content go; the page can close.
    void Ended();
    void Message(const QString& text);
};

}  // namespace vigrel
