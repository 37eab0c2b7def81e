#include "vigrel-send/frames.h"

#include <string_view>

#include "common/code_page.h"
#include "common/text.h"
#include "link/frame.h"

namespace vigrel::send {
namespace {

std::string Payload(const cOptions& options, const std::string& now) {
    const std::string date = options.date.value_or(now.substr(0, 10));
    const std::string time = options.time.value_or(now.substr(11));
    std::string payload = "S" + std::to_string(options.kind) + date + "|" + time;
    for (const std::string& condition : options.conditions) payload += "|" + condition;
    return payload;
}

std::string Spoil(std::string frame, eCorrupt corrupt) {
    const std::size_t separator = frame.rfind(kFieldSeparator);
    switch (corrupt) {
        case eCorrupt::None:
            break;
        case eCorrupt::Checksum:
            frame[separator + 1] = frame[separator + 1] == '0' ? '1' : '0';
            break;
        case eCorrupt::Etx:
            frame.erase(frame.size() - 2, 1);
            break;
        case eCorrupt::Kind:
            frame[frame.find(kFieldSeparator) + 1] = 'X';
            break;
    }
    return frame;
}

// The lines of a file in the code page of the link. UTF-8 unless the bytes are meant as they are.
std::vector<std::string> FileLines(const cOptions& options, std::string_view content) {
    constexpr std::string_view kMark = "\xEF\xBB\xBF";
    if (!options.rawBytes && content.starts_with(kMark)) content.remove_prefix(kMark.size());
    std::vector<std::string> lines = SplitLines(content);
    if (options.rawBytes) return lines;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::string utf8 = lines[i];
        lines[i] = Utf8ToCodePage(utf8);
        if (CodePageToUtf8(lines[i]) == utf8) continue;
        throw cUsageError("--file: line " + std::to_string(i + 1) +
                          " holds a character that the link's code page 1252 lacks, or isn't UTF-8; "
                          "--raw-bytes sends the bytes as they are");
    }
    return lines;
}

}  // namespace

std::vector<std::string> MakeFrames(const cOptions& options, const std::string& fileContent,
                                    const std::string& now) {
    if (!options.raw.empty()) return options.raw;
    std::vector<std::string> seconds;
    if (!options.file.empty()) {
        for (const std::string& line : FileLines(options, fileContent)) {
            if (!line.empty() && line[0] != '#') seconds.push_back(line);
        }
    } else if (options.keepAlive) {
        seconds.push_back("S" + std::to_string(options.kind));
    } else if (options.message) {
        seconds.push_back("S3||" + *options.message);
    } else {
        seconds.push_back(Payload(options, now));
    }
    std::vector<std::string> frames;
    frames.reserve(seconds.size());
    for (const std::string& second : seconds)
        frames.push_back(Spoil(MakeFrame(options.sender, second), options.corrupt));
    return frames;
}

int RepliesTo(const std::string& bytes) {
    int replies = 0;
    std::string line;
    for (const char c : bytes) {
        if (c == '\n') {
            if (!line.empty() && line != kPositive && line != kNegative) ++replies;
            line.clear();
        } else if (c != '\r') {
            line += c;
        }
    }
    return replies;
}

}  // namespace vigrel::send
