#include "adapters/qt/linger.h"

#include <string>
#include <utility>

namespace vigrel {
namespace {

constexpr int kLingerMilliseconds = 2000, kLookMilliseconds = 250;

}  // namespace

cLingeringConnections::cLingeringConnections() {
    m_Timer.setInterval(kLookMilliseconds);
    m_Timer.callOnTimeout([this] { DropOld(); });
}

void cLingeringConnections::Add(std::unique_ptr<cTcpConnection> connection) {
    if (connection->IsDone()) return;
    if (m_Connections.size() == kMost) m_Connections.pop_front();
    connection->OnReadable = [this, raw = connection.get()] { ReadOn(*raw); };
    connection->EndSending();
    m_Connections.push_back({std::move(connection), QDeadlineTimer(kLingerMilliseconds)});
    m_Timer.start();
}

void cLingeringConnections::ReadOn(cTcpConnection& connection) {
    std::string dropped;
    const auto read = connection.Read(dropped);
    if (read == cTcpConnection::eRead::Bytes || read == cTcpConnection::eRead::Nothing) return;
    std::erase_if(m_Connections,
                  [&](const cLingering& lingering) { return lingering.connection.get() == &connection; });
}

void cLingeringConnections::DropOld() {
    while (!m_Connections.empty() && m_Connections.front().end.hasExpired()) m_Connections.pop_front();
    if (m_Connections.empty()) m_Timer.stop();
}

}  // namespace vigrel
