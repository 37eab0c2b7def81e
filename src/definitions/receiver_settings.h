#pragma once

#include <array>
#include <string>

#include "common/ini.h"
#include "definitions/receiver.h"

namespace vigrel {

// What one setting of a receiver means to its type, so that people can be asked for it.
struct cSettingForm {
    std::string caption;  // empty: the type doesn't use this setting
    eVariantType type = eVariantType::String;

    bool operator==(const cSettingForm&) const = default;
};
using SettingForms = std::array<cSettingForm, cReceiver::kSettings>;

// The forms of a type, from the keys "Setting0" to "Setting3" (captions) and "Setting0Type" to "Setting3Type"
// of section "ReceiverTypeSettings" in the type's settings file (docs/formats/receiver-types.md). A type word
// that isn't known means a text.
SettingForms ReadSettingForms(const cIniReader& ini, const cReceiverType& type);

}  // namespace vigrel
