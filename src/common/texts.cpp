#include "common/texts.h"

#include <algorithm>

#include "common/failure.h"
#include "common/file_procedures.h"
#include "common/line_problem.h"
#include "common/numbers.h"
#include "common/text.h"

namespace vigrel {
namespace {

constexpr std::string_view kBlanks = " \t";

// The number at the beginning: unlike elsewhere, a blank behind its first digit ends it.
std::int32_t IdOf(const std::string& line) {
    const std::string id = GetField(line, 0, "=");
    const std::size_t first = std::min(id.find_first_not_of(kBlanks), id.size());
    return ToInt32(Val(id.substr(first, id.find_first_of(kBlanks, first) - first)));
}

}  // namespace

bool cTexts::LoadTexts() {
    m_TextIndex.clear();
    const std::string language = m_Ini.GetIniString("General", "Language", "");
    if (language.empty()) return false;
    const std::string path = m_Ini.FullPath(kTextFile) + language;
    if (!FileExists(m_Files, path)) return false;
    cLineReader lines(m_Files.ReadFile(path));
    for (std::size_t number = 1; !SafeEof(lines); ++number) {
        const std::string line = lines.ReadLine();
        const auto failure = CatchFailure([&] { TakeLine(line); });
        if (failure) throw cFailure(failure->Number(), LineProblemText(path, {number, failure->what()}));
    }
    return true;
}

void cTexts::TakeLine(const std::string& line) {
    const std::size_t equals = line.find('=');
    if (equals == std::string::npos) return;
    const std::string text = line.substr(equals + 1);
    m_TextIndex.push_back(
        {IdOf(line), static_cast<std::int32_t>(m_Texts.size()) + 1, static_cast<std::int32_t>(text.size())});
    m_Texts += text;
}

std::string cTexts::GetText(std::int32_t id) const {
    const auto row =
        std::find_if(m_TextIndex.begin(), m_TextIndex.end(), [id](const cRow& r) { return r.id == id; });
    if (row == m_TextIndex.end()) return "*** Invalid Text (" + std::to_string(id) + ")";
    if (row->length == 0) return "*** Missing text (" + std::to_string(id) + ")";
    return Mid(m_Texts, static_cast<std::size_t>(row->start), static_cast<std::size_t>(row->length));
}

}  // namespace vigrel
