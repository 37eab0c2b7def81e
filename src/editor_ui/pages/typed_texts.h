#pragma once

#include <QString>
#include <map>
#include <string>

namespace vigrel {

// A text that stands in a field and is no value of it, and why. It belongs to what is edited, whichever part
// of that shows: as long as it stands there the content differs from its file and can't be saved.
struct cTypedText {
    QString text, problem;
    bool operator==(const cTypedText&) const = default;
};
using TypedTexts = std::map<QString, cTypedText>;  // by the field's object name

// The state of an editor: what is typed and no value, and the content as its file has it.
struct cTypedState {
    TypedTexts typed;
    std::string content;
    // As one text, and back.
    std::string Text() const;
    static cTypedState Of(const std::string& text);
};

}  // namespace vigrel
