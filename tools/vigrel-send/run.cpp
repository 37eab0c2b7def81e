#include "vigrel-send/run.h"

#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <iterator>
#include <string_view>
#include <thread>

#include "common/path_text.h"
#include "common/standard_error.h"
#include "link/frame.h"
#include "vigrel-send/connection.h"
#include "vigrel-send/frames.h"
#include "vigrel-send/options.h"

namespace vigrel::send {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::string_view kProgram = "vigrel-send";
constexpr int kAllPositive = 0;
constexpr int kNotAllPositive = 1;
constexpr int kUsage = 2;
constexpr int kNotReached = 3;

std::string Now() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    char text[32];
    std::strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S", &local);
    return text;
}

std::string FileContent(const std::string& name) {
    if (name.empty()) return {};
    // Far above every batch that is sent in one go.
    constexpr std::size_t kMost = 64 << 20;
    std::ifstream file(name, std::ios::binary);
    std::string content;
    std::vector<char> part(1 << 16);
    while (file.read(part.data(), static_cast<std::streamsize>(part.size())), file.gcount() > 0) {
        content.append(part.data(), static_cast<std::size_t>(file.gcount()));
        if (content.size() > kMost) throw cUsageError("--file: \"" + name + "\" is larger than 64 MB");
    }
    if (!file.is_open() || file.bad()) throw cUsageError("--file: \"" + name + "\" can't be read");
    return content;
}

// "positive", "negative", or what else came.
std::string Describe(const std::string& reply) {
    if (reply == std::string(kPositive) + std::string(kReplyEnd)) return "positive";
    if (reply == std::string(kNegative) + std::string(kReplyEnd)) return "negative";
    if (reply.empty()) return "no reply";
    std::string text = "unknown reply";
    for (const char c : reply) {
        char hex[8];
        std::snprintf(hex, sizeof hex, " %02X", static_cast<unsigned char>(c));
        text += hex;
    }
    return text;
}

// Sends and counts, and says how far it is.
class cSending {
  public:
    cSending(const cOptions& options, cConnection& connection, std::size_t total)
        : m_Options(options), m_Connection(connection), m_Total(total), m_Start(Clock::now()) {}

    void Send(const std::string& frame) {
        KeepRate();
        m_Connection.Send(frame);
        ++m_Sent;
        for (int i = RepliesTo(frame); i > 0; --i) {
            const std::string bytes = m_Connection.ReadReply(), reply = Describe(bytes);
            ++m_Replies;
            if (reply == "positive") ++m_Positive;
            if (!m_Options.quiet) std::printf("%s\n", reply.c_str());
            // Its rest would be taken for the beginning of the next one.
            if (bytes.size() < kReplySize) {
                throw cConnectionError((bytes.empty() ? "no reply to frame " : "half a reply to frame ") +
                                       std::to_string(m_Sent));
            }
        }
        Progress(false);
    }
    void Progress(bool last) {
        if (m_Total < 2 || (!m_Options.quiet && !last)) return;
        const auto now = Clock::now();
        if (!last && now - m_LastProgress < std::chrono::milliseconds(200)) return;
        m_LastProgress = now;
        const double seconds = std::chrono::duration<double>(now - m_Start).count();
        std::fprintf(stderr, "%s%zu of %zu frames, %zu positive, %.0f a second%s", isatty(2) != 0 ? "\r" : "",
                     m_Sent, m_Total, m_Positive, seconds > 0 ? static_cast<double>(m_Sent) / seconds : 0,
                     last || isatty(2) == 0 ? "\n" : "");
    }
    bool AllPositive() const { return m_Positive == m_Replies && m_Sent == m_Total; }

  private:
    void KeepRate() const {
        if (m_Options.rate <= 0) return;
        const std::chrono::duration<double> due(static_cast<double>(m_Sent) / m_Options.rate);
        std::this_thread::sleep_until(m_Start + std::chrono::duration_cast<Clock::duration>(due));
    }
    const cOptions& m_Options;
    cConnection& m_Connection;
    std::size_t m_Total, m_Sent = 0, m_Replies = 0, m_Positive = 0;
    Clock::time_point m_Start, m_LastProgress = Clock::now();
};

int SendAll(const cOptions& options) {
    const std::vector<std::string> frames = MakeFrames(options, FileContent(options.file), Now());
    cConnection connection(options.host, options.port, options.timeout);
    cSending sending(options, connection, frames.size() * static_cast<std::size_t>(options.count));
    try {
        for (long round = 0; round < options.count; ++round) {
            for (const std::string& frame : frames) sending.Send(frame);
        }
    } catch (const cConnectionError& error) {
        sending.Progress(true);
        PrintError(kProgram, PathText(error.what()));
        return kNotAllPositive;
    }
    sending.Progress(true);
    return sending.AllPositive() ? kAllPositive : kNotAllPositive;
}

int Follow(const std::vector<std::string>& arguments) {
    try {
        const cOptions options = ReadOptions(arguments);
        if (options.help) {
            std::fputs(HelpText(), stdout);
            return kAllPositive;
        }
        if (options.version) {
            std::puts("vigrel-send " VIGREL_VERSION);
            return kAllPositive;
        }
        return SendAll(options);
    } catch (const cUsageError& error) {
        PrintError(kProgram, PathText(error.what()));
        std::fputs("Try vigrel-send --help.\n", stderr);
        return kUsage;
    } catch (const cConnectionError& error) {
        PrintError(kProgram, PathText(error.what()));
        return kNotReached;
    }
}

}  // namespace

int Run(const std::vector<std::string>& arguments) {
    const int result = Follow(arguments);
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) return result;
    PrintError(kProgram, "standard output can't be written");
    return result == kAllPositive ? kNotAllPositive : result;
}

}  // namespace vigrel::send
