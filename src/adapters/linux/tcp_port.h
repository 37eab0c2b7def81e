#pragma once

#include <cstdint>
#include <string>

#include "adapters/linux/file_handle.h"

namespace vigrel {

struct cBoundPort {
    cFileHandle descriptor;  // not blocking, not yet listening
    int failure = 0;         // errno, 0 for none; EADDRNOTAVAIL while the machine has no such address
    std::string reason;      // of a failure, in the operating system's words
};

// Takes a TCP port on one of the machine's addresses, written as a number ("192.168.1.10", "fe80::1%eth0"),
// or on all of them when the address is empty: IPv6 and IPv4, or IPv4 alone where there is no IPv6.
// Connections of the port that are still being closed don't stand in the way; somebody who listens on it
// does.
cBoundPort BindTcpPort(const std::string& address, std::uint16_t port);

}  // namespace vigrel
