#include "common/binary.h"

#include <gtest/gtest.h>

#include "common/failure.h"

namespace vigrel::testing {
namespace {

using namespace std::string_literals;

// One value of each kind, and what its bytes must be.
const std::string kSample =
    "\xFE\xFF"s                          // 16-bit -2
    "\x04\x03\x02\x01"s                  // 32-bit 0x01020304
    "\x00\x00\x00\x00\x00\x00\xF8\x3F"s  // 1.5
    "\x03\x00"
    "abc"s           // string
    "\x00\x00"s      // empty string
    "\x00\x00\x00"s  // three zeros
    "xy"s;           // raw

struct cSample {
    std::int16_t int16 = 0;
    std::int32_t int32 = 0;
    double number = 0;
    std::string text, empty;
};

cSample ReadSample(cBinaryReader& reader) {
    cSample sample;
    sample.int16 = reader.Int16();
    sample.int32 = reader.Int32();
    sample.number = reader.Double();
    sample.text = reader.String();
    sample.empty = reader.String();
    reader.Skip(5);
    return sample;
}

TEST(BinaryWriter, WritesLittleEndianValuesBackToBack) {
    cBinaryWriter writer;
    writer.Int16(-2);
    writer.Int32(0x01020304);
    writer.Double(1.5);
    writer.String("abc");
    writer.String("");
    writer.Zeros(3);
    writer.Raw("xy");
    EXPECT_EQ(writer.Bytes(), kSample);
}

TEST(BinaryReader, ReadsWhatTheWriterWrites) {
    cBinaryReader reader(kSample);
    const cSample sample = ReadSample(reader);
    EXPECT_EQ(sample.int16, -2);
    EXPECT_EQ(sample.int32, 0x01020304);
    EXPECT_EQ(sample.number, 1.5);
    EXPECT_EQ(sample.text, "abc");
    EXPECT_EQ(sample.empty, "");
    EXPECT_TRUE(reader.Complete());
    EXPECT_EQ(reader.Position(), kSample.size());
    EXPECT_EQ(reader.Size(), kSample.size());
}

TEST(BinaryReader, TruncatedAtAnyLengthItReadsZerosAndSaysSo) {
    for (std::size_t length = 0; length < kSample.size(); ++length) {
        SCOPED_TRACE(length);
        std::string cut = kSample.substr(0, length);
        cBinaryReader reader(cut);
        const cSample sample = ReadSample(reader);
        EXPECT_FALSE(reader.Complete());
        // The numbers are those of the file with zeros behind it; the text is what there is of it.
        cBinaryReader filled(cut.append(kSample.size() - length, '\0'));
        const cSample expected = ReadSample(filled);
        EXPECT_EQ(sample.int16, expected.int16);
        EXPECT_EQ(sample.int32, expected.int32);
        EXPECT_EQ(sample.number, expected.number);
        EXPECT_EQ(sample.text, std::string("abc").substr(0, length < 16 ? 0 : length - 16));
        EXPECT_EQ(sample.empty, "");
    }
}

TEST(BinaryReader, AStringLongerThanTheFileIsCutShort) {
    cBinaryReader reader(
        "\xFF\xFF"
        "abc");
    EXPECT_EQ(reader.String(), "abc");
    EXPECT_FALSE(reader.Complete());
    EXPECT_EQ(reader.Int16(), 0);
}

TEST(BinaryReader, SeekAndSkipMayLeaveTheFile) {
    cBinaryReader reader("abcd");
    reader.Seek(2);
    EXPECT_EQ(reader.Int16(), 0x6463);
    reader.Seek(100);
    EXPECT_EQ(reader.String(), "");
    EXPECT_FALSE(reader.Complete());
}

TEST(BinaryWriter, AStringOf65535BytesIsTheLongest) {
    cBinaryWriter writer;
    const std::string longest(65535, 'x');
    writer.String(longest);
    cBinaryReader reader(writer.Bytes());
    EXPECT_EQ(reader.String(), longest);
    EXPECT_THROW(writer.String(longest + "x"), cFailure);
    EXPECT_EQ(writer.Bytes().size(), 65537u);
}

TEST(BinaryWriter, DoublesKeepEveryBit) {
    for (const double value : {0.0, -0.0, 46096.52, -1e-300, 1e300}) {
        cBinaryWriter writer;
        writer.Double(value);
        EXPECT_EQ(cBinaryReader(writer.Bytes()).Double(), value);
    }
}

}  // namespace
}  // namespace vigrel::testing
