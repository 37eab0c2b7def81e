#pragma once

#include <QMainWindow>

#include "common/protocol_trace.h"
#include "platform/setting_store.h"
#include "receiver_ui/dialogs/trace_model.h"
#include "windows/widget_window.h"

class QTableView;

namespace vigrel {

// The debug view: the rows of the protocol trace, and a menu to save them. It follows the newest row unless
// the operator has scrolled up. When it is closed the trace ends.
class cDebugWindow : public cWidgetWindow<cWindow, QMainWindow> {
  public:
    // What is referred to outlives the window.
    cDebugWindow(cOpenWindows& windows, cProtocolTrace& trace, const cTexts& texts,
                 const cSettingStore& settings);
    ~cDebugWindow() override;

    // Before the failure of a save is thrown.
    std::function<void()> OnSaveFails;

    double InnerWidth() const override { return ToTwips(centralWidget()->width()); }
    double InnerHeight() const override { return ToTwips(centralWidget()->height()); }

  protected:
    void Closed() override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void AddMenu(const cTexts& texts);
    void SetUpList();
    void SetColumnWidths(const cSettingStore& settings);
    int FittingWidth(int column) const;
    void Follow();
    void CopyRows() const;

    cProtocolTrace& m_Trace;
    cTraceModel m_Model;
    QTableView* m_List;
    bool m_SyncScheduled = false;
};

}  // namespace vigrel
