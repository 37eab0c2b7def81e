#include <algorithm>

#include "common/code_page.h"
#include "common/failure.h"
#include "common/numbers.h"
#include "common/text.h"
#include "receiver-check/checks.h"
#include "receiver-check/names.h"

namespace vigrel {
namespace {

std::vector<std::string> CategoryNames(const cInstallation& installation) {
    std::vector<std::string> names;
    for (const auto& setting : installation.Categories().m_CategorySettings) {
        names.push_back(setting.m_Category);
    }
    return names;
}

bool IsAmong(const std::vector<std::string>& names, std::string_view name) {
    return std::any_of(names.begin(), names.end(),
                       [&](const std::string& known) { return EqualsNoCase(known, name); });
}

// A list of categories separated by ",". What a blank around a name does differs from list to list.
void CheckCategoryList(const cInstallation& installation, const std::string& key, eSeverity blank,
                       const std::string& effectOfBlank, cFindings& findings) {
    const cPlace place = installation.PlaceOf("General", key);
    if (Trim(place.value).empty()) return;
    const std::vector<std::string> names = CategoryNames(installation);
    for (const std::string& entry : SplitAt(place.value, ',')) {
        const std::string category = Trim(entry);
        if (category.empty()) {
            findings.Warning("category-list-empty", place, "a category is missing beside a \",\"");
        } else if (category != entry) {
            findings.Add(blank, "category-list-blank", place,
                         "the blank beside \"" + category + "\" counts: " + effectOfBlank);
        }
        if (category.empty() || IsAmong(names, category)) continue;
        const std::string meant = MeantPerhaps(category, names);
        findings.Add(meant.empty() ? eSeverity::Remark : eSeverity::Warning, "category-without-section",
                     place, "the category \"" + category + "\" has no section" + meant);
    }
}

class cPlacement {
  public:
    cPlacement(const cInstallation& installation, cFindings& findings)
        : m_Installation(installation), m_Findings(findings) {}

    void Check() {
        const std::string position = ToUpper(m_Installation.Value("PopupForm", "WindowPosition"));
        if (position == "MOVING" || position == "STATIC") {
            Start("X", kLargestWidth);
            Start("Y", kLargestHeight);
        }
        if (position == "MOVING") {
            Moving();
        } else if (position != "STATIC" && position != "DEFAULT") {
            m_Findings.Warning(
                "window-position-unknown", Place("WindowPosition"),
                "is none of STATIC, MOVING and Default, and acts as Default" +
                    MeantPerhaps(m_Installation.Value("PopupForm", "WindowPosition"), {"STATIC", "MOVING"}));
        }
        const bool width = Number("X_Size") >= 0, height = Number("Y_Size") >= 0;
        if (width && height) {
            Size("X_Size", kLeastWidth, kLargestWidth);
            Size("Y_Size", kLeastHeight, kLargestHeight);
        } else if (width != height) {
            m_Findings.Warning("size-without-other", Place(width ? "X_Size" : "Y_Size"),
                               std::string("does nothing without ") + (width ? "Y_Size" : "X_Size"));
        }
    }

  private:
    // Pixels. What is smaller shows no line of text; what is larger fits no screen.
    static constexpr double kLeastWidth = 120, kLeastHeight = 60;
    static constexpr double kLargestWidth = 7680, kLargestHeight = 4320;

    cPlace Place(const std::string& key) const { return m_Installation.PlaceOf("PopupForm", key); }
    void Size(const std::string& key, double least, double most) {
        const double size = Number(key);
        if (size >= least && size <= most) return;
        m_Findings.Warning("popup-size", Place(key),
                           "a popup of this size " +
                               std::string(size < least ? "shows no text" : "is larger than any screen") +
                               "; usual are " + NumberText(least) + " to " + NumberText(most) + " pixels");
    }
    void Start(const std::string& axis, double most) {
        const double start = Number(axis + "_Start");
        if (start >= 0 && start <= most) return;
        m_Findings.Warning("popup-place", Place(axis + "_Start"),
                           start < 0 ? "a negative place is the desktop's choice, or outside of the screen"
                                     : "lies outside of any screen");
    }
    double Number(const std::string& key) const { return m_Installation.Number("PopupForm", key); }

    void Moving() {
        for (const std::string axis : {"X", "Y"}) {
            if (Number(axis + "_Start") + Number(axis + "_Step") <= Number(axis + "_Stop")) continue;
            m_Findings.Warning("moving-without-way", Place("WindowPosition"),
                               "popups lie on one spot: the first step passes " + axis + "_Stop, which is " +
                                   m_Installation.Value("PopupForm", axis + "_Stop"));
            return;
        }
        for (const std::string key : {"X_Step", "Y_Step"}) {
            if (Number(key) >= 0) continue;
            m_Findings.Warning(
                "popup-step", Place(key),
                "only a place that is too large goes back to the start: popups leave the screen "
                "at its other side");
        }
        if (Number("X_Step") == 0 && Number("Y_Step") == 0) {
            m_Findings.Warning("moving-without-way", Place("WindowPosition"),
                               "popups lie on one spot: X_Step and Y_Step are 0");
        }
    }

    const cInstallation& m_Installation;
    cFindings& m_Findings;
};

void CheckGate(const cInstallation& installation, cFindings& findings) {
    const cPlace place = installation.PlaceOf("General", "ViewOnlyPopupFormForCategory");
    if (Trim(place.value).empty() || installation.Flag("General", "ViewPopupForm")) return;
    findings.Remark("popups-off", place, "no popup opens, since ViewPopupForm is off");
}

}  // namespace

void CheckPopups(const cInstallation& installation, cFindings& findings) {
    CheckCategoryList(installation, "ViewOnlyPopupFormForCategory", eSeverity::Error,
                      "alarms of this category open no popup", findings);
    CheckCategoryList(installation, "PopupFormTopMostCategory", eSeverity::Warning,
                      "with ViewOnlyOnePopupForm its popup doesn't stay on top", findings);
    CheckGate(installation, findings);
    cPlacement(installation, findings).Check();
}

}  // namespace vigrel
