#pragma once

#include <cstdint>
#include <random>
#include <string>

namespace vigrel::campaign {

// Stored alarms as no station writes them: sound ones first, then damaged in one to four ways. The same seed
// makes the same files.
class cDamage {
  public:
    explicit cDamage(std::uint32_t seed) : m_Random(seed) {}

    std::string AlarmFile();
    // The date and time of an alarm: mostly an ordinary one, else what a station never made.
    double Time();

    bool Chance(int percent) { return Below(100) < percent; }
    // 0 up to, not including, the limit.
    int Below(int limit) { return static_cast<int>(m_Random() % static_cast<std::uint32_t>(limit)); }

  private:
    std::string SoundAlarm();
    std::string Text();
    void Harm(std::string& bytes);
    void Overwrite(std::string& bytes, std::size_t at, std::uint64_t value, std::size_t count);
    std::string Noise(int most);
    // A place in the bytes, or 0 when there are none.
    std::size_t Place(const std::string& bytes);

    std::mt19937 m_Random;
};

}  // namespace vigrel::campaign
