#include "adapters/linux/standard_streams.h"

#include <fcntl.h>

namespace vigrel {

void OpenStandardStreams() {
    constexpr int kStreams = 3;
    for (int stream = 0; stream < kStreams; ++stream) {
        const bool missing = fcntl(stream, F_GETFD) < 0;
        // It gets the lowest number that is free: this one, since those below are taken.
        if (missing && open("/dev/null", O_RDWR) != stream) return;
    }
}

}  // namespace vigrel
