#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

#include "common/delivered_texts.h"
#include "common/ini.h"
#include "common/text_ids.h"

namespace vigrel {

// Every language file is named "Vigrel_Texts." and a number of three digits.
inline constexpr std::string_view kTextFile = "Vigrel_Texts.";

// The texts that the program shows and logs, by number.
class cTexts {
  public:
    // Without delivered texts the file alone counts.
    cTexts(const cFileReader& files, const cIniReader& ini, const cDeliveredTexts* delivered = nullptr)
        : m_Files(files), m_Ini(ini), m_Delivered(delivered) {}

    // Reads the file of the language that the settings name. False when no language is set or its file is
    // missing. A line whose id doesn't fit 32 bits throws cFailure that names file and line. What the file
    // lacks comes from the delivered texts, and everything when it can't be read; that throws where there are
    // none.
    bool LoadTexts();
    // The file, and why it could not be read, when the delivered texts stand for it; else empty.
    const std::string& Problem() const { return m_Problem; }
    // The text of an id; never empty: an id that no line has, and an id without text, give a text that says
    // so.
    std::string GetText(std::int32_t id) const;

  private:
    std::string Content(const std::string& path, const std::string& language);
    void TakeLine(const std::string& line);

    const cFileReader& m_Files;
    const cIniReader& m_Ini;
    const cDeliveredTexts* m_Delivered;
    std::string m_Problem;
    std::unordered_map<std::int32_t, std::string> m_Texts;  // of lines with one id the first
};

}  // namespace vigrel
