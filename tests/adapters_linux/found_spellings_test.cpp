#include "adapters/linux/found_spellings.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

#include "adapters/linux/file_times.h"
#include "adapters/linux/linux_files.h"
#include "support/temporary_folder.h"

namespace vigrel::testing {
namespace {

class FoundSpellings : public ::testing::Test {
  protected:
    FoundSpellings() { Put("VigrelReceiver.ini", "lower"); }
    void Put(const std::string& name, const std::string& content) const {
        std::ofstream(m_Folder.Path() / name) << content;
    }
    // Until what comes into the folder shows in its times.
    void LetTheFolderSettle() const {
        struct stat status {};
        while (stat(m_Folder.Path().c_str(), &status) == 0 && !IsSettled(status))
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    cTemporaryFolder m_Folder;
    const std::string m_Spelled = m_Folder.Path().string() + "/VigrelReceiver.INI";
    const std::string m_There = m_Folder.Path().string() + "/VigrelReceiver.ini";
    cFoundSpellings m_Found;
};

TEST_F(FoundSpellings, AreRecalledUntilANameComesOrGoes) {
    EXPECT_EQ(m_Found.Search(m_Spelled), m_There);
    EXPECT_EQ(m_Found.Recall(m_Spelled), "") << "a name can have come in the same tick";
    LetTheFolderSettle();
    EXPECT_EQ(m_Found.Search(m_Spelled), m_There);
    EXPECT_EQ(m_Found.Recall(m_Spelled), m_There);
    Put("VigrelReceiver.ini", "longer than before");
    EXPECT_EQ(m_Found.Recall(m_Spelled), m_There);
    Put("another", "");
    EXPECT_EQ(m_Found.Recall(m_Spelled), "");
}

TEST_F(FoundSpellings, AreNotKeptForWhatIsSpelledAsItStands) {
    LetTheFolderSettle();
    EXPECT_EQ(m_Found.Search(m_There), m_There);
    EXPECT_EQ(m_Found.Recall(m_There), "");
}

TEST_F(FoundSpellings, OfAFileThatIsSpelledAsAskedAreLeftForIt) {
    const cLinuxFiles files;
    LetTheFolderSettle();
    EXPECT_EQ(files.ReadFile(m_Spelled), "lower");
    EXPECT_EQ(files.ReadFile(m_Spelled), "lower");
    Put("VigrelReceiver.INI", "upper");
    EXPECT_EQ(files.ReadFile(m_Spelled), "upper");
    std::filesystem::remove(m_Spelled);
    EXPECT_EQ(files.ReadFile(m_Spelled), "lower");
    std::filesystem::remove(m_There);
    EXPECT_FALSE(files.FileExists(m_Spelled));
}

TEST_F(FoundSpellings, GoWithAFolderThatIsReplaced) {
    const cLinuxFiles files;
    LetTheFolderSettle();
    EXPECT_EQ(files.ReadFile(m_Spelled), "lower");
    std::filesystem::rename(m_Folder.Path(), m_Folder.Path().string() + ".away");
    std::filesystem::create_directory(m_Folder.Path());
    EXPECT_FALSE(files.FileExists(m_Spelled));
    std::filesystem::remove_all(m_Folder.Path().string() + ".away");
}

}  // namespace
}  // namespace vigrel::testing
