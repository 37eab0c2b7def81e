#include "common/setting_keys.h"

#include <gtest/gtest.h>

#include "common/failure.h"
#include "support/fake_files.h"

namespace vigrel::testing {
namespace {

const cSettingKey& Key(std::string_view section, std::string_view name) {
    const cSettingKey* key = FindSettingKey(section, name);
    if (key == nullptr) throw cFailure(eFailure::InvalidCall, "no key " + std::string(name));
    return *key;
}

TEST(SettingKeys, AKeyIsFoundInItsSectionInAnyCase) {
    EXPECT_EQ(Key("General", "MaxEvents").defaultValue, "1000");
    EXPECT_EQ(Key("gENERAL", "maxevents").defaultValue, "1000");
    EXPECT_EQ(FindSettingKey("TCPIP", "MaxEvents"), nullptr);
    EXPECT_EQ(FindSettingKey("General", "MaxEvent"), nullptr);
    EXPECT_EQ(FindSettingKey("Elsewhere", "Port"), nullptr);
}

TEST(SettingKeys, OneNameIsAnotherKeyInAnotherSection) {
    EXPECT_EQ(Key("Printer", "Port").defaultValue, "1");
    EXPECT_EQ(Key("Printer", "Port").kind, eValueKind::Int16);
    EXPECT_EQ(Key("TCPIP", "Port").defaultValue, "12412");
    EXPECT_EQ(Key("TCPIP", "Port").kind, eValueKind::Int32);
}

TEST(SettingKeys, ACategorysSectionHasTheCategorysKeysAndNoOthers) {
    EXPECT_TRUE(IsCategorySection("CategorySpecificSetting_Fire"));
    EXPECT_TRUE(IsCategorySection("categoryspecificsetting_"));
    EXPECT_FALSE(IsCategorySection("CategorySpecificSetting"));
    EXPECT_FALSE(IsCategorySection("General"));
    EXPECT_EQ(Key("categoryspecificsetting_ fire", "EVENTSIGNAL").name, "EventSignal");
    EXPECT_EQ(Key("General", "EventSignal").name, "EventSignal");
    EXPECT_EQ(FindSettingKey("CategorySpecificSetting_Fire", "MaxEvents"), nullptr);
}

TEST(SettingReader, AnUnknownKeyIsAFaultOfTheReader) {
    cFakeFiles files;
    files.Put("C:\\App\\VigrelReceiver.INI", "[General]\r\nMaxEvent=1\r\nMaxDays=7.5\r\n");
    const cIni ini(files, "C:\\App\\");
    const cSettingReader general(ini, "General");
    EXPECT_EQ(general.Int32("MaxDays"), 8);
    EXPECT_EQ(general.Text("Object"), "none");
    const auto failure = CatchFailure([&] { general.Text("MaxEvent"); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->Number(), eFailure::InvalidCall);
    EXPECT_STREQ(failure->what(), "no key MaxEvent is known in section General");
}

}  // namespace
}  // namespace vigrel::testing
