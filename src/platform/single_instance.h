#pragma once

#include <string>

namespace vigrel {

class cSingleInstance {
  public:
    virtual ~cSingleInstance() = default;
    // Whether another running program works on the same application folder. The first question claims the
    // folder for this program until it ends.
    virtual bool AnotherIsRunning() = 0;
    // Behind a question that was answered by no: why the folder could not be claimed, so that another program
    // would not notice this one; a text that may name paths. Empty when it could.
    virtual std::string Problem() const = 0;
};

}  // namespace vigrel
