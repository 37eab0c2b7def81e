#pragma once

#include <string>
#include <string_view>

namespace vigrel {

// The link's frames and replies (docs/protocol.md). A byte is one character.
inline constexpr char kStx = '\x02';
inline constexpr char kEtx = '\x03';
inline constexpr char kFieldSeparator = '\xFF';
inline constexpr char kLineBreakInText = '\x10';  // a line feed within a text, as it is sent
// What stands in a reply before its line end; a line that holds only this is no frame.
inline constexpr std::string_view kPositive =
    "\x04"
    "04";
inline constexpr std::string_view kNegative =
    "\x05"
    "05";
// Line feed before carriage return: the senders rely on this order.
inline constexpr std::string_view kReplyEnd = "\n\r";

// The sum of all characters modulo 256, as two upper-case hexadecimal digits.
std::string CalcChecksum(std::string_view text);

// A whole frame with its line end, from a sender's side. Second is record kind and payload as they go over
// the wire.
std::string MakeFrame(std::string_view sender, std::string_view second);

}  // namespace vigrel
