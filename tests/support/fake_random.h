#pragma once

#include <deque>

#include "platform/random.h"

namespace vigrel::testing {

// Gives the values that a test has lined up, then 0.5, 0.25, 0.75, 0.125, ... (van der Corput), never the
// same twice.
class cFakeRandom : public cRandom {
  public:
    void Seed(double value) override { m_Seed = value; }
    double Next() override {
        if (!m_Values.empty()) {
            const double value = m_Values.front();
            m_Values.pop_front();
            return value;
        }
        double value = 0;
        double weight = 0.5;
        for (unsigned n = ++m_Count; n > 0; n >>= 1, weight /= 2) value += (n & 1) * weight;
        return value;
    }

    std::deque<double> m_Values;
    double m_Seed = 0;

  private:
    unsigned m_Count = 0;
};

}  // namespace vigrel::testing
