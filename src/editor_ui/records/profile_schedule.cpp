#include "editor_ui/records/profile_schedule.h"

namespace vigrel {

cProfileSchedule::cProfileSchedule(cEditorServices& services, QWidget* parent)
    : cSchedulePage(services, tr("Schedule"), parent) {
    connect(this, &cEditorPage::ContentChanged, this, [this] {
        if (!m_Showing && OnEdited) OnEdited(State());
    });
    connect(&ViewDayType(), &QCheckBox::clicked, this, [this](bool on) {
        if (OnViewDayType) OnViewDayType(on);
    });
}

// The undo stack tells of its end when there is no schedule any more.
cProfileSchedule::~cProfileSchedule() {
    disconnect(this, &cEditorPage::ContentChanged, this, nullptr);
}

void cProfileSchedule::Show(const cProfile& profile) {
    m_Showing = true;
    std::string periods;
    if (profile.m_TimeSchedule) profile.m_TimeSchedule->ComposePeriodArray(periods);
    if (periods != State()) {
        Restore(periods);
        UndoStack()->clear();
    }
    ViewDayType().setChecked(profile.m_TimeSchedule_ViewDayType != 0);
    m_Showing = false;
}

}  // namespace vigrel
