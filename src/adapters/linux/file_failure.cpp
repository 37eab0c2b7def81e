#include "adapters/linux/file_failure.h"

#include <cerrno>
#include <string>

#include "adapters/linux/system_error_text.h"
#include "common/failure.h"

namespace vigrel {
namespace {

eFailure FailureNumber(int error) {
    switch (error) {
        case ENOENT:
            return eFailure::FileNotFound;
        case EEXIST:
            return eFailure::FileExists;
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return eFailure::DiskFull;
        case EACCES:
        case EPERM:
        case EROFS:
            return eFailure::PermissionDenied;
        case ENOTDIR:
        case EISDIR:
            return eFailure::PathAccess;
        default:
            return eFailure::InputOutput;
    }
}

}  // namespace

void FailByErrno(std::string_view path) {
    const int error = errno;
    throw cFailure(FailureNumber(error),
                   {Pattern("Reasons", "%1: %2"), {std::string(path), SystemErrorPhrase(error)}});
}

const char* NoOrdinaryFile() {
    return Pattern("Reasons", "no ordinary file").english;
}

const char* WhyNoFile(const struct stat& status) {
    if (!S_ISREG(status.st_mode)) return NoOrdinaryFile();
    return status.st_size > kLargestFile ? Pattern("Reasons", "larger than 64 MB").english : nullptr;
}

void FailAsNoFile(std::string_view path, const char* reason) {
    throw cFailure(eFailure::PathAccess,
                   {Pattern("Reasons", "%1: %2"), {std::string(path), cPattern{"Reasons", reason}}});
}

}  // namespace vigrel
