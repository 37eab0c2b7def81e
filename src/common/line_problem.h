#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "common/phrase.h"

namespace vigrel {

// What is wrong with one line of a text file that people write. Such a line is skipped, never guessed at, and
// the user is told of it.
struct cLineProblem {
    std::size_t line = 0;  // counted from 1; 0 when the file as a whole is meant
    cPhrase description = "";

    bool operator==(const cLineProblem&) const = default;
};

// "ReceiverTypes.txt, line 3: the name is empty"
inline cPhrase LineProblemPhrase(std::string_view fileName, const cLineProblem& problem) {
    const std::string file(fileName);
    if (problem.line == 0) return {Pattern("Reasons", "%1: %2"), {file, problem.description}};
    return {Pattern("Reasons", "%1, line %2: %3"), {file, std::to_string(problem.line), problem.description}};
}

}  // namespace vigrel
