#include "receiver-check/sample_texts.h"

#include "common/failure.h"
#include "common/numbers.h"
#include "common/text.h"
#include "core/read_settings.h"
#include "events/alarm.h"
#include "signals/event_text.h"

namespace vigrel {
namespace {

constexpr std::string_view kIndent = "    ";

class cSamples {
  public:
    cSamples(const cInstallation& installation, const cMachine* machine, const cClock& clock)
        : m_Installation(installation),
          m_Machine(machine),
          m_Clock(clock),
          m_Texts(installation.Files(), installation.Ini()) {
        // What keeps the start from reading them was told of.
        SkipFailure([&] { ReadSettings(m_Installation.Ini(), m_Settings, [] {}); });
        SkipFailure([&] { m_Texts.LoadTexts(); });
    }

    std::string Make() {
        m_Lines =
            "Sample alarm: sender PLC1, T0 \"Fan 3 tripped\", T1 \"Building A\", T3 to T5 \"Text 3\" to "
            "\"Text 5\"\n";
        const cCategorySettings& categories = m_Installation.Categories();
        for (const std::int16_t status : {StatusActive, StatusInactive, StatusAcked}) {
            Popup("Any other category", categories.m_DefaultCategorySetting, "Sample", status);
        }
        Sound(categories.m_DefaultCategorySetting);
        for (const cCategorySpecificSetting& setting : categories.m_CategorySettings) {
            Popup("Category " + setting.m_Category, setting, setting.m_Category, StatusActive);
            Sound(setting);
        }
        if (!m_Settings.m_PrinterFormat.empty()) {
            Add("Printed line", Expand(m_Settings.m_PrinterFormat, "Sample", StatusActive, ""));
        }
        return m_Lines;
    }

  private:
    void Add(const std::string& heading, const std::string& text) {
        m_Lines += heading + ":\n";
        for (const std::string& line : SplitLines(text)) m_Lines += std::string(kIndent) + line + "\n";
    }
    void Popup(const std::string& heading, const cCategorySpecificSetting& setting,
               const std::string& category, std::int16_t status) {
        const std::string text = Expand(setting.m_EventPopupFormat, category, status, setting.m_ExtraText);
        Add(heading + ", popup, state " + std::to_string(status), text);
    }
    void Sound(const cCategorySpecificSetting& setting) {
        const bool plays = setting.m_EventSignal == 2 || setting.m_EventSignal == 3;
        if (!plays || m_Machine == nullptr) return;
        const auto seconds = m_Machine->SecondsOfSound(setting.m_EventSoundFile);
        if (!seconds) return;
        m_Lines += std::string(kIndent) + "(sound: " + setting.m_EventSoundFile + ", " +
                   NumberText(RoundEven(*seconds * 10) / 10) + " s" +
                   (setting.m_EventSignal == 3 ? ", again and again" : "") + ")\n";
    }
    std::string Expand(const std::string& text, const std::string& category, std::int16_t status,
                       const std::string& extraText) const {
        cVigrelRecieverAlarm alarm(m_Clock, kNoCategorySetting);
        alarm.m_Sender = "PLC1";
        alarm.m_Alarm.m_Status = status;
        alarm.m_Alarm.SetCondition(ConditionText, "Fan 3 tripped");
        alarm.m_Alarm.SetCondition(1, "Building A");
        alarm.m_Alarm.SetCondition(ConditionCategory, category);
        for (std::int16_t i = 3; i <= 5; ++i) alarm.m_Alarm.SetCondition(i, "Text " + std::to_string(i));
        return cEventText(m_Settings, m_Texts, m_Installation.Ini(), m_Forms)
            .ExpandEventText(alarm, text, extraText);
    }

    const cInstallation& m_Installation;
    const cMachine* m_Machine;
    const cClock& m_Clock;
    cTexts m_Texts;
    cSettings m_Settings;
    const cLocaleForms m_Forms;
    std::string m_Lines;
};

}  // namespace

std::string SampleTexts(const cInstallation& installation, const cMachine* machine, const cClock& clock) {
    // Without it all would be empty, as if the station had been set up so.
    installation.Files().ReadFile(installation.IniPath());
    return cSamples(installation, machine, clock).Make();
}

}  // namespace vigrel
