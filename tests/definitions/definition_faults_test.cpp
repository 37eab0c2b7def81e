// The editor's files with disks that fail: at each of their calls once, and from each call on until the end.

#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <set>
#include <string>

#include "categories/colour_rules.h"
#include "common/failure.h"
#include "definitions/station_definitions.h"
#include "schedule/calendar.h"
#include "schedule/definition_files.h"
#include "schedule/own_holidays.h"
#include "support/fake_clock.h"
#include "support/faulty_files.h"
#include "support/samples.h"

namespace vigrel::testing {
namespace {

constexpr const char* kReceivers = "C:\\App\\Receivers\\";
constexpr const char* kProfiles = "C:\\App\\Profiles\\";

// Contents of files by their paths, temporaries left out.
using cContents = std::map<std::string, std::string>;

cContents ContentsOf(const cFakeFiles& disk) {
    cContents contents;
    for (const char* folder : {kReceivers, kProfiles, "C:\\App\\"}) {
        for (const char* mask : {"*.dat", "*.sch", "*.cal", "*.txt"}) {
            for (const std::string& name : disk.ListFiles(folder, mask))
                contents[folder + name] = disk.ReadFile(folder + name);
        }
    }
    return contents;
}

// A new file has the same number in every life.
class cOneNumber : public cRandom {
  public:
    void Seed(double) override {}
    double Next() override { return 0.5; }
};

// A session of the editor: files of old and new versions are opened, changed, saved, added and removed.
class cEditorLife {
  public:
    cEditorLife(eFault fault, int first, int count) {
        m_Disk.Put("C:\\App\\VigrelReceiver.INI", "[General]\r\nLanguage=044\r\n");
        m_Disk.Put("C:\\App\\Vigrel_Texts.044", "0=English\r\n");
        for (const char* folder : {"LogFiles", "Receivers", "Profiles"})
            m_Disk.PutFolder(std::string("C:\\App\\") + folder);
        m_Disk.Put(std::string(kReceivers) + "Receiver_0003.dat", Sample("receiver_version_3.dat"));
        m_Disk.Put(std::string(kReceivers) + "Receiver_0007.dat", Sample("receiver_version_5.dat"));
        m_Disk.Put(std::string(kProfiles) + "Profile_0004.dat", Sample("profile_version_4.dat"));
        m_Disk.Put(std::string(kProfiles) + "Profile_0012.dat", Sample("profile_version_5.dat"));
        m_Disk.Put("C:\\App\\Plan.sch", Sample("schedule.dat"));
        m_Disk.Put("C:\\App\\Plan.cal", Sample("calendar.dat"));
        m_Disk.Put("C:\\App\\ColourRules.txt", "# ours\r\nP* | 5 | * | 255,255,255 | 200,0,0 | 15\r\n");
        m_Disk.Put("C:\\App\\OwnHolidays.txt", "# ours\r\n12-27 | Inventory\r\n");
        m_Begin = ContentsOf(m_Disk);
        Note();
        m_Files.m_Fault = fault;
        m_Files.m_First = first;
        m_Files.m_Count = count;
    }

    void Live() {
        cStationDefinitions station(m_Files, m_Clock, m_Random, m_Texts, m_Ini);
        station.OpenReceivers();
        Note();
        EditReceivers(station);
        EditProfiles(station);
        EditFiles();
    }

    cFakeFiles m_Disk;
    cContents m_Begin;
    // All that the disk held at some moment of a life, by folder.
    std::map<std::string, std::set<std::string>> m_Seen;
    std::map<std::string, std::string> m_Saved;  // what a save that did not fail has written, by path
    int Calls() const { return m_Files.m_Calls; }

    static std::string FolderOf(const std::string& path) { return path.substr(0, path.rfind('\\')); }

