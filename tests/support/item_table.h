#pragma once

#include <algorithm>
#include <map>
#include <memory>
#include <vector>

#include "platform/report_list.h"

namespace vigrel::testing {

// The owner of a list's records whose items a test sets one by one. An item that was never set is empty.
class cItemTable {
  public:
    explicit cItemTable(cReportList& list) : m_List(list) {
        m_List.OnItem = [](const RecordTag& tag, int item) {
            const auto* items = static_cast<const Items*>(tag.get());
            const auto index = static_cast<std::size_t>(item);
            return items != nullptr && index < items->size() ? (*items)[index] : cReportItem{};
        };
    }
    RecordId Add(const std::vector<ItemValue>& values = {}) {
        auto items = std::make_shared<Items>();
        for (const ItemValue& value : values) items->emplace_back().value = value;
        const RecordId record = m_List.AddRecord(items);
        m_Items[record] = items;
        return record;
    }
    // Sets an item by what set does to it.
    template <class Set>
    void Change(RecordId record, int item, Set set) {
        if (const auto items = m_Items.at(record).lock()) {
            items->resize(std::max(items->size(), static_cast<std::size_t>(item) + 1));
            set((*items)[static_cast<std::size_t>(item)]);
        }
        m_List.RecordChanged(record);
    }
    void SetValue(RecordId record, int item, const ItemValue& value) {
        Change(record, item, [&](cReportItem& changed) { changed.value = value; });
    }
    void SetIcon(RecordId record, int item, int icon) {
        Change(record, item, [&](cReportItem& changed) { changed.icon = icon; });
    }
    // A text that shows.
    void SetText(RecordId record, int item, const std::string& text) {
        Change(record, item, [&](cReportItem& changed) {
            changed.value = text;
            changed.hasCaption = true;
        });
    }
    void SetColours(RecordId record, int item, std::int32_t text, std::int32_t back) {
        Change(record, item, [&](cReportItem& changed) {
            changed.hasColours = true;
            changed.textColour = text;
            changed.backColour = back;
        });
    }

  private:
    using Items = std::vector<cReportItem>;
    cReportList& m_List;
    std::map<RecordId, std::weak_ptr<Items>> m_Items;
};

}  // namespace vigrel::testing
