#pragma once

#include <QWidget>
#include <array>
#include <functional>

#include "definitions/receiver.h"
#include "definitions/receiver_settings.h"
#include "editor_ui/records/field_binder.h"

class QComboBox;
class QFormLayout;
class QLabel;

namespace vigrel {

class cSettingEdit;

// Every field of a receiver. Settings are labelled as the receiver's type calls them.
class cReceiverForm : public QWidget {
    Q_OBJECT
  public:
    explicit cReceiverForm(const cDefinitionServices& services, QWidget* parent = nullptr);

    // What is shown must outlive its showing; nullptr shows nothing.
    void Show(cReceiver* receiver, TypedTexts* typed);

    // After each change of the receiver by the user.
    std::function<void(const cFieldStep&)> OnEdited;

  private:
    void AddSettings(QFormLayout& layout);
    void ShowType(const cReceiver& receiver);
    void ShowSettings(const cReceiver& receiver);
    void ShowFile(const cReceiver& receiver);
    void ChooseType(int row);
    cFieldStep SettingStep(std::size_t index) const;
    void TryAgain(cReceiver& receiver);
    struct cShownSetting {
        QString caption;  // as the type's file has it
        eVariantType type = eVariantType::String;
        bool isShown = false;
    };
    using cShownSettings = std::array<cShownSetting, cReceiver::kSettings>;
    cShownSettings SettingsOf(const cReceiver& receiver) const;
    bool IsTypeTold(const cReceiver& receiver) const;
    const cReceiverType& TypeOf(const cReceiver& receiver) const;

    const cDefinitionServices& m_Services;
    cFieldBinder<cReceiver> m_Binder;
    QFormLayout* m_Layout;
    QComboBox* m_Type;
    QLabel* m_File;
    std::array<QLabel*, cReceiver::kSettings> m_SettingLabels{};
    cShownSettings m_Shown;
    std::array<cSettingEdit*, cReceiver::kSettings> m_Settings{};
};

}  // namespace vigrel
