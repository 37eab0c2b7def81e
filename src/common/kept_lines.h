#pragma once

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "common/failure.h"
#include "common/line_problem.h"
#include "common/text.h"
#include "platform/files.h"

namespace vigrel {

// A text file that people write, with one entry a line. Comments, empty lines and lines that were not
// understood are kept where they stand: in front of the entry that follows them, in its m_LinesBefore, or
// among the lines after the last one.

// Empty, or with "#" in front.
bool IsCommentLine(std::string_view line);

// Replaces the entries by those of a text and says which lines of it were skipped. entryOf throws cFailure,
// with a description for the user, for a line that is none.
template <class Entry, class EntryOf>
std::vector<cLineProblem> ParseKeptLines(std::string_view text, const EntryOf& entryOf,
                                         std::vector<Entry>& entries, std::vector<std::string>& linesAfter) {
    entries.clear();
    linesAfter.clear();
    std::vector<cLineProblem> problems;
    std::size_t number = 0;
    for (const std::string& line : SplitLines(text)) {
        ++number;
        Entry entry;
        const auto failure = CatchFailure([&] {
            if (!IsCommentLine(line)) entry = entryOf(line);
        });
        if (failure) problems.push_back({number, failure->Description()});
        if (failure || IsCommentLine(line)) {
            linesAfter.push_back(line);
            continue;
        }
        entry.m_LinesBefore = std::exchange(linesAfter, {});
        entries.push_back(std::move(entry));
    }
    return problems;
}

// A list with Parse by the text of a file. One that is missing has no lines; one that can't be read is told
// of as a whole.
template <class List>
std::vector<cLineProblem> LoadLines(const cFileReader& files, std::string_view path, List& list) {
    list = {};
    std::string content;
    const auto failure = CatchFailure([&] { content = files.ReadFile(path); });
    if (!failure) return list.Parse(content);
    if (failure->Number() == eFailure::FileNotFound) return {};
    return {{0, failure->Description()}};
}

template <class Entry, class LineOf>
std::string TextOfKeptLines(const std::vector<Entry>& entries, const LineOf& lineOf,
                            const std::vector<std::string>& linesAfter) {
    std::string text;
    const auto add = [&text](const std::string& line) { text += line + "\r\n"; };
    for (const Entry& entry : entries) {
        std::for_each(entry.m_LinesBefore.begin(), entry.m_LinesBefore.end(), add);
        add(lineOf(entry));
    }
    std::for_each(linesAfter.begin(), linesAfter.end(), add);
    return text;
}

// The lines in front of it go to what follows.
template <class Entry>
void RemoveKeptEntry(std::size_t index, std::vector<Entry>& entries, std::vector<std::string>& linesAfter) {
    std::vector<std::string> lines = std::move(entries.at(index).m_LinesBefore);
    entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(index));
    std::vector<std::string>& next = index < entries.size() ? entries[index].m_LinesBefore : linesAfter;
    next.insert(next.begin(), std::make_move_iterator(lines.begin()), std::make_move_iterator(lines.end()));
}

}  // namespace vigrel
