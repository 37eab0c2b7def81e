#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "support/fake_receiver.h"

namespace vigrel::fuzz {

// Takes an input apart. Behind its end everything is 0 and empty.
class cInput {
  public:
    cInput(const std::uint8_t* data, std::size_t size) : m_Rest(reinterpret_cast<const char*>(data), size) {}
    bool AtEnd() const { return m_Rest.empty(); }
    int Byte();
    // A count of one byte, and so many bytes.
    std::string_view Bytes() { return Take(static_cast<std::size_t>(Byte())); }
    // The same with a count of two.
    std::string_view ManyBytes();

  private:
    std::string_view Take(std::size_t count);

    std::string_view m_Rest;
};

// A whole receiver over fakes that does what an input says: what comes over the link, what the operator does,
// clocks, disks and boxes, and the ends and starts of the program. It ends the process when what must hold
// does not.
class cFuzzedStation {
  public:
    explicit cFuzzedStation(cInput& input) : m_Input(input) {}

    // Before the first start.
    void Configure(const std::string& configuration);
    testing::cFakeFiles& Disk() { return m_Disk; }
    // The next starts find the port in use, so that each of them asks.
    void LetPortBeInUse() { m_PortInUse = true; }

    // As the service does it, until it runs or has been refused.
    void Begin();
    bool Runs() const { return m_Station != nullptr; }
    // One step of the input.
    void Step();
    // As many files as rows, where the folder was in order and the disk has never failed.
    bool StoresWhatItLists() const;
    // Everything acknowledged, copied, sorted and swept.
    void DoAll();
    // Ends the program and starts it again; whether it lists the same.
    bool ListsTheSameAgain();

  private:
    void Do(int kind);
    void DoOperator(int kind);
    void DoWindows(int kind);
    void DoMachine(int kind);
    void StepsInABox();
    void Die();
    void TimePasses(double seconds);
    void DragColumn(int column, int width);
    void Sort(int column, bool ascending);
    void Acknowledge(std::size_t row);
    void CloseAPopup();
    void CheckReplies();
    void CheckRows();

    cInput& m_Input;
    testing::cFakeFiles m_Disk;
    testing::cFakeClock m_Clock;
    std::unique_ptr<testing::cFakeReceiver> m_Station;
    int m_Connections = 0;
    int m_BoxesOpen = 0;
    bool m_PortInUse = false, m_DiskFailed = false;
};

}  // namespace vigrel::fuzz
