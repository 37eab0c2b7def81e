#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "editor_ui/editor_bench.h"

namespace vigrel::campaign {

// A file that another program works on while the editor has it open, and how it carries the other program's
// signs: numbers above 0, in a place that the editor's user leaves alone.
struct cSharedFile {
    std::string path;
    // Writes a sign into the file, which may be missing or damaged.
    std::function<void(int sign)> write;
    // That of a content; 0 for none.
    std::function<int(const std::string& bytes)> signOf;
    // Whether a question of the editor is about the file, by the name that it has at that moment.
    std::function<bool(const QString& question)> isMeant;
    // Nobody can read it; empty where everything can be read.
    std::string damaged;
};

// Those of a page: "schedule", "calendar", "colours", "holidays", "receivers", "profiles". The bench and the
// other program's station, which has a log and notes of its own, must outlive them.
std::vector<cSharedFile> SharedFilesOf(const std::string& page, testing::cEditorBench& bench,
                                       cStationDefinitions& theirs);
// The object name of the field that carries the signs; empty for none.
QString SignFieldOf(const std::string& page);

}  // namespace vigrel::campaign
