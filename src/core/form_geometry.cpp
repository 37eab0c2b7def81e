#include "core/form_geometry.h"

#include <string>

#include "common/failure.h"
#include "common/numbers.h"
#include "common/setting_keys.h"

namespace vigrel {

void SaveFormGeometry(const cWindow& form, cIni& ini) {
    const auto put = [&](std::string_view key, double twips) {
        ini.PutIniString("General", form.Name() + "." + std::string(key),
                         SingleText(static_cast<float>(twips)));
    };
    put("Left", form.Left());
    put("Top", form.Top());
    put("Height", form.Height());
    put("Width", form.Width());
}

void RestoreFormGeometry(cWindow& form, const cIniReader& ini, const cScreen& screen) {
    const cSettingReader general(ini, "General");
    const auto stored = [&](const std::string& key) { return general.Decimal(form.Name() + "." + key); };
    SkipFailure([&] { form.SetTop(stored("Top")); });
    SkipFailure([&] { form.SetLeft(stored("Left")); });
    SkipFailure([&] { form.SetHeight(stored("Height")); });
    SkipFailure([&] { form.SetWidth(stored("Width")); });
    SkipFailure([&] {
        if (form.Top() + form.Height() > screen.Height()) form.SetTop(screen.Height() - form.Height());
    });
    SkipFailure([&] {
        if (form.Left() + form.Width() > screen.Width()) form.SetLeft(screen.Width() - form.Width());
    });
    SkipFailure([&] {
        if (form.Top() < 0) form.SetTop(0);
    });
    SkipFailure([&] {
        if (form.Left() < 0) form.SetLeft(0);
    });
}

}  // namespace vigrel
