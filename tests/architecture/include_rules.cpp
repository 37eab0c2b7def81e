#include "architecture/include_rules.h"

#include <algorithm>
#include <fstream>
#include <optional>
#include <sstream>

namespace vigrel::testing {
namespace {

using Table = std::map<std::string, std::set<std::string>>;

// All headers of the C++20 standard library.
constexpr std::string_view kStandard =
    " algorithm any array atomic barrier bit bitset charconv chrono codecvt compare complex concepts "
    "condition_variable coroutine deque exception execution filesystem format forward_list fstream "
    "functional "
    "future initializer_list iomanip ios iosfwd iostream istream iterator latch limits list locale map "
    "memory "
    "memory_resource mutex new numbers numeric optional ostream queue random ranges ratio regex "
    "scoped_allocator semaphore set shared_mutex source_location span sstream stack stdexcept stop_token "
    "streambuf string string_view strstream syncstream system_error thread tuple type_traits typeindex "
    "typeinfo unordered_map unordered_set utility valarray variant vector version "
    "cassert cctype cerrno cfenv cfloat cinttypes climits clocale cmath csetjmp csignal cstdarg cstddef "
    "cstdint cstdio cstdlib cstring ctime cuchar cwchar cwctype ";

// The rows "| folder | words |" between the two marks.
Table ReadTable(std::string_view page, const std::string& name) {
    Table table;
    const std::size_t begin = page.find("<!-- " + name + ":begin -->");
    const std::size_t end = page.find("<!-- " + name + ":end -->");
    if (begin == std::string_view::npos || end == std::string_view::npos || end < begin) return table;
    std::istringstream lines(std::string(page.substr(begin, end - begin)));
    int row = 0;
    for (std::string line; std::getline(lines, line);) {
        if (line.empty() || line[0] != '|' || ++row <= 2) continue;  // two lines of heading
        const std::size_t middle = line.find('|', 1);
        std::istringstream cells(line.substr(1, middle - 1) + " " + line.substr(middle + 1));
        std::string folder, word;
        cells >> folder;
        auto& allowed = table[folder];
        while (cells >> word) {
            if (word != "|") allowed.insert(word);
        }
    }
    return table;
}

struct cInclude {
    std::string header;
    bool angled = false;
};

std::vector<cInclude> IncludesOf(const std::filesystem::path& file) {
    std::vector<cInclude> includes;
    std::ifstream content(file);
    for (std::string line; std::getline(content, line);) {
        line.erase(std::remove(line.begin(), line.end(), ' '), line.end());
        if (!line.starts_with("#include") || line.size() < 10) continue;
        const bool angled = line[8] == '<';
        includes.push_back({line.substr(9, line.find(angled ? '>' : '"', 9) - 9), angled});
    }
    return includes;
}

class cChecker {
  public:
    explicit cChecker(const cIncludeRules& rules) : m_Rules(rules) {}

    void Check(const std::string& file, const cInclude& include) {
        const auto from = FolderOf(file);
        if (!from) return Complain(file + ": its folder has no row");
        if (include.angled) return CheckOutside(*from, file, include.header);
        const auto to = FolderOf(include.header);
        if (!to) return Complain(file + ": \"" + include.header + "\" lies in no folder of the table");
        if (*to == *from) return;
        if (!m_Rules.edges.at(*from).contains(*to)) {
            return Complain(file + ": " + *from + " may not include " + *to);
        }
        m_Used.insert(*from + " -> " + *to);
    }

    std::vector<std::string> Complaints() {
        ComplainOfUnused(m_Rules.edges);
        ComplainOfUnused(m_Rules.outside);
        return m_Complaints;
    }

  private:
    // The longest folder of the table that the path lies in.
    std::optional<std::string> FolderOf(const std::string& path) const {
        std::optional<std::string> found;
        for (const auto& [folder, allowed] : m_Rules.edges) {
            if (path.starts_with(folder + "/") && (!found || folder.size() > found->size())) found = folder;
        }
        return found;
    }
    void CheckOutside(const std::string& from, const std::string& file, const std::string& header) {
        if (kStandard.find(" " + header + " ") != std::string_view::npos) return;
        const std::string kind = header.starts_with('Q') ? "Qt" : "machine";
        const auto row = m_Rules.outside.find(from);
        for (const std::string& entry : {kind, header}) {
            if (row == m_Rules.outside.end() || !row->second.contains(entry)) continue;
            m_Used.insert(from + " -> " + entry);
            return;
        }
        Complain(file + ": " + from + " may not include <" + header + ">");
    }
    void ComplainOfUnused(const Table& table) {
        for (const auto& [from, allowed] : table) {
            for (const std::string& to : allowed) {
                if (!m_Used.contains(from + " -> " + to)) Complain("nothing uses " + from + " -> " + to);
            }
        }
    }
    void Complain(const std::string& text) { m_Complaints.push_back(text); }

    const cIncludeRules& m_Rules;
    std::set<std::string> m_Used;
    std::vector<std::string> m_Complaints;
};

}  // namespace

cIncludeRules ReadIncludeRules(std::string_view page) {
    return {ReadTable(page, "edges"), ReadTable(page, "outside")};
}

std::vector<std::string> CheckIncludes(const std::filesystem::path& sources, const cIncludeRules& rules) {
    std::set<std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(sources)) {
        const std::string extension = entry.path().extension().string();
        if (extension != ".h" && extension != ".cpp") continue;
        files.insert(std::filesystem::relative(entry.path(), sources).generic_string());
    }
    cChecker checker(rules);
    for (const std::string& file : files) {
        for (const cInclude& include : IncludesOf(sources / file)) checker.Check(file, include);
    }
    return checker.Complaints();
}

}  // namespace vigrel::testing
