#include "receiver-check/values.h"

#include <cmath>
#include <string_view>

#include "common/failure.h"
#include "common/numbers.h"
#include "common/text.h"
#include "receiver-check/names.h"

namespace vigrel {
namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// Whether a text begins with a number as Val reads it.
bool BeginsWithNumber(std::string_view text) {
    std::string rest;
    for (const char c : text) {
        if (c != ' ' && c != '\t') rest += c;
    }
    std::size_t at = !rest.empty() && (rest[0] == '-' || rest[0] == '+') ? 1 : 0;
    if (at < rest.size() && rest[at] == '.') ++at;
    return at < rest.size() && IsDigit(rest[at]);
}

std::string Range(const cSettingKey& key) {
    return NumberText(key.low) + " to " + NumberText(key.high);
}

bool IsOutside(const cSettingKey& key, double number) {
    return number < key.low || number > key.high;
}

class cValueCheck {
  public:
    cValueCheck(const cSettingKey& key, eOverflow overflow, const cPlace& place, cFindings& findings)
        : m_Key(key), m_Overflow(overflow), m_Place(place), m_Findings(findings) {}

    void Run() {
        switch (m_Key.kind) {
            case eValueKind::Text:
                return;
            case eValueKind::Flag:
                return Flag();
            case eValueKind::Int16:
                return Integer(ToInt16);
            case eValueKind::Int32:
                return Integer(ToInt32);
            case eValueKind::Decimal:
                return Decimal();
            case eValueKind::Rgb:
                return Parts(',', 3, "a colour is red,green,blue");
            case eValueKind::Icons:
                return Icons();
            case eValueKind::Leds:
                return Parts('/', 4, "a light has four LEDs: 0/0/0/0");
            case eValueKind::LedPairs:
                return LedPairs();
        }
    }

  private:
    const std::string& Value() const { return m_Place.value; }
    void Warning(const std::string& name, const std::string& message) {
        m_Findings.Warning(name, m_Place, message);
    }

    void Flag() {
        const double number = Val(Value());
        if (number != 1 && !(number == 0 && BeginsWithNumber(Value()))) {
            Warning("flag-not-0-or-1",
                    Value().empty() ? "is empty and so means off" : "is neither 0 nor 1 and so means off");
        } else if (!IsNumeric(Value())) {
            Warning("number-with-rest", "only the number at the beginning counts: it means " +
                                            std::string(number == 1 ? "on" : "off"));
        }
    }

    // Whether there is a number to look at further.
    bool IsReadable() {
        if (Value().empty()) {
            Warning("number-missing", "is empty and so means 0");
        } else if (!BeginsWithNumber(Value())) {
            Warning("number-unreadable", "is no number and so means 0");
        } else {
            if (!IsNumeric(Value())) {
                const bool comma = Value().find(',') != std::string::npos;
                Warning("number-with-rest", "only the number at the beginning counts: it means " +
                                                NumberText(Val(Value())) +
                                                (comma ? "; the decimal sign is \".\"" : ""));
            }
            return true;
        }
        return false;
    }

    void RangeOf(double number) {
        if (IsOutside(m_Key, number)) Warning("number-out-of-range", "is not in " + Range(m_Key));
    }

    template <class Number>
    void Integer(Number (*convert)(double)) {
        if (!IsReadable()) return;
        const double number = Val(Value());
        Number rounded = 0;
        if (!SkipFailure([&] { rounded = convert(number); })) return TooLarge();
        if (std::floor(number) != number) {
            m_Findings.Remark("number-rounded", m_Place, "is rounded to " + NumberText(rounded));
        }
        RangeOf(rounded);
    }

    void TooLarge() {
        const std::string bits = m_Key.kind == eValueKind::Int16 ? "16" : "32";
        const std::string message = "does not fit " + bits + " bits";
        if (m_Overflow == eOverflow::EndsStart) {
            m_Findings.Error("number-overflow", m_Place, message + ": the start ends with a message");
        } else if (m_Overflow == eOverflow::StopsPopups) {
            m_Findings.Error("number-overflow", m_Place, message + ": no popup opens");
        } else {
            Warning("number-overflow", message + " and is not read");
        }
    }

    void Decimal() {
        if (IsReadable()) RangeOf(Val(Value()));
    }

    // A list of numbers; an empty value is as good as none.
    void Parts(char separator, std::size_t count, const std::string& form) {
        if (Trim(Value()).empty()) return;
        const std::vector<std::string> parts = SplitAt(Value(), separator);
        if (parts.size() != count) {
            Warning("wrong-count", "has " + std::to_string(parts.size()) + " in place of " +
                                       std::to_string(count) + " parts: " + form +
                                       (parts.size() < count ? "; a missing one counts as 0" : ""));
        }
        for (const std::string& part : parts) Part(part);
    }

    void Part(const std::string& part) {
        if (!BeginsWithNumber(part)) {
            Warning("part-unreadable", "\"" + part + "\" is no number and so means 0");
        } else if (!IsNumeric(part)) {
            Warning("part-with-rest", "of \"" + part + "\" only the number at the beginning counts");
        }
        const double number = Val(part);
        if (!IsOutside(m_Key, number)) return;
        std::string effect;
        if (m_Key.kind == eValueKind::Rgb) {
            const bool white = number < 0 || !SkipFailure([&] { ToInt16(number); });
            effect = white ? ": the colour becomes white" : ": it counts as 255";
        } else if (m_Key.kind == eValueKind::Icons) {
            effect = ": no picture is shown";
        }
        Warning("part-out-of-range", "\"" + Trim(part) + "\" is not in " + Range(m_Key) + effect);
    }

    void Icons() {
        if (SplitAt(Value(), ',').size() == 1 && !Value().empty()) {
            Warning("icon-alone", "one number alone: the picture after acknowledgement becomes 0");
            Part(Value());
        } else {
            Parts(',', 2, "pictures before and after acknowledgement");
        }
    }

    void LedPairs() {
        if (Trim(Value()).empty()) return;
        const std::vector<std::string> pairs = SplitAt(Value(), '/');
        if (pairs.size() != 4) {
            Warning("wrong-count", "has " + std::to_string(pairs.size()) +
                                       " in place of 4 parts: a light has four LEDs: on,off/on,off/...");
        }
        for (const std::string& pair : pairs) {
            const std::vector<std::string> parts = SplitAt(pair, ',');
            if (parts.size() != 2) Warning("wrong-count", "\"" + pair + "\" is no pair \"on,off\"");
            for (const std::string& part : parts) Part(part);
        }
    }

    const cSettingKey& m_Key;
    eOverflow m_Overflow;
    const cPlace& m_Place;
    cFindings& m_Findings;
};

}  // namespace

void CheckValue(const cSettingKey& key, eOverflow overflow, const cPlace& place, cFindings& findings) {
    cValueCheck(key, overflow, place, findings).Run();
}

}  // namespace vigrel
