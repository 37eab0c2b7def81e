#pragma once

#include <chrono>
#include <future>
#include <memory>
#include <string>
#include <string_view>

#include "adapters/linux/printer.h"

namespace vigrel {

// Waits for a printer in place of the caller, in a thread of its own: there are waits that nothing can bound
// from within, such as those for a name service or for a network disk.
class cPrinterThread {
  public:
    // What is kept open from line to line is let go after this time.
    static constexpr std::chrono::milliseconds kIdle{1000};
    // How long the end waits for the thread; one that hangs is left to itself.
    static constexpr std::chrono::milliseconds kLongestEnd{500};
    // What the caller waits longer than the printer may, so that its own word comes first.
    static constexpr std::chrono::milliseconds kGrace{100};

    explicit cPrinterThread(PrinterPtr printer);
    ~cPrinterThread();
    cPrinterThread(const cPrinterThread&) = delete;
    cPrinterThread& operator=(const cPrinterThread&) = delete;

    // Comes back when the line is printed, has failed, or the time is over. While a line before it is still
    // waited for in the thread, it fails at once; so it does where the machine gives no thread for now.
    PrintProblem Print(std::string_view line, std::chrono::milliseconds time);

  private:
    struct cShared;
    static void Run(cShared& shared);
    void Start();

    std::shared_ptr<cShared> m_Shared;
    std::future<void> m_Ended;  // valid once there is a thread: from the first line on
};

}  // namespace vigrel
