#pragma once

#include <QString>
#include <QtGlobal>
#include <filesystem>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "support/temporary_folder.h"

namespace vigrel::testing {

// Hears what the toolkit warns of, from here to its end. To be made before the toolkit's application; one at
// a time.
//
// The toolkit gets the folder of the user's that it asks for; not every machine that tests has one.
//
// What the off-screen platform can't do with a window it says at each; that is the platform's affair, and no
// program of ours.
class cHeardWarnings {
  public:
    cHeardWarnings() {
        s_Current = this;
        GiveRuntimeFolder();
        m_Before = qInstallMessageHandler(Hear);
    }
    ~cHeardWarnings() { qInstallMessageHandler(m_Before); }
    cHeardWarnings(const cHeardWarnings&) = delete;
    cHeardWarnings& operator=(const cHeardWarnings&) = delete;

    // Those since the last call.
    std::vector<std::string> Take() {
        const std::lock_guard lock(m_Mutex);
        return std::exchange(m_Warnings, {});
    }

  private:
    void GiveRuntimeFolder() {
        if (!qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) return;
        std::filesystem::permissions(m_Runtime.Path(), std::filesystem::perms::owner_all);
        qputenv("XDG_RUNTIME_DIR", m_Runtime.Path().c_str());
    }
    static void Hear(QtMsgType type, const QMessageLogContext& context, const QString& text) {
        const bool harmless = type == QtDebugMsg || type == QtInfoMsg;
        if (text.startsWith("This plugin does not support ")) return;
        if (!harmless && type != QtFatalMsg) {
            const std::lock_guard lock(s_Current->m_Mutex);
            s_Current->m_Warnings.push_back(text.toStdString());
        }
        if (type == QtFatalMsg) s_Current->m_Before(type, context, text);
    }

    // A message handler is a function.
    static inline cHeardWarnings* s_Current = nullptr;
    QtMessageHandler m_Before = nullptr;
    std::mutex m_Mutex;  // warnings can come from every thread
    std::vector<std::string> m_Warnings;
    cTemporaryFolder m_Runtime;
};

}  // namespace vigrel::testing
