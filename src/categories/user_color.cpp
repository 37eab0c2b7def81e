#include "categories/user_color.h"

#include <algorithm>
#include <limits>

#include "common/numbers.h"
#include "common/text.h"
#include "common/wildcard.h"

namespace vigrel {
namespace {

constexpr std::int32_t kFlash = 40;

// Each part darker, and not below 0. A negative value brightens.
ColourParts Darker(ColourParts parts, std::int32_t by) {
    constexpr std::int64_t kBrightest = std::numeric_limits<std::int16_t>::max();
    for (std::int16_t& part : parts) {
        part = static_cast<std::int16_t>(std::clamp<std::int64_t>(std::int64_t{part} - by, 0, kBrightest));
    }
    return parts;
}

}  // namespace

Boolean16 cUserColor::IsMatching(std::string_view tag, std::int32_t category, std::int32_t area) const {
    if (category < 0 || category > kLastCategory ||
        m_Categories[static_cast<std::size_t>(category)] == False16) {
        return False16;
    }
    if (area < 0 || area > kLastRow || m_Areas[static_cast<std::size_t>(area)] == False16) return False16;
    return WildcardMatch(tag, m_TagFilter);
}

void cUserColor::SetCategoryFilter(std::string_view categoryFilter) {
    SetFilter(m_Categories, categoryFilter);
}

void cUserColor::SetAreaFilter(std::string_view areaFilter) {
    SetFilter(m_Areas, areaFilter);
}

void cUserColor::SetFilter(cColumn& column, std::string_view filter) {
    std::string separator;
    for (std::int16_t index = 0;; ++index) {
        const std::string item = GetField(filter, index, separator);
        if (item.empty()) return;
        std::int16_t first = ToInt16(Val(GetField(item, 0, "-")));
        std::int16_t last = ToInt16(Val(GetField(item, 1, "-")));
        if (item == "*") last = kLastRow;
        last = std::max(first, last);
        first = std::clamp<std::int16_t>(first, 0, kLastRow);
        last = std::clamp<std::int16_t>(last, 0, kLastRow);
        std::fill(column.begin() + first, column.begin() + last + 1, True16);
    }
}

void cUserColor::SetForeColor(std::string_view colorCodes) {
    m_ForeColor = MakeColour(ColourPartsFromText(colorCodes));
}

void cUserColor::SetBackColor(std::string_view colorCodes, std::int32_t zebraFade) {
    const ColourParts base = ColourPartsFromText(colorCodes);
    m_BackColor = MakeColour(base);
    const ColourParts fade = Darker(base, zebraFade);
    m_BackColorFade = MakeColour(fade);
    m_BackColorFlash = MakeColour(Darker(fade, kFlash));
}

}  // namespace vigrel
