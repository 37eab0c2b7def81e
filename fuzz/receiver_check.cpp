// Input: the content of a configuration file. What a check says of it is what the receiver does with it.

#include <algorithm>

#include "common/failure.h"
#include "common/text.h"
#include "core/read_settings.h"
#include "fuzz/fuzz_target.h"
#include "receiver-check/check.h"
#include "receiver-check/print.h"
#include "support/fake_files.h"

namespace {

using namespace vigrel;

const std::string kApp = "C:\\App\\";

// Whether the receiver comes past its settings.
bool Starts(testing::cFakeFiles& files) {
    const cIni ini(files, kApp);
    cSettings settings;
    return SkipFailure([&] { ReadSettings(ini, settings, [] {}); }) && SkipFailure([&] { ReadPort(ini); });
}

bool EndsStart(const cFinding& finding) {
    const std::string& section = finding.place.section;
    return finding.name == "number-overflow" && finding.severity == eSeverity::Error &&
           (EqualsNoCase(section, "General") || EqualsNoCase(section, "Printer") ||
            EqualsNoCase(section, "TCPIP"));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    testing::cFakeFiles files;
    files.Put(kApp + "VigrelReceiver.INI", fuzz::Text(data, size));
    const int calls = files.m_Calls;
    const cFindings findings = CheckInstallation(files, kApp, nullptr);
    fuzz::Require(files.m_Calls == calls, "a check changes nothing");
    const std::size_t lines = SplitLines(fuzz::Text(data, size)).size();
    for (const cFinding& finding : findings.m_All) {
        fuzz::Require(!finding.name.empty() && !finding.message.empty(), "a finding has name and message");
        fuzz::Require(finding.place.line <= lines, "a finding lies within the file");
    }
    const bool told = std::any_of(findings.m_All.begin(), findings.m_All.end(), EndsStart);
    fuzz::Require(told == !Starts(files), "an error is told exactly when the settings end the start");
    const std::string text = ReportText(findings);
    const auto lineFeeds = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
    fuzz::Require(lineFeeds == findings.m_All.size() + 1, "a finding is one line");
    ReportJson("x", findings);
    return 0;
}
