#pragma once

// Devices that this build has no adapter for yet: present, and doing nothing.
#include "platform/notification_area.h"
#include "platform/signal_light.h"
#include "platform/suite_library.h"
namespace vigrel {
struct cNoTray : cNotificationArea {
    void SetIcon(int) override {}
    std::string ToolTip() const override { return {}; }
    void SetToolTip(std::string_view) override {}
    void SetVisible(bool) override {}
    bool HostAvailable() const override { return false; }
};
struct cNoLight : cSignalLight {
    double DelcomGetDLLVersion() override { return 0; }
    std::int32_t DelcomGetDeviceCount(std::int32_t) override { return 0; }
    void DelcomGetNthDevice(std::int32_t, std::int32_t, std::string&) override {}
    std::int32_t DelcomOpenDevice(std::string_view, std::int32_t) override { return 0; }
    void DelcomCloseDevice(std::int32_t) override {}
    void DelcomLoadPreScalar(std::int32_t, std::uint8_t) override {}
    void DelcomLoadLedFreqDuty(std::int32_t, std::uint8_t, std::uint8_t, std::uint8_t) override {}
    void DelcomLoadInitialPhaseDelay(std::int32_t, std::uint8_t, std::uint8_t) override {}
    void DelcomLEDPower(std::int32_t, std::int32_t, std::int32_t) override {}
    void DelcomLEDControl(std::int32_t, std::int32_t, std::int32_t) override {}
    void DelcomSyncLeds(std::int32_t) override {}
};
struct cNoPrinter : cPrinterPorts {
    std::int16_t SendPRN(std::string_view, std::int16_t) override { return 0; }
};
}  // namespace vigrel
