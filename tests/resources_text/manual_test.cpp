// The manual is held to the program: it names every key, explains every log line, and its examples are true.

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "common/code_page.h"
#include "common/text.h"
#include "common/texts.h"
#include "core/read_settings.h"
#include "resources_text/default_configuration.h"
#include "resources_text/doc_pages.h"
#include "signals/event_text.h"
#include "support/fake_clock.h"

namespace vigrel::testing {
namespace {

using namespace vigrel::testing;

std::string Manual() {
    std::string text;
    for (const std::string& line : ReadPage("installer.md")) text += line + "\n";
    return text;
}

// The lines of the fenced blocks that hold sections of the configuration, with the section above each.
std::vector<cLine> ExampleLines() {
    std::vector<cLine> lines;
    std::string section;
    bool inside = false;
    for (const std::string& line : ReadPage("installer.md")) {
        if (line.starts_with("```")) {
            inside = !inside;
            section.clear();
        } else if (inside && line.starts_with("[")) {
            section = line.substr(1, line.find(']') - 1);
        } else if (inside && !section.empty()) {
            if (const auto entry = KeyLine(line, section)) lines.push_back(*entry);
        }
    }
    return lines;
}

class ManualPage : public DefaultConfiguration {
  protected:
    void SetUp() override {
        DefaultConfiguration::SetUp();
        m_Files.Put("C:\\App\\Vigrel_Texts.044", ReadShareFile("Vigrel_Texts.044"));
        m_Ini.PutIniString("General", "Language", "044");
        m_Ini.PutIniString("General", "Object", "Plant");
        ASSERT_TRUE(m_Texts.LoadTexts());
    }
    std::string Expand(const std::string& text) const {
        cVigrelRecieverAlarm alarm(m_Clock, kNoCategorySetting);
        alarm.m_Sender = "PLC1";
        alarm.m_Alarm.m_Status = 1;
        alarm.m_Alarm.SetCondition(0, "Fan 3 tripped");
        alarm.m_Alarm.SetCondition(1, "Building A");
        alarm.m_Alarm.SetCondition(2, "Ventilation");
        return m_EventText.ExpandEventText(alarm, text, "");
    }

    cFakeClock m_Clock;
    cSettings m_Settings;
    cLocaleForms m_Forms;
    cTexts m_Texts{m_Files, m_Ini};
    cEventText m_EventText{m_Settings, m_Texts, m_Ini, m_Forms};
};

// A category's key is named by what stands in front of its state.
TEST_F(ManualPage, NamesEveryKey) {
    const std::string manual = Manual();
    for (const cSettingKey& key : SettingKeys()) {
        if (key.section == "PrinterPorts") continue;
        std::string name = key.name;
        for (const std::string_view state : kStateSuffixes) {
            if (name.ends_with("_" + std::string(state))) name.resize(name.size() - state.size());
        }
        EXPECT_NE(manual.find(name), std::string::npos) << name;
    }
}

TEST_F(ManualPage, ExplainsEveryLineOfTheLog) {
    const std::string manual = Manual();
    for (const int id : {141,   803,   804,   805,   888,   930,   976,   977,   978,   979,   980,   981,
                         982,   10011, 10012, 10013, 10018, 10020, 10021, 10027, 10028, 10029, 10030, 10036,
                         10037, 10038, 10039, 10040, 10041, 10042, 10043, 10044, 10046, 10047}) {
        std::string text = CodePageToUtf8(m_Texts.GetText(id));
        // What two lines share is written once.
        if (id == 805) text = "the profile is not loaded";
        EXPECT_NE(manual.find(text), std::string::npos) << id << ": " << text;
    }
}

TEST_F(ManualPage, ItsConfigurationExamplesUseKeysOfTheirSections) {
    const auto lines = ExampleLines();
    EXPECT_GT(lines.size(), 30u);
    for (const cLine& line : lines) {
        const bool free = line.section == "Senders" || line.section == "CategoryTranslations" ||
                          line.section == "PrinterPorts";
        EXPECT_TRUE(free || Known(line) != nullptr) << "[" << line.section << "] " << line.key;
    }
}

TEST_F(ManualPage, ItsTemplatesGiveTheResultsItSays) {
    int examples = 0;
    bool inside = false;
    for (const std::string& line : ReadPage("installer.md")) {
        if (line == "| template | result |") inside = true;
        if (line.empty()) inside = false;
        if (!inside || !line.starts_with("| `")) continue;
        const std::string text = GetField(line, 1, "`");
        EXPECT_EQ(Expand(text), GetField(line, 3, "`")) << text;
        ++examples;
    }
    EXPECT_GE(examples, 5);
}

}  // namespace
}  // namespace vigrel::testing
