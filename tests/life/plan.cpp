#include "life/plan.h"

#include <random>

namespace vigrel::testing {
namespace {

const std::string kFolder = "C:\\App\\";

// Pieces of templates: whole tokens, and what tokens are made of.
constexpr const char* kPieces[] = {"{ACTIVE?",
                                   "{acked?",
                                   "{INACTIVE?",
                                   "{MESSAGE?",
                                   "{FOO?",
                                   "{",
                                   "}",
                                   "[",
                                   "]",
                                   "?",
                                   ":",
                                   "[SENDER]",
                                   "[T0]",
                                   "[t1]",
                                   "[T2::6]",
                                   "[T1:0-2]",
                                   "[T4]",
                                   "[T1:2]",
                                   "[T1:-3]",
                                   "[T1:3-]",
                                   "[T1:90-95]",
                                   "[T4:4-12:20]",
                                   "[T9]",
                                   "[TEXT]",
                                   "[T]",
                                   "[T5:::]",
                                   "[STATUS]",
                                   "[STATUS$]",
                                   "[status$::3]",
                                   "[OBJECT]",
                                   "[ALARMID:2]",
                                   "[EXTRATEXT]",
                                   "[OBSERVED]",
                                   "[13][10]",
                                   "[65]",
                                   "[0]",
                                   "[256]",
                                   "[WHAT]",
                                   "[DATE]",
                                   "[TIME::9]",
                                   "[ALARMDATE:5-6]",
                                   "[AlarmTime]",
                                   "[ALARMTIME:0-1:4]",
                                   "[R:a:bb]",
                                   "[R:a:]",
                                   "[replace:b:A]",
                                   "[R:ab:ab]",
                                   "[R:a:A]",
                                   "[CU:a]",
                                   "[CU:b:-2]",
                                   "[CF: ]",
                                   "[CF:b:1]",
                                   "[cf:a:-5]",
                                   "[CUTUNTIL:-]",
                                   "[CUTFROM:]",
                                   "[R::x]",
                                   "Alarm ",
                                   " - ",
                                   "\xC4ngel",
                                   "a",
                                   "b"};

class cDraw {
  public:
    explicit cDraw(unsigned seed) : m_Draw(seed) {}
    int Below(int limit) { return static_cast<int>(m_Draw() % static_cast<unsigned>(limit)); }
    bool OneIn(int count) { return Below(count) == 0; }
    std::string Format() {
        std::string format;
        for (int i = Below(14); i > 0; --i) format += kPieces[Below(static_cast<int>(std::size(kPieces)))];
        // Blanks and quotes at the ends would be the configuration's.
        return format.empty() ? "" : "x" + format + "x";
    }
    cPlan::cCategory Category(const std::string& name) {
        constexpr const char* kSounds[] = {"", "base.wav", "fire.wav", "gas.wav"};
        const int signal = Below(5), sound = Below(4);
        std::string extra = OneIn(2) ? "call [T1]" : "";
        return {name, signal, kFolder + kSounds[sound], std::move(extra), Format()};
    }

  private:
    std::mt19937 m_Draw;
};

std::string Line(const std::string& key, const std::string& value) {
    return key + "=" + value + "\r\n";
}

std::string CategoryLines(const cPlan::cCategory& category) {
    return Line("EventSignal", std::to_string(category.signal)) + Line("EventSoundFile", category.sound) +
           Line("ExtraText", category.extra) + Line("EventPopupFormat", category.popupFormat);
}

std::string Flag(bool on) {
    return on ? "1" : "0";
}

}  // namespace

cPlan MakePlan(unsigned seed) {
    constexpr const char* kPopupsFor[] = {"", "", "Fire,Gas", "WATER", "Fire, Gas"};
    constexpr const char* kTopMost[] = {"", "Fire,Gas,Water", "gas,fire", "Water,,Fire", "Air"};
    constexpr int kMost[] = {12, 1, 0, 5, 40}, kDays[] = {0, 0, 1, 2, 30}, kPauses[] = {0, 700, 1000, 2300};
    cDraw draw(seed);
    cPlan plan;
    plan.maxEvents = kMost[draw.Below(5)];
    plan.maxDays = kDays[draw.Below(5)];
    plan.popups = !draw.OneIn(4);
    plan.oneAtATime = draw.OneIn(2);
    plan.popupsOnlyForActive = draw.OneIn(3);
    plan.acknowledgeAtClose = draw.OneIn(2);
    plan.popupsFor = kPopupsFor[draw.Below(5)];
    plan.topMost = kTopMost[draw.Below(5)];
    plan.soundOnlyForActive = draw.OneIn(3);
    plan.stopByClick = draw.OneIn(2);
    plan.untilNoMorePopups = draw.OneIn(2);
    plan.pause = kPauses[draw.Below(4)];
    plan.autoReset = draw.OneIn(2);
    plan.systemCategory = draw.OneIn(2) ? "Vigrel" : "Fire";
    plan.object = draw.OneIn(2) ? "Plant [T0]" : "none";
    plan.printerPort = draw.Below(3);
    plan.printerLetters = draw.OneIn(2);
    plan.printerFormat = draw.Format();
    plan.general = draw.Category("");
    for (const char* name : {"Fire", "gas", "Water"}) plan.categories.push_back(draw.Category(name));
    return plan;
}

std::string IniOf(const cPlan& plan) {
    std::string ini =
        "[General]\r\nLanguage=046\r\nColumns=StateIcon,t0,t1,t2,t3,t4,t5,AlarmDateTime,Observed\r\n" +
        Line("DateFormat", "yyyy-mm-dd") + Line("TimeFormat", "hh:nn") +
        Line("MaxEvents", std::to_string(plan.maxEvents)) + Line("MaxDays", std::to_string(plan.maxDays)) +
        Line("ViewPopupForm", Flag(plan.popups)) + Line("ViewOnlyOnePopupForm", Flag(plan.oneAtATime)) +
        Line("PopupFormOnlyForActive", Flag(plan.popupsOnlyForActive)) +
        Line("AckEventWhenPopupFormIsClosed", Flag(plan.acknowledgeAtClose)) +
        Line("ViewOnlyPopupFormForCategory", plan.popupsFor) +
        Line("PopupFormTopMostCategory", plan.topMost) +
        Line("EventSignalOnlyForActive", Flag(plan.soundOnlyForActive)) +
        Line("EventSignalStopByNotifyClick", Flag(plan.stopByClick)) +
        Line("EventSignalUntilNoMorePopupForms", Flag(plan.untilNoMorePopups)) +
        Line("EventSoundFileDelay", std::to_string(plan.pause)) +
        Line("AutoResetKeepAliveTimer", Flag(plan.autoReset)) +
        Line("SystemErrorCategory", plan.systemCategory) + Line("Object", plan.object) +
        CategoryLines(plan.general);
    for (const cPlan::cCategory& category : plan.categories)
        ini += "[CategorySpecificSetting_" + category.name + "]\r\n" + CategoryLines(category);
    return ini + "[Printer]\r\n" + Line("Port", std::to_string(plan.printerPort)) +
           Line("ISOLatConv", Flag(plan.printerLetters)) + Line("Format", plan.printerFormat) +
           "[Senders]\r\nPLC1=1\r\nPLC2=3\r\nPLC3=0\r\n";
}

}  // namespace vigrel::testing
