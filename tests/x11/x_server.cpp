#include "x11/x_server.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <thread>
#include <vector>

#include "x11/x_screen.h"

namespace vigrel::testing {
namespace {

// Starts a program of the search path, its output thrown away.
pid_t Start(std::vector<std::string> words) {
    std::vector<char*> arguments;
    for (std::string& word : words) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    const pid_t child = fork();
    if (child != 0) return child;
    const int null = open("/dev/null", O_RDWR);
    dup2(null, STDOUT_FILENO);
    dup2(null, STDERR_FILENO);
    execvp(arguments[0], arguments.data());
    _exit(127);
}

// Ends a child that is ours.
void End(pid_t& child) {
    if (child <= 0) return;
    kill(child, SIGTERM);
    waitpid(child, nullptr, 0);
    child = -1;
}

std::string ReadLine(int file) {
    std::string line;
    for (char c = 0; read(file, &c, 1) == 1 && c != '\n';) line += c;
    return line;
}

}  // namespace

cXServer::cXServer() {
    std::string home = (std::filesystem::temp_directory_path() / "vigrel-x11-XXXXXX").string();
    if (mkdtemp(home.data()) == nullptr) throw std::runtime_error("no temporary folder");
    m_Home = home;
    try {
        StartServer();
        StartWindowManager();
    } catch (...) {
        Stop();
        throw;
    }
}

cXServer::~cXServer() {
    Stop();
}

void cXServer::Stop() {
    End(m_WindowManager);
    End(m_Server);
    std::error_code ignored;
    std::filesystem::remove_all(m_Home, ignored);
}

// The server itself picks a display that is free, and names it when it is ready.
void cXServer::StartServer() {
    int ready[2];
    if (pipe(ready) != 0) throw std::runtime_error("no pipe");
    m_Server = Start({"Xvfb", "-displayfd", std::to_string(ready[1]), "-screen", "0", "1280x1024x24",
                      "-nolisten", "tcp", "-noreset"});
    close(ready[1]);
    const std::string number = ReadLine(ready[0]);
    close(ready[0]);
    if (number.empty()) throw std::runtime_error("Xvfb did not start; is package xvfb installed?");
    m_Display = ":" + number;
}

void cXServer::StartWindowManager() {
    setenv("DISPLAY", m_Display.c_str(), 1);
    // Not the user's own configuration.
    setenv("HOME", m_Home.c_str(), 1);
    setenv("XDG_CONFIG_HOME", m_Home.c_str(), 1);
    m_WindowManager = Start({"openbox", "--sm-disable"});
    const cXScreen screen;
    for (int tries = 0; tries < 500; ++tries) {
        if (!screen.RootWindows("_NET_SUPPORTING_WM_CHECK").empty()) return;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    throw std::runtime_error("openbox did not start; is package openbox installed?");
}

}  // namespace vigrel::testing
