#pragma once

#include <string>
#include <string_view>

#include "common/binary.h"
#include "common/dates.h"
#include "definitions/variant.h"
#include "vigrel-inspect/inspection.h"

namespace vigrel {

// Reads the fields of a file one after the other into an inspection. A field that the file's end cuts is a
// problem and ends the reading with a cFailure.
class cFieldReader {
  public:
    cFieldReader(std::string_view content, cInspection& inspection);

    std::int16_t Int16(const std::string& name);
    std::int32_t Int32(const std::string& name);
    // A problem when it is neither -1 nor 0.
    bool Boolean(const std::string& name);
    // A problem when it lies outside the calendar.
    DateTime Date(const std::string& name);
    std::string String(const std::string& name);
    // A type code, then a value of that type; a problem, and the end, when the code is unknown. A value that
    // its type doesn't have is a problem.
    void Variant(const std::string& name);
    // A problem when any of the bytes isn't zero.
    void Zeros(const std::string& name, std::size_t count);
    // A string that is always written empty; a problem when it isn't.
    void EmptyString(const std::string& name);

    // Adds a problem of the field read last.
    void Problem(const std::string& description);
    // A value of the field read last that must lie in a range.
    void ExpectRange(std::int64_t value, std::int64_t first, std::int64_t last);
    // The end of what the format knows; further bytes are a problem.
    void ExpectEnd();
    bool AtEnd() const { return m_File.Position() >= m_File.Size(); }

  private:
    // Adds the field that was read since the position, or fails when it was cut.
    void Add(const std::string& name, std::size_t from, cFieldValue value);

    // Of the field read last.
    void ExpectValueOfType(eVariantType type, std::string_view bytes);
    void ExpectBoolean(std::int16_t value);
    void ExpectDate(DateTime value);
    void ExpectNumber(double value);

    std::string_view m_Content;
    cBinaryReader m_File;
    cInspection& m_Inspection;
};

}  // namespace vigrel
