#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "common/receiver_state.h"
#include "link/line_length.h"
#include "platform/sockets.h"

namespace vigrel {

// The link to the alarm server: one listening port, one connection at most, lines cut from the byte stream,
// one reply to each. It speaks only in answer. A stream that is no sender's is closed.
class cServerLink {
  public:
    // Direction of a trace.
    static constexpr std::int16_t FromSender = 1;
    static constexpr std::int16_t ToSender = 2;

    cServerLink(cListener& connect, cDataSocket& data, const cReceiverState& state);

    // The address is a number; empty: all of the machine's. Throws cFailure when the port can't be opened.
    void Listen(std::string_view address, std::int32_t port);
    // Sends one reply. Never fails: a peer that is gone gets none.
    void SendReply(std::string_view text);

    // Called with each complete line, its line feed and all carriage returns removed.
    std::function<void(const std::string& line)> ProcessRecord;
    // Called with what crosses the link while the debug mode is on.
    std::function<void(std::string_view text, std::int16_t kind)> WriteTrace;

  private:
    void ConnectionRequest(std::int32_t requestId);
    void DataArrival();
    void Take(std::string_view arrived);
    void Trace(std::string_view text, std::int16_t kind) const;

    cListener& m_WinsockConnect;
    cDataSocket& m_WinsockData;
    const cReceiverState& m_State;
    std::string m_ReceiveBuffer;
    cLineLength m_LineLength;
};

}  // namespace vigrel
