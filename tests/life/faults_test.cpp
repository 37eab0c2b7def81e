// The station's life with files that fail: at each of its calls once, and from each call on until the disk is
// in order again.

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <optional>

#include "life/station_life.h"

namespace vigrel::testing {
namespace {

// How a life went.
struct cStory {
    std::vector<cRows> listed;  // after each step
    struct cEnd {
        cRows before, behind, behindPowerCut;
        std::optional<cRows> onDisk;    // in front of the end, where the fault has passed
        std::vector<std::string> owed;  // answered, and within every limit
        bool metFault = false;
    };
    std::vector<cEnd> ends;
    std::vector<std::string> failures;  // that ended the program
    int refusedStarts = 0;
    bool listedOtherwise = false;  // a start could not list the alarms, and said so
    int calls = 0;
    std::string configuration;
};

// As many calls as a disk may refuse before it is in order again.
constexpr int kPassing = 7;

// A fault that doesn't pass is over when the operator ends the station.
class cFaultyLife {
  public:
    cFaultyLife(eFault fault, int first, int count) : m_IsPassing(count <= kPassing) {
        m_Life.m_Faulty.m_Fault = fault;
        m_Life.m_Faulty.m_First = first;
        m_Life.m_Faulty.m_Count = count;
    }
    cStory Live() {
        for (const cStationLife::cStep& step : m_Life.Steps()) {
            Note(step);
            if (step.name == "end") {
                End(step);
            } else {
                m_Life.Take(step);
            }
            if (m_IsPassing || m_Life.m_Faulty.m_Failed == 0) m_Sure = m_Life.Answered().size();
            m_Story.listed.push_back(m_Life.Rows());
        }
        m_Story.failures = m_Life.m_Failures;
        m_Story.refusedStarts = m_Life.m_RefusedStarts;
        m_Story.calls = m_Life.m_Faulty.m_Calls;
        m_Story.listedOtherwise = m_Life.m_Faulty.m_Met.contains("list C:\\App\\Alarms\\");
        m_Story.configuration = m_Life.m_Disk.ReadFile("C:\\App\\VigrelReceiver.INI");
        return m_Story;
    }

  private:
    void End(const cStationLife::cStep& step) {
        cFaultyFiles& files = m_Life.m_Faulty;
        if (files.m_Failed > 0) files.m_Count = 0;
        const int failedBefore = files.m_Failed;
        cStory::cEnd end;
        end.before = m_Life.Rows();
        if (m_IsPassing && m_IsOver) end.onDisk = NextStart(m_Life.m_Disk, m_Life.Now());
        end.owed = Owed();
        m_Life.Take(step);
        end.metFault = files.m_Failed > failedBefore;
        end.behind = NextStart(m_Life.m_Disk, m_Life.Now());
        cFakeFiles cut = m_Life.m_Disk;
        cut.Crash();
        end.behindPowerCut = NextStart(cut, m_Life.Now());
        m_Story.ends.push_back(end);
    }

    void Note(const cStationLife::cStep& step) {
        if (step.name == "a day passes") m_Old = m_Life.Answered().size();
        if (step.name == "tick") m_IsOver = m_Life.m_Faulty.m_Calls >= m_Life.m_Faulty.m_First + kPassing;
    }
    // Of the last three, which neither their number nor their age removes, those that were answered while no
    // more befell the station than it outlives.
    std::vector<std::string> Owed() const {
        const std::vector<std::string>& answered = m_Life.Answered();
        const std::size_t first =
            std::max(m_Old, answered.size() - std::min<std::size_t>(answered.size(), 3));
        if (first >= m_Sure) return {};
        return {answered.begin() + static_cast<std::ptrdiff_t>(first),
                answered.begin() + static_cast<std::ptrdiff_t>(m_Sure)};
    }

