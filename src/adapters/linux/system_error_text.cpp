#include "adapters/linux/system_error_text.h"

#include <cstring>

#include "common/code_page.h"

namespace vigrel {

std::string SystemErrorText(int error) {
    return Utf8ToCodePage(std::strerror(error));
}

}  // namespace vigrel
