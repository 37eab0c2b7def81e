#pragma once

#include <algorithm>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "common/failure.h"
#include "platform/notification_area.h"
#include "platform/signal_light.h"
#include "platform/single_instance.h"
#include "platform/suite_library.h"
#include "platform/wave_device.h"
#include "support/transcript.h"

namespace vigrel::testing {

// A wave device that plays until a test ends the play.
class cFakeWaveDevice : public cWaveDevice {
  public:
    explicit cFakeWaveDevice(cTranscript* transcript = nullptr) : m_Transcript(transcript) {}
    void SetDeviceType(std::string_view type) override { Note("type " + std::string(type)); }
    std::string FileName() const override { return m_FileName; }
    void SetFileName(std::string_view path) override {
        m_FileName = path;
        Note("file " + m_FileName);
    }
    void Command(std::string_view command) override {
        Note(std::string(command));
        if (m_FailCommands.contains(std::string(command)))
            throw cFailure(eFailure::Device, "the device fails");
        if (command == "Play") {
            m_Playing = true;
            m_EndWaits = false;
        } else if (command == "Stop" || command == "Prev" || command == "Close") {
            m_EndWaits = m_EndWaits || m_Playing;
            m_Playing = false;
        } else if (command != "Open") {
            throw cFailure(eFailure::InvalidCall, "no such command");
        }
    }
    void SetNotify(bool on) override {
        m_Notify = on;
        Note(on ? "notify on" : "notify off");
    }
    void SetWait(bool on) override { Note(on ? "wait on" : "wait off"); }
    void SetShareable(bool on) override { Note(on ? "share on" : "share off"); }
    int Mode() const override { return m_Playing ? Playing : 525; }

    // The file has been played to its end.
    void EndPlay() {
        m_EndWaits = m_EndWaits || m_Playing;
        m_Playing = false;
        RunEvents();
    }
    // The event loop delivers the end of a play that a command has cut.
    void RunEvents() {
        if (std::exchange(m_EndWaits, false) && m_Notify && OnDone) OnDone();
    }
    // It has, but nobody is told.
    void EndPlaySilently() { m_Playing = false; }

    std::set<std::string> m_FailCommands;
    bool m_Playing = false;

  private:
    void Note(const std::string& step) {
        if (m_Transcript) m_Transcript->Add("sound: " + step);
    }
    cTranscript* m_Transcript;
    std::string m_FileName;
    bool m_Notify = false;
    bool m_EndWaits = false;  // a play has ended, and nobody was told yet
};

class cFakeNotificationArea : public cNotificationArea {
  public:
    explicit cFakeNotificationArea(cTranscript* transcript = nullptr) : m_Transcript(transcript) {}
    void SetIcon(int image) override {
        m_Image = image;
        Note("icon " + std::to_string(image));
    }
    std::string ToolTip() const override { return m_ToolTip; }
    void SetToolTip(std::string_view text) override {
        m_ToolTip = text;
        Note("tooltip " + m_ToolTip);
    }
    void SetVisible(bool visible) override {
        m_Visible = visible;
        Note(visible ? "visible" : "invisible");
    }
    bool HostAvailable() const override { return m_HostAvailable; }

    int m_Image = 0;  // the one last set
    std::string m_ToolTip;
    bool m_Visible = false, m_HostAvailable = true;

