#include "e2e/station.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <thread>

namespace vigrel::testing {
namespace {

using Clock = std::chrono::steady_clock;

std::string ProgramPath(const std::string& program) {
    return (std::filesystem::read_symlink("/proc/self/exe").parent_path() / program).string();
}

// The child's side of starting a program; does not return.
[[noreturn]] void Execute(const std::string& path, const std::vector<std::string>& arguments, int output,
                          const std::function<void()>& last = nullptr) {
    dup2(output, 1);
    dup2(output, 2);
    std::vector<char*> pointers{const_cast<char*>(path.c_str())};
    for (const std::string& argument : arguments) pointers.push_back(const_cast<char*>(argument.c_str()));
    pointers.push_back(nullptr);
    if (last) last();
    execv(path.c_str(), pointers.data());
    _exit(127);
}

int ExitCode(int status) {
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

}  // namespace

std::string ReadAll(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

cResult RunProgram(const std::string& program, const std::vector<std::string>& arguments) {
    std::array<int, 2> pipe{};
    if (::pipe(pipe.data()) != 0) return {};
    const std::string path = ProgramPath(program);
    const pid_t process = fork();
    if (process == 0) Execute(path, arguments, pipe[1]);
    close(pipe[1]);
    cResult result;
    std::array<char, 4096> buffer;
    ssize_t count = 0;
    while ((count = read(pipe[0], buffer.data(), buffer.size())) > 0) {
        result.output.append(buffer.data(), static_cast<std::size_t>(count));
    }
    close(pipe[0]);
    int status = 0;
    waitpid(process, &status, 0);
    result.exitCode = ExitCode(status);
    return result;
}

int FreePort() {
    const int descriptor = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    socklen_t size = sizeof address;
    if (bind(descriptor, reinterpret_cast<sockaddr*>(&address), size) != 0)
        throw std::runtime_error("no free port");
    getsockname(descriptor, reinterpret_cast<sockaddr*>(&address), &size);
    close(descriptor);
    return ntohs(address.sin_port);
}

cZoneBeforeMidnight::cZoneBeforeMidnight(int seconds) {
    constexpr std::time_t kDay = 86400, kDaysBefore1970 = 25569;
    const std::time_t now = std::time(nullptr);
    // What the zone's clock lacks to Greenwich's; written west of it as a positive number.
    std::time_t west = ((now + seconds) % kDay + kDay) % kDay;
    if (west > kDay / 2) west -= kDay;
    const std::time_t length = std::abs(west);
    m_Name = (west < 0 ? "TST-" : "TST+") + std::to_string(length / 3600) + ":" +
             std::to_string(length / 60 % 60) + ":" + std::to_string(length % 60);
    const std::time_t day = (now + seconds - west) / kDay;
    m_Midnight = static_cast<double>(day + kDaysBefore1970);
}

cStation::cStation() : m_Port(FreePort()), m_Folder(std::make_shared<cTemporaryFolder>()) {
    std::string texts;
    for (int id = 1; id < 1100; ++id) texts += std::to_string(id) + "=T" + std::to_string(id) + "\r\n";
    for (int id = 10000; id < 10060; ++id) texts += std::to_string(id) + "=T" + std::to_string(id) + "\r\n";
    for (int id = 11000; id < 11020; ++id) texts += std::to_string(id) + "=T" + std::to_string(id) + "\r\n";
    std::ofstream(Folder() / "Vigrel_Texts.046", std::ios::binary) << "0=Test\r\n" << texts;
}

cStation::cStation(const cStation* other)
    : m_Port(other->m_Port), m_Folder(other->m_Folder), m_ErrorFile("stderr-of-the-second.txt") {}

cStation::~cStation() {
    if (Running()) Stop(SIGKILL);
    if (!m_ErrorExpected) {
        EXPECT_EQ(StandardError(), "");
    }
}

void cStation::WriteConfiguration() const {
    const std::filesystem::path ini = Folder() / m_ConfigurationName;
    if (m_MakesConfiguration || std::filesystem::exists(ini)) return;
    std::string content = m_Configuration;
    const std::string own = "Language=046\r\n";
    const std::size_t general = content.find("[General]\r\n");
    if (general == std::string::npos) {
        content = "[General]\r\n" + own + content;
    } else {
        content.insert(general + 11, own);
    }
    std::ofstream(ini, std::ios::binary)
        << content << "[TCPIP]\r\nPort=" << m_Port << "\r\nAddress=" << m_Address << "\r\n";
}

void cStation::Launch(const std::vector<std::string>& switches) {
    WriteConfiguration();
    const std::string path = ProgramPath("vigrel-receiver");
    m_Process = fork();
    if (m_Process == 0) {
        setenv("VIGREL_APPLICATION_PATH", Folder().c_str(), 1);
        // The toolkit asks for one, and for its owner alone.
        std::filesystem::permissions(m_Runtime.Path(), std::filesystem::perms::owner_all);
        setenv("XDG_RUNTIME_DIR", m_Runtime.Path().c_str(), 1);
        for (const auto& [name, value] : m_Environment) setenv(name.c_str(), value.c_str(), 1);
        Execute(path, switches, open((Folder() / m_ErrorFile).c_str(), O_WRONLY | O_CREAT | O_APPEND, 0666),
                m_InChild);
    }
}

bool cStation::Start(const std::vector<std::string>& switches) {
    const std::size_t before = Log().size();
    Launch(switches);
    const auto deadline = Clock::now() + std::chrono::seconds(30);
    while (Clock::now() < deadline) {
        const auto log = Log();
        if (std::find(log.begin() + static_cast<std::ptrdiff_t>(before), log.end(), "T10011") != log.end())
            return true;
        int status = 0;
        if (waitpid(m_Process, &status, WNOHANG) == m_Process) {
            m_Process = -1;
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return false;
}

int cStation::Stop(int signal) {
    kill(m_Process, signal);
    return WaitForEnd();
}

int cStation::WaitForEnd() {
    const auto deadline = Clock::now() + std::chrono::seconds(20);
    int status = 0;
    while (waitpid(m_Process, &status, WNOHANG) == 0) {
        if (Clock::now() > deadline) kill(m_Process, SIGKILL);
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    m_Process = -1;
    return ExitCode(status);
}

cResult cStation::Send(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), {"--port", std::to_string(m_Port)});
    return RunProgram("vigrel-send", arguments);
}

std::vector<std::string> cStation::Log() const {
    const std::time_t now = std::time(nullptr);
    std::array<char, 16> name{};
    std::strftime(name.data(), name.size(), "%Y%m%d.Log", std::localtime(&now));
    std::istringstream content(ReadAll(Folder() / "LogFiles" / name.data()));
    std::vector<std::string> lines;
    for (std::string line; std::getline(content, line);) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        lines.push_back(line.size() > 9 ? line.substr(9) : line);
    }
    return lines;
}

bool cStation::WaitForLog(const std::string& line, double seconds) const {
    const auto deadline = Clock::now() + std::chrono::duration<double>(seconds);
    while (Clock::now() < deadline) {
        const auto log = Log();
        if (std::find(log.begin(), log.end(), line) != log.end()) return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return false;
}

std::vector<std::filesystem::path> cStation::AlarmFiles() const {
    std::vector<std::filesystem::path> files;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(Folder() / "Alarms", error)) {
        // And no temporary that is just becoming one.
        if (entry.path().extension() == ".alm") files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::string cStation::StandardError() const {
    return ReadAll(Folder() / m_ErrorFile);
}

}  // namespace vigrel::testing
