#include "common/texts.h"

#include <algorithm>

#include "common/file_procedures.h"
#include "common/numbers.h"
#include "common/text.h"

namespace vigrel {
namespace {

// The number at the beginning: unlike elsewhere, a blank behind its first digit ends it.
std::int32_t IdOf(const std::string& line) {
    const std::string id = Trim(GetField(line, 0, "="));
    return ToInt32(Val(id.substr(0, id.find(' '))));
}

}  // namespace

bool cTexts::LoadTexts() {
    m_TextIndex.clear();
    const std::string language = m_Ini.GetIniString("General", "Language", "");
    if (language.empty()) return false;
    const std::string path = m_Ini.FullPath(kTextFile) + language;
    if (!FileExists(m_Files, path)) return false;
    cLineReader lines(m_Files.ReadFile(path));
    while (!SafeEof(lines)) {
        const std::string line = lines.ReadLine();
        const std::size_t equals = line.find('=');
        if (equals == std::string::npos) continue;
        const std::string text = line.substr(equals + 1);
        m_TextIndex.push_back({IdOf(line), static_cast<std::int32_t>(m_Texts.size()) + 1,
                               static_cast<std::int32_t>(text.size())});
        m_Texts += text;
    }
    return true;
}

std::string cTexts::GetText(std::int32_t id) const {
    const auto row =
        std::find_if(m_TextIndex.begin(), m_TextIndex.end(), [id](const cRow& r) { return r.id == id; });
    if (row == m_TextIndex.end()) return "*** Invalid Text (" + std::to_string(id) + ")";
    if (row->length == 0) return "*** Missing text (" + std::to_string(id) + ")";
    return Mid(m_Texts, static_cast<std::size_t>(row->start), static_cast<std::size_t>(row->length));
}

}  // namespace vigrel
