#pragma once

#include <QTranslator>
#include <set>
#include <string>

#include "editor_ui/window/editor_words.h"

namespace vigrel::testing {

// Marks what goes by the files of translations, and notes what they lack as the program asks for it.
class cMarks : public QTranslator {
  public:
    explicit cMarks(std::set<std::string>& lacking) : m_Lacking(lacking) {}
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char*, int) const override {
        const QByteArray asks = context;
        const bool isToolkit = asks.startsWith('Q') && asks != "QObject";
        if (isToolkit || asks == "CloseButton") return {};
        if (m_Finnish.translate(context, source).isEmpty())
            m_Lacking.insert(std::string(context) + ": " + source);
        return QString("<%1>").arg(source);
    }

  private:
    std::set<std::string>& m_Lacking;
    cEditorWords m_Finnish{"358"};
};

}  // namespace vigrel::testing
