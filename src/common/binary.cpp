#include "common/binary.h"

#include <algorithm>
#include <bit>

#include "common/failure.h"

namespace vigrel {

void cBinaryWriter::Integer(std::uint64_t value, int bytes) {
    for (int i = 0; i < bytes; ++i) m_Bytes.push_back(static_cast<char>(value >> (8 * i) & 0xFF));
}

void cBinaryWriter::Byte(std::uint8_t value) {
    Integer(value, 1);
}
void cBinaryWriter::Int16(std::int16_t value) {
    Integer(static_cast<std::uint16_t>(value), 2);
}
void cBinaryWriter::Int32(std::int32_t value) {
    Integer(static_cast<std::uint32_t>(value), 4);
}
void cBinaryWriter::Int64(std::int64_t value) {
    Integer(static_cast<std::uint64_t>(value), 8);
}
void cBinaryWriter::Single(float value) {
    Integer(std::bit_cast<std::uint32_t>(value), 4);
}
void cBinaryWriter::Double(double value) {
    Integer(std::bit_cast<std::uint64_t>(value), 8);
}

void cBinaryWriter::String(std::string_view text) {
    if (text.size() > 0xFFFF)
        throw cFailure(eFailure::Overflow,
                       Pattern("Reasons", "a text of more than 65535 bytes can't be stored"));
    Integer(text.size(), 2);
    m_Bytes.append(text);
}

std::uint64_t cBinaryReader::Integer(int bytes) {
    std::uint64_t value = 0;
    for (int i = 0; i < bytes; ++i, ++m_Position) {
        if (m_Position < m_Bytes.size()) {
            value |= static_cast<std::uint64_t>(static_cast<unsigned char>(m_Bytes[m_Position])) << (8 * i);
        } else {
            m_Complete = false;
        }
    }
    return value;
}

float cBinaryReader::Single() {
    return std::bit_cast<float>(static_cast<std::uint32_t>(Integer(4)));
}

double cBinaryReader::Double() {
    return std::bit_cast<double>(Integer(8));
}

std::string cBinaryReader::String() {
    const auto length = static_cast<std::size_t>(Integer(2));
    const std::size_t from = std::min(m_Position, m_Bytes.size());
    std::string text(m_Bytes.substr(from, length));
    Skip(length);
    return text;
}

void cBinaryReader::Skip(std::size_t count) {
    m_Position += count;
    if (m_Position > m_Bytes.size()) m_Complete = false;
}

}  // namespace vigrel
