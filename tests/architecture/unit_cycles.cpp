#include "architecture/unit_cycles.h"

#include <map>
#include <set>

namespace vigrel::testing {
namespace {

using Graph = std::map<std::string, std::set<std::string>>;

std::string UnitOf(const std::string& file) {
    return file.substr(0, file.rfind('.'));
}

Graph IncludesAmongUnits(const cSourceTree& tree) {
    Graph graph;
    for (const std::string& file : tree.Files()) {
        auto& targets = graph[UnitOf(file)];
        for (const cInclude& include : tree.IncludesOf(file)) {
            if (include.angled) continue;
            const auto target = tree.Resolve(include.header);
            if (target && UnitOf(*target) != UnitOf(file)) targets.insert(UnitOf(*target));
        }
    }
    return graph;
}

void Reach(const Graph& graph, const std::string& unit, std::set<std::string>& reached) {
    const auto targets = graph.find(unit);
    if (targets == graph.end()) return;
    for (const std::string& target : targets->second) {
        if (reached.insert(target).second) Reach(graph, target, reached);
    }
}

std::string Joined(const std::set<std::string>& units) {
    std::string line;
    for (const std::string& unit : units) line += (line.empty() ? "" : " <-> ") + unit;
    return line;
}

}  // namespace

std::vector<std::string> FindUnitCycles(const cSourceTree& tree) {
    const Graph graph = IncludesAmongUnits(tree);
    std::map<std::string, std::set<std::string>> reached;
    for (const auto& [unit, targets] : graph) Reach(graph, unit, reached[unit]);
    std::set<std::string> groups;
    for (const auto& [unit, targets] : reached) {
        if (!targets.contains(unit)) continue;
        std::set<std::string> group;
        for (const std::string& target : targets) {
            if (reached[target].contains(unit)) group.insert(target);
        }
        groups.insert(Joined(group));
    }
    return {groups.begin(), groups.end()};
}

}  // namespace vigrel::testing
