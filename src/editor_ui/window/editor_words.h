#pragma once

#include <QTranslator>
#include <string_view>

#include "adapters/qt/qt_locale.h"

namespace vigrel {

// The editor's texts in the language of a configuration ("046"), from when they are installed. In English,
// and in a language that isn't delivered, it has none: the sources are English.
//
// Also what the toolkit says in its dialogs of files and colours, in the languages that its own files lack.
class cEditorWords : public QTranslator {
  public:
    explicit cEditorWords(std::string_view language);
    QString translate(const char* context, const char* source, const char* disambiguation = nullptr,
                      int number = -1) const override;

  private:
    QTranslator m_Toolkit;
};

// How the desktop writes dates, with the names of days and months in such a language: a German station on an
// English desktop has its Mondays in German.
cLocaleForms FormsIn(std::string_view language, const QLocale& desktop = QLocale::system());

}  // namespace vigrel
