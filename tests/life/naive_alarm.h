#pragma once

#include <array>
#include <string>
#include <vector>

namespace vigrel::testing {

// An alarm as the plain station has it.
struct cNaiveAlarm {
    std::string sender;
    int status = 0;
    double sourced = 0;                     // a date-time, as its sender wrote it
    std::array<std::string, 6> texts = {};  // the third is the category
    double created = 0;                     // a date-time
    int number = 0;                         // of its file
    bool acknowledged = false, removed = false;
};

// "2026-03-15" and "12:30" of a date-time.
std::string NaiveDate(double moment);
std::string NaiveTime(double moment);
// The moment that a sender wrote: "2026-03-15" or "26-03-15", or what makes no date and means today, and
// "12:30:15", or what makes no time and means the present.
double NaiveMoment(const std::string& date, const std::string& time, double now);

// Letters in another case are the same letters.
std::string InLowerCase(std::string text);
std::string WithoutOuterBlanks(std::string text);
std::vector<std::string> CutAt(const std::string& text, char separator);
// Empty where there are fewer.
std::string FieldOf(const std::vector<std::string>& fields, std::size_t i);

}  // namespace vigrel::testing
