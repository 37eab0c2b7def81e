#include "campaigns/monkey/shared_files.h"

#include <algorithm>
#include <map>
#include <stdexcept>
#include <utility>

#include "common/binary.h"
#include "common/numbers.h"
#include "schedule/definition_files.h"
#include "support/samples.h"

namespace vigrel::campaign {
namespace {

// Definitions beyond the numbers that new ones get here.
constexpr int kFirst = 5000, kDefinitions = 6;

std::string OnDisk(const testing::cFakeFiles& files, const std::string& path) {
    return files.FileExists(path) ? files.ReadFile(path) : std::string();
}

// "<17>" of a content that carries the seventeenth sign.
int SignOfText(const std::string& bytes) {
    const std::size_t begin = bytes.find('<');
    return begin == std::string::npos ? 0 : ToInt32(Val(bytes.substr(begin + 1)));
}

std::string TextOfSign(int sign) {
    return "<" + std::to_string(sign) + ">";
}

// --- files of one page

std::string Bytes(const std::vector<int>& numbers) {
    cBinaryWriter bytes;
    for (const int number : numbers) bytes.Int16(static_cast<std::int16_t>(number));
    return bytes.Bytes();
}

// A day type that is not in use has no row, and its periods no place in which they could be changed.
constexpr int kUnusedDayType = 20, kMidnight = 1440;

// Where the day type begins in a schedule's file.
std::size_t PlaceOfUnused(const std::string& bytes) {
    cBinaryReader file(bytes);
    for (int dayType = 0; dayType < kUnusedDayType; ++dayType) {
        file.Skip(4);
        file.Skip(static_cast<std::size_t>(4 * file.Int16()) + 2);
    }
    return file.Position();
}

std::string ScheduleWith(const std::string& bytes, int sign) {
    std::string whole = FaultOfScheduleFile(bytes) ? testing::Sample("schedule.dat") : bytes;
    const std::size_t begin = PlaceOfUnused(whole);
    cBinaryReader file(whole);
    file.Seek(begin + 4);
    const auto periods = static_cast<std::size_t>(file.Int16());
    return whole.replace(begin + 4, 2 + 4 * periods, Bytes({1, sign, kMidnight}));
}

int SignOfSchedule(const std::string& bytes) {
    if (FaultOfScheduleFile(bytes)) return 0;
    cBinaryReader file(bytes);
    file.Seek(PlaceOfUnused(bytes) + 4);
    return file.Int16() == 0 ? 0 : file.Int16();
}

// Special day types are digits, on days of every year: what is painted by hand is in a few of them.
constexpr int kFirstDigit = 7, kDigits = 10, kYears = 40, kDaysApart = kCalendarDays / kYears;

std::string DigitsOf(int sign) {
    return Bytes({kFirstDigit + sign / kDigits / kDigits, kFirstDigit + sign / kDigits % kDigits,
                  kFirstDigit + sign % kDigits});
}

int SignOfDigits(const std::string& digits) {
    cBinaryReader file(digits);
    int sign = 0;
    for (int digit = 0; digit < 3; ++digit) sign = sign * kDigits + file.Int16() - kFirstDigit;
    return sign;
}

std::string CalendarWith(const std::string& bytes, int sign) {
    std::string whole = FaultOfCalendarFile(bytes) ? std::string(kCalendarFileSize, '\0') : bytes;
    const std::string digits = DigitsOf(sign);
    for (std::size_t year = 0; year < kYears; ++year)
        whole.replace(2 * kDaysApart * year, digits.size(), digits);
    return whole;
}

// That of most years.
int SignOfCalendar(const std::string& bytes) {
    if (FaultOfCalendarFile(bytes)) return 0;
    std::map<std::string, int> found;
    for (std::size_t year = 0; year < kYears; ++year)
        ++found[bytes.substr(2 * kDaysApart * year, DigitsOf(0).size())];
    const auto most = std::max_element(found.begin(), found.end(),
                                       [](const auto& a, const auto& b) { return a.second < b.second; });
    return std::max(SignOfDigits(most->first), 0);
}

// A remark among the lines.
std::string LinesWith(const std::string& bytes, int sign) {
    const std::size_t begin = bytes.find("# <"), end = bytes.find('\n', begin);
    std::string others = bytes;
    if (end != std::string::npos) others.erase(begin, end + 1 - begin);
    return "# " + TextOfSign(sign) + "\r\n" + others;
}

using With = std::string (*)(const std::string& bytes, int sign);

cSharedFile FileOfPage(testing::cFakeFiles& files, const std::string& name, With with,
                       int (*signOf)(const std::string&), const std::string& damaged) {
    const std::string path = "/app/" + name;
    return {
        path, [&files, path, with](int sign) { files.Put(path, with(OnDisk(files, path), sign)); }, signOf,
        [name](const QString& question) { return question.endsWith(": " + QString::fromStdString(name)); },
        damaged};
}

// --- definitions

// Whether a definition with that number is held under the name that the question has.
template <class Folder>
bool IsNamed(Folder& folder, int number, const QString& question) {
    for (std::size_t i = 0; i < folder.Count(); ++i) {
        if (folder.At(i).m_DiskIdentity != number) continue;
        const QString name = ToQString(NameOf(folder.At(i)));
        return question.endsWith(": " + name) || question.contains("\"" + name + "\"");
    }
    return false;
}

template <class Definition, class SetSign>
void WriteDefinition(cStationDefinitions& theirs, testing::cFakeFiles& files, const std::string& path,
                     int number, const std::string& sample, SetSign setSign) {
    Definition definition(theirs.Services());
    const bool isNew = OnDisk(files, path).size() < 3;
    if (isNew) files.Put(path, sample);
    if (!definition.LoadFromDisk(static_cast<std::int16_t>(number)))
        throw std::runtime_error("the others can't read " + path);
    // Questions tell it from the others by that.
    if (isNew) Rename(definition, "Theirs " + std::to_string(number));
    setSign(definition);
    if (!definition.SaveToDisk()) throw std::runtime_error("the others can't write " + path);
}

cSharedFile SharedReceiver(testing::cEditorBench& bench, cStationDefinitions& theirs, int number) {
    const std::string path = "/app/Receivers/Receiver_" + std::to_string(number) + ".dat";
    return {path,
            [&bench, &theirs, path, number](int sign) {
                WriteDefinition<cReceiver>(
                    theirs, bench.m_Files, path, number, testing::Sample("receiver_version_5.dat"),
                    [sign](cReceiver& receiver) { receiver.m_ParallellNumbers = TextOfSign(sign); });
            },
            SignOfText,
            [&bench, number](const QString& question) {
                return IsNamed(bench.m_Station.Receivers(), number, question);
            },
            "??"};
}

cSharedFile SharedProfile(testing::cEditorBench& bench, cStationDefinitions& theirs, int number) {
    const std::string path = "/app/Profiles/Profile_" + std::to_string(number) + ".dat";
    return {path,
            [&bench, &theirs, path, number](int sign) {
                WriteDefinition<cProfile>(
                    theirs, bench.m_Files, path, number, testing::Sample("profile_version_5.dat"),
                    [sign](cProfile& profile) { profile.SetCondition(5, TextOfSign(sign)); });
            },
            SignOfText,
            [&bench, number](const QString& question) {
                return IsNamed(bench.m_Station.Profiles(), number, question);
            },
            "??"};
}

}  // namespace

std::vector<cSharedFile> SharedFilesOf(const std::string& page, testing::cEditorBench& bench,
                                       cStationDefinitions& theirs) {
    testing::cFakeFiles& files = bench.m_Files;
    const cSharedFile calendar = FileOfPage(files, "Calendar.cal", CalendarWith, SignOfCalendar, "??");
    if (page == "schedule") return {FileOfPage(files, "a.sch", ScheduleWith, SignOfSchedule, "??")};
    if (page == "calendar") return {calendar};
    if (page == "colours") return {FileOfPage(files, "ColourRules.txt", LinesWith, SignOfText, "")};
    if (page == "holidays") return {FileOfPage(files, "OwnHolidays.txt", LinesWith, SignOfText, "")};
    std::vector<cSharedFile> shared(kDefinitions);
    int number = kFirst;
    for (cSharedFile& each : shared) {
        each = (page == "profiles" ? SharedProfile : SharedReceiver)(bench, theirs, number++);
    }
    // A profile shows a calendar of the station, which is saved with it.
    if (page == "profiles") shared.push_back(calendar);
    return shared;
}

QString SignFieldOf(const std::string& page) {
    if (page == "receivers") return "Text_ParallellNumbers";
    return page == "profiles" ? "Text_Condition_5" : "";
}

}  // namespace vigrel::campaign
