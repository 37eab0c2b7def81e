#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QToolTip>
#include <array>

#include "support/qt_wait.h"

namespace vigrel::testing {

// Texts that a toolkit may take for markup: ones that read files, pass for the program's own words, or are
// swallowed.
inline constexpr std::array kMarkup = {
    R"(<img src="file:///dev/zero">)",
    "<h1>All clear</h1>",
    "<b>bold</b> and <a href=\"file:///etc/passwd\">link</a>",
    "<font color=white>unseen</font>",
    "<!DOCTYPE html><p>page",
    "<?xml version=\"1.0\"?><html><body>page</body></html>",
    "<table><tr><td>cell",
    "<style>p { color: white }</style><p>text",
    "&lt;b&gt; &amp; &nbsp; &#65;",
    "<br/><hr><ul><li>one",
    "# heading\n* item\n![picture](file:///dev/zero)",
};

inline void ExpectPlain(const QLabel* label, const QString& text) {
    ASSERT_NE(label, nullptr) << text.toStdString();
    EXPECT_EQ(label->textFormat(), Qt::PlainText) << text.toStdString();
    EXPECT_EQ(label->text(), text);
}

// Every label in a window, the toolkit's own included.
inline void ExpectAllPlain(const QWidget& window) {
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        EXPECT_EQ(label->textFormat(), Qt::PlainText)
            << label->objectName().toStdString() << ": " << label->text().toStdString();
    }
}

// The label of the tool tip that is shown; none while there is none.
inline const QLabel* ShownToolTip() {
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->inherits("QTipLabel") && widget->isVisible()) return qobject_cast<const QLabel*>(widget);
    }
    return nullptr;
}

// Rests the pointer on a place of a view and expects its tool tip to show the text as it stands.
inline void ExpectToolTip(QWidget& viewport, QPoint place, const QString& text) {
    QToolTip::hideText();
    EXPECT_TRUE(WaitUntil([] { return ShownToolTip() == nullptr; }));
    QHelpEvent rest(QEvent::ToolTip, place, viewport.mapToGlobal(place));
    QCoreApplication::sendEvent(&viewport, &rest);
    ExpectPlain(ShownToolTip(), text);
    QToolTip::hideText();
}

}  // namespace vigrel::testing
