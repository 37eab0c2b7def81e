#pragma once

#include <cstdint>
#include <future>
#include <optional>
#include <string>

namespace vigrel::testing {

// A desktop's session manager, with one program in its session, which finds it by the environment.
class cSessionManager {
  public:
    // Its socket lies at the path.
    explicit cSessionManager(const std::string& path);
    ~cSessionManager();
    cSessionManager(const cSessionManager&) = delete;
    cSessionManager& operator=(const cSessionManager&) = delete;

    // The numbers that the protocol gives its messages.
    enum class eMessage : std::uint8_t {
        RegisterClient = 1,
        RegisterClientReply = 2,
        SaveYourself = 3,
        InteractRequest = 5,
        Interact = 6,
        InteractDone = 7,
        SaveYourselfDone = 8,
        Die = 9,
        ShutdownCancelled = 10,
        SaveComplete = 18
    };
    // The session is to end: the program is to save, and may ask.
    void EndSession() { Send(eMessage::SaveYourself, std::string("\x02\x01\x02\x00\x00\x00\x00\x00", 8)); }
    // The session is to be saved as it is, and goes on.
    void SaveSession() { Send(eMessage::SaveYourself, std::string("\x02\x00\x00\x00\x00\x00\x00\x00", 8)); }
    void Send(eMessage message, const std::string& body = "") const;
    // Waits for the message, whatever comes before it; what it says in its first byte.
    std::optional<bool> Await(eMessage message);

  private:
    struct cMessage {
        std::uint8_t protocol, message, data;
        std::string body;
    };
    std::optional<cMessage> Read() const;
    void SendFrame(std::uint8_t protocol, std::uint8_t message, std::uint8_t data,
                   const std::string& body) const;
    void Greet();

    int m_Listener, m_Connection = -1;
    std::future<void> m_Greeting;  // the program waits for it in its start
};

}  // namespace vigrel::testing
