#pragma once

#include <QSettings>
#include <QStringList>

namespace vigrel {

// The files that were opened or saved last, the newest first, kept in the user's settings.
class cRecentFiles {
  public:
    static constexpr int kMost = 10;
    explicit cRecentFiles(QSettings& settings) : m_Settings(settings) {}

    QStringList Paths() const;
    void Add(const QString& path);
    void Remove(const QString& path);

  private:
    void Store(const QStringList& paths);
    QSettings& m_Settings;
};

}  // namespace vigrel
