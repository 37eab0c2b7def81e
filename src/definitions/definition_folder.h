#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "definitions/definition_file.h"
#include "definitions/profile.h"
#include "definitions/receiver.h"

namespace vigrel {

// The name by which people know a definition.
inline const std::string& NameOf(const cReceiver& receiver) {
    return receiver.m_ReceiverName;
}
inline const std::string& NameOf(const cProfile& profile) {
    return profile.GetName();
}
inline void Rename(cReceiver& receiver, const std::string& name) {
    receiver.m_ReceiverName = name;
}
inline void Rename(cProfile& profile, const std::string& name) {
    profile.SetName(name);
}
// What a new one needs to be saved.
inline void Prepare(cReceiver&) {}
inline void Prepare(cProfile& profile) {
    profile.m_TimeSchedule = std::make_unique<cTimeSchedule>();
    profile.m_TimeSchedule->SetDefaultPeriod();
}

// All definitions of one kind of an application folder, loaded, edited and not yet saved ones among them.
// Positions count from 0 and stay the same until a definition is removed. What goes wrong with a file is told
// by the note of the services.
template <class Definition>
class cDefinitionFolder {
  public:
    explicit cDefinitionFolder(const cDefinitionServices& services) : m_Services(services) {}

    // Replaces all by what the folder holds, in the order of the identities. A file that can't be loaded is
    // left out, and out of reach of everything here. What a crash left of a save is taken away.
    void Load() {
        m_Definitions.clear();
        m_Unreadable.clear();
        RemoveDefinitionTemporaries(m_Services, Definition::kKind);
        for (const std::int16_t identity : DefinitionIdentities(m_Services, Definition::kKind)) {
            auto definition = std::make_unique<Definition>(m_Services);
            if (definition->LoadFromDisk(identity)) {
                m_Definitions.push_back(std::move(definition));
            } else {
                m_Unreadable.push_back(definition->CreateFileName(identity));
            }
        }
    }
    // Adds a new one, unsaved; its position.
    std::size_t Add(const std::string& name) {
        auto definition = std::make_unique<Definition>(m_Services);
        Rename(*definition, name);
        Prepare(*definition);
        m_Definitions.push_back(std::move(definition));
        return m_Definitions.size() - 1;
    }
    // Adds a copy with a name of its own, unsaved; its position.
    std::size_t AddCopy(std::size_t position, const std::string& name) {
        auto definition = std::make_unique<Definition>(m_Services);
        definition->CopyFrom(*m_Definitions.at(position));
        Rename(*definition, name);
        m_Definitions.push_back(std::move(definition));
        return m_Definitions.size() - 1;
    }
    // Writes one, and reads it back as the file has it.
    bool Save(std::size_t position) {
        Definition& definition = *m_Definitions.at(position);
        return definition.SaveToDisk() && definition.LoadFromDisk(definition.m_DiskIdentity);
    }
    // Takes one away, with its file when it has one. False, and it stays, when the file can't be removed.
    bool Remove(std::size_t position) {
        Definition& definition = *m_Definitions.at(position);
        if (definition.m_DiskIdentity >= 0 && !definition.RemoveFromDisk()) return false;
        m_Definitions.erase(m_Definitions.begin() + static_cast<std::ptrdiff_t>(position));
        return true;
    }
    // Gives up the changes of one: back to its file, or away when it has none. False when its file can no
    // longer be read; it keeps its changes then.
    bool Revert(std::size_t position) {
        const std::int16_t identity = m_Definitions.at(position)->m_DiskIdentity;
        if (identity < 0) return Remove(position);
        auto again = std::make_unique<Definition>(m_Services);
        if (!again->LoadFromDisk(identity)) return false;
        m_Definitions[position] = std::move(again);
        return true;
    }
    bool HasChanges() const {
        for (const auto& definition : m_Definitions) {
            if (definition->HasChangedSinceLastLoadFromDisk()) return true;
        }
        return false;
    }
    // A name that none has yet: the wish itself, or with " 2", " 3" ... behind it.
    std::string FreeName(const std::string& wish) const {
        std::string name = wish;
        for (int i = 2; HasName(name); ++i) name = wish + " " + std::to_string(i);
        return name;
    }

    std::size_t Count() const { return m_Definitions.size(); }
    Definition& At(std::size_t position) { return *m_Definitions.at(position); }
    const Definition& At(std::size_t position) const { return *m_Definitions.at(position); }
    // The files that could not be loaded.
    const std::vector<std::string>& Unreadable() const { return m_Unreadable; }

  private:
    bool HasName(const std::string& name) const {
        for (const auto& definition : m_Definitions) {
            if (NameOf(*definition) == name) return true;
        }
        return false;
    }

    const cDefinitionServices& m_Services;
    std::vector<std::unique_ptr<Definition>> m_Definitions;
    std::vector<std::string> m_Unreadable;
};

using cReceiverFolder = cDefinitionFolder<cReceiver>;
using cProfileFolder = cDefinitionFolder<cProfile>;

}  // namespace vigrel
