#pragma once

#include <QAction>
#include <QUndoStack>
#include <functional>
#include <memory>
#include <vector>

#include "editor_ui/pages/editor_page.h"
#include "editor_ui/pages/editor_services.h"
#include "editor_ui/records/definition_actions.h"
#include "editor_ui/records/definition_list.h"
#include "editor_ui/records/definition_model.h"
#include "editor_ui/records/record_commands.h"

class QLabel;
class QStackedWidget;

namespace vigrel {

class cNoteBar;

// What a page says of its kind of definitions.
struct cPageWords {
    QString title;           // "Receivers"
    QString path;            // the folder, for the tab's tip
    QString newName;         // "New receiver"
    QString none;            // what stands in place of an empty list's form
    QString details;         // caption of the second column
    QString deleteQuestion;  // with "%1" for the name
};

// The form that a page edits a definition with.
struct cPageForm {
    QWidget* widget;
    std::function<void(int position)> show;  // below 0: none
    QString nameField;                       // object name of the field that a new one begins in
    // Brings the part of a field in sight that only shows when it is chosen; the object name of its widget.
    // May be missing.
    std::function<QString(const QString& field)> reveal;
    // Whether something is being typed that is not taken over yet; may be missing.
    std::function<bool()> isTyping;
    // More that the user should know before one is deleted; may be missing.
    std::function<QString(int position)> deleteWarning;
};

// A list of definitions with search, and a form for the chosen one. Changes stay in the definitions, also
// when another is chosen, until they are saved or reverted.
class cDefinitionPage : public cEditorPage, private cRecordSteps {
    Q_OBJECT
  public:
    // What happened to files since the last call.
    using TakeNotes = std::function<std::vector<cDefinitionNote>()>;
    // The services must outlive the page.
    cDefinitionPage(cEditorServices& services, std::unique_ptr<cDefinitionSource> source, TakeNotes takeNotes,
                    QWidget* parent);
    ~cDefinitionPage() override;

    QString Title() const override { return m_Words.title; }
    QString Path() const override { return m_Words.path; }
    bool IsDirty() const override { return m_Model.HasChanges() || IsTyping(); }
    // Saves every changed definition; false, with the one chosen that can't be saved, when changes remain.
    bool Save() override;
    void GiveUp() override;
    QUndoStack* UndoStack() override { return &m_UndoStack; }
    QList<QAction*> EditActions() const override { return m_Actions.Entries(); }

    // The position in the source of the chosen definition, -1 for none.
    int Chosen() const { return m_List->Chosen(); }
    void Choose(int position);

  protected:
    // Fills the page; to be called once, by the deriving page's constructor.
    void SetUp(cPageWords words, cPageForm form);
    // The form has changed the chosen definition.
    void NoteEdit(const cFieldStep& step);
    void ShowChosen();
    // What of the chosen one can be saved or given up is another.
    void Changed();
    // Brings a field of the form into sight and the keyboard to it.
    void ShowField(const QString& field);
    // Not while the page waits for an answer, which is about what was there when it was asked.
    void SeenAgain() final;
    virtual void LookAgain() { TakeUpFolder(); }

  private:
    // Something in which the user may be asked.
    class cWork {
      public:
        explicit cWork(cDefinitionPage& page) : m_Page(page) { ++page.m_Works; }
        cWork(const cWork&) = delete;
        cWork& operator=(const cWork&) = delete;
        ~cWork();

      private:
        cDefinitionPage& m_Page;
    };
    void ConnectActions();
    QWidget* MakeListPanel();
    QWidget* MakeFormPanel();
    QWidget* MakeFirst();
    void New();
    void Copy();
    void Delete();
    void SaveChosen();
    void Revert();
    bool SavePosition(int position);
    bool MaySave(int position);
    bool MayReplaceChanged(int position);
    bool MayWriteAgain(int position);
    void ShowBoth(int position);
    void RevertPosition(int position);
    void TakeUpFolder();
    void PushTakenUp(std::vector<cTakenUp> taken);
    void TellTakenUp(const std::vector<cTakenUp>& taken);
    void EndOfSteps();
    QString NameAt(int position) const;
    // --- cRecordSteps
    void RestoreRecord(int position, const cRecord& record, const QString& field) override;
    RecordPtr TakeOutRecord(int position) override;
    void BringBackRecord(int position, const cRecord& record) override;
    RecordPtr TakeOut(int position);
    QString DeleteQuestion(int position) const;
    void TellFailure(const QString& text);
    bool IsTyping() const { return m_Form.isTyping && m_Form.isTyping(); }
    void UpdateActions();

    cEditorServices& m_Services;
    std::unique_ptr<cDefinitionSource> m_Source;
    TakeNotes m_TakeNotes;
    cDefinitionModel m_Model;
    cPageWords m_Words;
    cPageForm m_Form{};
    QUndoStack m_UndoStack;
    RecordPtr m_Before;  // the chosen one before the next edit
    int m_Works = 0;
    bool m_HasNotLooked = false;  // since there was work
    int m_Session = 0;            // what is typed in one joins to one step
    cDefinitionActions m_Actions;
    cNoteBar* m_Notes;
    cDefinitionList* m_List;
    QStackedWidget* m_FormPanel;
    QLabel* m_Unreadable;
};

}  // namespace vigrel
