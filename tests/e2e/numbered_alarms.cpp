#include "e2e/numbered_alarms.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <iostream>
#include <string>
#include <string_view>

#include "link/frame.h"

namespace vigrel::testing {
namespace {

constexpr std::string_view kAnswer =
    "\x04"
    "04\n\r";
constexpr int kTogether = 10;

// Where the texts of an alarm's file begin, behind numbers of any bytes.
constexpr std::size_t kFirstText = 22;

// What ends an alarm's file, behind its being acknowledged: the time, the number, what is reserved.
constexpr std::size_t kTime = 8 + 4 + 20 + 40;

}  // namespace

int NumberOf(const std::string& bytes) {
    const std::size_t open = bytes.find('<', kFirstText);
    const std::size_t close = bytes.find('>', kFirstText);
    const bool found = open != std::string::npos && close != std::string::npos;
    // 180 bytes and the texts: the alarm's own, its category, its sender.
    const bool whole = found && bytes.size() == 180 + (close - open + 1) + 9 + 6;
    return whole ? std::stoi(bytes.substr(open + 1)) : 0;
}

double CreatedTimeOf(const std::string& bytes) {
    double time = 0;
    std::memcpy(&time, &bytes.at(bytes.size() - kTime), sizeof time);
    return time;
}

void SetCreatedTime(std::string& bytes, double time) {
    std::memcpy(&bytes.at(bytes.size() - kTime), &time, sizeof time);
}

bool IsAcknowledged(const std::string& bytes) {
    return bytes.at(bytes.size() - kTime - 2) != 0;
}

std::mt19937 RandomMoments() {
    const char* wish = std::getenv("VIGREL_SEED");
    const std::random_device::result_type seed =
        wish != nullptr ? static_cast<unsigned>(std::strtoul(wish, nullptr, 10)) : std::random_device{}();
    std::cout << "random moments of VIGREL_SEED=" << seed << std::endl;
    return std::mt19937(seed);
}

int KillsOfEachKind() {
    const char* wish = std::getenv("VIGREL_KILLS");
    return wish != nullptr ? std::atoi(wish) : 2;
}

void cNumberedAlarms::Send(int port, int count) {
    const cTcpClient client(port);
    const int first = m_Sent;
    while (client.Connected() && m_Sent - first < count && SendSome(client)) {
    }
}

bool cNumberedAlarms::SendSome(const cTcpClient& client) {
    std::string frames;
    for (int i = 0; i < kTogether; ++i)
        frames += MakeFrame("Killer", "S1||<" + std::to_string(++m_Sent) + ">||Technical");
    if (!client.TrySend(frames)) return false;
    const std::string answers = client.Read(kTogether * kAnswer.size());
    const int answered = static_cast<int>(answers.size() / kAnswer.size());
    if (answered > 0) m_Answered = m_Sent - kTogether + answered;
    m_Answers += answered;
    return answers.size() == kTogether * kAnswer.size();
}

std::set<int> StoredNumbers(const cStation& station) {
    std::set<int> numbers;
    for (const auto& path : station.AlarmFiles()) {
        const std::string bytes = ReadAll(path);
        const int number = NumberOf(bytes);
        if (number == 0) {
            ADD_FAILURE() << path << " is not whole: " << bytes.size() << " bytes";
            continue;
        }
        EXPECT_TRUE(numbers.insert(number).second) << path;
    }
    return numbers;
}

}  // namespace vigrel::testing
