// A year of log lines: how long a report takes, beside the time in which a program only reads the lines.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "adapters/linux/linux_files.h"
#include "common/date_text.h"
#include "common/text.h"
#include "vigrel-report/run.h"

namespace {

using namespace vigrel;
using namespace vigrel::report;
namespace fs = std::filesystem;

constexpr int kDays = 365;

// Of ten lines, six are signs of life, three alarms, one an acknowledgement.
std::string Line(const cLogPhrases& phrases, int number, int second) {
    char time[40];
    std::snprintf(time, sizeof time, "%02d:%02d:%02d ", second / 3600, second / 60 % 60, second % 60);
    const int unit = number * 7919 % 400, kind = number % 10;
    const std::string sender = "PLC" + std::to_string(unit % 20),
                      alarm = "Unit " + std::to_string(unit) + " of the ventilation tripped (House " +
                              std::to_string(unit % 9) + ", floor 3/Technical/AI-" + std::to_string(unit) +
                              "/)";
    if (kind < 6) return time + sender + phrases.keepAlive + "\r\n";
    if (kind == 6) return time + phrases.acknowledged + "Active - " + alarm + "\r\n";
    return time + sender + phrases.alarm + (kind % 2 == 0 ? "Inactive" : "Active") + " - " + alarm + "\r\n";
}

void WriteYear(const cLogPhrases& phrases, const fs::path& folder, int lines) {
    fs::create_directories(folder / "LogFiles");
    std::ofstream(folder / "VigrelReceiver.INI") << "[General]\r\nObject=Bench\r\n";
    const WallTime begin = WallTimeFromParts(2025, 1, 1);
    const int perDay = lines / kDays;
    for (int day = 0; day < kDays; ++day) {
        std::string name = DateTimeText(DateTimeOf(begin + day * kDay)).substr(0, 10);
        std::erase(name, '-');
        std::ofstream file(folder / "LogFiles" / (name + ".Log"), std::ios::binary);
        for (int i = 0; i < perDay; ++i)
            file << Line(phrases, day * perDay + i, static_cast<int>(86399.0 * i / perDay));
    }
}

double TimeOf(const std::function<void()>& work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

// Every file is read, and every line is taken as a text.
std::size_t ReadLines(const fs::path& folder) {
    const cLinuxFiles files;
    std::size_t bytes = 0;
    const std::string logs = folder.string() + "/LogFiles/";
    for (const std::string& name : files.ListFiles(logs, "*.log")) {
        for (const std::string& line : SplitLines(files.ReadFile(logs + name))) bytes += line.size();
    }
    return bytes;
}

}  // namespace

int main(int argc, char** argv) {
    const int lines = argc > 1 ? std::atoi(argv[1]) : 1000000;
    const fs::path folder = fs::temp_directory_path() / "vigrel-report-bench";
    fs::remove_all(folder);
    const cLinuxFiles files;
    const std::vector<cLogPhrases> phrases = ReadPhrases(files, std::string(VIGREL_SHARE_DIR) + "/");
    WriteYear(phrases.back(), folder, lines);
    const cTimeZone zone(3600);
    const cOptions options =
        ReadReportOptions({"--from", "2025-01-01", "--to", "2025-12-31", "--html", "-", folder.string()});
    const cSurroundings surroundings{files, zone, phrases,
                                     zone.ToMoments(WallTimeFromParts(2026, 1, 2)).first,
                                     [](std::size_t, std::size_t) {}};
    std::vector<double> ratios;
    std::size_t bytes = 0, page = 0;
    for (int round = 0; round < 7; ++round) {
        const double reading = TimeOf([&] { bytes = ReadLines(folder); });
        const double reporting = TimeOf([&] { page = MakeReport(options, surroundings).page.size(); });
        ratios.push_back(reporting / reading);
        std::printf("reading the lines %6.0f ms, report %6.0f ms, ratio %.2f\n", reading * 1e3,
                    reporting * 1e3, ratios.back());
    }
    fs::remove_all(folder);
    std::sort(ratios.begin(), ratios.end());
    std::printf("%d lines, %zu bytes; page of %zu bytes; median ratio %.2f\n", lines, bytes, page,
                ratios[ratios.size() / 2]);
    return ratios[ratios.size() / 2] <= 2 ? 0 : 1;
}
