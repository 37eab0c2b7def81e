#include "editor_ui/pages/file_document.h"

#include <QWidget>
#include <utility>

#include "adapters/qt/qt_text.h"
#include "common/failure.h"
#include "common/file_procedures.h"

namespace vigrel {
namespace {

// With the separators of this system, as the operator knows them.
QString ShownFailure(const cFailure& failure) {
    return WithPathsToQString(failure.what()).replace('\\', '/');
}

}  // namespace

cFileDocument::cFileDocument(cEditorServices& services, cFileForm form, QWidget* owner)
    : QObject(owner),
      m_Services(services),
      m_Form(std::move(form)),
      m_Owner(owner),
      m_StateInFile(m_Form.state()) {}

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
void cFileDocument::Take(const std::string& path) {
    m_Path = path;
    m_Stamp = m_Services.m_Files.Stamp(path);
    m_StateInFile = m_Form.state();
    m_Dirty = false;
    emit StateChanged();
    emit FileUsed(Path());
}

bool cFileDocument::Open(const std::string& path) {
    if (const auto failure = CatchFailure([&] { m_Form.read(path); })) {
        m_Services.m_Prompts.ShowFailure(m_Owner, ShownFailure(*failure));
        return false;
    }
    RemoveTemporaryOf(m_Services.m_Files, path);
    Take(path);
    emit Opened();
    return true;
}

bool cFileDocument::Save() {
    if (m_Path.empty()) return SaveAs();
    return MayReplace(m_Path) && WriteTo(m_Path);
}

// Another program, or another window, may have written the file meanwhile.
bool cFileDocument::MayReplace(const std::string& path) {
    const cFileReader::cStamp now = m_Services.m_Files.Stamp(path);
    if (now.size < 0 || now == m_Stamp) return true;
    return m_Services.m_Prompts.AskYesNo(
        m_Owner,
        tr("%1 was changed by somebody else since it was opened. Replace it?").arg(PathToQString(path)));
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
                                         tr("The file was not saved.\n%1").arg(ShownFailure(*failure)));
        return false;
    }
    Take(path);
    emit Message(tr("Saved %1").arg(Path()));
    return true;
}

}  // namespace vigrel
