// Under the thread sanitizer only. The toolkit starts programs by a clone that shares its memory until the
// program runs. The sanitizer takes it for a fork, notes that in the memory shared, and looks at nothing from
// then on; so clone goes around it.
#ifdef __SANITIZE_THREAD__

#include <dlfcn.h>
#include <sched.h>
#include <sys/types.h>

#include <cstdarg>

extern "C" int clone(int (*function)(void*), void* stack, int flags, void* argument, ...) noexcept {
    using Clone = int (*)(int (*)(void*), void*, int, void*, pid_t*, void*, pid_t*);
    static const auto libraryClone = reinterpret_cast<Clone>(dlsym(dlopen("libc.so.6", RTLD_LAZY), "clone"));
    va_list rest;
    va_start(rest, argument);
    pid_t* parentId = va_arg(rest, pid_t*);
    void* storage = va_arg(rest, void*);
    pid_t* childId = va_arg(rest, pid_t*);
    va_end(rest);
    return libraryClone(function, stack, flags, argument, parentId, storage, childId);
}

#endif
