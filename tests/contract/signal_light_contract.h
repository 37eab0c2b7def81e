#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "common/failure.h"
#include "platform/signal_light.h"

namespace vigrel::testing {

// What the system may rely on, whoever serves its lights. A rig offers cSignalLight& Library(), with two
// lights plugged in, and PullOut(): both are gone.
template <class Rig>
class SignalLightContract : public ::testing::Test {
  protected:
    static constexpr std::size_t kBuffer = 512;
    static constexpr std::int32_t kMostTypes = 4;

    cSignalLight& Library() { return m_Rig.Library(); }
    std::string Name(std::int32_t type, std::int32_t index) {
        std::string buffer(kBuffer, '\0');
        Library().DelcomGetNthDevice(type, index, buffer);
        EXPECT_EQ(buffer.size(), kBuffer);
        return buffer.substr(0, buffer.find('\0'));
    }
    // Of all lights.
    std::vector<std::string> Names() {
        std::vector<std::string> names;
        for (std::int32_t type = 1; type <= kMostTypes; ++type) {
            const std::int32_t count = Library().DelcomGetDeviceCount(type);
            for (std::int32_t index = 0; index < count; ++index) names.push_back(Name(type, index));
        }
        return names;
    }
    std::int32_t OpenFirst() { return Library().DelcomOpenDevice(Names().at(0), 0); }
    // Every call with the handle.
    void ExpectRefused(std::int32_t handle) {
        cSignalLight& library = Library();
        EXPECT_THROW(library.DelcomLoadPreScalar(handle, 10), cFailure);
        EXPECT_THROW(library.DelcomLoadLedFreqDuty(handle, 0, 50, 50), cFailure);
        EXPECT_THROW(library.DelcomLoadInitialPhaseDelay(handle, 0, 0), cFailure);
        EXPECT_THROW(library.DelcomLEDPower(handle, 0, 100), cFailure);
        EXPECT_THROW(library.DelcomLEDControl(handle, 0, 0), cFailure);
        EXPECT_THROW(library.DelcomSyncLeds(handle), cFailure);
    }
    Rig m_Rig;
};
TYPED_TEST_SUITE_P(SignalLightContract);

TYPED_TEST_P(SignalLightContract, TellsItsVersionAndHowManyLightsThereAre) {
    EXPECT_NE(this->Library().DelcomGetDLLVersion(), 0);
    EXPECT_EQ(this->Names().size(), 2u);
    for (const std::int32_t type : {-1, 0, 5, 1000}) EXPECT_EQ(this->Library().DelcomGetDeviceCount(type), 0);
}

TYPED_TEST_P(SignalLightContract, NamesEachLightAndNoneBeyondTheLast) {
    const std::vector<std::string> names = this->Names();
    ASSERT_EQ(names.size(), 2u);
    EXPECT_NE(names[0], "");
    EXPECT_NE(names[1], "");
    EXPECT_NE(names[0], names[1]);
    for (const std::int32_t type : {0, 1, 2, 3, 4, 5}) {
        for (const std::int32_t index : {-1, 2, 254}) EXPECT_EQ(this->Name(type, index), "") << type;
    }
}

TYPED_TEST_P(SignalLightContract, ANameOpensItsLightAndEachHandleIsANewOne) {
    const std::vector<std::string> names = this->Names();
    const std::int32_t first = this->Library().DelcomOpenDevice(names.at(0), 0);
    const std::int32_t second = this->Library().DelcomOpenDevice(names.at(1), 0);
    EXPECT_GT(first, 0);
    EXPECT_GT(second, first);
    this->Library().DelcomCloseDevice(second);
    EXPECT_GT(this->Library().DelcomOpenDevice(names.at(1), 0), second);
}

TYPED_TEST_P(SignalLightContract, AnUnknownNameOpensNothing) {
    for (const char* name : {"", "nobody", "serial-1,serial-2"}) {
        EXPECT_LE(this->Library().DelcomOpenDevice(name, 0), 0) << name;
    }
}

TYPED_TEST_P(SignalLightContract, AnOpenLightTakesEveryCall) {
    const std::int32_t handle = this->OpenFirst();
    cSignalLight& library = this->Library();
    library.DelcomLoadPreScalar(handle, 255);
    for (std::uint8_t led = 0; led < 4; ++led) {
        library.DelcomLoadLedFreqDuty(handle, led, 0, 255);
        library.DelcomLoadInitialPhaseDelay(handle, led, 255);
        library.DelcomLEDPower(handle, led, 100);
        for (const std::int32_t mode : {0, 1, 2}) library.DelcomLEDControl(handle, led, mode);
    }
    library.DelcomSyncLeds(handle);
    library.DelcomCloseDevice(handle);
}

TYPED_TEST_P(SignalLightContract, AHandleThatIsNotOpenIsRefusedAndItsCloseDoesNothing) {
    const std::int32_t handle = this->OpenFirst();
    this->Library().DelcomCloseDevice(handle);
    for (const std::int32_t closed : {handle, std::int32_t{0}, handle + 1}) {
        this->ExpectRefused(closed);
        this->Library().DelcomCloseDevice(closed);
    }
}

TYPED_TEST_P(SignalLightContract, ALightThatIsPulledOutIsNeitherListedNorOpened) {
    const std::string name = this->Names().at(0);
    this->m_Rig.PullOut();
    EXPECT_TRUE(this->Names().empty());
    EXPECT_LE(this->Library().DelcomOpenDevice(name, 0), 0);
}

REGISTER_TYPED_TEST_SUITE_P(SignalLightContract, TellsItsVersionAndHowManyLightsThereAre,
                            NamesEachLightAndNoneBeyondTheLast, ANameOpensItsLightAndEachHandleIsANewOne,
                            AnUnknownNameOpensNothing, AnOpenLightTakesEveryCall,
                            AHandleThatIsNotOpenIsRefusedAndItsCloseDoesNothing,
                            ALightThatIsPulledOutIsNeitherListedNorOpened);

}  // namespace vigrel::testing
