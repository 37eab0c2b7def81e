#include "link/line_length.h"

namespace vigrel {

std::size_t cLineLength::Together(std::string_view arrived) const {
    const std::size_t lineFeed = arrived.find('\n');
    const bool fits = m_Bytes + arrived.size() <= kLongest;
    return fits || lineFeed == std::string_view::npos ? arrived.size() : lineFeed + 1;
}

bool cLineLength::Count(std::string_view arrived) {
    const std::size_t lineFeed = arrived.rfind('\n');
    m_Bytes = lineFeed == std::string_view::npos ? m_Bytes + arrived.size() : arrived.size() - lineFeed - 1;
    return m_Bytes <= kMost;
}

}  // namespace vigrel
