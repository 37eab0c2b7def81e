#pragma once

#include <gtest/gtest.h>

#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QUndoStack>
#include <memory>
#include <optional>

#include "adapters/qt/qt_text.h"
#include "editor_ui/fake_prompts.h"
#include "editor_ui/pages/printout.h"
#include "editor_ui/window/definitions_window.h"
#include "schedule/schedule_builder.h"
#include "support/fake_clock.h"
#include "support/fake_files.h"
#include "support/fake_random.h"

namespace vigrel::testing {

// What a page puts into an area of a white sheet.
inline QImage OnPaper(const std::optional<cPrintout>& printout, const QRectF& area) {
    QImage sheet(area.size().toSize(), QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    if (printout) {
        printout->paint(painter, area);
    } else {
        ADD_FAILURE() << "nothing to print";
    }
    return sheet;
}

// The smallest rectangle that holds all in which two pictures of one size differ.
inline QRect Difference(const QImage& a, const QImage& b) {
    QRect all;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (a.pixel(x, y) != b.pixel(x, y)) all |= QRect(x, y, 1, 1);
        }
    }
    return all;
}

// The editor over fake files in the application folder /app, on 2026-03-15.
class cEditorBench {
  public:
    cEditorBench() {
        m_Files.PutFolder("/app/");
        // The smallest size, so that a unit is a pixel.
        m_Settings.setValue("Zoom", 1.0);
        m_Window = std::make_unique<cDefinitionsWindow>(m_Services);
        m_Window->show();
    }

    cSchedulePage& NewSchedule() {
        m_Window->NewSchedule();
        return dynamic_cast<cSchedulePage&>(*m_Window->CurrentPage());
    }
    cCalendarPage& NewCalendar() {
        m_Window->NewCalendar();
        return dynamic_cast<cCalendarPage&>(*m_Window->CurrentPage());
    }
    template <class T>
    static T& Find(QWidget& page, const char* name) {
        T* found = page.findChild<T*>(name);
        if (found == nullptr) throw std::runtime_error(std::string("no element ") + name);
        return *found;
    }
    // An entry of a page or of the window.
    void Choose(QWidget& owner, const char* name) { Find<QAction>(owner, name).trigger(); }

    // A drag with the left button through places of a view, in its units.
    static void Drag(QWidget& view, const std::vector<QPoint>& places) {
        Press(view, places.front());
        for (const QPoint& place : places) Move(view, place);
        Release(view, places.back());
    }
    static void Press(QWidget& view, QPoint place, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mousePress(&view, button, {}, place);
    }
    static void Release(QWidget& view, QPoint place) {
        QTest::mouseRelease(&view, Qt::LeftButton, {}, place);
    }
    // The toolkit's own helper only moves the cursor, which an unseen screen doesn't have.
    static void Move(QWidget& view, QPoint place) {
        QMouseEvent event(QEvent::MouseMove, QPointF(place), view.mapToGlobal(QPointF(place)), Qt::NoButton,
                          Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&view, &event);
    }
    // The place of a minute in a row of a schedule.
    static QPoint At(int row, int minute) { return {30 + minute / 5, row * 25 + 10}; }

    QTemporaryDir m_Folder;
    cFakeFiles m_Files;
    cFakeClock m_Clock;
    cLocaleForms m_Forms;
    cIni m_Ini{m_Files, "/app/"};
    cFakePrompts m_Prompts;
    QSettings m_Settings{m_Folder.filePath("settings.ini"), QSettings::IniFormat};
    cFakeRandom m_Random;
    cTexts m_Texts{m_Files, m_Ini};
    cStationDefinitions m_Station{m_Files, m_Clock, m_Random, m_Texts, m_Ini};
    cEditorServices m_Services{m_Files,
                               m_Clock,
                               m_Ini,
                               m_Forms,
                               [](std::int32_t id) { return "h" + std::to_string(id); },
                               m_Prompts,
                               m_Settings,
                               cDayTypeNames(m_Ini, m_Forms),
                               cDayTypeImages(m_Ini),
                               m_Station};
    std::unique_ptr<cDefinitionsWindow> m_Window;
};

}  // namespace vigrel::testing
