#pragma once

namespace vigrel {

// A uniform random source.
class cRandom {
  public:
    virtual ~cRandom() = default;
    // Starts a sequence that depends on the value alone.
    virtual void Seed(double value) = 0;
    // A value in 0 (inclusive) to 1 (exclusive).
    virtual double Next() = 0;
};

}  // namespace vigrel
