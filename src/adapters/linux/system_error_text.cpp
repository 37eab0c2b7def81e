#include "adapters/linux/system_error_text.h"

#include <cerrno>
#include <cstring>

#include "common/code_page.h"

namespace vigrel {
namespace {

cPattern PatternOf(int error) {
    switch (error) {
        case ENOENT:
            return Pattern("Reasons", "there is no such file or folder");
        case EEXIST:
            return Pattern("Reasons", "it is there already");
        case ENOSPC:
        case EDQUOT:
            return Pattern("Reasons", "there is no room left on the disk");
        case EACCES:
        case EPERM:
            return Pattern("Reasons", "the access rights don't allow it");
        case EROFS:
            return Pattern("Reasons", "the disk can only be read");
        case ENOTDIR:
            return Pattern("Reasons", "a part of the path is not a folder");
        case EISDIR:
            return Pattern("Reasons", "it is a folder");
        case EIO:
            return Pattern("Reasons", "the disk has failed");
        default:
            return {};
    }
}

}  // namespace

std::string SystemErrorText(int error) {
    return Utf8ToCodePage(std::strerror(error));
}

cPhrase SystemErrorPhrase(int error) {
    return cPhrase::OfSystem(PatternOf(error), SystemErrorText(error));
}

}  // namespace vigrel
