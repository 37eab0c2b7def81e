#include "campaigns/monkey/others.h"

#include <stdexcept>
#include <utility>

namespace vigrel::campaign {

cOthers::cOthers(testing::cEditorBench& bench, const std::string& page, std::function<int(int)> below)
    : m_Bench(bench),
      m_Station(bench.m_Files, bench.m_Clock, bench.m_Random, bench.m_Texts, bench.m_Ini),
      m_Files(SharedFilesOf(page, bench, m_Station)),
      m_Below(std::move(below)) {
    for (const cSharedFile& file : m_Files) Sign(file);
}

std::optional<std::string> cOthers::OnDisk(const std::string& path) const {
    if (!m_Bench.m_Files.FileExists(path)) return std::nullopt;
    return m_Bench.m_Files.ReadFile(path);
}

void cOthers::Sign(const cSharedFile& file) {
    file.write(++m_Signs);
    m_Seen[file.path] = {OnDisk(file.path), true};
}

void cOthers::Work() {
    const cSharedFile& file = m_Files[static_cast<std::size_t>(m_Below(static_cast<int>(m_Files.size())))];
    const int choice = m_Below(10);
    if (choice < 6 || (choice < 8 && file.damaged.empty())) return Sign(file);
    if (choice < 8) {
        m_Bench.m_Files.Put(file.path, file.damaged);
    } else {
        // Where there is nothing to remove, the last word stays whose it is.
        if (!m_Bench.m_Files.FileExists(file.path)) return;
        m_Bench.m_Files.RemoveFile(file.path);
    }
    m_Seen[file.path] = {OnDisk(file.path), true};
}

void cOthers::Mend() {
    for (const cSharedFile& file : m_Files) {
        const std::optional<std::string> now = OnDisk(file.path);
        if (!now || file.signOf(*now) == 0) Sign(file);
    }
}

void cOthers::NoteConsent(const QString& question) {
    for (const cSharedFile& file : m_Files) {
        if (file.isMeant(question)) m_Consents.insert(file.path);
    }
}

// What the editor removed or replaced by something else, when the last word was this program's.
bool cOthers::IsLost(const cSharedFile& file, const cSeen& seen, const std::optional<std::string>& now) {
    if (!seen.isTheirs || now == seen.bytes) return false;
    const int sign = seen.bytes ? file.signOf(*seen.bytes) : 0;
    return !now || sign == 0 || file.signOf(*now) != sign;
}

void cOthers::Judge() {
    for (const cSharedFile& file : m_Files) {
        cSeen& seen = m_Seen[file.path];
        std::optional<std::string> now = OnDisk(file.path);
        const bool isLost = IsLost(file, seen, now);
        if (isLost && m_Consents.count(file.path) == 0)
            throw std::runtime_error("what others saved was lost unasked: " + file.path);
        seen = {std::move(now), seen.isTheirs && !isLost};
    }
    m_Consents.clear();
}

}  // namespace vigrel::campaign
