#include "e2e/numbered_alarms.h"

#include <gtest/gtest.h>

#include <cstdlib>
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

}  // namespace

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
        const std::size_t open = bytes.find('<', kFirstText);
        const std::size_t close = bytes.find('>', kFirstText);
        if (open == std::string::npos || close == std::string::npos) {
            ADD_FAILURE() << path << " is not whole: " << bytes.size() << " bytes";
            continue;
        }
        // 180 bytes and the texts: the alarm's own, its category, its sender.
        EXPECT_EQ(bytes.size(), 180 + (close - open + 1) + 9 + 6) << path;
        EXPECT_TRUE(numbers.insert(std::stoi(bytes.substr(open + 1))).second) << path;
    }
    return numbers;
}

}  // namespace vigrel::testing
