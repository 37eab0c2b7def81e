#include "signals/popups.h"

#include <vector>

#include "common/code_page.h"
#include "common/failure.h"
#include "common/numbers.h"
#include "common/text.h"
#include "common/window_procedures.h"

namespace vigrel {
namespace {

const std::string& CategoryOf(const cVigrelRecieverAlarm& alarm) {
    return alarm.m_Alarm.GetCondition(ConditionCategory);
}

}  // namespace

cPopups::~cPopups() {
    for (const auto& popup : m_Popups) {
        cPopupWindow& window = popup->m_Window;
        window.OnQueryUnload = nullptr;
        window.OnUnload = nullptr;
        window.OnResize = nullptr;
        window.OnPictureClick = nullptr;
    }
}

// --- where a popup goes

cPopups::cSize cPopups::ReadSize() const {
    return {Settings().Int32("X_Size"), Settings().Int32("Y_Size")};
}

void cPopups::NextPlace() {
    const std::string position = ToUpper(Settings().Text("WindowPosition"));
    if (position == "STATIC") {
        ToStart();
    } else if (position == "MOVING") {
        NextMovingPlace();
    } else {
        m_PopupX = -1;
        m_PopupY = -1;
    }
}

void cPopups::ToStart() {
    m_PopupX = Settings().Int32("X_Start");
    m_PopupY = Settings().Int32("Y_Start");
}

void cPopups::NextMovingPlace() {
    if (!m_PopupMovingStarted) {
        ToStart();
        m_PopupMovingStarted = true;
    } else {
        m_PopupX = ToInt32(static_cast<double>(m_PopupX) + Settings().Int32("X_Step"));
        m_PopupY = ToInt32(static_cast<double>(m_PopupY) + Settings().Int32("Y_Step"));
    }
    // Only a bound that is passed upward ends a run; one axis takes the other along.
    if (Settings().Int32("X_Stop") < m_PopupX || Settings().Int32("Y_Stop") < m_PopupY) ToStart();
}

// --- opening

std::int32_t cPopups::ShowPopup(const AlarmPtr& alarm) {
    m_PopupFormId = NextFormId(m_PopupFormId);
    const cSize size = ReadSize();
    NextPlace();
    Vigrel_Receiver_Popup& popup = MakePopup();
    cPopupWindow& window = popup.m_Window;
    const cCategorySpecificSetting& setting = alarm->m_CategorySpecificSetting;
    window.SetLabelText(m_Services.expandEventText(*alarm, setting.m_EventPopupFormat, setting.m_ExtraText));
    SetColours(window, *alarm);
    SetFont(window);
    m_Services.log.WriteLog(m_Services.texts.GetText(TextPopupOpened) + " " + alarm->SysLogText());
    window.SetPictureVisible(alarm->m_Alarm.m_Status, true);
    SetPlace(window, size);

    // Out of sight until it stands where it stays in the stack; both screen sizes are in twips already, so
    // that this is far away.
    const cScreen& screen = m_Services.screen;
    const std::int32_t left = ToInt32(window.Left());
    const std::int32_t top = ToInt32(window.Top());
    window.SetLeft(screen.Width() * screen.TwipsPerPixelX());
    window.SetTop(screen.Height() * screen.TwipsPerPixelY());
    popup.m_TimeStamp = m_Services.clock.Now();
    popup.m_Alarm = alarm;
    popup.m_FormId = m_PopupFormId;
    const bool isFirst = SetPriority(popup);
    window.Show();
    Stack(popup, isFirst);
    window.SetLeft(left);
    window.SetTop(top);
    return popup.m_FormId;
}

Vigrel_Receiver_Popup& cPopups::MakePopup() {
    cPopupWindow& window = m_Services.maker.MakePopup();
    m_Popups.push_back(std::make_unique<Vigrel_Receiver_Popup>(m_Services, window));
    Vigrel_Receiver_Popup& popup = *m_Popups.back();
    window.OnQueryUnload = [&popup](eCloseReason reason) {
        popup.QueryUnload(reason);
        return true;
    };
    window.OnUnload = [this, &popup, &window] {
        // What the machine still has under way for the window must not reach a popup that is gone.
        window.OnResize = nullptr;
        window.OnPictureClick = nullptr;
        popup.Unload([this, &popup] { SelectTopPopup(&popup); });
        std::erase_if(m_Popups, [&popup](const auto& other) { return other.get() == &popup; });
    };
    window.OnResize = [&popup] { popup.Resize(); };
    window.OnPictureClick = [&popup](int) { popup.Picture_Alarm_Click(); };
    popup.Load();
    return popup;
}

void cPopups::SetColours(cPopupWindow& window, const cVigrelRecieverAlarm& alarm) const {
    const cCategorySpecificSetting& setting = alarm.m_CategorySpecificSetting;
    const Colour fore = setting.GetForeColor(alarm.m_Alarm.m_Status);
    window.SetForeColour(fore);
    window.SetLabelForeColour(fore);
    const Colour back = setting.GetBackColor(alarm.m_Alarm.m_Status);
    window.SetBackColour(back);
    window.SetLabelBackColour(back);
    for (int picture = 0; picture < cPopupWindow::kPictures; ++picture) {
        window.SetPictureBackColour(picture, back);
    }
}

void cPopups::SetFont(cPopupWindow& window) const {
    window.SetLabelFont(Trim(Settings().Text("FontName")), Settings().Decimal("FontSize"));
    window.SetLabelFontStyle(Settings().Int32("FontBold") != 0, Settings().Int32("FontItalic") != 0);
}

void cPopups::SetPlace(cPopupWindow& window, cSize size) const {
    const double pixelX = m_Services.screen.TwipsPerPixelX();
    const double pixelY = m_Services.screen.TwipsPerPixelY();
    if (m_PopupX >= 0) {
        window.SetLeft(m_PopupX * pixelX);
        window.SetTop(m_PopupY * pixelY);
    }
    if (size.width >= 0 && size.height >= 0) {
        window.SetWidth(size.width * pixelX);
        window.SetHeight(size.height * pixelY);
    }
}

// Gives the popup its priority. Whether its category is the first of the list.
bool cPopups::SetPriority(Vigrel_Receiver_Popup& popup) const {
    const std::string& list = m_Services.settings.m_PopupFormTopMostCategory;
    const std::string category = ToUpper(CategoryOf(*popup.m_Alarm));
    const std::string first = Trim(GetField(list, 0, ","));
    std::string field = first;
    for (std::int16_t index = 0; !field.empty(); field = Trim(GetField(list, ++index, ","))) {
        if (category != field) continue;
        popup.m_PriorityIndex = index;
        break;
    }
    return category == first;
}

// --- order

void cPopups::Stack(Vigrel_Receiver_Popup& popup, bool isFirst) {
    cPopupWindow& window = popup.m_Window;
    if (m_Services.settings.m_ViewOnlyOnePopupForm) {
        window.Hide();
        SelectTopPopup(nullptr);
        // The new window, shown or not, and not the one that was selected.
        SetTopMost(window, IsTopMostCategory(CategoryOf(*popup.m_Alarm)));
    } else {
        SetTopMost(window, true);
        if (!isFirst) StackBehindChosen(popup);
    }
}

// Unlike the comparison that gives the priority, this one takes the list as it is written, without regard to
// case.
bool cPopups::IsTopMostCategory(const std::string& category) const {
    const std::string list = Trim(m_Services.settings.m_PopupFormTopMostCategory);
    return list.empty() || FindNoCase("," + list + ",", "," + category + ",") > 0;
}

// Behind the oldest popup of the best priority, even when the new popup's own priority is better. With a best
// stamp of 0 a popup whose category isn't listed is never chosen.
void cPopups::StackBehindChosen(Vigrel_Receiver_Popup& popup) {
    cBest best;
    ForEachOther(&popup, [&](Vigrel_Receiver_Popup& other) { Consider(other, best); });
    if (best.popup != nullptr) popup.m_Window.PlaceBehind(best.popup->m_Window);
}

Vigrel_Receiver_Popup* cPopups::SelectTopPopup(const Vigrel_Receiver_Popup* excluded) {
    // With the present time as best stamp a popup whose category isn't listed takes part too, unless its
    // stamp lies ahead: the clock was set back behind it.
    cBest best;
    best.stamp = m_Services.clock.Now();
    ForEachOther(excluded, [&](Vigrel_Receiver_Popup& popup) { Consider(popup, best); });
    if (m_Services.settings.m_ViewOnlyOnePopupForm) {
        ForEachOther(excluded, [&](Vigrel_Receiver_Popup& popup) {
            if (&popup != best.popup) popup.m_Window.Hide();
        });
    }
    if (best.popup != nullptr) {
        cPopupWindow& window = best.popup->m_Window;
        window.Show();
        if (window.State() == eWindowState::Minimised) window.SetState(eWindowState::Normal);
    }
    return best.popup;
}

void cPopups::Consider(Vigrel_Receiver_Popup& popup, cBest& best) {
    if (popup.m_PriorityIndex < best.priority) {
        best.priority = popup.m_PriorityIndex;
        best.stamp = popup.m_TimeStamp;
    }
    if (popup.m_PriorityIndex == best.priority && popup.m_TimeStamp <= best.stamp) {
        best.stamp = popup.m_TimeStamp;
        best.popup = &popup;
    }
}

// Visits the popups in the order in which they were opened, which is theirs among the open windows.
template <class Visit>
void cPopups::ForEachOther(const Vigrel_Receiver_Popup* excluded, Visit visit) const {
    for (const auto& popup : m_Popups) {
        if (popup.get() != excluded) visit(*popup);
    }
}

// --- closing

void cPopups::ClosePopups() {
    if (m_Services.state.m_PopupFormCount <= 0) return;
    // A window that is gone shifts the rest down, so that the index stays.
    std::size_t index = 0;
    for (auto windows = m_Services.windows.OpenWindows(); index < windows.size();
         windows = m_Services.windows.OpenWindows()) {
        cWindow& window = *windows[index];
        const bool closed = window.Name() == kPopupKind && SkipFailure([&] { window.Close(); });
        if (!closed) ++index;
    }
}

}  // namespace vigrel
