#include "common/delivered_texts.h"

#include <algorithm>
#include <set>

#include "common/failure.h"
#include "common/numbers.h"
#include "common/text.h"

namespace vigrel {
namespace {

constexpr std::string_view kBlanks = " \t";
constexpr const char* kEnglish = "044";
constexpr std::int32_t kNameOfLanguage = 0;

bool IsEntry(const std::string& line) {
    return line.find('=') != std::string::npos;
}

// Lines whose number is none are told when the file is read.
std::set<std::int32_t> IdsOf(std::string_view content) {
    std::set<std::int32_t> ids{kNameOfLanguage};
    for (const std::string& line : SplitLines(content)) {
        if (IsEntry(line)) SkipFailure([&] { ids.insert(TextIdOf(line)); });
    }
    return ids;
}

std::string LineEndOf(std::string_view content) {
    const std::size_t end = content.find_first_of("\r\n");
    if (end == std::string_view::npos || content.substr(end, 2) == "\r\n") return "\r\n";
    return std::string(content.substr(end, 1));
}

}  // namespace

std::string_view cDeliveredTexts::Of(const std::string& language) const {
    const auto found = m_Contents.find(language);
    if (found != m_Contents.end()) return found->second;
    const auto english = m_Contents.find(kEnglish);
    return english == m_Contents.end() ? std::string_view() : english->second;
}

std::int32_t TextIdOf(const std::string& line) {
    const std::string id = GetField(line, 0, "=");
    const std::size_t first = std::min(id.find_first_not_of(kBlanks), id.size());
    return ToInt32(Val(id.substr(first, id.find_first_of(kBlanks, first) - first)));
}

cCompletedTexts CompleteTexts(std::string content, std::string_view delivered) {
    std::set<std::int32_t> known = IdsOf(content);
    const std::string end = LineEndOf(content);
    cCompletedTexts completed;
    std::string more;
    for (const std::string& line : SplitLines(delivered)) {
        if (!IsEntry(line) || !known.insert(TextIdOf(line)).second) continue;
        completed.added.push_back(std::to_string(TextIdOf(line)));
        more += line + end;
    }
    // A last line without an end would swallow the first that is added.
    const bool open = !content.empty() && content.back() != '\n' && content.back() != '\r';
    completed.content = std::move(content);
    if (!more.empty()) completed.content += (open ? end : "") + more;
    return completed;
}

}  // namespace vigrel
