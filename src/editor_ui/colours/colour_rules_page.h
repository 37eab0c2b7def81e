#pragma once

#include "categories/colour_rules.h"
#include "editor_ui/pages/file_page.h"

namespace vigrel {

class cColourRulesEditor;

// The list of colour rules of a station.
class cColourRulesPage : public cFilePage {
    Q_OBJECT
  public:
    explicit cColourRulesPage(cEditorServices& services, QWidget* parent = nullptr);

    // The station has one list.
    bool HasSaveAs() const override { return false; }

  protected:
    void SeenAgain() override;

  private:
    cColourRulesPage(cEditorServices& services, cColourRulesEditor* editor, QWidget* parent);

    cColourRulesEditor& m_Editor;
};

}  // namespace vigrel
