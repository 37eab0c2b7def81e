#include "adapters/linux/start_thread.h"

#include <system_error>
#include <utility>

#include "adapters/linux/system_error_text.h"
#include "common/failure.h"

namespace vigrel {

std::thread StartThread(std::function<void()> work) {
    try {
        return std::thread(std::move(work));
    } catch (const std::system_error& error) {
        throw cFailure(eFailure::Unavailable, "no thread: " + SystemErrorText(error.code().value()));
    }
}

}  // namespace vigrel
