#include "receiver-check/print.h"

#include "common/printable.h"
#include "tool_support/json.h"

namespace vigrel {
namespace {

std::string SeverityName(eSeverity severity) {
    switch (severity) {
        case eSeverity::Error:
            return "error";
        case eSeverity::Warning:
            return "warning";
        case eSeverity::Remark:
            return "remark";
    }
    return {};
}

std::string PlaceText(const cPlace& place) {
    const std::string section = place.section.empty() ? "" : "[" + place.section + "] ";
    const std::string value = place.value.empty() ? "" : (place.key.empty() ? "" : "=") + place.value;
    std::string text = section + place.key + value;
    while (text.ends_with(' ')) text.pop_back();
    return text.empty() ? "" : Printable(text) + ": ";
}

std::string FindingText(const cFinding& finding) {
    const cPlace& place = finding.place;
    return PrintablePath(place.file) + (place.line > 0 ? ":" + std::to_string(place.line) : "") + ": " +
           SeverityName(finding.severity) + ": " + PlaceText(place) + PrintablePath(finding.message) + " [" +
           finding.name + "]\n";
}

std::string Counted(std::size_t count, const std::string& word) {
    return std::to_string(count) + " " + word + (count == 1 ? "" : "s");
}

std::string OrNull(const std::string& text) {
    return text.empty() ? "null" : JsonPath(text);
}

std::string FindingJson(const cFinding& finding) {
    const cPlace& place = finding.place;
    return "{\"severity\": " + JsonString(SeverityName(finding.severity)) +
           ", \"name\": " + JsonString(finding.name) + ", \"file\": " + OrNull(place.file) +
           ", \"line\": " + (place.line > 0 ? std::to_string(place.line) : "null") +
           ", \"section\": " + OrNull(place.section) + ", \"key\": " + OrNull(place.key) +
           ", \"value\": " + (place.key.empty() && place.value.empty() ? "null" : JsonString(place.value)) +
           ", \"message\": " + JsonPath(finding.message) + "}";
}

}  // namespace

std::string ReportText(const cFindings& findings) {
    std::string text;
    for (const cFinding& finding : findings.m_All) text += FindingText(finding);
    if (findings.m_All.empty()) return "Nothing to remark.\n";
    return text + Counted(findings.Count(eSeverity::Error), "error") + ", " +
           Counted(findings.Count(eSeverity::Warning), "warning") + ", " +
           Counted(findings.Count(eSeverity::Remark), "remark") + "\n";
}

std::string ReportJson(const std::string& folder, const cFindings& findings) {
    std::string list;
    for (const cFinding& finding : findings.m_All) {
        list += (list.empty() ? "\n    " : ",\n    ") + FindingJson(finding);
    }
    return "{\n  \"folder\": " + JsonPath(folder) +
           ",\n  \"errors\": " + std::to_string(findings.Count(eSeverity::Error)) +
           ",\n  \"warnings\": " + std::to_string(findings.Count(eSeverity::Warning)) +
           ",\n  \"remarks\": " + std::to_string(findings.Count(eSeverity::Remark)) + ",\n  \"findings\": [" +
           list + (list.empty() ? "]" : "\n  ]") + "\n}\n";
}

}  // namespace vigrel
