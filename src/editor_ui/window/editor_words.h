#pragma once

#include <QTranslator>
#include <string_view>

namespace vigrel {

// The editor's texts in the language of a configuration ("046"), from when they are installed. In English,
// and in a language that isn't delivered, it has none: the sources are English.
class cEditorWords : public QTranslator {
  public:
    explicit cEditorWords(std::string_view language);
};

}  // namespace vigrel
