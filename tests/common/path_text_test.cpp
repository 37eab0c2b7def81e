#include "common/path_text.h"

#include <gtest/gtest.h>

namespace vigrel::testing {
namespace {

TEST(PathText, WhatTheCodePageHasStandsForItself) {
    EXPECT_EQ(PathText("/srv/Knäppen €/x.wav"), "/srv/Kn\xE4ppen \x80/x.wav");
    EXPECT_EQ(PathBytes("/srv/Kn\xE4ppen \x80\\x.wav"), "/srv/Knäppen €/x.wav");
    EXPECT_EQ(PathText(""), "");
}

TEST(PathText, WhatTheCodePageLacksIsEscapedByteByByte) {
    EXPECT_EQ(PathText("/home/и"),
              "/home/\x1A"
              "D0\x1A"
              "B8");
    EXPECT_EQ(PathBytes("/home/\x1A"
                        "D0\x1A"
                        "B8\\Alarms\\x"),
              "/home/и/Alarms/x");
    EXPECT_EQ(PathBytes("/home/\x1A"
                        "d0\x1A"
                        "b8"),
              "/home/и");
}

TEST(PathText, EveryPathComesBack) {
    std::string all;
    for (int byte = 1; byte < 256; ++byte) all += static_cast<char>(byte);
    for (const std::string& path :
         {std::string("/home/иван/Łódź/日本/😀"), all,
          std::string("/a\\b/\x1A"
                      "41"),
          std::string("\xC3"), std::string("\xE2\x82"), std::string("\xC0\xAF/\xF0\x9F")}) {
        const std::string text = PathText(path);
        EXPECT_EQ(text.find('\\'), std::string::npos);
        EXPECT_EQ(PathBytes(text), path);
    }
}

TEST(PathText, ASubstituteThatEscapesNothingStandsForItself) {
    EXPECT_EQ(PathBytes("\x1A"), "\x1A");
    EXPECT_EQ(PathBytes("a\x1A"
                        "4"),
              "a\x1A"
              "4");
    EXPECT_EQ(PathBytes("\x1A"
                        "G1"),
              "\x1A"
              "G1");
    EXPECT_EQ(PathBytes("\x1A"
                        "4G"),
              "\x1A"
              "4G");
    // A zero would end the path early.
    EXPECT_EQ(PathBytes("\x1A"
                        "00x"),
              "\x1A"
              "00x");
}

TEST(PathText, ReadersGetTheirOwnCharacters) {
    const std::string text = "The folder " + PathText("/home/иван ä") + " can't be made";
    EXPECT_EQ(WithPathsToUtf8(text), "The folder /home/иван ä can't be made");
    EXPECT_EQ(WithPathsInCodePage(text), "The folder /home/???? \xE4 can't be made");
    EXPECT_EQ(WithPathsToUtf8("C:\\App\\x"), "C:\\App\\x");
}

}  // namespace
}  // namespace vigrel::testing
