#include "common/ini.h"

#include <algorithm>
#include <utility>

#include "common/failure.h"
#include "common/file_procedures.h"
#include "common/numbers.h"
#include "common/text.h"

namespace vigrel {
namespace {

std::string_view TrimSpace(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// Where a key of a section stands or would have to be put, by line index.
struct cPlace {
    std::optional<std::size_t> keyLine;
    std::optional<std::size_t> lastOfSection;
};

cPlace FindPlace(const std::vector<std::string>& lines, std::string_view section, std::string_view key) {
    cPlace place;
    bool inside = false;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (const auto header = IniHeaderName(lines[i])) {
            if (inside) break;
            inside = EqualsNoCase(*header, TrimSpace(section));
            if (inside) place.lastOfSection = i;
        } else if (inside) {
            const auto line = ReadIniKeyLine(lines[i]);
            if (line && EqualsNoCase(line->key, TrimSpace(key))) {
                place.keyLine = i;
                break;
            }
            // A new key goes behind the last line that isn't blank, so that sections stay apart.
            if (!TrimSpace(lines[i]).empty()) place.lastOfSection = i;
        }
    }
    return place;
}

// The line end that a file uses.
std::string LineEnd(std::string_view content, const std::vector<cLineSpan>& lines) {
    if (lines.empty() || lines[0].next == lines[0].end) return "\r\n";
    return std::string(content.substr(lines[0].end, lines[0].next - lines[0].end));
}

// The content with the key set; every other line stays as it is, byte by byte.
std::string WithKey(std::string content, std::string_view section, std::string_view key,
                    std::string_view entry) {
    const std::vector<cLineSpan> lines = FindLines(content);
    const cPlace place = FindPlace(SplitLines(content), section, key);
    if (place.keyLine) {
        const cLineSpan& line = lines[*place.keyLine];
        return content.replace(line.begin, line.end - line.begin, entry);
    }
    const std::string end = LineEnd(content, lines);
    const std::size_t at = place.lastOfSection ? lines[*place.lastOfSection].next : content.size();
    const bool open = at > 0 && content[at - 1] != '\n' && content[at - 1] != '\r';
    std::string added = open ? end : "";
    if (!place.lastOfSection) added += "[" + std::string(section) + "]" + end;
    return content.insert(at, added + std::string(entry) + end);
}

}  // namespace

std::optional<std::string> IniHeaderName(std::string_view line) {
    const std::string_view trimmed = TrimSpace(line);
    const std::size_t close = trimmed.find(']');
    if (trimmed.empty() || trimmed[0] != '[' || close == std::string_view::npos) return std::nullopt;
    return std::string(TrimSpace(trimmed.substr(1, close - 1)));
}

std::optional<cIniKeyLine> ReadIniKeyLine(std::string_view line) {
    const std::string_view trimmed = TrimSpace(line);
    if (trimmed.empty() || trimmed[0] == ';') return std::nullopt;
    const std::size_t equals = trimmed.find('=');
    if (equals == std::string_view::npos) return std::nullopt;
    std::string_view value = TrimSpace(trimmed.substr(equals + 1));
    if (value.size() >= 2 && (value[0] == '"' || value[0] == '\'') && value.back() == value[0]) {
        value = value.substr(1, value.size() - 2);
    }
    return cIniKeyLine{std::string(TrimSpace(trimmed.substr(0, equals))), std::string(value)};
}

cIniReader::cIniReader(const cFileReader& files, std::string applicationPath)
    : m_Files(files), m_ApplicationPath(std::move(applicationPath)) {}

cIni::cIni(cFiles& files, std::string applicationPath)
    : cIniReader(files, std::move(applicationPath)), m_Files(files) {}

const cIniReader::cParsed& cIniReader::Parsed(std::string_view fileName) const {
    auto cached = m_Cache.find(fileName);
    if (cached == m_Cache.end()) cached = m_Cache.try_emplace(std::string(fileName)).first;
    cParsed& parsed = cached->second;
    if (m_Moments > 0 && parsed.moment == m_Moment) return parsed;
    const std::string path = FullPath(fileName);
    const auto stamp = m_Files.Stamp(path);
    parsed.moment = m_Moment;
    if (parsed.stamp.StillHolds(stamp)) return parsed;
    parsed.stamp = stamp;
    parsed.sections.clear();
    std::string content;
    const auto failure = CatchFailure([&] { content = m_Files.ReadFile(path); });
    // What can't be read now may be readable at the next look without having changed.
    if (failure) parsed.stamp.settled = false;
    if (failure && failure->Number() != eFailure::FileNotFound) m_Problem = failure->what();
    cKeys* section = nullptr;
    for (const std::string& line : SplitLines(content)) {
        if (const auto header = IniHeaderName(line)) {
            const auto added = parsed.sections.try_emplace(*header);
            section = added.second ? &added.first->second : nullptr;
        } else if (section != nullptr) {
            if (auto entry = ReadIniKeyLine(line))
                section->try_emplace(std::move(entry->key), std::move(entry->value));
        }
    }
    return parsed;
}

std::string cIniReader::GetIniString(std::string_view section, std::string_view key,
                                     std::string_view defaultValue, std::string_view fileName) const {
    const cParsed& parsed = Parsed(fileName);
    std::string_view value = defaultValue;
    if (const auto found = parsed.sections.find(TrimSpace(section)); found != parsed.sections.end()) {
        const auto entry = found->second.find(TrimSpace(key));
        if (entry != found->second.end()) value = entry->second;
    }
    return std::string(value.substr(0, kMostValueCharacters));
}

void cIniReader::Forget(std::string_view fileName) {
    if (const auto cached = m_Cache.find(fileName); cached != m_Cache.end()) m_Cache.erase(cached);
}

void cIni::PutIniString(std::string_view section, std::string_view key, std::string_view value,
                        std::string_view fileName) {
    const std::string path = FullPath(fileName);
    std::string content;
    // A file that is there and can't be read must not be replaced by one line.
    const auto failure = CatchFailure([&] { content = m_Files.ReadFile(path); });
    if (failure && failure->Number() != eFailure::FileNotFound) return;
    const std::string entry = std::string(key) + "=" + std::string(value);
    SkipFailure([&] { ReplaceFile(m_Files, path, WithKey(std::move(content), section, key, entry)); });
    // A file system may stamp two contents written in quick succession alike.
    Forget(fileName);
}

template <class Integer>
Integer cIniReader::Number(std::string_view section, std::string_view key, std::string_view text,
                           Integer (*convert)(double)) const {
    Integer number{};
    if (const auto failure = CatchFailure([&] { number = convert(Val(text)); })) {
        throw cFailure(failure->Number(), FullPath(kIniFile) + ": key " + std::string(key) + " of section " +
                                              std::string(section) + " is \"" + std::string(text) +
                                              "\": " + failure->what());
    }
    return number;
}

std::int16_t cIniReader::Int16(std::string_view section, std::string_view key, std::string_view text) const {
    return Number(section, key, text, ToInt16);
}
std::int32_t cIniReader::Int32(std::string_view section, std::string_view key, std::string_view text) const {
    return Number(section, key, text, ToInt32);
}

namespace {

// The number of characters that the entries of a section take in the buffer.
std::int32_t StoreSection(const std::string& content, std::string_view section, std::string& buffer,
                          std::size_t bufferSize) {
    std::size_t offset = 0;
    bool overflow = false;
    const auto store = [&](std::string_view entry) {
        overflow = overflow || offset + entry.size() + 1 >= bufferSize;
        if (overflow) return;
        buffer.replace(offset, entry.size() + 1, std::string(entry) + '\0');
        offset += entry.size() + 1;
    };
    cLineReader lines(content);
    bool inside = false;
    while (!SafeEof(lines)) {
        const std::string line = lines.ReadLine();
        const std::size_t close = line.find(']');
        const bool header = !line.empty() && line[0] == '[' && close != std::string::npos;
        if (header && section.empty()) {
            store(std::string_view(line).substr(1, close - 1));
        } else if (header) {
            if (inside) break;
            inside = EqualsNoCase(std::string_view(line).substr(1, close - 1), section);
        } else if (inside && !line.empty() && line[0] != ';') {
            store(line);
        }
    }
    return static_cast<std::int32_t>(offset);
}

}  // namespace

std::int32_t ReadIniSection(const cFileReader& files, std::string_view section, std::string& buffer,
                            std::size_t bufferSize, std::string_view fullPath) {
    std::int32_t characters = 0;
    SkipFailure([&] { characters = StoreSection(files.ReadFile(fullPath), section, buffer, bufferSize); });
    return characters;
}

cIniEntries ReadIniEntries(const cFileReader& files, std::string_view section, std::size_t bufferSize,
                           std::string_view fullPath) {
    std::string buffer(bufferSize, ' ');
    cIniEntries result;
    const auto failure = CatchFailure(
        [&] { result.characters = StoreSection(files.ReadFile(fullPath), section, buffer, bufferSize); });
    if (failure && failure->Number() != eFailure::FileNotFound) result.problem = failure->what();
    std::string_view rest = std::string_view(buffer).substr(0, static_cast<std::size_t>(result.characters));
    while (!rest.empty()) {
        const std::size_t end = rest.find('\0');
        result.entries.emplace_back(rest.substr(0, end));
        rest.remove_prefix(end + 1);
    }
    return result;
}

}  // namespace vigrel
