// Input: the content of a definition file, read as a receiver and as a profile.

#include "definitions/profile.h"
#include "definitions/receiver.h"
#include "fuzz/fuzz_target.h"
#include "support/fake_clock.h"
#include "support/fake_files.h"
#include "support/fake_random.h"

namespace {

using namespace vigrel;

struct cStation {
    cStation() {
        for (const char* folder : {"LogFiles", "Receivers", "Profiles"})
            files.PutFolder(std::string("C:\\App\\") + folder);
        types.m_ReceiverTypes = {{7, "Radio", "XRT", ""}};
    }
    testing::cFakeFiles files;
    testing::cFakeClock clock;
    testing::cFakeRandom random;
    cIni ini{files, "C:\\App\\"};
    cTexts texts{files, ini};
    cLog log{files, clock, texts, "C:\\App\\"};
    cReceiverTypes types;
    cDefinitionServices services{files, clock, random, texts, log, ini, types, true};
};

template <class Definition>
void CheckLoading(std::string_view content) {
    cStation station;
    Definition definition(station.services);
    const std::string path = definition.CreateFileName(7);
    station.files.Put(path, content);
    const bool loaded = definition.LoadFromDisk(7);
    const std::string after = station.files.ReadFile(path);
    fuzz::Require(!definition.HasChangedSinceLastLoadFromDisk(), "a load leaves nothing changed");
    if (!loaded || content[0] == 5) fuzz::Require(after == content, "the file stays as it is");
    if (!loaded) return;
    fuzz::Require(definition.SaveToDisk(), "what was loaded can be saved");
    const std::string saved = station.files.ReadFile(path);
    fuzz::Require(content[0] == 5 || saved == after, "an upgrade wrote what a save writes");
    Definition again(station.services);
    fuzz::Require(again.LoadFromDisk(7) && again.SaveToDisk(), "what was saved can be loaded");
    fuzz::Require(station.files.ReadFile(path) == saved, "a saved file reads back equal");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    CheckLoading<vigrel::cReceiver>(vigrel::fuzz::Text(data, size));
    CheckLoading<vigrel::cProfile>(vigrel::fuzz::Text(data, size));
    return 0;
}
