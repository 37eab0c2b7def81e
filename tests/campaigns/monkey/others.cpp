#include "campaigns/monkey/others.h"

#include <stdexcept>
#include <utility>

#include "support/samples.h"

namespace vigrel::campaign {
namespace {

// Beyond the numbers that new definitions get here.
constexpr int kFirst = 5000, kFiles = 6;

// "<17>" of a file that carries the seventeenth sign; empty for none.
std::string SignOf(const std::string& bytes) {
    const std::size_t begin = bytes.find('<');
    if (begin == std::string::npos) return {};
    return bytes.substr(begin, bytes.find('>', begin) - begin + 1);
}

}  // namespace

cOthers::cOthers(testing::cEditorBench& bench, bool profiles, std::function<int(int)> below)
    : m_Bench(bench),
      m_Station(bench.m_Files, bench.m_Clock, bench.m_Random, bench.m_Texts, bench.m_Ini),
      m_Profiles(profiles),
      m_Below(std::move(below)) {
    for (int i = 0; i < kFiles; ++i) Sign(kFirst + i);
}

std::string cOthers::PathOf(int number) const {
    const std::string stem = m_Profiles ? "/app/Profiles/Profile_" : "/app/Receivers/Receiver_";
    return stem + std::to_string(number) + ".dat";
}

std::optional<std::string> cOthers::OnDisk(const std::string& path) const {
    if (!m_Bench.m_Files.FileExists(path)) return std::nullopt;
    return m_Bench.m_Files.ReadFile(path);
}

// Adds the file when there is none that can be read.
void cOthers::Sign(int number) {
    const auto identity = static_cast<std::int16_t>(number);
    const std::string sign = "<" + std::to_string(++m_Signs) + ">";
    const char* sample = m_Profiles ? "profile_version_5.dat" : "receiver_version_5.dat";
    const auto write = [&](auto&& definition, auto&& change) {
        const auto bytes = OnDisk(PathOf(number));
        if (!bytes || bytes->size() < 3) m_Bench.m_Files.Put(PathOf(number), testing::Sample(sample));
        if (!definition.LoadFromDisk(identity)) throw std::runtime_error("the others can't read a file");
        change(definition);
        if (!definition.SaveToDisk()) throw std::runtime_error("the others can't write a file");
    };
    if (m_Profiles) {
        write(cProfile(m_Station.Services()), [&](cProfile& theirs) { theirs.SetCondition(5, sign); });
    } else {
        write(cReceiver(m_Station.Services()), [&](cReceiver& theirs) { theirs.m_ParallellNumbers = sign; });
    }
    m_Seen[PathOf(number)] = {OnDisk(PathOf(number)), true};
}

void cOthers::Work() {
    const int number = kFirst + m_Below(kFiles);
    const std::string path = PathOf(number);
    const int choice = m_Below(10);
    if (choice < 6) return Sign(number);
    if (choice < 8) {
        m_Bench.m_Files.Put(path, "??");
    } else if (m_Bench.m_Files.FileExists(path)) {
        m_Bench.m_Files.RemoveFile(path);
    }
    m_Seen[path] = {OnDisk(path), true};
}

// What the editor removed or replaced by something else, when the last word was this program's.
bool cOthers::IsLost(const cSeen& seen, const std::optional<std::string>& now) const {
    if (!seen.isTheirs) return false;
    const std::string sign = seen.bytes ? SignOf(*seen.bytes) : std::string();
    return !now || sign.empty() || SignOf(*now) != sign;
}

void cOthers::Judge(int questions) {
    int lost = 0;
    std::string last;
    for (auto& [path, seen] : m_Seen) {
        std::optional<std::string> now = OnDisk(path);
        if (now == seen.bytes) continue;
        const bool isLost = IsLost(seen, now);
        if (isLost) last = path;
        lost += isLost ? 1 : 0;
        seen = {std::move(now), seen.isTheirs && !isLost};
    }
    if (lost > questions) throw std::runtime_error("what others saved was lost unasked: " + last);
}

}  // namespace vigrel::campaign
