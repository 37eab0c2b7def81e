#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "common/text.h"
#include "platform/files.h"

namespace vigrel {

// The name of the configuration file, in the application folder.
inline constexpr std::string_view kIniFile = "VigrelReceiver.INI";

// The most characters of a value that are read.
inline constexpr std::size_t kMostValueCharacters = 0x7FF;

// The name of a header line as keyed reads see it, which allow blanks around the line and around the name;
// none for any other line.
std::optional<std::string> IniHeaderName(std::string_view line);
// A line "key=value", without outer blanks and without one pair of enclosing quotes around the value; none
// for a comment and for a line without "=".
struct cIniKeyLine {
    std::string key, value;
};
std::optional<cIniKeyLine> ReadIniKeyLine(std::string_view line);

// Reads INI-shaped files of the application folder.
//
// Sections and keys match without regard to case; of a repeated section or key only the first counts. A value
// is what stands behind the first "=" without the blanks around it and without one pair of enclosing quotes.
// Lines whose first non-blank is ";" are comments. Every read sees the file as it is now; an unchanged file
// is not read again, and within one cIniMoment it is looked at once.
class cIniReader {
  public:
    // m_ApplicationPath ends in a backslash.
    cIniReader(const cFileReader& files, std::string applicationPath);
    virtual ~cIniReader() = default;

    const std::string& ApplicationPath() const { return m_ApplicationPath; }
    std::string FullPath(std::string_view fileName) const {
        return m_ApplicationPath + std::string(fileName);
    }

    // At most kMostValueCharacters. A missing file, section or key gives the default. Virtual, so that a test
    // can hear which keys a reader asks for.
    virtual std::string GetIniString(std::string_view section, std::string_view key,
                                     std::string_view defaultValue,
                                     std::string_view fileName = kIniFile) const;

    // Why a file that is there could not be read, at any read so far; all its keys had their defaults then.
    // Empty when each could.
    const std::string& Problem() const { return m_Problem; }

    // The number in the text of a key, rounded. One beyond the range throws cFailure (Overflow) that names
    // file, section, key and text: nobody finds a number without its key.
    std::int16_t Int16(std::string_view section, std::string_view key, std::string_view text) const;
    std::int32_t Int32(std::string_view section, std::string_view key, std::string_view text) const;

  protected:
    // The next read looks at the file again, whatever its stamp.
    void Forget(std::string_view fileName);

  private:
    template <class Integer>
    Integer Number(std::string_view section, std::string_view key, std::string_view text,
                   Integer (*convert)(double)) const;
    friend class cIniMoment;
    using cKeys = std::map<std::string, std::string, cLessNoCase>;
    struct cParsed {
        cFileReader::cStamp stamp{.settled = false};
        std::uint64_t moment = 0;  // in which it was looked at last
        std::map<std::string, cKeys, cLessNoCase> sections;
    };
    const cParsed& Parsed(std::string_view fileName) const;

    const cFileReader& m_Files;
    std::string m_ApplicationPath;
    mutable std::map<std::string, cParsed, cLessNoCase> m_Cache;
    mutable std::string m_Problem;
    mutable int m_Moments = 0;           // how many are open, one within the other
    mutable std::uint64_t m_Moment = 0;  // the number of the outermost one
};

// Writes them too.
class cIni : public cIniReader {
  public:
    cIni(cFiles& files, std::string applicationPath);
    // Creates file, section and key as needed, and keeps every other line. A failed write is silent.
    void PutIniString(std::string_view section, std::string_view key, std::string_view value,
                      std::string_view fileName = kIniFile);

  private:
    cFiles& m_Files;
};

// One moment in the life of the system, such as the arrival of an alarm: while it lasts, all keys come from
// the files as they were when the first of them was read. The next moment sees an edit.
class cIniMoment {
  public:
    explicit cIniMoment(const cIniReader& ini) : m_Ini(ini) {
        if (m_Ini.m_Moments++ == 0) ++m_Ini.m_Moment;
    }
    ~cIniMoment() { --m_Ini.m_Moments; }
    cIniMoment(const cIniMoment&) = delete;
    cIniMoment& operator=(const cIniMoment&) = delete;

  private:
    const cIniReader& m_Ini;
};

// Reads section names (an empty section), or the lines of one section, from a file into the caller's buffer,
// which already has its full size. Each entry is followed by one character of code 0. An entry is stored only
// while offset + its length + 1 stays below the buffer size; the first that doesn't fit ends the storing.
// Lines of a section are kept as they stand, but for comment lines (a ";" in the first column) and empty
// ones; the next header line ends the section, and only the first section of a name counts. The result is the
// number of characters stored, the zeros included; 0 on any failure.
std::int32_t ReadIniSection(const cFileReader& files, std::string_view section, std::string& buffer,
                            std::size_t bufferSize, std::string_view fullPath);

// The same as a list of entries.
struct cIniEntries {
    std::vector<std::string> entries;
    std::int32_t characters = 0;  // as ReadIniSection counts them
    std::string problem;          // why a file that is there could not be read; empty when it could
};
cIniEntries ReadIniEntries(const cFileReader& files, std::string_view section, std::size_t bufferSize,
                           std::string_view fullPath);

}  // namespace vigrel
