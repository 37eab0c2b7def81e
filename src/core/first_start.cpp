#include "core/first_start.h"

#include <array>

#include "common/failure.h"
#include "common/file_procedures.h"
#include "common/language_selection.h"
#include "common/missing_file.h"
#include "common/numbers.h"
#include "common/setting_keys.h"
#include "common/text.h"
#include "common/texts.h"

namespace vigrel {
namespace {

constexpr std::string_view kEnglish = "044";
constexpr std::string_view kOwnIniFile = "VigrelReceiver.ini";  // as this program spells it
constexpr std::string_view kTemplate = "Templates\\VigrelReceiver.";
constexpr int kTwipsPerPixel = 15;

// The columns that grow with the window, with their shares of what the others leave, in percent: the alarm's
// own text first.
struct cShare {
    std::string_view column;
    int percent;
};
constexpr std::array<cShare, 3> kShares{{{"t0", 50}, {"t1", 20}, {"t4", 30}}};

int ColumnWidth(const cIniReader& ini, std::string_view column, std::string_view fileName) {
    return static_cast<int>(Val(ini.GetIniString(column, "ColumnWidth", kDefaultColumnWidth, fileName)));
}

int WidthOfAllColumns(const cIniReader& ini, std::string_view fileName) {
    const std::string columns = ini.GetIniString("General", "Columns", "", fileName);
    int width = 0;
    for (std::int16_t i = 0; !GetField(columns, i, ",").empty(); ++i) {
        width += ColumnWidth(ini, GetField(columns, i, ","), fileName);
    }
    return width;
}

}  // namespace

// The same rule by which the language window marks one.
std::string cFirstStart::UsersLanguage() const {
    cLanguageSelection selection(m_Files, m_Ini, m_Locale);
    selection.Load();
    if (selection.Selected() < 0) return {};
    return Digits(selection.Languages()[static_cast<std::size_t>(selection.Selected())].number, 3);
}

// Empty where the operator is to be asked.
std::string cFirstStart::DecidedLanguage(const std::string& users) const {
    const std::string& wished = m_Hints.language;
    if (wished.empty() && m_Hints.canAsk) return {};
    if (!wished.empty() && m_Files.FileExists(m_Ini.FullPath(std::string(kTextFile) + wished))) return wished;
    return users.empty() ? std::string(kEnglish) : users;
}

void cFirstStart::Prepare() {
    const std::string own = m_Ini.FullPath(std::string(kTemplate) + "oni");
    if (!IsMissing(m_Files, m_Ini.FullPath(kIniFile)) || !IsMissing(m_Files, own)) return;
    const std::string users = UsersLanguage();
    const std::string decided = DecidedLanguage(users);
    const std::string wanted = decided.empty() ? users : decided;
    const cKeys general = decided.empty() ? cKeys() : cKeys{{"Language", decided}};
    if (!Place(wanted, general)) Place(std::string(kEnglish), general);
}

void cFirstStart::FollowChoice() {
    const std::string chosen = cSettingReader(m_Ini, "General").Text("Language");
    if (m_Placed.empty() || chosen.empty() || chosen == m_Placed) return;
    Place(chosen,
          {{"Language", chosen}, {"CountryFilter", m_Ini.GetIniString("General", "CountryFilter", "")}});
}

// The configuration gets its name when it is whole, and before the template: one without the other is that of
// a folder that has been set up.
bool cFirstStart::Place(const std::string& language, const cKeys& general) {
    const std::string made = TemporaryName(kOwnIniFile);
    const bool placed = SkipFailure([&] {
        const std::string bytes = m_Files.ReadFile(m_Ini.FullPath(std::string(kTemplate) + language));
        ReplaceFile(m_Files, m_Ini.FullPath(made), bytes);
        FitToScreen(made);
        for (const auto& [key, value] : general) m_Ini.PutIniString("General", key, value, made);
        m_Files.RenameFile(m_Ini.FullPath(made), m_Ini.FullPath(kOwnIniFile));
        m_Files.SyncFolder(m_Ini.ApplicationPath());
        ReplaceFile(m_Files, m_Ini.FullPath(std::string(kTemplate) + "oni"), bytes);
    });
    if (placed) m_Placed = language;
    return placed;
}

void cFirstStart::FitToScreen(std::string_view fileName) {
    if (m_Hints.width <= 0 || m_Hints.height <= 0) return;
    const auto put = [&](std::string_view key, int pixels) {
        m_Ini.PutIniString("General", "Vigrel_Receiver_Main." + std::string(key),
                           std::to_string(pixels * kTwipsPerPixel), fileName);
    };
    put("Top", m_Hints.top);
    put("Left", m_Hints.left);
    put("Height", m_Hints.height);
    put("Width", m_Hints.width);
    const int free = m_Hints.width - kBesideColumns - WidthOfAllColumns(m_Ini, fileName);
    if (free <= 0) return;
    for (const cShare& share : kShares) {
        const int width = ColumnWidth(m_Ini, share.column, fileName) + free * share.percent / 100;
        m_Ini.PutIniString(share.column, "ColumnWidth", std::to_string(width), fileName);
    }
}

}  // namespace vigrel
