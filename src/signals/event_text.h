#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "common/ini.h"
#include "common/settings.h"
#include "common/texts.h"
#include "events/vigrel_reciever_alarm.h"
#include "platform/locale.h"

namespace vigrel {

// The template language in which popups and printed lines are written: section "Templates" of
// docs/installer.md tells it to those who write templates.
//
// First the forms "{ACTIVE?text}" (signals/conditional_forms.h), then from left to right the tokens in square
// brackets: the fields ALARMDATE, ALARMTIME, DATE, TIME, STATUS, STATUS$, OBJECT, ALARMID, SENDER, EXTRATEXT,
// OBSERVED; numbers 1 to 255, the character of that code; T0 to T5, the condition texts; each with a range
// and a width, "[T0:0-9:10]"; and the modifiers of the next value (signals/value_shape.h). What is put in is
// not expanded. A token that is none of these stays as it stands. There is no escape character.
class cEventText {
  public:
    cEventText(const cSettings& settings, const cTexts& texts, const cIniReader& ini,
               const cLocaleForms& forms)
        : m_Settings(settings), m_Texts(texts), m_Ini(ini), m_Forms(forms) {}

    // The text that a person reads. A message (status 3) is its own template: its condition 0 is expanded in
    // place of the template. Never fails: a step that would is skipped. What stands behind position 32,767 of
    // the growing text is not expanded; the text grows by no more than that and one value (of a field, or
    // kLongestValue).
    std::string ExpandEventText(const cVigrelRecieverAlarm& alarm, std::string_view text,
                                std::string_view extraText) const;

  private:
    const cSettings& m_Settings;
    const cTexts& m_Texts;
    const cIniReader& m_Ini;
    const cLocaleForms& m_Forms;
};

// The names of all fields, in upper case, for those who look for slips in a template.
std::vector<std::string> EventFieldNames();

}  // namespace vigrel
