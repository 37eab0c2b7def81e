#pragma once

#include "editor_ui/calendar/own_holidays_editor.h"
#include "editor_ui/pages/file_page.h"

namespace vigrel {

// The own holidays of a station.
class cOwnHolidaysPage : public cFilePage {
    Q_OBJECT
  public:
    explicit cOwnHolidaysPage(cEditorServices& services, QWidget* parent = nullptr)
        : cOwnHolidaysPage(services, new cOwnHolidaysEditor(services), parent) {}

    // The station has one list.
    bool HasSaveAs() const override { return false; }

  private:
    cOwnHolidaysPage(cEditorServices& services, cOwnHolidaysEditor* editor, QWidget* parent);
};

}  // namespace vigrel
