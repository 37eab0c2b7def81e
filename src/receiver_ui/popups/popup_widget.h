#pragma once

#include <QIcon>
#include <QPlainTextEdit>
#include <QString>
#include <array>
#include <optional>
#include <string_view>

#include "platform/popup_window.h"
#include "receiver_ui/popups/popup_picture.h"
#include "receiver_ui/popups/popup_stack.h"
#include "windows/widget_window.h"

namespace vigrel {

// The pictures of the four states.
using PopupIcons = std::array<QIcon, cPopupWindow::kPictures>;

// The text of an alarm as a popup shows it: every kind of line end is one, tabs stay, and other control
// characters become the pictures that stand for them.
QString PopupText(std::string_view text);

// A popup on the screen. It never takes the keyboard from what the operator is doing. Text that doesn't fit
// can be scrolled, selected and copied.
class cPopupWidget : public cWidgetWindow<cPopupWindow>, public cStackedPopup {
  public:
    cPopupWidget(cOpenWindows& windows, cPopupStack& stack, const PopupIcons& icons);
    ~cPopupWidget() override { m_Stack.Remove(*this); }

    // --- cWindow: what is wished, which may not have reached the screen yet
    double Left() const override { return m_Place ? ToTwips(m_Place->x()) : cWidgetWindow::Left(); }
    double Top() const override { return m_Place ? ToTwips(m_Place->y()) : cWidgetWindow::Top(); }
    void SetLeft(double twips) override;
    void SetTop(double twips) override;
    bool Visible() const override { return m_Shown; }
    void Show() override;
    void Hide() override;
    void SetTopMost(bool topMost) override;

    // --- cPopupWindow
    void SetForeColour(std::int32_t colour) override;
    void SetBackColour(std::int32_t colour) override;
    void SetLabelText(std::string_view text) override;
    void SetLabelForeColour(std::int32_t colour) override;
    void SetLabelBackColour(std::int32_t colour) override;
    void SetLabelFont(std::string_view name, double points) override;
    void SetLabelFontStyle(bool bold, bool italic) override;
    void SetLabelLeft(double twips) override;
    void SetLabelTop(double twips) override;
    void SetLabelWidth(double twips) override;
    void SetLabelHeight(double twips) override;
    void SetPictureBackColour(int picture, std::int32_t colour) override;
    void SetPictureVisible(int picture, bool visible) override;
    double PictureLeft(int picture) const override;
    double PictureWidth(int picture) const override;
    void PlaceBehind(cPopupWindow& other) override;

    // --- cStackedPopup
    bool OnScreen() const override { return isVisible(); }
    void RaiseOnScreen() override { raise(); }
    bool ReachScreen() override;

  protected:
    void Closed() override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    const cPopupPicture& Picture(int picture) const;
    cPopupPicture& Picture(int picture);
    void SetLabelFontTo(const QFont& font);
    void ReachPlace();
    void Map();

    cPopupStack& m_Stack;
    QPlainTextEdit m_Label;
    std::array<cPopupPicture*, kPictures> m_Pictures;
    std::optional<QPoint> m_Place;  // of the frame; wished, and not on the screen yet
    bool m_Shown = false;
};

// Makes popups, each a step beside the one before.
class cPopupWidgetMaker : public cPopupMaker {
  public:
    explicit cPopupWidgetMaker(cOpenWindows& windows);
    // Popups that are still open go without their close.
    ~cPopupWidgetMaker() override;
    cPopupWindow& MakePopup() override;
    cPopupStack& Stack() { return m_Stack; }

  private:
    QPoint NextPlace(QSize size);

    cOpenWindows& m_Windows;
    PopupIcons m_Icons;
    QIcon m_WindowIcon;
    cPopupStack m_Stack;
    int m_Step = 0;
};

}  // namespace vigrel
