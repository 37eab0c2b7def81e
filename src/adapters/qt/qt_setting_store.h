#pragma once

#include <QString>

#include "platform/setting_store.h"

namespace vigrel {

// One INI file an application, in the user's configuration folder: Vigrel/APPLICATION.ini.
class cQtSettingStore : public cSettingStore {
  public:
    std::string GetSetting(std::string_view application, std::string_view section, std::string_view key,
                           std::string_view defaultValue) const override;
};

}  // namespace vigrel
