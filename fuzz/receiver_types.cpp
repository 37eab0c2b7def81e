// Input: the content of a receiver type table.

#include "definitions/receiver_types.h"
#include "fuzz/fuzz_target.h"
#include "support/fake_files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vigrel;
    const std::string path = "C:\\App\\" + std::string(kReceiverTypesFile);
    testing::cFakeFiles files;
    files.Put(path, fuzz::Text(data, size));
    cReceiverTypes types;
    const auto problems = types.Load(files, path);
    fuzz::Require(types.m_ReceiverTypes.size() <= cReceiverTypes::kMaxRows, "the table has its limit");
    for (const cReceiverType& type : types.m_ReceiverTypes) {
        const int row = types.RowOf(type.m_TypeId);
        fuzz::Require(row >= 0 && row < types.ReceiverTypeCount(), "every type has its row");
        fuzz::Require(types.m_ReceiverTypes[static_cast<std::size_t>(row)].m_TypeId == type.m_TypeId,
                      "the row of a type is its own");
    }
    cReceiverTypes again;
    fuzz::Require(again.Load(files, path) == problems && again.m_ReceiverTypes == types.m_ReceiverTypes,
                  "a table reads the same twice");
    return 0;
}
