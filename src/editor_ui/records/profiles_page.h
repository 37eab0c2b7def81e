#pragma once

#include "editor_ui/records/definition_page.h"

namespace vigrel {

class cProfileForm;

// The profiles of the station.
class cProfilesPage : public cDefinitionPage {
    Q_OBJECT
  public:
    // Reads the profiles anew. The services must outlive the page, and no other page of the station's
    // profiles may be in use.
    explicit cProfilesPage(cEditorServices& services, QWidget* parent = nullptr);
    ~cProfilesPage() override;

    // The calendar that the form shows belongs to the page.
    bool IsDirty() const override;
    bool Save() override;
    bool CanPrint() const override { return Chosen() >= 0; }
    std::optional<cPrintout> Printout() override;
    cContentEditor* PrintedEditor() override;
    void SetZoom(double zoom) override;
    void RefreshDayTypes() override;

  protected:
    // Receivers may have been renamed meanwhile, on their page or by others.
    void LookAgain() override;
    void showEvent(QShowEvent* event) override;

  private:
    // Takes the source over.
    cProfilesPage(cEditorServices& services, cFolderSource<cProfile>* source, QWidget* parent);
    void ConnectCalendar();

    cStationDefinitions& m_Station;
    cFolderSource<cProfile>& m_Source;
    cProfileForm* m_Form;
};

}  // namespace vigrel
