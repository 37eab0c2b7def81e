#include "definitions/receiver_settings.h"

#include "common/text.h"

namespace vigrel {
namespace {

struct cTypeWord {
    std::string_view word;
    eVariantType type;
};
constexpr cTypeWord kTypeWords[] = {
    {"Text", eVariantType::String},       {"Integer16", eVariantType::Int16},
    {"Integer32", eVariantType::Int32},   {"Single", eVariantType::Single},
    {"Double", eVariantType::Double},     {"Byte", eVariantType::Byte},
    {"Currency", eVariantType::Currency}, {"Date", eVariantType::Date},
    {"YesNo", eVariantType::Boolean},
};

eVariantType TypeFromWord(std::string_view word) {
    for (const cTypeWord& entry : kTypeWords) {
        if (EqualsNoCase(entry.word, word)) return entry.type;
    }
    return eVariantType::String;
}

}  // namespace

SettingForms ReadSettingForms(const cIniReader& ini, const cReceiverType& type) {
    SettingForms forms;
    if (type.m_SettingsFile.empty()) return forms;
    for (std::size_t i = 0; i < forms.size(); ++i) {
        const std::string key = "Setting" + std::to_string(i);
        const auto value = [&](const std::string& name) {
            return ini.GetIniString("ReceiverTypeSettings", name, "", type.m_SettingsFile);
        };
        forms[i] = {value(key), TypeFromWord(value(key + "Type"))};
    }
    return forms;
}

}  // namespace vigrel
