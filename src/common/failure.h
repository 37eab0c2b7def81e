#pragma once

#include <memory>
#include <optional>
#include <stdexcept>
#include <utility>

#include "common/phrase.h"

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

// The one exception type of the logic, the adapters and the windows. Its text is the English of its phrase.
class cFailure : public std::runtime_error {
  public:
    cFailure(eFailure number, const cPhrase& description)
        : std::runtime_error(description.English()),
          m_Number(number),
          m_Description(std::make_shared<const cPhrase>(description)) {}
    eFailure Number() const { return m_Number; }
    const cPhrase& Description() const { return *m_Description; }

  private:
    eFailure m_Number;
    std::shared_ptr<const cPhrase> m_Description;  // shared, since a copy of an exception must not fail
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
