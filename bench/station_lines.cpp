#include "bench/station_lines.h"

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <thread>

#include "bench/bare.h"
#include "bench/example_frame.h"
#include "bench/stored_alarms.h"
#include "e2e/station.h"
#include "e2e/system_calls.h"
#include "vigrel-send/connection.h"

namespace vigrel::bench {
namespace {

using send::cConnection;
using testing::cStation;

const std::string kConfiguration =
    "[General]\r\nColumns=StateIcon,DateTime,StateText,t2,t0,t1,t3,Observed\r\nBackColor_Active=255,230,"
    "230\r\n"
    "ForeColor_Active=120,0,0\r\nIcon_Active=2,3\r\nMaxEvents=0\r\nMaxDays=0\r\n";
// A sender that is not among the station's adds a line to the log with each frame.
const std::string kSenders = "[Senders]\r\nPLC1=5\r\n";
const std::string kPopups =
    "ViewPopupForm=1\r\nEventPopupFormat=[DATE] [TIME] [T0] {ACTIVE?active} [OBJECT]\r\n";

void UseDisplay(cStation& station) {
    if (const char* platform = std::getenv("QT_QPA_PLATFORM"))
        station.m_Environment["QT_QPA_PLATFORM"] = platform;
}

// The folder in which stations and bare loops keep their files, while the object lives.
class cOnMemory {
  public:
    explicit cOnMemory(bool memory) {
        if (const char* before = std::getenv("TMPDIR")) m_Before = before;
        if (memory) setenv("TMPDIR", "/dev/shm", 1);
    }
    ~cOnMemory() { m_Before ? setenv("TMPDIR", m_Before->c_str(), 1) : unsetenv("TMPDIR"); }

  private:
    std::optional<std::string> m_Before;
};

std::unique_ptr<cStation> StartedStation(const std::string& further, int stored, const cSize& size) {
    auto station = std::make_unique<cStation>();
    UseDisplay(*station);
    // As a first start spells it.
    station->m_ConfigurationName = "VigrelReceiver.ini";
    station->Configure(kConfiguration + further + kSenders);
    StoreAlarms(station->Folder() / "Alarms", stored);
    if (!station->Start())
        throw std::runtime_error("the station does not start: " + station->StandardError());
    // A configuration that was written within two seconds is searched for and read for each alarm.
    std::this_thread::sleep_for(std::chrono::milliseconds(size.settles));
    return station;
}

bool PortIsOpen(int port) {
    try {
        const cConnection connection("127.0.0.1", std::to_string(port), 1);
        return true;
    } catch (const send::cConnectionError&) {
        return false;
    }
}

// Resident memory in bytes.
double Memory(pid_t process) {
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmRSS:")) return std::atof(line.c_str() + 6) * 1024;
    }
    return 0;
}

struct cStart {
    double seconds, memory, bare;  // bytes; seconds of the bare loop
};

// A start on so many stored alarms, against reading their files.
cStart MeasureStart(int stored) {
    cStation station;
    UseDisplay(station);
    station.Configure(kConfiguration);
    const auto alarms = station.Folder() / "Alarms";
    StoreAlarms(alarms, stored);
    cStart start{};
    start.bare = Seconds([&] { ReadAllFiles(alarms); });
    start.seconds = Seconds([&] {
        station.Launch();
        while (!PortIsOpen(station.m_Port)) std::this_thread::sleep_for(std::chrono::milliseconds(2));
    });
    start.bare = (start.bare + Seconds([&] { ReadAllFiles(alarms); })) / 2;
    std::this_thread::sleep_for(std::chrono::milliseconds(500));
    start.memory = Memory(station.Process());
    station.Stop(SIGTERM);
    return start;
}

double AlarmsPerSecond(int port, int alarms) {
    cConnection connection("127.0.0.1", std::to_string(port), 60);
    const double seconds = Seconds([&] {
        for (int i = 0; i < alarms; ++i) {
            connection.Send(kFrame);
            if (connection.ReadReply().size() != 5) throw std::runtime_error("no reply");
        }
    });
    return alarms / seconds;
}

struct cRates {
    double station = 0, other = 0, ratio = 0;
};

// Two stations, of which one can be a bare loop, in turns.
cRates InTurns(int station, int other, int rounds, int alarms) {
    std::vector<double> stations, others, ratios;
    AlarmsPerSecond(other, alarms / 4 + 1);
    AlarmsPerSecond(station, alarms / 4 + 1);
    for (int round = 0; round < rounds; ++round) {
        others.push_back(AlarmsPerSecond(other, alarms));
        stations.push_back(AlarmsPerSecond(station, alarms));
        ratios.push_back(stations.back() / others.back());
    }
    return {Median(stations), Median(others), Median(ratios)};
}

cLine RateLine(const std::string& what, const cRates& rates, double target) {
    return {what,
            Number(rates.station, 0, "a second"),
            Number(rates.other, 0, "a second"),
            rates.ratio,
            "",
            target,
            false};
}

// For a minute and more ext4 without a journal passes over the inodes of removed files, one by one, whenever
// it makes a file: a millisecond an alarm behind a run that has removed its own, for the one of the two whose
// part of the disk it is.
void LetTheDiskRest(const cSize& size) {
    sync();
    std::this_thread::sleep_for(std::chrono::milliseconds(30 * size.settles));
}

cLine AgainstBareLoop(const std::string& what, bool memory, const cSize& size, double target) {
    const cOnMemory where(memory);
    if (!memory) LetTheDiskRest(size);
    const auto station = StartedStation("", size.alarms, size);
    const cBareStation bare;
    return RateLine(what, InTurns(station->m_Port, bare.m_Port, size.rounds, size.alarms), target);
}

cLine WithPopups(const std::string& what, const std::string& further, const cSize& size, double target) {
    const auto plain = StartedStation("", 0, size);
    const auto popups = StartedStation(kPopups + further, 0, size);
    const int alarms = std::min(size.alarms, size.popups);
    return RateLine(what, InTurns(popups->m_Port, plain->m_Port, size.rounds, alarms), target);
}

cLine SystemCalls(const cSize& size) {
    const auto station = StartedStation("", 100, size);
    AlarmsPerSecond(station->m_Port, 50);
    cConnection connection("127.0.0.1", std::to_string(station->m_Port), 10);
    const int alarms = size.alarms;
    const auto calls = testing::SystemCallsOf(station->Process(), [&] {
        for (int i = 0; i < alarms; ++i) {
            connection.Send(kFrame);
            connection.ReadReply();
        }
    });
    if (!calls) throw std::runtime_error("the machine lets nobody look at system calls");
    const double each = static_cast<double>(calls->size()) / alarms;
    return {"system calls per alarm answered", Number(each, 1), "", each, "calls", 25, true};
}

}  // namespace

