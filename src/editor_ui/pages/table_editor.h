#pragma once

#include <QTableWidget>
#include <cstddef>

#include "editor_ui/pages/content_editor.h"
#include "editor_ui/pages/problem_label.h"
#include "editor_ui/pages/typed_cells.h"

namespace vigrel {

// An editor whose content is a table. A text that is none for its cell stays in it as typed, with a sign and
// the reason, until it is mended or taken back; so long the content can't be saved.
class cTableEditor : public cContentEditor {
    Q_OBJECT
  public:
    std::string State() const override { return cTypedState{m_Typed.Texts(), Text()}.Text(); }
    void Restore(const std::string& state) override;
    QString Problem() const override { return m_Problem.text(); }
    void FocusProblem() override;

  protected:
    cTableEditor(const char* tableName, const QStringList& captions, QWidget* parent);
    QTableWidget& Table() { return *m_Table; }
    const QTableWidget& Table() const { return *m_Table; }
    // For the layout, below the table.
    QWidget* ProblemLabel() { return &m_Problem; }
    cTypedCells& Typed() { return m_Typed; }
    QAction* MakeAction(const char* objectName, const QString& text, const QString& keys,
                        const std::function<void()>& press);
    static QWidget* MakeButtons(const QList<QAction*>& actions);
    // After another content was read.
    void FillAnew();
    // The rows, with what is typed in them.
    void Fill();
    // Runs an edit as a step and chooses a row.
    void Change(const QString& step, const std::function<void()>& change, int row);

    virtual std::string Text() const = 0;  // of the content, as the file has it
    virtual void Parse(const std::string& text) = 0;
    virtual std::size_t Rows() const = 0;
    // The items are there.
    virtual void FillRow(int row) = 0;
    virtual void TakeItem(const QTableWidgetItem& item) = 0;
    // After the rows have been filled.
    virtual void Filled() {}
    // The rows, or what is chosen of them, are others.
    virtual void UpdateActions() = 0;

  private:
    using cTexts = std::vector<QStringList>;
    cTexts Texts() const;
    void ShowFirstDifference(const cTexts& before);
    void ShowTyped(int row);
    QString Reasons() const;

    QTableWidget* m_Table;
    cProblemLabel m_Problem{"Label_CellProblem"};
    cTypedCells m_Typed;
};

}  // namespace vigrel
