// Input: the content of a configuration file.

#include "common/ini.h"

#include "common/text.h"
#include "fuzz/fuzz_target.h"
#include "support/fake_files.h"

namespace {

using namespace vigrel;

const std::string kPath = "C:\\App\\VigrelReceiver.INI";
constexpr std::size_t kBuffer = 200;

void CheckEntries(const testing::cFakeFiles& files, std::string_view section) {
    std::string buffer(kBuffer, '#');
    const auto count = static_cast<std::size_t>(ReadIniSection(files, section, buffer, kBuffer, kPath));
    fuzz::Require(count < kBuffer && buffer.size() == kBuffer, "the entries fit the buffer");
    fuzz::Require(buffer.substr(count) == std::string(kBuffer - count, '#'), "the rest of the buffer stays");
    fuzz::Require(count == 0 || buffer[count - 1] == '\0', "the last entry is ended");
}

struct cName {
    const char *section, *key;
};
constexpr cName kNames[] = {
    {"Section", "Key"}, {"Section", "Other"}, {"Other", "Key"}, {"General", "Object"}};

std::vector<std::string> Values(const cIniReader& ini) {
    std::vector<std::string> values;
    for (const cName& name : kNames) values.push_back(ini.GetIniString(name.section, name.key, "default"));
    return values;
}

// A value that is written reads back, and no other changes.
void CheckWriting(testing::cFakeFiles& files, cIni& ini) {
    const std::size_t lines = SplitLines(files.ReadFile(kPath)).size();
    std::vector<std::string> expected = Values(ini);
    for (std::size_t i = 0; i < std::size(kNames); ++i) {
        expected[i] = "value " + std::to_string(i);
        ini.PutIniString(kNames[i].section, kNames[i].key, expected[i]);
        fuzz::Require(Values(ini) == expected, "a written value reads back, and no other changes");
    }
    const std::string content = files.ReadFile(kPath);
    fuzz::Require(SplitLines(content).size() <= lines + 2 * std::size(kNames),
                  "a new key takes two lines at most");
    ini.PutIniString("Section", "Key", "value 0");
    fuzz::Require(files.ReadFile(kPath) == content, "writing what is there changes nothing");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    testing::cFakeFiles files;
    files.Put(kPath, fuzz::Text(data, size));
    cIni ini(files, "C:\\App\\");
    for (const std::string& value : Values(ini)) fuzz::Require(value.size() <= 2047, "a value is cut");
    for (const char* section : {"", "Section", "Senders"}) CheckEntries(files, section);
    CheckWriting(files, ini);
    return 0;
}
