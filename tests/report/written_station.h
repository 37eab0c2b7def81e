#pragma once

#include <chrono>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "events/vigrel_reciever_alarm.h"
#include "support/fake_clock.h"
#include "support/fake_files.h"
#include "vigrel-report/figures/figures.h"
#include "vigrel-report/record/station_folder.h"

namespace vigrel::report::testing {

using vigrel::testing::cFakeClock;
using vigrel::testing::cFakeFiles;

// Seconds of the wall clock since 1970, without the code under test.
inline WallTime Wall(int year, unsigned month, unsigned day, int hour = 0, int minute = 0, int second = 0) {
    const std::chrono::sys_days days =
        std::chrono::year(year) / std::chrono::month(month) / std::chrono::day(day);
    return std::chrono::duration_cast<std::chrono::seconds>(days.time_since_epoch()).count() + hour * 3600 +
           minute * 60 + second;
}

// The year 2026 in Stockholm.
inline const cTimeZone kStockholm(3600, {{Wall(2026, 3, 29, 1), 7200}, {Wall(2026, 10, 25, 1), 3600}});
inline const cTimeZone kNoZone;

// The delivered texts of a language by number, read without the code under test.
inline std::map<int, std::string> DeliveredTexts(const std::string& language) {
    std::ifstream file(std::string(VIGREL_SHARE_DIR) + "/Vigrel_Texts." + language, std::ios::binary);
    if (!file) throw std::runtime_error("the delivered texts are not there");
    std::map<int, std::string> texts;
    for (std::string line; std::getline(file, line);) {
        if (line.ends_with('\r')) line.pop_back();
        const std::size_t equals = line.find('=');
        if (equals == std::string::npos || line.find_first_not_of("0123456789") != equals) continue;
        texts.emplace(std::stoi(line.substr(0, equals)), line.substr(equals + 1));
    }
    return texts;
}

// An application folder that a test writes line by line, as a station does.
class cWrittenStation {
  public:
    explicit cWrittenStation(cFakeFiles& files, std::string folder = "/app/",
                             const std::string& language = "044")
        : m_Files(files), m_Folder(std::move(folder)), m_Texts(DeliveredTexts(language)) {
        std::ifstream texts(std::string(VIGREL_SHARE_DIR) + "/Vigrel_Texts." + language, std::ios::binary);
        m_Files.Put(m_Folder + "Vigrel_Texts." + language,
                    std::string(std::istreambuf_iterator<char>(texts), {}));
        m_Files.Put(m_Folder + "VigrelReceiver.INI",
                    "[General]\r\nLanguage=" + language + "\r\nObject=Mill\r\n");
    }

    const std::string& Text(int id) const { return m_Texts.at(id); }
    // A line as it stands in the file of the wall clock's day.
    void Line(WallTime wall, const std::string& text) {
        const WallTime second = wall % 86400;
        char time[16];
        std::snprintf(time, sizeof time, "%02d:%02d:%02d ", static_cast<int>(second / 3600),
                      static_cast<int>(second / 60 % 60), static_cast<int>(second % 60));
        Raw(wall, time + text + "\r\n");
    }
    void Raw(WallTime day, const std::string& bytes) { m_Logs[day / 86400] += bytes; }
    void Start(WallTime wall) {
        Line(wall, std::string(120, '-'));
        Line(wall, Text(10040));
        Line(wall, Text(10011));
    }
    void End(WallTime wall) { Line(wall, Text(10021)); }
    void Active(WallTime wall, const std::string& alarm, const std::string& sender = "PLC1") {
        Line(wall, sender + " " + Text(10030) + " Active - " + alarm);
    }
    void Inactive(WallTime wall, const std::string& alarm, const std::string& sender = "PLC1") {
        Line(wall, sender + " " + Text(10030) + " Inactive - " + alarm);
    }
    void Acknowledge(WallTime wall, const std::string& alarm) {
        Line(wall, Text(10039) + " Active - " + alarm);
    }
    void KeepAlive(WallTime wall, const std::string& sender = "PLC1") {
        Line(wall, sender + " " + Text(10028));
    }

    struct cStored {
        WallTime created = 0;
        std::int16_t state = 1;
        std::string sender = "PLC1";
        std::array<std::string, 5> texts;
        bool observed = false;
    };
    void Store(const cStored& stored) {
        cFakeClock clock;
        clock.m_Now = 25569 + static_cast<double>(stored.created) / 86400;
        cVigrelRecieverAlarm alarm(clock, kNoCategorySetting);
        alarm.m_Sender = stored.sender;
        alarm.m_Alarm.m_Status = stored.state;
        for (int i = 0; i < 5; ++i) alarm.m_Alarm.SetCondition(i, stored.texts[static_cast<std::size_t>(i)]);
        alarm.m_Observed = stored.observed ? True16 : False16;
        cBinaryWriter file;
        alarm.WriteToDisk(file);
        const std::string number = std::to_string(1000000 + m_Stored++);
        m_Files.Put(m_Folder + "Alarms/A" + number + ".alm", file.Bytes());
    }
    // Puts the logs in place, and returns the folder.
    std::string Finish() {
        for (const auto& [day, content] : m_Logs) {
            const std::chrono::year_month_day date{std::chrono::sys_days(std::chrono::days(day))};
            char name[32];
            std::snprintf(name, sizeof name, "%04d%02u%02u.Log", static_cast<int>(date.year()),
                          static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
            m_Files.Put(m_Folder + "LogFiles/" + name, content);
        }
        return m_Folder;
    }

  private:
    cFakeFiles& m_Files;
    std::string m_Folder;
    std::map<int, std::string> m_Texts;
    std::map<WallTime, std::string> m_Logs;  // by day
    int m_Stored = 0;
};

// Reads folders and measures a period, the one before left out. Times are of the wall clock.
struct cMeasured {
    cMeasured(const cFakeFiles& files, const std::vector<std::string>& folders, WallTime from, WallTime to,
              const cTimeZone& zone = kNoZone, const cSettings& settings = {}) {
        std::vector<cStationRecord> stations;
        for (const std::string& folder : folders) {
            stations.push_back(ReadStation(files, folder, {}, zone, names, [](std::size_t, std::size_t) {}));
        }
        plant = MakePlant(std::move(stations), names);
        figures =
            Measure(plant, names, settings, {zone.ToMoments(from).first, zone.ToMoments(to).first}, zone);
    }
    const cStationRecord& Record() const { return plant.stations[0]; }
    cAlarmNames names;
    cPlant plant;
    cFigures figures;
};

}  // namespace vigrel::report::testing
