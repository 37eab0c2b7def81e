#include "common/about_box.h"

#include <gtest/gtest.h>

#include "common/ini.h"
#include "support/fake_files.h"
#include "support/fake_timer.h"

namespace vigrel::testing {
namespace {

TEST(AboutText, NamesTitleVersionAndMaker) {
    cFakeFiles files;
    files.Put("C:\\App\\VigrelReceiver.INI", "[General]\nLanguage=001\n");
    files.Put("C:\\App\\Vigrel_Texts.001", "10000=Title\n13=Version\n14=Made by\n");
    const cIni ini(files, "C:\\App\\");
    cTexts texts(files, ini);
    ASSERT_TRUE(texts.LoadTexts());
    EXPECT_EQ(AboutText(texts), "Title\r\n\r\nVersion 3.00.04\r\n\r\nMade by Kelmora AB");
}

TEST(AboutText, WithoutALanguageItNamesTheMissingTexts) {
    cFakeFiles files;
    const cIni ini(files, "C:\\App\\");
    EXPECT_EQ(AboutText(cTexts(files, ini)),
              "*** Invalid Text (10000)\r\n\r\n*** Invalid Text (13) 3.00.04\r\n\r\n"
              "*** Invalid Text (14) Kelmora AB");
}

// Ticks until the box asks to be closed.
int TicksUntilClosed(cFakeTimer& timer, cAboutBox& box) {
    bool closed = false;
    box.OnClose = [&] { closed = true; };
    int ticks = 0;
    while (!closed && ticks < 1000) {
        timer.Tick();
        ++ticks;
    }
    return ticks;
}

TEST(AboutBox, ClosesAtTheTwentyFirstTick) {
    cFakeTimer timer(cAboutBox::kTickInterval);
    cAboutBox box(timer);
    EXPECT_EQ(TicksUntilClosed(timer, box), 21);
}

TEST(AboutBox, CountsAnewAfterItsTime) {
    cFakeTimer timer(cAboutBox::kTickInterval);
    cAboutBox box(timer);
    EXPECT_EQ(TicksUntilClosed(timer, box), 21);
    EXPECT_EQ(TicksUntilClosed(timer, box), 21);
}

TEST(AboutBox, AnotherIntervalChangesTheTicksAndNotTheTime) {
    cFakeTimer timer(3000);
    cAboutBox box(timer);
    EXPECT_EQ(TicksUntilClosed(timer, box), 4);
    timer.SetInterval(5000);
    EXPECT_EQ(TicksUntilClosed(timer, box), 3);
}

TEST(AboutBox, AnUnloadStopsTheTimer) {
    cFakeTimer timer(cAboutBox::kTickInterval);
    cAboutBox box(timer);
    box.Unload();
    EXPECT_FALSE(timer.Enabled());
}

TEST(AboutBox, ItsTimeRunsOutWithoutAListenerToo) {
    cFakeTimer timer(cAboutBox::kTickInterval);
    cAboutBox box(timer);
    for (int i = 0; i < 21; ++i) timer.Tick();
    EXPECT_EQ(TicksUntilClosed(timer, box), 21);
}

TEST(AboutBox, LeavesNothingBehindAtItsTimer) {
    cFakeTimer timer(cAboutBox::kTickInterval);
    { const cAboutBox box(timer); }
    EXPECT_FALSE(timer.OnTick);
}

}  // namespace
}  // namespace vigrel::testing
