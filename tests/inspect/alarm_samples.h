#pragma once

#include <string>

#include "support/bytes.h"

namespace vigrel::samples {

// The alarm file A0042917.alm, written by hand.
inline const std::string kAlarm = testing::Bytes(
    "00 00 00 00 10 82 E6 40 (source: 2026-03-15 12:00)"
    "6C C1 16 AC 10 82 E6 40 (PC: 2026-03-15 12:30:15)"
    "0C 00 00 00 (event id 12)"
    "01 00 (active)"
    "05 00 50 75 6D 70 31 (t0 Pump1)"
    "01 00 41 (t1 A)"
    "04 00 46 69 72 65 (t2 Fire)"
    "00 00 00 00 00 00 (t3 to t5)"
    "00 00 00 00 (sequence) 00 00 00 00 00 00 (parallel)"
    "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 (spare)"
    "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"
    "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 (reserved)"
    "03 00 D6 73 74 (sender)"
    "00 00 (not observed)"
    "6C C1 16 AC 10 82 E6 40 (created)"
    "A5 A7 00 00 (file id 42917)"
    "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 (spare)"
    "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"
    "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 (reserved)");

}  // namespace vigrel::samples
