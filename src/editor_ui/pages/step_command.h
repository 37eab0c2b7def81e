#pragma once

#include <QUndoCommand>

#include "editor_ui/pages/content_editor.h"

namespace vigrel {

// A step of an editor, which has been made already, for a stack of steps. The editor must outlive it.
class cStepCommand : public QUndoCommand {
  public:
    cStepCommand(const cEditStep& step, cContentEditor& editor)
        : QUndoCommand(step.name), m_Step(step), m_Editor(editor) {}
    void undo() override {
        m_Undone = true;
        m_Editor.Restore(m_Step.before);
    }
    void redo() override {
        if (m_Undone) m_Editor.Restore(m_Step.after);
    }

  private:
    cEditStep m_Step;
    cContentEditor& m_Editor;
    bool m_Undone = false;
};

}  // namespace vigrel
