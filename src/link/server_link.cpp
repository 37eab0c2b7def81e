#include "link/server_link.h"

#include "common/failure.h"
#include "common/text.h"

namespace vigrel {

cServerLink::cServerLink(cListener& connect, cDataSocket& data, const cReceiverState& state)
    : m_WinsockConnect(connect), m_WinsockData(data), m_State(state) {
    m_WinsockConnect.OnConnectionRequest = [this](std::int32_t requestId) { ConnectionRequest(requestId); };
    m_WinsockData.OnDataArrival = [this] { DataArrival(); };
    m_WinsockData.OnClosed = [this] { m_WinsockData.Close(); };
    m_WinsockData.OnError = [this] { m_WinsockData.Close(); };
}

void cServerLink::Listen(std::string_view address, std::int32_t port) {
    m_WinsockConnect.SetLocalAddress(address);
    m_WinsockConnect.SetLocalPort(port);
    m_WinsockConnect.Listen();
}

void cServerLink::Trace(std::string_view text, std::int16_t kind) const {
    if (m_State.m_DebugMode) WriteTrace(text, kind);
}

// The last to arrive wins: a sender that lost its connection without a word must get in again.
void cServerLink::ConnectionRequest(std::int32_t requestId) {
    if (m_WinsockData.State() != 0) m_WinsockData.Close();
    m_ReceiveBuffer.clear();
    m_LineLength.BeginConnection();
    m_WinsockData.Accept(requestId);
}

void cServerLink::DataArrival() {
    const std::string data = m_WinsockData.Fetch();
    Trace(data, FromSender);
    std::string_view rest = data;
    do {
        const std::string_view together = rest.substr(0, m_LineLength.Together(rest));
        if (!m_LineLength.Count(together)) return m_WinsockData.Close();
        Take(together);
        rest.remove_prefix(together.size());
    } while (!rest.empty());
}

void cServerLink::Take(std::string_view arrived) {
    m_ReceiveBuffer += arrived;
    ReplaceText(m_ReceiveBuffer, "\r", "");
    for (std::size_t end = m_ReceiveBuffer.find('\n'); end != std::string::npos;
         end = m_ReceiveBuffer.find('\n')) {
        ProcessRecord(m_ReceiveBuffer.substr(0, end));
        m_ReceiveBuffer.erase(0, end + 1);
    }
}

void cServerLink::SendReply(std::string_view text) {
    Trace(text, ToSender);
    SkipFailure([&] { m_WinsockData.Send(text); });
}

}  // namespace vigrel
