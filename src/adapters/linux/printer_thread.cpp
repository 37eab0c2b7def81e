#include "adapters/linux/printer_thread.h"

#include <condition_variable>
#include <mutex>
#include <optional>
#include <utility>

#include "adapters/linux/start_thread.h"
#include "common/failure.h"

namespace vigrel {

struct cPrinterThread::cShared {
    std::mutex mutex;
    std::condition_variable changed;
    bool ends = false;
    bool busy = false;                   // the thread has a line and no result yet
    std::string line;                    // meant for the thread when it is busy
    Deadline deadline;                   // of the line
    std::optional<PrintProblem> result;  // of the line
    PrinterPtr printer;                  // the thread's own
};

cPrinterThread::cPrinterThread(PrinterPtr printer) : m_Shared(std::make_shared<cShared>()) {
    m_Shared->printer = std::move(printer);
}

cPrinterThread::~cPrinterThread() {
    if (!m_Ended.valid()) return;
    {
        const std::lock_guard lock(m_Shared->mutex);
        m_Shared->ends = true;
        m_Shared->changed.notify_all();
    }
    m_Ended.wait_for(kLongestEnd);
}

void cPrinterThread::Start() {
    const auto task = std::make_shared<std::packaged_task<void()>>([shared = m_Shared] { Run(*shared); });
    StartThread([task] { (*task)(); }).detach();
    m_Ended = task->get_future();
}

PrintProblem cPrinterThread::Print(std::string_view line, std::chrono::milliseconds time) {
    if (!m_Ended.valid()) {
        if (const auto failure = CatchFailure([this] { Start(); })) return failure->what();
    }
    std::unique_lock lock(m_Shared->mutex);
    if (m_Shared->busy) return "the printer still holds up the line before";
    m_Shared->line = line;
    m_Shared->deadline = std::chrono::steady_clock::now() + time;
    m_Shared->result.reset();
    m_Shared->busy = true;
    m_Shared->changed.notify_all();
    m_Shared->changed.wait_until(lock, m_Shared->deadline + kGrace,
                                 [this] { return m_Shared->result.has_value(); });
    return m_Shared->result.value_or("the printer does not answer");
}

void cPrinterThread::Run(cShared& shared) {
    std::unique_lock lock(shared.mutex);
    while (!shared.ends) {
        const auto wanted = [&] { return shared.ends || (shared.busy && !shared.result); };
        if (!shared.changed.wait_for(lock, kIdle, wanted)) {
            shared.printer->Rest();
            shared.changed.wait(lock, wanted);
        }
        if (shared.ends) break;
        lock.unlock();
        PrintProblem result = shared.printer->Print(shared.line, shared.deadline);
        lock.lock();
        shared.result = std::move(result);
        shared.busy = false;
        shared.changed.notify_all();
    }
    shared.printer.reset();
}

}  // namespace vigrel
