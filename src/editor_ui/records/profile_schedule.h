#pragma once

#include "definitions/profile.h"
#include "editor_ui/schedule/schedule_page.h"

namespace vigrel {

// The time schedule of a profile, edited as a schedule in a file of its own is.
class cProfileSchedule : public cSchedulePage {
    Q_OBJECT
  public:
    explicit cProfileSchedule(cEditorServices& services, QWidget* parent = nullptr);
    ~cProfileSchedule() override;

    QString Title() const override { return tr("This profile"); }
    // Shows a copy of the profile's schedule; its steps can't be undone beyond this.
    void Show(const cProfile& profile);

    // After each change: the schedule as a text (ComposePeriodArray).
    std::function<void(const std::string& periods)> OnEdited;
    // Day names are to be shown in the rows, or not.
    std::function<void(bool on)> OnViewDayType;

  private:
    bool m_Showing = false;
};

}  // namespace vigrel
