#pragma once

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>
#include <utility>
#include <vector>

namespace vigrel::testing {

// A program that is started beside the test and ends with the object; its output is thrown away.
class cChildProcess {
  public:
    cChildProcess() = default;
    // The program is looked for along the search path.
    explicit cChildProcess(std::vector<std::string> words) {
        std::vector<char*> arguments;
        arguments.reserve(words.size() + 1);
        for (std::string& word : words) arguments.push_back(word.data());
        arguments.push_back(nullptr);
        m_Process = fork();
        if (m_Process != 0) return;
        const int null = open("/dev/null", O_RDWR);
        dup2(null, STDOUT_FILENO);
        dup2(null, STDERR_FILENO);
        execvp(arguments[0], arguments.data());
        _exit(127);
    }
    ~cChildProcess() { End(); }
    cChildProcess(cChildProcess&& other) noexcept : m_Process(std::exchange(other.m_Process, -1)) {}
    cChildProcess& operator=(cChildProcess&& other) noexcept {
        std::swap(m_Process, other.m_Process);
        return *this;
    }

    // The exit code, after its end; -1 for an end without one.
    int Wait() {
        int status = 0;
        if (m_Process <= 0 || waitpid(std::exchange(m_Process, -1), &status, 0) < 0) return -1;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    void Signal(int number) const {
        if (m_Process > 0) kill(m_Process, number);
    }
    void End() {
        Signal(SIGCONT);
        Signal(SIGTERM);
        Wait();
    }

  private:
    pid_t m_Process = -1;
};

}  // namespace vigrel::testing
