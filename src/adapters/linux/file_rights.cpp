#include "adapters/linux/file_rights.h"

#include <sys/stat.h>

namespace vigrel {

void KeepFilesPrivate() {
    constexpr mode_t kForOwner = S_IRWXG | S_IRWXO;
    const mode_t given = umask(kForOwner);
    if ((given & S_IRWXO) == S_IRWXO) umask(given);
}

}  // namespace vigrel
