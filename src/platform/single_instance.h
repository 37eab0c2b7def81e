#pragma once

namespace vigrel {

class cSingleInstance {
  public:
    virtual ~cSingleInstance() = default;
    // Whether another running program works on the same application folder. The first question claims the
    // folder for this program until it ends.
    virtual bool AnotherIsRunning() = 0;
};

}  // namespace vigrel
