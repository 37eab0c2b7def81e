#include "editor_ui/records/receiver_form.h"

#include <QComboBox>
#include <QFormLayout>

#include "common/date_text.h"
#include "common/file_procedures.h"
#include "editor_ui/records/setting_edit.h"
#include "windows/plain_text.h"

namespace vigrel {

cReceiverForm::cReceiverForm(const cDefinitionServices& services, QWidget* parent)
    : QWidget(parent), m_Services(services), m_Type(new QComboBox), m_File(new cPlainLabel) {
    setObjectName("Form_Receiver");
    auto* layout = new QFormLayout(this);
    layout->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    // Where there is little room, a field stands below its label.
    layout->setRowWrapPolicy(QFormLayout::WrapLongRows);
    m_Name = m_Binder.Text("Text_ReceiverName", tr("Name"), &cReceiver::m_ReceiverName);
    layout->addRow(tr("Na&me:"), m_Name);
    layout->addRow("", m_Binder.Flag("Check_Enabled", tr("En&abled: alarms go to this receiver"),
                                     &cReceiver::m_Enabled));
    m_Type->setObjectName("Combo_ReceiverType");
    m_Type->setAccessibleName(tr("Type"));
    layout->addRow(tr("&Type:"), m_Type);
    AddSettings(*layout);
    auto* numbers =
        m_Binder.Text("Text_ParallellNumbers", tr("Parallel numbers"), &cReceiver::m_ParallellNumbers);
    layout->addRow(tr("&Parallel numbers:"), numbers);
    layout->addRow(tr("File:"), m_File);
    m_File->setObjectName("Label_File");
    m_File->setWordWrap(true);
    m_File->setTextInteractionFlags(Qt::TextSelectableByMouse);

    AddTypes();
    connect(m_Type, &QComboBox::activated, this, [this](int row) { ChooseType(row); });
    m_Binder.AddShow([this](const cReceiver& receiver) { ShowType(receiver); });
    m_Binder.AddShow([this](const cReceiver& receiver) { ShowSettings(receiver); });
    m_Binder.AddShow([this](const cReceiver& receiver) { ShowFile(receiver); });
    m_Binder.OnEdited = [this] {
        if (OnEdited) OnEdited();
    };
    Show(nullptr);
}

void cReceiverForm::AddTypes() {
    for (const cReceiverType& type : m_Services.receiverTypes.m_ReceiverTypes) {
        m_Type->addItem(ToQString(type.m_TypeName), int{type.m_TypeId});
    }
}

void cReceiverForm::AddSettings(QFormLayout& layout) {
    for (std::int16_t i = 0; i < cReceiver::kSettings; ++i) {
        const auto index = static_cast<std::size_t>(i);
        m_SettingLabels[index] = new cPlainLabel;
        m_SettingLabels[index]->setObjectName(QString("Label_Setting_%1").arg(i));
        m_Settings[index] = new cSettingEdit(i);
        m_SettingLabels[index]->setBuddy(m_Settings[index]);
        layout.addRow(m_SettingLabels[index], m_Settings[index]);
        m_Settings[index]->OnEdited = [this, i](const cVariant& value) {
            m_Binder.Edit<cVariant>([i](cReceiver& shown, const cVariant& set) { shown.SaveSetting(i, set); },
                                    value);
        };
    }
}

void cReceiverForm::Show(cReceiver* receiver) {
    m_Binder.Show(receiver);
    setEnabled(receiver != nullptr);
}

// A type that the table lacks has an entry of its own behind the others, as long as it is shown.
void cReceiverForm::ShowType(const cReceiver& receiver) {
    const int known = m_Services.receiverTypes.ReceiverTypeCount();
    while (m_Type->count() > known) m_Type->removeItem(known);
    if (receiver.m_ReceiverTypeIndex < 0) {
        const bool none = receiver.GetReceiverTypeId() < 0;
        m_Type->addItem(none ? tr("(choose a type)") : ToQString(receiver.m_ReceiverTypeName),
                        int{receiver.GetReceiverTypeId()});
    }
    m_Type->setCurrentIndex(receiver.m_ReceiverTypeIndex < 0 ? known : receiver.m_ReceiverTypeIndex);
}

void cReceiverForm::ShowSettings(const cReceiver& receiver) {
    SettingForms forms;
    if (receiver.m_ReceiverTypeIndex >= 0) {
        const auto row = static_cast<std::size_t>(receiver.m_ReceiverTypeIndex);
        forms = ReadSettingForms(m_Services.ini, m_Services.receiverTypes.m_ReceiverTypes[row]);
    }
    for (std::size_t i = 0; i < forms.size(); ++i) {
        const cVariant& value = receiver.GetSetting(static_cast<std::int16_t>(i));
        const bool named = !forms[i].caption.empty();
        m_SettingLabels[i]->setText(named ? ToQString(forms[i].caption) + ":"
                                          : tr("Setting %1 (not used):").arg(i));
        // Without a form a value keeps the type it has.
        if (!named && value.Type() != eVariantType::Empty) forms[i].type = value.Type();
        if (!named) forms[i].caption = FromQString(m_SettingLabels[i]->text());
        m_Settings[i]->Show(forms[i], value);
    }
}

void cReceiverForm::ShowFile(const cReceiver& receiver) {
    if (receiver.m_DiskIdentity < 0) {
        m_File->setText(tr("not saved yet"));
        return;
    }
    const std::string name = SplitPath(receiver.CreateFileName(receiver.m_DiskIdentity)).name;
    m_File->setText(
        receiver.m_FileDateTimeStamp == 0
            ? ToQString(name)
            : tr("%1, saved %2").arg(ToQString(name), ToQString(DateTimeText(receiver.m_FileDateTimeStamp))));
}

void cReceiverForm::ChooseType(int row) {
    const auto typeId = static_cast<std::int16_t>(m_Type->itemData(row).toInt());
    if (m_Binder.Shown() == nullptr || typeId == m_Binder.Shown()->GetReceiverTypeId()) return;
    m_Binder.Edit<std::int16_t>([](cReceiver& shown, const std::int16_t& id) { shown.SetReceiverTypeId(id); },
                                typeId);
    ShowType(*m_Binder.Shown());
    ShowSettings(*m_Binder.Shown());
}

QString cReceiverForm::Problem() const {
    if (m_Binder.Shown() == nullptr) return {};
    if (m_Name->text().trimmed().isEmpty()) return tr("The name is empty.");
    for (std::size_t i = 0; i < m_Settings.size(); ++i) {
        if (!m_Settings[i]->Problem().isEmpty())
            return m_SettingLabels[i]->text() + " " + m_Settings[i]->Problem();
    }
    return {};
}

void cReceiverForm::FocusName() {
    m_Name->setFocus();
    m_Name->selectAll();
}

}  // namespace vigrel
