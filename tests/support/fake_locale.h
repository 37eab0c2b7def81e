#pragma once

#include <map>
#include <string>
#include <string_view>

#include "platform/locale.h"
#include "platform/setting_store.h"

namespace vigrel::testing {

class cFakeLocale : public cLocale {
  public:
    cLocaleForms Forms() const override { return m_Forms; }
    std::string EnglishLanguageName() const override { return m_EnglishLanguageName; }
    std::string NativeLanguageName() const override { return m_NativeLanguageName; }
    std::string EnglishCountryName() const override { return m_EnglishCountryName; }

    cLocaleForms m_Forms;
    std::string m_EnglishLanguageName = "Swedish", m_NativeLanguageName = "svenska",
                m_EnglishCountryName = "Sweden";
};

class cFakeSettingStore : public cSettingStore {
  public:
    std::string GetSetting(std::string_view application, std::string_view section, std::string_view key,
                           std::string_view defaultValue) const override {
        const auto found = m_Values.find(Path(application, section, key));
        return found == m_Values.end() ? std::string(defaultValue) : found->second;
    }
    void Put(std::string_view application, std::string_view section, std::string_view key,
             std::string_view value) {
        m_Values[Path(application, section, key)] = value;
    }

  private:
    static std::string Path(std::string_view application, std::string_view section, std::string_view key) {
        return std::string(application) + "/" + std::string(section) + "/" + std::string(key);
    }
    std::map<std::string, std::string> m_Values;
};

}  // namespace vigrel::testing
