#include "editor_ui/calendar/active_day_view.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "adapters/qt/qt_text.h"
#include "common/dates.h"

namespace vigrel {
namespace {

QString TimeText(int minute) {
    return QString("%1:%2").arg(minute / 60, 2, 10, QChar('0')).arg(minute % 60, 2, 10, QChar('0'));
}

}  // namespace

cActiveDayView::cActiveDayView(cEditorServices& services, const cTimeSchedule& schedule,
                               const cCalendar& calendar, QWidget* parent)
    : QWidget(parent), m_Services(services), m_Schedule(schedule), m_Calendar(calendar) {
    setObjectName("View_ActiveDay");
    MakeLayout();
    connect(&m_Date, &QDateEdit::dateChanged, this, &cActiveDayView::Answer);
    connect(&m_Time, &QTimeEdit::timeChanged, this, &cActiveDayView::Answer);
    ShowNow();
}

void cActiveDayView::MakeLayout() {
    m_Date.setObjectName("Date_ActiveDay");
    m_Date.setDisplayFormat("yyyy-MM-dd");
    m_Date.setDateRange({kFirstCalendarYear, 1, 1}, {kLastCalendarYear, 12, 31});
    m_Date.setCalendarPopup(true);
    m_Time.setObjectName("Time_ActiveDay");
    m_Time.setDisplayFormat("HH:mm");
    auto* now = new QPushButton(tr("No&w"));
    now->setObjectName("Button_ActiveDay_Now");
    connect(now, &QPushButton::clicked, this, &cActiveDayView::ShowNow);
    auto* form = new QFormLayout;
    form->addRow(tr("&Date:"), &m_Date);
    form->addRow(tr("T&ime:"), &m_Time);
    auto* choice = new QHBoxLayout;
    choice->addLayout(form);
    choice->addWidget(now, 0, Qt::AlignBottom);
    choice->addStretch(1);
    m_Answer.setObjectName("Label_ActiveDay_Answer");
    m_Reason.setObjectName("Label_ActiveDay_Reason");
    QFont bold = font();
    bold.setBold(true);
    m_Answer.setFont(bold);
    for (QLabel* label : {&m_Answer, &m_Reason}) {
        label->setWordWrap(true);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    }
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(choice);
    layout->addWidget(&m_Line);
    layout->addWidget(&m_Answer);
    layout->addWidget(&m_Reason);
    layout->addStretch(1);
}

void cActiveDayView::ShowNow() {
    const cDateParts now = SplitDateTime(m_Services.m_Clock.Now());
    {
        const QSignalBlocker noDate(m_Date), noTime(m_Time);
        m_Date.setDate({now.year, now.month, now.day});
        m_Time.setTime({now.hour, now.minute});
    }
    Answer();
}

void cActiveDayView::Refresh(bool isUsed, bool hasCalendar) {
    m_IsUsed = isUsed;
    m_HasCalendar = hasCalendar;
    if (isVisible()) Answer();
}

void cActiveDayView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    Answer();
}

QString cActiveDayView::NameOf(int dayType) const {
    return ToQString(m_Services.m_DayTypeNames.Name(static_cast<std::int16_t>(dayType)));
}

QString cActiveDayView::Reason(const cActiveDay& day) const {
    using eReason = cActiveDay::eReason;
    switch (day.reason) {
        case eReason::Calendar:
            return tr("Day type: %1, by the calendar").arg(NameOf(day.dayType));
        case eReason::NotInSchedule:
            return tr("Day type: %1, by the weekday: the calendar gives %2, which the schedule doesn't use")
                .arg(NameOf(day.dayType), NameOf(day.calendarValue - 1));
        default:
            return (m_HasCalendar ? tr("Day type: %1, by the weekday: the calendar says nothing of the date")
                                  : tr("Day type: %1, by the weekday: no calendar is open"))
                .arg(NameOf(day.dayType));
    }
}

void cActiveDayView::Answer() {
    const QDate date = m_Date.date();
    const int minute = m_Time.time().hour() * 60 + m_Time.time().minute();
    const std::int32_t index = CalendarIndex(DateSerial(date.year(), date.month(), date.day()));
    const cActiveDay day = ActiveDay(m_Schedule, m_Calendar.GetDayType(index), WeekDayOfIndex(index));
    const int change = day.NextChange(minute);
    const QString text = day.IsActiveAt(minute) ? tr("%1: active until %2") : tr("%1: not active until %2");
    m_Answer.setText(text.arg(TimeText(minute), TimeText(change)));
    QStringList lines{Reason(day)}, group, periods;
    for (const std::int16_t other : day.group) group += NameOf(other);
    for (const auto& [start, stop] : day.periods) periods += TimeText(start) + "-" + TimeText(stop);
    if (!group.isEmpty()) lines += tr("In a group with: %1").arg(group.join(", "));
    lines += day.used ? tr("Periods: %1").arg(periods.isEmpty() ? tr("none") : periods.join(", "))
                      : tr("The schedule doesn't use this day type: nothing is active.");
    if (!m_IsUsed) lines += tr("The profile doesn't use its schedule.");
    m_Reason.setText(lines.join('\n'));
    m_Line.Show(day.periods, minute);
    m_Line.setAccessibleName(tr("The day's 24 hours"));
    m_Line.setAccessibleDescription(m_Answer.text() + "\n" + m_Reason.text());
}

}  // namespace vigrel
