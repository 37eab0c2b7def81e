#pragma once

#include <gtest/gtest.h>

#include <string>

#include "definitions/definition_file.h"
#include "support/fake_clock.h"
#include "support/fake_files.h"
#include "support/fake_random.h"

namespace vigrel {

// An application folder in memory with the texts that definitions log, a small receiver type table, and both
// folders of definitions.
class DefinitionTest : public ::testing::Test {
  protected:
    DefinitionTest() {
        m_Files.Put("C:\\App\\VigrelReceiver.INI", "[General]\r\nLanguage=044\r\n");
        m_Files.Put(
            "C:\\App\\Vigrel_Texts.044",
            "0=English\r\n803=File\r\n804=is no receiver\r\n805=is no profile\r\n888=Receiver brought up\r\n"
            "930=Profile brought up\r\n976=Receiver removed\r\n977=Receiver not removed\r\n"
            "978=Receiver not loaded\r\n979=Receiver not saved\r\n980=Profile not saved\r\n"
            "981=Profile removed\r\n982=Profile not loaded\r\n1088=Unknown type\r\n");
        m_Files.PutFolder("C:\\App\\LogFiles");
        m_Files.PutFolder("C:\\App\\Receivers");
        m_Files.PutFolder("C:\\App\\Profiles");
        EXPECT_TRUE(m_Texts.LoadTexts());
        m_Types.m_ReceiverTypes = {{2, "Alarm printer", "PRINTER", ""},
                                   {7, "Radio transmitter", "xrt", ""},
                                   {8, "Network transmitter", "XRTTCP", ""},
                                   {9, "Tele unit", "t940si", "Tele.INI"}};
        m_Files.m_Calls = 0;
    }

    static std::string ReceiverPath(const std::string& digits) {
        return "C:\\App\\Receivers\\Receiver_" + digits + ".dat";
    }
    static std::string ProfilePath(const std::string& digits) {
        return "C:\\App\\Profiles\\Profile_" + digits + ".dat";
    }
    // All log lines so far.
    std::string Log() const {
        const std::string path = "C:\\App\\LogFiles\\20260315.Log";
        return m_Files.FileExists(path) ? m_Files.ReadFile(path) : "";
    }

    testing::cFakeFiles m_Files;
    testing::cFakeClock m_Clock;
    testing::cFakeRandom m_Random;
    cIni m_Ini{m_Files, "C:\\App\\"};
    cTexts m_Texts{m_Files, m_Ini};
    cLog m_Log{m_Files, m_Clock, m_Texts, "C:\\App\\"};
    cReceiverTypes m_Types;
    cDefinitionServices m_Services{m_Files, m_Clock, m_Random, m_Texts, m_Log, m_Ini, m_Types};
};

}  // namespace vigrel
