#include "vigrel-report/record/moments.h"

namespace vigrel::report {

Spans Joined(Spans spans) {
    std::sort(spans.begin(), spans.end(), [](const cSpan& a, const cSpan& b) { return a.begin < b.begin; });
    Spans joined;
    for (const cSpan& span : spans) {
        if (span.Length() <= 0) continue;
        if (!joined.empty() && span.begin <= joined.back().end) {
            joined.back().end = std::max(joined.back().end, span.end);
        } else {
            joined.push_back(span);
        }
    }
    return joined;
}

Spans Within(const Spans& spans, const cSpan& limits) {
    Spans within;
    for (const cSpan& span : spans) {
        const cSpan part{std::max(span.begin, limits.begin), std::min(span.end, limits.end)};
        if (part.Length() > 0) within.push_back(part);
    }
    return within;
}

Spans Without(const Spans& spans, const Spans& taken) {
    Spans left;
    for (const cSpan& span : spans) {
        Moment from = span.begin;
        for (const cSpan& hole : Within(taken, span)) {
            if (hole.begin > from) left.push_back({from, hole.begin});
            from = hole.end;
        }
        if (span.end > from) left.push_back({from, span.end});
    }
    return left;
}

Seconds TotalLength(const Spans& spans) {
    Seconds total = 0;
    for (const cSpan& span : spans) total += span.Length();
    return total;
}

bool HoldsMoment(const Spans& spans, Moment moment) {
    const auto behind = std::upper_bound(spans.begin(), spans.end(), moment,
                                         [](Moment m, const cSpan& span) { return m < span.begin; });
    return behind != spans.begin() && std::prev(behind)->Holds(moment);
}

}  // namespace vigrel::report
