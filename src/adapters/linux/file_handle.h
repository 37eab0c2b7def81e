#pragma once

#include <unistd.h>

#include <utility>

namespace vigrel {

// Owns a file descriptor of the operating system; closes it. -1 for none.
class cFileHandle {
  public:
    explicit cFileHandle(int descriptor = -1) : m_Descriptor(descriptor) {}
    ~cFileHandle() { Reset(); }
    cFileHandle(cFileHandle&& other) noexcept : m_Descriptor(std::exchange(other.m_Descriptor, -1)) {}
    cFileHandle& operator=(cFileHandle&& other) noexcept {
        std::swap(m_Descriptor, other.m_Descriptor);
        return *this;
    }

    explicit operator bool() const { return m_Descriptor >= 0; }
    int Get() const { return m_Descriptor; }
    // The descriptor is the caller's from now on.
    int Release() { return std::exchange(m_Descriptor, -1); }
    void Reset() {
        if (m_Descriptor >= 0) close(Release());
    }

  private:
    int m_Descriptor;
};

}  // namespace vigrel
