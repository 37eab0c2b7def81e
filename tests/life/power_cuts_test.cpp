// The station's life cut short at each of its calls, by a disk that has taken any part of what was not
// synced.

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

#include "life/station_life.h"

namespace vigrel::testing {
namespace {

using eFate = cFakeFiles::eFate;
using cFates = std::vector<eFate>;
// Two alarms of the station's own can read alike.
using cTexts = std::multiset<std::string>;

constexpr const char* kIni = "C:\\App\\VigrelReceiver.INI";
// The state icon of an acknowledged alarm, at the end of its row.
constexpr const char* kMark = "#27|";

bool IsMarked(const std::string& row) {
    return row.ends_with(kMark);
}

cTexts TextsOf(const cRows& rows) {
    const cRows texts = WithoutMarks(rows);
    return {texts.begin(), texts.end()};
}

cTexts Marked(const cRows& rows) {
    cRows marked;
    std::copy_if(rows.begin(), rows.end(), std::back_inserter(marked), IsMarked);
    return TextsOf(marked);
}

cTexts Common(const cTexts& a, const cTexts& b) {
    cTexts common;
    std::set_intersection(a.begin(), a.end(), b.begin(), b.end(), std::inserter(common, common.end()));
    return common;
}

cTexts Either(const cTexts& a, const cTexts& b) {
    cTexts either;
    std::set_union(a.begin(), a.end(), b.begin(), b.end(), std::inserter(either, either.end()));
    return either;
}

void ExpectWithin(const cTexts& least, const cTexts& texts, const cTexts& most, const char* what) {
    const bool within = std::includes(texts.begin(), texts.end(), least.begin(), least.end()) &&
                        std::includes(most.begin(), most.end(), texts.begin(), texts.end());
    const auto listed = [](const cTexts& some) { return Listed({some.begin(), some.end()}); };
    EXPECT_TRUE(within) << what << "\nat least\n"
                        << listed(least) << "found\n"
                        << listed(texts) << "at most\n"
                        << listed(most);
}

// What a start behind a power cut must find, and what it may.
struct cPromise {
    cTexts stored, marked;         // for certain
    cTexts mayStore, mayBeMarked;  // at most
    std::set<std::string> configurations;
};

// The disk in front of one of its calls.
struct cCut {
    cFakeFiles disk;
    cFakeClock now;
    std::size_t step = 0;
    std::string call;
};

// A life as it was recorded.
class cRecordedLife {
  public:
    explicit cRecordedLife(int days) {
        cStationLife life(days);
        Note(life);
        for (const cStationLife::cStep& step : life.Steps()) {
            std::set<std::string>& configurations = m_Configurations.emplace_back();
            life.m_Disk.m_OnCall = [&](std::string_view operation, std::string_view path) {
                configurations.insert(life.m_Disk.ReadFile(kIni));
                m_Cuts.push_back({life.m_Disk, life.Now(), m_Listed.size() - 1,
                                  std::string(operation) + " " + std::string(path)});
                m_Cuts.back().disk.m_OnCall = nullptr;
            };
            life.Take(step);
            life.m_Disk.m_OnCall = nullptr;
            configurations.insert(life.m_Disk.ReadFile(kIni));
            Note(life);
            m_StepNames.push_back(step.name);
        }
    }
    const std::vector<cCut>& Cuts() const { return m_Cuts; }
    std::string NameOf(const cCut& cut) const { return m_StepNames[cut.step] + ", " + cut.call; }
    // In a step both what was before it and what is behind it can be on the disk.
    cPromise At(const cCut& cut) const {
        const cRows& before = m_Listed[cut.step];
        const cRows& behind = m_Listed[cut.step + 1];
        cPromise promise;
        promise.stored = Common(TextsOf(before), TextsOf(behind));
        promise.mayStore = Either(TextsOf(before), TextsOf(behind));
        promise.marked = Common(m_DurablyMarked[cut.step], TextsOf(behind));
        promise.mayBeMarked = Either(Marked(before), Marked(behind));
        promise.configurations = m_Configurations[cut.step];
        return promise;
    }

  private:
    // Between two steps. A station that has ended has what it listed last.
    void Note(cStationLife& life) {
        m_Listed.push_back(life.Runs() || m_Listed.empty() ? life.Rows() : m_Listed.back());
        const bool waits = life.Runs() && life.Station().timerSave.Enabled();
        m_DurablyMarked.push_back(waits ? m_DurablyMarked.back() : Marked(m_Listed.back()));
    }

    std::vector<cRows> m_Listed;
    std::vector<cTexts> m_DurablyMarked;
    std::vector<std::string> m_StepNames;
    std::vector<cCut> m_Cuts;
    std::vector<std::set<std::string>> m_Configurations;  // in each step, and behind it
};

// All alike, each one alone, all but each one, and some at random.
std::vector<cFates> FatesToTry(std::size_t count, std::mt19937& draw) {
    std::vector<cFates> all;
    for (const eFate fate : {eFate::Lost, eFate::Kept, eFate::Torn, eFate::Zeroed})
        all.emplace_back(count, fate);
    for (std::size_t i = 0; i < count; ++i) {
        for (const auto& [one, others] : {std::pair{eFate::Kept, eFate::Lost},
                                          {eFate::Torn, eFate::Lost},
                                          {eFate::Zeroed, eFate::Lost},
                                          {eFate::Lost, eFate::Kept}}) {
            all.emplace_back(count, others)[i] = one;
        }
    }
    for (int random = 0; random < 8; ++random) {
        cFates& fates = all.emplace_back(count, eFate::Lost);
        for (eFate& fate : fates) fate = static_cast<eFate>(draw() % 4);
    }
    return all;
}

void ExpectKept(const cPromise& promise, const cFakeFiles& disk, const cFakeClock& now) {
    cStationLife next(disk, now);
    next.Begin();
    ASSERT_TRUE(next.Runs());
    ExpectWithin(promise.stored, TextsOf(next.Rows()), promise.mayStore, "stored");
    ExpectWithin(promise.marked, Marked(next.Rows()), promise.mayBeMarked, "acknowledged");
    EXPECT_TRUE(next.m_Disk.ListFiles("C:\\App\\Alarms\\", "*.$~").empty());
    EXPECT_TRUE(promise.configurations.contains(disk.ReadFile(kIni))) << disk.ReadFile(kIni);
}

class PowerCuts : public ::testing::TestWithParam<int> {};

TEST_P(PowerCuts, AtAnyCallLeaveEveryAnsweredAlarmWholeAndNothingElse) {
    const cRecordedLife life(GetParam());
    std::mt19937 draw(1);
    std::size_t starts = 0;
    for (const cCut& cut : life.Cuts()) {
        SCOPED_TRACE(life.NameOf(cut));
        const cPromise promise = life.At(cut);
        for (const cFates& fates : FatesToTry(cut.disk.UnsyncedCount(), draw)) {
            cFakeFiles left = cut.disk;
            left.Crash(fates);
            ExpectKept(promise, left, cut.now);
            ++starts;
            ASSERT_FALSE(HasFailure());
        }
    }
    EXPECT_GT(life.Cuts().size(), 200u);
    RecordProperty("cuts", static_cast<int>(life.Cuts().size()));
    RecordProperty("starts", static_cast<int>(starts));
}

// Where alarms go with age, what a cut left half would go as too old without a trace.
INSTANTIATE_TEST_SUITE_P(Days, PowerCuts, ::testing::Values(3, 0));

}  // namespace
}  // namespace vigrel::testing
