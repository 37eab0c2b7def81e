#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <string>

#include "editor_ui/pages/content_editor.h"
#include "editor_ui/pages/editor_services.h"
#include "platform/files.h"

class QWidget;

namespace vigrel {

// How the content of an editor lies in a file.
struct cFileForm {
    QString newName;         // of a content that has no file yet
    QString filter, suffix;  // for the dialogs
    // To and from the editor; they may throw cFailure, and a failed read leaves the content alone.
    std::function<void(const std::string&path)> read, write;
    // The content as a text.
    std::function<std::string()> state;
    // Whether a file says the same as such a text; it may throw cFailure.
    std::function<bool(const std::string& path, const std::string& state)> holds;
};

// The file behind an editor: opened, saved, and whether it holds what the editor shows. What goes wrong is
// told over the owner's window. A file that other programs changed or removed since is not written before the
// user has said whose version counts.
class cFileDocument : public QObject {
    Q_OBJECT
  public:
    // The services must outlive the document.
    cFileDocument(cEditorServices& services, cFileForm form, QWidget* owner);

    QString Title() const;  // the file's name
    QString Path() const;   // empty for none
    bool IsDirty() const { return m_Dirty; }
    // The content has changed, or has come to be what it was.
    void NoteChange();

    // What a crash left of a save of the file is taken away when it is opened.
    // Each is false, after telling why, when the file can't be read or written, and when the user refuses.
    bool Open(const std::string& path);
    bool Save();
    bool SaveAs();
    // Reads a file into the content, which stays without a file: nothing else may hold it any more.
    bool OpenCopy(const std::string& path);
    // Reads the file again when others have changed it and nothing is changed here.
    void TakeUp();

  signals:
    // Title, path or dirty state have changed.
    void StateChanged();
    // The content is that of another file.
    void Opened();
    // What others have saved took the place of the content.
    void Replaced(const vigrel::cEditStep& step);
    // The user wants to see what the file holds beside the content.
    void BothWanted(const QString& path);
    // The file is gone, and the content is to go as well.
    void LetGo();
    // A file was opened or saved.
    void FileUsed(const QString& path);
    void Message(const QString& text);

  private:
    bool HasNews(const cFileReader::cStamp& now);
    bool MayReplace();
    bool MayReplaceChanged();
    bool MayWriteAgain();
    bool Read(const std::string& path);
    void TakeTheirs();
    bool WriteTo(const std::string& path);
    void Take(const std::string& path, const cFileReader::cStamp& stamp);

    cEditorServices& m_Services;
    cFileForm m_Form;
    QWidget* m_Owner;
    std::string m_Path;
    cFileReader::cStamp m_Stamp;  // of the file as it was read or written last
    cFileReader::cStamp m_Seen;   // of a file that others changed, and that was asked about or read
    std::string m_StateOfNew;     // of a content that has no file yet
    std::string m_StateInFile;
    bool m_Dirty = false;
};

}  // namespace vigrel
