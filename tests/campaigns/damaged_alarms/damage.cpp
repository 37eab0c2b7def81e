#include "campaigns/damaged_alarms/damage.h"

#include <algorithm>
#include <array>
#include <bit>
#include <limits>

#include "events/vigrel_reciever_alarm.h"
#include "support/fake_clock.h"

namespace vigrel::campaign {
namespace {

using cLimits = std::numeric_limits<double>;

// The bounds of what a date can be, and what is no date and no number at all.
constexpr std::array kOddTimes{0.0,
                               -0.0,
                               -1.75,
                               -657434.0,
                               -657435.0,
                               2958465.9999999,
                               2958466.0,
                               1e300,
                               -1e300,
                               cLimits::denorm_min(),
                               cLimits::max(),
                               cLimits::lowest(),
                               cLimits::infinity(),
                               -cLimits::infinity(),
                               cLimits::quiet_NaN(),
                               -cLimits::quiet_NaN(),
                               cLimits::signaling_NaN()};
constexpr std::array<std::uint64_t, 6> kOddLengths{0, 1, 0x7FFF, 0x8000, 0xFFFE, 0xFFFF};
constexpr std::array kCategories{"", "Fire", "FIRE", "Gas", "Technical", "of no section"};
// Where the first two dates of a file stand, and the length of the first text.
constexpr std::size_t kFirstLength = 22;

}  // namespace

std::string cDamage::Noise(int most) {
    std::string bytes(static_cast<std::size_t>(Below(most + 1)), '\0');
    for (char& c : bytes) c = static_cast<char>(m_Random());
    return bytes;
}

std::string cDamage::Text() {
    return Chance(70) ? "Fan " + std::to_string(Below(50)) : Noise(Chance(5) ? 3000 : 40);
}

double cDamage::Time() {
    if (Chance(60)) return 46000 + Below(2 * 86400 * 100) / (2 * 86400.0);
    if (Chance(50)) return kOddTimes[static_cast<std::size_t>(Below(kOddTimes.size()))];
    return std::bit_cast<double>(std::uint64_t{m_Random()} << 32 | m_Random());
}

std::string cDamage::SoundAlarm() {
    cVigrelRecieverAlarm alarm{testing::cFakeClock(), kNoCategorySetting};
    alarm.m_Alarm.m_TimeStampFromSCADA = Time();
    alarm.m_Alarm.m_TimeStampFromPC = Time();
    alarm.m_Alarm.m_EventId = static_cast<std::int32_t>(m_Random());
    alarm.m_Alarm.m_Status = static_cast<std::int16_t>(Chance(90) ? Below(4) : static_cast<int>(m_Random()));
    for (int i = 0; i < 6; ++i) alarm.m_Alarm.SetCondition(i, Text());
    if (Chance(80))
        alarm.m_Alarm.SetCondition(2, kCategories[static_cast<std::size_t>(Below(kCategories.size()))]);
    alarm.m_Sender = Text();
    alarm.m_Observed = static_cast<Boolean16>(Chance(90) ? -Below(2) : static_cast<int>(m_Random()));
    alarm.m_CreatedTime = Time();
    alarm.m_FileId = static_cast<std::int32_t>(m_Random());
    cBinaryWriter file;
    alarm.WriteToDisk(file);
    return file.Bytes();
}

std::size_t cDamage::Place(const std::string& bytes) {
    return bytes.empty() ? 0 : m_Random() % bytes.size();
}

void cDamage::Overwrite(std::string& bytes, std::size_t at, std::uint64_t value, std::size_t count) {
    for (std::size_t i = at; i < std::min(at + count, bytes.size()); ++i, value >>= 8)
        bytes[i] = static_cast<char>(value);
}

void cDamage::Harm(std::string& bytes) {
    switch (Below(9)) {
        case 0:
            for (int i = Below(20); i >= 0 && !bytes.empty(); --i) {
                char& c = bytes[Place(bytes)];
                c = static_cast<char>(c ^ 1 << Below(8));
            }
            return;
        case 1:
            return bytes.resize(Place(bytes));
        case 2:
            return Overwrite(bytes, Place(bytes), std::bit_cast<std::uint64_t>(Time()), 8);
        case 3:
            return Overwrite(bytes, static_cast<std::size_t>(Below(2)) * 8,
                             std::bit_cast<std::uint64_t>(Time()), 8);
        case 4:
            return Overwrite(bytes, Chance(50) ? kFirstLength : Place(bytes),
                             kOddLengths[static_cast<std::size_t>(Below(kOddLengths.size()))], 2);
        case 5:
            bytes += Noise(300);
            return;
        case 6:
            bytes = Noise(400);
            return;
        case 7:
            bytes.insert(Place(bytes), bytes.substr(Place(bytes), static_cast<std::size_t>(Below(100))));
            return;
        default:
            bytes.erase(Place(bytes), static_cast<std::size_t>(Below(100)));
            return;
    }
}

std::string cDamage::AlarmFile() {
    std::string bytes = SoundAlarm();
    for (int harms = Below(5); harms > 0; --harms) Harm(bytes);
    return bytes;
}

}  // namespace vigrel::campaign
