#include "architecture/source_tree.h"

#include <algorithm>
#include <fstream>

namespace vigrel::testing {

namespace {

constexpr const char* kFolders[] = {"src", "apps", "tools", "tests", "fuzz", "bench"};

}  // namespace

cSourceTree::cSourceTree(std::filesystem::path project) : m_Project(std::move(project)) {
    for (const char* folder : kFolders) {
        if (!std::filesystem::exists(m_Project / folder)) continue;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(m_Project / folder)) {
            const std::string extension = entry.path().extension().string();
            if (extension != ".h" && extension != ".cpp") continue;
            const std::string path = std::filesystem::relative(entry.path(), m_Project).generic_string();
            m_Files.insert(path.starts_with("src/") ? path.substr(4) : path);
        }
    }
}

std::vector<cInclude> cSourceTree::IncludesOf(const std::string& file) const {
    std::vector<cInclude> includes;
    const std::filesystem::path inSources = m_Project / "src" / file;
    std::ifstream content(std::filesystem::exists(inSources) ? inSources : m_Project / file);
    for (std::string line; std::getline(content, line);) {
        line.erase(std::remove(line.begin(), line.end(), ' '), line.end());
        if (!line.starts_with("#include") || line.size() < 10) continue;
        const bool angled = line[8] == '<';
        includes.push_back({line.substr(9, line.find(angled ? '>' : '"', 9) - 9), angled});
    }
    return includes;
}

std::optional<std::string> cSourceTree::Resolve(const std::string& header) const {
    for (const std::string root : {"", "tests/", "tools/", "apps/"}) {
        if (m_Files.contains(root + header)) return root + header;
    }
    return std::nullopt;
}

}  // namespace vigrel::testing
