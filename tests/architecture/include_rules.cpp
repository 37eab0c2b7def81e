#include "architecture/include_rules.h"

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

constexpr const char* kEverything = "*";

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

class cChecker {
  public:
    cChecker(const cIncludeRules& rules, const cSourceTree& tree) : m_Rules(rules), m_Tree(tree) {}

    void Check(const std::string& file, const cInclude& include) {
        const auto from = FolderOf(m_Rules.edges, file);
        if (!from) return Complain(file + ": its folder has no row");
        if (include.angled) return CheckOutside(file, include.header);
        const auto header = m_Tree.Resolve(include.header);
        const auto to = header ? FolderOf(m_Rules.edges, *header) : std::nullopt;
        if (!to) return Complain(file + ": \"" + include.header + "\" lies in no folder of the table");
        if (*to == *from) return;
        const auto& allowed = m_Rules.edges.at(*from);
        if (!allowed.contains(*to) && !allowed.contains(kEverything)) {
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
    static std::optional<std::string> FolderOf(const Table& table, const std::string& path) {
        std::optional<std::string> found;
        for (const auto& [folder, allowed] : table) {
            if (path.starts_with(folder + "/") && (!found || folder.size() > found->size())) found = folder;
        }
        return found;
    }
    void CheckOutside(const std::string& file, const std::string& header) {
        if (kStandard.find(" " + header + " ") != std::string_view::npos) return;
        const std::string kind = header.starts_with('Q') ? "Qt" : "machine";
        const auto from = FolderOf(m_Rules.outside, file);
        for (const std::string& entry : {header, kind}) {
            if (!from || !m_Rules.outside.at(*from).contains(entry)) continue;
            m_Used.insert(*from + " -> " + entry);
            return;
        }
        Complain(file + ": <" + header + "> is not allowed here");
    }
    void ComplainOfUnused(const Table& table) {
        for (const auto& [from, allowed] : table) {
            for (const std::string& to : allowed) {
                if (to != kEverything && !m_Used.contains(from + " -> " + to))
                    Complain("nothing uses " + from + " -> " + to);
            }
        }
    }
    void Complain(const std::string& text) { m_Complaints.push_back(text); }

    const cIncludeRules& m_Rules;
    const cSourceTree& m_Tree;
    std::set<std::string> m_Used;
    std::vector<std::string> m_Complaints;
};

}  // namespace

cIncludeRules ReadIncludeRules(std::string_view page) {
    return {ReadTable(page, "edges"), ReadTable(page, "outside")};
}

std::vector<std::string> CheckIncludes(const cSourceTree& tree, const cIncludeRules& rules) {
    cChecker checker(rules, tree);
    for (const std::string& file : tree.Files()) {
        for (const cInclude& include : tree.IncludesOf(file)) checker.Check(file, include);
    }
    return checker.Complaints();
}

}  // namespace vigrel::testing
