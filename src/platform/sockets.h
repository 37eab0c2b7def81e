#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace vigrel {

// The listening end. It accepts nothing itself; it reports each peer that knocks with an id, which a
// cDataSocket takes over. An id that nobody accepts before the event returns is closed.
//
// What had reached the machine on the socket's connection before a peer knocked comes first, as data events,
// and if the peer of that connection has ended it, all that it sent, and its end: who leaves in haste, or is
// replaced, loses nothing that had arrived.
class cListener {
  public:
    virtual ~cListener() = default;
    // Number of one of the machine's addresses; empty, as without a call, for all of them, IPv4 and IPv6.
    virtual void SetLocalAddress(std::string_view address) = 0;
    virtual void SetLocalPort(std::int32_t port) = 0;
    // Throws cFailure when the port can't be opened at the address; Unavailable while the machine has no such
    // address, which can come by itself.
    virtual void Listen() = 0;

    std::function<void(std::int32_t requestId)> OnConnectionRequest;
};

// One connection carrying bytes, each byte being one character.
class cDataSocket {
  public:
    virtual ~cDataSocket() = default;
    // 0 when closed, any other value otherwise.
    virtual int State() const = 0;
    // Ends the connection and forgets what was received and not yet fetched. Bytes already sent still go out.
    // No event follows.
    virtual void Close() = 0;
    // Takes over the connection of a request. The socket must be closed. Throws cFailure for an unknown id.
    virtual void Accept(std::int32_t requestId) = 0;
    // Everything received since the last fetch; at most a few KiB, since no more is read in one turn.
    virtual std::string Fetch() = 0;
    // Queues the bytes and hands them to the network at once. Throws cFailure when the socket is not
    // connected.
    virtual void Send(std::string_view bytes) = 0;

    // Events, delivered from the event loop.
    std::function<void()> OnDataArrival;
    std::function<void()> OnClosed;
    std::function<void()> OnError;
};

}  // namespace vigrel
