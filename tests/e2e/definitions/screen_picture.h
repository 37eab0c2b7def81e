#pragma once

#include <cstdint>
#include <optional>
#include <vector>

namespace vigrel::testing {

struct cPixelPlace {
    int x = 0, y = 0;
};

// What the whole display shows now.
class cScreenPicture {
  public:
    cScreenPicture();
    // Red in the high byte: 0xDCDCDC.
    std::uint32_t At(int x, int y) const;
    // The first place, row by row, from which so many pixels to the right all have the colour.
    std::optional<cPixelPlace> FindRun(std::uint32_t colour, int length) const;

  private:
    int m_Width = 0, m_Height = 0;
    std::vector<std::uint32_t> m_Pixels;
};

}  // namespace vigrel::testing
