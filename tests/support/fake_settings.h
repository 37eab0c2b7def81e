#pragma once

#include <map>
#include <string>

#include "platform/setting_store.h"

namespace vigrel::testing {

// The user's settings of all programs and sections, by key; none at first.
class cFakeSettings : public cSettingStore {
  public:
    std::string GetSetting(std::string_view, std::string_view, std::string_view key,
                           std::string_view defaultValue) const override {
        const auto found = m_Values.find(std::string(key));
        return found == m_Values.end() ? std::string(defaultValue) : found->second;
    }
    std::map<std::string, std::string> m_Values;
};

}  // namespace vigrel::testing
