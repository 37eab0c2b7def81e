#include "common/file_procedures.h"

#include <functional>
#include <utility>

#include "common/failure.h"
#include "common/missing_file.h"
#include "common/text.h"

namespace vigrel {
namespace {

void Replace(cFiles& files, std::string_view path,
             const std::function<void(const std::string& temporary)>& write) {
    const std::string temporary = TemporaryName(path);
    const auto replace = [&] {
        write(temporary);
        files.RenameFile(temporary, path);
    };
    CleanUpBehind(replace, [&] { SkipFailure([&] { files.RemoveFile(temporary); }); });
    files.SyncFolder(SplitPath(path).folder);
}

}  // namespace

std::string TemporaryName(std::string_view path) {
    return std::string(path) + std::string(kTemporaryMask.substr(1));
}

cPathParts SplitPath(std::string_view path) {
    const std::size_t separator = path.find_last_of("\\/");
    if (separator == std::string_view::npos) return {"", std::string(path)};
    return {std::string(path.substr(0, separator + 1)), std::string(path.substr(separator + 1))};
}

bool FileExists(const cFileReader& files, std::string_view path) {
    const cPathParts parts = SplitPath(path);
    if (parts.name.find_first_of("*?") != std::string::npos) {
        return !files.ListFiles(parts.folder, parts.name).empty();
    }
    return !parts.name.empty() && parts.name[0] != '.' && files.FileExists(path);
}

cLineReader::cLineReader(std::string_view content) : m_Lines(SplitLines(content)) {}

bool cLineReader::AtEnd() const {
    if (!m_Open) throw cFailure(eFailure::InvalidCall, "the file is not open");
    return m_Next >= m_Lines.size();
}

std::string cLineReader::ReadLine() {
    if (AtEnd()) throw cFailure(eFailure::InputOutput, "reading behind the end of a file");
    return m_Lines[m_Next++];
}

bool SafeEof(const cLineReader& reader) {
    bool atEnd = true;
    SkipFailure([&] { atEnd = reader.AtEnd(); });
    return atEnd;
}

void CopyMissingFiles(cFiles& files, std::string_view sourceFolder, std::string_view targetFolder,
                      std::string_view mask, std::string_view sourceExtension,
                      std::string_view targetExtension) {
    const std::string source(sourceFolder);
    const std::string pattern = std::string(mask) + "." + std::string(sourceExtension);
    for (const std::string& found : files.ListFiles(sourceFolder, pattern)) {
        const std::string name = found.substr(0, found.find('.') + 1);
        const std::string target = std::string(targetFolder) + name + std::string(targetExtension);
        if (!IsMissing(files, target)) continue;
        SkipFailure([&] {
            ReplaceFile(files, target, files.ReadFile(source + name + std::string(sourceExtension)));
        });
    }
}

void ReplaceFile(cFiles& files, std::string_view path, std::string_view bytes) {
    const std::string target = files.LinkTarget(path);
    Replace(files, target,
            [&](const std::string& temporary) { files.WriteFileLike(temporary, bytes, target); });
}

void ReplaceOwnFile(cFiles& files, std::string_view path, std::string_view bytes) {
    Replace(files, path, [&](const std::string& temporary) { files.WriteFile(temporary, bytes, true); });
}

void RemoveTemporaries(cFiles& files, std::string_view folder) {
    for (const std::string& name : files.ListFiles(folder, kTemporaryMask)) {
        SkipFailure([&] { files.RemoveFile(std::string(folder) + name); });
    }
}

void RemoveTemporaryOf(cFiles& files, std::string_view path) {
    SkipFailure([&] {
        const std::string temporary = TemporaryName(files.LinkTarget(path));
        // A name that differs in case only is not ours.
        if (SplitPath(files.Spelling(temporary)).name == SplitPath(temporary).name)
            files.RemoveFile(temporary);
    });
}

void RemoveTemporariesOfLinks(cFiles& files, std::string_view folder, std::string_view mask) {
    for (const std::string& name : files.ListFiles(folder, mask)) {
        const std::string path = std::string(folder) + name;
        SkipFailure([&] {
            if (files.LinkTarget(path) != path) RemoveTemporaryOf(files, path);
        });
    }
}

}  // namespace vigrel
