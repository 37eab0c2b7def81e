// Input: the content of any binary file, read as every kind.

#include "vigrel-inspect/inspect.h"
#include "fuzz/fuzz_target.h"
#include "vigrel-inspect/print.h"

namespace {

using namespace vigrel;

void Check(eFileKind kind, std::string_view content) {
    const cInspection inspection = Inspect(kind, "A0000007.alm", content);
    std::size_t end = 0;
    for (const cField& field : inspection.fields) {
        fuzz::Require(field.offset >= end, "fields follow one another");
        end = field.offset + field.size;
        fuzz::Require(end <= content.size(), "fields lie inside the file");
    }
    fuzz::Require(end == content.size() || !inspection.problems.empty() || kind == eFileKind::Calendar,
                  "what was not read is a problem");
    for (const std::string& output : {InspectionText("a", inspection), InspectionJson("a", inspection)}) {
        for (const char c : output) {
            fuzz::Require(c == '\n' || static_cast<unsigned char>(c) >= 0x20, "nothing steers the terminal");
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view content = vigrel::fuzz::Text(data, size);
    for (const auto kind : {vigrel::eFileKind::Alarm, vigrel::eFileKind::Receiver, vigrel::eFileKind::Profile,
                            vigrel::eFileKind::Schedule, vigrel::eFileKind::Calendar}) {
        Check(kind, content);
    }
    return 0;
}