    bool m_IsPassing;  // the fault ends while the station runs
    cStationLife m_Life;
    // Of the answered alarms: those that must be safe, and those that can be too old at an end.
    std::size_t m_Sure = 0, m_Old = 0;
    bool m_IsOver = false;  // when the station last looked after alarms that wait
    cStory m_Story;
};

const cStory& FlawlessStory() {
    static const cStory story = cFaultyLife(eFault::InputOutput, 0, 0).Live();
    return story;
}

// Whether the alarm with this text is listed.
bool Shows(const cRows& rows, const std::string& text) {
    return std::any_of(rows.begin(), rows.end(), [&](const std::string& row) {
        return row.find("|" + text + "|") != std::string::npos;
    });
}

bool Has(const cRows& rows, const std::string& row) {
    return std::find(rows.begin(), rows.end(), row) != rows.end();
}

// A start that can't read what it needs, and the cleaning of logs, end the program; nothing else may.
void ExpectKnownFailures(const cStory& story) {
    for (const std::string& failure : story.failures) {
        const bool known = failure.starts_with("C:\\App\\Vigrel") ||
                           failure.starts_with("C:\\App\\Alarms\\A") ||
                           failure.starts_with("C:\\App\\LogFiles\\");
        EXPECT_TRUE(known) << failure;
    }
}

void ExpectTheConfigurationWhole(const cStory& story) {
    for (const char* line : {"Language=046\r\n", "MaxEvents=6\r\n", "[Senders]\r\nPLC1=1\r\nPLC2=0\r\n"})
        EXPECT_NE(story.configuration.find(line), std::string::npos) << story.configuration;
}

// Whatever befell the station, what it lists when it is told to end is what the next one finds. Where the
// disk fails in the end itself, and for good, the last acknowledgements can be lost and no alarm.
void ExpectNothingLost(const cStory& story, bool once) {
    for (const cStory::cEnd& end : story.ends) {
        if (end.before.empty()) continue;
        const bool marksToo = once || !end.metFault;
        const cRows before = marksToo ? end.before : WithoutMarks(end.before);
        for (cRows behind : {end.behind, end.behindPowerCut}) {
            if (!marksToo) behind = WithoutMarks(behind);
            // A station that could not list its alarms has others besides.
            if (story.listedOtherwise)
                std::erase_if(behind, [&](const std::string& row) { return !Has(before, row); });
            EXPECT_EQ(Listed(behind), Listed(before));
        }
    }
}

// What was answered is there for the next start, whether the station was told to end or not.
void ExpectWhatIsOwed(const cStory& story) {
    for (const cStory::cEnd& end : story.ends) {
        for (const std::string& text : end.owed) {
            EXPECT_TRUE(Shows(end.behind, text)) << text << "\n" << Listed(end.behind);
            EXPECT_TRUE(Shows(end.behindPowerCut, text)) << text << "\n" << Listed(end.behindPowerCut);
            if (end.onDisk) {
                EXPECT_TRUE(Shows(*end.onDisk, text)) << text << "\n" << Listed(*end.onDisk);
            }
        }
    }
}

class Faults : public ::testing::TestWithParam<eFault> {
  protected:
    void LiveWithFaultAtEveryCall(int count) {
        const bool once = count == 1;
        for (int call = 0; call < FlawlessStory().calls && !HasFailure(); ++call) {
            SCOPED_TRACE("from call " + std::to_string(call));
            const cStory story = cFaultyLife(GetParam(), call, count).Live();
            ExpectKnownFailures(story);
            ExpectTheConfigurationWhole(story);
            ExpectNothingLost(story, once);
            ExpectWhatIsOwed(story);
            // A station that was not started again shows at every step what it would show on a good disk.
            const bool goesOn = story.failures.empty() && story.refusedStarts == 0 && !story.listedOtherwise;
            if (!goesOn || story.ends[0].metFault) continue;
            for (std::size_t step = 0; step < story.listed.size(); ++step)
                ASSERT_EQ(Listed(story.listed[step]), Listed(FlawlessStory().listed[step]))
                    << "step " << step;
        }
    }
};

TEST(FlawlessLife, EndsWithWhatItListed) {
    const cStory& story = FlawlessStory();
    EXPECT_TRUE(story.failures.empty());
    EXPECT_EQ(story.refusedStarts, 0);
    ASSERT_EQ(story.ends.size(), 2u);
    EXPECT_EQ(story.ends[1].before.size(), 6u);
    for (const cStory::cEnd& end : story.ends) EXPECT_EQ(end.owed.size(), 3u);
    ExpectWhatIsOwed(story);
    ExpectNothingLost(story, true);
    ExpectTheConfigurationWhole(story);
}

TEST_P(Faults, OnceAtAnyCallLoseNothing) {
    LiveWithFaultAtEveryCall(1);
}

TEST_P(Faults, AtAnySevenCallsLoseNothing) {
    LiveWithFaultAtEveryCall(kPassing);
}

TEST_P(Faults, FromAnyCallUntilTheEndLoseNothing) {
    LiveWithFaultAtEveryCall(std::numeric_limits<int>::max());
}

INSTANTIATE_TEST_SUITE_P(Any, Faults,
                         ::testing::Values(eFault::InputOutput, eFault::DiskFull, eFault::ShortWrite,
                                           eFault::TooManyFiles, eFault::Permission, eFault::FailingSync),
                         [](const auto& fault) { return NameOf(fault.param); });

}  // namespace
}  // namespace vigrel::testing