  private:
    void Note() {
        for (const auto& [path, content] : ContentsOf(m_Disk)) m_Seen[FolderOf(path)].insert(content);
    }
    void NoteSave(bool saved, const std::string& path) {
        Note();
        if (saved) m_Saved[path] = m_Disk.ReadFile(path);
    }
    static std::string Digits(std::int16_t identity) {
        const std::string digits = "0000" + std::to_string(identity);
        return digits.substr(digits.size() - 4);
    }
    static std::string Path(const cReceiver& receiver) {
        return std::string(kReceivers) + "Receiver_" + Digits(receiver.m_DiskIdentity) + ".dat";
    }
    static std::string Path(const cProfile& profile) {
        return std::string(kProfiles) + "Profile_" + Digits(profile.m_DiskIdentity) + ".dat";
    }
    void EditReceivers(cStationDefinitions& station) {
        for (std::size_t i = 0; i < station.Receivers().Count(); ++i) {
            cReceiver& receiver = station.Receivers().At(i);
            receiver.m_ReceiverName = "Changed";
            const bool saved = receiver.SaveToDisk();
            NoteSave(saved, Path(receiver));
        }
        cReceiver added(station.Services());
        added.m_ReceiverName = "New";
        const bool saved = added.SaveToDisk();
        NoteSave(saved, saved ? Path(added) : "");
    }
    void EditProfiles(cStationDefinitions& station) {
        station.OpenProfiles();
        Note();
        for (std::size_t i = 0; i < station.Profiles().Count(); ++i) {
            cProfile& profile = station.Profiles().At(i);
            profile.SetName("Changed");
            const bool saved = profile.SaveToDisk();
            NoteSave(saved, Path(profile));
        }
    }
    void EditFiles() {
        cTimeSchedule schedule;
        schedule.SetDefaultPeriod();
        const bool scheduleSaved =
            SkipFailure([&] { SaveScheduleFile(m_Files, "C:\\App\\Plan.sch", schedule); });
        NoteSave(scheduleSaved, "C:\\App\\Plan.sch");
        EditCalendar();
        cColourRule rule;
        rule.m_TagFilter = rule.m_CategoryFilter = rule.m_AreaFilter = "*";
        rule.m_ForeColor = rule.m_BackColor = "1,1,1";
        EditList<cColourRules>("C:\\App\\ColourRules.txt",
                               [&](auto& rules) { rules.m_Rules.push_back(rule); });
        cOwnHoliday holiday;
        holiday.m_First = "12-24";
        holiday.m_Name = "Closed";
        EditList<cOwnHolidays>("C:\\App\\OwnHolidays.txt",
                               [&](auto& own) { own.m_Holidays.push_back(holiday); });
    }
    void EditCalendar() {
        const std::string path = "C:\\App\\Plan.cal";
        cCalendar calendar(
            {m_Files, m_Clock, m_Forms, m_Holidays, [](std::int32_t) { return std::string(); }});
        if (!SkipFailure([&] { LoadCalendarFile(m_Files, path, calendar); })) return;
        calendar.SetDayType(100, 3);
        const bool saved = SkipFailure([&] { calendar.SaveToDisk(path); });
        NoteSave(saved, path);
    }
    // A list that could not be read, which its one problem on line 0 says, is not saved.
    template <class List, class Change>
    void EditList(const std::string& path, const Change& change) {
        List list;
        const auto problems = list.Load(m_Files, path);
        if (!problems.empty() && problems[0].line == 0) return;
        change(list);
        const bool saved = SkipFailure([&] { list.Save(m_Files, path); });
        NoteSave(saved, path);
    }

    cFaultyFiles m_Files{m_Disk};
    cFakeClock m_Clock;
    cLocaleForms m_Forms;
    cHolidays m_Holidays;
    cOneNumber m_Random;
    cIni m_Ini{m_Files, "C:\\App\\"};
    cTexts m_Texts{m_Files, m_Ini};
};

class DefinitionFaults : public ::testing::TestWithParam<eFault> {
  protected:
    DefinitionFaults() { m_Flawless.Live(); }
    // Nothing is on disk but what an undisturbed life has had there, nothing is missing, and what was saved
    // stays, power cut included.
    void ExpectWhole(const cEditorLife& life) {
        cFakeFiles cut = life.m_Disk;
        cut.Crash();
        for (const cFakeFiles* disk : {&life.m_Disk, static_cast<const cFakeFiles*>(&cut)}) {
            const cContents contents = ContentsOf(*disk);
            for (const auto& [path, content] : contents) {
                const std::string folder = cEditorLife::FolderOf(path);
                EXPECT_TRUE(m_Flawless.m_Seen[folder].contains(content)) << path << " is damaged";
            }
            for (const auto& [path, content] : life.m_Begin) EXPECT_TRUE(contents.contains(path)) << path;
            for (const auto& [path, content] : life.m_Saved) {
                const auto found = contents.find(path);
                ASSERT_NE(found, contents.end()) << path;
                EXPECT_EQ(found->second, content) << path;
            }
        }
    }
    void LiveWithFaultAtEveryCall(int count) {
        for (int call = 0; call < m_Flawless.Calls() && !HasFailure(); ++call) {
            SCOPED_TRACE("from call " + std::to_string(call));
            cEditorLife life(GetParam(), call, count);
            life.Live();
            ExpectWhole(life);
        }
    }
    cEditorLife m_Flawless{eFault::InputOutput, 0, 0};
};

TEST(FlawlessEditor, SavesWhatItChanges) {
    cEditorLife life(eFault::InputOutput, 0, 0);
    life.Live();
    EXPECT_EQ(life.m_Saved.size(), 9u);
    EXPECT_GT(life.Calls(), 50);
}

TEST_P(DefinitionFaults, OnceAtAnyCallDamageNoFile) {
    LiveWithFaultAtEveryCall(1);
}

TEST_P(DefinitionFaults, FromAnyCallOnDamageNoFile) {
    LiveWithFaultAtEveryCall(std::numeric_limits<int>::max());
}

INSTANTIATE_TEST_SUITE_P(Any, DefinitionFaults,
                         ::testing::Values(eFault::InputOutput, eFault::DiskFull, eFault::ShortWrite,
                                           eFault::TooManyFiles, eFault::Permission, eFault::FailingSync),
                         [](const auto& fault) { return NameOf(fault.param); });

}  // namespace
}  // namespace vigrel::testing
