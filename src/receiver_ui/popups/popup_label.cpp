#include "receiver_ui/popups/popup_label.h"

#include <QEvent>
#include <QScrollBar>

namespace vigrel {

void cPopupLabel::ShowText(const QString& text) {
    setPlainText(text);
    ReconsiderBar();
}

void cPopupLabel::resizeEvent(QResizeEvent* event) {
    QPlainTextEdit::resizeEvent(event);
    ReconsiderBar();
}

void cPopupLabel::changeEvent(QEvent* event) {
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange) ReconsiderBar();
}

// Most texts fit, and cost nothing here.
void cPopupLabel::ReconsiderBar() {
    if (m_Reconsidering || verticalScrollBar()->maximum() == 0) return;
    m_Reconsidering = true;
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    // All lines are wrapped; the toolkit goes on counting some pixels of before.
    horizontalScrollBar()->setRange(0, 0);
    m_Reconsidering = false;
}

}  // namespace vigrel
