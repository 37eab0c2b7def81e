#include "receiver_ui/list/report_record.h"

#include <algorithm>
#include <array>

#include "common/code_page.h"
#include "common/dates.h"
#include "common/text.h"

namespace vigrel {
namespace {

// In front of each value, so that numbers stand in front of texts.
constexpr char kNumber = 1;
constexpr char kText = 2;

void AppendBigEndian(std::string& key, std::uint64_t bits) {
    for (int shift = 56; shift >= 0; shift -= 8) key.push_back(static_cast<char>(bits >> shift));
}

// The numbers of a list are times.
void AppendNumber(std::string& key, double number) {
    key.push_back(kNumber);
    AppendBigEndian(key, TimeRank(number));
}

// Ends in two zeros, so that a text stands in front of those that begin with it whatever follows; a zero of
// its own is marked.
void AppendText(std::string& key, std::string_view text) {
    key.push_back(kText);
    for (const char c : text) {
        key.push_back(ToUpper(c));
        if (c == '\0') key.push_back('\xFF');
    }
    key.append(2, '\0');
}

// A record with the first bytes of its key, which decide most comparisons without a look at the record.
struct cSortEntry {
    static constexpr std::size_t kWords = 2;
    std::array<std::uint64_t, kWords> front{};
    cReportRecord* record;

    explicit cSortEntry(cReportRecord* owner) : record(owner) {
        for (std::size_t i = 0; i < kWords * 8; ++i) {
            const auto byte = static_cast<std::uint64_t>(i < owner->key.size() ? Code(owner->key[i]) : 0);
            front[i / 8] = front[i / 8] << 8 | byte;
        }
    }
};

}  // namespace

bool cRecordOrder::SortsBy(int column) const {
    return std::any_of(m_Columns.begin(), m_Columns.end(),
                       [column](const cColumn& sort) { return sort.column == column; });
}

SortKey cRecordOrder::KeyOf(const cReportRecord& record, const ValueOf& valueOf) const {
    SortKey key;
    for (const cColumn& sort : m_Columns) {
        const std::size_t from = key.size();
        const ItemValue value = valueOf(record, sort.column);
        if (const double* number = std::get_if<double>(&value)) {
            AppendNumber(key, *number);
        } else {
            AppendText(key, *std::get_if<std::string>(&value));
        }
        if (sort.ascending) continue;
        std::transform(key.begin() + static_cast<std::ptrdiff_t>(from), key.end(),
                       key.begin() + static_cast<std::ptrdiff_t>(from),
                       [](char c) { return static_cast<char>(~c); });
    }
    return key;
}

bool cRecordOrder::Before(const cReportRecord& a, const cReportRecord& b) const {
    const int order = a.key.compare(b.key);
    if (order != 0) return order < 0;
    return OlderFirst() ? a.id < b.id : a.id > b.id;
}

void cRecordOrder::Sort(std::vector<cReportRecord*>& records) const {
    const auto before = [this](const cReportRecord* a, const cReportRecord* b) { return Before(*a, *b); };
    if (std::is_sorted(records.begin(), records.end(), before)) return;
    std::vector<cSortEntry> entries(records.begin(), records.end());
    std::sort(entries.begin(), entries.end(), [this](const cSortEntry& a, const cSortEntry& b) {
        return a.front != b.front ? a.front < b.front : Before(*a.record, *b.record);
    });
    std::transform(entries.begin(), entries.end(), records.begin(),
                   [](const cSortEntry& entry) { return entry.record; });
}

}  // namespace vigrel
