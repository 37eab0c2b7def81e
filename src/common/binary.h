#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vigrel {

// A Boolean as files and records hold it: 16 bits, -1 true and 0 false. Anything but 0 read from a file is
// true.
using Boolean16 = std::int16_t;
constexpr Boolean16 True16 = -1;
constexpr Boolean16 False16 = 0;

// Binary files hold raw little-endian values back to back, without padding. A string is an unsigned 16-bit
// count of bytes and the bytes.
class cBinaryWriter {
  public:
    void Byte(std::uint8_t value);
    void Int16(std::int16_t value);
    void Int32(std::int32_t value);
    void Int64(std::int64_t value);
    void Single(float value);   // IEEE 754, 4 bytes
    void Double(double value);  // IEEE 754, 8 bytes
    // A string of more than 65,535 bytes throws cFailure (Overflow).
    void String(std::string_view text);
    void Raw(std::string_view bytes) { m_Bytes.append(bytes); }
    void Zeros(std::size_t count) { m_Bytes.append(count, '\0'); }
    const std::string& Bytes() const { return m_Bytes; }

  private:
    void Integer(std::uint64_t value, int bytes);
    std::string m_Bytes;
};

// Reads what cBinaryWriter writes. What lies behind the end reads as zero; a string that is cut short reads
// as the bytes there are, filled up with nothing.
class cBinaryReader {
  public:
    explicit cBinaryReader(std::string_view bytes) : m_Bytes(bytes) {}
    std::uint8_t Byte() { return static_cast<std::uint8_t>(Integer(1)); }
    std::int16_t Int16() { return static_cast<std::int16_t>(Integer(2)); }
    std::int32_t Int32() { return static_cast<std::int32_t>(Integer(4)); }
    std::int64_t Int64() { return static_cast<std::int64_t>(Integer(8)); }
    float Single();
    double Double();
    std::string String();
    void Skip(std::size_t count);
    // Whether everything read so far was there.
    bool Complete() const { return m_Complete; }
    std::size_t Position() const { return m_Position; }
    void Seek(std::size_t position) { m_Position = position; }
    std::size_t Size() const { return m_Bytes.size(); }

  private:
    std::uint64_t Integer(int bytes);
    std::string_view m_Bytes;
    std::size_t m_Position = 0;
    bool m_Complete = true;
};

}  // namespace vigrel
