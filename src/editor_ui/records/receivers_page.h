#pragma once

#include "editor_ui/records/definition_page.h"

namespace vigrel {

class cReceiverForm;

// The receivers of the station.
class cReceiversPage : public cDefinitionPage {
    Q_OBJECT
  public:
    // Reads the receivers anew. The services must outlive the page, and no other page of the station's
    // receivers may be in use.
    explicit cReceiversPage(cEditorServices& services, QWidget* parent = nullptr);

  private:
    // Takes the source over.
    cReceiversPage(cEditorServices& services, cFolderSource<cReceiver>* source, QWidget* parent);
    QString DeleteWarning(int position);

    cStationDefinitions& m_Station;
    cFolderSource<cReceiver>& m_Source;
    cReceiverForm* m_Form;
};

}  // namespace vigrel
