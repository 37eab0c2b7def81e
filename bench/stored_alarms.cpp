#include "bench/stored_alarms.h"

#include <array>
#include <cstdio>
#include <string>

#include "common/dates.h"
#include "events/vigrel_reciever_alarm.h"
#include "support/fake_clock.h"

namespace vigrel::bench {
namespace {

// Shared by all, since the texts matter for the size alone.
cVigrelRecieverAlarm ExampleAlarm(const cClock& clock) {
    cVigrelRecieverAlarm alarm(clock, kNoCategorySetting);
    alarm.m_Sender = "PLC-1-North";
    alarm.m_Alarm.m_Status = StatusActive;
    alarm.m_Alarm.m_TimeStampFromSCADA = clock.Now();
    alarm.m_Alarm.SetCondition(0, "Fan 3 tripped in the plant room of the north wing, block B");
    alarm.m_Alarm.SetCondition(1, "AHU 3 supply air, ground floor");
    alarm.m_Alarm.SetCondition(2, "Technical");
    alarm.m_Alarm.SetCondition(3, "Call the caretaker of the building");
    alarm.m_Alarm.SetCondition(4, "PLC 1 / card 4 / point 17");
    alarm.m_Alarm.SetCondition(5, "Priority 2 of 5 (P2)");
    return alarm;
}

void Write(const std::string& path, const std::string& bytes) {
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (file == nullptr) return;
    std::fwrite(bytes.data(), 1, bytes.size(), file);
    std::fclose(file);
}

}  // namespace

void StoreAlarms(const std::filesystem::path& folder, int count) {
    std::filesystem::create_directories(folder);
    const testing::cFakeClock clock;
    cVigrelRecieverAlarm alarm = ExampleAlarm(clock);
    const DateTime now = clock.Now();
    for (int i = 0; i < count; ++i) {
        alarm.m_FileId = i + 1;
        alarm.m_CreatedTime = now + static_cast<double>(i) * 0.7 / 86400;
        alarm.m_Alarm.m_TimeStampFromSCADA = alarm.m_CreatedTime;
        cBinaryWriter bytes;
        alarm.WriteToDisk(bytes);
        std::array<char, 32> name{};
        // Names are drawn at random by a station; a multiplication strews them as well.
        std::snprintf(name.data(), name.size(), "/A%07d.alm", static_cast<int>(i * 7'654'321LL % 9'999'991));
        Write(folder.string() + name.data(), bytes.Bytes());
    }
}

}  // namespace vigrel::bench
