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

    // Adds what was not told yet; what nobody has closed stays. Hidden as long as there is nothing to tell.
    void Add(const std::vector<cDefinitionNote>& notes);

  private:
    std::vector<cDefinitionNote> m_Notes;  // that show
    QLabel* m_Summary;
    QPlainTextEdit* m_Lines;
};

}  // namespace vigrel
