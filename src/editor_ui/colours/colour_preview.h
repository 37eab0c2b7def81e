#pragma once

#include <QWidget>
#include <vector>

#include "categories/user_color.h"

class QLabel;
class QPlainTextEdit;
class QSpinBox;
class QTableWidget;

namespace vigrel {

// Shows what colour rules make of tags that the user types: which rule matches each, and its colours in a
// row, in every other row, and flashing. Names the rules whose text is hard to read on its ground.
class cColourPreview : public QWidget {
    Q_OBJECT
  public:
    explicit cColourPreview(QWidget* parent = nullptr);

    // The rules in the order in which they are tried.
    void SetRules(std::vector<cUserColor> rules);

  private:
    void Refresh();
    void ShowTag(int row, const QString& tag);
    void ShowReadability();

    std::vector<cUserColor> m_Rules;
    QPlainTextEdit* m_Tags;
    QSpinBox *m_Category, *m_Area;
    QTableWidget* m_Table;
    QLabel* m_HardToRead;
};

}  // namespace vigrel
