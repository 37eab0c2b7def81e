#pragma once

#include <sys/types.h>

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "support/temporary_folder.h"

namespace vigrel::testing {

// While it lives, temporary folders are made in memory, where an alarm is stored in a tenth of the time that
// a disk takes.
struct cTemporaryInMemory {
    cTemporaryInMemory() { setenv("TMPDIR", "/dev/shm", 1); }
    ~cTemporaryInMemory() { unsetenv("TMPDIR"); }
    cTemporaryInMemory(const cTemporaryInMemory&) = delete;
    cTemporaryInMemory& operator=(const cTemporaryInMemory&) = delete;
};

// What a program printed and how it ended.
struct cResult {
    int exitCode = -1;
    std::string output;  // standard output and error
};

// Runs a program of the build to its end.
cResult RunProgram(const std::string& program, const std::vector<std::string>& arguments);

// The exit code of a station that can't start as it is.
inline constexpr int kRefusedStart = 69;

// A free TCP port of this machine.
int FreePort();

// A time zone in which it is this long until midnight.
struct cZoneBeforeMidnight {
    explicit cZoneBeforeMidnight(int seconds);
    std::string m_Name;
    double m_Midnight = 0;  // days since 1899-12-30
};

// A real vigrel-receiver on an application folder of its own, with the texts "T<id>" and a free port.
//
// Whoever reads its standard error looks for a reason: one that prints anything that its test doesn't expect
// fails the test.
class cStation {
  public:
    cStation();
    // A second program on the folder, and with the port, of another.
    explicit cStation(const cStation* other);
    ~cStation();
    cStation(const cStation&) = delete;
    cStation& operator=(const cStation&) = delete;

    // Sections and keys of the configuration, below what the station needs to run here. Before Start.
    void Configure(const std::string& content) { m_Configuration = content; }
    // Starts the program and waits until it is ready or has ended. True when it is ready.
    bool Start(const std::vector<std::string>& switches = {});
    // Starts the program without waiting.
    void Launch(const std::vector<std::string>& switches = {});
    // Ends it with the signal; the exit code, or minus the signal that killed it.
    int Stop(int signal);
    // Waits for the program's own end.
    int WaitForEnd();
    bool Running() const { return m_Process > 0; }

    // vigrel-send to this station.
    cResult Send(std::vector<std::string> arguments) const;
    pid_t Process() const { return m_Process; }
    std::filesystem::path Folder() const { return m_Folder->Path(); }
    // Today's log without the time stamps.
    std::vector<std::string> Log() const;
    bool WaitForLog(const std::string& line, double seconds = 10) const;
    std::vector<std::filesystem::path> AlarmFiles() const;
    std::string StandardError() const;
    // The test knows what the program prints.
    void ExpectStandardError() { m_ErrorExpected = true; }

    int m_Port;
    bool m_MakesConfiguration = false;  // the program itself; the port is the usual one then
    std::string m_Address;              // empty: all
    std::string m_ConfigurationName = "VigrelReceiver.INI";
    std::map<std::string, std::string> m_Environment{{"QT_QPA_PLATFORM", "offscreen"}};
    std::function<void()> m_InChild;  // done by the process that becomes the program, last of all

  private:
    void WriteConfiguration() const;

    std::shared_ptr<cTemporaryFolder> m_Folder;
    cTemporaryFolder m_Runtime;
    std::string m_Configuration;
    std::string m_ErrorFile = "stderr.txt";
    bool m_ErrorExpected = false;
    pid_t m_Process = -1;
};

std::string ReadAll(const std::filesystem::path& path);

}  // namespace vigrel::testing
