#include "common/texts.h"

#include <algorithm>
#include <utility>

#include "common/failure.h"
#include "common/file_procedures.h"
#include "common/line_problem.h"
#include "common/text.h"

namespace vigrel {
std::string cTexts::Content(const std::string& path, const std::string& language) {
    const std::string_view delivered = m_Delivered == nullptr ? "" : m_Delivered->Of(language);
    if (delivered.empty()) return m_Files.ReadFile(path);
    const std::string spelled = m_Files.Spelling(path);
    std::string content;
    const auto failure = CatchFailure([&] { content = m_Files.ReadFile(spelled); });
    m_Problem = failure ? failure->what() : "";
    return CompleteTexts(std::move(content), delivered).content;
}

bool cTexts::LoadTexts() {
    m_TextIndex.clear();
    const std::string language = m_Ini.GetIniString("General", "Language", "");
    if (language.empty()) return false;
    const std::string path = m_Ini.FullPath(kTextFile) + language;
    if (!FileExists(m_Files, path)) return false;
    cLineReader lines(Content(path, language));
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
    m_TextIndex.push_back({TextIdOf(line), static_cast<std::int32_t>(m_Texts.size()) + 1,
                           static_cast<std::int32_t>(text.size())});
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
