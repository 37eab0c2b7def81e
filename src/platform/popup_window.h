#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "platform/windows.h"

namespace vigrel {

// The name of a popup's kind.
inline constexpr std::string_view kPopupKind = "Vigrel_Receiver_Popup";

// A popup: a small window with a caption, a text label and four pictures on one spot, all hidden at first.
//
// By design its inner size is 6768 by 1260; each picture stands at left 90, top 210, 384 by 384; the label at
// left 720, top 0, 6015 by 1170. Colours: red in the low byte, then green, then blue; 240, 240, 240 behind
// window and label until told otherwise.
class cPopupWindow : public cWindow {
  public:
    static constexpr int kPictures = 4;

    virtual void SetForeColour(std::int32_t colour) = 0;
    virtual void SetBackColour(std::int32_t colour) = 0;

    virtual void SetLabelText(std::string_view text) = 0;
    virtual void SetLabelForeColour(std::int32_t colour) = 0;
    virtual void SetLabelBackColour(std::int32_t colour) = 0;
    virtual void SetLabelFont(std::string_view name, double points) = 0;
    virtual void SetLabelFontStyle(bool bold, bool italic) = 0;
    // Inside the window. A negative width or height throws cFailure.
    virtual void SetLabelLeft(double twips) = 0;
    virtual void SetLabelTop(double twips) = 0;
    virtual void SetLabelWidth(double twips) = 0;
    virtual void SetLabelHeight(double twips) = 0;

    // Pictures are numbered from 0, by the status that they stand for; another number throws cFailure.
    virtual void SetPictureBackColour(int picture, std::int32_t colour) = 0;
    virtual void SetPictureVisible(int picture, bool visible) = 0;
    virtual double PictureLeft(int picture) const = 0;
    virtual double PictureWidth(int picture) const = 0;

    // Directly behind another popup in the stacking order, without moving or sizing it. Topmost popups stay
    // over all that are not.
    virtual void PlaceBehind(cPopupWindow& other) = 0;

    // --- events
    // The operator chose a picture, with the mouse or the keyboard.
    std::function<void(int picture)> OnPictureClick;
};

// Makes popups. A window belongs to its maker: it is among the open windows from now on, not shown yet, in a
// place that the maker chooses, and goes with its close.
//
// What is done to a popup reaches the screen when the handler that does it has ended; a popup that was
// elsewhere or shown for a moment only is never seen so.
class cPopupMaker {
  public:
    virtual ~cPopupMaker() = default;
    virtual cPopupWindow& MakePopup() = 0;
};

}  // namespace vigrel
