#pragma once

#include <QString>

#include "platform/setting_store.h"

namespace vigrel {

// The user's INI file of an application, in the user's configuration folder: Vigrel/APPLICATION.ini. Where a
// pipe or a device stands in its place, which the toolkit would read without end, it is a path at which
// nothing can be.
QString SettingsFile(const QString& application);

// Those files.
class cQtSettingStore : public cSettingStore {
  public:
    std::string GetSetting(std::string_view application, std::string_view section, std::string_view key,
                           std::string_view defaultValue) const override;
};

}  // namespace vigrel
