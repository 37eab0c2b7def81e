#pragma once

#include <array>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace vigrel::send {

// What to do to each frame so that a station must refuse it.
enum class eCorrupt { None, Checksum, Etx, Kind };

// The command line. Texts are in the code page.
struct cOptions {
    std::string host = "localhost";
    std::string port = "12412";
    std::string sender = "vigrel-send";
    int kind = 1;
    std::array<std::string, 6> conditions;
    std::optional<std::string> date, time;  // nothing: now
    bool keepAlive = false;
    std::optional<std::string> message;
    std::string file;
    bool rawBytes = false;         // the file's bytes are those of the link, not UTF-8
    std::vector<std::string> raw;  // bytes to send as they are
    long count = 1;
    double rate = 0;      // frames a second; 0: as fast as the replies come
    double timeout = 10;  // seconds to wait for a reply
    eCorrupt corrupt = eCorrupt::None;
    bool quiet = false;
    bool help = false;
    bool version = false;
};

// A command line that can't be followed; the text names the option and the value.
class cUsageError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// arguments: UTF-8, without the program's name.
cOptions ReadOptions(const std::vector<std::string>& arguments);
const char* HelpText();

}  // namespace vigrel::send
