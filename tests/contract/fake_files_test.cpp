#include "support/fake_files.h"

#include "contract/files_contract.h"

namespace vigrel::testing {
namespace {

class cFakeFilesRig {
  public:
    cFakeFilesRig() { m_Files.PutFolder(Folder()); }
    cFiles& Files() { return m_Files; }
    std::string Folder() const { return "C:\\App\\"; }

  private:
    cFakeFiles m_Files;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, FilesContract, cFakeFilesRig);

class PowerCut : public ::testing::Test {
  protected:
    using eFate = cFakeFiles::eFate;
    PowerCut() {
        files.Put("C:\\App\\a", "old");
        files.WriteFile("C:\\App\\b", "new part", false);
        files.RenameFile("C:\\App\\b", "C:\\App\\a");
    }
    // What is there behind a cut: "a=old ".
    std::string Left(const std::vector<eFate>& fates) const {
        cFakeFiles cut = files;
        cut.Crash(fates);
        std::string left;
        for (const std::string& path : cut.AllPaths())
            left += path.substr(7) + "=" + cut.ReadFile(path) + " ";
        return left;
    }
    cFakeFiles files;
};

TEST_F(PowerCut, TakesNamesAndContentsInAnyOrder) {
    // The new name, the rename, the content.
    EXPECT_EQ(files.UnsyncedCount(), 3u);
    EXPECT_EQ(Left({}), "a=old ");
    EXPECT_EQ(Left({eFate::Kept, eFate::Lost, eFate::Lost}), "a=old b= ");
    EXPECT_EQ(Left({eFate::Kept, eFate::Kept, eFate::Lost}), "a= ");
    EXPECT_EQ(Left({eFate::Lost, eFate::Kept, eFate::Torn}), "a=new  ");
    EXPECT_EQ(Left({eFate::Lost, eFate::Lost, eFate::Kept}), "a=old ");
    EXPECT_EQ(Left({eFate::Kept, eFate::Kept, eFate::Kept}), "a=new part ");
}

TEST_F(PowerCut, LeavesWhatWasSynced) {
    files.SyncFolder("C:\\App\\");
    EXPECT_EQ(files.UnsyncedCount(), 1u);
    EXPECT_EQ(Left({}), "a= ");
    const auto sync = files.StartSync("C:\\App\\");
    EXPECT_EQ(files.UnsyncedCount(), 0u);
    EXPECT_EQ(Left({}), "a=new part ");
}

TEST_F(PowerCut, ASyncThatTakesItsTimeCoversWhatWasWrittenBeforeIt) {
    files.m_DiskIsBusy = true;
    const auto sync = files.StartSync("C:\\App\\");
    files.WriteFile("C:\\App\\c", "late", false);
    EXPECT_EQ(Left({}), "a=old ");
    sync->Wait();
    EXPECT_EQ(Left({}), "a=new part ");
    EXPECT_EQ(Left({eFate::Kept}), "a=new part c= ");
}

TEST_F(PowerCut, TakesAFolderWhoseNameWasNotSyncedWithAllThatIsInIt) {
    files.MakeFolder("C:\\App\\Alarms");
    files.WriteFile("C:\\App\\Alarms\\x", "x", true);
    files.SyncFolder("C:\\App\\Alarms\\");
    EXPECT_EQ(Left({}), "a=old ");
    files.SyncFolder("C:\\App\\");
    EXPECT_EQ(Left({}), "a= Alarms\\x=x ");
}

}  // namespace
}  // namespace vigrel::testing
