#include "adapters/linux/linux_printer_ports.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "adapters/linux/system_clock.h"
#include "support/fake_files.h"
#include "support/tcp_sink.h"
#include "support/temporary_folder.h"

namespace vigrel::testing {
namespace {

using namespace std::chrono_literals;

// What a printer that fails at once may take on a busy machine.
constexpr double kAtOnce = 0.4;

// The machine's steady clock, which a test can put forward.
class cLeapingClock : public cSystemClock {
  public:
    double Steady() const override { return cSystemClock::Steady() + m_Seconds / 86400; }
    double m_Seconds = 0;
};

class PrinterPorts : public ::testing::Test {
  protected:
    PrinterPorts() {
        // No print system of this machine takes part.
        setenv("CUPS_SERVER", (m_Folder.Path() / "no-scheduler").c_str(), 1);
        m_Files.PutFolder("C:\\App\\");
    }
    // The lines of section PrinterPorts.
    void Ports(const std::string& lines) {
        m_Files.Put("C:\\App\\VigrelReceiver.INI", "[PrinterPorts]\r\n" + lines);
    }
    std::string Path(const std::string& name) const { return (m_Folder.Path() / name).string(); }
    std::string Content(const std::string& name) const {
        std::ifstream file(Path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    // The result of a line, and how long it took.
    std::int16_t Send(const std::string& line = "line\r\n", std::int16_t port = 0) {
        const auto start = std::chrono::steady_clock::now();
        const std::int16_t result = m_Ports.SendPRN(line, port);
        m_Seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        return result;
    }

    cTemporaryFolder m_Folder;
    cFakeFiles m_Files;
    cIni m_Ini{m_Files, "C:\\App\\"};
    cLeapingClock m_Clock;
    std::vector<std::string> m_Reports;
    cLinuxPrinterPorts m_Ports{m_Ini, m_Clock, [this](const std::string& text) { m_Reports.push_back(text); },
                               (m_Folder.Path() / "dev").string()};
    double m_Seconds = 0;
};

// --- files and devices

TEST_F(PrinterPorts, AFileGetsTheBytesAsTheyStandBehindItsEnd) {
    Ports("1=" + Path("out"));
    const std::string line("\x8E\x0C\0\xFF\x1B[1m text\r\n", 15);
    EXPECT_NE(Send(line), 0);
    EXPECT_NE(Send("second\r\n"), 0);
    EXPECT_EQ(Content("out"), line + "second\r\n");
}

TEST_F(PrinterPorts, PortsAreNamedByTheNumbersOfTheSettings) {
    Ports("1=" + Path("one") + "\r\n3=" + Path("three"));
    EXPECT_NE(Send("first\r\n", 0), 0);
    EXPECT_NE(Send("third\r\n", 2), 0);
    EXPECT_EQ(Content("one"), "first\r\n");
    EXPECT_EQ(Content("three"), "third\r\n");
    EXPECT_EQ(Send("none\r\n", -1), 0);
}

TEST_F(PrinterPorts, AChangedConfigurationIsSeenAtTheNextLine) {
    Ports("1=" + Path("one"));
    Send();
    Ports("1=" + Path("two"));
    Send();
    EXPECT_EQ(Content("one"), Content("two"));
}

TEST_F(PrinterPorts, ADeviceThatIsMissingIsNotReplacedByAFile) {
    const std::string path = "/dev/vigrel-test-printer";
    Ports("1=" + path);
    EXPECT_EQ(Send(), 0);
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(PrinterPorts, AFullDeviceFailsAtOnce) {
    Ports("1=/dev/full");
    EXPECT_EQ(Send(), 0);
    EXPECT_LT(m_Seconds, kAtOnce);
    EXPECT_EQ(m_Reports,
              std::vector<std::string>{"VigrelReceiver.INI, section PrinterPorts, port 1: /dev/full: "
                                       "No space left on device"});
}

TEST_F(PrinterPorts, ALinkOfAnotherUsersIsNotPrintedThrough) {
    std::ofstream(Path("victim")) << "kept";
    std::filesystem::create_symlink("victim", Path("out"));
    const bool planted = lchown(Path("out").c_str(), 4711, 4711) == 0;
    Ports("1=" + Path("out"));
    EXPECT_EQ(Send() == 0, planted);
    EXPECT_EQ(Content("victim"), planted ? "kept" : "keptline\r\n");
    const std::string expected = "VigrelReceiver.INI, section PrinterPorts, port 1: " + Path("out") +
                                 ": a link that another user made is not followed";
    EXPECT_EQ(m_Reports, planted ? std::vector<std::string>{expected} : std::vector<std::string>{});
}

TEST_F(PrinterPorts, AnInstallersLinkIsPrintedThrough) {
    std::filesystem::create_symlink("listing", Path("out"));
    std::filesystem::create_directory(Path("spool"));
    std::filesystem::create_symlink("spool", Path("folder"));
    Ports("1=" + Path("out") + "\r\n2=" + Path("folder/out"));
    EXPECT_NE(Send("one\r\n", 0), 0);
    EXPECT_NE(Send("two\r\n", 1), 0);
    EXPECT_EQ(Content("listing"), "one\r\n");
    EXPECT_EQ(Content("spool/out"), "two\r\n");
    EXPECT_TRUE(std::filesystem::is_symlink(Path("out")));
}

TEST_F(PrinterPorts, ADeviceIsPrintedToByALinkToo) {
    std::filesystem::create_symlink("/dev/null", Path("printer"));
    Ports("1=" + Path("printer"));
    EXPECT_NE(Send(), 0);
}

TEST_F(PrinterPorts, AFolderFails) {
    Ports("1=" + m_Folder.Path().string());
    EXPECT_EQ(Send(), 0);
}

TEST_F(PrinterPorts, APipeThatNobodyReadsFailsAtOnce) {
    ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
    Ports("1=" + Path("pipe"));
    for (int line = 0; line < 5; ++line) {
        EXPECT_EQ(Send(), 0);
        EXPECT_LT(m_Seconds, kAtOnce);
    }
}

TEST_F(PrinterPorts, APipeThatIsReadGetsTheBytes) {
    ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
    const int reader = open(Path("pipe").c_str(), O_RDONLY | O_NONBLOCK);
    Ports("1=" + Path("pipe"));
    EXPECT_NE(Send("text\r\n"), 0);
    char bytes[20] = {};
    EXPECT_EQ(read(reader, bytes, sizeof bytes), 6);
    EXPECT_STREQ(bytes, "text\r\n");
    close(reader);
}

TEST_F(PrinterPorts, APrinterThatTakesNoMoreIsWaitedForOnceAndThenRests) {
    ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
    const int reader = open(Path("pipe").c_str(), O_RDONLY | O_NONBLOCK);
    const int filler = open(Path("pipe").c_str(), O_WRONLY | O_NONBLOCK);
    while (write(filler, "xxxxxxxxxxxxxxxx", 16) > 0) continue;
    Ports("1=" + Path("pipe"));
    EXPECT_EQ(Send(), 0);
    EXPECT_NEAR(m_Seconds, 2, 0.3);
    // A text of 80 lines holds up nobody any more.
    double rest = 0;
    for (int line = 1; line < 80; ++line) {
        EXPECT_EQ(Send(), 0);
        rest += m_Seconds;
    }
    EXPECT_LT(rest, kAtOnce);
    // The next try comes after 5 s, the one after it after 10 s.
    m_Clock.m_Seconds += 4;
    EXPECT_EQ(Send(), 0);
    EXPECT_LT(m_Seconds, kAtOnce);
    m_Clock.m_Seconds += 1;
    EXPECT_EQ(Send(), 0);
    EXPECT_NEAR(m_Seconds, 2, 0.3);
    m_Clock.m_Seconds += 9;
    EXPECT_EQ(Send(), 0);
    EXPECT_LT(m_Seconds, kAtOnce);
    // Once it takes lines again it is as it was.
    char bytes[70000];
    while (read(reader, bytes, sizeof bytes) > 0) continue;
    m_Clock.m_Seconds += 1;
    EXPECT_NE(Send("back\r\n"), 0);
    EXPECT_EQ(read(reader, bytes, sizeof bytes), 6);
    close(reader);
    close(filler);
}

TEST_F(PrinterPorts, TheRestNeverGrowsBeyondAMinute) {
    ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
    const int reader = open(Path("pipe").c_str(), O_RDONLY | O_NONBLOCK);
    const int filler = open(Path("pipe").c_str(), O_WRONLY | O_NONBLOCK);
    while (write(filler, "xxxxxxxxxxxxxxxx", 16) > 0) continue;
    Ports("1=" + Path("pipe"));
    for (int round = 0; round < 6; ++round) {
        Send();
        EXPECT_GT(m_Seconds, 1.5) << round;
        m_Clock.m_Seconds += 61;
    }
    close(reader);
    close(filler);
}

TEST_F(PrinterPorts, ASerialLineGetsTheBytesAsTheyStand) {
    const int line = posix_openpt(O_RDWR | O_NOCTTY);
    ASSERT_EQ(grantpt(line) + unlockpt(line), 0);
    Ports("1=" + std::string(ptsname(line)));
    const int keepsItOpen = open(ptsname(line), O_RDWR | O_NOCTTY);
    EXPECT_NE(Send("a\nb\tc\r\n"), 0);
    char bytes[20] = {};
    EXPECT_EQ(read(line, bytes, sizeof bytes), 7);
    EXPECT_STREQ(bytes, "a\nb\tc\r\n");
    close(keepsItOpen);
    close(line);
}

// --- the network

TEST_F(PrinterPorts, ThePrinterOfTheNetworkGetsTheLinesOfAnEventOnOneConnection) {
    cTcpSink sink;
    Ports("1=tcp:127.0.0.1:" + sink.Port());
    std::string all;
    for (int line = 0; line < 80; ++line) {
        const std::string bytes = std::string(80, static_cast<char>('\xA0' + line)) + "\r\n";
        ASSERT_NE(Send(bytes), 0) << line;
        all += bytes;
    }
    EXPECT_TRUE(sink.Gets({all}));
}

TEST_F(PrinterPorts, AnIdleConnectionIsLetGoForOthers) {
    cTcpSink sink;
    Ports("1=tcp:localhost:" + sink.Port());
    EXPECT_NE(Send("one\r\n"), 0);
    EXPECT_TRUE(sink.Gets({"one\r\n"}));
    EXPECT_TRUE(sink.HasOpenConnection());
    std::this_thread::sleep_for(cPrinterThread::kIdle + 300ms);
    EXPECT_FALSE(sink.HasOpenConnection());
    EXPECT_NE(Send("two\r\n"), 0);
    EXPECT_TRUE(sink.Gets({"one\r\n", "two\r\n"}));
}

TEST_F(PrinterPorts, APrinterThatHangsUpAfterEachLineGetsEveryLine) {
    cTcpSink sink(true);
    Ports("1=tcp:127.0.0.1:" + sink.Port());
    for (int line = 0; line < 5; ++line) {
        EXPECT_NE(Send("line\r\n"), 0);
        EXPECT_TRUE(sink.Gets(std::vector<std::string>(static_cast<std::size_t>(line) + 1, "line\r\n")));
        std::this_thread::sleep_for(30ms);
    }
}

TEST_F(PrinterPorts, ARefusedPortFailsAtOnce) {
    std::string port;
    {
        const cLoopbackPort closed;
        port = closed.Port();
    }
    Ports("1=tcp:127.0.0.1:" + port);
    for (int line = 0; line < 5; ++line) {
        EXPECT_EQ(Send(), 0);
        EXPECT_LT(m_Seconds, kAtOnce);
    }
    EXPECT_EQ(m_Reports,
              std::vector<std::string>{"VigrelReceiver.INI, section PrinterPorts, port 1: tcp:127.0.0.1:" +
                                       port + ": Connection refused"});
}

// A port that swallows every attempt to connect: its queue is full.
class cBlackHole {
  public:
    cBlackHole() : m_Port(0) {
        for (int& socket : m_Fill) {
            socket = ::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0);
            sockaddr_in address{};
            address.sin_family = AF_INET;
            address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
            address.sin_port = htons(static_cast<std::uint16_t>(std::stoi(m_Port.Port())));
            // Doesn't wait for its end, which for some never comes.
            if (connect(socket, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0) continue;
            EXPECT_EQ(errno, EINPROGRESS);
        }
        std::this_thread::sleep_for(50ms);
    }
    ~cBlackHole() {
        for (const int socket : m_Fill) close(socket);
    }
    std::string Port() const { return m_Port.Port(); }

  private:
    cLoopbackPort m_Port;
    int m_Fill[4];
};

TEST_F(PrinterPorts, APrinterThatDoesNotAnswerHoldsUpATextOnce) {
    const cBlackHole hole;
    Ports("1=tcp:127.0.0.1:" + hole.Port());
    double all = 0;
    double longest = 0;
    for (int line = 0; line < 80; ++line) {
        EXPECT_EQ(Send(), 0);
        all += m_Seconds;
        longest = std::max(longest, m_Seconds);
    }
    EXPECT_NEAR(longest, 2, 0.3);
    EXPECT_LT(all, 2.5);
    RecordProperty("text_ms", static_cast<int>(all * 1000));
    ASSERT_EQ(m_Reports.size(), 1u);
    EXPECT_TRUE(m_Reports[0].ends_with("Connection timed out")) << m_Reports[0];
}

TEST_F(PrinterPorts, APrinterThatStopsReadingIsNoticedAndNothingComesLate) {
    const cLoopbackPort port;
    Ports("1=tcp:127.0.0.1:" + port.Port());
    int lines = 0;
    const std::string line = std::string(80, 'x') + "\r\n";
    while (lines < 500 && Send(line) != 0) ++lines;
    EXPECT_LT(lines, 300);
    EXPECT_NEAR(m_Seconds, 2, 0.3);
    RecordProperty("lines_before", lines);
    // What was on its way is dropped with the connection.
    const int connection = accept(port.Socket(), nullptr, nullptr);
    std::string received(100000, '\0');
    ssize_t all = 0;
    for (ssize_t now = 1; now > 0; all += std::max<ssize_t>(now, 0)) {
        now = recv(connection, received.data(), received.size(), 0);
    }
    EXPECT_LE(all, lines * static_cast<ssize_t>(line.size()));
    close(connection);
}

TEST_F(PrinterPorts, AnUnknownHostFailsInTime) {
    Ports("1=tcp:printer.invalid:9100");
    EXPECT_EQ(Send(), 0);
    EXPECT_LT(m_Seconds, 2.4);
}

// --- entries

TEST_F(PrinterPorts, AnEntryThatNamesNoPrinterIsReportedOnce) {
    for (const char* entry : {"LPT1:", "tcp:", "tcp:host", "tcp::9100", "tcp:host:", "tcp:host:port",
                              "tcp:host:0", "tcp:host:65536", "tcp:[]:9100", "cups:", "printer"}) {
        Ports(std::string("1=") + entry);
        m_Reports.clear();
        EXPECT_EQ(Send(), 0) << entry;
        EXPECT_EQ(Send(), 0) << entry;
        EXPECT_EQ(m_Reports, std::vector<std::string>{"VigrelReceiver.INI, section PrinterPorts, port 1: \"" +
                                                      std::string(entry) +
                                                      "\" is neither a path, nor \"tcp:HOST:PORT\", nor "
                                                      "\"cups:QUEUE\""});
    }
}

TEST_F(PrinterPorts, AnAddressOfTheNewerKindStandsInBrackets) {
    Ports("1=tcp:[::1]:1");
    EXPECT_EQ(Send(), 0);
    ASSERT_EQ(m_Reports.size(), 1u);
    EXPECT_NE(m_Reports[0].find("tcp:[::1]:1: "), std::string::npos) << m_Reports[0];
}

TEST_F(PrinterPorts, TheKindOfAnEntryIsReadInAnyCase) {
    cTcpSink sink;
    Ports("1=TCP:127.0.0.1:" + sink.Port());
    EXPECT_NE(Send("text\r\n"), 0);
    EXPECT_TRUE(sink.Gets({"text\r\n"}));
}

TEST_F(PrinterPorts, ChangesForTheWorseAndTheBetterAreReported) {
    Ports("1=" + Path("folder/out"));
    Send();
    Send();
    std::filesystem::create_directory(Path("folder"));
    Send();
    Send();
    EXPECT_EQ(m_Reports,
              (std::vector<std::string>{"VigrelReceiver.INI, section PrinterPorts, port 1: " +
                                            Path("folder/out") + ": No such file or directory",
                                        "VigrelReceiver.INI, section PrinterPorts, port 1: prints again"}));
}

TEST_F(PrinterPorts, WithoutAnEntryTheParallelDeviceOfThatNumberPrints) {
    std::filesystem::create_directories(Path("dev/usb"));
    std::ofstream(Path("dev/lp1")) << "";
    std::ofstream(Path("dev/usb/lp1")) << "";
    EXPECT_NE(Send("text\r\n", 1), 0);
    EXPECT_EQ(Content("dev/lp1"), "text\r\n");
    EXPECT_EQ(Content("dev/usb/lp1"), "");
}

TEST_F(PrinterPorts, WithoutAParallelDeviceTheUsbPrinterPrints) {
    std::filesystem::create_directories(Path("dev/usb"));
    std::ofstream(Path("dev/usb/lp1")) << "";
    EXPECT_NE(Send("text\r\n", 1), 0);
    EXPECT_EQ(Content("dev/usb/lp1"), "text\r\n");
}

TEST_F(PrinterPorts, ADeviceNodeThatNothingStandsBehindIsPassedOver) {
    std::filesystem::create_directories(Path("dev/usb"));
    ASSERT_EQ(mkfifo(Path("dev/lp0").c_str(), 0600), 0);
    std::ofstream(Path("dev/usb/lp0")) << "";
    EXPECT_NE(Send("text\r\n"), 0);
    EXPECT_EQ(Content("dev/usb/lp0"), "text\r\n");
}

TEST_F(PrinterPorts, WithoutAnyDeviceTheQueueOfThatNumberPrints) {
    EXPECT_EQ(Send("text\r\n", 1), 0);
    EXPECT_EQ(m_Reports,
              std::vector<std::string>{"VigrelReceiver.INI, section PrinterPorts, port 2: cups:LPT2: the "
                                       "print system can't be reached"});
    EXPECT_LT(m_Seconds, kAtOnce);
}

// --- the thread that waits

// A printer that takes as long as a test wants, whatever it is told.
class cSlowPrinter : public cPrinter {
  public:
    explicit cSlowPrinter(std::shared_ptr<std::atomic<bool>> hangs) : m_Hangs(std::move(hangs)) {}
    PrintProblem Print(std::string_view, Deadline) override {
        while (*m_Hangs) std::this_thread::sleep_for(2ms);
        return {};
    }

  private:
    std::shared_ptr<std::atomic<bool>> m_Hangs;
};

double Seconds(const std::function<void()>& step) {
    const auto start = std::chrono::steady_clock::now();
    step();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

TEST(PrinterThread, AWaitThatNothingBoundsIsBoundedByTheCaller) {
    const auto hangs = std::make_shared<std::atomic<bool>>(true);
    cPrinterThread thread(std::make_unique<cSlowPrinter>(hangs));
    EXPECT_LT(Seconds([&] { EXPECT_EQ(thread.Print("one", 200ms), "the printer does not answer"); }),
              0.3 + kAtOnce);
    EXPECT_LT(Seconds([&] { EXPECT_NE(thread.Print("two", 200ms), ""); }), kAtOnce);
    *hangs = false;
    std::this_thread::sleep_for(100ms);
    EXPECT_EQ(thread.Print("three", 200ms), "");
}

TEST(PrinterThread, AThreadThatHangsDoesNotHoldUpTheProgramsEnd) {
    const auto hangs = std::make_shared<std::atomic<bool>>(true);
    auto thread = std::make_unique<cPrinterThread>(std::make_unique<cSlowPrinter>(hangs));
    thread->Print("one", 50ms);
    EXPECT_LT(Seconds([&] { thread.reset(); }), 0.5 + kAtOnce);
    *hangs = false;
    std::this_thread::sleep_for(50ms);  // the thread that was left to itself ends
}

}  // namespace
}  // namespace vigrel::testing
