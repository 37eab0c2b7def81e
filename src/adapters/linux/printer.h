#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <string_view>

namespace vigrel {

// A moment until which a step may wait.
using Deadline = std::chrono::steady_clock::time_point;

// What a printer step says: an empty text on success, else what went wrong.
using PrintProblem = std::string;

// One printer. Belongs to the thread that prints.
class cPrinter {
  public:
    virtual ~cPrinter() = default;
    // Sends the bytes as they stand. Waits no longer than the deadline, as far as the system's calls allow;
    // what has not been sent by then is dropped.
    virtual PrintProblem Print(std::string_view bytes, Deadline deadline) = 0;
    // No line has come for a while: lets go what is kept open from line to line.
    virtual void Rest() {}
};

using PrinterPtr = std::unique_ptr<cPrinter>;

// A device, or a file that is written behind its end. A file that is missing is created, but not under /dev.
PrinterPtr MakePathPrinter(std::string path);
// A printer of the network that takes raw bytes. The connection is kept from line to line.
PrinterPtr MakeTcpPrinter(std::string host, std::string port);
// A queue of the print system; each line becomes a job that nothing converts.
PrinterPtr MakeCupsPrinter(std::string queue);
// What port number, counted from 1, means unless somebody says otherwise: the parallel device of that number,
// else the USB printer device, else the queue "LPT<number>". deviceFolder is /dev.
PrinterPtr MakeDefaultPrinter(int number, const std::string& deviceFolder);

// The printer that an entry of the configuration names: a path that begins with "/", "tcp:HOST:PORT", or
// "cups:QUEUE". nullptr for anything else.
PrinterPtr MakePrinter(std::string_view entry);

// Until the deadline, or 0 behind it.
int MillisecondsLeft(Deadline deadline);
// What the system says of an error number, behind a subject: "/dev/lp0: No such device".
PrintProblem SystemProblem(const std::string& subject, int errorNumber);

}  // namespace vigrel
