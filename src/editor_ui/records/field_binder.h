#pragma once

#include <QCheckBox>
#include <QPlainTextEdit>
#include <algorithm>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

#include "adapters/qt/qt_text.h"
#include "common/binary.h"
#include "editor_ui/pages/text_edit.h"
#include "editor_ui/records/definition_source.h"
#include "editor_ui/records/record_commands.h"

namespace vigrel {

// Ties the widgets of a form to the fields of one definition at a time. A field is written when the user
// edits its widget and at no other time, so that what a form can't show exactly stays as it is.
template <class Definition>
class cFieldBinder {
  public:
    template <class T>
    using Get = std::function<T(const Definition&)>;
    template <class T>
    using Set = std::function<void(Definition&, const T&)>;

    // The widgets are made without a parent: a layout takes them.
    cTextEdit* Text(const char* objectName, const QString& name, Get<std::string> get, Set<std::string> set) {
        auto* widget = Named(new cTextEdit, objectName, name);
        QObject::connect(widget, &QLineEdit::textEdited, widget,
                         [this, set, step = Step(name, objectName, true)](const QString& text) {
                             Edit(set, FromQString(text), step);
                         });
        m_Shows.push_back([widget, get](const Definition& shown) { widget->setText(ToQString(get(shown))); });
        return widget;
    }
    cTextEdit* Text(const char* objectName, const QString& name, std::string Definition::*field) {
        return Text(
            objectName, name, [field](const Definition& shown) { return shown.*field; },
            [field](Definition& shown, const std::string& text) { shown.*field = text; });
    }
    QCheckBox* Flag(const char* objectName, const QString& caption, Get<std::int16_t> get,
                    Set<std::int16_t> set) {
        auto* widget = Named(new QCheckBox(caption), objectName, caption);
        QObject::connect(widget, &QCheckBox::clicked, widget,
                         [this, set, step = Step(caption, objectName, false)](bool on) {
                             Edit(set, on ? True16 : False16, step);
                         });
        m_Shows.push_back(
            [widget, get](const Definition& shown) { widget->setChecked(get(shown) != False16); });
        return widget;
    }
    QCheckBox* Flag(const char* objectName, const QString& caption, Boolean16 Definition::*field) {
        return Flag(
            objectName, caption, [field](const Definition& shown) { return shown.*field; },
            [field](Definition& shown, const std::int16_t& on) { shown.*field = on; });
    }
    // Anything else that a form shows of its definition.
    void AddShow(std::function<void(const Definition&)> show) { m_Shows.push_back(std::move(show)); }

    // What is shown must outlive its showing; nullptr ends it and leaves the widgets as they are.
    void Show(Definition* definition, TypedTexts* typed) {
        m_Shown = definition;
        m_Typed = typed;
        if (m_Shown == nullptr) return;
        for (const auto& show : m_Shows) show(*m_Shown);
    }
    Definition* Shown() const { return m_Shown; }
    // What stands in a field of the shown definition without being its value; none when it is.
    const cTypedText* Typed(const QString& field) const {
        if (m_Typed == nullptr) return nullptr;
        const auto found = m_Typed->find(field);
        return found == m_Typed->end() ? nullptr : &found->second;
    }

    // Changes the shown definition and tells of it. What was typed in the step's field is its value now.
    template <class T>
    void Edit(const Set<T>& set, const T& value, const cFieldStep& step) {
        if (m_Shown == nullptr) return;
        set(*m_Shown, value);
        if (m_Typed != nullptr) m_Typed->erase(step.field);
        if (OnEdited) OnEdited(step);
    }
    // Keeps what was typed in a field and is no value.
    void Keep(const cTypedText& typed, const cFieldStep& step) {
        if (m_Shown == nullptr || m_Typed == nullptr) return;
        (*m_Typed)[step.field] = typed;
        if (OnEdited) OnEdited(step);
    }
    // What is typed in a part of the form, whose names all begin in one way.
    TypedTexts TypedIn(const QString& prefix) const {
        TypedTexts typed;
        if (m_Typed == nullptr) return typed;
        std::copy_if(m_Typed->begin(), m_Typed->end(), std::inserter(typed, typed.end()),
                     [&](const auto& each) { return each.first.startsWith(prefix); });
        return typed;
    }
    // Without a step of its own.
    void SetTypedIn(const QString& prefix, const TypedTexts& typed) {
        if (m_Typed == nullptr) return;
        std::erase_if(*m_Typed, [&](const auto& each) { return each.first.startsWith(prefix); });
        m_Typed->insert(typed.begin(), typed.end());
    }
    // Without a step of its own.
    void Forget(const QString& field) {
        if (m_Typed != nullptr) m_Typed->erase(field);
    }
    std::function<void(const cFieldStep&)> OnEdited;

    static cFieldStep Step(const QString& name, const QString& field, bool joins) {
        return {QObject::tr("changing %1").arg(QString(name).remove('&')), field, joins};
    }

  private:
    template <class Widget>
    static Widget* Named(Widget* widget, const char* objectName, const QString& name) {
        widget->setObjectName(objectName);
        widget->setAccessibleName(name);
        return widget;
    }

    Definition* m_Shown = nullptr;
    TypedTexts* m_Typed = nullptr;
    std::vector<std::function<void(const Definition&)>> m_Shows;
};

}  // namespace vigrel
