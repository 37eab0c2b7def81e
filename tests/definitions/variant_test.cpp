#include "definitions/variant.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <utility>

#include "common/failure.h"
#include "common/numbers.h"
#include "support/bytes.h"

namespace vigrel::testing {
namespace {

struct cForm {
    const char* name;
    cVariant value;
    eVariantType type;
    std::string bytes;
    std::string text;
};

const cForm kForms[] = {
    {"empty", cVariant(), eVariantType::Empty, Bytes("00 00"), ""},
    {"null", cVariant::Null(), eVariantType::Null, Bytes("01 00"), ""},
    {"16 bits", cVariant::Int16(-2), eVariantType::Int16, Bytes("02 00 FE FF"), "-2"},
    {"32 bits", cVariant::Int32(100000), eVariantType::Int32, Bytes("03 00 A0 86 01 00"), "100000"},
    {"single", cVariant::Single(0.5f), eVariantType::Single, Bytes("04 00 00 00 00 3F"), "0.5"},
    {"double", cVariant::Double(2.5), eVariantType::Double, Bytes("05 00 00 00 00 00 00 00 04 40"), "2.5"},
    {"currency", cVariant::Currency(-1234500), eVariantType::Currency, Bytes("06 00 BC 29 ED FF FF FF FF FF"),
     "-123.45"},
    {"date", cVariant::Date(46096.5), eVariantType::Date, Bytes("07 00 00 00 00 00 10 82 E6 40"),
     "2026-03-15 12:00:00"},
    {"text",
     cVariant::String("\xC5"
                      "b"),
     eVariantType::String, Bytes("08 00 02 00 C5 62"),
     "\xC5"
     "b"},
    {"true", cVariant::Boolean(true), eVariantType::Boolean, Bytes("0B 00 FF FF"), "True"},
    {"false", cVariant::Boolean(false), eVariantType::Boolean, Bytes("0B 00 00 00"), "False"},
    {"byte", cVariant::Byte(200), eVariantType::Byte, Bytes("11 00 C8"), "200"},
};

TEST(Variant, EveryTypeIsWrittenAsItsCodeThenItsValue) {
    for (const cForm& form : kForms) {
        cBinaryWriter file;
        form.value.Write(file);
        EXPECT_EQ(file.Bytes(), form.bytes) << form.name;
    }
}

TEST(Variant, EveryTypeIsReadBackEqual) {
    for (const cForm& form : kForms) {
        cBinaryReader file(form.bytes);
        const cVariant value = cVariant::Read(file);
        EXPECT_EQ(value, form.value) << form.name;
        EXPECT_EQ(value.Type(), form.type) << form.name;
        EXPECT_EQ(file.Position(), form.bytes.size()) << form.name;
        EXPECT_TRUE(file.Complete()) << form.name;
    }
}

TEST(Variant, NoTwoFormsAreEqual) {
    for (const cForm& a : kForms) {
        for (const cForm& b : kForms) EXPECT_EQ(a.value == b.value, &a == &b) << a.name << ", " << b.name;
    }
}

TEST(Variant, AnUnknownTypeCodeIsAFailureThatNamesTheCode) {
    for (const int code : {9, 10, 12, 13, 14, 16, 18, 36, 8192, -1}) {
        cBinaryWriter file;
        file.Int16(static_cast<std::int16_t>(code));
        cBinaryReader reader(file.Bytes());
        try {
            cVariant::Read(reader);
            FAIL() << code;
        } catch (const cFailure& failure) {
            EXPECT_EQ(failure.Number(), eFailure::TypeMismatch);
            EXPECT_NE(std::string(failure.what()).find(std::to_string(code)), std::string::npos);
        }
    }
}

TEST(Variant, AValueCutAtAnyLengthLeavesTheReaderIncomplete) {
    for (const cForm& form : kForms) {
        for (std::size_t length = 0; length < form.bytes.size(); ++length) {
            cBinaryReader file(std::string_view(form.bytes).substr(0, length));
            const auto failure = CatchFailure([&] { cVariant::Read(file); });
            EXPECT_TRUE(failure || !file.Complete()) << form.name << " cut at " << length;
        }
    }
}

TEST(Variant, ATextOfMoreThan65535BytesCantBeWritten) {
    cBinaryWriter file;
    cVariant::String(std::string(65535, 'x')).Write(file);
    EXPECT_EQ(file.Bytes().size(), 65539u);
    EXPECT_THROW(cVariant::String(std::string(65536, 'x')).Write(file), cFailure);
    EXPECT_EQ(cVariant::String(std::string(65536, 'x')), cVariant::String(std::string(65536, 'x')));
}

TEST(Variant, ANumberThatIsNoneStillEqualsItself) {
    const double none = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(cVariant::Double(none), cVariant::Double(none));
}

TEST(Variant, ATrueOfAnotherBitPatternKeepsIt) {
    const std::string bytes = Bytes("0B 00 01 00");
    cBinaryReader file(bytes);
    const cVariant value = cVariant::Read(file);
    EXPECT_EQ(value.Text(), "True");
    cBinaryWriter written;
    value.Write(written);
    EXPECT_EQ(written.Bytes(), bytes);
}

TEST(Variant, NumberTellsWhatIsNumeric) {
    EXPECT_EQ(cVariant().Number(), 0);
    EXPECT_EQ(cVariant::Null().Number(), std::nullopt);
    EXPECT_EQ(cVariant::Int16(-2).Number(), -2);
    EXPECT_EQ(cVariant::Currency(1234500).Number(), 123.45);
    EXPECT_EQ(cVariant::Date(46096.5).Number(), std::nullopt);
    EXPECT_EQ(cVariant::String(" 60 ").Number(), 60);
    EXPECT_EQ(cVariant::String("60 s").Number(), std::nullopt);
    EXPECT_EQ(cVariant::String("").Number(), std::nullopt);
    EXPECT_EQ(cVariant::Boolean(true).Number(), -1);
    EXPECT_EQ(cVariant::Byte(200).Number(), 200);
}

TEST(Variant, TheTextOfEveryTypeReadsBack) {
    for (const cForm& form : kForms) {
        EXPECT_EQ(form.value.Text(), form.text) << form.name;
        EXPECT_EQ(VariantFromText(form.type, form.text), form.value) << form.name;
    }
}

TEST(Variant, TheLargestCurrencyHasItsText) {
    EXPECT_EQ(cVariant::Currency(std::numeric_limits<std::int64_t>::min()).Text(), "-922337203685477.5808");
    EXPECT_EQ(cVariant::Currency(5).Text(), "0.0005");
    EXPECT_EQ(cVariant::Currency(-70000).Text(), "-7");
    EXPECT_EQ(cVariant::Currency(-5000).Text(), "-0.5");
    EXPECT_EQ(cVariant::Currency(100100).Text(), "10.01");
    EXPECT_EQ(cVariant::Currency(0).Text(), "0");
}

TEST(Variant, ADateOutsideTheCalendarShowsItsDayCount) {
    EXPECT_EQ(cVariant::Date(1e9).Text(), "1000000000");
}

TEST(VariantFromText, TheLargestNumberOfEachTypeFits) {
    const std::pair<eVariantType, const char*> largest[] = {{eVariantType::Int16, "32767"},
                                                            {eVariantType::Int16, "-32768"},
                                                            {eVariantType::Byte, "255"},
                                                            {eVariantType::Int32, "2147483647"},
                                                            {eVariantType::Currency, "899999999999.9999"},
                                                            {eVariantType::Currency, "-899999999999.9999"}};
    for (const auto& [type, text] : largest) EXPECT_EQ(VariantFromText(type, text).Text(), text);
    constexpr float kLargest = std::numeric_limits<float>::max();
    for (const float value : {kLargest, -kLargest}) {
        EXPECT_EQ(VariantFromText(eVariantType::Single, NumberText(value)), cVariant::Single(value));
    }
}

TEST(VariantFromText, YesAndNoHaveSeveralWords) {
    for (const char* word : {"True", "yes", "YES", "1", "-1"}) {
        EXPECT_EQ(VariantFromText(eVariantType::Boolean, word), cVariant::Boolean(true)) << word;
    }
    for (const char* word : {"False", "no", "NO", "0"}) {
        EXPECT_EQ(VariantFromText(eVariantType::Boolean, word), cVariant::Boolean(false)) << word;
    }
}

TEST(VariantFromText, ATextThatDoesntFitItsTypeIsRefusedByName) {
    const struct {
        eVariantType type;
        const char* text;
    } refused[] = {
        {eVariantType::Int16, "abc"},
        {eVariantType::Int16, "1.5"},
        {eVariantType::Int16, "40000"},
        {eVariantType::Int32, "3e9"},
        {eVariantType::Byte, "-1"},
        {eVariantType::Byte, "256"},
        {eVariantType::Single, "1e39"},
        {eVariantType::Double, "12 kg"},
        {eVariantType::Currency, "1e15"},
        {eVariantType::Date, "yesterday"},
        {eVariantType::Boolean, "2"},
        {eVariantType::Empty, "x"},
        {eVariantType::Currency, "-1e15"},
        {eVariantType::Currency, "900000000000"},
        {eVariantType::Currency, "-900000000000"},
        {eVariantType::Single, "-1e39"},
    };
    for (const auto& entry : refused) {
        const auto failure = CatchFailure([&] { VariantFromText(entry.type, entry.text); });
        ASSERT_TRUE(failure) << entry.text;
        EXPECT_NE(std::string(failure->what()), "") << entry.text;
    }
}

TEST(VariantTypePhrase, NamesEveryTypeAndWhatIsNone) {
    const std::pair<eVariantType, const char*> names[] = {{eVariantType::Empty, "empty"},
                                                          {eVariantType::Null, "null"},
                                                          {eVariantType::Int16, "whole number (16 bits)"},
                                                          {eVariantType::Int32, "whole number (32 bits)"},
                                                          {eVariantType::Single, "number (single)"},
                                                          {eVariantType::Double, "number (double)"},
                                                          {eVariantType::Currency, "currency"},
                                                          {eVariantType::Date, "date"},
                                                          {eVariantType::String, "text"},
                                                          {eVariantType::Boolean, "yes or no"},
                                                          {eVariantType::Byte, "whole number (8 bits)"},
                                                          {static_cast<eVariantType>(9), "unknown"}};
    for (const auto& [type, name] : names) EXPECT_EQ(VariantTypePhrase(type).English(), name);
}

TEST(VariantFromText, ARefusalNamesTheTextAndTheType) {
    const auto failure = CatchFailure([] { VariantFromText(eVariantType::Byte, "abc"); });
    ASSERT_TRUE(failure);
    EXPECT_NE(std::string(failure->what()).find("\"abc\""), std::string::npos) << failure->what();
    EXPECT_NE(std::string(failure->what()).find("whole number (8 bits)"), std::string::npos);
}

TEST(VariantFromText, BlanksAroundANumberDontMatter) {
    EXPECT_EQ(VariantFromText(eVariantType::Int32, " 17 "), cVariant::Int32(17));
    EXPECT_EQ(VariantFromText(eVariantType::String, " 17 "), cVariant::String(" 17 "));
    EXPECT_EQ(VariantFromText(eVariantType::Int32, "  "), cVariant());
}

}  // namespace
}  // namespace vigrel::testing
