#include "editor_ui/records/receivers_page.h"

#include "common/text.h"
#include "editor_ui/records/receiver_form.h"
#include "windows/short_text.h"

namespace vigrel {
namespace {

constexpr int kMostNames = 10;

cFieldProblem ReceiverProblem(const cReceiver& receiver) {
    if (Trim(receiver.m_ReceiverName).empty()) {
        return {QObject::tr("The name is empty."), "Text_ReceiverName"};
    }
    // Nobody could send anything to it.
    if (receiver.GetReceiverTypeId() < 0) return {QObject::tr("Choose a type."), "Combo_ReceiverType"};
    return {};
}

// Nothing where no type was chosen yet, as for a new receiver: a copy of one calls that an unknown type.
QString TypeText(const cReceiver& receiver) {
    return receiver.GetReceiverTypeId() < 0 ? QString() : ToQString(receiver.m_ReceiverTypeName);
}

std::unique_ptr<cFolderSource<cReceiver>> ReadReceivers(cStationDefinitions& station) {
    station.OpenReceivers();
    return std::make_unique<cFolderSource<cReceiver>>(station.Receivers(), TypeText, ReceiverProblem);
}

}  // namespace

cReceiversPage::cReceiversPage(cEditorServices& services, QWidget* parent)
    : cReceiversPage(services, ReadReceivers(services.m_Station).release(), parent) {}

cReceiversPage::cReceiversPage(cEditorServices& services, cFolderSource<cReceiver>* source, QWidget* parent)
    : cDefinitionPage(
          services, std::unique_ptr<cDefinitionSource>(source),
          [&services] { return services.m_Station.TakeNotes(); }, parent),
      m_Station(services.m_Station),
      m_Source(*source),
      m_Form(new cReceiverForm(m_Station.Services())) {
    setObjectName("Page_Receivers");
    m_Form->OnEdited = [this](const cFieldStep& step) { NoteEdit(step); };
    cPageForm form;
    form.widget = m_Form;
    form.nameField = "Text_ReceiverName";
    form.show = [this](int position) {
        const auto index = static_cast<std::size_t>(position);
        if (position < 0) return m_Form->Show(nullptr, nullptr);
        m_Form->Show(&m_Station.Receivers().At(index), &m_Source.Typed(index));
    };
    form.deleteWarning = [this](int position) { return DeleteWarning(position); };
    SetUp({tr("Receivers"), PathToQString(m_Station.ApplicationPath() + "Receivers"), tr("New receiver"),
           tr("There are no receivers yet. A receiver is one place that alarms can go to."), tr("Type"),
           tr("Delete the receiver \"%1\" and its file?")},
          std::move(form));
}

QString cReceiversPage::DeleteWarning(int position) {
    const std::int16_t identity = m_Station.Receivers().At(static_cast<std::size_t>(position)).m_DiskIdentity;
    if (identity < 0) return {};
    QStringList names;
    for (const std::string& name : m_Station.ProfilesWith(identity)) names += ShortName(ToQString(name));
    if (names.isEmpty()) return {};
    if (names.size() > kMostNames) names = names.mid(0, kMostNames) + QStringList{"..."};
    return tr("These profiles send alarms to it:\n%1").arg(names.join('\n'));
}

}  // namespace vigrel
