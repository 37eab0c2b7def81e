// The real program, run as an installer runs it, on a copy of what is delivered.

#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>

#include "inspect/alarm_samples.h"
#include "support/tool_run.h"

namespace vigrel::testing {
namespace {

namespace fs = std::filesystem;

using cRun = cToolRun;

std::string ReadAll(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

class VigrelReceiverCheck : public ::testing::Test, protected cToolFolder {
  protected:
    using cToolFolder::Run;
    VigrelReceiverCheck() : cToolFolder(VIGREL_RECEIVER_CHECK), m_App(m_Folder.Path() / "App") {
        fs::copy(VIGREL_SHARE_DIR, m_App, fs::copy_options::recursive);
        fs::create_directories(m_App / "Alarms");
        fs::create_directories(m_App / "LogFiles");
        std::ofstream(m_App / "Alarms" / "A0042917.alm", std::ios::binary) << samples::kAlarm;
        Configure("[General]", "[General]\r\nLanguage=044");
        Configure("Port=12412", "Port=" + std::to_string(FreePort()));
    }

    // Replaces a text of the configuration, which is the delivered one at first.
    void Configure(const std::string& old, const std::string& text) {
        const fs::path ini = m_App / "VigrelReceiver.INI";
        std::string content = ReadAll(fs::exists(ini) ? ini : m_App / "Templates" / "VigrelReceiver.044");
        const std::size_t place = content.find("\n" + old);
        content.replace(place == std::string::npos ? content.find(old) : place + 1, old.size(), text);
        std::ofstream(ini, std::ios::binary) << content;
    }
    static int FreePort(int* keepOpen = nullptr) {
        const int handle = socket(AF_INET, SOCK_STREAM, 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        socklen_t size = sizeof address;
        EXPECT_EQ(bind(handle, reinterpret_cast<sockaddr*>(&address), size), 0);
        EXPECT_EQ(listen(handle, 1), 0);
        getsockname(handle, reinterpret_cast<sockaddr*>(&address), &size);
        if (keepOpen != nullptr) {
            *keepOpen = handle;
        } else {
            close(handle);
        }
        return ntohs(address.sin_port);
    }
    // Everything in the application folder: content and time of change by path.
    std::map<std::string, std::string> Everything() const {
        std::map<std::string, std::string> all;
        for (const auto& entry : fs::recursive_directory_iterator(m_App)) {
            const auto time = entry.last_write_time().time_since_epoch().count();
            all[entry.path().string()] =
                std::to_string(time) + (entry.is_regular_file() ? ReadAll(entry.path()) : "");
        }
        return all;
    }

    fs::path m_App;
};

TEST_F(VigrelReceiverCheck, FindsNothingInTheDeliveredConfigurationWithALanguage) {
    const cRun run = Run("App");
    // The template's own empty line of Language stands second now.
    EXPECT_EQ(run.output.substr(run.output.find('\n') + 1), "0 errors, 1 warning, 0 remarks\n") << run.output;
    EXPECT_NE(run.output.find("[key-repeated]"), std::string::npos) << run.output;
    EXPECT_EQ(run.exitCode, 1);
}

TEST_F(VigrelReceiverCheck, ExitsWithZeroWhenThereIsNothing) {
    Configure("Language=\r\n", "\r\n");
    const cRun run = Run("App");
    EXPECT_EQ(run.output, "Nothing to remark.\n");
    EXPECT_EQ(run.exitCode, 0);
}

// A sound that is inherited has the folder in front of it already.
TEST_F(VigrelReceiverCheck, ARelativeFolderIsAsRightAsAWholeOne) {
    Configure("Language=\r\n", "\r\n");
    Configure("Icon_Active=14,15", "EventSignal=3");
    EXPECT_EQ(Run("App").output, Run((m_Folder.Path() / "App").string()).output);
    EXPECT_EQ(Run("App").exitCode, 0) << Run("App").output;
    EXPECT_EQ(Run("./App/../App/").exitCode, 0);
}

TEST_F(VigrelReceiverCheck, ExitsWithTwoForErrors) {
    Configure("Columns=", "Columns=,");
    const cRun run = Run("App");
    EXPECT_NE(run.output.find(": error: [General] Columns=,"), std::string::npos) << run.output;
    EXPECT_EQ(run.exitCode, 2);
}

TEST_F(VigrelReceiverCheck, ExitsWithThreeWhenItCannotCheck) {
    const cRun missing = RunTelling("Missing");
    EXPECT_EQ(missing.exitCode, 3);
    EXPECT_EQ(missing.errors, "vigrel-receiver-check: Missing: no such folder\n");
    EXPECT_EQ(missing.output, "");
    const cRun usage = RunTelling("--fix App");
    EXPECT_EQ(usage.exitCode, 3);
    EXPECT_EQ(usage.errors,
              "vigrel-receiver-check: the option --fix is not known\nTry vigrel-receiver-check --help\n");
    EXPECT_EQ(RunTelling("App", "/dev/full").exitCode, 3);
}

TEST_F(VigrelReceiverCheck, ChangesNothing) {
    Configure("Columns=", "ShowInTaskBar=yes\r\nColumns=");
    std::ofstream(m_App / "Alarms" / "A0000001.$~") << "left by a crash";
    fs::remove(m_App / "LogFiles");
    const auto before = Everything();
    EXPECT_EQ(Run("App").exitCode, 1);
    EXPECT_EQ(Run("--json App/").exitCode, 1);
    EXPECT_EQ(Everything(), before);
}

TEST_F(VigrelReceiverCheck, TellsOfAPortThatIsInUseUnlessOnlyFilesAreAskedFor) {
    Configure("Language=\r\n", "\r\n");
    int station = -1;
    const std::string port = std::to_string(FreePort(&station));
    Configure("[TCPIP]", "[TCPIP]\r\nPort=" + port + "\r\n;");
    const cRun run = Run("App");
    EXPECT_NE(run.output.find("TCP port " + port + " is in use (perhaps by the station itself)"),
              std::string::npos)
        << run.output;
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(Run("--files-only App").output.find("TCP port"), std::string::npos);
    close(station);
}

TEST_F(VigrelReceiverCheck, PrintsJson) {
    Configure("Language=\r\n", "\r\n");
    const cRun run = Run("App --json");
    EXPECT_EQ(run.output,
              "{\n  \"folder\": \"App\",\n  \"errors\": 0,\n  \"warnings\": 0,\n  "
              "\"remarks\": 0,\n  \"findings\": []\n}\n");
    EXPECT_EQ(run.exitCode, 0);
}

TEST_F(VigrelReceiverCheck, ShowsTheTextsOfASampleAlarm) {
    const cRun run = Run("--show-texts App");
    EXPECT_NE(run.output.find("Category Fire, popup, state 1:\n    Fire - Active\n    Fan 3 tripped\n"),
              std::string::npos)
        << run.output;
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(Run("--version").output.substr(0, 22), "vigrel-receiver-check ");
}

TEST_F(VigrelReceiverCheck, PrintsHelp) {
    const cRun run = Run("--help");
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_NE(run.output.find("Examples:\n"), std::string::npos);
}

// Nothing is there to look at, and no file is missing either.
TEST_F(VigrelReceiverCheck, AConfigurationThatIsALinkToItselfIsAFinding) {
    fs::remove(m_App / "VigrelReceiver.INI");
    fs::create_symlink("VigrelReceiver.INI", m_App / "VigrelReceiver.INI");
    const cRun run = Run("--files-only " + m_App.string());
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_NE(run.output.find("Too many levels of symbolic links"), std::string::npos);
    EXPECT_NE(run.output.find("[unreadable]"), std::string::npos);
}

}  // namespace
}  // namespace vigrel::testing
