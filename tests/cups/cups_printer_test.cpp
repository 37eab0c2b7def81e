#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <iterator>

#include "adapters/linux/linux_printer_ports.h"
#include "adapters/linux/system_clock.h"
#include "support/child_process.h"
#include "support/fake_files.h"
#include "support/tcp_sink.h"
#include "support/temporary_folder.h"

namespace vigrel::testing {
namespace {

using namespace std::chrono_literals;

// A print system of the test's own, on a free port of this machine.
class cPrintSystem {
  public:
    cPrintSystem() {
        // Drivers and back ends run under another user.
        std::filesystem::permissions(m_Folder.Path(), std::filesystem::perms::all);
        for (const char* folder : {"etc", "state", "cache", "spool", "temp"}) {
            std::filesystem::create_directory(m_Folder.Path() / folder);
        }
        {
            const cLoopbackPort free;
            m_Port = free.Port();
            m_Server = "127.0.0.1:" + m_Port;
        }
        WriteConfiguration();
        setenv("CUPS_SERVER", m_Server.c_str(), 1);
        m_Scheduler =
            cChildProcess({"/usr/sbin/cupsd", "-f", "-c", Path("cupsd.conf"), "-s", Path("cups-files.conf")});
    }

    // Whether it answers, in the end.
    bool IsUp() const {
        for (int tries = 0; tries < 500; ++tries) {
            if (CanConnect(m_Port)) return true;
            std::this_thread::sleep_for(20ms);
        }
        return false;
    }
    bool AddRawQueue(const std::string& name, const std::string& port) {
        return Run({"lpadmin", "-h", m_Server, "-p", name, "-E", "-v", "socket://127.0.0.1:" + port, "-m",
                    "raw"}) == 0;
    }
    static int Run(const std::vector<std::string>& words) { return cChildProcess(words).Wait(); }

    std::string m_Port, m_Server;
    cChildProcess m_Scheduler;

  private:
    std::string Path(const std::string& name) const { return (m_Folder.Path() / name).string(); }
    void WriteConfiguration() const {
        std::ofstream(Path("cupsd.conf"))
            << "Listen " << m_Server << "\nBrowsing Off\nWebInterface No\nDefaultAuthType None\n"
            << "PreserveJobHistory No\nLogLevel error\n"
            << "<Location />\nOrder allow,deny\nAllow all\n</Location>\n"
            << "<Policy default>\nJobPrivateAccess all\nJobPrivateValues none\n"
            << "<Limit All>\nOrder deny,allow\nAllow all\n</Limit>\n</Policy>\n";
        std::ofstream(Path("cups-files.conf"))
            << "ServerRoot " << Path("etc") << "\nStateDir " << Path("state") << "\nCacheDir "
            << Path("cache") << "\nRequestRoot " << Path("spool") << "\nTempDir " << Path("temp")
            << "\nAccessLog " << Path("access_log") << "\nErrorLog " << Path("error_log") << "\nPageLog "
            << Path("page_log") << "\n";
    }
    cTemporaryFolder m_Folder;
};

class CupsPrinter : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(m_System.IsUp()) << "are the packages cups and cups-client installed?";
        m_Files.PutFolder("C:\\App\\");
    }
    void Ports(const std::string& lines) {
        m_Files.Put("C:\\App\\VigrelReceiver.INI", "[PrinterPorts]\r\n" + lines);
    }
    std::int16_t Send(const std::string& line = "line\r\n", std::int16_t port = 0) {
        const auto start = std::chrono::steady_clock::now();
        const std::int16_t result = m_Ports.SendPRN(line, port);
        m_Seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        return result;
    }

    cPrintSystem m_System;
    cFakeFiles m_Files;
    cIni m_Ini{m_Files, "C:\\App\\"};
    cSystemClock m_Clock;
    std::vector<std::string> m_Reports;
    cLinuxPrinterPorts m_Ports{m_Ini, m_Clock, [this](const std::string& text) { m_Reports.push_back(text); },
                               "/nowhere"};
    double m_Seconds = 0;
};

