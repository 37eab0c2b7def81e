#include <cups/cups.h>

#include <algorithm>
#include <utility>

#include "adapters/linux/printer.h"

namespace vigrel {
namespace {

using Connection = std::unique_ptr<http_t, void (*)(http_t*)>;

// What a step may wait, in the forms that the library wants.
constexpr int kLeastMilliseconds = 1;

class cCupsPrinter : public cPrinter {
  public:
    explicit cCupsPrinter(std::string queue) : m_Queue(std::move(queue)), m_Name("cups:" + m_Queue) {}

    PrintProblem Print(std::string_view bytes, Deadline deadline) override {
        // A station has nobody to type a password.
        cupsSetPasswordCB2(
            [](const char*, http_t*, const char*, const char*, void*) -> const char* { return nullptr; },
            nullptr);
        const Connection connection(
            httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                         std::max(MillisecondsLeft(deadline), kLeastMilliseconds), nullptr),
            httpClose);
        if (!connection) return m_Name + ": the print system can't be reached";
        LimitWait(*connection, deadline);
        const int job = cupsCreateJob(connection.get(), m_Queue.c_str(), "Alarm", 0, nullptr);
        if (job == 0) return Problem();
        LimitWait(*connection, deadline);
        if (SendDocument(*connection, job, bytes)) return {};
        PrintProblem problem = Problem();
        LimitWait(*connection, deadline);
        cupsCancelJob2(connection.get(), m_Queue.c_str(), job, 1);
        return problem;
    }

  private:
    // Each answer is waited for until the deadline and no longer.
    static void LimitWait(http_t& connection, Deadline deadline) {
        const double seconds = std::max(MillisecondsLeft(deadline), kLeastMilliseconds) / 1000.0;
        httpSetTimeout(
            &connection, seconds, [](http_t*, void*) { return 0; }, nullptr);
    }

    bool SendDocument(http_t& connection, int job, std::string_view bytes) const {
        return cupsStartDocument(&connection, m_Queue.c_str(), job, "Alarm", CUPS_FORMAT_RAW, 1) ==
                   HTTP_STATUS_CONTINUE &&
               cupsWriteRequestData(&connection, bytes.data(), bytes.size()) == HTTP_STATUS_CONTINUE &&
               cupsFinishDocument(&connection, m_Queue.c_str()) < IPP_STATUS_REDIRECTION_OTHER_SITE;
    }
    PrintProblem Problem() const { return m_Name + ": " + cupsLastErrorString(); }

    std::string m_Queue, m_Name;
};

}  // namespace

PrinterPtr MakeCupsPrinter(std::string queue) {
    return std::make_unique<cCupsPrinter>(std::move(queue));
}

}  // namespace vigrel
