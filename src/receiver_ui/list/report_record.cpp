#include "receiver_ui/list/report_record.h"

#include <algorithm>
#include <array>
#include <compare>
#include <cstring>

#include "common/code_page.h"
#include "common/dates.h"
#include "common/text.h"

namespace vigrel {
namespace {

// In front of each value, so that numbers stand in front of texts.
constexpr char kNumber = 1;
constexpr char kText = 2;

void AppendBigEndian(std::string& key, std::uint64_t bits) {
    std::array<char, 8> bytes;
    for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<char>(bits >> (56 - 8 * i));
    key.append(bytes.data(), bytes.size());
}

// The numbers of a list are times.
void AppendNumber(std::string& key, double number) {
    key.push_back(kNumber);
    AppendBigEndian(key, TimeRank(number));
}

void AppendUpper(std::string& key, std::string_view text) {
    const std::size_t from = key.size();
    key.resize(from + text.size());
    std::transform(text.begin(), text.end(), key.begin() + static_cast<std::ptrdiff_t>(from),
                   [](char c) { return ToUpper(c); });
}

// Ends in two zeros, so that a text stands in front of those that begin with it whatever follows; a zero of
// its own is marked.
void AppendText(std::string& key, std::string_view text) {
    key.reserve(key.size() + text.size() + 3);
    key.push_back(kText);
    for (std::size_t zero = text.find('\0'); zero != std::string_view::npos; zero = text.find('\0')) {
        AppendUpper(key, text.substr(0, zero + 1));
        key.push_back('\xFF');
        text.remove_prefix(zero + 1);
    }
    AppendUpper(key, text);
    key.append(2, '\0');
}

// A record with what decides nearly all comparisons without a look at it: the first bytes of its key and,
// when these are all, its age.
struct cSortEntry {
    static constexpr std::size_t kWords = 3;
    std::array<std::uint64_t, kWords> front{};
    RecordId id;
    cReportRecord* record;
    bool isAll;

    explicit cSortEntry(cReportRecord* owner)
        : id(owner->id), record(owner), isAll(owner->key.size() <= kWords * 8) {
        std::array<char, kWords * 8> bytes{};
        std::memcpy(bytes.data(), owner->key.data(), std::min(owner->key.size(), bytes.size()));
        for (std::size_t word = 0; word < kWords; ++word) front[word] = BigEndian(&bytes[word * 8]);
    }

    static std::uint64_t BigEndian(const char* bytes) {
        std::uint64_t word = 0;
        for (std::size_t i = 0; i < 8; ++i) word = word << 8 | static_cast<std::uint64_t>(Code(bytes[i]));
        return word;
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
    return order != 0 ? order < 0 : IsInFrontByAge(a.id, b.id);
}

void cRecordOrder::Sort(std::vector<cReportRecord*>& records) const {
    const auto before = [this](const cReportRecord* a, const cReportRecord* b) { return Before(*a, *b); };
    if (std::is_sorted(records.begin(), records.end(), before)) return;
    std::vector<cSortEntry> entries(records.begin(), records.end());
    std::sort(entries.begin(), entries.end(), [this](const cSortEntry& a, const cSortEntry& b) {
        if (const auto order = a.front <=> b.front; std::is_neq(order)) return std::is_lt(order);
        return a.isAll && b.isAll ? IsInFrontByAge(a.id, b.id) : Before(*a.record, *b.record);
    });
    std::transform(entries.begin(), entries.end(), records.begin(),
                   [](const cSortEntry& entry) { return entry.record; });
}

}  // namespace vigrel
