#include "editor_ui/records/receiver_form.h"

#include <QComboBox>
#include <QFormLayout>

#include "common/date_text.h"
#include "common/failure.h"
#include "common/file_procedures.h"
#include "editor_ui/pages/reasons.h"
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
            m_Binder.Keep({typed.text, m_Shown[index].caption + ": " + typed.problem}, SettingStep(index));
        };
    }
}

cFieldStep cReceiverForm::SettingStep(std::size_t index) const {
    return {QObject::tr("changing %1").arg(m_Shown[index].caption), m_Settings[index]->Field(), true};
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

// Which settings the type uses is told by its settings file. Of a type that is not known, or whose file is
// not there, all are shown as they are: they are in the receiver's file.
bool cReceiverForm::IsTypeTold(const cReceiver& receiver) const {
    if (receiver.m_ReceiverTypeIndex < 0) return receiver.GetReceiverTypeId() < 0;
    const std::string& file = TypeOf(receiver).m_SettingsFile;
    return file.empty() || FileExists(m_Services.files, m_Services.ini.FullPath(file));
}

const cReceiverType& cReceiverForm::TypeOf(const cReceiver& receiver) const {
    return m_Services.receiverTypes.m_ReceiverTypes[static_cast<std::size_t>(receiver.m_ReceiverTypeIndex)];
}

cReceiverForm::cShownSettings cReceiverForm::SettingsOf(const cReceiver& receiver) const {
    const bool isTold = IsTypeTold(receiver);
    SettingForms forms;
    if (receiver.m_ReceiverTypeIndex >= 0) forms = ReadSettingForms(m_Services.ini, TypeOf(receiver));
    cShownSettings shown;
    for (std::size_t i = 0; i < forms.size(); ++i) {
        const eVariantType stored = receiver.GetSetting(static_cast<std::int16_t>(i)).Type();
        const bool isNamed = !forms[i].caption.empty();
        // Without a form a value keeps the type it has.
        const bool keepsType = !isNamed && stored != eVariantType::Empty;
        shown[i] = {isNamed ? ToQString(forms[i].caption) : tr("Setting %1").arg(i),
                    keepsType ? stored : forms[i].type, isNamed || !isTold};
    }
    return shown;
}

void cReceiverForm::ShowSettings(const cReceiver& receiver) {
    m_Shown = SettingsOf(receiver);
    for (std::size_t i = 0; i < m_Shown.size(); ++i) {
        const auto& [caption, type, isShown] = m_Shown[i];
        // A label with a field takes a single "&" for the sign of an access key.
        m_SettingLabels[i]->setText(QString(caption).replace('&', "&&") + ":");
        m_Settings[i]->Show({FromQString(caption), type}, receiver.GetSetting(static_cast<std::int16_t>(i)),
                            m_Binder.Typed(m_Settings[i]->Field()));
        m_Layout->setRowVisible(m_Settings[i], isShown);
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
            TryAgain(shown);
        },
        typeId, m_Binder.Step(tr("Type"), m_Type->objectName(), false));
    ShowType(*m_Binder.Shown());
    ShowSettings(*m_Binder.Shown());
}

// What was no value for the type before may be one now, and the other way round. What the type doesn't use
// has no field in which it could be mended.
void cReceiverForm::TryAgain(cReceiver& receiver) {
    const cShownSettings settings = SettingsOf(receiver);
    for (std::size_t i = 0; i < settings.size(); ++i) {
        const QString field = m_Settings[i]->Field();
        const auto index = static_cast<std::int16_t>(i);
        const cTypedText* typed = m_Binder.Typed(field);
        const bool isTyped = typed != nullptr;
        const QString text = isTyped ? typed->text : ToQString(receiver.GetSetting(index).Text());
        m_Binder.Forget(field);
        if (!settings[i].isShown || (!isTyped && text.isEmpty())) continue;
        cVariant value;
        const auto fault =
            CatchFailure([&] { value = VariantFromText(settings[i].type, FromQString(text)); });
        if (fault) {
            m_Binder.SetTypedIn(field,
                                {{field, {text, settings[i].caption + ": " + Told(fault->Description())}}});
        } else if (isTyped) {
            receiver.SaveSetting(index, value);
        }
    }
}

}  // namespace vigrel
