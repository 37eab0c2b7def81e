#include "editor_ui/pages/file_page.h"

#include <QDir>
#include <QUndoCommand>

#include "adapters/qt/qt_text.h"
#include "common/failure.h"
#include "common/file_procedures.h"

namespace vigrel {
namespace {

constexpr int kUndoSteps = 200;

// The whole content before and after an edit, which has been made already.
class cStateCommand : public QUndoCommand {
  public:
    using Restorer = std::function<void(const std::string&)>;
    cStateCommand(const QString& name, std::string before, std::string after, Restorer restore)
        : QUndoCommand(name),
          m_Before(std::move(before)),
          m_After(std::move(after)),
          m_Restore(std::move(restore)) {}
    void undo() override { m_Restore(m_Before); }
    void redo() override {
        if (m_Undone) m_Restore(m_After);
        m_Undone = true;
    }

  private:
    std::string m_Before, m_After;
    Restorer m_Restore;
    bool m_Undone = false;
};

// With the separators of this system, as the operator knows them.
QString ShownPath(const std::string& path) {
    return QDir::fromNativeSeparators(ToQString(path)).replace('\\', '/');
}

}  // namespace

cFilePage::cFilePage(cEditorServices& services, const QString& newName, QWidget* parent)
    : cEditorPage(parent), m_Services(services), m_NewName(newName) {
    m_UndoStack.setUndoLimit(kUndoSteps);
    connect(&m_UndoStack, &QUndoStack::cleanChanged, this, &cEditorPage::StateChanged);
    connect(&m_UndoStack, &QUndoStack::indexChanged, this, &cEditorPage::ContentChanged);
}

QString cFilePage::Title() const {
    return m_Path.empty() ? m_NewName : ToQString(SplitPath(m_Path).name);
}

QString cFilePage::Path() const {
    return ShownPath(m_Path);
}

bool cFilePage::IsDirty() const {
    return !m_UndoStack.isClean();
}

bool cFilePage::Open(const std::string& path) {
    if (const auto failure = CatchFailure([&] { ReadFile(path); })) {
        m_Services.m_Prompts.ShowFailure(this, ShownPath(failure->what()));
        return false;
    }
    m_Path = path;
    m_Stamp = m_Services.m_Files.Stamp(path);
    m_UndoStack.clear();
    emit StateChanged();
    emit FileUsed(Path());
    return true;
}

bool cFilePage::Save() {
    if (m_Path.empty()) return SaveAs();
    return MayReplace(m_Path) && WriteTo(m_Path);
}

// Another program, or another window, may have written the file meanwhile.
bool cFilePage::MayReplace(const std::string& path) {
    const cFileReader::cStamp now = m_Services.m_Files.Stamp(path);
    if (now.size < 0 || now == m_Stamp) return true;
    return m_Services.m_Prompts.AskYesNo(
        this, tr("%1 was changed by somebody else since it was opened. Replace it?").arg(ShownPath(path)));
}

bool cFilePage::SaveAs() {
    const QString suggestion =
        m_Path.empty() ? ShownPath(m_Services.m_Ini.FullPath(FromQString(m_NewName))) + "." + Suffix()
                       : Path();
    const QString chosen = m_Services.m_Prompts.AskSavePath(this, suggestion, FileFilter(), Suffix());
    if (chosen.isEmpty()) return false;
    if (!FitsCodePage(chosen)) {
        m_Services.m_Prompts.ShowFailure(
            this, tr("%1 has characters that file names here can't have.").arg(chosen));
        return false;
    }
    return WriteTo(FromQString(chosen));
}

bool cFilePage::WriteTo(const std::string& path) {
    if (const auto failure = CatchFailure([&] { WriteFile(path); })) {
        m_Services.m_Prompts.ShowFailure(this,
                                         tr("The file was not saved.\n%1").arg(ShownPath(failure->what())));
        return false;
    }
    m_Path = path;
    m_Stamp = m_Services.m_Files.Stamp(path);
    m_UndoStack.setClean();
    emit StateChanged();
    emit FileUsed(Path());
    emit Message(tr("Saved %1").arg(Path()));
    return true;
}

void cFilePage::Edit(const QString& name, const std::function<void()>& edit) {
    BeginEdit();
    edit();
    EndEdit(name);
}

void cFilePage::BeginEdit() {
    m_StateBefore = State();
}

void cFilePage::EndEdit(const QString& name) {
    std::string after = State();
    if (after == m_StateBefore) return;
    m_UndoStack.push(new cStateCommand(name, m_StateBefore, std::move(after),
                                       [this](const std::string& state) { Restore(state); }));
}

}  // namespace vigrel
