#include "definitions/receiver_settings.h"

#include "definitions/definition_fixture.h"
#include "support/samples.h"

namespace vigrel::testing {
namespace {

using SettingFormsReading = DefinitionTest;

TEST_F(SettingFormsReading, CaptionsAndTypesStandInTheSettingsFileOfTheType) {
    m_Files.Put("C:\\App\\Tele.INI",
                "[ReceiverTypeSettings]\r\nSetting0=Address\r\nSetting1=Port\r\nSetting1Type=integer32\r\n"
                "Setting3=Night\r\nSetting3Type=YesNo\r\n");
    const SettingForms forms = ReadSettingForms(m_Ini, m_Types.m_ReceiverTypes[3]);
    EXPECT_EQ(forms[0], (cSettingForm{"Address", eVariantType::String}));
    EXPECT_EQ(forms[1], (cSettingForm{"Port", eVariantType::Int32}));
    EXPECT_EQ(forms[2], cSettingForm{});
    EXPECT_EQ(forms[3], (cSettingForm{"Night", eVariantType::Boolean}));
}

TEST_F(SettingFormsReading, AnUnknownTypeWordMeansAText) {
    m_Files.Put("C:\\App\\Tele.INI",
                "[ReceiverTypeSettings]\r\nSetting0=Address\r\nSetting0Type=Whatever\r\n");
    EXPECT_EQ(ReadSettingForms(m_Ini, m_Types.m_ReceiverTypes[3])[0].type, eVariantType::String);
}

TEST_F(SettingFormsReading, ATypeWithoutSettingsFileUsesNoSetting) {
    EXPECT_EQ(ReadSettingForms(m_Ini, m_Types.m_ReceiverTypes[0]), SettingForms());
}

// The table that is installed.
class InstalledReceiverTypes : public DefinitionTest {
  protected:
    InstalledReceiverTypes() {
        for (const std::string name :
             {"ReceiverTypes.txt", "ReceiverType_Printer.INI", "ReceiverType_Mail.INI",
              "ReceiverType_SMS.INI", "ReceiverType_Station.INI", "ReceiverType_XRT.INI",
              "ReceiverType_XRTTCP.INI", "ReceiverType_T940SI.INI"}) {
            m_Files.Put("C:\\App\\" + name, testing::Resource("receiver-types/" + name));
        }
    }
};

TEST_F(InstalledReceiverTypes, AreReadWithoutAProblemAndNameTheirSettings) {
    EXPECT_EQ(m_Types.Load(m_Files, "C:\\App\\ReceiverTypes.txt"), std::vector<cLineProblem>{});
    EXPECT_EQ(m_Types.ReceiverTypeCount(), 7);
    for (const cReceiverType& type : m_Types.m_ReceiverTypes) {
        EXPECT_NE(ReadSettingForms(m_Ini, type)[0].caption, "") << type.m_TypeName;
    }
}

TEST_F(InstalledReceiverTypes, CoverTheKindsWithAKeepAlive) {
    m_Types.Load(m_Files, "C:\\App\\ReceiverTypes.txt");
    cReceiver receiver(m_Services);
    receiver.SaveSetting(1, cVariant::Int32(45));
    receiver.SetReceiverTypeId(10);
    EXPECT_EQ(receiver.m_KeepAliveInterval, 45);
    receiver.SetReceiverTypeId(11);
    EXPECT_EQ(receiver.m_KeepAliveInterval, 45);
    receiver.SetReceiverTypeId(12);
    EXPECT_EQ(receiver.m_KeepAliveInterval, 60);
}

}  // namespace
}  // namespace vigrel::testing
