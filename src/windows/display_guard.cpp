#include "windows/display_guard.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>

#include "common/exit_codes.h"
#include "common/path_text.h"
#include "common/standard_error.h"

namespace vigrel {

cDisplayGuard* cDisplayGuard::s_Current = nullptr;

cDisplayGuard::cDisplayGuard() : m_Before(nullptr) {
    s_Current = this;
    m_Before = qInstallMessageHandler(Take);
}

void cDisplayGuard::Release() {
    if (s_Current == nullptr) return;
    qInstallMessageHandler(m_Before);
    s_Current = nullptr;
    for (const auto& [type, text] : m_Messages) {
        QMessageLogger logger;
        const QByteArray bytes = text.toLocal8Bit();
        type == QtDebugMsg || type == QtInfoMsg ? logger.info("%s", bytes.constData())
                                                : logger.warning("%s", bytes.constData());
    }
}

void cDisplayGuard::Take(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type == QtFatalMsg) s_Current->Refuse();
    s_Current->m_Messages.emplace_back(type, text);
}

// A display that the session names may come, and a service manager is there to try again; a platform that the
// toolkit hasn't got will not.
bool cDisplayGuard::IsTriedAgain() const {
    const bool named =
        !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    const bool service = !qEnvironmentVariableIsEmpty("NOTIFY_SOCKET");
    const QString missing =
        "Could not find the Qt platform plugin \"" + qEnvironmentVariable("QT_QPA_PLATFORM") + '"';
    return named && service && std::none_of(m_Messages.begin(), m_Messages.end(), [&](const auto& message) {
               return message.second.contains(missing);
           });
}

void cDisplayGuard::Refuse() const {
    std::string reason = "No display can be opened:";
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        if (const char* value = std::getenv(name)) reason += " " + std::string(name) + "=" + PathText(value);
    }
    const std::string program = PathText(program_invocation_short_name);
    PrintError(program, reason + ". Unset DISPLAY and WAYLAND_DISPLAY to run without windows.");
    for (const auto& [type, text] : m_Messages) PrintError(program, PathText(text.toStdString()));
    std::_Exit(IsTriedAgain() ? kExitNotYet : kExitRefused);
}

}  // namespace vigrel
