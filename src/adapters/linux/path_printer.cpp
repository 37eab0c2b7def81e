#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "adapters/linux/file_handle.h"
#include "adapters/linux/links.h"
#include "adapters/linux/printer.h"
#include "common/failure.h"
#include "common/path_text.h"

namespace vigrel {
namespace {

constexpr int kRetryMilliseconds = 10;
constexpr mode_t kPortMode = 0644;

// A printer on a serial line gets the bytes as they stand, too.
void MakeRaw(int file) {
    termios settings{};
    if (isatty(file) == 0 || tcgetattr(file, &settings) != 0) return;
    cfmakeraw(&settings);
    tcsetattr(file, TCSANOW, &settings);
}

// A printer that is busy says so; not every device can be waited for, so it is asked again and again.
bool WaitForRoom(int file, Deadline deadline) {
    if (MillisecondsLeft(deadline) == 0) return false;
    pollfd wait{file, POLLOUT, 0};
    poll(&wait, 1, MillisecondsLeft(deadline));
    usleep(kRetryMilliseconds * 1000);
    return true;
}

// 0, or the number of the error.
int WriteAll(int file, std::string_view bytes, Deadline deadline) {
    while (!bytes.empty()) {
        const ssize_t written = write(file, bytes.data(), bytes.size());
        if (written > 0) {
            bytes.remove_prefix(static_cast<std::size_t>(written));
        } else if (written < 0 && errno == EINTR) {
            continue;
        } else if (written < 0 && errno != EAGAIN) {
            return errno;
        } else if (!WaitForRoom(file, deadline)) {
            return ETIMEDOUT;
        }
    }
    return 0;
}

// A device that is closed too early throws away what it has not yet handed on.
int WaitUntilTaken(int file, Deadline deadline) {
    pollfd wait{file, POLLOUT, 0};
    return poll(&wait, 1, MillisecondsLeft(deadline)) > 0 ? 0 : ETIMEDOUT;
}

int OpenFlags(const std::string& path) {
    const int flags = O_WRONLY | O_NONBLOCK | O_APPEND | O_NOCTTY | O_NOFOLLOW | O_CLOEXEC;
    // A device that is unplugged must not be replaced by a file of its name.
    return path.starts_with("/dev/") ? flags : flags | O_CREAT;
}

// 0, or the number of the error.
int PrintTo(const std::string& path, std::string_view bytes, Deadline deadline) {
    const cFileHandle file(open(path.c_str(), OpenFlags(path), kPortMode));
    if (!file) return errno;
    MakeRaw(file.Get());
    const int error = WriteAll(file.Get(), bytes, deadline);
    return error != 0 ? error : WaitUntilTaken(file.Get(), deadline);
}

// Names of devices are often links, and files of printers may lie elsewhere: where the links lead that count.
PrintProblem PrintThroughLinks(const std::string& path, std::string_view bytes, Deadline deadline) {
    std::string target;
    const auto failure = CatchFailure([&] {
        RequireOwnFolder(path);
        target = FollowLinks(path);
    });
    if (failure) return failure->what();
    const int error = PrintTo(target, bytes, deadline);
    return error == 0 ? PrintProblem() : SystemProblem(PathText(path), error);
}

class cPathPrinter : public cPrinter {
  public:
    explicit cPathPrinter(std::string path) : m_Path(std::move(path)) {}
    PrintProblem Print(std::string_view bytes, Deadline deadline) override {
        return PrintThroughLinks(m_Path, bytes, deadline);
    }

  private:
    std::string m_Path;
};

class cDefaultPrinter : public cPrinter {
  public:
    cDefaultPrinter(int number, const std::string& deviceFolder)
        : m_Devices{deviceFolder + "/lp" + std::to_string(number - 1),
                    deviceFolder + "/usb/lp" + std::to_string(number - 1)},
          m_Queue(MakeCupsPrinter("LPT" + std::to_string(number))) {}

    PrintProblem Print(std::string_view bytes, Deadline deadline) override {
        for (const std::string& path : m_Devices) {
            if (access(path.c_str(), F_OK) != 0) continue;
            int error = 0;
            const auto failure = CatchFailure([&] { error = PrintTo(FollowLinks(path), bytes, deadline); });
            if (failure) return failure->what();
            if (error == 0) return {};
            // A node that no device stands behind.
            if (error != ENXIO && error != ENODEV) return SystemProblem(PathText(path), error);
        }
        return m_Queue->Print(bytes, deadline);
    }

  private:
    std::string m_Devices[2];
    PrinterPtr m_Queue;
};

}  // namespace

PrinterPtr MakePathPrinter(std::string path) {
    return std::make_unique<cPathPrinter>(std::move(path));
}

PrinterPtr MakeDefaultPrinter(int number, const std::string& deviceFolder) {
    return std::make_unique<cDefaultPrinter>(number, deviceFolder);
}

}  // namespace vigrel
