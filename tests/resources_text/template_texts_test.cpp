#include "common/dates.h"
#include "common/texts.h"
#include "core/read_settings.h"
#include "resources_text/default_configuration.h"
#include "signals/event_text.h"
#include "support/fake_clock.h"

namespace vigrel {
namespace {

using namespace vigrel::testing;

// What the delivered templates make of an event, in English.
class DefaultTemplates : public DefaultConfiguration {
  protected:
    void SetUp() override {
        DefaultConfiguration::SetUp();
        m_Files.Put("C:\\App\\Vigrel_Texts.044", vigrel::testing::ReadShareFile("Vigrel_Texts.044"));
        ReadSettings(m_Ini, m_Settings, [] {});
        m_Ini.PutIniString("General", "Language", "044");
        ASSERT_TRUE(m_Texts.LoadTexts());
    }
    std::string Expand(std::int16_t status, const std::string& text, const std::string& extraText) {
        cVigrelRecieverAlarm alarm(m_Clock);
        alarm.m_Sender = "PLC1";
        alarm.m_Alarm.m_Status = status;
        alarm.m_Alarm.m_TimeStampFromSCADA = DateSerial(2024, 3, 5) + TimeSerial(13, 45, 10);
        alarm.m_Alarm.SetCondition(0, "Smoke in room 12");
        alarm.m_Alarm.SetCondition(1, "Building A");
        alarm.m_Alarm.SetCondition(2, "Fire");
        return m_EventText.ExpandEventText(alarm, text, extraText);
    }

    vigrel::testing::cFakeClock m_Clock;
    cSettings m_Settings;
    cTexts m_Texts{m_Files, m_Ini};
    cLocaleForms m_Forms;
    cEventText m_EventText{m_Settings, m_Texts, m_Ini, m_Forms};
};

TEST_F(DefaultTemplates, APopupTellsStateCategoryTimeSenderTextsAndInstruction) {
    const std::string& format = m_Categories.m_DefaultCategorySetting.m_EventPopupFormat;
    EXPECT_EQ(Expand(1, format, "Call 112"),
              "ALARM: Fire   2024-03-05 13:45:10   PLC1\r\nSmoke in room 12\r\nBuilding A  \r\nCall 112");
    EXPECT_TRUE(Expand(0, format, "").starts_with("No longer active: Fire"));
    EXPECT_TRUE(Expand(2, format, "").starts_with("Acknowledged: Fire"));
}

TEST_F(DefaultTemplates, TheExampleOfAPrintedLineFitsALine) {
    const auto example = std::find_if(m_Lines.begin(), m_Lines.end(), [](const cLine& line) {
        return line.section == "Printer" && line.key == "Format" && line.commented;
    });
    ASSERT_NE(example, m_Lines.end());
    EXPECT_EQ(Expand(1, example->value, ""),
              "ALARM 2024-03-05 13:45:10 PLC1         Fire         Smoke in room 12");
}

}  // namespace
}  // namespace vigrel
