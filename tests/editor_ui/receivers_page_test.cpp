#include "editor_ui/records/receivers_page.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>

#include "editor_ui/page_fixture.h"

namespace vigrel {
namespace {

const std::string kEast = "\xC3\x96st | (Unknown type: 0009) | 0007\n";

class ReceiversPage : public PageTest {
  protected:
    ReceiversPage() { PutSample("Receivers\\Receiver_0007.dat", "receiver_version_5.dat"); }
    cReceiversPage& Page() {
        if (!m_Page) {
            m_Page = std::make_unique<cReceiversPage>(m_Services);
            m_Page->resize(900, 600);
            m_Page->show();
        }
        return *m_Page;
    }
    void Reopen() {
        m_Page.reset();
        Page();
    }
    void ChooseType(const QString& name) {
        auto* combo = Find<QComboBox>(Page(), "Combo_ReceiverType");
        const int row = combo->findText(name);
        ASSERT_GE(row, 0) << name.toStdString();
        combo->setCurrentIndex(row);
        emit combo->activated(row);
    }
    cReceiver& Shown() { return m_Station.Receivers().At(static_cast<std::size_t>(Page().Chosen())); }

    std::unique_ptr<cReceiversPage> m_Page;
};

TEST_F(ReceiversPage, AReceiverIsMadeEditedSavedReopenedAndDeleted) {
    m_Random.m_Values = {0};
    Press(Page(), "Button_New");
    EXPECT_EQ(Rows(Page()), kEast + "New receiver * |  | \n");
    QTest::keyClicks(Page().focusWidget(), "Duty");
    ChooseType("Radio");
    Type(Page(), "Text_Setting_0", "COM1");
    Type(Page(), "Text_Setting_1", "60");
    Type(Page(), "Text_ParallellNumbers", "17;18");
    EXPECT_TRUE(Page().IsDirty());
    Press(Page(), "Button_Save");
    EXPECT_FALSE(Page().IsDirty());
    EXPECT_EQ(Asked(), "");

    Reopen();
    EXPECT_EQ(Rows(Page()), "Duty | Radio | 0001\n" + kEast);
    Page().Choose(0);
    EXPECT_EQ(TextOf(Page(), "Text_ReceiverName"), "Duty");
    EXPECT_EQ(TextOf(Page(), "Text_Setting_1"), "60");
    EXPECT_EQ(Shown().GetSetting(0), cVariant::String("COM1"));
    EXPECT_EQ(Shown().GetSetting(1), cVariant::Int32(60));
    EXPECT_EQ(Shown().m_ParallellNumbers, "17;18");
    EXPECT_EQ(LabelOf(Page(), "Label_File"), "Receiver_0001.dat, saved 2026-03-15 12:30:15");

    m_Prompts.m_YesNoAnswers = {true};
    Press(Page(), "Button_Delete");
    EXPECT_EQ(Asked(), "yes or no: Delete the receiver \"Duty\" and its file?\n");
    EXPECT_EQ(Rows(Page()), kEast);
    EXPECT_FALSE(m_Files.FileExists(Path("Receivers\\Receiver_0001.dat")));
    EXPECT_TRUE(m_Files.FileExists(Path("Receivers\\Receiver_0007.dat")));
}

TEST_F(ReceiversPage, NothingIsDeletedWithoutAYes) {
    Press(Page(), "Button_Delete");
    EXPECT_EQ(Rows(Page()), kEast);
    EXPECT_TRUE(m_Files.FileExists(Path("Receivers\\Receiver_0007.dat")));
}

TEST_F(ReceiversPage, TheQuestionNamesTheProfilesThatUseAReceiver) {
    PutSample("Profiles\\Profile_0012.dat", "profile_version_5.dat");
    Press(Page(), "Button_Delete");
    EXPECT_EQ(Asked(),
              "yes or no: Delete the receiver \"\xC3\x96st\" and its file?\n\nThese profiles send alarms to "
              "it:\nNight\n");
}

TEST_F(ReceiversPage, SettingsAreLabelledByTheTypeOfTheReceiver) {
    ChooseType("Radio");
    EXPECT_EQ(LabelOf(Page(), "Label_Setting_0"), "Serial port:");
    EXPECT_EQ(LabelOf(Page(), "Label_Setting_1"), "Keep-alive interval:");
    EXPECT_EQ(LabelOf(Page(), "Label_Setting_3"), "Setting 3 (not used):");
    ChooseType("Mail");
    EXPECT_EQ(LabelOf(Page(), "Label_Setting_0"), "Address:");
    EXPECT_EQ(LabelOf(Page(), "Label_Setting_1"), "Subject:");
}

TEST_F(ReceiversPage, ATextThatIsNoValueOfItsSettingIsToldAndNotSaved) {
    ChooseType("Radio");
    Type(Page(), "Text_Setting_1", "soon");
    EXPECT_EQ(LabelOf(Page(), "Label_Setting_1_Problem"),
              "\"soon\" is no value of the type whole number (32 bits)");
    Press(Page(), "Button_Save");
    EXPECT_EQ(Asked(),
              "failure: \"\xC3\x96st\" can't be saved.\n\nKeep-alive interval: \"soon\" is no value of the "
              "type whole "
              "number (32 "
              "bits)\n");
    EXPECT_EQ(OnDisk("Receivers\\Receiver_0007.dat"), testing::Sample("receiver_version_5.dat"));
    Type(Page(), "Text_Setting_1", "45");
    EXPECT_EQ(LabelOf(Page(), "Label_Setting_1_Problem"), "");
    EXPECT_EQ(Shown().GetSetting(1), cVariant::Int32(45));
}

TEST_F(ReceiversPage, AYesOrNoIsChosen) {
    ChooseType("Radio");
    Shown().SaveSetting(2, cVariant());
    Page().Choose(0);
    auto* choice = Find<QComboBox>(Page(), "Combo_Setting_2");
    choice->setCurrentIndex(1);
    emit choice->activated(1);
    EXPECT_EQ(Shown().GetSetting(2), cVariant::Boolean(true));
}

TEST_F(ReceiversPage, WhatIsNotEditedKeepsItsTypeAndBytes) {
    Type(Page(), "Text_ReceiverName", "East");
    Press(Page(), "Button_Save");
    std::string expected = testing::Sample("receiver_version_5.dat");
    expected.replace(8, 5,
                     std::string("\x04\x00"
                                 "East",
                                 6));
    EXPECT_EQ(OnDisk("Receivers\\Receiver_0007.dat"), expected);
}

TEST_F(ReceiversPage, ATypeThatTheTableLacksIsShownAndKept) {
    EXPECT_EQ(Find<QComboBox>(Page(), "Combo_ReceiverType")->currentText().toStdString(),
              "(Unknown type: 0009)");
    ChooseType("Mail");
    EXPECT_EQ(Find<QComboBox>(Page(), "Combo_ReceiverType")->findText("(Unknown type: 0009)"), -1);
    Press(Page(), "Button_Revert");
    EXPECT_EQ(Find<QComboBox>(Page(), "Combo_ReceiverType")->currentText().toStdString(),
              "(Unknown type: 0009)");
    EXPECT_EQ(Shown().GetReceiverTypeId(), 9);
}

TEST_F(ReceiversPage, UnsavedChangesAreMarkedUntilTheyAreGivenUp) {
    Press(Page(), "Check_Enabled");
    EXPECT_EQ(Rows(Page()), "\xC3\x96st * | (Unknown type: 0009) | 0007\n");
    EXPECT_TRUE(Page().IsDirty());
    Press(Page(), "Check_Enabled");
    EXPECT_FALSE(Page().IsDirty());
    Type(Page(), "Text_ReceiverName", "x");
    Press(Page(), "Button_Revert");
    EXPECT_EQ(TextOf(Page(), "Text_ReceiverName"), "\xC3\x96st");
    EXPECT_FALSE(Page().IsDirty());
}

TEST_F(ReceiversPage, ACopyIsANewReceiverWithAFreeName) {
    Press(Page(), "Button_Copy");
    EXPECT_EQ(TextOf(Page(), "Text_ReceiverName"), "\xC3\x96st 2");
    EXPECT_EQ(Shown().m_DiskIdentity, -1);
    EXPECT_EQ(Shown().GetSetting(2), cVariant::Currency(1234500));
    Press(Page(), "Button_Revert");
    EXPECT_EQ(Rows(Page()), kEast);
}

TEST_F(ReceiversPage, TheSearchFindsNamesTypesAndNumbers) {
    PutSample("Receivers\\Receiver_0042.dat", "receiver_version_3.dat");
    Page();
    EXPECT_EQ(LabelOf(Page(), "Label_Count"), "2 in all");
    Type(Page(), "Text_Search", "duty");
    EXPECT_EQ(Rows(Page()), "Duty1 | Radio | 0042\n");
    EXPECT_EQ(LabelOf(Page(), "Label_Count"), "1 of 2");
    Type(Page(), "Text_Search", "radio");
    EXPECT_EQ(Rows(Page()), "Duty1 | Radio | 0042\n");
    Type(Page(), "Text_Search", "0007");
    EXPECT_EQ(Rows(Page()), kEast);
    Press(Page(), "Button_New");
    EXPECT_EQ(TextOf(Page(), "Text_Search"), "");
}

TEST_F(ReceiversPage, FilesBroughtUpAndFilesThatCantBeReadAreTold) {
    PutSample("Receivers\\Receiver_0042.dat", "receiver_version_3.dat");
    Put("Receivers\\Receiver_0043.dat", "??");
    EXPECT_EQ(LabelOf(Page(), "Label_Notes"),
              "Files brought up to a new version: 1. What could not be read: 1.");
    EXPECT_EQ(Find<QPlainTextEdit>(Page(), "Text_Notes")->toPlainText().toStdString(),
              "Receiver brought up 'C:\\App\\Receivers\\Receiver_0042.dat' (version 3 -> 5)\n"
              "File '1' (16191) is no receiver");
    Reopen();
    EXPECT_EQ(LabelOf(Page(), "Label_Notes"), "What could not be read: 1.");
}

TEST_F(ReceiversPage, NothingIsToldWhenNothingHappened) {
    EXPECT_TRUE(Find<QWidget>(Page(), "Bar_Notes")->isHidden());
}

TEST_F(ReceiversPage, AFailedSaveIsToldWithItsReasonAndKeepsTheChanges) {
    Type(Page(), "Text_ReceiverName", "East");
    m_Files.m_FolderReadOnly = true;
    Press(Page(), "Button_Save");
    EXPECT_EQ(Asked(),
              "failure: \"East\" was not saved.\n\nReceiver not saved C:\\App\\Receivers\\Receiver_0007.dat "
              "Err:C:\\App\\Receivers\\Receiver_0007.dat.$~: the folder can't be written\n");
    EXPECT_TRUE(Page().IsDirty());
    EXPECT_EQ(TextOf(Page(), "Text_ReceiverName"), "East");
    m_Files.m_FolderReadOnly = false;
    EXPECT_TRUE(Page().Save());
    EXPECT_FALSE(Page().IsDirty());
}

TEST_F(ReceiversPage, AFailedRemovalIsToldAndTheReceiverStays) {
    Page();
    m_Files.m_FolderReadOnly = true;
    m_Prompts.m_YesNoAnswers = {true};
    Press(Page(), "Button_Delete");
    const std::string asked = Asked();
    EXPECT_NE(asked.find("failure: \"\xC3\x96st\" was not deleted.\n\nReceiver not removed"),
              std::string::npos);
    EXPECT_EQ(Rows(Page()), kEast);
    EXPECT_EQ(TextOf(Page(), "Text_ReceiverName"), "\xC3\x96st");
}

TEST_F(ReceiversPage, SavingAllStopsAtTheOneThatCantBeSaved) {
    Press(Page(), "Button_New");
    Type(Page(), "Text_ReceiverName", "A");
    Press(Page(), "Button_New");
    Type(Page(), "Text_ReceiverName", " ");
    Page().Choose(0);
    EXPECT_FALSE(Page().Save());
    EXPECT_EQ(Page().Chosen(), 2);
    EXPECT_EQ(Asked(), "failure: \" \" can't be saved.\n\nThe name is empty.\n");
    Type(Page(), "Text_ReceiverName", "B");
    EXPECT_TRUE(Page().Save());
    Reopen();
    EXPECT_EQ(m_Station.Receivers().Count(), 3u);
}

TEST_F(ReceiversPage, CharactersThatCantBeStoredAreNotTaken) {
    Type(Page(), "Text_ReceiverName", "A");
    auto* name = Find<QLineEdit>(Page(), "Text_ReceiverName");
    name->insert(QString::fromUtf8("\xD0\x96"));
    EXPECT_EQ(name->text().toStdString(), "A");
    name->insert(QString::fromUtf8("\xE2\x82\xAC"));
    EXPECT_EQ(Shown().m_ReceiverName, "A\x80");
}

TEST_F(ReceiversPage, AnEmptyStationShowsAnEmptyForm) {
    m_Files.RemoveFile(Path("Receivers\\Receiver_0007.dat"));
    EXPECT_EQ(Page().Chosen(), -1);
    EXPECT_FALSE(Find<QWidget>(Page(), "Form_Receiver")->isEnabled());
    EXPECT_FALSE(Find<QWidget>(Page(), "Button_Delete")->isEnabled());
    EXPECT_TRUE(Find<QWidget>(Page(), "Button_New")->isEnabled());
}

TEST_F(ReceiversPage, EveryFieldHasANameForAssistiveTools) {
    for (const QLineEdit* field : Page().findChildren<QLineEdit*>()) {
        if (!field->objectName().startsWith("Text_")) continue;
        EXPECT_FALSE(field->accessibleName().isEmpty()) << field->objectName().toStdString();
    }
}

// As on a small screen at 200 %.
TEST_F(ReceiversPage, InASmallWindowEveryFieldIsReached) {
    Page().resize(500, 260);
    QTest::qWait(1);
    auto* area = Page().findChild<QScrollArea*>();
    ASSERT_NE(area, nullptr);
    EXPECT_GE(area->widget()->height(), area->widget()->minimumSizeHint().height());
    EXPECT_EQ(HiddenFields(*area), "");
}

TEST_F(ReceiversPage, TheFieldThatGetsTheKeyboardComesIntoSight) {
    Page().resize(500, 200);
    QApplication::setActiveWindow(&Page());
    QTest::qWait(1);
    for (const char* name : {"Text_ParallellNumbers", "Text_ReceiverName", "Text_Setting_3"}) {
        auto* field = Find<QLineEdit>(Page(), name);
        field->setFocus(Qt::ShortcutFocusReason);
        EXPECT_GE(field->visibleRegion().boundingRect().height() + 2, field->height()) << name;
    }
}

TEST_F(ReceiversPage, InAHighWindowASettingStaysOneLine) {
    Page().resize(1000, 1200);
    QTest::qWait(1);
    EXPECT_EQ(Find<QLineEdit>(Page(), "Text_Setting_0")->height(),
              Find<QLineEdit>(Page(), "Text_ReceiverName")->height());
}

}  // namespace
}  // namespace vigrel
