#include "life/naive_alarm.h"

#include <cctype>
#include <cmath>
#include <cstdio>
#include <ctime>

namespace vigrel::testing {
namespace {

// From 1899-12-30 to 1970-01-01.
constexpr std::time_t kDaysToEpoch = 25569;

// The fraction counts forward in front of day 0 too.
std::tm Civil(double moment) {
    const double day = std::trunc(moment);
    const auto second = static_cast<std::time_t>(std::floor(std::abs(moment - day) * 86400 + 1e-4));
    const std::time_t seconds = (static_cast<std::time_t>(day) - kDaysToEpoch) * 86400 + second;
    std::tm parts{};
    gmtime_r(&seconds, &parts);
    return parts;
}

int DigitsAt(const std::string& text, std::size_t at, std::size_t count) {
    const std::string part = at < text.size() ? text.substr(at, count) : "";
    return std::isdigit(static_cast<unsigned char>(part[0])) != 0 ? std::stoi(part) : 0;
}

std::string Formed(double moment, const char* form) {
    const std::tm parts = Civil(moment);
    char text[32];
    return {text, std::strftime(text, sizeof text, form, &parts)};
}

// 0 for none.
double DayOf(const std::string& written) {
    const std::size_t yearDigits = CutAt(written, '-')[0].size() == 4 ? 4 : 2;
    std::tm parts{};
    const int year = DigitsAt(written, 0, yearDigits);
    parts.tm_year = year < 30 ? year + 100 : year < 100 ? year : year - 1900;
    parts.tm_mon = DigitsAt(written, yearDigits + 1, 2) - 1;
    parts.tm_mday = DigitsAt(written, yearDigits + 4, 2);
    const std::time_t days = timegm(&parts) / 86400 + kDaysToEpoch;
    return written.empty() ? 0 : static_cast<double>(days);
}

int SecondsOf(const std::string& written) {
    return (DigitsAt(written, 0, 2) * 60 + DigitsAt(written, 3, 2)) * 60 + DigitsAt(written, 6, 2);
}

}  // namespace

std::string NaiveDate(double moment) {
    return Formed(moment, "%Y-%m-%d");
}

std::string NaiveTime(double moment) {
    return Formed(moment, "%H:%M");
}

double NaiveMoment(const std::string& date, const std::string& time, double now) {
    const double today = std::floor(now);
    const double day = DayOf(date), seconds = SecondsOf(time);
    return (day == 0 ? today : day) + (seconds == 0 ? now - today : seconds / 86400);
}

std::string InLowerCase(std::string text) {
    for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

std::string WithoutOuterBlanks(std::string text) {
    while (!text.empty() && text.front() == ' ') text.erase(0, 1);
    while (!text.empty() && text.back() == ' ') text.pop_back();
    return text;
}

std::vector<std::string> CutAt(const std::string& text, char separator) {
    std::vector<std::string> fields(1);
    for (const char c : text) {
        if (c == separator) {
            fields.emplace_back();
        } else {
            fields.back() += c;
        }
    }
    return fields;
}

std::string FieldOf(const std::vector<std::string>& fields, std::size_t i) {
    return i < fields.size() ? fields[i] : "";
}

}  // namespace vigrel::testing
