#include "events/pending_saves.h"

#include <gtest/gtest.h>

#include "common/failure.h"
#include "support/fake_station.h"

namespace vigrel::testing {
namespace {

// A disk whose syncs fail from the given wait on: of the bytes (0), of the names (1). The file whose name is
// given is written half.
class cRefusingDisk : public cFakeFiles {
  public:
    int m_WaitsWell = 0;
    std::string m_Renamed, m_Half;
    void WriteFile(std::string_view path, std::string_view bytes, bool sync) override {
        const bool half = !m_Half.empty() && path.find(m_Half) != std::string_view::npos;
        cFakeFiles::WriteFile(path, half ? bytes.substr(0, 1) : bytes, sync);
        if (half) throw cFailure(eFailure::InputOutput, "no room");
    }
    std::unique_ptr<cPendingSync> StartSync(std::string_view folder) override {
        if (m_WaitsWell-- > 0) return cFakeFiles::StartSync(folder);
        return std::make_unique<cRefusal>();
    }
    void RenameFile(std::string_view from, std::string_view to) override {
        m_Renamed += std::string(to) + "\n";
        cFakeFiles::RenameFile(from, to);
    }

  private:
    class cRefusal : public cPendingSync {
      public:
        bool Done() const override { return true; }
        bool Wait() override { return false; }
    };
};

// The saves of two alarms with the files A0000001.alm and A0000002.alm on such a disk.
struct cSavesOnRefusingDisk {
    explicit cSavesOnRefusingDisk(int waitsWell, const std::string& half = "") {
        disk.m_WaitsWell = waitsWell;
        disk.m_Half = half;
        std::vector<AlarmPtr> alarms;
        for (const std::int32_t id : {1, 2}) {
            disk.Put("C:\\App\\A000000" + std::to_string(id) + ".alm", "old");
            alarms.push_back(station.MakeAlarm());
            alarms.back()->m_FileId = id;
        }
        saves.Add(alarms);
        for (int turn = 0; turn < 10; ++turn) saves.Turn();
    }
    cFakeStation station;
    cRefusingDisk disk;
    std::vector<std::string> failed;
    cPendingSaves saves{{disk, station.clock, [](cVigrelRecieverAlarm&) { return std::string("new"); },
                         [](const cVigrelRecieverAlarm& alarm) {
                             return "C:\\App\\A000000" + std::to_string(alarm.m_FileId) + ".alm";
                         },
                         [this](const AlarmPtr& alarm, const std::string& reason) {
                             failed.push_back(std::to_string(alarm->m_FileId) + ": " + reason);
                         }}};
};

// The store gives the number of an alarm that it removed to another one at once.
TEST(PendingSaves, ARemovedAlarmLeavesTheFileOfItsNumbersNextOwnerAloneInTheSameBatch) {
    for (const bool removedFirst : {true, false}) {
        cFakeStation station;
        std::vector<std::string> failed;
        cPendingSaves saves{
            {station.files, station.clock, [](const cVigrelRecieverAlarm& alarm) { return alarm.m_Sender; },
             [](const cVigrelRecieverAlarm&) { return "C:\\App\\A0000001.alm"; },
             [&](const AlarmPtr& alarm, const std::string&) { failed.push_back(alarm->m_Sender); }}};
        const AlarmPtr removed = station.MakeAlarm(), owner = station.MakeAlarm();
        removed->m_Sender = "removed";
        removed->m_Removed = true;
        owner->m_Sender = "owner";
        saves.Add(removedFirst ? std::vector{removed, owner} : std::vector{owner, removed});
        for (int turn = 0; turn < 10; ++turn) saves.Turn();
        EXPECT_TRUE(failed.empty()) << removedFirst;
        EXPECT_EQ(station.files.ReadFile("C:\\App\\A0000001.alm"), "owner") << removedFirst;
    }
}

const std::vector<std::string> kBothNotTaken{"1: the disk has not taken what was written",
                                             "2: the disk has not taken what was written"};

TEST(PendingSaves, NoNameComesToStandForBytesThatTheDiskRefused) {
    const cSavesOnRefusingDisk saves(0);
    EXPECT_TRUE(saves.saves.Empty());
    EXPECT_EQ(saves.failed, kBothNotTaken);
    EXPECT_EQ(saves.disk.m_Renamed, "");
    EXPECT_EQ(saves.disk.AllPaths(),
              (std::vector<std::string>{"C:\\App\\A0000001.alm", "C:\\App\\A0000002.alm"}));
    EXPECT_EQ(saves.disk.ReadFile("C:\\App\\A0000002.alm"), "old");
}

TEST(PendingSaves, NoNameComesToStandForWhatWasWrittenHalf) {
    const cSavesOnRefusingDisk saves(2, "A0000001");
    EXPECT_TRUE(saves.saves.Empty());
    EXPECT_EQ(saves.failed, std::vector<std::string>{"1: no room"});
    EXPECT_EQ(saves.disk.m_Renamed, "C:\\App\\A0000002.alm\n");
    EXPECT_EQ(saves.disk.ReadFile("C:\\App\\A0000001.alm"), "old");
    EXPECT_EQ(saves.disk.ReadFile("C:\\App\\A0000002.alm"), "new");
    EXPECT_EQ(saves.disk.AllPaths().size(), 2u);
}

TEST(PendingSaves, WhenTheDiskRefusesTheNamesAllAreToldToHaveFailed) {
    const cSavesOnRefusingDisk saves(1);
    EXPECT_TRUE(saves.saves.Empty());
    EXPECT_EQ(saves.failed, kBothNotTaken);
    EXPECT_EQ(saves.disk.m_Renamed, "C:\\App\\A0000001.alm\nC:\\App\\A0000002.alm\n");
}

TEST(PendingSaves, WhatTheDiskTookHasNotFailed) {
    const cSavesOnRefusingDisk saves(2);
    EXPECT_TRUE(saves.saves.Empty());
    EXPECT_TRUE(saves.failed.empty());
    EXPECT_EQ(saves.disk.ReadFile("C:\\App\\A0000001.alm"), "new");
}

}  // namespace
}  // namespace vigrel::testing
