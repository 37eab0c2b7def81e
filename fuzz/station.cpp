// Input: what a whole station meets, from its start on: two bytes that choose the configuration, then steps:
// what comes over the link, what the operator does, clocks and disks. While a box stands, the steps go on in
// it.

#include "fuzz/fuzz_target.h"
#include "fuzz/fuzzed_station.h"

namespace {

using namespace vigrel;

// Bits choose how an alarm is signalled.
std::string Signals(int choice) {
    std::string text;
    if ((choice & 1) != 0) text += "ViewOnlyOnePopupForm=1\r\n";
    if ((choice & 2) != 0) text += "PopupFormTopMostCategory=Fire,Water\r\n";
    if ((choice & 4) != 0) text += "EventPopupFormat=[DATE] {ACTIVE?[T0]:[T1:2-5]}[R:a:bb]\r\n";
    if ((choice & 8) != 0) text += "EventSignalUntilNoMorePopupForms=1\r\nEventSignalStopByNotifyClick=1\r\n";
    if ((choice & 16) != 0) text += "EventRestore=1\r\nEventFlashIcon=1\r\n";
    if ((choice & 32) != 0) text += "ShowInTaskBar=0\r\n";
    if ((choice & 64) != 0) text += "[Printer]\r\nPort=1\r\nFormat=[DATE] [T0]\r\n";
    return text;
}

// What makes the start ask is chosen by bits.
std::string Configuration(int choice, int signals) {
    std::string text = "[General]\r\n";
    if ((choice & 1) == 0) text += "Language=046\r\n";
    if ((choice & 2) == 0) text += "MaxEvents=4\r\nMaxDays=3\r\n";
    if ((choice & 4) == 0) text += "ViewPopupForm=1\r\n";
    if ((choice & 8) == 0) text += "AckEventWhenPopupFormIsClosed=1\r\n";
    text += "EventSignal=3\r\nColumns=StateIcon,t0,t4,DateTime,Observed\r\nKeepForDays=2\r\n";
    text += Signals(signals) + "[Senders]\r\n";
    text += "PLC1=1\r\nPLC2=0\r\n";
    // More than there is room for: the start tells so in a box.
    for (int i = 0; (choice & 16) != 0 && i < 100; ++i) text += "P" + std::to_string(i) + "=0\r\n";
    return text + "[CategorySpecificSetting_Fire]\r\nEventSignal=2\r\n";
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::cInput input(data, size);
    fuzz::cFuzzedStation station(input);
    const int choice = input.Byte();
    station.Configure(Configuration(choice, input.Byte()));
    if ((choice & 32) != 0) station.LetPortBeInUse();
    station.Begin();
    while (station.Runs() && !input.AtEnd()) {
        station.Step();
        fuzz::Require(station.StoresWhatItLists(), "what is listed is stored, and nothing else");
    }
    fuzz::Require(station.ListsTheSameAgain(), "the next start lists the same");
    return 0;
}
