#include "vigrel-send/options.h"

#include <cmath>
#include <functional>
#include <map>

#include "common/code_page.h"
#include "common/numbers.h"

namespace vigrel::send {
namespace {

std::string CodePageText(const std::string& option, const std::string& utf8) {
    std::string text = Utf8ToCodePage(utf8);
    if (CodePageToUtf8(text) != utf8) {
        throw cUsageError(option + ": \"" + utf8 +
                          "\" holds a character that the link's code page 1252 lacks");
    }
    return text;
}

double Number(const std::string& option, const std::string& text, double least, double most) {
    const double value = Val(text);
    if (!IsNumeric(text) || value < least || value > most) {
        throw cUsageError(option + ": \"" + text + "\" is not a number from " + NumberText(least) + " to " +
                          NumberText(most));
    }
    return value;
}

long WholeNumber(const std::string& option, const std::string& text, long least, long most) {
    const double value = Val(text);
    if (!IsNumeric(text) || value < static_cast<double>(least) || value > static_cast<double>(most) ||
        value != std::floor(value)) {
        throw cUsageError(option + ": \"" + text + "\" is not a whole number from " + std::to_string(least) +
                          " to " + std::to_string(most));
    }
    return static_cast<long>(value);
}

int HexDigit(const std::string& text, char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (ToUpper(c) >= 'A' && ToUpper(c) <= 'F') return ToUpper(c) - 'A' + 10;
    throw cUsageError("--raw: \"" + text + "\" is not a sequence of hexadecimal bytes");
}

std::string HexBytes(const std::string& text) {
    std::string digits;
    for (const char c : text) {
        if (c != ' ') digits.push_back(c);
    }
    if (digits.empty() || digits.size() % 2 != 0) HexDigit(text, '?');
    std::string bytes;
    for (std::size_t i = 0; i < digits.size(); i += 2) {
        bytes.push_back(static_cast<char>(HexDigit(text, digits[i]) * 16 + HexDigit(text, digits[i + 1])));
    }
    return bytes;
}

eCorrupt CorruptKind(const std::string& text) {
    if (text == "checksum") return eCorrupt::Checksum;
    if (text == "etx") return eCorrupt::Etx;
    if (text == "kind") return eCorrupt::Kind;
    throw cUsageError("--corrupt: \"" + text + "\" is not one of checksum, etx, kind");
}

// The text of a field: what would break the frame is refused, a line break is sent the way the link has it.
std::string FieldText(const std::string& option, const std::string& utf8) {
    std::string text = CodePageText(option, utf8);
    for (char& c : text) {
        if (c == '\n') c = '\x10';
        if (c == '|' || c == '\xFF' || c == '\r') {
            throw cUsageError(option + ": \"" + utf8 +
                              "\" holds a character that separates fields (|, \xC3\xBF, CR)");
        }
    }
    return text;
}

// An empty name comes from a variable of the shell that was never set; it must not send the one alarm that
// goes out without a file.
std::string FileName(const std::string& option, const std::string& name) {
    if (name.empty()) throw cUsageError(option + ": the name is empty");
    return name;
}

using Setter = std::function<void(const std::string& option, const std::string& value)>;

std::map<std::string, Setter> ValueOptions(cOptions& o) {
    std::map<std::string, Setter> setters{
        {"--host", [&o](auto&, auto& v) { o.host = v; }},
        {"--port", [&o](auto& n, auto& v) { o.port = std::to_string(WholeNumber(n, v, 1, 65535)); }},
        {"--sender", [&o](auto& n, auto& v) { o.sender = FieldText(n, v); }},
        {"--kind", [&o](auto& n, auto& v) { o.kind = static_cast<int>(WholeNumber(n, v, 0, 3)); }},
        {"--date", [&o](auto& n, auto& v) { o.date = FieldText(n, v); }},
        {"--time", [&o](auto& n, auto& v) { o.time = FieldText(n, v); }},
        {"--message", [&o](auto& n, auto& v) { o.message = FieldText(n, v); }},
        {"--file", [&o](auto& n, auto& v) { o.file = FileName(n, v); }},
        {"--raw", [&o](auto&, auto& v) { o.raw.push_back(HexBytes(v)); }},
        {"--count", [&o](auto& n, auto& v) { o.count = WholeNumber(n, v, 1, 1'000'000'000); }},
        {"--rate", [&o](auto& n, auto& v) { o.rate = Number(n, v, 0, 1e6); }},
        {"--timeout", [&o](auto& n, auto& v) { o.timeout = Number(n, v, 0.001, 86400); }},
        {"--corrupt", [&o](auto&, auto& v) { o.corrupt = CorruptKind(v); }},
    };
    for (std::size_t i = 0; i < o.conditions.size(); ++i) {
        setters["--t" + std::to_string(i)] = [&o, i](auto& n, auto& v) { o.conditions[i] = FieldText(n, v); };
    }
    return setters;
}

}  // namespace

cOptions ReadOptions(const std::vector<std::string>& arguments) {
    cOptions options;
    const auto setters = ValueOptions(options);
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        std::string name = arguments[i];
        if (name == "--help" || name == "-h") {
            options.help = true;
        } else if (name == "--keepalive") {
            options.keepAlive = true;
        } else if (name == "--version") {
            options.version = true;
        } else if (name == "--raw-bytes") {
            options.rawBytes = true;
        } else if (name == "--quiet") {
            options.quiet = true;
        } else {
            const std::size_t equals = name.find('=');
            const bool joined = equals != std::string::npos;
            const std::string value = joined                     ? name.substr(equals + 1)
                                      : i + 1 < arguments.size() ? arguments[i + 1]
                                                                 : "";
            name = name.substr(0, equals);
            const auto setter = setters.find(name);
            if (setter == setters.end()) throw cUsageError("unknown option \"" + arguments[i] + "\"");
            if (!joined && ++i >= arguments.size()) throw cUsageError(name + ": the value is missing");
            setter->second(name, value);
        }
    }
    return options;
}

const char* HelpText() {
    return R"(vigrel-send: delivers alarms to a Vigrel alarm receiver, for trying and testing a station.

usage: vigrel-send [options]

where to
  --host HOST        the station's machine (localhost)
  --port PORT        its port (12412)
  --timeout SECONDS  longest wait for the station: to be reached, to take a frame, to reply (10)

what
  --sender NAME      the name that the frame carries (vigrel-send)
  --kind N           0 inactive, 1 active, 2 acknowledged, 3 message (1)
  --t0 TEXT ... --t5 TEXT   the condition texts; t0 is the main text, t2 the category
  --date YYYY-MM-DD, --time HH:MM:SS   when it happened (now); empty: the station fills in its own
  --keepalive        only says that the sender lives
  --message TEXT     a text for the station's log
  --file FILE        one record a line, as it goes over the link: S1date|time|t0|t1|t2|t3|t4|t5;
                     empty lines and lines that begin with # are passed over; the file is UTF-8
  --raw-bytes        the file holds the bytes of the link (code page 1252) and is sent as it is
  --raw HEX          these bytes as they are; may be given several times

how
  --count N          each frame N times (1)
  --rate R           at most R frames a second (as fast as the replies come)
  --corrupt WHAT     checksum, etx or kind: spoils each frame, which the station must refuse
  --quiet            no line for each reply
  --version          prints the version

Exit code: 0 when every frame got the positive reply, 1 when one did not or standard output can't be written,
2 for a command line that can't be followed, 3 when the station can't be reached.

examples
  vigrel-send --sender PLC1 --t0 "Fan 3 tripped" --t2 Technical
  vigrel-send --sender PLC1 --kind 0 --t0 "Fan 3 tripped" --t2 Technical
  vigrel-send --sender PLC1 --keepalive
  vigrel-send --t0 Load --count 1000 --rate 50 --quiet
  vigrel-send --corrupt checksum
  vigrel-send --raw "02 41 FF 53 30 FF C3 03 0A"
)";
}

}  // namespace vigrel::send
