#pragma once

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "common/text_ids.h"
#include "receiver-check/check.h"
#include "support/fake_files.h"

namespace vigrel::testing {

inline const std::string kApp = "C:\\App\\";

// A machine on which all goes well, unless a test says otherwise.
class cFakeMachine : public cMachine {
  public:
    cPortTrial TryPort(const std::string& address, std::int32_t port) const override {
        m_Tried.push_back(address + ":" + std::to_string(port));
        return m_Trial;
    }
    std::optional<std::string> WhyNotPrinting(std::string_view device) const override {
        m_Asked.emplace_back(device);
        return m_PrinterProblem;
    }
    std::optional<double> SecondsOfSound(std::string_view) const override { return m_Seconds; }
    bool FolderExists(std::string_view path) const override { return !m_Missing.contains(std::string(path)); }
    std::optional<std::string> WhyNotWritable(std::string_view folder) const override {
        const auto found = m_NotWritable.find(std::string(folder));
        return found == m_NotWritable.end() ? std::nullopt : std::optional(found->second);
    }
    std::optional<std::string> WhyNotReadable(std::string_view) const override { return std::nullopt; }

    cPortTrial m_Trial;
    mutable std::vector<std::string> m_Tried;
    mutable std::vector<std::string> m_Asked;
    std::optional<std::string> m_PrinterProblem;
    std::optional<double> m_Seconds = 1.5;
    std::set<std::string> m_Missing;
    std::map<std::string, std::string> m_NotWritable;
};

// A station of which there is nothing to remark, and what a check says of it after a change.
class cCheckedStation : public ::testing::Test {
  protected:
    cCheckedStation() {
        m_Files.Put(kApp + "Vigrel_Texts.044", AllTexts());
        m_Files.PutFolder(kApp + "Alarms\\");
        m_Files.Put(kApp + "Sounds\\bell.wav", std::string("RIFF\4\0\0\0WAVEfmt ", 16));
    }

    // A text file that lacks nothing but the given number.
    static std::string AllTexts(int without = -1) {
        std::string lines;
        for (const int id : kTextIds) {
            if (id != without) lines += std::to_string(id) + "=Text\r\n";
        }
        return lines;
    }
    static std::string Colours() {
        std::string lines;
        for (const std::string state : {"Inactive", "Active", "Acked", "Message"}) {
            lines += "BackColor_" + state + "=255,255,255\r\nForeColor_" + state + "=0,0,0\r\n";
        }
        return lines;
    }
    // The configuration with lines added to the beginning of section General, and to the end of it all, which
    // is section CategorySpecificSetting_Fire.
    static std::string Content(const std::string& general = "", const std::string& rest = "") {
        const auto ended = [](const std::string& lines) { return lines + (lines.empty() ? "" : "\r\n"); };
        return "[General]\r\n" + ended(general) + "Language=044\r\nColumns=StateIcon,t0\r\n" + Colours() +
               "[CategorySpecificSetting_Vigrel]\r\nExtraText=Look after the sender\r\n" +
               "[CategorySpecificSetting_Fire]\r\n" + ended(rest);
    }
    cFindings Check(const std::string& content) {
        m_Files.Put(kApp + "VigrelReceiver.INI", content);
        return CheckInstallation(m_Files, kApp, &m_Machine);
    }
    static std::string Word(eSeverity severity) {
        return severity == eSeverity::Error ? "error" : severity == eSeverity::Warning ? "warning" : "remark";
    }
    // "warning flag-not-0-or-1 [General] ShowInTaskBar", one line each.
    static std::string Lines(const cFindings& findings) {
        std::string lines;
        for (const cFinding& finding : findings.m_All) {
            const cPlace& place = finding.place;
            if (!lines.empty()) lines += "\n";
            lines += Word(finding.severity) + " " + finding.name;
            if (!place.section.empty()) lines += " [" + place.section + "]";
            if (place.section.empty() && place.key.empty()) lines += " " + place.file;
            if (!place.key.empty()) lines += " " + place.key;
        }
        return lines;
    }
    // What is found when these lines stand in section General, behind section Fire, or in place of it all.
    std::string General(const std::string& lines) { return Lines(Check(Content(lines))); }
    std::string Rest(const std::string& lines) { return Lines(Check(Content("", lines))); }
    std::string Whole(const std::string& content) { return Lines(Check(content)); }
    // The message of the one finding.
    static std::string Message(const cFindings& findings) {
        EXPECT_EQ(findings.m_All.size(), 1u) << Lines(findings);
        return findings.m_All.empty() ? "" : findings.m_All[0].message;
    }
    std::string GeneralMessage(const std::string& lines) { return Message(Check(Content(lines))); }
    std::string RestMessage(const std::string& lines) { return Message(Check(Content("", lines))); }

    cFakeFiles m_Files;
    cFakeMachine m_Machine;
};

}  // namespace vigrel::testing
