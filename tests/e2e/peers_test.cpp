// Peers that are broken or mean harm, and beside them a good sender, who is answered all the same.

#include <gtest/gtest.h>
#include <signal.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <deque>
#include <fstream>
#include <functional>
#include <iostream>
#include <random>
#include <set>
#include <stop_token>
#include <thread>

#include "e2e/station.h"
#include "e2e/tcp_client.h"
#include "life/line_maker.h"
#include "life/naive_link.h"
#include "link/frame.h"

namespace vigrel::testing {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

// What a campaign asks for, which has the machine for itself.
int Wish(const char* name, int otherwise) {
    const char* wish = std::getenv(name);
    return wish != nullptr ? std::atoi(wish) : otherwise;
}
std::chrono::seconds TimeWithEach() {
    return std::chrono::seconds(Wish("VIGREL_PEERS_SECONDS", 1));
}
milliseconds MostForAnAnswer() {
    return milliseconds(Wish("VIGREL_PEERS_PATIENCE", 10'000));
}
unsigned Seed() {
    return static_cast<unsigned>(Wish("VIGREL_PEERS_SEED", 1));
}

// Memory that a sanitizer puts aside is none of the station's.
#ifdef __SANITIZE_ADDRESS__
constexpr long kMostGrowth = 1'000'000;
#else
constexpr long kMostGrowth = 64'000;
#endif

// What a process has in memory, in KB.
long Memory(pid_t process) {
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    for (std::string word; status >> word;) {
        long kilobytes = 0;
        if (word == "VmRSS:" && status >> kilobytes) return kilobytes;
    }
    return 0;
}

// What the toolkit opens once, at its first use.
constexpr std::ptrdiff_t kOpenedOnce = 10;

std::ptrdiff_t CountOpenFiles(pid_t process) {
    const std::filesystem::directory_iterator files("/proc/" + std::to_string(process) + "/fd");
    return std::distance(begin(files), end(files));
}

// Those that wait for their turn and those that were replaced, the listener's queue not among them.
constexpr std::ptrdiff_t kMostConnections = 50;

// Whether the files come down to so many within ten seconds: connections that were replaced stay for two.
bool ComesDownToOpenFiles(pid_t process, std::ptrdiff_t most) {
    const auto end = Clock::now() + std::chrono::seconds(10);
    while (CountOpenFiles(process) > most && Clock::now() < end)
        std::this_thread::sleep_for(milliseconds(50));
    return CountOpenFiles(process) <= most;
}

// Sends numbered alarms, each by a connection of its own, and again where another peer took its place.
class cGoodSender {
  public:
    explicit cGoodSender(int port) : m_Port(port) {}

    void SendOne() {
        const auto begin = Clock::now();
        while (!Try() && Clock::now() - begin < MostForAnAnswer()) {
        }
        m_Longest = std::max(m_Longest, std::chrono::duration_cast<milliseconds>(Clock::now() - begin));
    }
    milliseconds Longest() const { return m_Longest; }
    const std::set<std::string>& Answered() const { return m_Answered; }

  private:
    bool Try() {
        const std::string text = "<" + std::to_string(++m_Tries) + ">";
        const std::string answer = std::string(kPositive) + std::string(kReplyEnd);
        const cTcpClient client(m_Port);
        if (!client.TrySend(MakeFrame("Good", "S1||" + text + "||Technical"))) return false;
        if (client.Read(answer.size(), static_cast<int>(MostForAnAnswer().count())) != answer) return false;
        m_Answered.insert(text);
        return true;
    }

    int m_Port, m_Tries = 0;
    milliseconds m_Longest{0};
    std::set<std::string> m_Answered;
};

// Those of the texts that no stored alarm has.
std::set<std::string> Lost(const cStation& station, std::set<std::string> texts) {
    std::string stored;
    for (const auto& path : station.AlarmFiles()) stored += ReadAll(path);
    std::erase_if(texts, [&](const std::string& text) { return stored.find(text) != std::string::npos; });
    return texts;
}

// --- the peers, each at work until it is told to stop

using cPeer = std::function<void(const std::stop_token& stop, int port)>;

const std::string kRefusedFrame = "\x02PLC1\xFFS1|||text\xFF" + std::string("00\x03\n");

// A byte every now and then.
void Drip(const std::stop_token& stop, int port) {
    while (!stop.stop_requested()) {
        const cTcpClient client(port);
        for (const char c : MakeFrame("PLC1", "S1||a drip||Technical")) {
            if (stop.stop_requested() || !client.TrySend({&c, 1})) break;
            std::this_thread::sleep_for(milliseconds(10));
        }
    }
}

void SendOneLineForever(const std::stop_token& stop, int port) {
    const std::string piece(65'536, 'x');
    while (!stop.stop_requested()) {
        const cTcpClient client(port);
        while (!stop.stop_requested() && client.TrySend(piece)) {
        }
    }
}

// More than ten thousand a minute, which leave in one way or another; some stay.
void ConnectAgainAndAgain(const std::stop_token& stop, int port) {
    std::deque<cTcpClient> staying;
    auto next = Clock::now();
    long connected = 0;
    for (int count = 0; !stop.stop_requested(); ++count) {
        next += milliseconds(5);
        std::this_thread::sleep_until(next);
        cTcpClient& client = staying.emplace_back(port);
        if (client.Connected()) ++connected;
        if (count % 4 != 0) client.TrySend(kRefusedFrame.substr(0, static_cast<std::size_t>(count % 20)));
        if (count % 4 == 2) client.Reset();
        if (count % 4 == 3) client.EndSending();
        if (staying.size() > 100) staying.pop_front();
    }
    std::cout << connected << " connections; ";
    if (TimeWithEach() >= std::chrono::minutes(1)) {
        EXPECT_GT(connected, TimeWithEach().count() * 10'000 / 60);
    }
}

// Connections on the other side of which nobody is any more, or nobody says anything.
void StayHalfOpen(const std::stop_token& stop, int port) {
    std::deque<cTcpClient> staying;
    while (!stop.stop_requested()) {
        staying.emplace_back(port).TrySend("\x02Half");
        if (staying.size() > 300) {
            staying.front().Vanish();
            staying.pop_front();
        }
        std::this_thread::sleep_for(milliseconds(2));
    }
}

// As fast as the station takes them; no reply is read.
void FloodWithRefused(const std::stop_token& stop, int port) {
    std::string frames;
    for (int i = 0; i < 1000; ++i) frames += kRefusedFrame;
    while (!stop.stop_requested()) {
        const cTcpClient client(port);
        while (!stop.stop_requested() && client.TrySend(frames)) {
        }
    }
}

void FloodWithRefusedAndReadReplies(const std::stop_token& stop, int port) {
    std::string frames;
    for (int i = 0; i < 100; ++i) frames += kRefusedFrame;
    while (!stop.stop_requested()) {
        const cTcpClient client(port);
        while (!stop.stop_requested() && client.TrySend(frames) && client.Read(500).size() == 500) {
        }
    }
}

// Lines of all kinds, cut anywhere. What is answered is what a plain second station answers, up to where
// another connection took the place.
void SendRandomLines(const std::stop_token& stop, int port) {
    std::mt19937 draw(Seed());
    cLineMaker lines(draw);
    while (!stop.stop_requested()) {
        const cTcpClient client(port);
        cNaiveLink naive({{"PLC1", 0}});
        naive.Connect();
        std::string expected, received;
        for (bool goesOn = client.Connected(); goesOn && !stop.stop_requested();) {
            const std::string bytes = lines.Line() + lines.LineEnd();
            const std::size_t cut = draw() % bytes.size();
            expected += naive.Arrive(bytes);
            goesOn = client.TrySend(bytes.substr(0, cut)) && client.TrySend(bytes.substr(cut));
            if (goesOn) received += client.Read(expected.size() - received.size(), 500);
            goesOn = goesOn && received == expected;
        }
        ASSERT_EQ(received, expected.substr(0, received.size()));
    }
}

struct cPeerKind {
    const char* name;
    cPeer work;
    std::vector<std::string> switches;
};
void PrintTo(const cPeerKind& kind, std::ostream* stream) {
    *stream << kind.name;
}

class Peers : public ::testing::TestWithParam<cPeerKind> {
  protected:
    Peers() { m_Station.Configure("[General]\r\nMaxEvents=0\r\n[Senders]\r\nPLC1=0\r\n"); }

  private:
    cTemporaryInMemory m_TemporaryInMemory;  // when the station makes its folder

  protected:
    cStation m_Station;
};

TEST_P(Peers, KeepNoGoodSenderFromItsAnswers) {
    cStation& station = m_Station;
    ASSERT_TRUE(station.Start(GetParam().switches)) << station.StandardError();
    cGoodSender good(station.m_Port);
    good.SendOne();
    const long memory = Memory(station.Process());
    const std::ptrdiff_t files = CountOpenFiles(station.Process());
    std::ptrdiff_t mostFiles = files;
    {
        const std::jthread peer(GetParam().work, station.m_Port);
        for (const auto end = Clock::now() + TimeWithEach(); Clock::now() < end;) {
            std::this_thread::sleep_for(milliseconds(20));
            good.SendOne();
            mostFiles = std::max(mostFiles, CountOpenFiles(station.Process()));
        }
    }
    good.SendOne();
    EXPECT_LT(good.Longest(), MostForAnAnswer());
    EXPECT_LT(Memory(station.Process()), memory + kMostGrowth);
    EXPECT_LT(mostFiles, files + kMostConnections);
    EXPECT_TRUE(ComesDownToOpenFiles(station.Process(), files + kOpenedOnce));
    std::cout << "answered " << good.Answered().size() << ", the slowest in " << good.Longest().count()
              << " ms; files " << files << ", at most " << mostFiles << "; memory " << memory
              << " KB before, " << Memory(station.Process()) << " KB behind\n";
    EXPECT_EQ(station.Stop(SIGTERM), 0);
    EXPECT_EQ(Lost(station, good.Answered()), std::set<std::string>{});
}

const std::vector<cPeerKind> kPeers{{"Drip", Drip, {}},
                                    {"OneLineForever", SendOneLineForever, {}},
                                    {"ConnectAgainAndAgain", ConnectAgainAndAgain, {}},
                                    {"StayHalfOpen", StayHalfOpen, {}},
                                    {"FloodWithRefused", FloodWithRefused, {}},
                                    {"FloodWithRefusedAndReadReplies", FloodWithRefusedAndReadReplies, {}},
                                    {"FloodWithRefusedUnderDebug", FloodWithRefused, {"/DEBUG"}},
                                    {"RandomLines", SendRandomLines, {}},
                                    {"RandomLinesUnderDebug", SendRandomLines, {"/DEBUG"}}};

INSTANTIATE_TEST_SUITE_P(All, Peers, ::testing::ValuesIn(kPeers),
                         [](const auto& peer) { return peer.param.name; });

// Each of the 256 bytes at each place of a frame.
std::string FramesOfAllBytes() {
    std::string frames;
    for (int code = 0; code < 256; ++code) {
        const std::string byte(1, static_cast<char>(code));
        const std::string good = MakeFrame("PLC1", "S1||text||Technical");
        frames += MakeFrame("PL" + byte + "C1", "S1||text") + MakeFrame("PLC1", "S1||te" + byte + "xt") +
                  MakeFrame("PLC1", "S" + byte + "||text") + MakeFrame("PLC1", byte + "1||text");
        for (const std::size_t behind : {std::size_t{0}, std::size_t{1}, good.size() - 4, good.size() - 2}) {
            frames += good.substr(0, behind) + byte + good.substr(behind);
        }
    }
    return frames;
}

TEST(AllBytes, AtAnyPlaceOfAFrameAreAnsweredAsAPlainSecondStationAnswers) {
    cStation station;
    station.Configure("[General]\r\nMaxEvents=20\r\n[Senders]\r\nPLC1=0\r\n");
    ASSERT_TRUE(station.Start()) << station.StandardError();
    cNaiveLink naive({{"PLC1", 0}});
    naive.Connect();
    const std::string frames = FramesOfAllBytes();
    const std::string expected = naive.Arrive(frames);
    const cTcpClient client(station.m_Port);
    client.Send(frames);
    EXPECT_EQ(client.Read(expected.size(), 30'000), expected);
    EXPECT_EQ(station.Stop(SIGTERM), 0);
}

// The one end that a peer can bring about: positions in a buffer are 16 bits wide.
TEST(PositionOverflow, EndsAStationThatComesBackWithEveryAlarm) {
    cStation station;
    station.ExpectStandardError();
    ASSERT_TRUE(station.Start()) << station.StandardError();
    cGoodSender good(station.m_Port);
    for (int i = 0; i < 5; ++i) good.SendOne();
    const cTcpClient client(station.m_Port);
    client.Send(std::string(32'768, 'x') + "\r\n");
    EXPECT_EQ(station.WaitForEnd(), 70);
    ASSERT_TRUE(station.Start()) << station.StandardError();
    EXPECT_TRUE(station.WaitForLog("5 T10041"));
    good.SendOne();
    EXPECT_EQ(good.Answered().size(), 6u);
    EXPECT_EQ(Lost(station, good.Answered()), std::set<std::string>{});
}

}  // namespace
}  // namespace vigrel::testing
