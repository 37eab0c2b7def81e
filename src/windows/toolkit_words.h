#pragma once

#include <QLocale>
#include <QTranslator>
#include <string>
#include <string_view>

namespace vigrel {

// The name of a delivered language, by its number in the configuration ("046"), as the toolkit's own files
// have it ("sv"). Empty for any other.
QString ToolkitLanguage(std::string_view language);

// The number of the delivered language that a desktop speaks, "044" where it speaks none of them.
std::string LanguageOfDesktop(const QLocale& desktop);

// The words that the toolkit writes by itself on the buttons of message boxes and in the menus of text
// fields. They are the program's own in each delivered language, since the toolkit's files lack some of the
// languages, and a desktop can lack the files.
class cToolkitWords : public QTranslator {
  public:
    // In English, and in a language that isn't delivered, it has no words.
    void SetLanguage(std::string_view language);
    bool isEmpty() const override { return m_Column < 0; }
    QString translate(const char* context, const char* source, const char* disambiguation = nullptr,
                      int number = -1) const override;

  private:
    int m_Column = -1;
};

}  // namespace vigrel
