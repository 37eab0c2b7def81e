#pragma once

#include <QApplication>
#include <QBasicTimer>
#include <QLocale>
#include <QTimer>
#include <QTranslator>
#include <functional>
#include <string>

#include "windows/display_guard.h"
#include "windows/toolkit_words.h"

class QMessageBox;
class QSessionManager;

namespace vigrel {

// The toolkit's application, with what a station of ours asks of it.
//
// A failure that no handler takes ends the program: a line on standard error, a message box that names it
// and closes by itself after a while, so that an unattended station starts again, and exit code 70.
class cApplication : public QApplication {
    Q_OBJECT
  public:
    static constexpr int kFailureBoxMilliseconds = 60000;

    // To be called before the application is made. In a Wayland session X11 is preferred where there is any,
    // since windows there can be placed, stacked and raised. Without any display the program runs unseen.
    static void ChoosePlatform();

    // Ends the program as cDisplayGuard tells when there is no display where one was asked for.
    cApplication(int& argc, char** argv, cDisplayGuard&& guard = cDisplayGuard());

    // Whether anybody can see a window of the program.
    static bool HasDisplay();

    // Runs a step outside the event loop under the same rule.
    void Guard(const std::function<void()>& step);
    bool notify(QObject* receiver, QEvent* event) override;

    // Closes what asks the operator for an answer, now and from now on, as if it had been refused: the
    // program is to stop.
    void RefuseDialogs();
    // Dialogs are asked again.
    void AllowDialogs() { m_RefuseTimer.stop(); }

    // The words that the toolkit writes by itself follow a language of the configuration ("046") from now on.
    // Until then, and with a language that isn't delivered, they are the desktop's.
    void SpeakLanguage(const std::string& language);

    // The title of the message box of a failure; without one it is the program's display name, which would
    // stand in the titles of all windows too.
    void SetMessageTitle(const std::string& title) { m_MessageTitle = title; }
    // The folder of the program's files, as the machine spells it: the line of a failure on standard error
    // names it behind the program.
    void SetFolder(const std::string& folder);
    // Calls the step again and again as long as the event loop turns, boxes or not, that of a failure
    // included. One step at a time; 0 milliseconds: none.
    void Repeat(int milliseconds, std::function<void()> step);
    // How long the message box of a failure stands.
    void SetFailureBoxTime(int milliseconds) { m_FailureBoxMilliseconds = milliseconds; }

    // The toolkit is about to end the program, whose display is gone. What is on the stack is still there;
    // the event loop never turns again. The program ends with kExitDisplayLost behind it.
    std::function<void()> OnDisplayLost;

    // The desktop's session ends, and the program with it. Not told when it may only come to that: a session
    // can be saved and go on, and another program can call its end off.
    std::function<void()> OnSessionEnds;
    // Asks what has to be asked before the session ends; false calls the end off. Behind a yes the program
    // ends with the session, and without another question.
    std::function<bool()> MaySessionEnd;

  protected:
    bool event(QEvent* event) override;
    // For the step that is repeated: events of the application itself are served whatever else stands still.
    void timerEvent(QTimerEvent* event) override;

  private:
    void AskBeforeSessionEnds(QSessionManager& session);
    void LoadToolkitTexts(const QLocale& locale);
    void MakeHintsReadable();
    static void HandleExit();
    [[noreturn]] void End(const std::string& failure);
    void ShowFailure(const std::string& failure);
    bool ServesFailureBox(QObject* receiver, const QEvent& event) const;

    QTranslator m_Translator;
    cToolkitWords m_Words;
    QTimer m_RefuseTimer;
    QBasicTimer m_RepeatTimer;
    std::function<void()> m_RepeatedStep;
    std::string m_MessageTitle, m_Origin;
    int m_FailureBoxMilliseconds = kFailureBoxMilliseconds;
    bool m_Failed = false, m_EndsWithSession = false;
    QMessageBox* m_FailureBox = nullptr;
};

}  // namespace vigrel
