#include "common/ini.h"

#include <gtest/gtest.h>

#include "common/app_folder.h"
#include "common/failure.h"
#include "support/fake_files.h"

namespace vigrel::testing {
namespace {

const std::string kPath = kFolder + "VigrelReceiver.INI";

// The configuration file with the given content.
struct cIniFile {
    explicit cIniFile(std::string_view content) { files.Put(kPath, content); }
    std::string Get(std::string_view section, std::string_view key,
                    std::string_view defaultValue = "default") const {
        return ini.GetIniString(section, key, defaultValue);
    }
    std::string Content() const { return files.ReadFile(kPath); }

    cFakeFiles files;
    cIni ini{files, kFolder};
};

TEST(GetIniString, FindsTheKeyInItsSection) {
    const cIniFile file("[Printer]\r\nPort=1\r\n[TCPIP]\r\nPort=12412\r\n");
    EXPECT_EQ(file.Get("Printer", "Port"), "1");
    EXPECT_EQ(file.Get("TCPIP", "Port"), "12412");
}

TEST(GetIniString, SectionAndKeyMatchWithoutRegardToCase) {
    const cIniFile file("[General]\r\nObject=Plant\r\n[\xC5k]\r\n\xE4=1\r\n");
    EXPECT_EQ(file.Get("GENERAL", "object"), "Plant");
    EXPECT_EQ(file.Get("\xE5K", "\xC4"), "1");
}

TEST(GetIniString, WhatIsMissingGivesTheDefault) {
    cIniFile file("[General]\r\nObject=Plant\r\n");
    EXPECT_EQ(file.Get("General", "Other"), "default");
    EXPECT_EQ(file.Get("Other", "Object"), "default");
    EXPECT_EQ(file.ini.GetIniString("General", "Object", "default", "Missing.INI"), "default");
    EXPECT_EQ(cIniFile("").Get("General", "Object"), "default");
}

TEST(GetIniString, AKeyWithoutAValueIsEmpty) {
    EXPECT_EQ(cIniFile("[General]\r\nObject=\r\n").Get("General", "Object"), "");
    EXPECT_EQ(cIniFile("[General]\r\nObject=   \r\n").Get("General", "Object"), "");
}

TEST(GetIniString, TakesTheBlanksAroundAValueAndOnePairOfQuotes) {
    const cIniFile file(
        "[S]\r\n a = x y \t\r\nb=\" x \"\r\nc='x'\r\nd=\"x'\r\ne=\"\r\nf=\"\"\r\ng=\"\"x\"\"\r\nh= say "
        "\"x\"\r\n");
    EXPECT_EQ(file.Get("S", "a"), "x y");
    EXPECT_EQ(file.Get("S", "b"), " x ");
    EXPECT_EQ(file.Get("S", "c"), "x");
    EXPECT_EQ(file.Get("S", "d"), "\"x'");
    EXPECT_EQ(file.Get("S", "e"), "\"");
    EXPECT_EQ(file.Get("S", "f"), "");
    EXPECT_EQ(file.Get("S", "g"), "\"x\"");
    EXPECT_EQ(file.Get("S", "h"), "say \"x\"");
}

TEST(GetIniString, AValueBeginsBehindTheFirstEqualsSign) {
    EXPECT_EQ(cIniFile("[S]\r\na=b=c\r\n").Get("S", "a"), "b=c");
}

TEST(GetIniString, OfARepeatedSectionOrKeyTheFirstCounts) {
    const cIniFile file("[S]\r\na=1\r\na=2\r\n[T]\r\n[S]\r\na=3\r\nb=4\r\n");
    EXPECT_EQ(file.Get("S", "a"), "1");
    EXPECT_EQ(file.Get("S", "b"), "default");
}

TEST(GetIniString, CommentsAndOddLinesAreNoKeys) {
    const cIniFile file(
        "a=0\r\n\r\n[S]\r\n;a=1\r\n  ; a=2\r\na\r\n[open\r\n=3\r\n[\r\na=4 ; note\r\n [T] note\r\nb=5");
    EXPECT_EQ(file.Get("S", "a"), "4 ; note");
    EXPECT_EQ(file.Get("S", "b"), "default");
    EXPECT_EQ(file.Get("T", "b"), "5");
    EXPECT_EQ(file.Get("", "a"), "default");
}

TEST(GetIniString, AnyLineEndWillDo) {
    const cIniFile file("[S]\na=1\n\n[T]\rb=2\r");
    EXPECT_EQ(file.Get("S", "a"), "1");
    EXPECT_EQ(file.Get("T", "b"), "2");
}

TEST(GetIniString, IsCutAt2047Characters) {
    const cIniFile file("[S]\r\na=" + std::string(3000, 'x') + "\r\nb=" + std::string(2047, 'y') + "\r\n");
    EXPECT_EQ(file.Get("S", "a"), std::string(2047, 'x'));
    EXPECT_EQ(file.Get("S", "b"), std::string(2047, 'y'));
    EXPECT_EQ(file.Get("S", "c", std::string(3000, 'z')), std::string(2047, 'z'));
}

TEST(GetIniString, SeesAFileThatIsReplacedWhileTheProgramRuns) {
    cIniFile file("[S]\r\na=1\r\n");
    EXPECT_EQ(file.Get("S", "a"), "1");
    file.files.Put(kPath, "[S]\r\na=2\r\n");
    EXPECT_EQ(file.Get("S", "a"), "2");
    file.files.RemoveFile(kPath);
    EXPECT_EQ(file.Get("S", "a"), "default");
    file.files.Put(kPath, "[S]\r\na=3\r\n");
    EXPECT_EQ(file.Get("S", "a"), "3");
}

TEST(GetIniString, AFileThatBecomesReadableIsReadEvenUnchanged) {
    cIniFile file("[S]\r\na=1\r\n");
    file.files.SetUnreadable(kPath, true);
    EXPECT_EQ(file.Get("S", "a"), "default");
    file.files.SetUnreadable(kPath, false);
    EXPECT_EQ(file.Get("S", "a"), "1");
}

// Counts how often a file is read.
struct cCountingFiles : cFakeFiles {
    std::string ReadFile(std::string_view path) const override {
        ++m_Reads;
        return cFakeFiles::ReadFile(path);
    }
    mutable int m_Reads = 0;
};

TEST(GetIniString, AnUnchangedFileIsReadOnce) {
    cCountingFiles files;
    files.Put(kPath, "[S]\r\na=1\r\n");
    const cIni ini(files, kFolder);
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(ini.GetIniString("S", "a", "", i % 2 ? "vigrelreceiver.ini" : kIniFile), "1");
    EXPECT_EQ(files.m_Reads, 1);
}

TEST(PutIniString, ReplacesTheValueAndKeepsEveryOtherLine) {
    cIniFile file("; head\r\n[S]\r\n  odd line\r\n a = 1\r\nA=2\r\n\r\n[T]\r\na=3");
    file.ini.PutIniString("s", "a", "9");
    EXPECT_EQ(file.Content(), "; head\r\n[S]\r\n  odd line\r\na=9\r\nA=2\r\n\r\n[T]\r\na=3");
    EXPECT_EQ(file.Get("S", "a"), "9");
}

TEST(PutIniString, ANewKeyGoesToTheEndOfItsSection) {
    cIniFile file("[S]\r\na=1\r\n\r\n\r\n[T]\r\nb=2\r\n");
    file.ini.PutIniString("S", "c", "3");
    EXPECT_EQ(file.Content(), "[S]\r\na=1\r\nc=3\r\n\r\n\r\n[T]\r\nb=2\r\n");
    file.ini.PutIniString("T", "d", "4");
    EXPECT_EQ(file.Content(), "[S]\r\na=1\r\nc=3\r\n\r\n\r\n[T]\r\nb=2\r\nd=4\r\n");
}

TEST(PutIniString, ANewSectionGoesToTheEndOfTheFile) {
    cIniFile file("[S]\r\na=1\r\n");
    file.ini.PutIniString("T", "b", "2");
    EXPECT_EQ(file.Content(), "[S]\r\na=1\r\n[T]\r\nb=2\r\n");
}

TEST(PutIniString, ALastLineWithoutAnEndGetsOne) {
    cIniFile file("[S]\r\na=1");
    file.ini.PutIniString("S", "b", "2");
    file.ini.PutIniString("T", "c", "3");
    EXPECT_EQ(file.Content(), "[S]\r\na=1\r\nb=2\r\n[T]\r\nc=3\r\n");
}

TEST(PutIniString, LineEndsStayThoseOfTheFile) {
    cIniFile file("[S]\na=1\n[T]\r\nb=2\r\n");
    file.ini.PutIniString("S", "c", "3");
    EXPECT_EQ(file.Content(), "[S]\na=1\nc=3\n[T]\r\nb=2\r\n");
    cIniFile old("[S]\ra=1\r");
    old.ini.PutIniString("S", "c", "3");
    old.ini.PutIniString("T", "b", "2");
    EXPECT_EQ(old.Content(), "[S]\ra=1\rc=3\r[T]\rb=2\r");
}

TEST(PutIniString, AFileOfOneOpenLineGetsTheLineEndsOfTheSystem) {
    cIniFile file("[General]");
    file.ini.PutIniString("General", "Language", "046");
    EXPECT_EQ(file.Content(), "[General]\r\nLanguage=046\r\n");
}

TEST(IniNumbers, AreRoundedAndHoldTheirRange) {
    const cIniFile file("");
    EXPECT_EQ(file.ini.Int16("Printer", "Port", "2.5"), 2);
    EXPECT_EQ(file.ini.Int16("Printer", "Port", "-32768"), -32768);
    EXPECT_EQ(file.ini.Int32("TCPIP", "Port", "2147483647 or so"), 2147483647);
    EXPECT_EQ(file.ini.Int32("TCPIP", "Port", "none"), 0);
}

TEST(IniNumbers, ANumberBeyondItsBitsNamesFileSectionKeyAndText) {
    const cIniFile file("");
    const auto small = CatchFailure([&] { file.ini.Int16("Printer", "Port", "32768"); });
    ASSERT_TRUE(small);
    EXPECT_EQ(small->Number(), eFailure::Overflow);
    EXPECT_TRUE(
        std::string(small->what()).starts_with(kPath + ": key Port of section Printer is \"32768\": "))
        << small->what();
    const auto large = CatchFailure([&] { file.ini.Int32("TCPIP", "Port", "-2147483649"); });
    ASSERT_TRUE(large);
    EXPECT_EQ(large->Number(), eFailure::Overflow);
}

TEST(PutIniString, AMissingFileIsCreated) {
    cFakeFiles files;
    files.PutFolder(kFolder);
    cIni ini(files, kFolder);
    ini.PutIniString("General", "Language", "046");
    EXPECT_EQ(files.ReadFile(kPath), "[General]\r\nLanguage=046\r\n");
}

TEST(PutIniString, OfARepeatedSectionTheFirstIsWritten) {
    cIniFile file("[S]\r\n[T]\r\n[S]\r\na=1\r\n");
    file.ini.PutIniString("S", "a", "9");
    EXPECT_EQ(file.Content(), "[S]\r\na=9\r\n[T]\r\n[S]\r\na=1\r\n");
    EXPECT_EQ(file.Get("S", "a"), "9");
}

TEST(PutIniString, AFailedWriteIsSilentAndLeavesTheFileWhole) {
    const std::string content = "[S]\r\na=1\r\n";
    int call = 0;
    for (;; ++call) {
        cIniFile file(content);
        file.files.m_FailCall = call;
        file.ini.PutIniString("S", "a", "22");
        if (file.files.m_Calls <= call) break;
        EXPECT_TRUE(file.Content() == content || file.Content() == "[S]\r\na=22\r\n") << "call " << call;
        EXPECT_EQ(file.Get("S", "a"), file.Content() == content ? "1" : "22") << "call " << call;
        EXPECT_EQ(file.files.AllPaths(), std::vector<std::string>{kPath}) << "call " << call;
    }
    EXPECT_GE(call, 3);
}

TEST(PutIniString, AFileThatCantBeReadIsNotReplaced) {
    cIniFile file("[S]\r\na=1\r\n");
    file.files.SetUnreadable(kPath, true);
    file.ini.PutIniString("S", "a", "9");
    file.files.SetUnreadable(kPath, false);
    EXPECT_EQ(file.Content(), "[S]\r\na=1\r\n");
}

TEST(PutIniString, TwoWritesThatAreStampedAlikeAreBothSeen) {
    // A file system whose stamps never move.
    struct cFrozenFiles : cFakeFiles {
        cStamp Stamp(std::string_view path) const override { return {1, 1, FileExists(path) ? 1 : -1, 1}; }
    };
    cFrozenFiles files;
    files.Put(kPath, "[S]\r\na=1\r\n");
    cIni ini(files, kFolder);
    EXPECT_EQ(ini.GetIniString("S", "a", ""), "1");
    ini.PutIniString("S", "a", "2");
    EXPECT_EQ(ini.GetIniString("S", "a", ""), "2");
}

// --- moments

// Counts how often somebody looks at a file.
struct cLookedAtFiles : cFakeFiles {
    cStamp Stamp(std::string_view path) const override {
        ++m_Looks;
        return cFakeFiles::Stamp(path);
    }
    std::string ReadFile(std::string_view path) const override {
        ++m_Reads;
        return cFakeFiles::ReadFile(path);
    }
    mutable int m_Looks = 0, m_Reads = 0;
};

TEST(IniMoment, AllKeysOfAMomentComeFromOneLookAtTheFile) {
    cLookedAtFiles files;
    files.Put(kPath, "[S]\r\na=1\r\nb=2\r\n");
    const cIni ini(files, kFolder);
    {
        const cIniMoment moment(ini);
        EXPECT_EQ(ini.GetIniString("S", "a", ""), "1");
        files.Put(kPath, "[S]\r\na=3\r\nb=4\r\n");
        const cIniMoment inner(ini);
        EXPECT_EQ(ini.GetIniString("S", "b", ""), "2");
    }
    EXPECT_EQ(files.m_Looks, 1);
    EXPECT_EQ(files.m_Reads, 1);
    const cIniMoment next(ini);
    EXPECT_EQ(ini.GetIniString("S", "a", ""), "3");
    EXPECT_EQ(ini.GetIniString("S", "b", ""), "4");
    EXPECT_EQ(files.m_Looks, 2);
    EXPECT_EQ(files.m_Reads, 2);
}

TEST(IniMoment, AnUnchangedFileIsNotReadAgain) {
    cLookedAtFiles files;
    files.Put(kPath, "[S]\r\na=1\r\n");
    const cIni ini(files, kFolder);
    for (int i = 0; i < 5; ++i) {
        const cIniMoment moment(ini);
        EXPECT_EQ(ini.GetIniString("S", "a", ""), "1");
    }
    EXPECT_EQ(files.m_Looks, 5);
    EXPECT_EQ(files.m_Reads, 1);
}

TEST(IniMoment, SeesWhatIsWrittenWithinIt) {
    cIniFile file("[S]\r\na=1\r\n");
    const cIniMoment moment(file.ini);
    EXPECT_EQ(file.Get("S", "a"), "1");
    file.ini.PutIniString("S", "a", "2");
    EXPECT_EQ(file.Get("S", "a"), "2");
}

// --- ReadIniSection

// The part of the buffer that was written, with "|" in place of each zero.
std::string Read(std::string_view content, std::string_view section, std::size_t size = 4096) {
    cFakeFiles files;
    files.Put(kPath, content);
    std::string buffer(size, '#');
    const std::int32_t count = ReadIniSection(files, section, buffer, size, kPath);
    EXPECT_EQ(buffer.size(), size);
    EXPECT_EQ(buffer.substr(static_cast<std::size_t>(count)),
              std::string(size - static_cast<std::size_t>(count), '#'));
    std::string written = buffer.substr(0, static_cast<std::size_t>(count));
    for (char& c : written) {
        if (c == '\0') c = '|';
    }
    return written;
}

TEST(ReadIniSection, WithoutASectionGivesTheSectionNames) {
    EXPECT_EQ(
        Read("x=1\r\n[Alpha] ; note\r\na=1\r\n[Beta]\r\n;[Gamma]\r\n [Delta]\r\n[open\r\n[]\r\n[ E ]x]\r\n",
             ""),
        "Alpha|Beta|| E |");
}

TEST(ReadIniSection, GivesTheLinesOfASectionAsTheyStand) {
    EXPECT_EQ(Read("[Other]\r\nx=1\r\n[Senders]\r\n PLC 1 = 5 \r\n; gone\r\n;gone=1\r\n\r\n ; "
                   "stays\r\nbare\r\n[open\r\n"
                   "\t\r\n[Next]\r\ny=1\r\n",
                   "senders"),
              " PLC 1 = 5 | ; stays|bare|[open|\t|");
}

TEST(ReadIniSection, TheNextHeaderEndsTheReading) {
    EXPECT_EQ(Read("[S]\r\na=1\r\n[T]\r\n[S]\r\nb=2\r\n", "S"), "a=1|");
    EXPECT_EQ(Read("[S]\r\na=1\r\n[S]\r\nb=2\r\n", "S"), "a=1|");
}

TEST(ReadIniSection, ASectionAtTheEndOfTheFileEndsThere) {
    EXPECT_EQ(Read("[S]\r\na=1\r\nb=2", "S"), "a=1|b=2|");
    EXPECT_EQ(Read("[S]", "S"), "");
}

TEST(ReadIniSection, AMissingSectionOrFileGivesNothing) {
    EXPECT_EQ(Read("[S]\r\na=1\r\n", "T"), "");
    cFakeFiles files;
    std::string buffer(100, '#');
    EXPECT_EQ(ReadIniSection(files, "S", buffer, buffer.size(), kPath), 0);
    EXPECT_EQ(buffer, std::string(100, '#'));
}

TEST(ReadIniSection, ABufferTooSmallForTheSecondNameKeepsTheFirstOnly) {
    EXPECT_EQ(Read("[Al]\r\n[LongName]\r\n[C]\r\n", "", 10), "Al|");
    EXPECT_EQ(Read("[S]\r\nab\r\nlong line\r\nc\r\n", "S", 10), "ab|");
}

TEST(ReadIniSection, AnEntryFitsWhileItStaysBelowTheBufferSize) {
    EXPECT_EQ(Read("[S]\r\nabc\r\n", "S", 5), "abc|");
    EXPECT_EQ(Read("[S]\r\nabc\r\n", "S", 4), "");
    EXPECT_EQ(Read("[S]\r\nab\r\nc\r\n", "S", 6), "ab|c|");
    EXPECT_EQ(Read("[S]\r\nab\r\nc\r\n", "S", 5), "ab|");
    EXPECT_EQ(Read("[S]\r\nab\r\n", "S", 0), "");
}

TEST(ReadIniEntries, GivesTheSameAsAList) {
    cFakeFiles files;
    files.Put(kPath, "[S]\r\na=1\r\nb\r\n[]\r\n[T]\r\n");
    const cIniEntries lines = ReadIniEntries(files, "S", 100, kPath);
    EXPECT_EQ(lines.entries, (std::vector<std::string>{"a=1", "b"}));
    EXPECT_EQ(lines.characters, 6);
    const cIniEntries names = ReadIniEntries(files, "", 100, kPath);
    EXPECT_EQ(names.entries, (std::vector<std::string>{"S", "", "T"}));
    EXPECT_EQ(names.characters, 5);
}

TEST(ReadIniEntries, TellsOfAFileThatIsThereAndCannotBeRead) {
    cFakeFiles files;
    files.Put(kPath, "[S]\r\na=1\r\n");
    EXPECT_EQ(ReadIniEntries(files, "S", 100, kPath).problem, "");
    files.SetUnreadable(kPath, true);
    const cIniEntries unreadable = ReadIniEntries(files, "S", 100, kPath);
    EXPECT_NE(unreadable.problem.find(kPath), std::string::npos) << unreadable.problem;
    EXPECT_TRUE(unreadable.entries.empty());
    EXPECT_EQ(unreadable.characters, 0);
    const cIniEntries missing = ReadIniEntries(files, "S", 100, kFolder + "Other.INI");
    EXPECT_EQ(missing.problem, "");
    EXPECT_TRUE(missing.entries.empty());
}

}  // namespace
}  // namespace vigrel::testing
