#pragma once

#include "categories/colour_rules.h"
#include "editor_ui/pages/editor_services.h"
#include "editor_ui/pages/table_editor.h"

class QAction;

namespace vigrel {

class cColourPreview;
class cLineProblemsLabel;

// The list of colour rules, with a preview.
class cColourRulesEditor : public cTableEditor {
    Q_OBJECT
  public:
    explicit cColourRulesEditor(cEditorServices& services, QWidget* parent = nullptr);

    QList<QAction*> EditActions() const override;
    // The file of docs/formats/colour-rules.md; both may throw cFailure.
    void ReadFile(const std::string& path);
    void WriteFile(const std::string& path);
    bool IsInFile(const std::string& path, const std::string& state) const;
    // The station may have other alarms by now.
    void RefreshAlarms();

  private:
    std::string Text() const override { return m_Rules.Text(); }
    void Parse(const std::string& text) override { m_Rules.Parse(text); }
    std::size_t Rows() const override { return m_Rules.m_Rules.size(); }
    void FillRow(int row) override;
    void TakeItem(const QTableWidgetItem& item) override;
    void Filled() override;
    void UpdateActions() override;
    void MakeActions();
    void SetUpTable();
    QWidget* MakeTablePanel();
    void Add();
    void Remove();
    void Move(int by);
    void ChooseColour();
    void MakeReadable();

    cEditorServices& m_Services;
    cColourRules m_Rules;
    cLineProblemsLabel* m_Problems;
    cColourPreview* m_Preview = nullptr;
    QList<QAction*> m_Actions;
    QAction *m_Remove = nullptr, *m_Up = nullptr, *m_Down = nullptr, *m_Choose = nullptr,
            *m_Readable = nullptr;
};

}  // namespace vigrel
