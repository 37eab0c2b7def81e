// Input: the content of a text file. What it lacks is completed once, and no line of it is lost.

#include "common/texts.h"
#include "common/delivered_texts.h"
#include "common/failure.h"
#include "common/ini.h"
#include "common/text_files.h"
#include "fuzz/fuzz_target.h"
#include "support/fake_files.h"

namespace {

using namespace vigrel;

constexpr const char* kApp = "C:\\App\\";
constexpr const char* kDelivered = "0=English\r\n1=One\r\n10041=alarms loaded\r\n10042=Message\r\n";

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string content(fuzz::Text(data, size));
    testing::cFakeFiles files;
    files.Put(std::string(kApp) + "VigrelReceiver.INI", "[General]\r\nLanguage=046\r\n");
    files.Put(std::string(kApp) + "Vigrel_Texts.046", content);
    cDeliveredTexts delivered;
    delivered.Add("046", kDelivered);
    const cIni ini(files, kApp);
    cTexts texts(files, ini, &delivered);
    // A line whose number is too large ends the start, and is named.
    if (!SkipFailure([&] { texts.LoadTexts(); })) return 0;
    for (const int id : {-1, 0, 1, 99, 10041, 10042}) {
        fuzz::Require(!texts.GetText(id).empty(), "no text is empty");
    }
    const cCompletedTexts completed = CompleteTexts(content, kDelivered);
    fuzz::Require(completed.content.starts_with(content), "what stood in the file stays");
    fuzz::Require(CompleteTexts(completed.content, kDelivered).added.empty(), "a file is completed once");
    const std::string before = texts.GetText(1);
    CompleteTextFiles(files, kApp, delivered, texts);
    texts.LoadTexts();
    fuzz::Require(texts.GetText(1) == before, "a completed file says what was said before");
    return 0;
}
