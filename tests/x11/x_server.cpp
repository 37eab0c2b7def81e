#include "x11/x_server.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <algorithm>
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

// Whether a window that is shown now comes under a window manager. One that is just starting announces itself
// before it looks after windows, and loses those that are shown in between.
bool ProbeIsManaged() {
    const cXScreen screen;
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    const xcb_screen_t* root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const xcb_window_t probe = xcb_generate_id(connection);
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, probe, root->root, 0, 0, 10, 10, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, root->root_visual, 0, nullptr);
    xcb_map_window(connection, probe);
    xcb_flush(connection);
    const auto isManaged = [&] {
        const std::vector<std::uint32_t> clients = screen.RootWindows("_NET_CLIENT_LIST");
        return std::find(clients.begin(), clients.end(), probe) != clients.end();
    };
    const auto waitUntil = [&](bool managed) {
        for (int tries = 0; tries < 20 && isManaged() != managed; ++tries) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        return isManaged() == managed;
    };
    const bool managed = waitUntil(true);
    xcb_disconnect(connection);  // and the probe goes
    return managed && waitUntil(false);
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
    for (int tries = 0; tries < 50; ++tries) {
        if (ProbeIsManaged()) return;
    }
    throw std::runtime_error("openbox did not start; is package openbox installed?");
}

}  // namespace vigrel::testing
