#pragma once

#include <gtest/gtest.h>

#include <QString>
#include <QtGlobal>
#include <filesystem>
#include <mutex>
#include <vector>

#include "support/temporary_folder.h"

namespace vigrel::testing {

// Fails each test in which the toolkit warns of anything. Made before the toolkit's application, by the main
// function of a test program, and for its whole run.
//
// The toolkit gets the folder of the user's that it asks for; not every machine that tests has one.
//
// What the off-screen platform can't do with a window it says at each; that is the platform's affair, and no
// program of ours.
class cToolkitWarnings : public ::testing::EmptyTestEventListener {
  public:
    // Hands a new one to the test framework, which owns it.
    static void FailTests() {
        s_Current = new cToolkitWarnings;
        ::testing::UnitTest::GetInstance()->listeners().Append(s_Current);
        s_Current->GiveRuntimeFolder();
        s_Current->m_Before = qInstallMessageHandler(Take);
    }
    void OnTestEnd(const ::testing::TestInfo&) override { Tell(); }
    void OnTestSuiteEnd(const ::testing::TestSuite&) override { Tell(); }
    void OnTestProgramEnd(const ::testing::UnitTest&) override { qInstallMessageHandler(m_Before); }

  private:
    void GiveRuntimeFolder() {
        if (!qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) return;
        std::filesystem::permissions(m_Runtime.Path(), std::filesystem::perms::owner_all);
        qputenv("XDG_RUNTIME_DIR", m_Runtime.Path().c_str());
    }
    static void Take(QtMsgType type, const QMessageLogContext& context, const QString& text) {
        const bool harmless = type == QtDebugMsg || type == QtInfoMsg;
        if (text.startsWith("This plugin does not support ")) return;
        if (!harmless && type != QtFatalMsg) {
            const std::lock_guard lock(s_Current->m_Mutex);
            s_Current->m_Warnings.push_back(text);
        }
        if (type == QtFatalMsg) s_Current->m_Before(type, context, text);
    }
    // A test that has already ended can't fail any more; its suite's end adds to the program's failure.
    void Tell() {
        std::vector<QString> warnings;
        {
            const std::lock_guard lock(m_Mutex);
            warnings.swap(m_Warnings);
        }
        for (const QString& warning : warnings) {
            ADD_FAILURE() << "the toolkit warns: " << warning.toStdString();
        }
    }

    // A message handler is a function.
    static inline cToolkitWarnings* s_Current = nullptr;
    QtMessageHandler m_Before = nullptr;
    std::mutex m_Mutex;  // warnings can come from every thread
    std::vector<QString> m_Warnings;
    cTemporaryFolder m_Runtime;
};

}  // namespace vigrel::testing
