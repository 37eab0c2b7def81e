// What the devices cost the one thread of the station: a line of print, a recount of the notification icon.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <deque>
#include <exception>
#include <string>

#include "adapters/linux/linux_files.h"
#include "adapters/linux/linux_printer_ports.h"
#include "adapters/linux/system_clock.h"
#include "signals/tray.h"
#include "support/fake_devices.h"
#include "support/fake_station.h"
#include "support/fake_timer.h"
#include "support/tcp_sink.h"
#include "support/temporary_folder.h"

namespace {

using namespace vigrel;
using namespace vigrel::testing;

template <class Step>
double Milliseconds(Step step) {
    const auto start = std::chrono::steady_clock::now();
    step();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

// Prints texts of 80 lines on a port; "text": the mean of one, "line": the longest line.
void PrintTexts(const char* name, const std::string& entry, int texts) {
    cFakeFiles files;
    files.PutFolder("C:\\App\\");
    files.Put("C:\\App\\VigrelReceiver.INI", "[PrinterPorts]\r\n1=" + entry);
    const cIni ini(files, "C:\\App\\");
    const cSystemClock clock;
    cLinuxPrinterPorts ports(ini, clock);
    const std::string line = std::string(80, 'x') + "\r\n";
    double longest = 0;
    int printed = 0;
    const double all = Milliseconds([&] {
        for (int i = 0; i < texts * 80; ++i) {
            longest = std::max(longest, Milliseconds([&] { printed += ports.SendPRN(line, 0) != 0; }));
        }
    });
    std::printf("%-28s text %9.3f ms, longest line %9.3f ms, %d of %d lines printed\n", name, all / texts,
                longest, printed, texts * 80);
}

void CountAlarms(std::size_t alarms) {
    cFakeStation station;
    for (std::size_t i = 0; i < alarms; ++i) station.store.m_Alarms.push_back(station.MakeAlarm());
    cFakeNotificationArea area;
    cFakeTimer timer;
    cTray tray({area, timer, station.list, station.mainWindow, station.store.m_Alarms, station.state,
                station.settings});
    constexpr int kTicks = 100;
    const double all = Milliseconds([&] {
        for (int tick = 0; tick < kTicks; ++tick) {
            station.state.m_ListChanged = true;
            tray.TickTray();
        }
    });
    std::printf("tick that counts %zu alarms: %.3f ms\n", alarms, all / kTicks);
}

void Measure() {
    const cTemporaryFolder folder;
    PrintTexts("file", (folder.Path() / "out").string(), 20);
    {
        const cTcpSink sink;
        PrintTexts("printer of the network", "tcp:127.0.0.1:" + sink.Port(), 20);
    }
    std::string refused;
    {
        const cLoopbackPort port;
        refused = port.Port();
    }
    PrintTexts("refused port", "tcp:127.0.0.1:" + refused, 20);
    {
        const cLoopbackPort deaf;
        PrintTexts("printer that takes no more", "tcp:127.0.0.1:" + deaf.Port(), 2);
    }
    CountAlarms(1000);
    CountAlarms(100000);
}

}  // namespace

int main() {
    try {
        Measure();
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "devices_bench: %s\n", failure.what());
        return 2;
    }
}
