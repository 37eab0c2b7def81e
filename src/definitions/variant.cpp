#include "definitions/variant.h"

#include <array>
#include <cmath>
#include <limits>

#include "common/date_text.h"
#include "common/failure.h"
#include "common/numbers.h"
#include "common/text.h"

namespace vigrel {
namespace {

// In the order of the alternatives of cVariant::Value.
constexpr std::array kTypes = {eVariantType::Empty,    eVariantType::Null,   eVariantType::Int16,
                               eVariantType::Int32,    eVariantType::Single, eVariantType::Double,
                               eVariantType::Currency, eVariantType::Date,   eVariantType::String,
                               eVariantType::Boolean,  eVariantType::Byte};

template <class... Callables>
struct cOverloaded : Callables... {
    using Callables::operator()...;
};
template <class... Callables>
cOverloaded(Callables...) -> cOverloaded<Callables...>;

std::string CurrencyText(std::int64_t tenThousandths) {
    const bool negative = tenThousandths < 0;
    const auto bits = static_cast<std::uint64_t>(tenThousandths);
    const std::uint64_t size = negative ? 0 - bits : bits;
    std::string text = (negative ? "-" : "") + std::to_string(size / 10000);
    if (size % 10000 == 0) return text;
    text += "." + Digits(static_cast<std::int64_t>(size % 10000), 4);
    return text.substr(0, text.find_last_not_of('0') + 1);
}

[[noreturn]] void Refuse(eVariantType type, std::string_view text) {
    throw cFailure(eFailure::TypeMismatch, {Pattern("Reasons", "\"%1\" is no value of the type %2"),
                                            {std::string(text), VariantTypePhrase(type)}});
}

double NumberFromText(eVariantType type, std::string_view text) {
    if (!IsNumeric(text)) Refuse(type, text);
    return Val(text);
}

double WholeNumberFromText(eVariantType type, std::string_view text) {
    const double value = NumberFromText(type, text);
    if (RoundEven(value) != value) Refuse(type, text);
    return value;
}

cVariant SingleFromText(std::string_view text) {
    const double value = NumberFromText(eVariantType::Single, text);
    if (!(std::fabs(value) <= std::numeric_limits<float>::max())) Refuse(eVariantType::Single, text);
    return cVariant::Single(static_cast<float>(value));
}

cVariant CurrencyFromText(std::string_view text) {
    const double scaled = RoundEven(NumberFromText(eVariantType::Currency, text) * 10000);
    // Beyond this a double no longer holds every ten-thousandth.
    if (!(scaled > -9e15 && scaled < 9e15)) Refuse(eVariantType::Currency, text);
    return cVariant::Currency(static_cast<std::int64_t>(scaled));
}

cVariant DateFromText(std::string_view text) {
    if (const auto date = ParseDateTimeText(text)) return cVariant::Date(*date);
    return cVariant::Date(NumberFromText(eVariantType::Date, text));
}

cVariant BooleanFromText(std::string_view text) {
    for (const char* word : {"True", "Yes", "1", "-1"}) {
        if (EqualsNoCase(text, word)) return cVariant::Boolean(true);
    }
    for (const char* word : {"False", "No", "0"}) {
        if (EqualsNoCase(text, word)) return cVariant::Boolean(false);
    }
    Refuse(eVariantType::Boolean, text);
}

}  // namespace

eVariantType cVariant::Type() const {
    static_assert(kTypes.size() == std::variant_size_v<Value>);
    return kTypes[m_Value.index()];
}

std::optional<double> cVariant::Number() const {
    using Result = std::optional<double>;
    return std::visit(
        cOverloaded{
            [](std::monostate) -> Result { return 0; }, [](cNull) -> Result { return std::nullopt; },
            [](cCurrency value) -> Result { return static_cast<double>(value.m_TenThousandths) / 10000; },
            [](cDate) -> Result { return std::nullopt; },
            [](const std::string& text) -> Result {
                return IsNumeric(text) ? Result(Val(text)) : std::nullopt;
            },
            [](cFlag flag) -> Result { return flag.m_Value; },
            [](auto number) -> Result { return static_cast<double>(number); }},
        m_Value);
}

std::string cVariant::Text() const {
    return std::visit(
        cOverloaded{[](std::monostate) { return std::string(); }, [](cNull) { return std::string(); },
                    [](float number) { return SingleText(number); },
                    [](double number) { return NumberText(number); },
                    [](cCurrency value) { return CurrencyText(value.m_TenThousandths); },
                    [](cDate date) { return DateTimeText(date.m_Value); },
                    [](const std::string& text) { return text; },
                    [](cFlag flag) { return std::string(flag.m_Value != 0 ? "True" : "False"); },
                    [](auto number) { return std::to_string(number); }},
        m_Value);
}

void cVariant::Write(cBinaryWriter& file) const {
    file.Int16(static_cast<std::int16_t>(Type()));
    WriteValue(file);
}

void cVariant::WriteValue(cBinaryWriter& file) const {
    std::visit(
        cOverloaded{[](std::monostate) {}, [](cNull) {}, [&](std::int16_t number) { file.Int16(number); },
                    [&](std::int32_t number) { file.Int32(number); },
                    [&](float number) { file.Single(number); }, [&](double number) { file.Double(number); },
                    [&](cCurrency value) { file.Int64(value.m_TenThousandths); },
                    [&](cDate date) { file.Double(date.m_Value); },
                    [&](const std::string& text) { file.String(text); },
                    [&](cFlag flag) { file.Int16(flag.m_Value); },
                    [&](std::uint8_t number) { file.Byte(number); }},
        m_Value);
}

cVariant cVariant::Read(cBinaryReader& file) {
    const std::int16_t type = file.Int16();
    switch (static_cast<eVariantType>(type)) {
        case eVariantType::Empty:
            return {};
        case eVariantType::Null:
            return Null();
        case eVariantType::Int16:
            return Int16(file.Int16());
        case eVariantType::Int32:
            return Int32(file.Int32());
        case eVariantType::Single:
            return Single(file.Single());
        case eVariantType::Double:
            return Double(file.Double());
        case eVariantType::Currency:
            return Currency(file.Int64());
        case eVariantType::Date:
            return Date(file.Double());
        case eVariantType::String:
            return String(file.String());
        case eVariantType::Boolean:
            return Holding(cFlag{file.Int16()});
        case eVariantType::Byte:
            return Byte(file.Byte());
    }
    throw cFailure(eFailure::TypeMismatch,
                   {Pattern("Reasons", "a value has the unknown type code %1"), {std::to_string(type)}});
}

bool operator==(const cVariant& a, const cVariant& b) {
    if (a.Type() != b.Type()) return false;
    if (a.Type() == eVariantType::String) return a.Text() == b.Text();
    // The stored form, so that a value that is no number still equals itself.
    cBinaryWriter first;
    cBinaryWriter second;
    a.WriteValue(first);
    b.WriteValue(second);
    return first.Bytes() == second.Bytes();
}

cVariant VariantFromText(eVariantType type, std::string_view text) {
    if (type == eVariantType::String) return cVariant::String(std::string(text));
    if (type == eVariantType::Null) return cVariant::Null();
    const std::string trimmed = Trim(text);
    if (trimmed.empty()) return {};
    switch (type) {
        case eVariantType::Int16:
            return cVariant::Int16(ToInt16(WholeNumberFromText(type, trimmed)));
        case eVariantType::Int32:
            return cVariant::Int32(ToInt32(WholeNumberFromText(type, trimmed)));
        case eVariantType::Byte:
            return cVariant::Byte(ToByte(WholeNumberFromText(type, trimmed)));
        case eVariantType::Single:
            return SingleFromText(trimmed);
        case eVariantType::Double:
            return cVariant::Double(NumberFromText(type, trimmed));
        case eVariantType::Currency:
            return CurrencyFromText(trimmed);
        case eVariantType::Date:
            return DateFromText(trimmed);
        case eVariantType::Boolean:
            return BooleanFromText(trimmed);
        default:
            Refuse(type, text);
    }
}

cPhrase VariantTypePhrase(eVariantType type) {
    switch (type) {
        case eVariantType::Empty:
            return Pattern("Reasons", "empty");
        case eVariantType::Null:
            return Pattern("Reasons", "null");
        case eVariantType::Int16:
            return Pattern("Reasons", "whole number (16 bits)");
        case eVariantType::Int32:
            return Pattern("Reasons", "whole number (32 bits)");
        case eVariantType::Single:
            return Pattern("Reasons", "number (single)");
        case eVariantType::Double:
            return Pattern("Reasons", "number (double)");
        case eVariantType::Currency:
            return Pattern("Reasons", "currency");
        case eVariantType::Date:
            return Pattern("Reasons", "date");
        case eVariantType::String:
            return Pattern("Reasons", "text");
        case eVariantType::Boolean:
            return Pattern("Reasons", "yes or no");
        case eVariantType::Byte:
            return Pattern("Reasons", "whole number (8 bits)");
    }
    return Pattern("Reasons", "unknown");
}

}  // namespace vigrel
