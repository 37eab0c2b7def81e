#pragma once

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QWidget>
#include <string>

namespace vigrel::testing {

// Whether the widget is part of another one, which speaks for it: the field within a combo box, the button
// that clears a field, a viewport, a header with its corner, a scroll bar, a tab bar.
inline bool SpokenForByItsParent(const QWidget& widget) {
    if (widget.objectName().startsWith("qt_")) return true;
    for (const char* kind : {"QHeaderView", "QTableCornerButton", "QScrollBar", "QTabBar"}) {
        if (widget.inherits(kind)) return true;
    }
    const QWidget* parent = widget.parentWidget();
    for (const char* kind : {"QComboBox", "QAbstractSpinBox", "QLineEdit", "QTabBar"}) {
        if (parent != nullptr && parent->inherits(kind)) return true;
    }
    return false;
}

inline bool IsInMenu(const QAction& action) {
    for (const QObject* object : action.associatedObjects()) {
        if (object->inherits("QMenu") || object->inherits("QMenuBar")) return true;
    }
    return false;
}

// Whether an operator can act on it: it takes the keyboard, or is pressed.
inline bool IsInteractive(const QWidget& widget) {
    return widget.focusPolicy() != Qt::NoFocus || qobject_cast<const QAbstractButton*>(&widget) != nullptr;
}

inline bool HasSpokenName(QWidget& widget) {
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&widget);
    return spoken != nullptr && !spoken->text(QAccessible::Name).trimmed().isEmpty();
}

// The interactive widgets and menu entries below a window that assistive tools would find without a name, one
// a line with what is around them; empty when there are none. Also those that don't show at the moment.
inline std::string UnnamedWidgets(QWidget& window) {
    std::string unnamed;
    const auto add = [&](const QObject& object) {
        for (const QObject* at = &object; at != nullptr; at = at->parent()) {
            unnamed += std::string(at->metaObject()->className()) + " " + at->objectName().toStdString() +
                       (at->parent() != nullptr ? " in " : "\n");
        }
    };
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (IsInteractive(*widget) && !SpokenForByItsParent(*widget) && !HasSpokenName(*widget)) add(*widget);
    }
    for (const QAction* action : window.findChildren<QAction*>()) {
        if (IsInMenu(*action) && !action->isSeparator() && action->text().trimmed().isEmpty()) add(*action);
    }
    return unnamed;
}

// How many widgets below a window the walk looks at.
inline int InteractiveWidgets(const QWidget& window) {
    int count = 0;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (IsInteractive(*widget) && !SpokenForByItsParent(*widget)) ++count;
    }
    return count;
}

}  // namespace vigrel::testing
