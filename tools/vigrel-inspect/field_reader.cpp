#include "vigrel-inspect/field_reader.h"

#include <cmath>

#include "common/failure.h"

namespace vigrel {
namespace {

cFieldValue ValueOf(const cVariant& variant) {
    switch (variant.Type()) {
        case eVariantType::Empty:
        case eVariantType::Null:
            return {};
        case eVariantType::String:
        case eVariantType::Date:
        case eVariantType::Currency:
            return variant.Text();
        case eVariantType::Boolean:
            return *variant.Number() != 0;
        case eVariantType::Single:
        case eVariantType::Double:
            return *variant.Number();
        default:
            return static_cast<std::int64_t>(*variant.Number());
    }
}

}  // namespace

cFieldReader::cFieldReader(std::string_view content, cInspection& inspection)
    : m_Content(content), m_File(content), m_Inspection(inspection) {}

void cFieldReader::Add(const std::string& name, std::size_t from, cFieldValue value) {
    if (!m_File.Complete()) {
        m_Inspection.problems.push_back({from, name, "the file ends inside this field"});
        throw cFailure(eFailure::InputOutput, "the file ends too early");
    }
    m_Inspection.fields.push_back({name, from, m_File.Position() - from, std::move(value)});
}

void cFieldReader::Problem(const std::string& description) {
    const cField& field = m_Inspection.fields.back();
    m_Inspection.problems.push_back({field.offset, field.name, description});
}

void cFieldReader::ExpectRange(std::int64_t value, std::int64_t first, std::int64_t last) {
    if (value >= first && value <= last) return;
    Problem(std::to_string(value) + " is not in " + std::to_string(first) + " to " + std::to_string(last));
}

void cFieldReader::ExpectEnd() {
    const std::size_t end = m_File.Position();
    if (end >= m_Content.size()) return;
    m_Inspection.problems.push_back(
        {end, "", std::to_string(m_Content.size() - end) + " bytes lie behind the last field"});
}

std::int16_t cFieldReader::Int16(const std::string& name) {
    const std::size_t from = m_File.Position();
    const std::int16_t value = m_File.Int16();
    Add(name, from, static_cast<std::int64_t>(value));
    return value;
}

std::int32_t cFieldReader::Int32(const std::string& name) {
    const std::size_t from = m_File.Position();
    const std::int32_t value = m_File.Int32();
    Add(name, from, static_cast<std::int64_t>(value));
    return value;
}

bool cFieldReader::Boolean(const std::string& name) {
    const std::size_t from = m_File.Position();
    const std::int16_t value = m_File.Int16();
    Add(name, from, value != 0);
    ExpectBoolean(value);
    return value != 0;
}

DateTime cFieldReader::Date(const std::string& name) {
    const std::size_t from = m_File.Position();
    const DateTime value = m_File.Double();
    Add(name, from, cDateValue{value});
    ExpectDate(value);
    return value;
}

std::string cFieldReader::String(const std::string& name) {
    const std::size_t from = m_File.Position();
    std::string value = m_File.String();
    Add(name, from, value);
    return value;
}

void cFieldReader::Variant(const std::string& name) {
    const std::size_t from = m_File.Position();
    cVariant value;
    if (const auto failure = CatchFailure([&] { value = cVariant::Read(m_File); })) {
        m_Inspection.problems.push_back({from, name, failure->what()});
        throw cFailure(*failure);
    }
    Add(name + " (" + VariantTypePhrase(value.Type()).English() + ")", from, ValueOf(value));
    ExpectValueOfType(value.Type(), m_Content.substr(from + sizeof(std::int16_t)));
}

// What the program itself never writes as a value of its type. Where they are of one size, other bytes are a
// value too.
void cFieldReader::ExpectValueOfType(eVariantType type, std::string_view bytes) {
    cBinaryReader value(bytes);
    switch (type) {
        case eVariantType::Boolean:
            return ExpectBoolean(value.Int16());
        case eVariantType::Date:
            return ExpectDate(value.Double());
        case eVariantType::Single:
            return ExpectNumber(value.Single());
        case eVariantType::Double:
            return ExpectNumber(value.Double());
        default:
            return;
    }
}

void cFieldReader::ExpectNumber(double value) {
    if (!std::isfinite(value)) Problem("this is no number");
}

void cFieldReader::ExpectBoolean(std::int16_t value) {
    if (value != True16 && value != False16) Problem(std::to_string(value) + " is neither -1 nor 0");
}

void cFieldReader::ExpectDate(DateTime value) {
    if (CatchFailure([&] { SplitDateTime(value); })) Problem("this is no date of the years 100 to 9999");
}

void cFieldReader::Zeros(const std::string& name, std::size_t count) {
    const std::size_t from = m_File.Position();
    m_File.Skip(count);
    Add(name, from, {});
    const std::string_view bytes = m_Content.substr(from, count);
    const std::size_t odd = bytes.find_first_not_of('\0');
    if (odd != std::string_view::npos) Problem("byte " + std::to_string(from + odd) + " is not zero");
}

void cFieldReader::EmptyString(const std::string& name) {
    if (!String(name).empty()) Problem("this text is always written empty");
}

}  // namespace vigrel
