#pragma once

#include <QUndoCommand>
#include <functional>
#include <string>
#include <utility>

#include "editor_ui/pages/content_editor.h"

namespace vigrel {

// A step of an editor, which has been made already, for a stack of steps. The editor must outlive it.
class cStepCommand : public QUndoCommand {
  public:
    // Show brings the editor to the front where it is one of several.
    cStepCommand(const cEditStep& step, cContentEditor& editor, std::function<void()> show = nullptr)
        : QUndoCommand(step.name), m_Step(step), m_Editor(editor), m_Show(std::move(show)) {}
    void undo() override {
        m_Undone = true;
        Restore(m_Step.before);
    }
    void redo() override {
        if (m_Undone) Restore(m_Step.after);
    }

  private:
    void Restore(const std::string& state) {
        if (m_Show) m_Show();
        m_Editor.Restore(state);
    }

    cEditStep m_Step;
    cContentEditor& m_Editor;
    std::function<void()> m_Show;
    bool m_Undone = false;
};

// The same for a step beside the content.
class cBesideCommand : public QUndoCommand {
  public:
    explicit cBesideCommand(cStepBeside step, std::function<void()> show = nullptr)
        : QUndoCommand(step.name), m_Step(std::move(step)), m_Show(std::move(show)) {}
    void undo() override {
        m_Undone = true;
        Run(m_Step.undo);
    }
    void redo() override {
        if (m_Undone) Run(m_Step.redo);
    }

  private:
    void Run(const std::function<void()>& step) {
        if (m_Show) m_Show();
        step();
    }

    cStepBeside m_Step;
    std::function<void()> m_Show;
    bool m_Undone = false;
};

}  // namespace vigrel
