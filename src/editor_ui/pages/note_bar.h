#pragma once

#include <QFrame>
#include <vector>

#include "definitions/definition_file.h"

class QLabel;
class QPlainTextEdit;

namespace vigrel {

// Tells what happened to files while they were loaded: how many were brought up to a new version, how many
// could not be read, and on request line by line.
class cNoteBar : public QFrame {
    Q_OBJECT
  public:
    explicit cNoteBar(QWidget* parent = nullptr);

    // Hidden when there is nothing to tell.
    void Show(const std::vector<cDefinitionNote>& notes);

  private:
    QLabel* m_Summary;
    QPlainTextEdit* m_Lines;
};

}  // namespace vigrel
