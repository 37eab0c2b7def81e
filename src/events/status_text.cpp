#include "events/status_text.h"

#include "events/alarm.h"

namespace vigrel {

std::string StatusText(const cTexts& texts, std::int16_t status) {
    switch (status) {
        case StatusInactive:
            return texts.GetText(TextStateInactive);
        case StatusActive:
            return texts.GetText(TextStateActive);
        case StatusAcked:
            return texts.GetText(TextStateAcknowledged);
        default:
            return {};
    }
}

}  // namespace vigrel