std::vector<cLine> MeasureStarts(const cSize& size) {
    std::vector<double> seconds, bare, ratios, bytes;
    const cStart empty = MeasureStart(0);
    for (int round = 0; round < size.rounds; ++round) {
        const cStart start = MeasureStart(size.stored);
        seconds.push_back(start.seconds);
        bare.push_back(start.bare);
        ratios.push_back(start.seconds / start.bare);
        bytes.push_back((start.memory - empty.memory) / size.stored);
    }
    const std::string stored = std::to_string(size.stored);
    return {{"start with " + stored + " stored alarms, until the port is open",
             Number(Median(seconds), 2, "s"), Number(Median(bare), 2, "s"), Median(ratios), "", 1.5, true},
            {"memory per stored alarm", Number(Median(bytes), 0, "bytes"), "365 on disk", Median(bytes),
             "bytes", 1000, true}};
}

std::vector<cLine> MeasureAnswers(const cSize& size) {
    return {
        AgainstBareLoop("alarms answered, files on disk", false, size, 0.95),
        AgainstBareLoop("alarms answered, files in memory", true, size, 0.6), SystemCalls(size),
        WithPopups("answers with one popup at a time, against none", "ViewOnlyOnePopupForm=1\r\n", size, 0.8),
        WithPopups("answers with all popups shown, against none", "", size, 0.5)};
}

std::vector<cLine> MeasureExport(const cSize& size) {
    const testing::cTemporaryFolder folder;
    StoreAlarms(folder.Path() / "Alarms", size.stored);
    std::vector<double> seconds, bare, ratios;
    for (int round = 0; round < size.rounds; ++round) {
        bare.push_back(Seconds([&] { ReadAllFiles(folder.Path() / "Alarms"); }));
        seconds.push_back(Seconds([&] {
            testing::RunProgram("vigrel-inspect", {folder.Path().string(), "--alarms", "--csv"});
        }));
        ratios.push_back(seconds.back() / bare.back());
    }
    return {{"export of " + std::to_string(size.stored) + " alarms as CSV", Number(Median(seconds), 2, "s"),
             Number(Median(bare), 2, "s"), Median(ratios), "", 1.5, true}};
}

void PlotStations(const cSize& size, const std::string& folder) {
    cCurve seconds{"station", {}}, bare{"reading the files", {}}, memory{"station", {}}, rate{"station", {}},
        bareRate{"bare loop", {}};
    for (const int stored : size.plotted) {
        const cStart start = MeasureStart(stored);
        seconds.points.emplace_back(stored, start.seconds);
        bare.points.emplace_back(stored, start.bare);
        memory.points.emplace_back(stored, start.memory / 1e6);
        // What the disk has to do with so many files is not the station's.
        const cOnMemory where(true);
        const auto station = StartedStation("", stored, size);
        const cBareStation loop;
        const cRates rates = InTurns(station->m_Port, loop.m_Port, size.rounds, size.alarms);
        rate.points.emplace_back(stored, rates.station);
        bareRate.points.emplace_back(stored, rates.other);
        std::fprintf(
            stderr,
            "%d stored: start %.2f s (files alone %.2f s), %.0f MB, %.0f answers a second (bare %.0f)\n",
            stored, start.seconds, start.bare, start.memory / 1e6, rates.station, rates.other);
    }
    const auto write = [&](const char* name, const std::string& svg) {
        std::ofstream(folder + "/" + name) << svg;
    };
    write("start.svg", Plot("Start until the port is open", "stored alarms", "seconds", {seconds, bare}));
    write("memory.svg", Plot("Memory of the station", "stored alarms", "megabytes", {memory}));
    write("rate.svg",
          Plot("Alarms answered a second, files in memory", "rows", "answers a second", {rate, bareRate}));
}

}  // namespace vigrel::bench
