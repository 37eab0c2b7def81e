#include "editor_ui/window/editor_words.h"

#include "windows/toolkit_words.h"

namespace vigrel {

// Loading is false where there is no file: of English, and of the toolkit in most languages.
cEditorWords::cEditorWords(std::string_view language) {
    const QString file = ":/translations/%1_" + ToolkitLanguage(language) + ".qm";
    static_cast<void>(load(file.arg("definitions")));
    static_cast<void>(m_Toolkit.load(file.arg("toolkit")));
}

QString cEditorWords::translate(const char* context, const char* source, const char* disambiguation,
                                int number) const {
    const QString words = QTranslator::translate(context, source, disambiguation, number);
    return words.isEmpty() ? m_Toolkit.translate(context, source, disambiguation, number) : words;
}

cLocaleForms FormsIn(std::string_view language, const QLocale& desktop) {
    cLocaleForms forms = cQtLocale(desktop).Forms();
    const QLocale spoken(ToolkitLanguage(language));
    // A country of the language can have words of its own: Austria's January.
    if (spoken.language() == QLocale::C || spoken.language() == desktop.language()) return forms;
    const cLocaleForms words = cQtLocale(spoken).Forms();
    forms.dayNames = words.dayNames;
    forms.shortDayNames = words.shortDayNames;
    forms.monthNames = words.monthNames;
    forms.shortMonthNames = words.shortMonthNames;
    return forms;
}

}  // namespace vigrel
