#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include "common/failure.h"

namespace vigrel::testing {

// While it lives, the process can open nothing more. A sanitizer that meets a type for the first time needs
// descriptors to look at it: a test uses each before, but for what is thrown.
class cNoDescriptors {
  public:
    cNoDescriptors() {
        const auto seen = CatchFailure([] { throw cFailure(eFailure::Unavailable, ""); });
        EXPECT_EQ(seen->Number(), eFailure::Unavailable);
        getrlimit(RLIMIT_NOFILE, &m_Usual);
        const int next = dup(STDERR_FILENO);
        close(next);
        rlimit none = m_Usual;
        none.rlim_cur = static_cast<rlim_t>(next);
        setrlimit(RLIMIT_NOFILE, &none);
    }
    ~cNoDescriptors() { setrlimit(RLIMIT_NOFILE, &m_Usual); }
    cNoDescriptors(const cNoDescriptors&) = delete;
    cNoDescriptors& operator=(const cNoDescriptors&) = delete;

  private:
    rlimit m_Usual{};
};

}  // namespace vigrel::testing
