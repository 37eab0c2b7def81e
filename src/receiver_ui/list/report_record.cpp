#include "receiver_ui/list/report_record.h"

#include <algorithm>

#include "common/code_page.h"
#include "common/dates.h"

namespace vigrel {
namespace {

// Below, equal to or above 0. Numbers stand in front of texts.
int Compare(const ItemValue& a, const ItemValue& b) {
    if (a.index() != b.index()) return std::holds_alternative<double>(a) ? -1 : 1;
    if (const double* number = std::get_if<double>(&a)) {
        const double other = *std::get_if<double>(&b);
        return Earlier(*number, other) ? -1 : Earlier(other, *number) ? 1 : 0;
    }
    return std::get_if<std::string>(&a)->compare(*std::get_if<std::string>(&b));
}

ItemValue KeyValue(const cReportRecord& record, int column) {
    if (static_cast<std::size_t>(column) >= record.items.size()) return {};
    const ItemValue& value = record.items[static_cast<std::size_t>(column)].value;
    if (const std::string* text = std::get_if<std::string>(&value)) return ToUpper(*text);
    return value;
}

}  // namespace

bool cRecordOrder::SortsBy(int column) const {
    return std::any_of(m_Columns.begin(), m_Columns.end(),
                       [column](const cColumn& sort) { return sort.column == column; });
}

SortKey cRecordOrder::KeyOf(const cReportRecord& record) const {
    SortKey key;
    key.reserve(m_Columns.size());
    for (const cColumn& sort : m_Columns) key.push_back(KeyValue(record, sort.column));
    return key;
}

bool cRecordOrder::Before(const cReportRecord& a, const cReportRecord& b) const {
    for (std::size_t i = 0; i < m_Columns.size(); ++i) {
        const int order = Compare(a.key[i], b.key[i]);
        if (order != 0) return m_Columns[i].ascending ? order < 0 : order > 0;
    }
    const bool ascending = m_Columns.empty() || m_Columns.back().ascending;
    return ascending ? a.id < b.id : a.id > b.id;
}

}  // namespace vigrel
