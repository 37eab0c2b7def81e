#include "adapters/qt/qt_setting_store.h"

#include <QSettings>
#include <QStringList>

#include "adapters/qt/qt_text.h"

namespace vigrel {

std::string cQtSettingStore::GetSetting(std::string_view application, std::string_view section,
                                        std::string_view key, std::string_view defaultValue) const {
    const QSettings settings(QSettings::IniFormat, QSettings::UserScope, "Vigrel", ToQString(application));
    const QVariant value = settings.value(ToQString(section) + "/" + ToQString(key));
    if (!value.isValid()) return std::string(defaultValue);
    // A value with commas, written by hand without quotes, comes as a list.
    return FromQString(value.toStringList().join(", "));
}

}  // namespace vigrel
