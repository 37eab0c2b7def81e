#pragma once

#include "editor_ui/pages/editor_services.h"
#include "editor_ui/pages/table_editor.h"
#include "schedule/own_holidays.h"

class QAction;

namespace vigrel {

class cLineProblemsLabel;

// The station's own holidays as a table.
class cOwnHolidaysEditor : public cTableEditor {
    Q_OBJECT
  public:
    explicit cOwnHolidaysEditor(cEditorServices& services, QWidget* parent = nullptr);

    QList<QAction*> EditActions() const override { return m_Actions; }
    // The file of docs/formats/own-holidays.md; both may throw cFailure.
    void ReadFile(const std::string& path);
    void WriteFile(const std::string& path);
    bool IsInFile(const std::string& path, const std::string& state) const;

  private:
    std::string Text() const override { return m_Own.Text(); }
    void Parse(const std::string& text) override { m_Own.Parse(text); }
    std::size_t Rows() const override { return m_Own.m_Holidays.size(); }
    void FillRow(int row) override;
    void TakeItem(const QTableWidgetItem& item) override;
    void UpdateActions() override;
    void SetUpTable();
    void TakeText(const QTableWidgetItem& item);
    void TakeEveryYear(int row, bool every);
    void Add();
    void Remove();
    std::string Today() const;

    cEditorServices& m_Services;
    cOwnHolidays m_Own;
    cLineProblemsLabel* m_Problems;
    QList<QAction*> m_Actions;
    QAction* m_Remove = nullptr;
};

}  // namespace vigrel
