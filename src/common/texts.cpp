#include "common/texts.h"

#include <algorithm>
#include <utility>

#include "common/failure.h"
#include "common/file_procedures.h"
#include "common/line_problem.h"
#include "common/setting_keys.h"
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
    m_Texts.clear();
    const std::string language = cSettingReader(m_Ini, "General").Text("Language");
    if (language.empty()) return false;
    const std::string path = m_Ini.FullPath(kTextFile) + language;
    if (!FileExists(m_Files, path)) return false;
    cLineReader lines(Content(path, language));
    for (std::size_t number = 1; !SafeEof(lines); ++number) {
        const std::string line = lines.ReadLine();
        const auto failure = CatchFailure([&] { TakeLine(line); });
        if (failure)
            throw cFailure(failure->Number(), LineProblemPhrase(path, {number, failure->Description()}));
    }
    return true;
}

void cTexts::TakeLine(const std::string& line) {
    const std::size_t equals = line.find('=');
    if (equals == std::string::npos) return;
    m_Texts.emplace(TextIdOf(line), line.substr(equals + 1));
}

std::string cTexts::GetText(std::int32_t id) const {
    const auto row = m_Texts.find(id);
    if (row == m_Texts.end()) return "*** Invalid Text (" + std::to_string(id) + ")";
    if (row->second.empty()) return "*** Missing text (" + std::to_string(id) + ")";
    return row->second;
}

}  // namespace vigrel
