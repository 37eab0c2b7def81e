// Expands templates of 32,000 characters, each full of one kind of thing, and prints the processor time of
// one expansion; docs/performance.md tells the figures.

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <string>

#include "signals/event_text_station.h"

namespace {

using namespace vigrel;

constexpr std::size_t kCharacters = 32000;
constexpr int kRounds = 20;

// The least of some rounds: what other programs take of the machine doesn't count.
double Milliseconds(const testing::cEventTextStation& station, const std::string& text) {
    double least = 1e9;
    for (int i = 0; i < kRounds; ++i) {
        const std::clock_t begin = std::clock();
        station.Expand(text);
        least = std::min(least, 1000.0 * static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC);
    }
    return least;
}

}  // namespace

int main() {
    testing::cEventTextStation station;
    station.alarm.m_Sender = std::string(1000, 'a');
    for (const char* piece :
         {"plain text ", "{ACTIVE?x}", "{{ACKED?", "[T0]", "[T1:0-2:9] ", "[OBSERVED] [WHAT] ",
          "[DATE] [TIME] ", "[OBJECT] ", "[", "[[[]", "[CU:z]", "[R:a:aa][SENDER]"}) {
        std::string text;
        while (text.size() < kCharacters) text += piece;
        text.resize(kCharacters);
        std::printf("%-20s %8.2f ms\n", piece, Milliseconds(station, text));
    }
    station.alarm.m_Sender = std::string(30000, 'a');
    std::string doubled;
    while (doubled.size() < kCharacters - 8) doubled += "[R:a:aa]";
    std::printf("%-20s %8.2f ms\n", "4,000 replacements", Milliseconds(station, doubled + "[SENDER]"));
}
