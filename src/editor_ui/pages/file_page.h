#pragma once

#include <QUndoStack>

#include "editor_ui/pages/content_editor.h"
#include "editor_ui/pages/editor_page.h"
#include "editor_ui/pages/file_document.h"

namespace vigrel {

// A page whose content is one file: an editor, the file, and the steps that can be undone.
class cFilePage : public cEditorPage {
    Q_OBJECT
  public:
    // The page takes the editor over. The services must outlive the page.
    cFilePage(cEditorServices& services, cContentEditor* editor, cFileForm form, QWidget* parent);
    ~cFilePage() override;

    QString Title() const override { return m_Document.Title(); }
    QString Path() const override { return m_Document.Path(); }
    // What was typed and can't be taken over counts as a change, too.
    bool IsDirty() const override { return m_Document.IsDirty() || !m_Editor.Problem().isEmpty(); }
    bool Save() override { return MaySave() && m_Document.Save(); }
    bool HasSaveAs() const override { return true; }
    bool SaveAs() override { return MaySave() && m_Document.SaveAs(); }
    QUndoStack* UndoStack() override { return &m_UndoStack; }
    QList<QAction*> EditActions() const override { return m_Editor.EditActions(); }
    bool CanPrint() const override { return m_Editor.CanPrint(); }
    std::optional<cPrintout> Printout() override;
    cContentEditor* PrintedEditor() override { return &m_Editor; }
    void SetZoom(double zoom) override { m_Editor.SetZoom(zoom); }
    void RefreshDayTypes() override { m_Editor.RefreshDayTypes(); }

    // False, after telling the operator why, when the file can't be read or is not what it should be.
    bool Open(const std::string& path);
    // The same with what a file holds, as a content that has no file.
    bool OpenCopy(const std::string& path) { return m_Document.OpenCopy(path); }

  protected:
    void SeenAgain() override {
        if (!IsDirty()) m_Document.TakeUp();
    }

  private:
    bool MaySave();

    cEditorServices& m_Services;
    cContentEditor& m_Editor;
    QUndoStack m_UndoStack;
    cFileDocument m_Document;
};

}  // namespace vigrel
