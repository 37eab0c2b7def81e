#include "editor_ui/pages/file_document.h"

#include <QFileInfo>
#include <QWidget>
#include <utility>

#include "adapters/qt/qt_text.h"
#include "common/failure.h"
#include "common/file_procedures.h"
#include "editor_ui/pages/reasons.h"

namespace vigrel {
cFileDocument::cFileDocument(cEditorServices& services, cFileForm form, QWidget* owner)
    : QObject(owner),
      m_Services(services),
      m_Form(std::move(form)),
      m_Owner(owner),
      m_StateOfNew(m_Form.state()),
      m_StateInFile(m_StateOfNew) {}

QString cFileDocument::Title() const {
    return m_Path.empty() ? m_Form.newName : PathToQString(SplitPath(m_Path).name);
}

QString cFileDocument::Path() const {
    return PathToQString(m_Path);
}

void cFileDocument::NoteChange() {
    const bool dirty = m_Form.state() != m_StateInFile;
    if (dirty == std::exchange(m_Dirty, dirty)) return;
    emit StateChanged();
}

// The file holds what the editor shows.
void cFileDocument::Take(const std::string& path, const cFileReader::cStamp& stamp) {
    m_Path = path;
    m_Stamp = stamp;
    m_StateInFile = m_Form.state();
    m_Dirty = false;
    emit StateChanged();
    emit FileUsed(Path());
}

bool cFileDocument::Read(const std::string& path) {
    const auto failure = CatchFailure([&] { m_Form.read(path); });
    if (failure) m_Services.m_Prompts.ShowFailure(m_Owner, ToldReason(*failure));
    return !failure;
}

// The stamp is that of before: a file that others write meanwhile counts as changed.
bool cFileDocument::Open(const std::string& path) {
    const cFileReader::cStamp stamp = m_Services.m_Files.Stamp(path);
    if (!Read(path)) return false;
    RemoveTemporaryOf(m_Services.m_Files, path);
    Take(path, stamp);
    emit Opened();
    return true;
}

bool cFileDocument::OpenCopy(const std::string& path) {
    const QFileInfo file(PathToQString(path));
    m_Form.newName = file.completeBaseName() + " 2";
    if (!Read(path)) return false;
    NoteChange();
    return true;
}

bool cFileDocument::Save() {
    if (m_Path.empty()) return SaveAs();
    return MayReplace() && WriteTo(m_Path);
}

// --- files under other hands

// A file that was only touched, copied back or saved by others as it was is no news.
bool cFileDocument::HasNews(const cFileReader::cStamp& now) {
    if (now == m_Stamp) return false;
    bool isSame = false;
    if (now.size == m_Stamp.size) SkipFailure([&] { isSame = m_Form.holds(m_Path, m_StateInFile); });
    if (isSame) m_Stamp = now;
    return !isSame;
}

// Another program, or another window, may have written or removed the file meanwhile.
bool cFileDocument::MayReplace() {
    const cFileReader::cStamp now = m_Services.m_Files.Stamp(m_Path);
    if (!HasNews(now)) return true;
    // While it is asked, nothing is taken up on the quiet.
    m_Seen = now;
    return now.size < 0 ? MayWriteAgain() : MayReplaceChanged();
}

bool cFileDocument::MayReplaceChanged() {
    using eAnswer = cPrompts::eConflict;
    const QString text = tr("Another program has changed the file of \"%1\" since it was read here. Keep "
                            "your version, take the one in the file, or show both?")
                             .arg(Title());
    const eAnswer answer = m_Services.m_Prompts.AskConflict(m_Owner, text, false);
    if (answer == eAnswer::Theirs) TakeTheirs();
    if (answer == eAnswer::Both) emit BothWanted(Path());
    return answer == eAnswer::Mine;
}

bool cFileDocument::MayWriteAgain() {
    using eAnswer = cPrompts::eConflict;
    const QString text =
        tr("Another program has removed the file of \"%1\". Write it again, or remove it here too?")
            .arg(Title());
    const eAnswer answer = m_Services.m_Prompts.AskConflict(m_Owner, text, true);
    if (answer == eAnswer::Theirs) {
        m_Form.newName = Title();
        m_Path.clear();
        m_StateInFile = m_StateOfNew;
        emit LetGo();
        NoteChange();
    }
    return answer == eAnswer::Mine;
}

void cFileDocument::TakeTheirs() {
    const std::string before = m_Form.state();
    const cFileReader::cStamp stamp = m_Services.m_Files.Stamp(m_Path);
    if (!Read(m_Path)) return;
    Take(m_Path, stamp);
    emit Replaced({tr("taking over \"%1\"").arg(Title()), before, m_StateInFile});
    emit Message(tr("%1 is read again: another program has changed it").arg(Path()));
}

void cFileDocument::TakeUp() {
    const cFileReader::cStamp now = m_Services.m_Files.Stamp(m_Path);
    if (m_Path.empty() || m_Dirty || now.size < 0 || now == m_Seen || !HasNews(now)) return;
    // Told once: what can't be read stays as it was read before.
    m_Seen = now;
    TakeTheirs();
}

bool cFileDocument::SaveAs() {
    const QString suggestion =
        m_Path.empty()
            ? PathToQString(m_Services.m_Ini.FullPath(PathFromQString(m_Form.newName))) + "." + m_Form.suffix
            : Path();
    const QString chosen =
        m_Services.m_Prompts.AskSavePath(m_Owner, suggestion, m_Form.filter, m_Form.suffix);
    if (chosen.isEmpty()) return false;
    return WriteTo(PathFromQString(chosen));
}

bool cFileDocument::WriteTo(const std::string& path) {
    if (const auto failure = CatchFailure([&] { m_Form.write(path); })) {
        m_Services.m_Prompts.ShowFailure(m_Owner,
                                         tr("The file was not saved.\n%1").arg(ToldReason(*failure)));
        return false;
    }
    Take(path, m_Services.m_Files.Stamp(path));
    emit Message(tr("Saved %1").arg(Path()));
    return true;
}

}  // namespace vigrel
