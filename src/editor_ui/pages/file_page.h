#pragma once

#include <QUndoStack>
#include <functional>
#include <string>

#include "editor_ui/pages/editor_page.h"
#include "editor_ui/pages/editor_services.h"
#include "platform/files.h"

namespace vigrel {

// A page whose content is one file, with undo over the content as a whole.
class cFilePage : public cEditorPage {
    Q_OBJECT
  public:
    // A page of a new file has only a name.
    cFilePage(cEditorServices& services, const QString& newName, QWidget* parent);

    QString Title() const override;
    QString Path() const override;
    bool IsDirty() const override;
    bool Save() override;
    bool HasSaveAs() const override { return true; }
    bool SaveAs() override;
    QUndoStack* UndoStack() override { return &m_UndoStack; }

    // False, after telling the operator why, when the file can't be read or is not what it should be.
    bool Open(const std::string& path);

  protected:
    virtual void ReadFile(const std::string& path) = 0;   // may throw cFailure
    virtual void WriteFile(const std::string& path) = 0;  // may throw cFailure
    virtual QString FileFilter() const = 0;
    virtual QString Suffix() const = 0;
    // The content as a text, and back.
    virtual std::string State() const = 0;
    virtual void Restore(const std::string& state) = 0;

    // Runs an edit; what it changes is one step of undo.
    void Edit(const QString& name, const std::function<void()>& edit);
    // The same for an edit in several events.
    void BeginEdit();
    void EndEdit(const QString& name);

    cEditorServices& m_Services;

  private:
    bool WriteTo(const std::string& path);
    bool MayReplace(const std::string& path);

    QString m_NewName;
    std::string m_Path;
    cFileReader::cStamp m_Stamp;  // of the file as it was read or written last
    std::string m_StateBefore;
    QUndoStack m_UndoStack;
};

}  // namespace vigrel
