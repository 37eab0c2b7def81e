#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <utility>

namespace vigrel {

// Numbers of the failures that the system tells apart.
enum class eFailure {
    InvalidCall = 5,
    Overflow = 6,
    OutOfBounds = 9,
    TypeMismatch = 13,
    FileNotFound = 53,
    FileExists = 58,
    Unavailable = 68,  // for now: it can come by itself
    DiskFull = 61,
    PermissionDenied = 70,
    PathAccess = 75,
    InputOutput = 57,
    ObjectMissing = 91,
    Device = 440,
};

// The one exception type of the logic, the adapters and the windows.
class cFailure : public std::runtime_error {
  public:
    cFailure(eFailure number, const std::string& description)
        : std::runtime_error(description), m_Number(number) {}
    eFailure Number() const { return m_Number; }

  private:
    eFailure m_Number;
};

// Runs one step whose failure is skipped, so that the next step runs all the same. True when it did not fail.
template <class Statement>
bool SkipFailure(Statement&& statement) {
    try {
        std::forward<Statement>(statement)();
        return true;
    } catch (const cFailure&) {
        return false;
    }
}

// Runs a step, and cleans up behind one that fails before its failure goes on.
template <class Statement, class CleanUp>
void CleanUpBehind(Statement&& statement, CleanUp&& cleanUp) {
    try {
        std::forward<Statement>(statement)();
    } catch (const cFailure&) {
        std::forward<CleanUp>(cleanUp)();
        throw;
    }
}

// Runs steps up to the first failure and gives that failure back, for callers that report it.
template <class Statement>
std::optional<cFailure> CatchFailure(Statement&& statement) {
    try {
        std::forward<Statement>(statement)();
        return std::nullopt;
    } catch (const cFailure& failure) {
        return failure;
    }
}

}  // namespace vigrel
