#include "adapters/linux/standard_random.h"

#include <bit>
#include <cstdint>

namespace vigrel {

void cStandardRandom::Seed(double value) {
    m_Engine.seed(std::bit_cast<std::uint64_t>(value));
}

double cStandardRandom::Next() {
    return std::uniform_real_distribution<double>(0, 1)(m_Engine);
}

}  // namespace vigrel
