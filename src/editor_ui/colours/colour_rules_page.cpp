#include "editor_ui/colours/colour_rules_page.h"

#include "editor_ui/colours/colour_rules_editor.h"

namespace vigrel {

cColourRulesPage::cColourRulesPage(cEditorServices& services, QWidget* parent)
    : cColourRulesPage(services, new cColourRulesEditor(services), parent) {}

cColourRulesPage::cColourRulesPage(cEditorServices& services, cColourRulesEditor* editor, QWidget* parent)
    : cFilePage(services, editor,
                {tr("Colour rules"), tr("Colour rules (*.txt);;All files (*)"), "txt",
                 [editor](const std::string& path) { editor->ReadFile(path); },
                 [editor](const std::string& path) { editor->WriteFile(path); },
                 [editor] { return editor->State(); },
                 [editor](const auto&... file) { return editor->IsInFile(file...); }},
                parent),
      m_Editor(*editor) {
    setObjectName("Page_ColourRules");
}

void cColourRulesPage::SeenAgain() {
    cFilePage::SeenAgain();
    m_Editor.RefreshAlarms();
}

}  // namespace vigrel
