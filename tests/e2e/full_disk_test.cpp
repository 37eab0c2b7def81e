// A disk that takes no more alarms, as the whole program meets it: here any file above 8,000 bytes is
// refused.

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>

#include <chrono>
#include <thread>

#include "e2e/station.h"

namespace vigrel::testing {
namespace {

// The program inherits that a refused write is an error and no signal.
class FullDisk : public ::testing::Test {
  protected:
    FullDisk() { signal(SIGXFSZ, SIG_IGN); }
    ~FullDisk() override { signal(SIGXFSZ, SIG_DFL); }
    void Limit(rlim_t bytes) const {
        const rlimit limit{bytes, RLIM_INFINITY};
        ASSERT_EQ(prlimit(station.Process(), RLIMIT_FSIZE, &limit, nullptr), 0);
    }
    // Whether standard error tells a text within 30 s; the station tries again every ten.
    bool Tells(const std::string& text) const {
        for (int i = 0; i < 300; ++i) {
            if (station.StandardError().find(text) != std::string::npos) return true;
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
        }
        return false;
    }
    cStation station;
};

TEST_F(FullDisk, IsToldWhileAlarmsAreNotOnDiskAndNothingIsLost) {
    station.ExpectStandardError();
    ASSERT_TRUE(station.Start()) << station.StandardError();
    EXPECT_EQ(station.Send({"--t0", "before"}).exitCode, 0);
    Limit(8000);
    const std::string large(9000, 'x');
    EXPECT_EQ(station.Send({"--t0", large, "--count", "3", "--quiet"}).exitCode, 0);
    EXPECT_TRUE(Tells("vigrel-receiver: T10049 ")) << station.StandardError();
    EXPECT_EQ(station.StandardError().find("T10052"), std::string::npos);
    Limit(RLIM_INFINITY);
    EXPECT_TRUE(Tells("vigrel-receiver: T10052")) << station.StandardError();
    EXPECT_EQ(station.AlarmFiles().size(), 4u);
    EXPECT_EQ(station.Stop(SIGTERM), 0);
}

}  // namespace
}  // namespace vigrel::testing