  private:
    void Note(const std::string& step) {
        if (m_Transcript) m_Transcript->Add("tray: " + step);
    }
    cTranscript* m_Transcript;
};

// The signal light's library with the devices that a test plugs in.
class cFakeSignalLight : public cSignalLight {
  public:
    explicit cFakeSignalLight(cTranscript* transcript = nullptr) : m_Transcript(transcript) {}
    double DelcomGetDLLVersion() override {
        if (m_Missing) throw cFailure(eFailure::FileNotFound, "no library");
        return m_Version;
    }
    std::int32_t DelcomGetDeviceCount(std::int32_t type) override {
        if (m_FailCalls.contains("count")) throw cFailure(eFailure::Device, "the light fails");
        const auto found = m_Devices.find(type);
        return found == m_Devices.end() ? 0 : static_cast<std::int32_t>(found->second.size());
    }
    void DelcomGetNthDevice(std::int32_t type, std::int32_t index, std::string& buffer) override {
        const std::vector<std::string>& names = m_Devices[type];
        const auto i = static_cast<std::size_t>(index);
        const std::string name = (i < names.size() ? names[i] : "") + '\0';
        std::copy_n(name.begin(), std::min(name.size(), buffer.size()), buffer.begin());
    }
    std::int32_t DelcomOpenDevice(std::string_view name, std::int32_t mode) override {
        Note("open " + std::string(name) + " " + std::to_string(mode));
        if (m_FailCalls.contains("open")) throw cFailure(eFailure::Device, "the light fails");
        for (const auto& [type, names] : m_Devices) {
            for (const std::string& known : names) {
                if (known != name) continue;
                m_Open.insert(++m_LastHandle);
                return m_LastHandle;
            }
        }
        return 0;
    }
    void DelcomCloseDevice(std::int32_t handle) override {
        if (m_Open.contains(handle)) Step("close", handle, "");
        m_Open.erase(handle);
    }
    void DelcomLoadPreScalar(std::int32_t handle, std::uint8_t value) override {
        Step("prescalar", handle, std::to_string(value));
    }
    void DelcomLoadLedFreqDuty(std::int32_t handle, std::uint8_t led, std::uint8_t on,
                               std::uint8_t off) override {
        Step("freqduty", handle, std::to_string(led) + " " + std::to_string(on) + "," + std::to_string(off));
    }
    void DelcomLoadInitialPhaseDelay(std::int32_t handle, std::uint8_t led, std::uint8_t delay) override {
        Step("phase", handle, std::to_string(led) + " " + std::to_string(delay));
    }
    void DelcomLEDPower(std::int32_t handle, std::int32_t led, std::int32_t power) override {
        Step("power", handle, std::to_string(led) + " " + std::to_string(power));
    }
    void DelcomLEDControl(std::int32_t handle, std::int32_t led, std::int32_t mode) override {
        Step("control", handle, std::to_string(led) + " " + std::to_string(mode));
    }
    void DelcomSyncLeds(std::int32_t handle) override { Step("sync", handle, ""); }

    std::map<std::int32_t, std::vector<std::string>> m_Devices;  // names by type
    double m_Version = 0;
    bool m_Missing = false;
    std::set<std::string> m_FailCalls;  // every call of such a name fails: "power"

  private:
    void Step(const std::string& call, std::int32_t handle, const std::string& rest) {
        Note(call + " #" + std::to_string(handle) + (rest.empty() ? "" : " " + rest));
        if (!m_Open.contains(handle)) throw cFailure(eFailure::InvalidCall, "no such handle");
        if (m_FailCalls.contains(call)) throw cFailure(eFailure::Device, "the light fails");
    }
    void Note(const std::string& step) {
        if (m_Transcript) m_Transcript->Add("light: " + step);
    }
    cTranscript* m_Transcript;
    std::int32_t m_LastHandle = 0;
    std::set<std::int32_t> m_Open;  // handles
};

class cFakeRunningApps : public cRunningApps {
  public:
    explicit cFakeRunningApps(cTranscript* transcript = nullptr) : m_Transcript(transcript) {}
    std::int32_t GetRunningApps(std::int32_t application) override {
        if (m_Missing) throw cFailure(eFailure::FileNotFound, "no library");
        return m_States[application];
    }
    void SetRunningApps(std::int32_t application, std::int32_t state) override {
        m_States[application] = state;
        if (m_Transcript) {
            m_Transcript->Add("application " + std::to_string(application) + " is " + std::to_string(state));
        }
    }
    bool m_Missing = false;
    std::map<std::int32_t, std::int32_t> m_States;

  private:
    cTranscript* m_Transcript;
};

class cFakePrinterPorts : public cPrinterPorts {
  public:
    std::int16_t SendPRN(std::string_view line, std::int16_t port) override {
        if (port < 0) return 0;
        m_Lines.push_back(std::to_string(port) + ":" + std::string(line));
        return m_FailLines.contains(m_Lines.size()) ? std::int16_t{0} : m_Success;
    }
    std::string Problem() const override { return m_Problem; }
    std::string m_Problem;
    std::vector<std::string> m_Lines;   // "port:line"
    std::set<std::size_t> m_FailLines;  // numbers of the lines that fail, from 1
    std::int16_t m_Success = 1;         // the result of the others
};

class cFakeSingleInstance : public cSingleInstance {
  public:
    bool AnotherIsRunning() override { return m_Another; }
    std::string Problem() const override { return m_Problem; }
    bool m_Another = false;
    std::string m_Problem;
};

}  // namespace vigrel::testing
