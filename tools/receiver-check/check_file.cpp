#include <algorithm>

#include "common/setting_keys.h"
#include "common/text.h"
#include "receiver-check/checks.h"

namespace vigrel {
namespace {

cPlace LinePlace(std::size_t line, const std::string& section = "", const std::string& text = "") {
    return {std::string(kIniFile), line, section, "", text};
}

// The length of a character in UTF-8 at this place; 0 when there is none, or one that is also ASCII.
std::size_t Utf8Length(std::string_view text, std::size_t at) {
    const int lead = Code(text[at]);
    const std::size_t length = lead >= 0xC2 && lead < 0xE0   ? 2
                               : lead >= 0xE0 && lead < 0xF0 ? 3
                               : lead >= 0xF0 && lead < 0xF5 ? 4
                                                             : 0;
    if (length == 0 || at + length > text.size()) return 0;
    for (std::size_t i = 1; i < length; ++i) {
        if ((Code(text[at + i]) & 0xC0) != 0x80) return 0;
    }
    return length;
}

bool HasUtf8(std::string_view text) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (Utf8Length(text, at) > 0) return true;
    }
    return false;
}

void CheckEncoding(const cInstallation& installation, cFindings& findings) {
    const std::string& content = installation.Content();
    if (content.starts_with("\xEF\xBB\xBF")) {
        findings.Error("byte-order-mark", LinePlace(1),
                       "the file begins with a byte order mark, so its first line is no header: save it "
                       "without the mark, in code page 1252");
    }
    if (content.starts_with("\xFF\xFE") || content.starts_with("\xFE\xFF") ||
        content.find('\0') != std::string::npos) {
        findings.Error("utf-16", LinePlace(1),
                       "the file holds zero bytes: save it as plain text in code page 1252");
        return;
    }
    const auto& lines = installation.Document().m_Lines;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const bool mark = i == 0 && lines[i].starts_with("\xEF\xBB\xBF");
        if (!HasUtf8(std::string_view(lines[i]).substr(mark ? 3 : 0))) continue;
        findings.Warning("utf-8", LinePlace(i + 1),
                         "this looks like UTF-8; the program reads code page 1252, so each letter beyond "
                         "a to z becomes two wrong ones");
        return;
    }
}

void CheckOddLines(const cIniDocument::cSection& section, cFindings& findings) {
    for (const cIniDocument::cLine& line : section.odd) {
        const std::string text = Trim(line.text);
        if (text.starts_with("[")) {
            findings.Error("header-open", LinePlace(line.line, section.name, line.text),
                           "a section's name needs a \"]\" behind it; what follows counts to the section "
                           "above");
        } else if (EqualsNoCase(section.name, "Senders")) {
            findings.Warning("sender-without-minutes", LinePlace(line.line, section.name, line.text),
                             "is no \"name=minutes\" and is not read");
        } else {
            findings.Warning("line-unreadable", LinePlace(line.line, section.name, line.text),
                             "is neither \"[section]\" nor \"key=value\"; remarks begin with \";\"");
        }
    }
}

void CheckRepeatedKeys(const cIniDocument::cSection& section, cFindings& findings) {
    // Repeated senders are told of with the other troubles of senders.
    if (EqualsNoCase(section.name, "Senders")) return;
    for (const cIniDocument::cKey& key : section.keys) {
        if (key.first) continue;
        const std::string line = std::to_string(section.Key(key.name)->line);
        findings.Warning("key-repeated", cInstallation::PlaceOf(section, key),
                         "the key stands in line " + line + " already; only the first one counts");
    }
}

// Senders, and the list of categories, are read line by line: there a header stands in the first column, and
// blanks within the brackets count.
bool IsSeenByLineReaders(const cIniDocument::cSection& section) {
    if (section.header[0] != '[') return false;
    const std::string name = section.header.substr(1, section.header.find(']') - 1);
    return EqualsNoCase(name, "Senders") || IsCategorySection(name);
}

void CheckHeader(const cIniDocument::cSection& section, cFindings& findings) {
    const bool byLine = EqualsNoCase(section.name, "Senders") || IsCategorySection(section.name);
    if (byLine && !IsSeenByLineReaders(section)) {
        findings.Error(
            "header-not-seen", cInstallation::PlaceOf(section),
            "a blank beside a bracket hides this section: write [" + section.name + "] in the first column");
    } else if (section.header[0] != '[') {
        findings.Warning("header-indented", cInstallation::PlaceOf(section),
                         "begin the line with \"[\": a section Senders above would not end here");
    }
}

void CheckSections(const cInstallation& installation, cFindings& findings) {
    const cIniDocument& document = installation.Document();
    for (const cIniDocument::cKey& key : document.m_Before.keys) {
        findings.Warning("key-before-section", {std::string(kIniFile), key.line, "", key.name, key.value},
                         "stands before any section and is not read");
    }
    CheckOddLines(document.m_Before, findings);
    for (const cIniDocument::cSection& section : document.m_Sections) {
        CheckHeader(section, findings);
        if (!section.first) {
            findings.Warning("section-repeated", cInstallation::PlaceOf(section),
                             "the section stands in line " +
                                 std::to_string(document.Section(section.name)->line) +
                                 " already; nothing below this one is read");
            continue;
        }
        CheckOddLines(section, findings);
        CheckRepeatedKeys(section, findings);
    }
    if (document.Section("General") == nullptr) {
        findings.Warning("no-general", cInstallation::WholeFile(),
                         "there is no section General: the list has no columns and no colours");
    }
}

// All names of sections share one buffer; those that don't fit are categories that nobody finds.
void CheckSectionNames(const cInstallation& installation, cFindings& findings) {
    const auto read = [&](std::size_t size) {
        return ReadIniEntries(installation.Files(), "", size, installation.IniPath()).entries;
    };
    const auto seen = read(kSectionNamesBuffer), all = read(installation.Content().size() + 2);
    if (seen.size() == all.size()) return;
    const auto lost = std::find_if(all.begin() + static_cast<std::ptrdiff_t>(seen.size()), all.end(),
                                   [](const std::string& name) { return IsCategorySection(name); });
    const std::string limit =
        "the names of all sections fill more than " + std::to_string(kSectionNamesBuffer) + " characters: ";
    if (lost == all.end()) {
        findings.Remark("section-names-too-long", cInstallation::WholeFile(),
                        limit + "a category that is added at the end will not be found");
        return;
    }
    const cIniDocument::cSection* section = installation.Document().Section(Trim(*lost));
    findings.Error("section-names-too-long",
                   section == nullptr ? cInstallation::WholeFile() : cInstallation::PlaceOf(*section),
                   limit + "this category and those behind it have the settings of section General alone");
}

}  // namespace

void CheckFile(const cInstallation& installation, cFindings& findings) {
    if (installation.Unreadable()) {
        findings.Error("unreadable", cInstallation::WholeFile(), *installation.Unreadable());
        return;
    }
    const cFileReader& files = installation.Files();
    if (!installation.IsConfigured()) {
        // The folder's own template, or the delivered one of a language.
        if (files.ListFiles(installation.Path() + "Templates\\", "VigrelReceiver.???").empty()) {
            findings.Error("no-configuration", cInstallation::WholeFile(),
                           "is missing, and so is Templates\\VigrelReceiver.oni: the list has no columns");
        } else {
            findings.Remark("no-configuration", cInstallation::WholeFile(),
                            "is missing; the start makes it of a template in folder Templates");
        }
        return;
    }
    CheckEncoding(installation, findings);
    CheckSections(installation, findings);
    CheckSectionNames(installation, findings);
}

}  // namespace vigrel
