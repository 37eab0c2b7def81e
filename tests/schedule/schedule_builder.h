#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "common/binary.h"
#include "schedule/time_schedule.h"

namespace vigrel::testing {

// A schedule's content as a test writes it down.
struct cContent {
    struct cDay {
        bool active = false, grouped = false;
        std::vector<std::pair<int, int>> periods;
        int axisIndex = 0;
    };
    std::array<cDay, 23> days;
    bool useCalendar = false;

    cContent() {
        for (std::size_t i = 0; i < 7; ++i) days[i].active = true;
    }
    cContent& Day(std::size_t dayType, std::vector<std::pair<int, int>> periods) {
        days[dayType].active = true;
        days[dayType].periods = std::move(periods);
        return *this;
    }
    cContent& Grouped(std::initializer_list<std::size_t> dayTypes) {
        for (const std::size_t dayType : dayTypes) days[dayType].grouped = true;
        return *this;
    }
    // The bytes of the saved form, written without the code under test.
    std::string Bytes() const {
        std::string bytes;
        const auto put = [&bytes](int value) {
            bytes += static_cast<char>(value & 0xFF);
            bytes += static_cast<char>(value >> 8 & 0xFF);
        };
        for (const cDay& day : days) {
            put(day.active ? -1 : 0);
            put(day.grouped ? -1 : 0);
            put(static_cast<int>(day.periods.size()));
            for (const auto& [start, stop] : day.periods) {
                put(start);
                put(stop);
            }
            put(day.axisIndex);
        }
        put(useCalendar ? -1 : 0);
        return bytes;
    }
};

inline void Load(cTimeSchedule& schedule, const cContent& content) {
    const std::string bytes = content.Bytes();
    cBinaryReader reader(bytes);
    schedule.ReadFromDisk(reader);
}

inline std::string Saved(const cTimeSchedule& schedule) {
    cBinaryWriter writer;
    schedule.SaveToDisk(writer);
    return writer.Bytes();
}

// The periods of an active day type: "420-960 1000-1100".
inline std::string Periods(const cTimeSchedule& schedule, std::int16_t dayType) {
    std::string text;
    std::int16_t start = 0, stop = 0;
    for (PeriodPtr p; (p = schedule.GetNextTimePeriod(dayType, start, stop, p));) {
        text += (text.empty() ? "" : " ") + std::to_string(start) + "-" + std::to_string(stop);
    }
    return text;
}

// Whether a day type is grouped, from its place in the saved form.
inline bool IsGrouped(const cTimeSchedule& schedule, int dayType) {
    const std::string bytes = Saved(schedule);
    cBinaryReader reader(bytes);
    for (int day = 0;; ++day) {
        reader.Int16();
        const bool grouped = reader.Int16() != 0;
        if (day == dayType) return grouped;
        reader.Skip(static_cast<std::size_t>(reader.Int16()) * 4 + 2);
    }
}

}  // namespace vigrel::testing
