#include "editor_ui/pages/problem_label.h"

#include <QApplication>
#include <QEvent>

namespace vigrel {

cProblemLabel::cProblemLabel(const QString& objectName, QWidget* parent) : cPlainLabel(parent) {
    setObjectName(objectName);
    setWordWrap(true);
    Colour();
    hide();
}

void cProblemLabel::Show(const QString& problem) {
    setText(problem);
    setVisible(!problem.isEmpty());
}

void cProblemLabel::Colour() {
    const bool dark = QApplication::palette().color(QPalette::Window).lightness() < 128;
    QPalette colours = palette();
    const QColor red = dark ? QColor(255, 150, 150) : QColor(176, 0, 0);
    if (colours.color(QPalette::WindowText) == red) return;
    colours.setColor(QPalette::WindowText, red);
    setPalette(colours);
}

void cProblemLabel::changeEvent(QEvent* event) {
    cPlainLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) Colour();
}

}  // namespace vigrel
