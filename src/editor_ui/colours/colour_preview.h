#pragma once

#include <QWidget>
#include <vector>

#include "categories/user_color.h"

class QAction;
class QLabel;
class QPlainTextEdit;
class QSpinBox;
class QTableWidget;

namespace vigrel {

class cAlarmPreview;
struct cEditorServices;

// Shows what colour rules make of the station's alarms and of tags that the user types: which rule matches
// each, and its colours in a row, in every other row, and flashing. Names the rules whose text is hard to
// read on its ground, beside what mends them.
class cColourPreview : public QWidget {
    Q_OBJECT
  public:
    cColourPreview(cEditorServices& services, QAction& makeReadable, QWidget* parent = nullptr);

    // With one decimal.
    static QString ContrastText(double contrast);
    // The rules in the order in which they are tried.
    void SetRules(std::vector<cUserColor> rules);
    // The station may have other alarms by now.
    void LookAgain();

  private:
    QWidget* MakeTyped();
    QWidget* MakeReadability(QAction& makeReadable);
    void Refresh();
    void ShowTag(int row, const QString& tag);
    void ShowReadability();

    std::vector<cUserColor> m_Rules;
    QPlainTextEdit* m_Tags;
    QSpinBox *m_Category, *m_Area;
    QTableWidget* m_Table;
    cAlarmPreview* m_StationAlarms;
    QLabel* m_HardToRead;
    QWidget* m_Mend;
};

}  // namespace vigrel
