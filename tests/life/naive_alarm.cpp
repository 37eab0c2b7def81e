#include "life/naive_alarm.h"

#include <cctype>
#include <cmath>
#include <cstdio>
#include <ctime>

namespace vigrel::testing {
namespace {

// From 1899-12-30 to 1970-01-01.
constexpr std::time_t kDaysToEpoch = 25569;

std::tm Civil(double moment) {
    const std::time_t seconds =
        static_cast<std::time_t>(std::floor(moment * 86400 + 1e-4)) - kDaysToEpoch * 86400;
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

}  // namespace

std::string NaiveDate(double moment) {
    return Formed(moment, "%Y-%m-%d");
}

std::string NaiveDate(const std::string& written, double today) {
    const std::size_t yearDigits = written.find('-') == 4 || written.size() == 4 ? 4 : 2;
    std::tm parts{};
    const int year = DigitsAt(written, 0, yearDigits);
    parts.tm_year = year < 30 ? year + 100 : year < 100 ? year : year - 1900;
    parts.tm_mon = DigitsAt(written, yearDigits + 1, 2) - 1;
    parts.tm_mday = DigitsAt(written, yearDigits + 4, 2);
    const std::time_t days = timegm(&parts) / 86400 + kDaysToEpoch;
    return NaiveDate(written.empty() || days == 0 ? today : static_cast<double>(days));
}

std::string NaiveTime(double moment) {
    return Formed(moment, "%H:%M");
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
