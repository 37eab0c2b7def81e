#include "e2e/windows/operator.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <thread>

namespace vigrel::testing {
namespace {

// What a command prints, without the line end of its last line.
std::string Output(const std::string& command) {
    std::string output;
    FILE* pipe = popen((command + " 2>/dev/null").c_str(), "r");
    if (pipe == nullptr) return output;
    std::array<char, 256> buffer;
    while (fgets(buffer.data(), buffer.size(), pipe) != nullptr) output += buffer.data();
    pclose(pipe);
    while (!output.empty() && output.back() == '\n') output.pop_back();
    return output;
}

std::string KeyCommands(const std::vector<std::string>& keys) {
    std::string commands;
    for (const std::string& key : keys) commands += " key --delay 50 " + key;
    return commands;
}

}  // namespace

void OnScreen(cStation& station) {
    station.m_Environment["QT_QPA_PLATFORM"] = "xcb";
    station.m_Environment["LC_ALL"] = "C.UTF-8";
}

std::string FindWindow(pid_t process, const std::string& title, double seconds) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::duration<double>(seconds);
    while (std::chrono::steady_clock::now() < deadline) {
        const std::string found = Output("xdotool search --all --onlyvisible --pid " +
                                         std::to_string(process) + " --name '" + title + "'");
        if (!found.empty()) return found.substr(found.rfind('\n') + 1);
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    return {};
}

std::string TitleOf(const std::string& window) {
    return Output("xdotool getwindowname " + window);
}

std::string ActiveWindow() {
    return Output("xdotool getactivewindow");
}

void Press(const std::string& window, const std::vector<std::string>& keys) {
    Output("xdotool windowactivate --sync " + window + KeyCommands(keys));
}

void PressHere(const std::vector<std::string>& keys) {
    Output("xdotool" + KeyCommands(keys));
}

}  // namespace vigrel::testing
