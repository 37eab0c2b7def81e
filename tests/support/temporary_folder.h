#pragma once

#include <filesystem>
#include <random>
#include <string>

namespace vigrel::testing {

// A folder of the machine that goes with the object.
class cTemporaryFolder {
  public:
    cTemporaryFolder() {
        std::random_device random;
        m_Path = std::filesystem::temp_directory_path() / ("vigrel-test-" + std::to_string(random()));
        std::filesystem::create_directories(m_Path);
    }
    ~cTemporaryFolder() {
        std::error_code error;
        std::filesystem::remove_all(m_Path, error);
    }
    cTemporaryFolder(const cTemporaryFolder&) = delete;
    cTemporaryFolder& operator=(const cTemporaryFolder&) = delete;

    const std::filesystem::path& Path() const { return m_Path; }
    // With a trailing backslash, as the application folder is written.
    std::string Folder() const { return m_Path.string() + "\\"; }

  private:
    std::filesystem::path m_Path;
};

}  // namespace vigrel::testing
