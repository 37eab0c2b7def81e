#pragma once

#include <QUndoCommand>
#include <functional>

#include "editor_ui/records/definition_source.h"

namespace vigrel {

// One edit in a form: what it was, and the field in which it was made.
struct cFieldStep {
    QString name;        // for the menu: "changing Name"
    QString field;       // object name of the field's widget
    bool joins = false;  // what is typed on in the same field belongs to the same step
};

// What the steps of a page ask of it. Each has been made already when it is put on the page's stack.
class cRecordSteps {
  public:
    virtual ~cRecordSteps() = default;
    virtual void RestoreRecord(int position, const cRecord& record, const QString& field) = 0;
    // Null when the user or the disk refuses.
    virtual RecordPtr TakeOutRecord(int position) = 0;
    virtual void BringBackRecord(int position, const cRecord& record) = 0;
};

class cFieldCommand : public QUndoCommand {
  public:
    // Steps of one session in a field join; a session ends when the keyboard goes elsewhere.
    cFieldCommand(cRecordSteps& page, int position, RecordPtr before, RecordPtr after, cFieldStep step,
                  int session);
    int id() const override { return 1; }
    bool mergeWith(const QUndoCommand* other) override;
    void undo() override;
    void redo() override;

  private:
    cRecordSteps& m_Page;
    int m_Position;
    RecordPtr m_Before, m_After;
    cFieldStep m_Step;
    int m_Session;
    bool m_Undone = false;
};

// One definition has come to the list or has gone from it.
class cListCommand : public QUndoCommand {
  public:
    // Without a record it was added.
    cListCommand(cRecordSteps& page, const QString& name, int position, RecordPtr removed);
    void undo() override { Turn(); }
    void redo() override;

  private:
    void Turn();

    cRecordSteps& m_Page;
    int m_Position;
    RecordPtr m_Removed;  // as long as it is not in the list
    bool m_Undone = false;
};

}  // namespace vigrel
