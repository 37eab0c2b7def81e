#include "receiver-check/installation.h"

#include <utility>

#include "common/failure.h"
#include "common/numbers.h"
#include "common/setting_keys.h"

namespace vigrel {

cInstallation::cInstallation(const cFileReader& files, std::string applicationPath)
    : m_Files(files), m_Ini(m_Files, std::move(applicationPath)) {
    const auto failure = CatchFailure([&] { m_Content = m_Files.ReadFile(IniPath()); });
    if (failure && failure->Number() != eFailure::FileNotFound) m_Unreadable = failure->what();
    m_Configured = !failure;
    m_Document = cIniDocument(m_Content);
    m_Categories.ReadDefault(m_Ini);
    if (!m_Unreadable) m_Categories.ReadCategories(m_Files, m_Ini);
}

std::string cInstallation::Value(std::string_view section, std::string_view key) const {
    const cSettingKey* known = FindSettingKey(section, key);
    return m_Ini.GetIniString(section, key, known == nullptr ? "" : known->defaultValue);
}

double cInstallation::Number(std::string_view section, std::string_view key) const {
    return Val(Value(section, key));
}

cPlace cInstallation::PlaceOf(std::string_view section, std::string_view key) const {
    const cIniDocument::cKey* found = m_Document.Key(section, key);
    if (found != nullptr) return PlaceOf(*m_Document.Section(section), *found);
    return {std::string(kIniFile), 0, std::string(section), std::string(key), ""};
}

cPlace cInstallation::PlaceOf(const cIniDocument::cSection& section, const cIniDocument::cKey& key) {
    return {std::string(kIniFile), key.line, section.name, key.name, key.value};
}

cPlace cInstallation::PlaceOf(const cIniDocument::cSection& section) {
    return {std::string(kIniFile), section.line, section.name, "", ""};
}

}  // namespace vigrel
