#pragma once

#include <cstdio>
#include <string>

#include "common/printable.h"
#include "platform/status.h"

namespace vigrel {

// The status as lines on a stream, behind the program's name.
class cStreamStatus : public cStatus {
  public:
    cStreamStatus(std::FILE* stream, std::string program) : m_Stream(stream), m_Program(std::move(program)) {}
    void SetStatus(std::string_view text) override {
        std::fprintf(m_Stream, "%s: %s\n", m_Program.c_str(), PrintablePath(text).c_str());
        std::fflush(m_Stream);
    }

  private:
    std::FILE* m_Stream;
    std::string m_Program;
};

}  // namespace vigrel
