#include "life/line_maker.h"

#include <iterator>

#include "link/frame.h"

namespace vigrel::testing {

std::string cLineMaker::LineEnd() {
    constexpr const char* kEnds[] = {"\n", "\r\n", "\n\r", "\n\n", "\r\r\n"};
    return kEnds[Below(5)];
}

std::string cLineMaker::Sender() {
    constexpr const char* kSenders[] = {"PLC1", "plc1", "PLC2", "PLC3", "Plc2", "other", "", " PLC1"};
    return kSenders[Below(8)];
}

std::string cLineMaker::Record() {
    constexpr const char* kKinds[] = {"S0", "S1", "S2", "S3", "S1", "S1", "s1", "S4", "", "S"};
    std::string kind = kKinds[Below(10)];
    if (Below(5) == 0) return kind;
    constexpr const char* kBlanks[] = {"", " ", "  "};
    return kind + kBlanks[Below(3)] + Date() + "|" + kBlanks[Below(3)] + Time() + "|" + kBlanks[Below(3)] +
           "a" + std::to_string(++m_Alarms) + kBlanks[Below(3)] +
           (Below(4) == 0 ? "" : "|" + Text() + "|" + Category() + "|d|" + Text() + "|f|g");
}

std::string cLineMaker::Digits(int count) {
    std::string digits;
    for (; count > 0; --count) digits += static_cast<char>('0' + Below(10));
    return digits;
}

std::string cLineMaker::Date() {
    constexpr const char* kDates[] = {"2026-03-15", "2026-03-15", "26-03-15",   "2026-13-00", "95/1/30",
                                      "",           "2026",       "1899-12-30", "1-23"};
    constexpr const char* kCenturies[] = {"", "10", "18", "19", "20"};
    if (Below(2) == 0) return kDates[Below(9)];
    return kCenturies[Below(5)] + Digits(2) + "-" + Digits(2) + "-" + Digits(2);
}

std::string cLineMaker::Time() {
    constexpr const char* kTimes[] = {"12:00:00", "00:00:00", "",      "24:00",
                                      "7:5:3",    "070503",   "xx:15", "23:59:59.9"};
    if (Below(2) == 0) return kTimes[Below(8)];
    return Digits(2) + ":" + Digits(2) + ":" + Digits(2);
}

// Full of what templates are made of.
std::string cLineMaker::Text() {
    constexpr char kCharacters[] = {'a', 'b', 'A', 'B', ' ', ' ', '[',    ']',
                                    '{', '}', ':', '?', '-', '1', '\x10', '\xC4'};
    std::string text;
    for (int i = Below(20); i > 0; --i) text += kCharacters[Below(static_cast<int>(std::size(kCharacters)))];
    return text;
}

std::string cLineMaker::Category() {
    constexpr const char* kCategories[] = {"Fire", "FIRE", "gas", "Gas ", "Water", "Air", "", "Fire Gas"};
    return kCategories[Below(8)];
}

std::string cLineMaker::Line() {
    const std::string counted = Sender() + "\xFF" + Record();
    std::string frame = "\x02" + counted + "\xFF" + CalcChecksum(counted) + "\x03";
    switch (Below(16)) {
        case 0:
            return "\x02" + counted + "\xFF" + "0" + "\x03";
        case 1:
            return frame.substr(1);
        case 2:
            return frame.substr(0, frame.size() - 1);
        case 3:
            return std::string(kPositive);
        case 4:
            return std::string(kNegative);
        case 5:
            return std::string(kNegative) + " ";
        case 6:
            return "";
        case 7:
            return "\x02" + counted + "\xFF" + CalcChecksum(counted) + "more\xFFstill more\x03";
        case 8:
            return frame.substr(0, frame.size() / 2) + "\r" + frame.substr(frame.size() / 2);
        case 9:
            return "\x02\x03";
        case 10:
            return Garbage();
        default:
            return frame;
    }
}

std::string cLineMaker::Garbage() {
    std::string bytes;
    for (int i = Below(12); i > 0; --i) bytes += static_cast<char>(Below(256));
    return Below(2) == 0 ? "\x02" + bytes + "\x03" : bytes;
}

}  // namespace vigrel::testing
