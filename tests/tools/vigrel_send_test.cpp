#include <gtest/gtest.h>

#include "vigrel-send/frames.h"
#include "vigrel-send/options.h"

namespace vigrel::send {
namespace {

std::string OneFrame(const std::vector<std::string>& arguments) {
    const auto frames = MakeFrames(ReadOptions(arguments), "", "2026-03-15 12:30:15");
    EXPECT_EQ(frames.size(), 1u);
    return frames.empty() ? "" : frames[0];
}

TEST(VigrelSend, AnAlarmCarriesAllItsFields) {
    EXPECT_EQ(OneFrame({"--sender", "A", "--kind", "0", "--t0", "a", "--t1=b", "--t2", "c", "--t3", "d",
                        "--t4", "e", "--t5", "f", "--date", "2024-03-05", "--time", "01:02:03"}),
              "\x02"
              "A\xFFS02024-03-05|01:02:03|a|b|c|d|e|f\xFF"
              "00\x03\n");
}

TEST(VigrelSend, WithoutDateAndTimeItIsNow) {
    EXPECT_NE(OneFrame({"--t0", "x"}).find("S12026-03-15|12:30:15|x|"), std::string::npos);
    EXPECT_NE(OneFrame({"--date=", "--time="}).find("S1||||"), std::string::npos);
}

TEST(VigrelSend, AKeepAliveIsTheSmallestFrame) {
    // 0x41 + 0xFF + 0x53 + 0x31 = 0x1C4
    EXPECT_EQ(OneFrame({"--sender", "A", "--keepalive"}),
              "\x02"
              "A\xFFS1\xFF"
              "C4\x03\n");
}

TEST(VigrelSend, AMessageStandsInItsThirdField) {
    EXPECT_NE(OneFrame({"--message", "hello"}).find("\xFFS3||hello\xFF"), std::string::npos);
}

TEST(VigrelSend, TextsGoOverTheLinkInItsCodePage) {
    EXPECT_NE(OneFrame({"--t0", "K\xC3\xA4llare\nplan 1"}).find("|K\xE4llare\x10plan 1|"), std::string::npos);
}

TEST(VigrelSend, EachWayOfSpoilingChangesWhatItNames) {
    const std::vector<std::string> base{"--sender", "A", "--keepalive", "--corrupt"};
    const auto with = [&](const char* what) {
        auto arguments = base;
        arguments.emplace_back(what);
        return OneFrame(arguments);
    };
    EXPECT_EQ(with("checksum"),
              "\x02"
              "A\xFFS1\xFF"
              "04\x03\n");
    EXPECT_EQ(with("etx"),
              "\x02"
              "A\xFFS1\xFF"
              "C4\n");
    EXPECT_EQ(with("kind"),
              "\x02"
              "A\xFFX1\xFF"
              "C4\x03\n");
}

TEST(VigrelSend, AFileGivesOneFrameALineButForCommentsAndEmptyLines) {
    cOptions options = ReadOptions({"--sender", "A", "--file", "lines.txt"});
    const auto frames = MakeFrames(options, "# two records\nS1||a\r\n\nS0||b\n", "");
    ASSERT_EQ(frames.size(), 2u);
    EXPECT_EQ(frames[0].substr(0, 8),
              "\x02"
              "A\xFFS1||a");
    EXPECT_EQ(frames[1].substr(0, 8),
              "\x02"
              "A\xFFS0||b");
}

TEST(VigrelSend, AFileIsUtf8AndGoesOutInTheCodePageOfTheLink) {
    const cOptions options = ReadOptions({"--sender", "A", "--file", "lines.txt"});
    const auto frames = MakeFrames(options, "\xEF\xBB\xBFS1||G\xC3\xA4vle\n", "");
    ASSERT_EQ(frames.size(), 1u);
    EXPECT_EQ(frames[0].substr(2, 10), "\xFFS1||G\xE4vle");
    for (const std::string bad : {"S1||a\nS1||\xE2\x9C\x93\n", "S1||a\nS1||G\xE4vle\n"}) {
        try {
            MakeFrames(options, bad, "");
            ADD_FAILURE() << bad;
        } catch (const cUsageError& error) {
            EXPECT_TRUE(std::string(error.what()).starts_with("--file: line 2 holds a character"))
                << error.what();
        }
    }
}

TEST(VigrelSend, AFileOfRawBytesGoesOutAsItIs) {
    const cOptions options = ReadOptions({"--sender", "A", "--file", "lines.txt", "--raw-bytes"});
    const auto frames = MakeFrames(options, "S1||G\xE4vle\n", "");
    ASSERT_EQ(frames.size(), 1u);
    EXPECT_EQ(frames[0].substr(2, 10), "\xFFS1||G\xE4vle");
}

TEST(VigrelSend, RawBytesGoOutAsTheyAre) {
    EXPECT_EQ(OneFrame({"--raw", "02 41 ff 0A"}),
              "\x02"
              "A\xFF\n");
    EXPECT_EQ(ReadOptions({"--raw", "41", "--raw", "42"}).raw.size(), 2u);
}

TEST(VigrelSend, RepliesAreExpectedForEachLineThatIsAnswered) {
    EXPECT_EQ(RepliesTo("abc\n"), 1);
    EXPECT_EQ(RepliesTo("\r\n\nabc"), 0);
    EXPECT_EQ(RepliesTo("\x04"
                        "04\n\r\x05"
                        "05\n\rabc\nabc\n"),
              2);
}

TEST(VigrelSend, ABadCommandLineIsRefusedWithOptionAndValue) {
    const auto message = [](const std::vector<std::string>& arguments) -> std::string {
        try {
            ReadOptions(arguments);
        } catch (const cUsageError& error) {
            return error.what();
        }
        return "taken";
    };
    EXPECT_EQ(message({"--bogus"}), "unknown option \"--bogus\"");
    EXPECT_EQ(message({"--sender"}), "--sender: the value is missing");
    EXPECT_EQ(message({"--kind", "4"}), "--kind: \"4\" is not a whole number from 0 to 3");
    EXPECT_EQ(message({"--port", "0"}), "--port: \"0\" is not a whole number from 1 to 65535");
    EXPECT_EQ(message({"--port", "12.5"}), "--port: \"12.5\" is not a whole number from 1 to 65535");
    EXPECT_EQ(message({"--kind", "1.5"}), "--kind: \"1.5\" is not a whole number from 0 to 3");
    EXPECT_EQ(message({"--count", "2.5"}), "--count: \"2.5\" is not a whole number from 1 to 1000000000");
    EXPECT_EQ(ReadOptions({"--port", "5e3"}).port, "5000");
    // Not the one alarm that goes out without a file.
    EXPECT_EQ(message({"--file", ""}), "--file: the name is empty");
    EXPECT_EQ(message({"--file="}), "--file: the name is empty");
    EXPECT_EQ(message({"--corrupt", "x"}), "--corrupt: \"x\" is not one of checksum, etx, kind");
    EXPECT_EQ(message({"--raw", "4"}), "--raw: \"4\" is not a sequence of hexadecimal bytes");
    EXPECT_EQ(message({"--raw", "zz"}), "--raw: \"zz\" is not a sequence of hexadecimal bytes");
    EXPECT_NE(message({"--t0", "a|b"}).find("separates fields"), std::string::npos);
    EXPECT_NE(message({"--t0", "\xE2\x9C\x93"}).find("code page 1252"), std::string::npos);
}

}  // namespace
}  // namespace vigrel::send
