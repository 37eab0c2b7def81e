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

// Which file is behind an editor, and what of it is known.
struct cBehind {
    std::string path;           // empty for none
    cFileReader::cStamp stamp;  // of the file as it was read or written last
    std::string state;          // the content that it has
    // Which taking over of what others saved the file stands on, and which the content; 0 for none.
    int fileGround = 0, ground = 0;
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
    // Goes back to the file of before, after the content was set back to what it was then. That others
    // changed it meanwhile shows at the next save.
    void GoBack(const cBehind& behind);
    const cBehind& Behind() const { return m_Behind; }
    // The content was set back to what it was before others' version took its place, or to that version
    // again. One of before isn't written over theirs before it was asked.
    void StandOn(int ground) { m_Behind.ground = ground; }
    // Reads a file into the content, which stays without a file: nothing else may hold it any more.
    bool OpenCopy(const std::string& path);
    // Reads the file again when others have changed it and nothing is changed here.
    void TakeUp();

  signals:
    // Title, path or dirty state have changed.
    void StateChanged();
    // The content is that of another file, which had been the one of the step's begin.
    void Opened(const vigrel::cBehind& before, const vigrel::cEditStep& step);
    // What others have saved took the place of the content, which had stood on that ground.
    void Replaced(const vigrel::cEditStep& step, int groundBefore);
    // The user wants to see what the file holds beside the content.
    void BothWanted(const QString& path);
    // The file is gone, and the content is to go as well.
    void LetGo();
    // A file was opened or saved.
    void FileUsed(const QString& path);
    void Message(const QString& text);

  private:
    bool HasNews(const cFileReader::cStamp& now);
    bool Holds(const std::string& path, const std::string& state) const;
    bool IsOfBefore() const;
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
    cBehind m_Behind;
    cFileReader::cStamp m_Seen;  // of a file that others changed, and that was asked about or read
    std::string m_StateOfNew;    // of a content that has no file yet
    int m_TakenOver = 0;         // how often what others saved took the place of the content
    bool m_Dirty = false;
};

}  // namespace vigrel
