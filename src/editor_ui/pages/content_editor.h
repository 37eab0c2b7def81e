#pragma once

#include <QList>
#include <QString>
#include <QWidget>
#include <functional>
#include <optional>
#include <string>

#include "editor_ui/pages/printout.h"

class QAction;

namespace vigrel {

// A step that the user has made: the whole content before and after it, as texts.
struct cEditStep {
    QString name;  // for the menu: "dragging a period"
    std::string before, after;
};

// One that lies beside the content, such as a day type's name, which belongs to the whole station.
struct cStepBeside {
    QString name;
    std::function<void()> undo, redo;
};

// A widget in which one content is edited: a schedule, a calendar, a list of rules. It knows no file, and it
// keeps no steps: it tells each, and can be set back to the text of any.
class cContentEditor : public QWidget {
    Q_OBJECT
  public:
    using QWidget::QWidget;
    virtual std::string State() const = 0;
    // Shows the place where the content changes. An edit that is under way has lost what it worked on.
    virtual void Restore(const std::string& state) = 0;
    // The editor's entries of the menu Edit; null stands for a separator.
    virtual QList<QAction*> EditActions() const { return {}; }
    // What is shown, for paper; none for an editor that prints nothing.
    virtual bool CanPrint() const { return false; }
    virtual std::optional<cPrintout> Printout() { return std::nullopt; }
    // Why the content can't be saved as it stands: something was typed that can't be taken over. Empty when
    // it can.
    virtual QString Problem() const { return {}; }
    // Brings the keyboard to where the problem is.
    virtual void FocusProblem() {}
    // Sets the drawing's size, 1 is 100 %.
    virtual void SetZoom(double) {}
    // Names or images of day types have changed.
    virtual void RefreshDayTypes() {}
    // A stroke of the mouse that is under way ends as if its button were released.
    virtual void FinishStroke() {}

  signals:
    // Not for what Restore does.
    void Edited(const vigrel::cEditStep& step);
    void EditedBeside(const vigrel::cStepBeside& step);
    // What is typed, or why it can't be taken over, is another.
    void ProblemChanged();
    // The user has given a day type another name or image.
    void DayTypesChanged();
    void Message(const QString& text);

  protected:
    // Runs an edit; what it changes is one step.
    void Edit(const QString& name, const std::function<void()>& edit);
    // The same for an edit in several events.
    void BeginEdit();
    void EndEdit(const QString& name);
    // The button's release goes elsewhere then.
    void hideEvent(QHideEvent* event) override;

  private:
    std::string m_StateBefore;
};

}  // namespace vigrel
