#include "receiver_ui/list/report_rows.h"

#include <algorithm>
#include <iterator>
#include <set>

namespace vigrel {
namespace {

struct cRun {
    int first, count;
};

// The runs of adjoining rows in ascending row numbers.
std::vector<cRun> RunsOf(const std::vector<int>& rows) {
    std::vector<cRun> runs;
    for (const int row : rows) {
        if (!runs.empty() && runs.back().first + runs.back().count == row) {
            ++runs.back().count;
        } else {
            runs.push_back({row, 1});
        }
    }
    return runs;
}

}  // namespace

std::optional<int> cReportRows::RowOf(const cReportRecord& record) const {
    if (record.stage != cReportRecord::Placed) return std::nullopt;
    const auto before = [this](const cReportRecord* a, const cReportRecord* b) {
        return m_Order.Before(*a, *b);
    };
    const auto found = std::lower_bound(m_Rows.begin(), m_Rows.end(), &record, before);
    if (found == m_Rows.end() || *found != &record) return std::nullopt;
    return static_cast<int>(found - m_Rows.begin());
}

// Gives the records their keys, and sorts them among themselves.
void cReportRows::Place(Records& records) {
    for (cReportRecord* record : records) {
        record->key = m_Order.KeyOf(*record, m_ValueOf);
        record->stage = cReportRecord::Placed;
        record->moved = false;
    }
    m_Order.Sort(records);
}

std::vector<int> cReportRows::GiveUpRows(const Records& gone, const Records& moved) const {
    std::vector<int> rows;
    for (const Records* records : {&gone, &moved}) {
        for (const cReportRecord* record : *records) {
            if (const auto row = RowOf(*record)) rows.push_back(*row);
        }
    }
    // A row that is given up is looked for no more: its key may not fit the order that comes next.
    for (cReportRecord* record : gone) record->stage = cReportRecord::Gone;
    std::sort(rows.begin(), rows.end());
    return rows;
}

void cReportRows::Apply(const cRecordChanges& changes) {
    if (changes.everything) return Resort(changes, cRecordOrder(m_Order));
    // Rows are found by the keys under which they were placed, so before anything gets a new key.
    const std::vector<int> rows = GiveUpRows(changes.gone, changes.moved);
    Records records = changes.added;
    records.insert(records.end(), changes.moved.begin(), changes.moved.end());
    Place(records);
    // A row that moves must keep its selection, which is what a reset looks after.
    if (!changes.moved.empty() || RunsOf(rows).size() > kMaxRuns) return Merge(rows, records);
    RemoveRows(rows);
    InsertRecords(records);
}

void cReportRows::Resort(const cRecordChanges& changes, const cRecordOrder& order) {
    Records records;
    for (cReportRecord* record : m_Rows) {
        if (record->removed) {
            record->stage = cReportRecord::Gone;
        } else {
            records.push_back(record);
        }
    }
    records.insert(records.end(), changes.added.begin(), changes.added.end());
    m_Observer.beforeReset();
    m_Order = order;
    Place(records);
    m_Rows.assign(records.begin(), records.end());
    m_Observer.afterReset();
}

void cReportRows::Merge(const std::vector<int>& rows, const Records& records) {
    m_Observer.beforeReset();
    Records kept;
    kept.reserve(m_Rows.size());
    auto next = rows.begin();
    for (int row = 0; row < Count(); ++row) {
        if (next != rows.end() && *next == row) {
            ++next;
        } else {
            kept.push_back(m_Rows[static_cast<std::size_t>(row)]);
        }
    }
    m_Rows.clear();
    std::merge(kept.begin(), kept.end(), records.begin(), records.end(), std::back_inserter(m_Rows),
               [this](const cReportRecord* a, const cReportRecord* b) { return m_Order.Before(*a, *b); });
    m_Observer.afterReset();
}

void cReportRows::RemoveRows(const std::vector<int>& rows) {
    std::vector<cRun> runs = RunsOf(rows);
    std::reverse(runs.begin(), runs.end());
    for (const cRun run : runs) {
        m_Observer.beforeRemove(run.first, run.first + run.count - 1);
        m_Rows.erase(m_Rows.begin() + run.first, m_Rows.begin() + run.first + run.count);
        m_Observer.afterRemove();
    }
}

void cReportRows::InsertRecords(const Records& records) {
    const auto before = [this](const cReportRecord* a, const cReportRecord* b) {
        return m_Order.Before(*a, *b);
    };
    // The row in front of which each record goes; records with the same one go in together.
    std::vector<int> places;
    for (const cReportRecord* record : records) {
        const auto place = std::lower_bound(m_Rows.begin(), m_Rows.end(), record, before);
        places.push_back(static_cast<int>(place - m_Rows.begin()));
    }
    const std::size_t runs = std::set<int>(places.begin(), places.end()).size();
    if (runs > kMaxRuns) return Merge({}, records);
    for (std::size_t end = records.size(); end > 0;) {
        std::size_t first = end - 1;
        while (first > 0 && places[first - 1] == places[first]) --first;
        const int row = places[first];
        m_Observer.beforeInsert(row, row + static_cast<int>(end - first) - 1);
        m_Rows.insert(m_Rows.begin() + row, records.begin() + static_cast<std::ptrdiff_t>(first),
                      records.begin() + static_cast<std::ptrdiff_t>(end));
        m_Observer.afterInsert();
        end = first;
    }
}

}  // namespace vigrel
