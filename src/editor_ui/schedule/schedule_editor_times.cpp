#include <algorithm>
#include <iterator>
#include <tuple>

#include "adapters/qt/qt_text.h"
#include "editor_ui/pages/one_line.h"
#include "editor_ui/pages/reasons.h"
#include "editor_ui/schedule/schedule_editor.h"
#include "schedule/time_text.h"

namespace vigrel {

// What is no time stays as it was typed, and both fields with it: half of what is meant makes no period.
void cScheduleEditor::TakeTimes() {
    const PeriodPtr period = m_Schedule.SelectedPeriod();
    if (!IsTyping() || period == nullptr || m_Schedule.IsDragging()) return;
    const QString name = TypedName(m_Schedule.SelectedDayType(), *period);
    for (QLineEdit* field : {&m_Start, &m_Stop}) field->setText(OneLine(field->text()));
    const QString fault = FaultOfTimes();
    Edit(tr("typing times"), [&] {
        m_Typed.erase(name);
        if (fault.isEmpty()) {
            m_Schedule.ExtractTimeFromTextboxes(*this, m_SchedulePaintObject);
        } else {
            m_Typed[name] = {m_Start.text() + '\n' + m_Stop.text(), fault};
        }
    });
    m_Frame.View().update();
    Refresh();
}

// The times as they were before something was typed in their fields.
void cScheduleEditor::TakeBackTyping() {
    if (m_Shown.dayType < 0) return;
    m_Schedule.Select(*this, m_Shown.dayType, m_Shown.period);
    ShowTyped();
}

void cScheduleEditor::DropTyping() {
    if (IsTyping()) TakeBackTyping();
}

QString cScheduleEditor::FaultOfTimes() const {
    for (const QLineEdit* field : {&m_Start, &m_Stop}) {
        if (const auto fault = FaultOfTimeText(FromQString(field->text()))) {
            return (field == &m_Start ? tr("Start: %1") : tr("Stop: %1")).arg(Told(*fault));
        }
    }
    return {};
}

// By the period's times: they are what stays the same when a schedule is read again.
QString cScheduleEditor::TypedName(std::int32_t dayType, const cTimeSchedulePeriod& period) const {
    return TypedPrefix() +
           QString("%1.%2-%3").arg(dayType).arg(period.m_StartMinute).arg(period.m_StopMinute);
}

cScheduleEditor::cPlace cScheduleEditor::PlaceOf(const QString& typedName) const {
    for (std::int16_t dayType = 0; dayType < kDayTypes; ++dayType) {
        if (!m_Schedule.GetActive(dayType) || RowOf(dayType) >= ShownRows()) continue;
        const PeriodList periods = PeriodsOf(dayType);
        const auto found = std::find_if(periods.begin(), periods.end(), [&](const PeriodPtr& period) {
            return TypedName(dayType, *period) == typedName;
        });
        if (found != periods.end()) return {dayType, *found};
    }
    return {};
}

TypedTexts cScheduleEditor::TypedTimes() const {
    TypedTexts typed = m_Typed;
    std::erase_if(typed, [this](const auto& each) { return PlaceOf(each.first).period == nullptr; });
    return typed;
}

// A period that is no longer there, or has other times, has no field in which they could be mended.
void cScheduleEditor::ForgetTypedOfOthers() {
    TypedTexts typed = TypedTimes();
    if (typed.size() == m_Typed.size()) return;
    for (const auto& [name, times] : m_Typed) {
        if (typed.count(name) == 0) emit Message(tr("Not taken over: %1").arg(times.problem));
    }
    m_Typed = std::move(typed);
    emit ProblemChanged();
}

void cScheduleEditor::ShowTyped() {
    const auto typed =
        m_Shown.period ? m_Typed.find(TypedName(m_Shown.dayType, *m_Shown.period)) : m_Typed.end();
    if (typed == m_Typed.end()) return ShowProblem({});
    if (!IsTyping()) {
        m_Start.setText(typed->second.text.section('\n', 0, 0));
        m_Stop.setText(typed->second.text.section('\n', 1));
    }
    ShowProblem(typed->second.problem);
}

void cScheduleEditor::ShowProblem(const QString& problem) {
    if (problem == m_Problem.text()) return;
    m_Problem.Show(problem);
    emit ProblemChanged();
}

// Where times were typed or taken back by the step that was undone.
bool cScheduleEditor::ShowTypedDifference(const TypedTexts& before) {
    TypedTexts differ;
    const auto less = [](const auto& a, const auto& b) {
        return std::tie(a.first, a.second.text) < std::tie(b.first, b.second.text);
    };
    std::set_symmetric_difference(before.begin(), before.end(), m_Typed.begin(), m_Typed.end(),
                                  std::inserter(differ, differ.end()), less);
    for (const auto& [name, times] : differ) {
        const cPlace place = PlaceOf(name);
        if (place.period == nullptr) continue;
        Choose(place.dayType, place.period);
        return true;
    }
    return false;
}

QString cScheduleEditor::ShowTypedTimes(const QString& name) {
    const cPlace place = PlaceOf(name);
    if (place.period != nullptr) Choose(place.dayType, place.period);
    return (FaultOfTimeText(FromQString(m_Start.text())) ? m_Start : m_Stop).objectName();
}

void cScheduleEditor::FocusProblem() {
    if (m_Typed.empty()) return;
    const QString name = ShowTypedTimes(m_Typed.begin()->first);
    QLineEdit& field = name == m_Start.objectName() ? m_Start : m_Stop;
    field.setFocus();
    field.selectAll();
}

}  // namespace vigrel
