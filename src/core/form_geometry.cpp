#include "core/form_geometry.h"

#include <string>

#include "common/failure.h"
#include "common/numbers.h"

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

void RestoreFormGeometry(cWindow& form, const cIni& ini, const cScreen& screen) {
    const auto stored = [&](std::string_view key, std::string_view defaultValue) {
        return Val(ini.GetIniString("General", form.Name() + "." + std::string(key), defaultValue));
    };
    SkipFailure([&] { form.SetTop(stored("Top", "100")); });
    SkipFailure([&] { form.SetLeft(stored("Left", "100")); });
    SkipFailure([&] { form.SetHeight(stored("Height", "5000")); });
    SkipFailure([&] { form.SetWidth(stored("Width", "8000")); });
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
