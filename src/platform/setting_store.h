#pragma once

#include <string>
#include <string_view>

namespace vigrel {

// Settings of the user, outside the application folder.
class cSettingStore {
  public:
    virtual ~cSettingStore() = default;
    virtual std::string GetSetting(std::string_view application, std::string_view section,
                                   std::string_view key, std::string_view defaultValue) const = 0;
};

}  // namespace vigrel
