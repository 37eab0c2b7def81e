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
    throw cFailure(FailureNumber(error), std::string(path) + ": " + SystemErrorText(error));
}

const char* WhyNoFile(const struct stat& status) {
    if (!S_ISREG(status.st_mode)) return "no ordinary file";
    return status.st_size > kLargestFile ? "larger than 64 MB" : nullptr;
}

void FailAsNoFile(std::string_view path, const char* reason) {
    throw cFailure(eFailure::PathAccess, std::string(path) + ": " + reason);
}

}  // namespace vigrel
