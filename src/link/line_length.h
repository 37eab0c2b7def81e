#pragma once

#include <cstddef>
#include <string_view>

namespace vigrel {

// How long the line gets that arrives on a connection, in bytes as they came: what the link drops counts too.
class cLineLength {
  public:
    // The longest line that a sender may send, its end included.
    static constexpr std::size_t kLongest = 32'767;
    // A stream without a line end that has grown to more than this is no sender's.
    static constexpr std::size_t kMost = 1'048'576;

    void BeginConnection() { m_Bytes = 0; }
    // How many of the bytes that arrived next are looked at together, before the rest. Positions in what
    // waits for a line's end are 16 bits wide: a line that is not too long by itself must not become so by
    // what follows it.
    std::size_t Together(std::string_view arrived) const;
    // Counts bytes that arrived next. False when the stream is no sender's.
    bool Count(std::string_view arrived);

  private:
    std::size_t m_Bytes = 0;  // since the last line feed
};

}  // namespace vigrel
