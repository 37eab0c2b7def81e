#pragma once

#include <random>

#include "platform/random.h"

namespace vigrel {

class cStandardRandom : public cRandom {
  public:
    void Seed(double value) override;
    double Next() override;

  private:
    std::mt19937_64 m_Engine;
};

}  // namespace vigrel
