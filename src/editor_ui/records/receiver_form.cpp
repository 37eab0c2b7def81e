#include "editor_ui/records/receiver_form.h"

#include <QComboBox>
#include <QFormLayout>

#include "common/date_text.h"
#include "common/failure.h"
#include "common/file_procedures.h"
#include "editor_ui/records/file_label.h"
#include "editor_ui/records/setting_edit.h"
#include "windows/plain_text.h"

namespace vigrel {

cReceiverForm::cReceiverForm(const cDefinitionServices& services, QWidget* parent)
    : QWidget(parent),
      m_Services(services),
      m_Layout(new QFormLayout(this)),
      m_Type(new QComboBox),
      m_File(new cFileLabel) {
    setObjectName("Form_Receiver");
    QFormLayout* layout = m_Layout;
    layout->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    // Where there is little room, a field stands below its label.
    layout->setRowWrapPolicy(QFormLayout::WrapLongRows);
    layout->addRow(tr("Na&me:"), m_Binder.Text("Text_ReceiverName", tr("Name"), &cReceiver::m_ReceiverName));
    layout->addRow(
        m_Binder.Flag("Check_Enabled", tr("En&abled: alarms go to this receiver"), &cReceiver::m_Enabled));
    m_Type->setObjectName("Combo_ReceiverType");
    m_Type->setAccessibleName(tr("Type"));
    layout->addRow(tr("&Type:"), m_Type);
    AddSettings(*layout);
    auto* numbers =
        m_Binder.Text("Text_ParallellNumbers", tr("Parallel numbers"), &cReceiver::m_ParallellNumbers);
    layout->addRow(tr("&Parallel numbers:"), numbers);
    layout->addRow(tr("File:"), m_File);

    connect(m_Type, &QComboBox::activated, this, [this](int row) { ChooseType(row); });
    m_Binder.AddShow([this](const cReceiver& receiver) { ShowType(receiver); });
    m_Binder.AddShow([this](const cReceiver& receiver) { ShowSettings(receiver); });
    m_Binder.AddShow([this](const cReceiver& receiver) { ShowFile(receiver); });
    m_Binder.OnEdited = [this](const cFieldStep& step) {
        if (OnEdited) OnEdited(step);
    };
    Show(nullptr, nullptr);
}

void cReceiverForm::AddSettings(QFormLayout& layout) {
    for (std::int16_t i = 0; i < cReceiver::kSettings; ++i) {
        const auto index = static_cast<std::size_t>(i);
        m_SettingLabels[index] = new cPlainLabel;
        m_SettingLabels[index]->setObjectName(QString("Label_Setting_%1").arg(i));
        m_Settings[index] = new cSettingEdit(QString("Setting_%1").arg(i));
        m_SettingLabels[index]->setBuddy(m_Settings[index]);
        layout.addRow(m_SettingLabels[index], m_Settings[index]);
        m_Settings[index]->OnEdited = [this, i, index](const cVariant& value) {
            m_Binder.Edit<cVariant>([i](cReceiver& shown, const cVariant& set) { shown.SaveSetting(i, set); },
                                    value, SettingStep(index));
        };
        m_Settings[index]->OnTyped = [this, index](const cTypedText& typed) {
            m_Binder.Keep({typed.text, m_Captions[index] + ": " + typed.problem}, SettingStep(index));
        };
    }
}

cFieldStep cReceiverForm::SettingStep(std::size_t index) const {
    return {QObject::tr("changing %1").arg(m_Captions[index]), m_Settings[index]->Field(), true};
}

void cReceiverForm::Show(cReceiver* receiver, TypedTexts* typed) {
    m_Binder.Show(receiver, typed);
    setEnabled(receiver != nullptr);
}

// In front of the table's types stands what is none of them, as long as it is shown.
void cReceiverForm::ShowType(const cReceiver& receiver) {
    m_Type->clear();
    const std::int16_t shown = receiver.GetReceiverTypeId();
    if (receiver.m_ReceiverTypeIndex < 0) {
        m_Type->addItem(shown < 0 ? tr("(choose a type)") : ToQString(receiver.m_ReceiverTypeName),
                        int{shown});
    }
    for (const cReceiverType& type : m_Services.receiverTypes.m_ReceiverTypes) {
        m_Type->addItem(ToQString(type.m_TypeName), int{type.m_TypeId});
    }
    m_Type->setCurrentIndex(m_Type->findData(int{shown}));
}

SettingForms cReceiverForm::FormsOf(const cReceiver& receiver) const {
    if (receiver.m_ReceiverTypeIndex < 0) return {};
    const auto row = static_cast<std::size_t>(receiver.m_ReceiverTypeIndex);
    return ReadSettingForms(m_Services.ini, m_Services.receiverTypes.m_ReceiverTypes[row]);
}

// Only the settings that the type uses; those of a type that is not known all, as they are.
void cReceiverForm::ShowSettings(const cReceiver& receiver) {
    SettingForms forms = FormsOf(receiver);
    const bool unknown = receiver.m_ReceiverTypeIndex < 0 && receiver.GetReceiverTypeId() >= 0;
    for (std::size_t i = 0; i < forms.size(); ++i) {
        const cVariant& value = receiver.GetSetting(static_cast<std::int16_t>(i));
        const bool named = !forms[i].caption.empty();
        m_Captions[i] = named ? ToQString(forms[i].caption) : tr("Setting %1").arg(i);
        // A label with a field takes a single "&" for the sign of an access key.
        m_SettingLabels[i]->setText(QString(m_Captions[i]).replace('&', "&&") + ":");
        // Without a form a value keeps the type it has.
        if (!named && value.Type() != eVariantType::Empty) forms[i].type = value.Type();
        forms[i].caption = FromQString(m_Captions[i]);
        m_Settings[i]->Show(forms[i], value, m_Binder.Typed(m_Settings[i]->Field()));
        m_Layout->setRowVisible(m_Settings[i], named || unknown);
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
    m_Binder.Edit<std::int16_t>(
        [this](cReceiver& shown, const std::int16_t& id) {
            shown.SetReceiverTypeId(id);
            TryTypedAgain(shown);
        },
        typeId, m_Binder.Step(tr("Type"), m_Type->objectName(), false));
    ShowType(*m_Binder.Shown());
    ShowSettings(*m_Binder.Shown());
}

// What was no value for the type before may be one now. What the type doesn't use has no field in which it
// could be mended.
void cReceiverForm::TryTypedAgain(cReceiver& receiver) {
    const SettingForms forms = FormsOf(receiver);
    for (std::size_t i = 0; i < forms.size(); ++i) {
        const cTypedText* typed = m_Binder.Typed(m_Settings[i]->Field());
        if (typed == nullptr) continue;
        const bool taken = !CatchFailure([&] {
            const cVariant value = VariantFromText(forms[i].type, FromQString(typed->text));
            if (!forms[i].caption.empty()) receiver.SaveSetting(static_cast<std::int16_t>(i), value);
        });
        if (taken || forms[i].caption.empty()) m_Binder.Forget(m_Settings[i]->Field());
    }
}

}  // namespace vigrel
