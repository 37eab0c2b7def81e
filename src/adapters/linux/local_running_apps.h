#pragma once

#include <map>

#include "platform/suite_library.h"

namespace vigrel {

// The suite's other programs don't exist on this platform, so what they would be told stays within this
// program.
class cLocalRunningApps : public cRunningApps {
  public:
    std::int32_t GetRunningApps(std::int32_t application) override { return m_States[application]; }
    void SetRunningApps(std::int32_t application, std::int32_t state) override {
        m_States[application] = state;
    }

  private:
    std::map<std::int32_t, std::int32_t> m_States;
};

}  // namespace vigrel
