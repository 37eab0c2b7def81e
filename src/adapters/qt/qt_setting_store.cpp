#include "adapters/qt/qt_setting_store.h"

#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QStringList>

#include "adapters/qt/qt_text.h"

namespace vigrel {

QString SettingsFile(const QString& application) {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    const QString path = folder + "/Vigrel/" + application + ".ini";
    const QFileInfo file(path);
    return !file.exists() || file.isFile() || file.isDir() ? path : path + "/none";
}

std::string cQtSettingStore::GetSetting(std::string_view application, std::string_view section,
                                        std::string_view key, std::string_view defaultValue) const {
    const QSettings settings(SettingsFile(ToQString(application)), QSettings::IniFormat);
    const QVariant value = settings.value(ToQString(section) + "/" + ToQString(key));
    if (!value.isValid()) return std::string(defaultValue);
    // A value with commas, written by hand without quotes, comes as a list.
    return FromQString(value.toStringList().join(", "));
}

}  // namespace vigrel
