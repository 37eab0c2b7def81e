#include "common/dates.h"
#include "common/texts.h"
#include "core/read_settings.h"
#include "resources_text/default_configuration.h"
#include "signals/event_text.h"
#include "support/fake_clock.h"

namespace vigrel::testing {
namespace {

using namespace vigrel::testing;

// What the delivered templates make of an event.
class DefaultTemplates : public EveryTemplate {
  protected:
    void SetUp() override {
        DefaultConfiguration::SetUp();
        m_Files.Put("C:\\App\\Vigrel_Texts." + Language(), ReadShareFile("Vigrel_Texts." + Language()));
        ReadSettings(m_Ini, m_Settings, [] {});
        m_Ini.PutIniString("General", "Language", Language());
        ASSERT_TRUE(m_Texts.LoadTexts());
    }
    std::string Expand(std::int16_t status, const std::string& text, const std::string& extraText) {
        cVigrelRecieverAlarm alarm(m_Clock, kNoCategorySetting);
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

INSTANTIATE_TEST_SUITE_P(Languages, DefaultTemplates, ::testing::ValuesIn(kDeliveredLanguages));

TEST_P(DefaultTemplates, APopupTellsCategoryAndStateFirstThenTextsTimeSenderAndInstruction) {
    const std::string& format = m_Categories.m_DefaultCategorySetting.m_EventPopupFormat;
    EXPECT_EQ(Expand(1, format, "Call 112"),
              "Fire - " + m_Texts.GetText(838) +
                  "\r\nSmoke in room 12\r\nBuilding A  \r\n2024-03-05 13:45:10  PLC1\r\nCall 112");
    EXPECT_TRUE(Expand(0, format, "").starts_with("Fire - " + m_Texts.GetText(837)));
    EXPECT_TRUE(Expand(2, format, "").starts_with("Fire - " + m_Texts.GetText(839)));
}

TEST_P(DefaultTemplates, TheExampleOfAPrintedLineFitsALine) {
    const auto example = std::find_if(m_Lines.begin(), m_Lines.end(), [](const cLine& line) {
        return line.section == "Printer" && line.key == "Format" && line.commented;
    });
    ASSERT_NE(example, m_Lines.end());
    std::string state = m_Texts.GetText(838);
    state.resize(11, ' ');
    EXPECT_EQ(Expand(1, example->value, ""),
              "2024-03-05 13:45:10 " + state + " PLC1       Fire         Smoke in room 12");
}

}  // namespace
}  // namespace vigrel::testing
