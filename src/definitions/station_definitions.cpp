#include "definitions/station_definitions.h"

#include <algorithm>
#include <utility>

#include "common/failure.h"
#include "definitions/receiver_list.h"

namespace vigrel {
namespace {

bool Lists(const std::string& receivers, std::int16_t identity) {
    const std::vector<std::string> items = ReceiverItems(receivers);
    return std::any_of(items.begin(), items.end(),
                       [&](const std::string& item) { return ReceiverIdentity(item) == identity; });
}

bool Uses(const cProfile& profile, std::int16_t identity) {
    return Lists(profile.m_ParallellReceivers, identity) || Lists(profile.m_SequentialReceivers, identity);
}

}  // namespace

cStationDefinitions::cStationDefinitions(cFiles& files, const cClock& clock, cRandom& random,
                                         const cTexts& texts, const cIniReader& ini)
    : m_Log(files, clock, texts, ini.ApplicationPath()), m_Services{files, clock, random, texts,
                                                                    m_Log, ini,   m_Types} {
    m_Services.m_OnNote = [this](const cDefinitionNote& note) { m_Notes.push_back(note); };
}

void cStationDefinitions::MakeFolders() {
    for (const char* folder : {"LogFiles", "Receivers", "Profiles"}) {
        // As a rule it is there. One that can't be made shows when a file is saved.
        SkipFailure([&] { m_Services.files.MakeFolder(m_Services.ini.FullPath(folder)); });
    }
}

void cStationDefinitions::ReadReceivers() {
    for (const cLineProblem& problem :
         m_Types.Load(m_Services.files, m_Services.ini.FullPath(kReceiverTypesFile))) {
        m_Notes.push_back({cDefinitionNote::eKind::Failed, LineProblemPhrase(kReceiverTypesFile, problem)});
    }
    m_Receivers.Load();
    m_ReceiversRead = true;
}

void cStationDefinitions::ReadProfiles() {
    m_Profiles.Load();
    m_ProfilesRead = true;
}

void cStationDefinitions::OpenReceivers() {
    MakeFolders();
    ReadReceivers();
    if (!m_ProfilesRead) ReadProfiles();
}

void cStationDefinitions::OpenProfiles() {
    MakeFolders();
    if (!m_ReceiversRead) ReadReceivers();
    ReadProfiles();
}

// What was taken out of a profile and isn't saved yet still sends alarms there.
bool cStationDefinitions::FileUses(std::size_t profile, std::int16_t receiverIdentity) const {
    if (!m_Profiles.At(profile).HasChangedSinceLastLoadFromDisk()) return false;
    const auto file = m_Profiles.InFile(profile);
    return file && Uses(*file, receiverIdentity);
}

std::vector<std::string> cStationDefinitions::ProfilesWith(std::int16_t receiverIdentity) {
    m_Profiles.LookAgain();
    std::vector<std::string> names;
    for (std::size_t i = 0; i < m_Profiles.Count(); ++i) {
        const cProfile& profile = m_Profiles.At(i);
        if (Uses(profile, receiverIdentity) || FileUses(i, receiverIdentity))
            names.push_back(profile.GetName());
    }
    return names;
}

std::vector<cDefinitionNote> cStationDefinitions::TakeNotes() {
    return std::exchange(m_Notes, {});
}

}  // namespace vigrel
