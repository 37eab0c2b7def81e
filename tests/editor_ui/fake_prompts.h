#pragma once

#include <QPrinter>
#include <QString>
#include <QWidget>
#include <deque>
#include <functional>

#include "editor_ui/pages/prompts.h"

namespace vigrel::testing {

// Answers what a test has put in line, and notes what was asked.
class cFakePrompts : public cPrompts {
  public:
    eSave AskToSave(QWidget*, const QString& title) override {
        m_Asked += "save " + title + "\n";
        return Take(m_SaveAnswers, eSave::Cancel);
    }
    eConflict AskConflict(QWidget*, const QString& name, bool isGone) override {
        m_Asked += (isGone ? "mine, theirs: " : "mine, theirs, both: ") + name + "\n";
        if (m_WhileAsked) m_WhileAsked();
        return Take(m_ConflictAnswers, eConflict::Cancel);
    }
    bool AskYesNo(QWidget*, const QString& question) override {
        m_Asked += "yes or no: " + question + "\n";
        if (m_WhileAsked) m_WhileAsked();
        return Take(m_YesNoAnswers, false);
    }
    void ShowFailure(QWidget* owner, const QString& text) override {
        m_Asked += "failure: " + text + "\n";
        m_Window = owner->window();
    }
    QString AskOpenPath(QWidget*, const QString& folder, const QString&) override {
        m_Asked += "open in " + folder + "\n";
        return Take(m_Texts, QString());
    }
    QString AskSavePath(QWidget*, const QString& path, const QString&, const QString& suffix) override {
        m_Asked += "save as " + path + " (" + suffix + ")\n";
        return Take(m_Texts, QString());
    }
    QString AskText(QWidget*, const QString& label, const QString& text) override {
        m_Asked += label + ": " + text + "\n";
        return Take(m_Texts, QString());
    }

    bool AskPrinter(QWidget*, QPrinter& printer) override {
        m_Asked += "printer for " + printer.docName() + "\n";
        printer.setOutputFileName(m_PrintedFile);
        return !m_PrintedFile.isEmpty();
    }

    QString m_Asked;
    std::function<void()> m_WhileAsked;  // what happens while a question is open
    QString m_PrintedFile;               // where a print goes; empty: cancelled
    QWidget* m_Window = nullptr;         // over which the last failure was shown
    std::deque<eSave> m_SaveAnswers;
    std::deque<eConflict> m_ConflictAnswers;
    std::deque<bool> m_YesNoAnswers;
    std::deque<QString> m_Texts;

  private:
    template <class T>
    static T Take(std::deque<T>& answers, T otherwise) {
        if (answers.empty()) return otherwise;
        T answer = answers.front();
        answers.pop_front();
        return answer;
    }
};

}  // namespace vigrel::testing
