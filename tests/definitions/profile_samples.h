#pragma once

#include <string>

#include "support/bytes.h"

namespace vigrel::samples {

// Profile number 12 in every version of its file, written by hand. The same bytes lie as files in
// tests/samples.

// Behind the version: what versions 4 and 5 have in common.
inline const std::string kProfileFields =
    testing::Bytes(
        "00 00 (reserved)"
        "FF FF (enabled)"
        "05 00 4E 69 67 68 74 (name Night)"
        "01 00 00 00 02 00 (states)"
        "FF FF (use schedule)"
        "00 00 00 00 (reserved)"
        "03 00 37 3B 38 (parallel receivers 7;8)"
        "01 00 39 (sequential receivers 9)"
        "04 00 46 69 72 65 00 00 00 00 01 00 2A 00 00 02 00 D6 31 (conditions Fire, -, -, *, -, \3261)"
        "05 00 (view day type)"
        "01 00 (view time axis)"
        "FF FF (use tag)"
        "03 00 54 41 47 (tag)"
        "00 00 (ignore tag)"
        "00 00 (use file)"
        "05 00 61 2E 74 78 74 (a.txt)"
        "02 00 68 69 (hi)"
        "FF FF (scan systems)"
        "01 00 (system 0)") +
    std::string(std::size_t{2} * 62, '\0') + testing::Bytes("03 00 (system 63)");

// The schedule: Monday from 07:00 to 16:00 in row 0, the other weekdays active without periods; day types
// that have no row are given the one behind the last.
inline const std::string kProfileSchedule = [] {
    std::string bytes = testing::Bytes("FF FF FF FF 01 00 A4 01 C0 03 00 00");
    for (int day = 1; day < 7; ++day) {
        bytes += testing::Bytes("FF FF 00 00 00 00") + std::string(1, static_cast<char>(day)) +
                 std::string(1, '\0');
    }
    for (int day = 7; day < 23; ++day) bytes += testing::Bytes("00 00 00 00 00 00 07 00");
    return bytes + testing::Bytes("FF FF (use calendar)");
}();

inline const std::string kProfileVersion4 = testing::Bytes("04 00") + kProfileFields + kProfileSchedule;

// Version 5, saved at 2026-03-15 12:30:15 with off duty behaviour 2.
inline const std::string kProfileVersion5 = testing::Bytes("05 00") + kProfileFields +
                                            testing::Bytes("02 00 6C C1 16 AC 10 82 E6 40") +
                                            std::string(2048, '\0') + kProfileSchedule;

}  // namespace vigrel::samples
