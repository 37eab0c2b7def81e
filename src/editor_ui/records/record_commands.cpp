#include "editor_ui/records/record_commands.h"

#include <utility>

namespace vigrel {

cFieldCommand::cFieldCommand(cRecordSteps& page, int position, RecordPtr before, RecordPtr after,
                             cFieldStep step, int session)
    : QUndoCommand(step.name),
      m_Page(page),
      m_Position(position),
      m_Before(std::move(before)),
      m_After(std::move(after)),
      m_Step(std::move(step)),
      m_Session(session) {}

bool cFieldCommand::mergeWith(const QUndoCommand* other) {
    const auto& next = dynamic_cast<const cFieldCommand&>(*other);
    if (!m_Step.joins || m_Undone || next.m_Position != m_Position || next.m_Step.field != m_Step.field ||
        next.m_Session != m_Session) {
        return false;
    }
    m_After = next.m_After;
    return true;
}

void cFieldCommand::undo() {
    m_Undone = true;
    m_Page.RestoreRecord(m_Position, *m_Before, m_Step.field);
}

void cFieldCommand::redo() {
    if (m_Undone) m_Page.RestoreRecord(m_Position, *m_After, m_Step.field);
}

cListCommand::cListCommand(cRecordSteps& page, const QString& name, int position, RecordPtr removed)
    : QUndoCommand(name), m_Page(page), m_Position(position), m_Removed(std::move(removed)) {}

void cListCommand::redo() {
    if (m_Undone) Turn();
}

// The same way for undo and redo: what is there goes, what is not comes back.
void cListCommand::Turn() {
    m_Undone = true;
    if (m_Removed) {
        m_Page.BringBackRecord(m_Position, *std::exchange(m_Removed, nullptr));
    } else {
        m_Removed = m_Page.TakeOutRecord(m_Position);
    }
}

}  // namespace vigrel
