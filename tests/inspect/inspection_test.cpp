#include "vigrel-inspect/inspect.h"

#include <gtest/gtest.h>

#include <limits>

#include "common/binary.h"
#include "common/printable.h"
#include "definitions/variant.h"
#include "inspect/alarm_samples.h"
#include "support/samples.h"
#include "vigrel-inspect/print.h"

namespace vigrel::testing {
namespace {

using samples::kAlarm;

std::string Problems(const cInspection& inspection) {
    std::string text;
    for (const cProblem& problem : inspection.problems) {
        text += std::to_string(problem.offset) + " " + problem.field + ": " + problem.description + "\n";
    }
    return text;
}

// Nothing but one period on Tuesday, 07:00 to 16:00.
std::string ScheduleBytes() {
    std::string bytes;
    for (int day = 0; day < 23; ++day) {
        bytes += testing::Bytes(day == 1 ? "FF FF 00 00 01 00 A4 01 C0 03 01 00" : "00 00 00 00 00 00 00 00");
    }
    return bytes + testing::Bytes("00 00");
}

TEST(Inspection, AnAlarmShowsEveryFieldWithItsPlace) {
    EXPECT_EQ(InspectionText("A0042917.alm", Inspect(eFileKind::Alarm, "A0042917.alm", kAlarm)),
              "A0042917.alm: alarm, 193 bytes\n"
              "  byte    field                      value\n"
              "  0       time at source             2026-03-15 12:00:00\n"
              "  8       time at PC                 2026-03-15 12:30:15\n"
              "  16      event id                   12\n"
              "  20      status                     1\n"
              "  22      t0                         \"Pump1\"\n"
              "  29      t1                         \"A\"\n"
              "  32      t2 (category)              \"Fire\"\n"
              "  38      t3                         \"\"\n"
              "  40      t4                         \"\"\n"
              "  42      t5                         \"\"\n"
              "  44      sequence receivers         \"\"\n"
              "  46      sequence receiver confirm  \"\"\n"
              "  48      sequence numbers           0\n"
              "  50      parallel receivers         \"\"\n"
              "  52      parallel numbers           0\n"
              "  54      alarm spare 1              \"\"\n"
              "  56      alarm spare 2              \"\"\n"
              "  58      alarm spare 3              \"\"\n"
              "  60      alarm spare 4              \"\"\n"
              "  62      alarm spare 5              \"\"\n"
              "  64      alarm spare 6              \"\"\n"
              "  66      alarm spare 7              \"\"\n"
              "  68      alarm spare 8              \"\"\n"
              "  70      alarm spare 9              \"\"\n"
              "  72      alarm spare 10             \"\"\n"
              "  74      alarm reserved             40 bytes\n"
              "  114     sender                     \"\xC3\x96st\"\n"
              "  119     observed                   no\n"
              "  121     created                    2026-03-15 12:30:15\n"
              "  129     file id                    42917\n"
              "  133     wrapper spare 1            \"\"\n"
              "  135     wrapper spare 2            \"\"\n"
              "  137     wrapper spare 3            \"\"\n"
              "  139     wrapper spare 4            \"\"\n"
              "  141     wrapper spare 5            \"\"\n"
              "  143     wrapper spare 6            \"\"\n"
              "  145     wrapper spare 7            \"\"\n"
              "  147     wrapper spare 8            \"\"\n"
              "  149     wrapper spare 9            \"\"\n"
              "  151     wrapper spare 10           \"\"\n"
              "  153     wrapper reserved           40 bytes\n"
              "  Everything fits.\n");
}

TEST(Inspection, WhatDoesntFitAnAlarmIsNamedWithItsPlace) {
    std::string bytes = kAlarm + "xy";
    bytes[20] = 9;        // status
    bytes[7] = 0x7F;      // the exponent of the source time
    bytes[100] = 1;       // reserved
    bytes[119] = 3;       // observed
    bytes[130] = '\x01';  // file id
    EXPECT_EQ(Problems(Inspect(eFileKind::Alarm, "A0042917.alm", bytes)),
              "0 time at source: this is no date of the years 100 to 9999\n"
              "20 status: 9 is not in 0 to 3\n"
              "74 alarm reserved: byte 100 is not zero\n"
              "119 observed: 3 is neither -1 nor 0\n"
              "129 file id: the name of the file says 42917\n"
              "193 : 2 bytes lie behind the last field\n");
}

TEST(Inspection, ReceiversOfEveryVersionFit) {
    for (const int version : {3, 4, 5}) {
        const std::string bytes = Sample("receiver_version_" + std::to_string(version) + ".dat");
        const cInspection inspection = Inspect(eFileKind::Receiver, "Receiver_0007.dat", bytes);
        EXPECT_EQ(inspection.version, version);
        EXPECT_EQ(Problems(inspection), "") << version;
        const cField& last = inspection.fields.back();
        EXPECT_EQ(last.offset + last.size, bytes.size());
    }
}

TEST(Inspection, ProfilesOfEveryVersionFit) {
    for (const int version : {4, 5}) {
        const std::string bytes = Sample("profile_version_" + std::to_string(version) + ".dat");
        const cInspection inspection = Inspect(eFileKind::Profile, "Profile_0012.dat", bytes);
        EXPECT_EQ(inspection.version, version);
        EXPECT_EQ(Problems(inspection), "") << version;
        const cField& last = inspection.fields.back();
        EXPECT_EQ(last.name, "use calendar");
        EXPECT_EQ(last.offset + last.size, bytes.size());
    }
}

// The names of the fields of a file, joined by "; ".
std::string FieldNames(eFileKind kind, const std::string& sample) {
    std::string names;
    for (const cField& field : Inspect(kind, "x", Sample(sample)).fields) {
        if (field.name.starts_with("Monday")) break;
        names += (names.empty() ? "" : "; ") + field.name;
    }
    return names;
}

TEST(Inspection, EveryFieldOfADefinitionIsNamed) {
    EXPECT_EQ(
        FieldNames(eFileKind::Receiver, "receiver_version_4.dat"),
        "version; identity; enabled; type id; name; setting 0 (text); setting 1 (text); setting 2 (null); "
        "setting 3 (whole number (8 bits)); reserved; parallel numbers; unread 1; unread 2; unread 3; unread "
        "4");
    EXPECT_EQ(FieldNames(eFileKind::Receiver, "receiver_version_5.dat"),
              "version; identity; enabled; type id; name; setting 0 (whole number (32 bits)); setting 1 "
              "(number (double)); "
              "setting 2 (currency); setting 3 (date); reserved; parallel numbers; saved at; filler");
    std::string profile =
        "version; reserved 1; enabled; name; state 0; state 1; state 2; use schedule; reserved 2; parallel "
        "receivers; "
        "sequential receivers; condition 0; condition 1; condition 2; condition 3; condition 4; condition 5; "
        "view day type; view time axis; use external tag; external tag; ignore tag in other profiles; use "
        "external file; "
        "external file; external file text; scan specific systems";
    for (int i = 0; i < 64; ++i) profile += "; system " + std::to_string(i);
    EXPECT_EQ(FieldNames(eFileKind::Profile, "profile_version_4.dat"), profile);
    EXPECT_EQ(FieldNames(eFileKind::Profile, "profile_version_5.dat"),
              profile + "; off duty alarm behaviour; saved at; filler");
}

TEST(Inspection, TheFieldsOfADayTypeAreNamed) {
    std::string names;
    for (const cField& field : Inspect(eFileKind::Schedule, "s", ScheduleBytes()).fields)
        names += field.name + "; ";
    EXPECT_TRUE(names.starts_with(
        "Monday active; Monday grouped; Monday periods; Monday axis; Tuesday active; Tuesday grouped; "
        "Tuesday periods; Tuesday period 1 start; Tuesday period 1 stop; Tuesday axis; Wednesday active; "));
    EXPECT_NE(names.find("; Sunday axis; special day 1 active; special day 1 grouped; special day 1 periods; "
                         "special day 1 axis; special day 2 active; "),
              std::string::npos);
    EXPECT_TRUE(names.ends_with("special day 16 axis; use calendar; "));
}

TEST(Inspection, AReceiverShowsTheTypesOfItsSettings) {
    EXPECT_EQ(InspectionText("r", Inspect(eFileKind::Receiver, "r", Sample("receiver_version_3.dat"))),
              "r: receiver, version 3, 30 bytes\n"
              "  byte    field                               value\n"
              "  0       version                             3\n"
              "  2       type id                             7\n"
              "  6       name                                \"Duty1\"\n"
              "  13      setting 0 (text)                    \"COM\"\n"
              "  20      setting 1 (whole number (16 bits))  60\n"
              "  24      setting 2 (empty)                   -\n"
              "  26      setting 3 (yes or no)               yes\n"
              "  Everything fits.\n");
}

TEST(Inspection, AnUnknownVersionOrSettingTypeIsNamed) {
    std::string bytes = Sample("receiver_version_5.dat");
    bytes[0] = 6;
    EXPECT_EQ(Problems(Inspect(eFileKind::Receiver, "Receiver_0007.dat", bytes)),
              "0 version: version 6 is not known; known are 3 to 5\n");
    bytes[0] = 5;
    bytes[13] = 99;
    EXPECT_EQ(Problems(Inspect(eFileKind::Receiver, "Receiver_0008.dat", bytes)),
              "2 identity: the name of the file says 8\n"
              "13 setting 0: a value has the unknown type code 99\n");
}

// A receiver of version 3 whose first setting holds the value.
std::string ReceiverWith(const cVariant& setting) {
    cBinaryWriter file;
    file.Int16(3);
    file.Int32(7);
    file.String("Duty1");
    setting.Write(file);
    for (int i = 1; i < 4; ++i) cVariant().Write(file);
    return file.Bytes();
}

std::string ProblemsOf(const std::string& receiver) {
    return Problems(Inspect(eFileKind::Receiver, "r", receiver));
}

TEST(Inspection, AValueThatItsTypeDoesNotHaveIsNamed) {
    std::string flag = ReceiverWith(cVariant::Boolean(true));
    EXPECT_EQ(ProblemsOf(flag), "");
    flag[15] = 1;
    flag[16] = 0;
    EXPECT_EQ(ProblemsOf(flag), "13 setting 0 (yes or no): 1 is neither -1 nor 0\n");
    EXPECT_EQ(ProblemsOf(ReceiverWith(cVariant::Date(45000.5))), "");
    EXPECT_EQ(ProblemsOf(ReceiverWith(cVariant::Date(1e9))),
              "13 setting 0 (date): this is no date of the years 100 to 9999\n");
    constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(ProblemsOf(ReceiverWith(cVariant::Double(1.5))), "");
    EXPECT_EQ(ProblemsOf(ReceiverWith(cVariant::Double(kNone))),
              "13 setting 0 (number (double)): this is no number\n");
    EXPECT_EQ(ProblemsOf(ReceiverWith(cVariant::Single(std::numeric_limits<float>::infinity()))),
              "13 setting 0 (number (single)): this is no number\n");
}

TEST(Inspection, ASchedulesPeriodsAreChecked) {
    std::string bytes = ScheduleBytes();
    EXPECT_EQ(Problems(Inspect(eFileKind::Schedule, "s", bytes)), "");
    bytes.replace(14, 4, testing::Bytes("00 05 01 03"));
    EXPECT_EQ(Problems(Inspect(eFileKind::Schedule, "s", bytes)),
              "16 Tuesday period 1 stop: the period stops before it starts\n");
    bytes.replace(14, 4, testing::Bytes("00 06 01 03"));
    EXPECT_EQ(Problems(Inspect(eFileKind::Schedule, "s", bytes)),
              "14 Tuesday period 1 start: 1536 is not in 0 to 1440\n"
              "16 Tuesday period 1 stop: the period stops before it starts\n");
}

TEST(Inspection, ACalendarShowsTheDaysThatHaveATypeOfTheirOwn) {
    std::string bytes(29220, '\0');
    bytes[0] = 8;       // 2000-01-01
    bytes[29218] = 24;  // 2039-12-31
    EXPECT_EQ(InspectionText("c", Inspect(eFileKind::Calendar, "c", bytes)),
              "c: calendar, 29220 bytes\n"
              "  byte    field                       value\n"
              "  0       2000-01-01 (special day 1)  8\n"
              "  29218   2039-12-31                  24\n"
              "  What does not fit:\n"
              "    byte 29218, 2039-12-31: 24 is not in 0 to 23\n");
    EXPECT_EQ(Problems(Inspect(eFileKind::Calendar, "c", std::string(101, '\0'))),
              "100 : the file ends at day 50 of 14610\n");
}

TEST(Inspection, AFileCutAtAnyLengthNamesTheFieldThatItEndsIn) {
    const std::pair<eFileKind, std::string> files[] = {
        {eFileKind::Alarm, kAlarm},
        {eFileKind::Receiver, Sample("receiver_version_3.dat")},
        {eFileKind::Receiver, Sample("receiver_version_4.dat")},
        {eFileKind::Schedule, ScheduleBytes()}};
    for (const auto& [kind, bytes] : files) {
        for (std::size_t length = 0; length < bytes.size(); ++length) {
            const auto problems = Inspect(kind, "x", bytes.substr(0, length)).problems;
            ASSERT_EQ(problems.size(), 1u) << length;
            EXPECT_EQ(problems[0].description, "the file ends inside this field") << length;
            EXPECT_NE(problems[0].field, "");
        }
    }
}

TEST(Inspection, FlippedBytesNeverReadBeyondTheFile) {
    for (const eFileKind kind :
         {eFileKind::Alarm, eFileKind::Receiver, eFileKind::Profile, eFileKind::Schedule}) {
        for (const std::string& bytes : {kAlarm, Sample("receiver_version_4.dat"), ScheduleBytes()}) {
            for (std::size_t place = 0; place < bytes.size(); ++place) {
                std::string flipped = bytes;
                flipped[place] = static_cast<char>(~flipped[place]);
                for (const cField& field : Inspect(kind, "x", flipped).fields) {
                    ASSERT_LE(field.offset + field.size, bytes.size());
                }
            }
        }
    }
}

TEST(KindOfFile, IsToldByNameSizeOrForm) {
    EXPECT_EQ(KindOfFile("A0042917.ALM", ""), eFileKind::Alarm);
    EXPECT_EQ(KindOfFile("receiver_0007.dat", ""), eFileKind::Receiver);
    EXPECT_EQ(KindOfFile("Profile_0007.dat", ""), eFileKind::Profile);
    EXPECT_EQ(KindOfFile("days.dat", std::string(29220, '\0')), eFileKind::Calendar);
    EXPECT_EQ(KindOfFile("week.bin", ScheduleBytes()), eFileKind::Schedule);
    EXPECT_EQ(KindOfFile("week.bin", ScheduleBytes() + "x"), std::nullopt);
    EXPECT_EQ(KindFromWord("Calendar"), eFileKind::Calendar);
    EXPECT_EQ(KindFromWord("files"), std::nullopt);
}

TEST(Printable, ControlCharactersBecomeEscapes) {
    EXPECT_EQ(Printable("a\x1B[2J\n\r\t\x7F\x90\x80\xE5"),
              "a\\x1B[2J\\n\\r\\t\\x7F\\x90\xE2\x82\xAC\xC3\xA5");
}

TEST(InspectionJson, IsOneObjectWithFieldsAndProblems) {
    cInspection inspection{"alarm", 5, 20, {}, {}};
    inspection.fields = {{"a \"b\"", 0, 2, std::int64_t{-3}}, {"c", 2, 8, 0.5},           {"d", 10, 2, true},
                         {"e", 12, 2, std::string("\xE5\n")}, {"f", 14, 4, cDateValue{}}, {"g", 18, 2, {}}};
    inspection.problems = {{3, "c", "odd"}, {20, "", "more"}};
    EXPECT_EQ(InspectionJson("x.alm", inspection),
              "{\n"
              "  \"file\": \"x.alm\",\n"
              "  \"kind\": \"alarm\",\n"
              "  \"version\": 5,\n"
              "  \"size\": 20,\n"
              "  \"fields\": [\n"
              "    {\"name\": \"a \\\"b\\\"\", \"offset\": 0, \"size\": 2, \"value\": -3},\n"
              "    {\"name\": \"c\", \"offset\": 2, \"size\": 8, \"value\": 0.5},\n"
              "    {\"name\": \"d\", \"offset\": 10, \"size\": 2, \"value\": true},\n"
              "    {\"name\": \"e\", \"offset\": 12, \"size\": 2, \"value\": \"\xC3\xA5\\u000A\"},\n"
              "    {\"name\": \"f\", \"offset\": 14, \"size\": 4, \"value\": \"1899-12-30 00:00:00\"},\n"
              "    {\"name\": \"g\", \"offset\": 18, \"size\": 2, \"value\": null}\n"
              "  ],\n"
              "  \"problems\": [\n"
              "    {\"offset\": 3, \"field\": \"c\", \"description\": \"odd\"},\n"
              "    {\"offset\": 20, \"field\": null, \"description\": \"more\"}\n"
              "  ]\n"
              "}");
}

TEST(InspectionJson, ANumberThatIsNoneIsNull) {
    cInspection inspection{"receiver", 5, 24, {}, {}};
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    inspection.fields = {{"a", 0, 8, std::numeric_limits<double>::quiet_NaN()},
                         {"b", 8, 8, kInfinity},
                         {"c", 16, 8, -kInfinity}};
    const std::string json = InspectionJson("x", inspection);
    for (const char* name : {"a", "b", "c"}) {
        const std::size_t field = json.find(std::string("\"name\": \"") + name + "\"");
        const std::size_t value = json.find("\"value\": ", field);
        EXPECT_TRUE(json.substr(value).starts_with("\"value\": null}")) << name;
    }
}

}  // namespace
}  // namespace vigrel::testing
