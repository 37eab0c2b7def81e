#include "editor_ui/window/recent_files.h"

namespace vigrel {
namespace {

constexpr const char* kKey = "RecentFiles";

}  // namespace

QStringList cRecentFiles::Paths() const {
    return m_Settings.value(kKey).toStringList();
}

void cRecentFiles::Add(const QString& path) {
    QStringList paths = Paths();
    paths.removeAll(path);
    paths.prepend(path);
    Store(paths.mid(0, kMost));
}

void cRecentFiles::Remove(const QString& path) {
    QStringList paths = Paths();
    paths.removeAll(path);
    Store(paths);
}

void cRecentFiles::Store(const QStringList& paths) {
    m_Settings.setValue(kKey, paths);
}

}  // namespace vigrel
