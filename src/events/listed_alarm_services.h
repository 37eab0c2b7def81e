#pragma once

#include "common/log.h"
#include "common/receiver_state.h"
#include "common/settings.h"
#include "common/texts.h"
#include "events/alarm_list_view.h"
#include "events/alarm_store.h"
#include "platform/report_list.h"

namespace vigrel {

// What changes alarms where they are listed and stored works on these.
struct cListedAlarmServices {
    cAlarmStore& store;
    cAlarmListView& view;
    cReportList& list;
    cLog& log;
    const cTexts& texts;
    const cSettings& settings;
    cReceiverState& state;
};

}  // namespace vigrel
