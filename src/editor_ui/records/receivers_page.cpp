#include "editor_ui/records/receivers_page.h"

#include "editor_ui/records/receiver_form.h"

namespace vigrel {
namespace {

constexpr int kMostNames = 10;

std::unique_ptr<cDefinitionSource> ReadReceivers(cStationDefinitions& station) {
    station.OpenReceivers();
    return std::make_unique<cFolderSource<cReceiver>>(station.Receivers(), [](const cReceiver& receiver) {
        return ToQString(receiver.m_ReceiverTypeName);
    });
}

}  // namespace

cReceiversPage::cReceiversPage(cEditorServices& services, QWidget* parent)
    : cDefinitionPage(
          services, ReadReceivers(services.m_Station), [&services] { return services.m_Station.TakeNotes(); },
          parent),
      m_Station(services.m_Station),
      m_Form(new cReceiverForm(m_Station.Services())) {
    setObjectName("Page_Receivers");
    m_Form->OnEdited = [this] { NoteEdit(); };
    cPageForm form;
    form.widget = m_Form;
    form.show = [this](int position) {
        m_Form->Show(position < 0 ? nullptr : &m_Station.Receivers().At(static_cast<std::size_t>(position)));
    };
    form.problem = [this] { return m_Form->Problem(); };
    form.focusName = [this] { m_Form->FocusName(); };
    form.deleteWarning = [this](int position) { return DeleteWarning(position); };
    SetUp({tr("Receivers"), PathToQString(m_Station.ApplicationPath() + "Receivers"), tr("New receiver"),
           tr("Type"), tr("Delete the receiver \"%1\" and its file?")},
          std::move(form));
}

QString cReceiversPage::DeleteWarning(int position) const {
    const std::int16_t identity = m_Station.Receivers().At(static_cast<std::size_t>(position)).m_DiskIdentity;
    if (identity < 0) return {};
    QStringList names;
    for (const std::string& name : m_Station.ProfilesWith(identity)) names += ToQString(name);
    if (names.isEmpty()) return {};
    if (names.size() > kMostNames) names = names.mid(0, kMostNames) + QStringList{"..."};
    return tr("These profiles send alarms to it:\n%1").arg(names.join('\n'));
}

}  // namespace vigrel
