#include "life/line_maker.h"

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
    return kind + "2026-03-15|12:00:00|" + kBlanks[Below(3)] + "a" + std::to_string(++m_Alarms) +
           kBlanks[Below(3)] + (Below(2) == 0 ? "|b|c|d|e|f|g" : "");
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
