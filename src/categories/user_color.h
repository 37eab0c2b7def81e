#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "categories/colours.h"
#include "common/binary.h"

namespace vigrel {

// One rule of a rule table: events that pass its three filters get its colours. A new rule matches nothing.
class cUserColor {
  public:
    std::string m_TagFilter;   // a pattern of WildcardMatch
    std::string m_AreaFilter;  // for those who keep the filter's text; not looked at here
    Colour m_ForeColor = 0;
    Colour m_BackColor = 0;
    Colour m_BackColorFade = 0;   // the background of every other row
    Colour m_BackColorFlash = 0;  // each part darker by 40 than that

    // Categories match from 0 to 255, areas from 0 to 999.
    Boolean16 IsMatching(std::string_view tag, std::int32_t category, std::int32_t area) const;
    // Numbers to be let pass, in addition to those of earlier calls: items separated by TABs, or by ";" when
    // there is no TAB, up to the first empty one. An item is a number, "from-to", or "*" for all from 0 to
    // 999; numbers outside that range count as its ends. A filter without any separator holds no item, so a
    // single item needs one behind it: "5;". Throws cFailure (Overflow) for a number that 16 bits don't hold.
    void SetCategoryFilter(std::string_view categoryFilter);
    void SetAreaFilter(std::string_view areaFilter);
    // Texts "red,green,blue" as MakeColour takes them; cFailure as it tells.
    void SetForeColor(std::string_view colorCodes);
    // Sets all three backgrounds, each part of the second darker by zebraFade.
    void SetBackColor(std::string_view colorCodes, std::int32_t zebraFade);
    void SetTagFilter(std::string_view tagFilter) { m_TagFilter = tagFilter; }

  private:
    static constexpr std::int16_t kLastRow = 999;
    static constexpr std::int32_t kLastCategory = 255;
    using cColumn = std::array<Boolean16, kLastRow + 1>;
    static void SetFilter(cColumn& column, std::string_view filter);

    cColumn m_Categories{}, m_Areas{};
};

}  // namespace vigrel
