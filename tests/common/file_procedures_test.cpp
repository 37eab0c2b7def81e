#include "common/file_procedures.h"

#include <gtest/gtest.h>

#include "common/app_folder.h"
#include "common/failure.h"
#include "support/fake_files.h"

namespace vigrel::testing {
namespace {

using Paths = std::vector<std::string>;
const std::string kData = kFolder + "a.dat";

TEST(FileExists, IsTrueForAnOrdinaryFile) {
    cFakeFiles files;
    files.Put(kData, "");
    EXPECT_TRUE(FileExists(files, kData));
    EXPECT_TRUE(FileExists(files, "c:\\app\\A.DAT"));
    EXPECT_FALSE(FileExists(files, kFolder + "b.dat"));
    EXPECT_FALSE(FileExists(files, "C:\\None\\a.dat"));
    EXPECT_FALSE(FileExists(files, ""));
}

TEST(FileExists, IsFalseForAFolderAndAHiddenFile) {
    cFakeFiles files;
    files.Put(kFolder + ".hidden", "x");
    files.PutFolder(kFolder + "Sub\\");
    EXPECT_FALSE(FileExists(files, kFolder));
    EXPECT_FALSE(FileExists(files, kFolder + "Sub"));
    EXPECT_FALSE(FileExists(files, kFolder + ".hidden"));
}

TEST(FileExists, AMaskIsTrueWhenAnythingMatches) {
    cFakeFiles files;
    files.Put(kData, "");
    EXPECT_TRUE(FileExists(files, kFolder + "*.dat"));
    EXPECT_TRUE(FileExists(files, kFolder + "?.DAT"));
    EXPECT_FALSE(FileExists(files, kFolder + "*.txt"));
    EXPECT_FALSE(FileExists(files, kFolder + "??.dat"));
}

TEST(SafeEof, IsTrueBehindTheLastLine) {
    cLineReader reader("a\r\nb");
    EXPECT_FALSE(SafeEof(reader));
    EXPECT_EQ(reader.ReadLine(), "a");
    EXPECT_EQ(reader.ReadLine(), "b");
    EXPECT_TRUE(SafeEof(reader));
    EXPECT_THROW(reader.ReadLine(), cFailure);
}

TEST(SafeEof, IsTrueForAClosedReader) {
    cLineReader reader("a\r\nb\r\n");
    reader.Close();
    EXPECT_THROW(reader.AtEnd(), cFailure);
    EXPECT_TRUE(SafeEof(reader));
    EXPECT_THROW(reader.ReadLine(), cFailure);
}

TEST(SplitPath, CutsBehindTheLastSeparator) {
    const auto parts = [](std::string_view path) {
        const cPathParts p = SplitPath(path);
        return p.folder + "|" + p.name;
    };
    EXPECT_EQ(parts("C:\\App\\a.dat"), "C:\\App\\|a.dat");
    EXPECT_EQ(parts("/app/b/a.dat"), "/app/b/|a.dat");
    EXPECT_EQ(parts("C:\\App/a.dat"), "C:\\App/|a.dat");
    EXPECT_EQ(parts("a.dat"), "|a.dat");
    EXPECT_EQ(parts("/app/"), "/app/|");
}

// --- CopyMissingFiles

const std::string kTemplates = kFolder + "Templates\\";

void CopyTemplates(cFakeFiles& files) {
    files.PutFolder(kFolder);
    CopyMissingFiles(files, kTemplates, kFolder, "*", "oni", "ini");
}

TEST(CopyMissingFiles, BringsAMissingFileIntoPlaceUnderTheTargetExtension) {
    cFakeFiles files;
    files.Put(kTemplates + "VigrelReceiver.oni", "[General]");
    files.Put(kTemplates + "Other.ONI", "o");
    files.Put(kTemplates + "Readme.txt", "r");
    CopyTemplates(files);
    EXPECT_EQ(files.AllPaths(),
              (Paths{kFolder + "Other.ini", kTemplates + "Other.ONI", kTemplates + "Readme.txt",
                     kTemplates + "VigrelReceiver.oni", kFolder + "VigrelReceiver.ini"}));
    EXPECT_EQ(files.ReadFile(kFolder + "VigrelReceiver.ini"), "[General]");
}

TEST(CopyMissingFiles, LeavesAnExistingTargetUntouched) {
    cFakeFiles files;
    files.Put(kTemplates + "VigrelReceiver.oni", "template");
    files.Put(kFolder + "VigrelReceiver.INI", "own");
    CopyTemplates(files);
    EXPECT_EQ(files.ReadFile(kFolder + "VigrelReceiver.INI"), "own");
    EXPECT_EQ(files.AllPaths().size(), 2u);
}

TEST(CopyMissingFiles, ANameIsCutAtItsFirstDot) {
    cFakeFiles files;
    files.Put(kTemplates + "a.b.oni", "two dots");
    CopyTemplates(files);
    EXPECT_FALSE(files.FileExists(kFolder + "a.ini"));
    files.Put(kTemplates + "a.oni", "one dot");
    CopyTemplates(files);
    EXPECT_EQ(files.ReadFile(kFolder + "a.ini"), "one dot");
    EXPECT_FALSE(files.FileExists(kFolder + "a.b.ini"));
}

TEST(CopyMissingFiles, AFailureSkipsThatFileAlone) {
    cFakeFiles files;
    files.Put(kTemplates + "a.oni", "a");
    files.Put(kTemplates + "b.oni", "b");
    files.SetUnreadable(kTemplates + "a.oni", true);
    CopyTemplates(files);
    EXPECT_FALSE(files.FileExists(kFolder + "a.ini"));
    EXPECT_EQ(files.ReadFile(kFolder + "b.ini"), "b");
}

TEST(CopyMissingFiles, AMissingFolderIsIgnored) {
    cFakeFiles files;
    files.PutFolder(kFolder);
    CopyTemplates(files);
    EXPECT_EQ(files.AllPaths(), Paths{});
}

// --- ReplaceFile

TEST(ReplaceFile, WhenItReturnsTheNewContentSurvivesACrash) {
    cFakeFiles files;
    files.Put(kData, "old");
    ReplaceFile(files, kData, "new content");
    files.Crash();
    EXPECT_EQ(files.ReadFile(kData), "new content");
    EXPECT_EQ(files.AllPaths(), Paths{kData});
}

TEST(ReplaceFile, CreatesAFileThatIsMissing) {
    cFakeFiles files;
    files.PutFolder(kFolder);
    ReplaceFile(files, kData, "new");
    files.Crash();
    EXPECT_EQ(files.ReadFile(kData), "new");
}

TEST(ReplaceFile, WhateverCallFailsTheFileIsWholeAndNoTemporaryIsLeft) {
    int call = 0;
    for (;; ++call) {
        cFakeFiles files;
        files.Put(kData, "old");
        files.m_FailCall = call;
        const bool done = SkipFailure([&] { ReplaceFile(files, kData, "new"); });
        EXPECT_EQ(files.AllPaths(), Paths{kData}) << "call " << call;
        if (done) break;
        const std::string content = files.ReadFile(kData);
        EXPECT_TRUE(content == "old" || content == "new") << "call " << call << ": " << content;
    }
    EXPECT_EQ(call, 3);
}

TEST(ReplaceFile, AFullDiskLeavesTheOldFileAndNoTemporary) {
    cFakeFiles files;
    files.Put(kData, "old");
    files.m_DiskFull = true;
    EXPECT_THROW(ReplaceFile(files, kData, "new"), cFailure);
    EXPECT_EQ(files.ReadFile(kData), "old");
    EXPECT_EQ(files.AllPaths(), Paths{kData});
}

// Runs steps on a file system that loses power in front of call 0, 1, 2, ..., and then once behind the last;
// check gets what is on the disk after each.
template <class Steps, class Check>
void CrashAtEveryCall(Steps steps, Check check) {
    struct cPowerLoss {};
    for (int crash = 0;; ++crash) {
        cFakeFiles files;
        files.Put(kData, "old a");
        files.Put(kFolder + "b.dat", "old b");
        int calls = 0;
        files.m_OnCall = [&](std::string_view, std::string_view) {
            if (calls++ == crash) throw cPowerLoss{};
        };
        bool finished = true;
        try {
            steps(files);
        } catch (const cPowerLoss&) {
            finished = false;
        }
        files.m_OnCall = nullptr;
        files.Crash();
        check(files, finished);
        if (finished) break;
    }
}

void ExpectOldOrNew(const cFakeFiles& files, const std::string& path, const std::string& name,
                    bool finished) {
    const std::string content = files.ReadFile(path);
    EXPECT_TRUE(content == "new " + name || (!finished && content == "old " + name)) << content;
}

TEST(ReplaceFile, ACrashAtAnyStepLeavesTheOldFileOrTheNewOneWhole) {
    CrashAtEveryCall(
        [](cFakeFiles& files) { ReplaceFile(files, kData, "new a"); },
        [](const cFakeFiles& files, bool finished) { ExpectOldOrNew(files, kData, "a", finished); });
}

TEST(ReplaceFile, ACrashInTheNextReplacementLeavesBothFilesWhole) {
    CrashAtEveryCall(
        [](cFakeFiles& files) {
            ReplaceFile(files, kData, "new a");
            ReplaceFile(files, kFolder + "b.dat", "new b");
        },
        [](const cFakeFiles& files, bool finished) {
            ExpectOldOrNew(files, kData, "a", finished);
            ExpectOldOrNew(files, kFolder + "b.dat", "b", finished);
        });
}

// --- RemoveTemporaries

TEST(RemoveTemporaries, RemovesWhatACrashLeftAndNothingElse) {
    cFakeFiles files;
    files.Put(kData, "a");
    files.m_OnCall = [](std::string_view operation, std::string_view) {
        if (operation == "rename") throw 1;
    };
    EXPECT_THROW(ReplaceFile(files, kData, "new"), int);
    files.m_OnCall = nullptr;
    EXPECT_EQ(files.AllPaths().size(), 2u);
    RemoveTemporaries(files, kFolder);
    EXPECT_EQ(files.AllPaths(), Paths{kData});
}

TEST(RemoveTemporaries, AFailureSkipsThatFileAlone) {
    cFakeFiles files;
    files.Put(kFolder + "a.dat.$~", "");
    files.Put(kFolder + "b.dat.$~", "");
    files.SetReadOnly(kFolder + "a.dat.$~", true);
    RemoveTemporaries(files, kFolder);
    EXPECT_EQ(files.AllPaths(), Paths{kFolder + "a.dat.$~"});
}

TEST(RemoveTemporaries, OfALinkTheOneBesideItsTargetGoes) {
    cFakeFiles files;
    const std::string target = "C:\\Shared\\a.dat";
    files.m_Links[kData] = target;
    for (const std::string& path : {kData, target, target + ".$~", std::string("C:\\Shared\\b.dat.$~")})
        files.Put(path, "");
    RemoveTemporariesOfLinks(files, kFolder, "b*");
    EXPECT_EQ(files.AllPaths().size(), 4u);
    RemoveTemporariesOfLinks(files, kFolder, "*.dat");
    EXPECT_EQ(files.AllPaths(), (Paths{kData, target, "C:\\Shared\\b.dat.$~"}));
}

TEST(RemoveTemporaries, OfAnOrdinaryFileOnlyItsOwnGoes) {
    cFakeFiles files;
    for (const char* name : {"a.dat", "a.dat.$~", "b.dat", "b.dat.$~", "C.DAT.$~"})
        files.Put(kFolder + name, "");
    RemoveTemporariesOfLinks(files, kFolder, "*.dat");
    EXPECT_EQ(files.AllPaths().size(), 5u);
    RemoveTemporaryOf(files, kData);
    RemoveTemporaryOf(files, kFolder + "c.dat");
    EXPECT_EQ(files.AllPaths(),
              (Paths{kData, kFolder + "b.dat", kFolder + "b.dat.$~", kFolder + "C.DAT.$~"}));
}

TEST(RemoveTemporaries, ALinkThatIsNotFollowedTakesNothingAway) {
    cFakeFiles files;
    files.m_Links[kData] = "";
    files.Put(kData, "");
    files.Put(kFolder + "b.dat", "");
    files.m_Links[kFolder + "b.dat"] = "C:\\Shared\\b.dat";
    files.Put("C:\\Shared\\b.dat.$~", "");
    RemoveTemporariesOfLinks(files, kFolder, "*.dat");
    RemoveTemporaryOf(files, kData);
    EXPECT_EQ(files.AllPaths(), (Paths{kData, kFolder + "b.dat"}));
}

}  // namespace
}  // namespace vigrel::testing
