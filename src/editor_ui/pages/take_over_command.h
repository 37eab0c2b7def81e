#pragma once

#include <functional>
#include <utility>

#include "editor_ui/pages/file_document.h"
#include "editor_ui/pages/step_command.h"

namespace vigrel {

// What others saved has come into the editor. Without it the content is older than the file behind it.
class cTakeOverCommand : public cStepCommand {
  public:
    // The document must outlive the command.
    cTakeOverCommand(const cEditStep& step, cContentEditor& editor, cFileDocument& document, int groundBefore,
                     std::function<void()> show = nullptr)
        : cStepCommand(step, editor, std::move(show)),
          m_Document(document),
          m_Before(groundBefore),
          m_After(document.Behind().ground) {}
    void undo() override {
        m_Document.StandOn(m_Before);
        cStepCommand::undo();
    }
    void redo() override {
        m_Document.StandOn(m_After);
        cStepCommand::redo();
    }

  private:
    cFileDocument& m_Document;
    int m_Before, m_After;
};

}  // namespace vigrel
