#include "vigrel-inspect/print.h"

#include <algorithm>
#include <cmath>

#include "common/date_text.h"
#include "common/numbers.h"
#include "common/printable.h"
#include "tool_support/json.h"

namespace vigrel {
namespace {

std::string ValueText(const cField& field) {
    struct cVisitor {
        const cField& field;
        std::string operator()(std::monostate) const {
            return field.size > 2 ? std::to_string(field.size) + " bytes" : "-";
        }
        std::string operator()(std::int64_t value) const { return std::to_string(value); }
        std::string operator()(double value) const { return NumberText(value); }
        std::string operator()(bool value) const { return value ? "yes" : "no"; }
        std::string operator()(const std::string& value) const { return "\"" + Printable(value) + "\""; }
        std::string operator()(cDateValue value) const { return DateTimeText(value.m_Value); }
    };
    return std::visit(cVisitor{field}, field.value);
}

// A cell of a table, padded with blanks to a width.
std::string Cell(std::string text, std::size_t width) {
    if (text.size() < width) text.append(width - text.size(), ' ');
    return text;
}

std::string ProblemText(const cProblem& problem) {
    const std::string field = problem.field.empty() ? "" : ", " + Printable(problem.field);
    return "byte " + std::to_string(problem.offset) + field + ": " + Printable(problem.description);
}

std::string ValueJson(const cFieldValue& value) {
    struct cVisitor {
        std::string operator()(std::monostate) const { return "null"; }
        std::string operator()(std::int64_t number) const { return std::to_string(number); }
        std::string operator()(double number) const {
            return std::isfinite(number) ? NumberText(number) : "null";
        }
        std::string operator()(bool flag) const { return flag ? "true" : "false"; }
        std::string operator()(const std::string& text) const { return JsonString(text); }
        std::string operator()(cDateValue date) const { return JsonString(DateTimeText(date.m_Value)); }
    };
    return std::visit(cVisitor{}, value);
}

std::string FieldJson(const cField& field) {
    return "{\"name\": " + JsonString(field.name) + ", \"offset\": " + std::to_string(field.offset) +
           ", \"size\": " + std::to_string(field.size) + ", \"value\": " + ValueJson(field.value) + "}";
}

std::string ProblemJson(const cProblem& problem) {
    return "{\"offset\": " + std::to_string(problem.offset) +
           ", \"field\": " + (problem.field.empty() ? "null" : JsonString(problem.field)) +
           ", \"description\": " + JsonString(problem.description) + "}";
}

}  // namespace

std::string InspectionText(const std::string& file, const cInspection& inspection) {
    std::string text = PrintablePath(file) + ": " + inspection.kind;
    if (inspection.version) text += ", version " + std::to_string(*inspection.version);
    text += ", " + std::to_string(inspection.size) + " bytes\n";
    std::size_t width = 5;
    for (const cField& field : inspection.fields) width = std::max(width, field.name.size());
    if (!inspection.fields.empty()) text += "  " + Cell("byte", 8) + Cell("field", width + 2) + "value\n";
    for (const cField& field : inspection.fields) {
        text += "  " + Cell(std::to_string(field.offset), 8) + Cell(field.name, width + 2) +
                ValueText(field) + "\n";
    }
    if (inspection.problems.empty()) return text + "  Everything fits.\n";
    text += "  What does not fit:\n";
    for (const cProblem& problem : inspection.problems) text += "    " + ProblemText(problem) + "\n";
    return text;
}

std::string InspectionJson(const std::string& file, const cInspection& inspection) {
    const std::string version = inspection.version ? std::to_string(*inspection.version) : "null";
    return "{\n  \"file\": " + JsonString(file) + ",\n  \"kind\": " + JsonString(inspection.kind) +
           ",\n  \"version\": " + version + ",\n  \"size\": " + std::to_string(inspection.size) +
           ",\n  \"fields\": " + JsonList(inspection.fields, FieldJson) +
           ",\n  \"problems\": " + JsonList(inspection.problems, ProblemJson) + "\n}";
}

}  // namespace vigrel
