#pragma once

#include <string_view>

namespace vigrel {

// Tells whoever watches the program from outside, at a terminal or through a service manager, how it is.
class cStatus {
  public:
    virtual ~cStatus() = default;
    // One line, which holds until the next call. Never fails.
    virtual void SetStatus(std::string_view text) = 0;
};

}  // namespace vigrel