TEST_F(CupsPrinter, AQueueGetsEachLineAsAJobOfItsBytes) {
    cTcpSink sink;
    ASSERT_TRUE(m_System.AddRawQueue("alarms", sink.Port()));
    Ports("1=cups:alarms");
    std::string every;
    for (int code = 0; code < 256; ++code) every += static_cast<char>(code);
    EXPECT_NE(Send(every), 0);
    EXPECT_TRUE(sink.Gets({every}, 10000));
    EXPECT_NE(Send("\x8E\x8F\x99\r\n"), 0);
    EXPECT_TRUE(sink.Gets({every, "\x8E\x8F\x99\r\n"}, 10000));
    EXPECT_TRUE(m_Reports.empty());
    RecordProperty("line_ms", static_cast<int>(m_Seconds * 1000));
}

TEST_F(CupsPrinter, WithoutAnEntryTheQueueOfThePortsNumberPrints) {
    cTcpSink sink;
    ASSERT_TRUE(m_System.AddRawQueue("LPT2", sink.Port()));
    EXPECT_NE(Send("text\r\n", 1), 0);
    EXPECT_TRUE(sink.Gets({"text\r\n"}, 10000));
}

TEST_F(CupsPrinter, AQueueThatIsMissingFailsAtOnce) {
    Ports("1=cups:nobody");
    EXPECT_EQ(Send(), 0);
    EXPECT_LT(m_Seconds, 0.4);
    ASSERT_EQ(m_Reports.size(), 1u);
    EXPECT_TRUE(m_Reports[0].starts_with("VigrelReceiver.INI, section PrinterPorts, port 1: cups:nobody: "))
        << m_Reports[0];
}

TEST_F(CupsPrinter, AQueueWhosePrinterIsOffTakesTheLine) {
    std::string port;
    {
        const cLoopbackPort closed;
        port = closed.Port();
    }
    ASSERT_TRUE(m_System.AddRawQueue("alarms", port));
    Ports("1=cups:alarms");
    EXPECT_NE(Send(), 0);
    EXPECT_LT(m_Seconds, 1);
}

TEST_F(CupsPrinter, AQueueThatRejectsJobsFails) {
    cTcpSink sink;
    ASSERT_TRUE(m_System.AddRawQueue("alarms", sink.Port()));
    ASSERT_EQ(cPrintSystem::Run({"cupsreject", "-h", m_System.m_Server, "alarms"}), 0);
    Ports("1=cups:alarms");
    EXPECT_EQ(Send(), 0);
    EXPECT_LT(m_Seconds, 0.4);
}

TEST_F(CupsPrinter, APrintSystemThatHangsIsWaitedForOnceAndThenRests) {
    cTcpSink sink;
    ASSERT_TRUE(m_System.AddRawQueue("alarms", sink.Port()));
    Ports("1=cups:alarms");
    m_System.m_Scheduler.Signal(SIGSTOP);
    EXPECT_EQ(Send(), 0);
    EXPECT_NEAR(m_Seconds, 2, 0.4);
    double rest = 0;
    for (int line = 1; line < 80; ++line) {
        EXPECT_EQ(Send(), 0);
        rest += m_Seconds;
    }
    EXPECT_LT(rest, 0.4);
    m_System.m_Scheduler.Signal(SIGCONT);
}

TEST_F(CupsPrinter, APrintSystemThatIsGoneFailsAtOnceAndPrintsWhenItIsBack) {
    cTcpSink sink;
    Ports("1=cups:alarms");
    m_System.m_Scheduler.End();
    EXPECT_EQ(Send(), 0);
    EXPECT_LT(m_Seconds, 0.4);
    cPrintSystem next;
    ASSERT_TRUE(next.IsUp());
    ASSERT_TRUE(next.AddRawQueue("alarms", sink.Port()));
    // The place of the print system is read when a port is used for the first time.
    Ports("2=cups:alarms");
    EXPECT_NE(Send("back\r\n", 1), 0);
    EXPECT_TRUE(sink.Gets({"back\r\n"}, 10000));
}

}  // namespace
}  // namespace vigrel::testing
