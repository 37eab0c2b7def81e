#include "bench/bare.h"

#include <arpa/inet.h>
#include <dirent.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <stdexcept>
#include <vector>

namespace vigrel::bench {
namespace {

// What a station writes for the frame of the measurements, by size.
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

void ServeOne(int peer, const std::string& folder, int folderDescriptor, int& number) {
    const int on = 1;
    setsockopt(peer, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    std::array<char, 4096> buffer;
    ssize_t count = 0;
    while ((count = recv(peer, buffer.data(), buffer.size(), 0)) > 0) {
        for (auto line = std::count(buffer.begin(), buffer.begin() + count, '\n'); line > 0; --line) {
            StoreOne(folder, folderDescriptor, number++);
            if (send(peer,
                     "\x04"
                     "04\n\r",
                     5, 0) != 5)
                _exit(1);
        }
    }
}

[[noreturn]] void BareLoop(int listener, const std::string& folder) {
    const int folderDescriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY);
    int number = 0;
    while (true) {
        const int peer = accept(listener, nullptr, nullptr);
        ServeOne(peer, folder, folderDescriptor, number);
        close(peer);
    }
}

using Folder = std::unique_ptr<DIR, int (*)(DIR*)>;

std::vector<std::string> Names(const std::filesystem::path& folder) {
    std::vector<std::string> names;
    const Folder stream(opendir(folder.c_str()), closedir);
    while (const dirent* entry = readdir(stream.get())) {
        if (entry->d_name[0] != '.') names.push_back(folder.string() + "/" + entry->d_name);
    }
    return names;
}

}  // namespace

cBareStation::cBareStation() {
    const int listener = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    if (bind(listener, reinterpret_cast<sockaddr*>(&address), size) != 0 || listen(listener, 5) != 0)
        throw std::runtime_error("no port for the bare loop");
    getsockname(listener, reinterpret_cast<sockaddr*>(&address), &size);
    m_Port = ntohs(address.sin_port);
    m_Process = fork();
    if (m_Process == 0) BareLoop(listener, m_Folder.Path().string());
    close(listener);
}

cBareStation::~cBareStation() {
    kill(m_Process, SIGKILL);
    waitpid(m_Process, nullptr, 0);
}

std::size_t ReadAllFiles(const std::filesystem::path& folder) {
    std::array<char, 65536> buffer;
    std::size_t bytes = 0;
    for (const std::string& name : Names(folder)) {
        const int file = open(name.c_str(), O_RDONLY | O_CLOEXEC);
        ssize_t count = 0;
        while ((count = read(file, buffer.data(), buffer.size())) > 0)
            bytes += static_cast<std::size_t>(count);
        close(file);
    }
    return bytes;
}

void ReplaceAllFiles(const std::filesystem::path& folder) {
    const std::string bytes(kFileSize, 'x');
    for (const std::string& name : Names(folder)) {
        const std::string temporary = name + ".new";
        const int file = open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
        if (write(file, bytes.data(), bytes.size()) < 0) return;
        close(file);
        rename(temporary.c_str(), name.c_str());
    }
}

}  // namespace vigrel::bench
