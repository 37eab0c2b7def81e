// Input: the status, sender, condition 1 and extra text on a line each, then the template (of a message:
// condition 0).

#include "fuzz/fuzz_target.h"

#include "common/numbers.h"
#include "common/text.h"
#include "signals/conditional_forms.h"
#include "signals/event_text_station.h"
#include "signals/templates_by_the_word.h"
#include "signals/value_shape.h"

namespace {

using namespace vigrel;

void CheckForms(const std::string& text, std::int16_t status) {
    const std::string expanded = ExpandConditionalForms(text, status);
    fuzz::Require(expanded.size() <= text.size(), "forms make no text longer");
    if (text.size() > 2000) return;
    fuzz::Require(expanded == testing::FormsByTheWord(text, status), "forms are expanded by the word");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto parts = fuzz::HeadLines(fuzz::Text(data, size), 4);
    const std::string& text = parts[4];
    testing::cEventTextStation station;
    cAlarm& event = station.alarm.m_Alarm;
    event.m_Status = static_cast<std::int16_t>(Val(parts[0].substr(0, 1)));
    station.alarm.m_Sender = parts[1];
    event.SetCondition(1, parts[2]);
    if (event.m_Status == StatusMessage) event.SetCondition(0, text);

    const std::string result = station.eventText.ExpandEventText(station.alarm, text, parts[3]);
    fuzz::Require(result.size() <= text.size() + kLastPosition + kLongestValue + size,
                  "the result is bounded");
    fuzz::Require(result == station.eventText.ExpandEventText(station.alarm, text, parts[3]),
                  "nothing is kept");
    if (text.find_first_of("[{") == std::string::npos) fuzz::Require(result == text, "plain text stays");
    CheckForms(text, event.m_Status);
    return 0;
}
