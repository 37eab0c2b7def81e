#pragma once

#include <QIcon>
#include <QString>
#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "platform/popup_window.h"
#include "receiver_ui/popups/popup_label.h"
#include "receiver_ui/popups/popup_picture.h"

namespace vigrel {

// The pictures of the four states.
using PopupIcons = std::array<QIcon, cPopupWindow::kPictures>;

// The text of an alarm as a popup shows it: every kind of line end is one, tabs stay, and other control
// characters become the pictures that stand for them.
QString PopupText(std::string_view text);

// Gives one role of a widget a colour.
void SetRole(QWidget& widget, QPalette::ColorRole role, std::int32_t colour);

// What a popup shows inside: its text and its pictures. Text that doesn't fit can be scrolled, selected and
// copied. It is by far the greater part of a popup's cost, so that a popup gets it when it is first shown.
class cPopupContent {
  public:
    // Units of the logic (twips).
    static constexpr double kPictureLeft = 90, kPictureTop = 210, kPictureWidth = 384;

    cPopupContent(QWidget& popup, const PopupIcons& icons);

    cPopupLabel& Label() { return m_Label; }
    void SetLabelFont(std::string_view name, double points);
    void SetLabelFontStyle(bool bold, bool italic);
    cPopupPicture& Picture(int picture) { return *m_Pictures[static_cast<std::size_t>(picture)]; }

    // The operator chose a picture.
    std::function<void(int picture)> OnPictureClick;

  private:
    void MakePictures(QWidget& popup, const PopupIcons& icons);
    void MakeLabel();
    void SetFont(const QFont& font);

    cPopupLabel m_Label;
    std::array<cPopupPicture*, cPopupWindow::kPictures> m_Pictures{};
};

}  // namespace vigrel
