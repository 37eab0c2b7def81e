#include "adapters/qt/qt_setting_store.h"

#include <gtest/gtest.h>

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
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_Folder.path());
        QDir(m_Folder.path()).mkpath("Vigrel");
    }
    void Write(const QByteArray& content) {
        QFile file(m_Folder.filePath("Vigrel/Vigrel Alarm Server 3.ini"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    std::string Get(std::string_view key, std::string_view defaultValue = "default") {
        return m_Store.GetSetting("Vigrel Alarm Server 3", "Parameters", key, defaultValue);
    }
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

}  // namespace
}  // namespace vigrel::testing
