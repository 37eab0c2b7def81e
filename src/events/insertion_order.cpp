#include "events/insertion_order.h"

#include <algorithm>
#include <bit>
#include <functional>
#include <numeric>

#include "common/dates.h"

namespace vigrel {
namespace {

// Counts marks on a row of places: how many stand in front of a place, and where the n-th stands, each in the
// logarithm of the row's length.
class cMarks {
  public:
    explicit cMarks(std::size_t places) : m_Sums(places + 1, 0) {}

    void Add(std::size_t place, int count) {
        for (std::size_t i = place + 1; i < m_Sums.size(); i += i & (~i + 1)) m_Sums[i] += count;
    }
    std::size_t InFrontOf(std::size_t place) const {
        std::ptrdiff_t sum = 0;
        for (std::size_t i = place; i > 0; i &= i - 1) sum += m_Sums[i];
        return static_cast<std::size_t>(sum);
    }
    // The place of the mark that has so many in front of it.
    std::size_t Find(std::size_t inFront) const {
        auto left = static_cast<std::ptrdiff_t>(inFront);
        std::size_t place = 0;
        for (std::size_t step = std::bit_floor(m_Sums.size()); step > 0; step /= 2) {
            if (place + step >= m_Sums.size() || m_Sums[place + step] > left) continue;
            place += step;
            left -= m_Sums[place];
        }
        return place;
    }

  private:
    std::vector<std::ptrdiff_t> m_Sums;
};

// The elements of one time: their first place in the whole order, and for each in its turn how many of its
// equals it was put behind.
struct cEquals {
    std::size_t first = 0;
    std::vector<std::size_t> elements, behind;
};

// Plays the insertions through. Only how many elements are earlier, equal and later decides where one goes.
void PlayThrough(std::vector<cEquals>& groups, const std::vector<std::size_t>& groupOf) {
    cMarks inserted(groupOf.size());
    for (std::size_t i = 0; i < groupOf.size(); ++i) {
        cEquals& group = groups[groupOf[i]];
        const std::size_t earlier = inserted.InFrontOf(group.first);
        const std::size_t upToEqual = earlier + group.elements.size();
        const std::size_t place = FindInsertionPlace(i, [&](std::size_t other) {
            return other < earlier ? 1 : other < upToEqual ? 0 : -1;
        });
        inserted.Add(group.first, 1);
        group.elements.push_back(i);
        group.behind.push_back(place - earlier);
    }
}

// From the last to the first: each stands at the free place that has as many free ones in front of it as it
// was put behind.
void Arrange(const cEquals& group, std::vector<std::size_t>& order) {
    cMarks free(group.elements.size());
    for (std::size_t i = 0; i < group.elements.size(); ++i) free.Add(i, 1);
    for (std::size_t i = group.elements.size(); i-- > 0;) {
        const std::size_t place = free.Find(group.behind[i]);
        free.Add(place, -1);
        order[group.first + place] = group.elements[i];
    }
}

}  // namespace

cInsertionOrder OrderByInsertion(const std::vector<DateTime>& times) {
    cInsertionOrder result;
    std::vector<std::size_t>& order = result.order;
    order.resize(times.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    const auto earlier = [&](std::size_t a, std::size_t b) { return Earlier(times[a], times[b]); };
    std::stable_sort(order.begin(), order.end(), earlier);
    result.hasEqualTimes =
        std::adjacent_find(order.begin(), order.end(), std::not_fn(earlier)) != order.end();
    if (!result.hasEqualTimes) return result;
    std::vector<cEquals> groups;
    std::vector<std::size_t> groupOf(times.size());
    for (std::size_t i = 0; i < order.size(); ++i) {
        if (i == 0 || earlier(order[i - 1], order[i])) groups.push_back({i, {}, {}});
        groupOf[order[i]] = groups.size() - 1;
    }
    PlayThrough(groups, groupOf);
    for (const cEquals& group : groups) Arrange(group, order);
    return result;
}

}  // namespace vigrel
