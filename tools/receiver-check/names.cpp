#include "receiver-check/names.h"

#include <algorithm>

#include "common/code_page.h"

namespace vigrel {

std::size_t NameDistance(std::string_view a, std::string_view b) {
    const std::string left = ToUpper(a), right = ToUpper(b);
    // rows[i][j]: steps from the first i characters of one to the first j of the other.
    std::vector<std::vector<std::size_t>> rows(left.size() + 1, std::vector<std::size_t>(right.size() + 1));
    for (std::size_t i = 0; i <= left.size(); ++i) {
        for (std::size_t j = 0; j <= right.size(); ++j) {
            std::size_t& steps = rows[i][j];
            if (i == 0 || j == 0) {
                steps = i + j;
                continue;
            }
            const bool same = left[i - 1] == right[j - 1];
            steps = std::min({rows[i - 1][j] + 1, rows[i][j - 1] + 1, rows[i - 1][j - 1] + (same ? 0 : 1)});
            const bool swapped = i > 1 && j > 1 && left[i - 1] == right[j - 2] && left[i - 2] == right[j - 1];
            if (swapped) steps = std::min(steps, rows[i - 2][j - 2] + 1);
        }
    }
    return rows[left.size()][right.size()];
}

std::optional<std::string> NearestName(std::string_view name, const std::vector<std::string>& known) {
    // Of short names nearly all are near each other.
    const std::size_t most = std::clamp<std::size_t>(name.size() / 4, 1, 4);
    std::optional<std::string> nearest;
    std::size_t best = most + 1;
    for (const std::string& candidate : known) {
        const std::size_t longer = std::max(name.size(), candidate.size());
        const std::size_t shorter = std::min(name.size(), candidate.size());
        if (longer - shorter >= best) continue;
        const std::size_t steps = NameDistance(name, candidate);
        if (steps >= best || steps >= longer) continue;
        best = steps;
        nearest = candidate;
    }
    return nearest;
}

std::string MeantPerhaps(std::string_view name, const std::vector<std::string>& known) {
    const auto nearest = NearestName(name, known);
    return nearest ? "; is \"" + *nearest + "\" meant?" : "";
}

std::vector<std::string> SplitAt(std::string_view text, char separator) {
    std::vector<std::string> parts;
    while (true) {
        const std::size_t end = text.find(separator);
        parts.emplace_back(text.substr(0, end));
        if (end == std::string_view::npos) return parts;
        text.remove_prefix(end + 1);
    }
}

}  // namespace vigrel
