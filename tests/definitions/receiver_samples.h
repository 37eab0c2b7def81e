#pragma once

#include <string>

#include "support/bytes.h"

namespace vigrel::samples {

// Receiver number 7 in every version of its file, written by hand. The same bytes lie as files in
// tests/samples.

// Version 3: a 32-bit type id, the name, the four settings.
inline const std::string kReceiverVersion3 = testing::Bytes(
    "03 00 (version)"
    "07 00 00 00 (type id)"
    "05 00 44 75 74 79 31 (Duty1)"
    "08 00 03 00 43 4F 4D (setting 0: text COM)"
    "02 00 3C 00 (setting 1: 60 in 16 bits)"
    "00 00 (setting 2: empty)"
    "0B 00 FF FF (setting 3: true)");

// Version 4: the fields of today and four strings that nobody reads.
inline const std::string kReceiverVersion4 = testing::Bytes(
    "04 00 (version)"
    "07 00 (identity)"
    "00 00 (enabled: no)"
    "08 00 (type id)"
    "04 00 4E 6F 72 64 (Nord)"
    "08 00 00 00 (setting 0: text without characters)"
    "08 00 02 00 34 35 (setting 1: text 45)"
    "01 00 (setting 2: null)"
    "11 00 C8 (setting 3: byte 200)"
    "00 00 00 00 00 00 00 00 00 00 (reserved)"
    "07 00 31 32 33 3B 34 35 36 (numbers 123;456)"
    "01 00 41 (unread) 00 00 02 00 42 43 00 00");

// Version 5, saved at 2026-03-15 12:30:15.
inline const std::string kReceiverVersion5 = testing::Bytes(
                                                 "05 00 (version)"
                                                 "07 00 (identity)"
                                                 "FF FF (enabled)"
                                                 "09 00 (type id)"
                                                 "03 00 D6 73 74 (\326st)"
                                                 "03 00 A0 86 01 00 (setting 0: 100000 in 32 bits)"
                                                 "05 00 00 00 00 00 00 00 04 40 (setting 1: 2.5)"
                                                 "06 00 44 D6 12 00 00 00 00 00 (setting 2: 123.45)"
                                                 "07 00 00 00 00 00 88 1D E6 40 (setting 3: 2024-01-01 06:00)"
                                                 "00 00 00 00 00 00 00 00 00 00 (reserved)"
                                                 "02 00 31 37 (numbers 17)"
                                                 "6C C1 16 AC 10 82 E6 40 (saved at)") +
                                             std::string(2048, '\0');

}  // namespace vigrel::samples
