#include "definitions/receiver_list.h"

#include "common/numbers.h"
#include "common/text.h"

namespace vigrel {

std::vector<std::string> ReceiverItems(std::string_view text) {
    std::vector<std::string> items;
    while (!text.empty()) {
        const std::size_t end = text.find(';');
        if (std::string item = Trim(text.substr(0, end)); !item.empty()) items.push_back(std::move(item));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return items;
}

std::string ReceiverText(const std::vector<std::string>& items) {
    std::string text;
    for (const std::string& item : items) text += (text.empty() ? "" : ";") + item;
    return text;
}

std::optional<std::int16_t> ReceiverIdentity(std::string_view item) {
    const bool digits =
        !item.empty() && item.size() <= 4 && item.find_first_not_of("0123456789") == std::string_view::npos;
    return digits ? std::optional(ToInt16(Val(item))) : std::nullopt;
}

}  // namespace vigrel
