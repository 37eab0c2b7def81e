#pragma once

#include <QMainWindow>
#include <QTimer>
#include <functional>
#include <string_view>

#include "platform/windows.h"
#include "receiver_ui/list/qt_report_list.h"
#include "windows/icon_strip.h"
#include "windows/widget_window.h"

class QAction;
class QMenu;

namespace vigrel {

// The main window: the menus and, filling all of the inside, the alarm list.
//
// Its end is the end of the program: when its close was not refused, the event loop ends with exit code 0. A
// close by the end of the desktop session comes as eCloseReason::SessionEnd, by the window manager as
// Control.
class cMainWindow : public cWidgetWindow<cWindow, QMainWindow>, public cMenus {
  public:
    explicit cMainWindow(cOpenWindows& windows);

    cQtReportList& List() { return m_List; }

    // --- cWindow
    double InnerWidth() const override;
    double InnerHeight() const override;
    // Brings the window to the front too, also one that was minimised, and gives it the focus.
    void Show() override;
    void SetFocus() override;

    // --- cMenus; an unknown entry throws cFailure
    void SetCaption(std::string_view entry, std::string_view caption) override;
    void SetEnabled(std::string_view entry, bool enabled) override;
    void SetVisible(std::string_view entry, bool visible) override;
    using cWidgetWindow::SetCaption;

    // The key for help, which has no entry.
    std::function<void()> OnHelp;

  protected:
    void Closed() override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QMenu* AddMenu(const char* name, std::string_view caption);
    void AddEntry(QMenu& menu, const char* name, std::string_view caption, std::function<void()>& chosen);
    void ComeToFront();
    QAction& Entry(std::string_view name) const;

    QTimer m_FrontTimer;  // runs for a while after each way to the front
    QTimer m_RefusedTimer;
    bool m_FrontWished = false;  // again, while m_FrontTimer runs
    cIconStrip m_Icons;
    cQtReportList m_List;
};

}  // namespace vigrel
