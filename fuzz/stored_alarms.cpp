// Input: a folder of stored alarms, each a byte that chooses the name, a count of two bytes, and the content.
// A whole station loads them, lists and sorts them, copies, acknowledges and sweeps them, and starts again.

#include <array>

#include "common/failure.h"
#include "fuzz/fuzz_target.h"
#include "fuzz/fuzzed_station.h"

namespace {

using namespace vigrel;

constexpr const char* kConfiguration =
    "[General]\r\nLanguage=046\r\nMaxEvents=4\r\nMaxDays=3\r\n"
    "Columns=StateIcon,StateText,AlarmDate,AlarmTime,AlarmDateTime,Date,Time,DateTime,t0,t1,t2,t3,t4,t5,"
    "ExtraText,Observed\r\nBackColor_Active=255,0,0\r\nForeColor_Active=255,255,255\r\n"
    "[CategorySpecificSetting_Fire]\r\nIcon_Active=2,3\r\nFontBold_Active=1\r\nExtraText=Leave\r\n"
    "[CategoryTranslations]\r\nGas=Lukt\r\n";

// The last ones are numbers of another kind, or none: two of them can mean the same alarm, and 0 means that
// an alarm has no file.
constexpr std::array<const char*, 12> kNames{"A0000001.alm", "A0000002.alm", "A0000003.alm", "A0000004.alm",
                                             "A0000005.alm", "A0000006.alm", "a0000007.ALM", "A9999999.alm",
                                             "A9e00009.alm", "A-000001.alm", "A    1e1.alm", "A0000000.alm"};
constexpr std::size_t kOrdinary = 8;

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::cInput input(data, size);
    fuzz::cFuzzedStation station(input);
    station.Configure(kConfiguration);
    bool isOdd = false;
    while (!input.AtEnd()) {
        const std::size_t name = static_cast<std::size_t>(input.Byte()) % kNames.size();
        isOdd = isOdd || name >= kOrdinary;
        station.Disk().Put(std::string("C:\\App\\Alarms\\") + kNames[name], input.ManyBytes());
    }
    station.Begin();
    fuzz::Require(station.Runs(), "no alarm's bytes stop a start");
    station.DoAll();
    const bool same = station.ListsTheSameAgain();
    fuzz::Require(same || isOdd, "the next start lists the same");
    return 0;
}
