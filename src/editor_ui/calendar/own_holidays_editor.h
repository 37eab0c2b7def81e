#pragma once

#include "editor_ui/pages/content_editor.h"
#include "editor_ui/pages/editor_services.h"
#include "schedule/own_holidays.h"

class QAction;
class QTableWidget;
class QTableWidgetItem;

namespace vigrel {

class cLineProblemsLabel;

// The station's own holidays as a table. A field that is wrong is told and keeps its value, so that the list
// can always be saved.
class cOwnHolidaysEditor : public cContentEditor {
    Q_OBJECT
  public:
    explicit cOwnHolidaysEditor(cEditorServices& services, QWidget* parent = nullptr);

    QList<QAction*> EditActions() const override { return m_Actions; }
    // The file of docs/formats/own-holidays.md; both may throw cFailure.
    void ReadFile(const std::string& path);
    void WriteFile(const std::string& path);
    bool IsInFile(const std::string& path, const std::string& state) const;
    std::string State() const override { return m_Own.Text(); }
    void Restore(const std::string& state) override;

  private:
    QAction* MakeAction(const char* objectName, const QString& text, const QString& keys,
                        void (cOwnHolidaysEditor::*press)());
    void MakeTable();
    QWidget* MakeButtons();
    void Fill();
    void FillRow(int row);
    void TakeItem(const QTableWidgetItem& item);
    cOwnHoliday Changed(const QTableWidgetItem& item) const;
    void Change(const QString& step, const std::function<void()>& change, int row);
    void Add();
    void Remove();
    void UpdateActions();
    std::string Today() const;

    cEditorServices& m_Services;
    cOwnHolidays m_Own;
    QTableWidget* m_Table;
    cLineProblemsLabel* m_Problems;
    QList<QAction*> m_Actions;
    QAction* m_Remove = nullptr;
};

}  // namespace vigrel
