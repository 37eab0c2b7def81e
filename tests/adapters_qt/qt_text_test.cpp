#include "adapters/qt/qt_text.h"

#include <gtest/gtest.h>

namespace vigrel::testing {
namespace {

TEST(QtText, EveryCharacterOfTheCodePageComesBack) {
    for (int code = 0; code < 256; ++code) {
        const std::string text(1, static_cast<char>(code));
        EXPECT_EQ(FromQString(ToQString(text)), text) << code;
    }
}
TEST(QtText, TheEuroSignIsCharacter128) {
    EXPECT_EQ(ToQString("\x80"), QString(QChar(0x20AC)));
}
TEST(QtText, ALetterWithAnUnknownAccentKeepsItsBase) {
    EXPECT_EQ(FromQString(QString::fromUtf8("śž")), "s\x9E");
}
TEST(QtText, AnAccentWrittenApartIsJoined) {
    EXPECT_EQ(FromQString(QString("a") + QChar(0x30A)), "\xE5");
}
TEST(QtText, UnicodeSpacesAreBlanks) {
    EXPECT_EQ(FromQString(QString(QChar(0x202F))), " ");
}
TEST(QtText, MarksOfTheWritingDirectionAreDropped) {
    EXPECT_EQ(FromQString(QString("1") + QChar(0x200F) + "2"), "12");
}
TEST(QtText, WhatTheCodePageLacksIsAQuestionMark) {
    EXPECT_EQ(FromQString(QString::fromUtf8("Ж")), "?");
    EXPECT_EQ(FromQString(QString::fromUtf8("😀")), "?");
    EXPECT_FALSE(FitsCodePage(QString::fromUtf8("Ж")));
    EXPECT_TRUE(FitsCodePage(QString::fromUtf8("åäö€")));
}

}  // namespace
}  // namespace vigrel::testing
