#pragma once

#include <string>
#include <vector>

#include "common/ini.h"
#include "common/line_problem.h"
#include "common/log.h"
#include "common/texts.h"
#include "definitions/definition_folder.h"
#include "definitions/receiver_types.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/random.h"

namespace vigrel {

// The receivers and profiles of one application folder, for a program that edits them.
class cStationDefinitions {
  public:
    // What is handed in outlives the object. The ini's application path is the folder.
    cStationDefinitions(cFiles& files, const cClock& clock, cRandom& random, const cTexts& texts,
                        const cIniReader& ini);
    cStationDefinitions(const cStationDefinitions&) = delete;
    cStationDefinitions& operator=(const cStationDefinitions&) = delete;

    // Each reads one kind anew, which gives up what was not saved of it, and the other kind when it was not
    // read yet. Folders that are missing are made.
    void OpenReceivers();
    void OpenProfiles();

    const cDefinitionServices& Services() const { return m_Services; }
    const std::string& ApplicationPath() const { return m_Services.ini.ApplicationPath(); }
    cReceiverFolder& Receivers() { return m_Receivers; }
    cProfileFolder& Profiles() { return m_Profiles; }
    // The names of the profiles that list a receiver, as parallel or sequential one: as they stand here, or
    // as their files have them at this moment.
    std::vector<std::string> ProfilesWith(std::int16_t receiverIdentity);

    // What happened to files since the last call: upgrades, failures, wrong lines of the receiver type table.
    std::vector<cDefinitionNote> TakeNotes();

  private:
    void MakeFolders();
    void ReadReceivers();
    void ReadProfiles();
    bool FileUses(std::size_t profile, std::int16_t receiverIdentity) const;

    cLog m_Log;
    cReceiverTypes m_Types;
    cDefinitionServices m_Services;
    cReceiverFolder m_Receivers{m_Services};
    cProfileFolder m_Profiles{m_Services};
    bool m_ReceiversRead = false, m_ProfilesRead = false;
    std::vector<cDefinitionNote> m_Notes;
};

}  // namespace vigrel
