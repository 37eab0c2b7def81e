#pragma once

#include <QString>
#include <QtGlobal>
#include <utility>
#include <vector>

namespace vigrel {

// Stands by while the toolkit looks for the display: where it finds none it aborts the program, with the
// reasons among other words. Here that ends the program with one message that says which display was
// wanted and why there is none, and with kExitRefused; with kExitNotYet as a service whose session named a
// display, which may just not be up yet. What the toolkit says otherwise goes its usual way afterwards.
//
// One at a time, since the toolkit's messages go to a function.
class cDisplayGuard {
  public:
    cDisplayGuard();
    ~cDisplayGuard() { Release(); }
    cDisplayGuard(const cDisplayGuard&) = delete;
    cDisplayGuard& operator=(const cDisplayGuard&) = delete;
    // The display is there.
    void Release();

  private:
    static void Take(QtMsgType type, const QMessageLogContext& context, const QString& text);
    bool IsTriedAgain() const;
    [[noreturn]] void Refuse() const;

    static cDisplayGuard* s_Current;
    QtMessageHandler m_Before;
    std::vector<std::pair<QtMsgType, QString>> m_Messages;
};

}  // namespace vigrel
