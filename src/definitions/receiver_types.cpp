#include "definitions/receiver_types.h"

#include <algorithm>

#include "common/failure.h"
#include "common/kept_lines.h"
#include "common/numbers.h"
#include "common/text.h"

namespace vigrel {
namespace {

[[noreturn]] void Refuse(const cPhrase& description) {
    throw cFailure(eFailure::InvalidCall, description);
}

std::int16_t TypeIdFromText(const std::string& text) {
    const double value = IsNumeric(text) ? Val(text) : -1;
    if (value < 0 || value > 32767 || RoundEven(value) != value) {
        Refuse({Pattern("Reasons", "the type id \"%1\" is not a whole number from 0 to 32767"), {text}});
    }
    return ToInt16(value);
}

// The file is looked for in the application folder, so its name must not lead out of it.
void CheckSettingsFile(const std::string& name) {
    if (name.find_first_of("\\/:*?") != std::string::npos || name.starts_with('.')) {
        Refuse({Pattern("Reasons",
                        "the settings file \"%1\" is not the plain name of a file of the application folder"),
                {name}});
    }
}

cReceiverType TypeFromLine(std::string_view line) {
    const auto separators = std::count(line.begin(), line.end(), ';');
    if (separators < 2 || separators > 3) {
        Refuse({Pattern("Reasons",
                        "a line has three or four fields (id; kind; name; settings file), this one has %1"),
                {std::to_string(separators + 1)}});
    }
    const auto field = [line](std::int16_t index) { return Trim(GetField(line, index, ";")); };
    cReceiverType type;
    type.m_TypeId = TypeIdFromText(field(0));
    type.m_Kind = field(1);
    type.m_TypeName = field(2);
    type.m_SettingsFile = field(3);
    if (type.m_Kind.empty()) Refuse(Pattern("Reasons", "the kind is empty"));
    if (type.m_TypeName.empty()) Refuse(Pattern("Reasons", "the name is empty"));
    CheckSettingsFile(type.m_SettingsFile);
    return type;
}

}  // namespace

std::int16_t cReceiverTypes::RowOf(std::int16_t typeId) const {
    const auto row = std::find_if(m_ReceiverTypes.begin(), m_ReceiverTypes.end(),
                                  [typeId](const cReceiverType& type) { return type.m_TypeId == typeId; });
    return row == m_ReceiverTypes.end() ? std::int16_t{-1}
                                        : static_cast<std::int16_t>(row - m_ReceiverTypes.begin());
}

void cReceiverTypes::AddLine(std::string_view line) {
    cReceiverType type = TypeFromLine(line);
    if (RowOf(type.m_TypeId) >= 0) {
        Refuse({Pattern("Reasons", "the type id %1 stands on an earlier line too"),
                {std::to_string(type.m_TypeId)}});
    }
    if (m_ReceiverTypes.size() >= kMaxRows) {
        Refuse(
            {Pattern("Reasons", "the table is full: it has room for %1 types"), {std::to_string(kMaxRows)}});
    }
    m_ReceiverTypes.push_back(std::move(type));
}

std::vector<cLineProblem> cReceiverTypes::Load(const cFileReader& files, std::string_view path) {
    m_ReceiverTypes.clear();
    std::string content;
    if (const auto failure = CatchFailure([&] { content = files.ReadFile(path); })) {
        return {{0, failure->Description()}};
    }
    std::vector<cLineProblem> problems;
    std::size_t number = 0;
    for (const std::string& line : SplitLines(content)) {
        ++number;
        if (IsCommentLine(line)) continue;
        if (const auto failure = CatchFailure([&] { AddLine(line); })) {
            problems.push_back({number, failure->Description()});
        }
    }
    return problems;
}

}  // namespace vigrel
