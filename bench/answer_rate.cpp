// Alarms answered per second over one connection, by a whole station with its window shown and a thousand
// rows, and by a bare loop that does no more than what an answer promises: receive, write, sync, rename, sync
// the folder, reply. Both are measured in turns by the same sender on the same disk; the ratio is what
// counts.
//
//   answer_rate [rounds] [alarms a round] [MaxEvents]
//
// Each alarm removes another one where MaxEvents is reached, which the bare loop does not do; 0, the default,
// keeps all.

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "e2e/station.h"
#include "link/frame.h"
#include "vigrel-send/connection.h"

namespace {

using vigrel::send::cConnection;
using vigrel::testing::cStation;
using vigrel::testing::cTemporaryFolder;

const std::string kFrame =
    vigrel::MakeFrame("PLC1", "S12024-03-05|01:02:03|Fan 3 tripped in the plant room|AHU 3|Technical|x|y|z");

double AlarmsPerSecond(int port, int alarms) {
    cConnection connection("127.0.0.1", std::to_string(port), 10);
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < alarms; ++i) {
        connection.Send(kFrame);
        if (connection.ReadReply().size() != 5) {
            std::fprintf(stderr, "no reply\n");
            std::exit(1);
        }
    }
    return alarms / std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// What a station writes for the frame, by size.
constexpr std::size_t kFileSize = 240;

void StoreOne(const std::string& folder, int folderDescriptor, int number) {
    std::array<char, 32> name{};
    std::snprintf(name.data(), name.size(), "/A%07d.alm", number);
    const std::string path = folder + name.data();
    const std::string temporary = path + ".new";
    static const std::string bytes(kFileSize, 'x');
    const int file = open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (write(file, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size()) || fsync(file) != 0)
        _exit(1);
    close(file);
    if (rename(temporary.c_str(), path.c_str()) != 0 || fsync(folderDescriptor) != 0) _exit(1);
}

[[noreturn]] void BareLoop(int listener, const std::string& folder) {
    const int folderDescriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY);
    int number = 0;
    while (true) {
        const int peer = accept(listener, nullptr, nullptr);
        const int on = 1;
        setsockopt(peer, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
        std::array<char, 4096> buffer;
        ssize_t count = 0;
        while ((count = recv(peer, buffer.data(), buffer.size(), 0)) > 0) {
            const auto lines = std::count(buffer.begin(), buffer.begin() + count, '\n');
            for (auto line = lines; line > 0; --line) {
                StoreOne(folder, folderDescriptor, number++);
                if (send(peer,
                         "\x04"
                         "04\n\r",
                         5, 0) != 5)
                    _exit(1);
            }
        }
        close(peer);
    }
}

// The bare loop in a process of its own.
class cBareStation {
  public:
    cBareStation() {
        const int listener = socket(AF_INET, SOCK_STREAM, 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        bind(listener, reinterpret_cast<sockaddr*>(&address), size);
        listen(listener, 5);
        getsockname(listener, reinterpret_cast<sockaddr*>(&address), &size);
        m_Port = ntohs(address.sin_port);
        m_Process = fork();
        if (m_Process == 0) BareLoop(listener, m_Folder.Path().string());
        close(listener);
    }
    ~cBareStation() {
        kill(m_Process, SIGKILL);
        waitpid(m_Process, nullptr, 0);
    }
    cBareStation(const cBareStation&) = delete;
    cBareStation& operator=(const cBareStation&) = delete;
    int m_Port;

  private:
    cTemporaryFolder m_Folder;
    pid_t m_Process;
};

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

}  // namespace

int main(int argc, char** argv) {
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 5;
    const int alarms = argc > 2 ? std::atoi(argv[2]) : 2000;
    const std::string maxEvents = argc > 3 ? argv[3] : "0";
    cStation station;
    station.Configure(
        "[General]\r\nColumns=StateIcon,DateTime,StateText,t2,t0,t1,t3,Observed\r\nBackColor_Active=255,230,"
        "230\r\n"
        "ForeColor_Active=120,0,0\r\nIcon_Active=2,3\r\nMaxEvents=" +
        maxEvents + "\r\n");
    if (const char* platform = std::getenv("QT_QPA_PLATFORM"))
        station.m_Environment["QT_QPA_PLATFORM"] = platform;
    if (!station.Start()) {
        std::fprintf(stderr, "the station does not start:\n%s\n", station.StandardError().c_str());
        return 1;
    }
    cBareStation bare;
    AlarmsPerSecond(station.m_Port, 1000);
    std::vector<double> ratios;
    for (int round = 0; round < rounds; ++round) {
        const double loop = AlarmsPerSecond(bare.m_Port, alarms);
        const double receiver = AlarmsPerSecond(station.m_Port, alarms);
        ratios.push_back(receiver / loop);
        std::printf("round %d: station %.0f a second, bare loop %.0f, ratio %.2f\n", round + 1, receiver,
                    loop, ratios.back());
    }
    std::printf("median ratio %.2f\n", Median(ratios));
    return station.Stop(SIGTERM);
}
