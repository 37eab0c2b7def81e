#pragma once

#include <string_view>

namespace vigrel {

// Who started the program and watches over it, where somebody does. Nothing here fails, and nothing happens
// where nobody does.
class cServiceManager {
  public:
    virtual ~cServiceManager() = default;
    // The start has ended well; whoever waits for the program can go on.
    virtual void Ready() = 0;
    // The end has begun.
    virtual void Stopping() = 0;
    // One line about how it goes, for people; it holds until the next call.
    virtual void SetStatus(std::string_view line) = 0;
};

}  // namespace vigrel
