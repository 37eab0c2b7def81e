#include "adapters/qt/qt_setting_store.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

namespace vigrel::testing {
namespace {

// The store of a user whose configuration folder is a temporary one.
class QtSettingStore : public ::testing::Test {
  protected:
    QtSettingStore() {
        qputenv("XDG_CONFIG_HOME", m_Folder.path().toLocal8Bit());
        QDir(m_Folder.path()).mkpath("Vigrel");
    }
    ~QtSettingStore() override {
        if (m_ConfigHome.isNull()) {
            qunsetenv("XDG_CONFIG_HOME");
        } else {
            qputenv("XDG_CONFIG_HOME", m_ConfigHome);
        }
    }
    QString StorePath() const { return m_Folder.filePath("Vigrel/Vigrel Alarm Server 3.ini"); }
    void Write(const QByteArray& content) {
        QFile file(StorePath());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    std::string Get(std::string_view key, std::string_view defaultValue = "default") {
        return m_Store.GetSetting("Vigrel Alarm Server 3", "Parameters", key, defaultValue);
    }
    const QByteArray m_ConfigHome = qgetenv("XDG_CONFIG_HOME");
    QTemporaryDir m_Folder;
    cQtSettingStore m_Store;
};

TEST_F(QtSettingStore, AStoreWithoutTheSettingGivesTheDefault) {
    EXPECT_EQ(Get("Width"), "default");
}

TEST_F(QtSettingStore, ReadsASettingOfTheApplicationsSection) {
    Write("[Parameters]\nWidth=853\nText=two words\n[Other]\nWidth=1\n");
    EXPECT_EQ(Get("Width"), "853");
    EXPECT_EQ(Get("Text"), "two words");
}

TEST_F(QtSettingStore, AnEmptySettingIsNotTheDefault) {
    Write("[Parameters]\nWidth=\n");
    EXPECT_EQ(Get("Width"), "");
}

TEST_F(QtSettingStore, AValueWithACommaStaysOneText) {
    Write("[Parameters]\nWidth=1, 2\n");
    EXPECT_EQ(Get("Width"), "1, 2");
}

TEST_F(QtSettingStore, NeverWritesToTheStore) {
    EXPECT_EQ(Get("Width"), "default");
    EXPECT_TRUE(QDir(m_Folder.filePath("Vigrel")).isEmpty());
}

// A pipe would be waited for without end, by a station that is about to start.
TEST_F(QtSettingStore, APipeOrAFolderInItsPlaceGivesTheDefault) {
    ASSERT_EQ(mkfifo(StorePath().toLocal8Bit().constData(), 0600), 0);
    alarm(10);
    EXPECT_EQ(Get("Width"), "default");
    alarm(0);
    ASSERT_TRUE(QFile::remove(StorePath()));
    ASSERT_TRUE(QDir().mkdir(StorePath()));
    EXPECT_EQ(Get("Width"), "default");
    EXPECT_TRUE(QDir(StorePath()).isEmpty());
}

// What a program writes itself goes nowhere then.
TEST_F(QtSettingStore, NothingIsKeptWhereAPipeStands) {
    ASSERT_EQ(mkfifo(StorePath().toLocal8Bit().constData(), 0600), 0);
    alarm(10);
    QSettings settings(SettingsFile("Vigrel Alarm Server 3"), QSettings::IniFormat);
    settings.setValue("Width", 5);
    settings.sync();
    alarm(0);
    EXPECT_EQ(settings.value("Width").toInt(), 5);
    struct stat status {};
    ASSERT_EQ(stat(StorePath().toLocal8Bit().constData(), &status), 0);
    EXPECT_TRUE(S_ISFIFO(status.st_mode));
    EXPECT_EQ(QDir(m_Folder.filePath("Vigrel")).entryList(QDir::Files | QDir::System).size(), 1);
}

}  // namespace
}  // namespace vigrel::testing
