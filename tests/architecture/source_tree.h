#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace vigrel::testing {

struct cInclude {
    std::string header;
    bool angled = false;
};

// The sources of the project, by their path from the project's folder; those of src by their path in there.
class cSourceTree {
  public:
    explicit cSourceTree(std::filesystem::path project);

    const std::set<std::string>& Files() const { return m_Files; }
    std::vector<cInclude> IncludesOf(const std::string& file) const;
    // Which of the files a quoted include means. Every include names its folder, so that it can be found by
    // reading.
    std::optional<std::string> Resolve(const std::string& header) const;

  private:
    std::filesystem::path m_Project;
    std::set<std::string> m_Files;
};

}  // namespace vigrel::testing
