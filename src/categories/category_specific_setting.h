#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "categories/colours.h"
#include "common/binary.h"
#include "common/ini.h"
#include "common/setting_keys.h"

namespace vigrel {

// The names of all sections are read into a buffer of this size (ReadIniSection).
inline constexpr std::size_t kSectionNamesBuffer = 8192;

// Everything that is configured for one category: the look and the signal light of each of the four states,
// the event signal, sound file, popup format and extra text. Filled once, then only read. A status outside 0
// to 3 throws cFailure (OutOfBounds).
class cCategorySpecificSetting {
  public:
    std::string m_Category;          // as written in the file; empty in the default object
    std::int16_t m_EventSignal = 0;  // 0 none, 1 system beep, 2 sound once, 3 sound repeated
    std::string m_EventSoundFile;    // a full path after GetSettings
    std::string m_ExtraText;
    std::string m_EventPopupFormat;
    bool USBLED_Enabled = false;  // a signal light is named for at least one state

    const std::string& Get_USBLED_Control(int status) const { return At(status).control; }
    const std::string& Get_USBLED_DeviceName(int status) const { return At(status).deviceName; }
    const std::string& Get_USBLED_FreqDuty(int status) const { return At(status).freqDuty; }
    const std::string& Get_USBLED_InitialPhaseDelay(int status) const { return At(status).initialPhaseDelay; }
    const std::string& Get_USBLED_Power(int status) const { return At(status).power; }
    std::int16_t Get_USBLED_PreScalar(int status) const { return At(status).preScalar; }
    Boolean16 Get_USBLED_SyncLeds(int status) const { return At(status).syncLeds; }
    Colour GetBackColor(int status) const { return At(status).backColor; }
    std::int16_t GetFontBold(int status) const { return At(status).fontBold; }
    std::int16_t GetFontItalic(int status) const { return At(status).fontItalic; }
    Colour GetForeColor(int status) const { return At(status).foreColor; }
    // A number of the image strip.
    std::int16_t GetIcon(int status, bool isObserved) const {
        return isObserved ? At(status).iconObserved : At(status).iconNotObserved;
    }
    // Fills the object from a section of VigrelReceiver.INI. What the section lacks comes from the default
    // object (or is 0 and empty without one), but for the signal light's keys, which are never inherited. A
    // step that fails is skipped.
    void GetSettings(std::string_view sectionName, const cCategorySpecificSetting* defaultCategorySetting,
                     const cIniReader& ini);

  private:
    struct cState {
        std::int16_t iconNotObserved = 0, iconObserved = 0;
        Colour backColor = 0, foreColor = 0;
        std::int16_t fontBold = 0, fontItalic = 0;
        std::string deviceName, control, freqDuty, initialPhaseDelay, power;
        std::int16_t preScalar = 0;
        Boolean16 syncLeds = False16;
    };
    const cState& At(int status) const;
    void GetStateSettings(std::size_t status, std::string_view sectionName, const cState& parent,
                          const cIniReader& ini);

    std::array<cState, 4> m_States;
};

// For alarms that are only read and written, where nobody configures categories.
inline const cCategorySpecificSetting kNoCategorySetting;

// The default object and one object for each category section, in file order.
class cCategorySettings {
  public:
    // Reads section "General".
    void ReadDefault(const cIniReader& ini);
    // Reads all sections whose names begin with "CategorySpecificSetting_"; the names are read from the file
    // at the full path through a buffer of 8,192 characters. Throws cFailure for a file that is there and
    // can't be read.
    void ReadCategories(const cFileReader& files, const cIniReader& ini);
    // The first object of the category, case apart, or the default object.
    const cCategorySpecificSetting& Find(std::string_view category) const;

    cCategorySpecificSetting m_DefaultCategorySetting;
    std::vector<cCategorySpecificSetting> m_CategorySettings;
};

}  // namespace vigrel
