#include "receiver_ui/popups/popup_label.h"

#include <QEvent>
#include <QScrollBar>

namespace vigrel {
namespace {

// Templates end in fields that are often empty, each on a line of its own.
QString WithoutBlankEnd(QString text) {
    for (qsizetype end = text.lastIndexOf('\n');
         end >= 0 && QStringView(text).sliced(end).trimmed().isEmpty(); end = text.lastIndexOf('\n')) {
        text.truncate(end);
    }
    return text;
}

}  // namespace

void cPopupLabel::ShowText(const QString& text) {
    setPlainText(WithoutBlankEnd(text));
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
