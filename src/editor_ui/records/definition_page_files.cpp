#include <utility>

#include "editor_ui/pages/note_bar.h"
#include "editor_ui/records/definition_page.h"

namespace vigrel {
namespace {

// Where a definition stands after what was taken up; -1 when it has gone.
int PositionAfter(const std::vector<cTakenUp>& taken, int position) {
    for (const cTakenUp& each : taken) {
        if (each.after || each.position > position) continue;
        if (each.position == position) return -1;
        --position;
    }
    return position;
}

}  // namespace

// Another program, or another window, may have written or removed the file meanwhile.
bool cDefinitionPage::MayReplaceChanged(int position) {
    using eAnswer = cPrompts::eConflict;
    switch (m_Services.m_Prompts.AskConflict(this, NameAt(position), false)) {
        case eAnswer::Mine:
            return true;
        case eAnswer::Theirs:
            RevertPosition(position);
            return false;
        case eAnswer::Both:
            ShowBoth(position);
            return false;
        default:
            return false;
    }
}

bool cDefinitionPage::MayWriteAgain(int position) {
    using eAnswer = cPrompts::eConflict;
    const QString name = NameAt(position);
    const eAnswer answer = m_Services.m_Prompts.AskConflict(this, name, true);
    if (answer != eAnswer::Theirs) return answer == eAnswer::Mine;
    if (RecordPtr record = TakeOut(position)) {
        m_UndoStack.push(
            new cListCommand(*this, tr("removing \"%1\"").arg(name), position, std::move(record)));
    }
    return false;
}

// What the file holds becomes a definition of its own beside the changed one.
void cDefinitionPage::ShowBoth(int position) {
    const int added = m_Model.AddFromFile(position);
    if (added < 0) return TellFailure(tr("The file of \"%1\" can't be read.").arg(NameAt(position)));
    m_UndoStack.push(new cListCommand(*this, tr("showing both"), added, nullptr));
    Choose(added);
    Changed();
}

// --- taking up

cDefinitionPage::cWork::~cWork() {
    if (--m_Page.m_Works > 0 || !std::exchange(m_Page.m_HasNotLooked, false)) return;
    // A step may be under way, which nothing may be pushed on.
    const auto look = [page = &m_Page] {
        if (page->isVisible()) page->SeenAgain();
    };
    QMetaObject::invokeMethod(&m_Page, look, Qt::QueuedConnection);
}

void cDefinitionPage::SeenAgain() {
    m_HasNotLooked = m_Works > 0;
    if (!m_HasNotLooked) LookAgain();
}

// Another editor may have worked on the folder while this one was away. What is changed here stays.
void cDefinitionPage::TakeUpFolder() {
    m_Model.LookAtFiles();
    if (!m_Source->HasNews()) return;
    FinishInput();
    const int chosen = Chosen();
    const int place = m_List->PlaceOf(chosen);
    std::vector<cTakenUp> taken = m_Model.Rescan();
    const int now = PositionAfter(taken, chosen);
    Choose(now < 0 && chosen >= 0 ? m_List->PositionNear(place) : now);
    TellTakenUp(taken);
    PushTakenUp(std::move(taken));
    Changed();
    m_Notes->Add(m_TakeNotes());
}

// The steps of before stand on what was there before: without this one between they would put it back over
// what others saved. All that was taken up at once is one step.
void cDefinitionPage::PushTakenUp(std::vector<cTakenUp> taken) {
    if (taken.size() > 1) m_UndoStack.beginMacro(tr("taking over the changes of other programs"));
    for (cTakenUp& each : taken) {
        if (!each.after) {
            m_UndoStack.push(new cListCommand(*this, tr("removing \"%1\"").arg(each.name), each.position,
                                              std::move(each.before)));
            continue;
        }
        const cFieldStep step{tr("taking over \"%1\"").arg(each.name), {}};
        m_UndoStack.push(new cFieldCommand(*this, each.position, std::move(each.before),
                                           std::move(each.after), step, m_Session));
    }
    if (taken.size() > 1) m_UndoStack.endMacro();
}

void cDefinitionPage::TellTakenUp(const std::vector<cTakenUp>& taken) {
    if (taken.empty()) return;
    const cTakenUp& first = taken.front();
    const QString one = first.after ? tr("Another program has changed \"%1\"").arg(first.name)
                                    : tr("Another program has removed \"%1\"").arg(first.name);
    emit Message(taken.size() == 1 ? one : tr("Changed or removed by other programs: %1").arg(taken.size()));
}

}  // namespace vigrel
