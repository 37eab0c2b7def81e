#pragma once

#include "categories/colour_rules.h"
#include "editor_ui/pages/content_editor.h"
#include "editor_ui/pages/editor_services.h"

class QAction;
class QTableWidget;
class QTableWidgetItem;

namespace vigrel {

class cColourPreview;
class cLineProblemsLabel;

// The list of colour rules, with a preview. A field that is wrong is told and keeps its value, so that the
// list can always be saved.
class cColourRulesEditor : public cContentEditor {
    Q_OBJECT
  public:
    explicit cColourRulesEditor(cEditorServices& services, QWidget* parent = nullptr);

    QList<QAction*> EditActions() const override;
    // The file of docs/formats/colour-rules.md; both may throw cFailure.
    void ReadFile(const std::string& path);
    void WriteFile(const std::string& path);
    bool IsInFile(const std::string& path, const std::string& state) const;
    std::string State() const override;
    void Restore(const std::string& state) override;

  private:
    QAction* MakeAction(const char* objectName, const QString& text, const QString& keys,
                        void (cColourRulesEditor::*press)());
    void MakeTable();
    QWidget* MakeTablePanel();
    void Fill();
    void FillRow(int row);
    void TakeItem(const QTableWidgetItem& item);
    void UpdateActions();
    void Add();
    void Remove();
    void MoveUp() { Move(-1); }
    void MoveDown() { Move(1); }
    void Move(int by);
    void ChooseColour();
    void MakeReadable();
    void Change(const QString& step, const std::function<void()>& change, int row);

    cEditorServices& m_Services;
    cColourRules m_Rules;
    QTableWidget* m_Table;
    cLineProblemsLabel* m_Problems;
    cColourPreview* m_Preview = nullptr;
    QList<QAction*> m_Actions;
    QAction *m_Remove = nullptr, *m_Up = nullptr, *m_Down = nullptr, *m_Choose = nullptr,
            *m_Readable = nullptr;
};

}  // namespace vigrel
