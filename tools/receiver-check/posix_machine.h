#pragma once

#include "receiver-check/machine.h"

namespace vigrel {

// This machine, asked by calls that leave no trace: a socket that is bound and closed, a connection to a
// printer over which nothing goes, and questions for rights.
class cPosixMachine : public cMachine {
  public:
    cPortTrial TryPort(const std::string& address, std::int32_t port) const override;
    std::optional<std::string> WhyNotPrinting(std::string_view device) const override;
    std::optional<double> SecondsOfSound(std::string_view path) const override;
    bool FolderExists(std::string_view path) const override;
    std::optional<std::string> WhyNotWritable(std::string_view folder) const override;
    std::optional<std::string> WhyNotReadable(std::string_view folder) const override;
};

}  // namespace vigrel
