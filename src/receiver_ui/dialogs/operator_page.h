#pragma once

#include <QTextBrowser>
#include <QUrl>
#include <string>

namespace vigrel {

// The operator's page of a language ("046") that was installed, beside the program or under the usual prefix;
// the English one where there is none in it; empty when none is installed. UTF-8 in, the operating system's
// path out.
std::string FindOperatorPage(const std::string& programFolder, const std::string& language);

// Shows an operator's page, with its pictures as wide as the window lets them be. The links of its head lead
// to its sections.
class cOperatorPage : public QTextBrowser {
  public:
    explicit cOperatorPage(const std::string& path, QWidget* parent = nullptr);

    // In a window of its own that doesn't hold up the station. A second call brings the same window to the
    // front.
    static void Show(const std::string& path, QWidget& mainWindow);

  protected:
    QVariant loadResource(int type, const QUrl& name) override;

  private:
    void GoTo(const QUrl& link);
};

}  // namespace vigrel
