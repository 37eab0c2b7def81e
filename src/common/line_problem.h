#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vigrel {

// What is wrong with one line of a text file that people write. Such a line is skipped, never guessed at, and
// the user is told of it.
struct cLineProblem {
    std::size_t line = 0;  // counted from 1; 0 when the file as a whole is meant
    std::string description;

    bool operator==(const cLineProblem&) const = default;
};

// "ReceiverTypes.txt, line 3: the name is empty"
inline std::string LineProblemText(std::string_view fileName, const cLineProblem& problem) {
    const std::string place = problem.line == 0 ? "" : ", line " + std::to_string(problem.line);
    return std::string(fileName) + place + ": " + problem.description;
}

}  // namespace vigrel
