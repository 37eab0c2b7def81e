#pragma once

#include <sys/stat.h>

#include <string_view>

// What a file is not read for, and how calls of the operating system on files fail.

namespace vigrel {

// Throws cFailure by errno, with the path and the system's words.
[[noreturn]] void FailByErrno(std::string_view path);

// Far above every file of the system; nothing larger is taken into memory.
constexpr off_t kLargestFile = 64 << 20;

// Why a file must not be read, whatever its rights: what waits for a partner, has no end or fills the memory
// would take the program with it. Null when it may.
const char* WhyNoFile(const struct stat& status);
// The reason that such a file is given; also one that holds something though its size is 0: what the machine
// makes up needn't have an end.
const char* NoOrdinaryFile();

// Throws cFailure (PathAccess).
[[noreturn]] void FailAsNoFile(std::string_view path, const char* reason);

}  // namespace vigrel
