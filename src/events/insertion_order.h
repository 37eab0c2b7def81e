#pragma once

#include <cstddef>
#include <vector>

#include "platform/clock.h"

namespace vigrel {

// Where the store's search puts a newcomer among elements 0 to count - 1. side(i) tells how the newcomer
// stands to element i: below 0 earlier, 0 equal, above 0 later.
//
// A binary search between two bounds that are elements themselves: it ends when it comes back to the one that
// it came from. Among equal times the newcomer stands behind the element that the search met first. With the
// elements a b c d, all of one time, the search begins at c (index 2 of 4): a fifth one stands as a b c e d.
template <class Side>
std::size_t FindInsertionPlace(std::size_t count, Side side) {
    // Mostly the newcomer is the newest; the search would come to the same, by way of many others.
    if (count == 0 || side(count - 1) > 0) return count;
    std::size_t low = 0;
    std::size_t high = count;
    // Half of the count, ties to the even neighbour.
    std::size_t mid = count / 2 + (count % 4 == 3 ? 1 : 0);
    while (true) {
        const int relation = side(mid);
        if (relation == 0) return mid + 1;
        const bool earlier = relation < 0;
        std::size_t& bound = earlier ? high : low;
        if (bound == mid) return earlier ? high : low + 1;
        bound = mid;
        mid = low + (high - low) / 2;
    }
}

// The order in which elements come to stand that are inserted one after the other by that search, as indexes
// of the times: what inserting them all into one long row gives, without moving the row for each.
struct cInsertionOrder {
    std::vector<std::size_t> order;
    bool hasEqualTimes = false;
};
cInsertionOrder OrderByInsertion(const std::vector<DateTime>& times);

}  // namespace vigrel
