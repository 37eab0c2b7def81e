// The pages that others build against are held to the code: worked examples byte by byte, tables key by key.

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "common/binary.h"
#include "common/dates.h"
#include "common/setting_keys.h"
#include "common/text.h"
#include "common/text_ids.h"
#include "events/vigrel_reciever_alarm.h"
#include "link/frame.h"
#include "resources_text/doc_pages.h"
#include "support/fake_clock.h"

namespace vigrel::testing {
namespace {

using vigrel::testing::ReadPage;

// The bytes of the block that begins with ```hex NAME; what stands behind "|" is explanation.
std::string HexBlock(const std::string& page, const std::string& name) {
    std::string bytes;
    bool inside = false;
    for (const std::string& line : ReadPage(page)) {
        if (line.starts_with("```")) {
            inside = line == "```hex " + name;
        } else if (inside) {
            const std::string hex = line.substr(0, line.find('|'));
            for (std::int16_t i = 0; !GetField(hex, i, " ").empty(); ++i) {
                bytes += static_cast<char>(std::stoi(GetField(hex, i, " "), nullptr, 16));
            }
        }
    }
    return bytes;
}

TEST(ProtocolPage, TheAlarmOfTheWorkedExampleIsTheFrameItSaysItIs) {
    EXPECT_EQ(HexBlock("protocol.md", "alarm"),
              MakeFrame("PLC1", "S12024-03-05|13:45:10|Fan 3 tripped|Building A|Ventilation"));
}

TEST(ProtocolPage, TheKeepAliveOfTheWorkedExampleIsTheFrameItSaysItIs) {
    EXPECT_EQ(HexBlock("protocol.md", "keep-alive"), MakeFrame("PLC1", "S0"));
}

TEST(ProtocolPage, TheMessageOfTheWorkedExampleIsTheFrameItSaysItIs) {
    EXPECT_EQ(HexBlock("protocol.md", "message"), MakeFrame("PLC1", "S3||Service begins"));
}

TEST(AlarmFilePage, TheWorkedExampleReadsAsTheAlarmItSaysItIs) {
    const std::string bytes = HexBlock("formats/alarm-file.md", "alarm-file");
    ASSERT_EQ(bytes.size(), 218u);
    const vigrel::testing::cFakeClock clock;
    cVigrelRecieverAlarm alarm(clock, kNoCategorySetting);
    cBinaryReader file(bytes);
    alarm.ReadFromDisk(file);
    EXPECT_TRUE(file.Complete());
    EXPECT_EQ(file.Position(), bytes.size());
    EXPECT_EQ(alarm.SysLogText(), "Active - Fan 3 tripped (Building A/Ventilation//)");
    const DateTime event = DateSerial(2024, 3, 5) + TimeSerial(13, 45, 10);
    EXPECT_EQ(alarm.m_Alarm.m_TimeStampFromSCADA, event);
    EXPECT_EQ(alarm.m_CreatedTime, DateSerial(2024, 3, 5) + TimeSerial(13, 45, 12));
    EXPECT_EQ(alarm.m_Sender, "PLC1");
    EXPECT_EQ(alarm.m_Observed, True16);
    EXPECT_EQ(alarm.m_FileId, 42917);
}

TEST(AlarmFilePage, TheAlarmOfTheWorkedExampleIsWrittenAsItSays) {
    const std::string bytes = HexBlock("formats/alarm-file.md", "alarm-file");
    const vigrel::testing::cFakeClock clock;
    cVigrelRecieverAlarm alarm(clock, kNoCategorySetting);
    cBinaryReader reader(bytes);
    alarm.ReadFromDisk(reader);
    cBinaryWriter writer;
    alarm.WriteToDisk(writer);
    EXPECT_EQ(writer.Bytes(), bytes);
}

// --- configuration.md

using Rows = std::map<std::string, std::string>;  // key -> default

// The tables of keys below each heading: "| `Key` | default | ...". A key "`Icon_`*S*" stands for its states.
std::map<std::string, Rows> ReadKeyTables() {
    std::map<std::string, Rows> tables;
    std::string heading;
    for (const std::string& line : ReadPage("formats/configuration.md")) {
        if (line.starts_with("## ")) heading = line.substr(3);
        if (!line.starts_with("| `")) continue;
        const std::string key = Trim(GetField(line, 1, "|"));
        const std::string defaultValue = Trim(GetField(line, 2, "|"));
        tables[heading][key] = defaultValue;
    }
    return tables;
}

struct cPlaceOfKey {
    std::string heading, key;
};

cPlaceOfKey PlaceOf(const cSettingKey& key) {
    if (key.section != "General" && key.name.starts_with("Column")) {
        return {"Sections of columns", "`" + key.name + "`"};
    }
    for (const auto& category : CategoryKeys()) {
        if (category.name != key.name || key.section != "General") continue;
        const std::size_t state = key.name.rfind('_');
        const bool perState = state != std::string::npos;
        return {"Category keys",
                perState ? "`" + key.name.substr(0, state + 1) + "`*S*" : "`" + key.name + "`"};
    }
    return {"Section `" + key.section + "`", "`" + key.name + "`"};
}

TEST(ConfigurationPage, ListsEveryKeyWithItsDefault) {
    const auto tables = ReadKeyTables();
    for (const auto& key : SettingKeys()) {
        const cPlaceOfKey place = PlaceOf(key);
        const auto table = tables.find(place.heading);
        ASSERT_NE(table, tables.end()) << place.heading;
        const auto row = table->second.find(place.key);
        ASSERT_NE(row, table->second.end()) << place.heading << ": " << place.key;
        EXPECT_EQ(row->second, vigrel::testing::DefaultInWords(key)) << place.key;
    }
}

TEST(ConfigurationPage, ListsNoKeyThatNobodyReads) {
    std::map<std::string, Rows> known;
    for (const auto& key : SettingKeys()) {
        const cPlaceOfKey place = PlaceOf(key);
        known[place.heading][place.key] = key.defaultValue;
    }
    for (const auto& [heading, rows] : ReadKeyTables()) {
        for (const auto& [key, defaultValue] : rows) {
            // The table of columns has keywords, not keys.
            const bool keyword = heading == "Sections of columns" && !key.starts_with("`Column");
            if (!keyword) {
                EXPECT_TRUE(known[heading].contains(key)) << heading << ": " << key;
            }
        }
    }
}

// --- text-file.md: every number of the delivered files

TEST(TextFilePage, TellsWhatEveryNumberIsFor) {
    std::string numbers;
    for (const std::string& line : ReadPage("formats/text-file.md")) {
        if (line.starts_with("| ")) numbers += "," + GetField(line, 1, "|") + ",";
    }
    for (const int id : kTextIds) {
        if (id < 611 || id > 617) {
            EXPECT_NE(numbers.find(" " + std::to_string(id)), std::string::npos) << id;
        }
    }
    EXPECT_NE(numbers.find(" 611 to 617"), std::string::npos);
}

}  // namespace
}  // namespace vigrel::testing
