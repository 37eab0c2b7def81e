#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "common/failure.h"
#include "support/fake_files.h"

namespace vigrel::testing {

// What can befall a call of the files.
enum class eFault {
    InputOutput,   // any call fails, and does nothing
    DiskFull,      // what needs room fails; a file is written half
    ShortWrite,    // a file is written half
    TooManyFiles,  // what opens a file or a folder fails
    Permission,    // what changes anything fails
    FailingSync    // bytes and names are written, and can be lost
};

inline std::string NameOf(eFault fault) {
    constexpr const char* kNames[] = {"InputOutput",  "DiskFull",   "ShortWrite",
                                      "TooManyFiles", "Permission", "FailingSync"};
    return kNames[static_cast<int>(fault)];
}

// Files whose calls fail: from call m_First on (from 0, reading calls included), m_Count of them.
class cFaultyFiles : public cFiles {
  public:
    explicit cFaultyFiles(cFakeFiles& files) : m_Files(files) {}

    eFault m_Fault = eFault::InputOutput;
    int m_First = 0, m_Count = 0;
    std::function<void()> m_OnCall;
    mutable int m_Calls = 0;
    mutable int m_Failed = 0;             // calls that the fault met
    mutable std::set<std::string> m_Met;  // which they were: "write C:\App\..."

    bool FileExists(std::string_view path) const override {
        return !Meets({eFault::InputOutput}, "look", path) && m_Files.FileExists(path);
    }
    std::string ReadFile(std::string_view path) const override {
        if (Meets(kOpening, "read", path)) Fail(path);
        return m_Files.ReadFile(path);
    }
    std::vector<std::string> ListFiles(std::string_view folder, std::string_view mask) const override {
        if (Meets(kOpening, "list", folder)) return {};
        return m_Files.ListFiles(folder, mask);
    }
    cListing List(std::string_view folder, std::string_view mask) const override {
        if (Meets(kOpening, "list", folder)) return {{}, {}, std::string(folder) + ": made to fail"};
        return m_Files.List(folder, mask);
    }
    std::vector<std::string> ListNames(std::string_view folder, std::string_view mask) const override {
        if (Meets(kOpening, "list", folder)) Fail(folder);
        return m_Files.ListNames(folder, mask);
    }
    std::string Spelling(std::string_view path) const override { return m_Files.Spelling(path); }
    cStamp Stamp(std::string_view path) const override {
        return Meets({eFault::InputOutput}, "stamp", path) ? cStamp{} : m_Files.Stamp(path);
    }
    void WriteFile(std::string_view path, std::string_view bytes, bool sync) override {
        if (!Meets(kWriting, "write", path)) return m_Files.WriteFile(path, bytes, sync);
        if (m_Fault == eFault::DiskFull || m_Fault == eFault::ShortWrite)
            m_Files.WriteFile(path, bytes.substr(0, bytes.size() / 2), false);
        if (m_Fault == eFault::FailingSync) {
            m_Files.WriteFile(path, bytes, false);
            if (!sync) return;
        }
        Fail(path);
    }
    void WriteFileLike(std::string_view path, std::string_view bytes, std::string_view) override {
        WriteFile(path, bytes, true);
    }
    void AppendFile(std::string_view path, std::string_view bytes) override {
        if (m_Fault == eFault::FailingSync || !Meets(kWriting, "append", path))
            return m_Files.AppendFile(path, bytes);
        if (m_Fault == eFault::DiskFull || m_Fault == eFault::ShortWrite)
            m_Files.AppendFile(path, bytes.substr(0, bytes.size() / 2));
        Fail(path);
    }
    void RemoveFile(std::string_view path) override {
        if (Meets({eFault::InputOutput, eFault::Permission}, "remove", path)) Fail(path);
        m_Files.RemoveFile(path);
    }
    void RenameFile(std::string_view from, std::string_view to) override {
        if (Meets(kNaming, "rename", from)) Fail(from);
        m_Files.RenameFile(from, to);
    }
    void SyncFolder(std::string_view folder) override {
        if (Meets(kSyncing, "sync", folder)) Fail(folder);
        m_Files.SyncFolder(folder);
    }
    std::unique_ptr<cPendingSync> StartSync(std::string_view folder) override {
        if (!Meets(kSyncing, "sync all", folder)) return m_Files.StartSync(folder);
        if (m_Fault != eFault::FailingSync) Fail(folder);
        return std::make_unique<cFailedSync>();
    }
    void MakeFolder(std::string_view path) override {
        if (Meets(kNaming, "mkdir", path)) Fail(path);
        m_Files.MakeFolder(path);
    }
    void SetNormalAttributes(std::string_view path) override {
        if (Meets({eFault::InputOutput, eFault::Permission}, "attributes", path)) Fail(path);
        m_Files.SetNormalAttributes(path);
    }
    std::string LinkTarget(std::string_view path) const override { return m_Files.LinkTarget(path); }

  private:
    using cFaults = std::vector<eFault>;
    static inline const cFaults kOpening{eFault::InputOutput, eFault::TooManyFiles};
    static inline const cFaults kSyncing{eFault::InputOutput, eFault::TooManyFiles, eFault::FailingSync};
    static inline const cFaults kNaming{eFault::InputOutput, eFault::DiskFull, eFault::Permission};
    static inline const cFaults kWriting{eFault::InputOutput,  eFault::DiskFull,   eFault::ShortWrite,
                                         eFault::TooManyFiles, eFault::Permission, eFault::FailingSync};
    class cFailedSync : public cPendingSync {
      public:
        bool Done() const override { return true; }
        bool Wait() override { return false; }
    };

    bool Meets(const cFaults& faults, std::string_view operation, std::string_view path) const {
        if (m_OnCall) m_OnCall();
        const int call = m_Calls++;
        if (call < m_First || call - m_First >= m_Count) return false;
        if (std::find(faults.begin(), faults.end(), m_Fault) == faults.end()) return false;
        ++m_Failed;
        m_Met.insert(std::string(operation) + " " + std::string(path));
        return true;
    }
    [[noreturn]] void Fail(std::string_view path) const {
        throw cFailure(Number(), std::string(path) + ": made to fail");
    }
    eFailure Number() const {
        if (m_Fault == eFault::DiskFull) return eFailure::DiskFull;
        return m_Fault == eFault::Permission ? eFailure::PermissionDenied : eFailure::InputOutput;
    }

    cFakeFiles& m_Files;
};

}  // namespace vigrel::testing
