#include "vigrel-send/frames.h"

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

}  // namespace

std::vector<std::string> MakeFrames(const cOptions& options, const std::string& fileContent,
                                    const std::string& now) {
    if (!options.raw.empty()) return options.raw;
    std::vector<std::string> seconds;
    if (!options.file.empty()) {
        for (const std::string& line : SplitLines(fileContent)) {
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
