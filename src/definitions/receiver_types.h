#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "common/line_problem.h"
#include "platform/files.h"

namespace vigrel {

// The name of the receiver type table, in the application folder (docs/formats/receiver-types.md).
inline constexpr std::string_view kReceiverTypesFile = "ReceiverTypes.txt";

// One kind of destination that alarms can go to.
struct cReceiverType {
    std::int16_t m_TypeId = 0;
    std::string m_TypeName;  // as people read it
    std::string m_Kind;      // what the system knows it by: "XRT", "XRTTCP", "T940SI", ...; any case
    // An INI-shaped file of the application folder with the type's own settings; empty for none.
    std::string m_SettingsFile;

    bool operator==(const cReceiverType&) const = default;
};

// The receiver type table.
class cReceiverTypes {
  public:
    static constexpr std::size_t kMaxRows = 300;

    // Replaces the table by the rows of a file and says which lines of it were skipped. A file that is
    // missing or can't be read gives an empty table and says so too.
    std::vector<cLineProblem> Load(const cFileReader& files, std::string_view path);

    std::int16_t ReceiverTypeCount() const { return static_cast<std::int16_t>(m_ReceiverTypes.size()); }
    // The row of a type id, -1 for an unknown one.
    std::int16_t RowOf(std::int16_t typeId) const;

    std::vector<cReceiverType> m_ReceiverTypes;

  private:
    void AddLine(std::string_view line);
};

}  // namespace vigrel
