#pragma once

#include <QIcon>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/popup_window.h"
#include "receiver_ui/popups/popup_content.h"
#include "receiver_ui/popups/popup_stack.h"
#include "windows/widget_window.h"

namespace vigrel {

// A popup on the screen. It never takes the keyboard from what the operator is doing; the one that has it
// leaves it to the next popup when it is closed. Until it is shown for
// the first time it is little more than a note of what it will be: in a flood of alarms most wait, and of
// popups of which one shows at a time most are never seen.
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

    // Makes what the popup shows inside, unless it is there.
    void Build();

    // --- cStackedPopup
    bool OnScreen() const override { return isVisible(); }
    void RaiseOnScreen() override { raise(); }
    bool ReachScreen() override;
    bool CanTakeKeyboard() const override { return isVisible() && !isMinimized(); }
    void TakeKeyboard() override { activateWindow(); }

  protected:
    void Closed() override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    using ContentStep = std::function<void(cPopupContent&)>;
    // Now, or when the content is made.
    void WithContent(ContentStep step);
    void ReachPlace();
    void Map();

    cPopupStack& m_Stack;
    const PopupIcons& m_Icons;
    std::unique_ptr<cPopupContent> m_Content;
    std::vector<ContentStep> m_Steps;  // for the content, while there is none
    std::optional<QPoint> m_Place;     // of the frame; wished, and not on the screen yet
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
    cPopupStack m_Stack{m_Windows};
    int m_Step = 0;
};

}  // namespace vigrel
