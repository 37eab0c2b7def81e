#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "common/failure.h"
#include "platform/sockets.h"
#include "support/transcript.h"

namespace vigrel::testing {

class cFakeListener : public cListener {
  public:
    explicit cFakeListener(cTranscript* transcript = nullptr) : m_Transcript(transcript) {}
    void SetLocalAddress(std::string_view address) override { m_Address = address; }
    void SetLocalPort(std::int32_t port) override { m_Port = port; }
    void Listen() override {
        if (m_AddressMissing) throw cFailure(eFailure::Unavailable, m_Address + ": no such address");
        if (m_PortInUse) {
            throw cFailure(eFailure::Device, "Port " + std::to_string(m_Port) + ": address in use");
        }
        m_Listening = true;
        if (m_Transcript) m_Transcript->Add("listening on " + std::to_string(m_Port));
    }

    // A peer knocks. Whether its request was accepted before the event returned; if not, it is closed.
    bool Knock(std::int32_t requestId) {
        m_Pending.insert(requestId);
        if (m_Listening && OnConnectionRequest) OnConnectionRequest(requestId);
        return m_Pending.erase(requestId) == 0;
    }
    // Used by cFakeDataSocket: whether the id was there to be taken.
    bool TakeRequest(std::int32_t requestId) { return m_Pending.erase(requestId) > 0; }

    std::string m_Address;
    std::int32_t m_Port = 0;
    bool m_Listening = false;
    bool m_PortInUse = false;
    bool m_AddressMissing = false;

  private:
    cTranscript* m_Transcript;
    std::set<std::int32_t> m_Pending;
};

class cFakeDataSocket : public cDataSocket {
  public:
    explicit cFakeDataSocket(cFakeListener& listener, cTranscript* transcript = nullptr)
        : m_Listener(listener), m_Transcript(transcript) {}

    int State() const override { return m_Open ? 7 : 0; }
    void Close() override {
        if (m_Open && m_Transcript) m_Transcript->Add("data socket closed");
        m_Open = false;
        m_Received.clear();
    }
    void Accept(std::int32_t requestId) override {
        if (m_Open) throw cFailure(eFailure::InvalidCall, "Accept: the socket is open");
        if (!m_Listener.TakeRequest(requestId)) {
            throw cFailure(eFailure::InvalidCall, "Accept: unknown request");
        }
        m_Open = true;
        m_RequestId = requestId;
        if (m_Transcript) m_Transcript->Add("data socket accepts " + std::to_string(requestId));
    }
    std::string Fetch() override { return std::exchange(m_Received, {}); }
    void Send(std::string_view bytes) override {
        if (!m_Open || m_SendFails) throw cFailure(eFailure::Device, "Send: the socket is not connected");
        m_Sent += bytes;
        if (m_Transcript) m_Transcript->Add("sent " + Visible(bytes));
    }

    // The peer's bytes arrive as one chunk.
    void Arrive(std::string_view bytes) {
        if (!m_Open) return;
        m_Received += bytes;
        if (OnDataArrival) OnDataArrival();
    }
    void PeerCloses() {
        if (m_Open && OnClosed) OnClosed();
    }
    void PeerFails() {
        if (m_Open && OnError) OnError();
    }
    // Everything sent since the last call.
    std::string TakeSent() { return std::exchange(m_Sent, {}); }

    // Bytes with the control characters shown by number: "<4>04<10><13>".
    static std::string Visible(std::string_view bytes) {
        std::string text;
        for (const char c : bytes) {
            const int code = static_cast<unsigned char>(c);
            text += code >= 32 && code < 127 ? std::string(1, c) : "<" + std::to_string(code) + ">";
        }
        return text;
    }

    std::int32_t m_RequestId = 0;  // of the connection last accepted
    bool m_SendFails = false;

  private:
    cFakeListener& m_Listener;
    cTranscript* m_Transcript;
    bool m_Open = false;
    std::string m_Received, m_Sent;
};

}  // namespace vigrel::testing
