#pragma once

#include <string>
#include <vector>

namespace vigrel::testing {

// How a station is set up: the settings that decide what it keeps, shows, plays and prints.
struct cPlan {
    struct cCategory {
        std::string name;  // empty for all that have no section of their own
        int signal = 0;
        std::string sound;  // a full path
        std::string extra, popupFormat;
    };
    int maxEvents = 12, maxDays = 0;
    bool popups = false, oneAtATime = false, popupsOnlyForActive = false, acknowledgeAtClose = false;
    std::string popupsFor, topMost;  // lists of categories as they stand in the configuration
    bool soundOnlyForActive = false, stopByClick = false, untilNoMorePopups = false;
    int pause = 0;  // milliseconds
    bool autoReset = true;
    std::string systemCategory = "Vigrel", object = "none";
    int printerPort = 1;
    bool printerLetters = true;
    std::string printerFormat;
    cCategory general;
    std::vector<cCategory> categories;
};

// The same for the same seed.
cPlan MakePlan(unsigned seed);
// The list shows the alarm's texts from column 1 on, the moment that its sender wrote, and whether it is
// acknowledged.
inline constexpr int kIconColumn = 8;
// The configuration that says so.
std::string IniOf(const cPlan& plan);

}  // namespace vigrel::testing
