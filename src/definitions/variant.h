#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "common/binary.h"
#include "common/phrase.h"
#include "platform/clock.h"

namespace vigrel {

// The types a variant can carry, with the codes by which files name them.
enum class eVariantType : std::int16_t {
    Empty = 0,
    Null = 1,
    Int16 = 2,
    Int32 = 3,
    Single = 4,
    Double = 5,
    Currency = 6,
    Date = 7,
    String = 8,
    Boolean = 11,
    Byte = 17,
};

// A value that carries its type with it, as the settings of a receiver do: their meaning, and so their type,
// is up to the type of the receiver.
class cVariant {
  public:
    cVariant() = default;
    // A currency has four decimals and is kept as a count of ten-thousandths.
    static cVariant Null() { return Holding(cNull{}); }
    static cVariant Int16(std::int16_t value) { return Holding(value); }
    static cVariant Int32(std::int32_t value) { return Holding(value); }
    static cVariant Single(float value) { return Holding(value); }
    static cVariant Double(double value) { return Holding(value); }
    static cVariant Currency(std::int64_t tenThousandths) { return Holding(cCurrency{tenThousandths}); }
    static cVariant Date(DateTime value) { return Holding(cDate{value}); }
    static cVariant String(std::string value) { return Holding(std::move(value)); }
    static cVariant Boolean(bool value) { return value ? Holding(cFlag{True16}) : Holding(cFlag{}); }
    static cVariant Byte(std::uint8_t value) { return Holding(value); }

    eVariantType Type() const;
    // The number that the value is or reads as: an empty value is 0, true is -1, a text counts when the whole
    // of it is one number. Nothing for a null, a date or any other text.
    std::optional<double> Number() const;
    // As people read it: "" for empty and null, "2026-03-15 12:30:15", "True"; in code page 1252.
    std::string Text() const;

    // The 16-bit type code, then the value in the form of its type; nothing for empty and null. A text of
    // more than 65,535 bytes throws cFailure (Overflow).
    void Write(cBinaryWriter& file) const;
    // Throws cFailure (TypeMismatch) for a type code that is none of eVariantType.
    static cVariant Read(cBinaryReader& file);

    // Equal in type and value: the number 5 and the text "5" differ, as they differ in the file.
    friend bool operator==(const cVariant& a, const cVariant& b);

  private:
    struct cNull {};
    struct cCurrency {
        std::int64_t m_TenThousandths = 0;
    };
    struct cDate {
        DateTime m_Value = 0;
    };
    struct cFlag {
        Boolean16 m_Value = False16;
    };
    using Value = std::variant<std::monostate, cNull, std::int16_t, std::int32_t, float, double, cCurrency,
                               cDate, std::string, cFlag, std::uint8_t>;
    template <class T>
    static cVariant Holding(T value) {
        cVariant variant;
        variant.m_Value.template emplace<T>(std::move(value));
        return variant;
    }
    void WriteValue(cBinaryWriter& file) const;

    Value m_Value;
};

// The value of a type that a typed text stands for; what Text() gives reads back. An empty text is an empty
// value for every type but String and Null. Throws cFailure (TypeMismatch or Overflow) naming the text.
cVariant VariantFromText(eVariantType type, std::string_view text);

// "text", "whole number (16 bits)" and so on.
cPhrase VariantTypePhrase(eVariantType type);

}  // namespace vigrel
