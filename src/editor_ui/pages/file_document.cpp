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
      m_Behind{{}, {}, m_Form.state(), 0, 0},
      m_StateOfNew(m_Behind.state) {}

QString cFileDocument::Title() const {
    return m_Behind.path.empty() ? m_Form.newName : PathToQString(SplitPath(m_Behind.path).name);
}

QString cFileDocument::Path() const {
    return PathToQString(m_Behind.path);
}

void cFileDocument::NoteChange() {
    const bool dirty = m_Form.state() != m_Behind.state;
    if (dirty == std::exchange(m_Dirty, dirty)) return;
    emit StateChanged();
}

// The file holds what the editor shows.
void cFileDocument::Take(const std::string& path, const cFileReader::cStamp& stamp) {
    m_Behind.path = path;
    m_Behind.stamp = stamp;
    m_Behind.state = m_Form.state();
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
    const cBehind before = m_Behind;
    const std::string content = m_Form.state();
    if (!Read(path)) return false;
    RemoveTemporaryOf(m_Services.m_Files, path);
    Take(path, stamp);
    m_Behind.fileGround = m_Behind.ground = 0;
    emit Opened(before, {tr("opening \"%1\"").arg(Title()), content, m_Behind.state});
    return true;
}

void cFileDocument::GoBack(const cBehind& behind) {
    m_Behind = behind;
    m_Dirty = m_Form.state() != m_Behind.state;
    emit StateChanged();
    if (!m_Behind.path.empty()) emit FileUsed(Path());
}

bool cFileDocument::OpenCopy(const std::string& path) {
    const QFileInfo file(PathToQString(path));
    m_Form.newName = file.completeBaseName() + " 2";
    if (!Read(path)) return false;
    NoteChange();
    return true;
}

bool cFileDocument::Save() {
    if (m_Behind.path.empty()) return SaveAs();
    return MayReplace() && WriteTo(m_Behind.path);
}

// --- files under other hands

// A file that was only touched, copied back or saved by others as it was is no news.
bool cFileDocument::HasNews(const cFileReader::cStamp& now) {
    if (now == m_Behind.stamp) return false;
    const bool isSame = now.size == m_Behind.stamp.size && Holds(m_Behind.path, m_Behind.state);
    if (isSame) m_Behind.stamp = now;
    return !isSame;
}

bool cFileDocument::Holds(const std::string& path, const std::string& state) const {
    bool holds = false;
    SkipFailure([&] { holds = m_Form.holds(path, state); });
    return holds;
}

// Undo has brought back a content from before others' version took its place.
bool cFileDocument::IsOfBefore() const {
    return m_Dirty && m_Behind.ground < m_Behind.fileGround;
}

// Another program, or another window, may have written or removed the file meanwhile.
bool cFileDocument::MayReplace() {
    const cFileReader::cStamp now = m_Services.m_Files.Stamp(m_Behind.path);
    if (!HasNews(now) && !IsOfBefore()) return true;
    // While it is asked, nothing is taken up on the quiet.
    m_Seen = now;
    return now.size < 0 ? MayWriteAgain() : MayReplaceChanged();
}

bool cFileDocument::MayReplaceChanged() {
    using eAnswer = cPrompts::eConflict;
    const eAnswer answer = m_Services.m_Prompts.AskConflict(m_Owner, Title(), false);
    if (answer == eAnswer::Theirs) TakeTheirs();
    if (answer == eAnswer::Both) emit BothWanted(Path());
    return answer == eAnswer::Mine;
}

bool cFileDocument::MayWriteAgain() {
    using eAnswer = cPrompts::eConflict;
    const eAnswer answer = m_Services.m_Prompts.AskConflict(m_Owner, Title(), true);
    if (answer == eAnswer::Theirs) {
        m_Form.newName = Title();
        m_Behind.path.clear();
        m_Behind.state = m_StateOfNew;
        emit LetGo();
        NoteChange();
    }
    return answer == eAnswer::Mine;
}

void cFileDocument::TakeTheirs() {
    const std::string before = m_Form.state();
    const cFileReader::cStamp stamp = m_Services.m_Files.Stamp(m_Behind.path);
    if (!Read(m_Behind.path)) return;
    const int groundBefore = m_Behind.ground;
    m_Behind.fileGround = m_Behind.ground = ++m_TakenOver;
    Take(m_Behind.path, stamp);
    emit Replaced({tr("taking over \"%1\"").arg(Title()), before, m_Behind.state}, groundBefore);
    emit Message(tr("%1 is read again: another program has changed it").arg(Path()));
}

void cFileDocument::TakeUp() {
    const cFileReader::cStamp now = m_Services.m_Files.Stamp(m_Behind.path);
    if (m_Behind.path.empty() || m_Dirty || now.size < 0 || now == m_Seen || !HasNews(now)) return;
    // Told once: what can't be read stays as it was read before.
    m_Seen = now;
    TakeTheirs();
}

bool cFileDocument::SaveAs() {
    const QString suggestion =
        m_Behind.path.empty()
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
    // Was the content of before, the user has said so: there is nothing of others left in the file.
    if (path != m_Behind.path || IsOfBefore()) m_Behind.fileGround = 0;
    // What others wrote in the same moment has a stamp that is not known here, and is asked about.
    const cFileReader::cStamp now = m_Services.m_Files.Stamp(path);
    Take(path, Holds(path, m_Form.state()) ? now : cFileReader::cStamp{});
    emit Message(tr("Saved %1").arg(Path()));
    return true;
}

}  // namespace vigrel
