#include "link/server_link.h"

#include <gtest/gtest.h>

#include <vector>

#include "common/failure.h"
#include "support/fake_sockets.h"

namespace vigrel::testing {
namespace {

class ServerLink : public ::testing::Test {
  protected:
    ServerLink() {
        link.ProcessRecord = [this](const std::string& line) {
            lines.push_back(line);
            link.SendReply("ok" + std::to_string(lines.size()));
        };
        link.WriteTrace = [this](std::string_view text, std::int16_t kind) {
            trace += std::to_string(kind) + ":" + std::string(text) + ";";
        };
        link.Listen("", 12412);
    }

    cFakeListener listener;
    cFakeDataSocket data{listener};
    cReceiverState state;
    cServerLink link{listener, data, state};
    std::vector<std::string> lines;
    std::string trace;
};

TEST_F(ServerLink, ListensOnTheGivenPort) {
    EXPECT_EQ(listener.m_Port, 12412);
    EXPECT_TRUE(listener.m_Listening);
}

TEST_F(ServerLink, ListensAtTheGivenAddress) {
    EXPECT_EQ(listener.m_Address, "");
    link.Listen("192.168.1.10", 12412);
    EXPECT_EQ(listener.m_Address, "192.168.1.10");
}

TEST_F(ServerLink, APortThatCannotBeOpenedIsAFailure) {
    listener.m_PortInUse = true;
    EXPECT_THROW(link.Listen("", 12412), cFailure);
}

TEST_F(ServerLink, ALineSplitOverTwoArrivalsIsProcessedOnceAtItsLineFeed) {
    listener.Knock(1);
    data.Arrive(
        "\x02PLC1\xFFS0\xFF"
        "9");
    EXPECT_TRUE(lines.empty());
    data.Arrive("2\x03\n");
    EXPECT_EQ(lines, std::vector<std::string>{"\x02PLC1\xFFS0\xFF"
                                              "92\x03"});
    data.Arrive("");
    EXPECT_EQ(lines.size(), 1u);
}

TEST_F(ServerLink, ThreeLinesInOneArrivalGiveThreeRepliesInOrder) {
    listener.Knock(1);
    data.Arrive("a\nb\nc\n");
    EXPECT_EQ(lines, (std::vector<std::string>{"a", "b", "c"}));
    EXPECT_EQ(data.TakeSent(), "ok1ok2ok3");
}

TEST_F(ServerLink, CarriageReturnsAreDroppedWhereverTheyStand) {
    listener.Knock(1);
    data.Arrive("a\r\nb\n\rc\rd\n\re");
    EXPECT_EQ(lines, (std::vector<std::string>{"a", "b", "cd"}));
    data.Arrive("\n");
    EXPECT_EQ(lines.back(), "e");
}

TEST_F(ServerLink, ALineIsCutFromTheBufferOnlyAfterItWasProcessed) {
    listener.Knock(1);
    link.ProcessRecord = [this](const std::string& line) {
        lines.push_back(line);
        if (line == "bad") throw cFailure(eFailure::InvalidCall, "not taken");
    };
    EXPECT_THROW(data.Arrive("bad\n"), cFailure);
    EXPECT_THROW(data.Arrive(""), cFailure);
    EXPECT_EQ(lines, (std::vector<std::string>{"bad", "bad"}));
}

TEST_F(ServerLink, ASecondConnectionClosesTheFirstAndForgetsItsHalfLine) {
    listener.Knock(1);
    data.Arrive("half");
    listener.Knock(2);
    EXPECT_NE(data.State(), 0);
    data.Arrive("whole\n");
    EXPECT_EQ(lines, std::vector<std::string>{"whole"});
}

TEST_F(ServerLink, AfterThePeersCloseTheNextConnectionStartsWithAnEmptyBuffer) {
    listener.Knock(1);
    data.Arrive("half");
    data.PeerCloses();
    EXPECT_EQ(data.State(), 0);
    EXPECT_TRUE(listener.m_Listening);
    listener.Knock(2);
    data.Arrive("whole\n");
    EXPECT_EQ(lines, std::vector<std::string>{"whole"});
}

TEST_F(ServerLink, AnErrorClosesTheSocketAndListeningGoesOn) {
    listener.Knock(1);
    data.PeerFails();
    EXPECT_EQ(data.State(), 0);
    EXPECT_TRUE(listener.Knock(2));
}

TEST_F(ServerLink, AFailedSendIsIgnored) {
    listener.Knock(1);
    data.m_SendFails = true;
    data.Arrive("a\n");
    EXPECT_EQ(lines.size(), 1u);
}

TEST_F(ServerLink, AReplyIsTracedBeforeItIsSentThoughItCannotBe) {
    state.m_DebugMode = true;
    std::string sentBefore = "not traced";
    link.WriteTrace = [&](std::string_view text, std::int16_t kind) {
        if (kind == cServerLink::ToSender) sentBefore = data.TakeSent();
        trace += std::string(text) + ";";
    };
    listener.Knock(1);
    data.Arrive("a\n");
    EXPECT_EQ(sentBefore, "");
    EXPECT_EQ(data.TakeSent(), "ok1");
    data.m_SendFails = true;
    data.Arrive("b\n");
    EXPECT_EQ(trace, "a\n;ok1;b\n;ok2;");
}

// What is in the buffer was received: a peer that sends and leaves has told what it had to tell.
TEST_F(ServerLink, LinesThatArrivedBeforeTheSocketClosedAreProcessed) {
    link.ProcessRecord = [this](const std::string& line) {
        lines.push_back(line);
        data.PeerCloses();
    };
    listener.Knock(1);
    data.Arrive("a\nb\n");
    EXPECT_EQ(data.State(), 0);
    EXPECT_EQ(lines, (std::vector<std::string>{"a", "b"}));
    listener.Knock(2);
    const std::string line(20'000, 'x');
    data.Arrive(line + "\n" + line + "\n");
    EXPECT_EQ(lines, (std::vector<std::string>{"a", "b", line, line}));
}

TEST_F(ServerLink, TheTraceShowsChunksAsTheyCameAndRepliesOnlyInDebugMode) {
    listener.Knock(1);
    data.Arrive("a\n");
    EXPECT_EQ(trace, "");
    state.m_DebugMode = true;
    data.Arrive("b\r\nc");
    EXPECT_EQ(trace, "1:b\r\nc;2:ok2;");
}

TEST_F(ServerLink, ACarriageReturnBehindPosition32767OfTheBufferIsAFailure) {
    listener.Knock(1);
    data.Arrive(std::string(32767, 'x'));
    EXPECT_THROW(data.Arrive("\r"), cFailure);
}

TEST_F(ServerLink, ALongLineWithoutCarriageReturnIsTaken) {
    listener.Knock(1);
    data.Arrive(std::string(40000, 'x'));
    data.Arrive("\n");
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].size(), 40000u);
}

// A line of the longest length, what came of it before being short, and lines right behind it.
TEST_F(ServerLink, ALineAtTheLimitIsNotMadeTooLongByWhatFollowsIt) {
    const std::string line(32'765, 'x');
    listener.Knock(1);
    data.Arrive(line.substr(0, 4000));
    data.Arrive(line.substr(4000) + "\r\nshort\r\nhalf\r");
    EXPECT_EQ(lines, (std::vector<std::string>{line, "short"}));
    EXPECT_EQ(data.TakeSent(), "ok1ok2");
}

TEST_F(ServerLink, ABurstOfAnySizeIsTakenLineByLine) {
    std::string burst;
    for (int i = 0; i < 20'000; ++i) burst += "line\r\n";
    listener.Knock(1);
    data.Arrive(burst);
    EXPECT_EQ(lines, std::vector<std::string>(20'000, "line"));
}

TEST_F(ServerLink, ALineBeyondTheLimitThatEndsInCarriageReturnIsAFailure) {
    listener.Knock(1);
    EXPECT_THROW(data.Arrive(std::string(32'767, 'x') + "\r\n"), cFailure);
}

TEST_F(ServerLink, AStreamOfMoreThanOneMebibyteWithoutLineFeedIsClosed) {
    listener.Knock(1);
    data.Arrive(std::string(1'048'576, 'z'));
    EXPECT_NE(data.State(), 0);
    data.Arrive("z");
    EXPECT_EQ(data.State(), 0);
    EXPECT_TRUE(lines.empty());
    listener.Knock(2);
    data.Arrive("whole\n");
    EXPECT_EQ(lines, std::vector<std::string>{"whole"});
}

// Dropped, it takes no memory, and is no line all the same.
TEST_F(ServerLink, AStreamOfCarriageReturnsIsClosedToo) {
    listener.Knock(1);
    for (int i = 0; i < 1024; ++i) data.Arrive(std::string(1024, '\r'));
    EXPECT_NE(data.State(), 0);
    data.Arrive("\r");
    EXPECT_EQ(data.State(), 0);
}

TEST_F(ServerLink, LineFeedsLetAStreamGoOnForEver) {
    listener.Knock(1);
    for (int i = 0; i < 3; ++i) data.Arrive(std::string(700'000, 'a') + "\n" + std::string(700'000, 'b'));
    EXPECT_NE(data.State(), 0);
    EXPECT_EQ(lines.size(), 3u);
}

TEST_F(ServerLink, ANewConnectionBeginsANewLine) {
    for (int i = 1; i < 3; ++i) {
        listener.Knock(i);
        data.Arrive(std::string(1'048'576, 'z'));
        EXPECT_NE(data.State(), 0);
    }
}

}  // namespace
}  // namespace vigrel::testing
