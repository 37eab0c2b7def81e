#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "signals/vigrel_receiver_popup.h"

namespace vigrel {

// The number behind a popup's number; it starts anew at 0 behind 10,000,000.
constexpr std::int32_t NextFormId(std::int32_t formId) {
    return formId < 10000000 ? formId + 1 : 0;
}

// The popups: one for each event that qualifies, never reused, updated or merged. Keeps the order that says
// which popup stands on top, and which one alone shows when only one may.
//
// Popups that are still open at its end are let go, not closed.
class cPopups {
  public:
    explicit cPopups(cPopupServices services) : m_Services(std::move(services)) {}
    ~cPopups();
    cPopups(const cPopups&) = delete;
    cPopups& operator=(const cPopups&) = delete;

    // Opens a popup for the event and gives its number. Reads section "PopupForm" anew. A failure (cFailure)
    // leaves what is done by then: a popup that is loaded but lacks the rest.
    std::int32_t ShowPopup(const AlarmPtr& alarm);
    // The popup that stands first: lowest priority index, then oldest, then the last opened; excluded and
    // windows of other kinds take no part, nor does a popup of an unlisted category whose stamp lies ahead of
    // the clock. It shows and isn't minimised; when only one may show, the others are hidden. None: nullptr.
    Vigrel_Receiver_Popup* SelectTopPopup(const Vigrel_Receiver_Popup* excluded);
    // Closes all popups one by one, as if each was closed by the program. Does not fail: one that refuses
    // stays.
    void ClosePopups();

  private:
    struct cBest {
        std::int16_t priority = kUnlistedPriority;
        DateTime stamp = 0;
        Vigrel_Receiver_Popup* popup = nullptr;
    };
    // Lengths in pixels; below 0 stands for none.
    struct cSize {
        std::int32_t width, height;
    };

    cSettingReader Settings() const { return {m_Services.ini, "PopupForm"}; }
    cSize ReadSize() const;
    void NextPlace();
    void ToStart();
    void NextMovingPlace();

    Vigrel_Receiver_Popup& MakePopup();
    void SetColours(cPopupWindow& window, const cVigrelRecieverAlarm& alarm) const;
    void SetFont(cPopupWindow& window) const;
    void SetPlace(cPopupWindow& window, cSize size) const;
    bool SetPriority(Vigrel_Receiver_Popup& popup) const;

    void Stack(Vigrel_Receiver_Popup& popup, bool isFirst);
    bool IsTopMostCategory(const std::string& category) const;
    void StackBehindChosen(Vigrel_Receiver_Popup& popup);

    template <class Visit>
    void ForEachOther(const Vigrel_Receiver_Popup* excluded, Visit visit) const;
    static void Consider(Vigrel_Receiver_Popup& popup, cBest& best);

    cPopupServices m_Services;
    std::vector<std::unique_ptr<Vigrel_Receiver_Popup>> m_Popups;  // in the order of their opening
    std::int32_t m_PopupX = 0, m_PopupY = 0;  // the latest place in pixels; -1: the maker's
    bool m_PopupMovingStarted = false;
    std::int32_t m_PopupFormId = 0;
};

}  // namespace vigrel
