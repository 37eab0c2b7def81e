#pragma once

#include <QSocketNotifier>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "adapters/linux/file_handle.h"

namespace vigrel {

// One accepted connection over its descriptor. The two directions fail on their own: what had arrived can
// still be read when the peer takes no more replies. (The toolkit's own socket gives up both at the first
// failed write.)
class cTcpConnection {
  public:
    // Most bytes that one turn of the event loop reads, so that timers and windows get their turn in a flood.
    static constexpr std::size_t kBytesPerTurn = 4096;
    // A peer that has left more replies than this unread takes none any more.
    static constexpr std::size_t kMostUnsent = 16'777'216;

    explicit cTcpConnection(cFileHandle descriptor);
    cTcpConnection(const cTcpConnection&) = delete;
    cTcpConnection& operator=(const cTcpConnection&) = delete;

    enum class eRead { Bytes, Nothing, End, Failed };
    // Appends what one turn may read. After End and Failed no more notices come.
    eRead Read(std::string& bytes);
    // What has arrived and was not read yet, in bytes.
    std::size_t Arrived() const;
    // Waits for more, awake and for 50 us at most: going to sleep for what comes at once costs more than
    // that.
    void AwaitMore() const;
    // The peer has ended its sending side, or all of the connection; what it sent before may wait to be read.
    bool PeerHasLeft() const;
    // Hands the bytes to the network, now or when it has room. False when the peer takes nothing any more.
    bool Send(std::string_view bytes);
    // Ends the sending side behind the last byte that waits.
    void EndSending();
    // Whether it may simply be closed: it has carried nothing in either direction, or the peer has ended it
    // and all is sent.
    bool IsDone() const { return !m_Carried || (m_PeerEnded && m_Unsent.empty()); }

    // There is something to read, or the end. The connection may be deleted in it.
    std::function<void()> OnReadable;

  private:
    struct cNotifierDeleter {
        void operator()(QSocketNotifier* notifier) const;
    };
    using NotifierPtr = std::unique_ptr<QSocketNotifier, cNotifierDeleter>;
    void Flush();

    cFileHandle m_Descriptor;  // outlives its notifiers
    NotifierPtr m_Readable, m_Writable;
    std::string m_Unsent;
    bool m_Broken = false;  // nothing can be sent any more
    bool m_Ending = false;
    bool m_Carried = false;
    bool m_PeerEnded = false;
};

}  // namespace vigrel
