#pragma once

#include <QMainWindow>
#include <QStackedWidget>
#include <QTabWidget>
#include <QUndoGroup>
#include <optional>

#include "editor_ui/calendar/calendar_page.h"
#include "editor_ui/drawing/drawing_room.h"
#include "editor_ui/pages/editor_page.h"
#include "editor_ui/pages/editor_services.h"
#include "editor_ui/schedule/schedule_page.h"
#include "editor_ui/window/recent_files.h"

class QActionGroup;

namespace vigrel {

// The editor's window: one tab for each schedule, calendar, or other page.
class cDefinitionsWindow : public QMainWindow {
    Q_OBJECT
  public:
    explicit cDefinitionsWindow(cEditorServices& services);
    ~cDefinitionsWindow() override;

    // Takes the page over, shows it and brings it to the front.
    void AddPage(cEditorPage* page);
    cEditorPage* CurrentPage() const;
    QList<cEditorPage*> Pages() const;

    void NewSchedule();
    void NewCalendar();
    // The pages of the application folder; each comes to the front when it is open already.
    void ShowReceivers();
    void ShowProfiles();
    void ShowColourRules();
    void ShowOwnHolidays();
    // The page that was in front when the window was closed last, if it is still there.
    void ShowLastPage();
    // A file that is open already comes to the front. False when it could not be opened; the operator has
    // been told.
    bool OpenFile(const QString& path);
    // Asks what is to become of unsaved changes, and keeps what the next start goes on with. False when the
    // user refuses.
    bool MayEnd();

  signals:
    // The window was closed, and nothing is left unsaved that the operator wanted.
    void Closed();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void MakeFileMenu();
    void MakeEditMenu();
    void MakeViewMenu();
    void MakeZooms(QMenu& menu);
    void MakeStationMenu();
    void MakeHelpMenu();
    QAction* AddEntry(QMenu& menu, const char* name, const QString& text, const QKeySequence& keys,
                      const std::function<void()>& chosen);
    QWidget* MakeStartPage();
    void RestoreWindow();

    void ListenTo(cEditorPage* page);
    template <class Page>
    void ShowPage();
    cFilePage* MakeFilePage(const QString& path);
    void Open();
    void OpenRecent(const QString& path);
    void FillRecentMenu();
    void FillEditMenu();
    void ShowBoth(const QString& path);
    bool ClosePage(int index);
    void RemovePage(cEditorPage& page);
    bool MayClose(cEditorPage& page);
    void KeepLastPage();
    QString TitleOf(const cEditorPage& page) const;
    void CurrentPageChanged();
    void PageStateChanged();
    void SchedulesChanged();
    // To the next page or the one before, over the ends.
    void TurnPage(int step);
    void SetZoom(double zoom);
    void ShowAbout();
    std::optional<cPrintout> FinishedPrintout();
    void Print();
    void SaveAsPdf();

    cEditorServices& m_Services;
    cRecentFiles m_Recent;
    QStackedWidget m_Centre;
    QTabWidget m_Tabs;
    QUndoGroup m_UndoGroup;
    QMenu *m_RecentMenu = nullptr, *m_EditMenu = nullptr;
    QAction *m_Save = nullptr, *m_SaveAs = nullptr, *m_Close = nullptr, *m_Print = nullptr, *m_Pdf = nullptr,
            *m_Undo = nullptr, *m_Redo = nullptr;
    double m_Zoom = kFitZoom;
    int m_NewSchedules = 0, m_NewCalendars = 0;
};

}  // namespace vigrel
