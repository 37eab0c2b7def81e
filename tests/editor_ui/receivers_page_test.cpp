#include "editor_ui/records/receivers_page.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QUndoStack>

#include "categories/readable_colours.h"
#include "editor_ui/page_fixture.h"

namespace vigrel::testing {
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
    // With values that its settings can have.
    void MakeRadio() {
        ChooseType("Radio");
        Type(Page(), "Text_Setting_1", "45");
        emit Find<QComboBox>(Page(), "Combo_Setting_2")->activated(1);
        ASSERT_TRUE(Page().Save());
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

TEST_F(ReceiversPage, ATypeThatWasNotChosenHasNoTextBehindUndoAndInACopyEither) {
    Press(Page(), "Button_New");
    const std::string rows = Rows(Page());
    Type(Page(), "Text_ParallellNumbers", "17");
    Page().UndoStack()->undo();
    EXPECT_EQ(Rows(Page()), rows);
    Press(Page(), "Button_Copy");
    EXPECT_EQ(Rows(Page()), kEast + "New receiver * |  | \nNew receiver 2 * |  | \n");
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
    EXPECT_TRUE(Find<QLineEdit>(Page(), "Text_Setting_1")->isVisible());
    // What the type doesn't use takes no input.
    EXPECT_FALSE(Find<QLineEdit>(Page(), "Text_Setting_3")->isVisible());
    ChooseType("Mail");
    EXPECT_EQ(LabelOf(Page(), "Label_Setting_0"), "Address:");
    EXPECT_EQ(LabelOf(Page(), "Label_Setting_1"), "Subject:");
}

// In a label with a field the sign stands for an access key.
TEST_F(ReceiversPage, ACaptionIsShownWithItsSigns) {
    Put("Radio.INI", "[ReceiverTypeSettings]\r\nSetting0=User & &Password\r\nSetting0Type=Integer16\r\n");
    ChooseType("Radio");
    EXPECT_EQ(LabelOf(Page(), "Label_Setting_0"), "User && &&Password:");
    EXPECT_EQ(Find<QLineEdit>(Page(), "Text_Setting_0")->accessibleName(), "User & &Password");
    Type(Page(), "Text_Setting_0", "7");
    EXPECT_EQ(Page().UndoStack()->undoText().toStdString(), "changing User & &Password");
    Type(Page(), "Text_Setting_0", "x");
    EXPECT_FALSE(Page().Save());
    EXPECT_NE(Asked().find("\n\nUser & &Password: \"x\" is"), std::string::npos);
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
    ChooseType("Mail");
    Press(Page(), "Button_New");
    Type(Page(), "Text_ReceiverName", " ");
    ChooseType("Mail");
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

TEST_F(ReceiversPage, AnEmptyStationOffersTheFirstReceiver) {
    m_Files.RemoveFile(Path("Receivers\\Receiver_0007.dat"));
    EXPECT_EQ(Page().Chosen(), -1);
    EXPECT_FALSE(Find<QWidget>(Page(), "Form_Receiver")->isVisible());
    EXPECT_TRUE(Find<QWidget>(Page(), "Label_NoDefinitions")->isVisible());
    EXPECT_FALSE(Find<QWidget>(Page(), "Button_Delete")->isEnabled());
    EXPECT_TRUE(Find<QWidget>(Page(), "Button_New")->isEnabled());
    Press(Page(), "Button_First");
    EXPECT_EQ(Rows(Page()), "New receiver * |  | \n");
    EXPECT_TRUE(Find<QWidget>(Page(), "Form_Receiver")->isVisible());
    EXPECT_FALSE(Find<QWidget>(Page(), "Label_NoDefinitions")->isVisible());
    Page().UndoStack()->undo();
    EXPECT_TRUE(Find<QWidget>(Page(), "Label_NoDefinitions")->isVisible());
}

TEST_F(ReceiversPage, TheCountBelowTheListFollows) {
    EXPECT_EQ(LabelOf(Page(), "Label_Count"), "1 in all");
    Press(Page(), "Button_New");
    EXPECT_EQ(LabelOf(Page(), "Label_Count"), "2 in all");
    Press(Page(), "Button_Copy");
    EXPECT_EQ(LabelOf(Page(), "Label_Count"), "3 in all");
    Page().UndoStack()->undo();
    EXPECT_EQ(LabelOf(Page(), "Label_Count"), "2 in all");
    m_Prompts.m_YesNoAnswers = {true};
    Press(Page(), "Button_Delete");
    EXPECT_EQ(LabelOf(Page(), "Label_Count"), "1 in all");
}

// The toolkit asks for the text of the row that is none.
TEST_F(ReceiversPage, TheKeyThatCopiesTakesNothingFromAListWithoutRows) {
    m_Files.RemoveFile(Path("Receivers\\Receiver_0007.dat"));
    QApplication::clipboard()->setText("before");
    QTest::keyClick(Find<QAbstractItemView>(Page(), "List_Definitions"), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "before");
}

// What the type doesn't use takes no room and no input, in whichever order types are chosen; of a type that
// isn't known all values are shown, since they are in the file.
TEST_F(ReceiversPage, OnlyTheFieldsOfTheTypeAreShown) {
    const auto shown = [&] {
        std::string fields;
        for (int i = 0; i < 4; ++i) {
            const QString name = QString("Label_Setting_%1").arg(i);
            if (Find<QLabel>(Page(), name.toLatin1().constData())->isVisible()) fields += std::to_string(i);
            EXPECT_EQ(Find<QLineEdit>(Page(), QString("Text_Setting_%1").arg(i).toLatin1().constData())
                          ->parentWidget()
                          ->isVisible(),
                      fields.ends_with(std::to_string(i)));
        }
        return fields;
    };
    EXPECT_EQ(shown(), "0123");
    ChooseType("Radio");
    EXPECT_EQ(shown(), "012");
    ChooseType("Printer");
    EXPECT_EQ(shown(), "");
    ChooseType("Mail");
    EXPECT_EQ(shown(), "01");
    Page().UndoStack()->undo();
    EXPECT_EQ(shown(), "");
}

TEST_F(ReceiversPage, EveryFieldHasANameForAssistiveTools) {
    for (const QLineEdit* field : Page().findChildren<QLineEdit*>()) {
        if (!field->objectName().startsWith("Text_")) continue;
        EXPECT_FALSE(field->accessibleName().isEmpty()) << field->objectName().toStdString();
    }
}

// --- what is typed and is no value

TEST_F(ReceiversPage, AHalfTypedValueStandsInTheWayWhicheverReceiverIsShown) {
    PutSample("Receivers\\Receiver_0042.dat", "receiver_version_5.dat");
    MakeRadio();
    Page().Choose(1);
    MakeRadio();
    const std::string before = OnDisk("Receivers\\Receiver_0042.dat");
    Type(Page(), "Text_Setting_1", "1500x");
    Page().Choose(0);
    EXPECT_TRUE(Page().IsDirty());
    EXPECT_EQ(TextOf(Page(), "Text_Setting_1"), "45");
    EXPECT_FALSE(Page().Save());
    EXPECT_EQ(OnDisk("Receivers\\Receiver_0042.dat"), before);
    // The message leads to the receiver and the field.
    EXPECT_NE(Asked().find("Keep-alive interval: \"1500x\" is no value"), std::string::npos);
    EXPECT_EQ(Page().Chosen(), 1);
    EXPECT_EQ(TextOf(Page(), "Text_Setting_1"), "1500x");
    EXPECT_EQ(Page().focusWidget()->objectName().toStdString(), "Text_Setting_1");
    Type(Page(), "Text_Setting_1", "1500");
    EXPECT_TRUE(Page().Save());
    EXPECT_EQ(Shown().GetSetting(1), cVariant::Int32(1500));
}

TEST_F(ReceiversPage, AReceiverWithAHalfTypedValueIsMarkedUntilTheTypingIsTakenBack) {
    MakeRadio();
    const auto mark = [this] {
        const auto* list = Find<QAbstractItemView>(Page(), "List_Definitions");
        return list->model()->index(0, 0).data(Qt::ToolTipRole).toString().toStdString();
    };
    EXPECT_EQ(mark(), "");
    Type(Page(), "Text_Setting_1", "x");
    EXPECT_EQ(mark(),
              "Can't be saved: Keep-alive interval: \"x\" is no value of the type whole number (32 bits)");
    Page().UndoStack()->undo();
    EXPECT_EQ(mark(), "");
    EXPECT_FALSE(Page().IsDirty());
    Page().UndoStack()->redo();
    EXPECT_EQ(TextOf(Page(), "Text_Setting_1"), "x");
    Press(Page(), "Button_Revert");
    EXPECT_EQ(mark(), "");
}

TEST_F(ReceiversPage, AnotherTypeTakesWhatIsAValueForIt) {
    ChooseType("Radio");
    Type(Page(), "Text_Setting_1", "soon");
    ChooseType("Mail");
    EXPECT_EQ(LabelOf(Page(), "Label_Setting_1_Problem"), "");
    EXPECT_EQ(Shown().GetSetting(1), cVariant::String("soon"));
    Page().UndoStack()->undo();
    EXPECT_EQ(TextOf(Page(), "Text_Setting_1"), "soon");
    EXPECT_FALSE(Page().Save());
    ChooseType("Printer");
    EXPECT_TRUE(Page().Save());
}

TEST_F(ReceiversPage, AnotherTypeMarksWhatIsNoValueForIt) {
    const std::string before = OnDisk("Receivers\\Receiver_0007.dat");
    ChooseType("Radio");
    EXPECT_EQ(Page().UndoStack()->count(), 1);
    EXPECT_EQ(TextOf(Page(), "Text_Setting_1"), "2.5");
    EXPECT_EQ(LabelOf(Page(), "Label_Setting_1_Problem"),
              "\"2.5\" is no value of the type whole number (32 bits)");
    EXPECT_FALSE(Page().Save());
    EXPECT_NE(Asked().find("\n\nKeep-alive interval: \"2.5\" is no value"), std::string::npos);
    EXPECT_EQ(Page().focusWidget()->objectName().toStdString(), "Text_Setting_1");
    // For another one it is a value again, as it was stored.
    ChooseType("Printer");
    EXPECT_EQ(Shown().GetSetting(1), cVariant::Double(2.5));
    ChooseType("Radio");
    Type(Page(), "Text_Setting_1", "45");
    EXPECT_FALSE(Page().Save());
    EXPECT_NE(Asked().find("\n\nNight: \"123.45\" is no value"), std::string::npos);
    EXPECT_EQ(OnDisk("Receivers\\Receiver_0007.dat"), before);
    emit Find<QComboBox>(Page(), "Combo_Setting_2")->activated(1);
    EXPECT_TRUE(Page().Save());
    EXPECT_EQ(Shown().GetSetting(1), cVariant::Int32(45));
    while (Page().UndoStack()->canUndo()) Page().UndoStack()->undo();
    EXPECT_TRUE(Page().Save());
    Reopen();
    EXPECT_EQ(Shown().GetSetting(1), cVariant::Double(2.5));
}

// Which of them it uses can't be told then, and they are in the receiver's file.
TEST_F(ReceiversPage, ATypeWhoseSettingsFileIsMissingShowsAllValues) {
    Put("ReceiverTypes.txt", "9;XRT;Radio;Gone.INI\n");
    EXPECT_EQ(Find<QComboBox>(Page(), "Combo_ReceiverType")->currentText(), "Radio");
    EXPECT_TRUE(Find<QLineEdit>(Page(), "Text_Setting_1")->isVisible());
    EXPECT_EQ(LabelOf(Page(), "Label_Setting_1"), "Setting 1:");
    EXPECT_EQ(TextOf(Page(), "Text_Setting_1"), "2.5");
    Type(Page(), "Text_Setting_0", "x");
    EXPECT_FALSE(Page().Save());
    EXPECT_NE(Asked().find("\n\nSetting 0: \"x\" is no value"), std::string::npos);
    Type(Page(), "Text_Setting_0", "7");
    EXPECT_TRUE(Page().Save());
    EXPECT_EQ(Shown().GetSetting(0), cVariant::Int32(7));
    EXPECT_EQ(Shown().GetSetting(1), cVariant::Double(2.5));
}

TEST_F(ReceiversPage, AReceiverWithoutATypeIsNotSaved) {
    Press(Page(), "Button_New");
    const auto* combo = Find<QComboBox>(Page(), "Combo_ReceiverType");
    EXPECT_EQ(combo->currentIndex(), 0);
    EXPECT_EQ(combo->currentText().toStdString(), "(choose a type)");
    EXPECT_FALSE(Page().Save());
    EXPECT_EQ(Asked(), "failure: \"New receiver\" can't be saved.\n\nChoose a type.\n");
    EXPECT_EQ(Page().focusWidget(), combo);
    ChooseType("Mail");
    EXPECT_TRUE(Page().Save());
}

TEST_F(ReceiversPage, ALongStoredNameIsEditedWithoutLoss) {
    Shown().m_ReceiverName = std::string(60000, 'n');
    Page().Choose(0);
    auto* name = Find<QLineEdit>(Page(), "Text_ReceiverName");
    name->end(false);
    QTest::keyClicks(name, "!");
    EXPECT_EQ(Shown().m_ReceiverName, std::string(60000, 'n') + "!");
}

// --- undo

TEST_F(ReceiversPage, WhatIsTypedInOneGoIsOneStep) {
    Type(Page(), "Text_ReceiverName", "East");
    EXPECT_EQ(Page().UndoStack()->count(), 1);
    EXPECT_EQ(Page().UndoStack()->undoText().toStdString(), "changing Name");
    Type(Page(), "Text_ParallellNumbers", "17");
    Press(Page(), "Check_Enabled");
    EXPECT_EQ(Page().UndoStack()->count(), 3);
    while (Page().UndoStack()->canUndo()) Page().UndoStack()->undo();
    EXPECT_FALSE(Page().IsDirty());
    EXPECT_EQ(TextOf(Page(), "Text_ReceiverName"), "\xC3\x96st");
}

TEST_F(ReceiversPage, WhatIsTypedBehindASaveIsAStepOfItsOwn) {
    Type(Page(), "Text_ReceiverName", "East");
    ASSERT_TRUE(Page().Save());
    QTest::keyClicks(Find<QLineEdit>(Page(), "Text_ReceiverName"), "ern");
    EXPECT_EQ(Page().UndoStack()->count(), 2);
    Page().UndoStack()->undo();
    EXPECT_EQ(TextOf(Page(), "Text_ReceiverName"), "East");
    EXPECT_FALSE(Page().IsDirty());
}

TEST_F(ReceiversPage, UndoShowsTheReceiverThatItChanges) {
    PutSample("Receivers\\Receiver_0042.dat", "receiver_version_5.dat");
    Page().Choose(1);
    Type(Page(), "Text_ReceiverName", "East");
    Page().Choose(0);
    Page().UndoStack()->undo();
    EXPECT_EQ(Page().Chosen(), 1);
    EXPECT_EQ(TextOf(Page(), "Text_ReceiverName"), "\xC3\x96st");
}

TEST_F(ReceiversPage, NewAndCopiedReceiversGoAndComeByUndo) {
    Press(Page(), "Button_Copy");
    Press(Page(), "Button_New");
    Type(Page(), "Text_ReceiverName", "Duty");
    while (Page().UndoStack()->canUndo()) Page().UndoStack()->undo();
    EXPECT_EQ(Rows(Page()), kEast);
    EXPECT_EQ(Asked(), "");
    while (Page().UndoStack()->canRedo()) Page().UndoStack()->redo();
    EXPECT_EQ(m_Station.Receivers().Count(), 3u);
    EXPECT_EQ(TextOf(Page(), "Text_ReceiverName"), "Duty");
}

TEST_F(ReceiversPage, ADeletedReceiverComesBackWithItsFile) {
    const std::string bytes = OnDisk("Receivers\\Receiver_0007.dat");
    Type(Page(), "Text_ReceiverName", "East");
    m_Prompts.m_YesNoAnswers = {true};
    Press(Page(), "Button_Delete");
    EXPECT_FALSE(m_Files.FileExists(Path("Receivers\\Receiver_0007.dat")));
    Page().UndoStack()->undo();
    EXPECT_EQ(OnDisk("Receivers\\Receiver_0007.dat"), bytes);
    EXPECT_EQ(TextOf(Page(), "Text_ReceiverName"), "East");
    EXPECT_TRUE(Page().IsDirty());
    Page().UndoStack()->undo();
    EXPECT_FALSE(Page().IsDirty());
}

TEST_F(ReceiversPage, ADeletedReceiverWhoseNumberIsTakenComesBackUnsaved) {
    m_Prompts.m_YesNoAnswers = {true};
    Press(Page(), "Button_Delete");
    Put("Receivers\\Receiver_0007.dat", "theirs");
    Asked();
    Page().UndoStack()->undo();
    EXPECT_EQ(Asked(), "failure: \"\xC3\x96st\" is back without its file. Save it anew.\n");
    EXPECT_EQ(OnDisk("Receivers\\Receiver_0007.dat"), "theirs");
    EXPECT_EQ(Shown().m_DiskIdentity, -1);
}

TEST_F(ReceiversPage, UndoTakesASavedReceiverAwayOnlyWithAYes) {
    m_Random.m_Values = {0};
    Press(Page(), "Button_New");
    ChooseType("Mail");
    ASSERT_TRUE(Page().Save());
    Page().UndoStack()->undo();
    Page().UndoStack()->undo();
    EXPECT_EQ(Asked(), "yes or no: Delete the receiver \"New receiver\" and its file?\n");
    EXPECT_TRUE(m_Files.FileExists(Path("Receivers\\Receiver_0001.dat")));
    EXPECT_EQ(m_Station.Receivers().Count(), 2u);
    // Nothing is left that speaks of the step before.
    QCoreApplication::processEvents();
    EXPECT_EQ(Page().UndoStack()->count(), 0);
}

TEST_F(ReceiversPage, WhatIsTypedBehindAnUndoIsAStepOfItsOwn) {
    Type(Page(), "Text_ReceiverName", "East");
    Page().UndoStack()->undo();
    Page().UndoStack()->redo();
    QTest::keyClicks(Find<QLineEdit>(Page(), "Text_ReceiverName"), "ern");
    EXPECT_EQ(Page().UndoStack()->count(), 2);
    Page().UndoStack()->undo();
    EXPECT_EQ(TextOf(Page(), "Text_ReceiverName"), "East");
}

TEST_F(ReceiversPage, WhatIsTypedInAFieldThatWasLeftIsAStepOfItsOwn) {
    QApplication::setActiveWindow(&Page());
    auto* name = Find<QLineEdit>(Page(), "Text_ReceiverName");
    name->setFocus();
    Type(Page(), "Text_ReceiverName", "East");
    Find<QLineEdit>(Page(), "Text_ParallellNumbers")->setFocus();
    name->setFocus();
    name->end(false);
    QTest::keyClicks(name, "ern");
    EXPECT_EQ(Page().UndoStack()->count(), 2);
    Page().UndoStack()->undo();
    EXPECT_EQ(TextOf(Page(), "Text_ReceiverName"), "East");
}

TEST_F(ReceiversPage, WhatIsTypedForAnotherReceiverIsAStepOfItsOwn) {
    PutSample("Receivers\\Receiver_0042.dat", "receiver_version_5.dat");
    Page().Choose(0);
    Type(Page(), "Text_ReceiverName", "East");
    Page().Choose(1);
    Type(Page(), "Text_ReceiverName", "West");
    EXPECT_EQ(Page().UndoStack()->count(), 2);
    Page().UndoStack()->undo();
    EXPECT_EQ(m_Station.Receivers().At(0).m_ReceiverName, "East");
    EXPECT_EQ(m_Station.Receivers().At(1).m_ReceiverName, "\xD6st");
}

TEST_F(ReceiversPage, WhatCanBeDoneFitsTheChosenReceiver) {
    Put("Receivers\\Receiver_0041.dat", "??");
    const auto offered = [this] {
        QStringList names;
        for (const char* name : {"New", "Copy", "Delete", "Save", "Revert"}) {
            const std::string button = std::string("Button_") + name;
            if (Find<QWidget>(Page(), button.c_str())->isEnabled()) names += name;
        }
        return names.join(' ').toStdString();
    };
    Page().Choose(0);
    EXPECT_EQ(offered(), "New Copy Delete");
    Type(Page(), "Text_ReceiverName", "East");
    EXPECT_EQ(offered(), "New Copy Delete Save Revert");
    Page().Choose(1);
    EXPECT_EQ(offered(), "New");
    Page().Choose(0);
    Press(Page(), "Button_Save");
    EXPECT_EQ(offered(), "New Copy Delete");
}

TEST_F(ReceiversPage, SavingOneLeavesTheOthersAsTheyAre) {
    PutSample("Receivers\\Receiver_0042.dat", "receiver_version_5.dat");
    Page().Choose(0);
    Type(Page(), "Text_ReceiverName", "East");
    Page().Choose(1);
    Type(Page(), "Text_ReceiverName", "West");
    std::string told;
    QObject::connect(&Page(), &cEditorPage::Message, [&](const QString& text) { told = text.toStdString(); });
    Press(Page(), "Button_Save");
    EXPECT_EQ(told, "Saved \"West\"");
    EXPECT_NE(OnDisk("Receivers\\Receiver_0042.dat").find("West"), std::string::npos);
    EXPECT_EQ(OnDisk("Receivers\\Receiver_0007.dat").find("East"), std::string::npos);
    EXPECT_TRUE(Page().IsDirty());
    EXPECT_TRUE(Page().Save());
    EXPECT_EQ(told, "Saved: 1");
    EXPECT_NE(OnDisk("Receivers\\Receiver_0007.dat").find("East"), std::string::npos);
}

TEST_F(ReceiversPage, ARowMovesToItsPlaceWhenItIsSaved) {
    PutSample("Receivers\\Receiver_0042.dat", "receiver_version_3.dat");
    const std::string duty = "Duty1 | Radio | 0042\n";
    EXPECT_EQ(Rows(Page()), duty + kEast);
    Page().Choose(0);
    Type(Page(), "Text_ReceiverName", "Admin");
    EXPECT_EQ(Rows(Page()), duty + "Admin * | (Unknown type: 0009) | 0007\n");
    Press(Page(), "Button_Save");
    EXPECT_EQ(Rows(Page()), "Admin | (Unknown type: 0009) | 0007\n" + duty);
    EXPECT_EQ(TextOf(Page(), "Text_ReceiverName"), "Admin");
}

TEST_F(ReceiversPage, OfManyProfilesTheQuestionNamesTen) {
    for (int i = 10; i < 21; ++i)
        PutSample("Profiles\\Profile_00" + std::to_string(i) + ".dat", "profile_version_5.dat");
    const auto asked = [this] {
        Press(Page(), "Button_Delete");
        const std::string question = Asked();
        return question.substr(question.find("it:\n") + 4);
    };
    std::string ten;
    for (int i = 0; i < 10; ++i) ten += "Night\n";
    EXPECT_EQ(asked(), ten + "...\n");
    m_Files.RemoveFile(Path("Profiles\\Profile_0020.dat"));
    EXPECT_EQ(asked(), ten);
}

TEST_F(ReceiversPage, GivenUpChangesComeBackByUndo) {
    Type(Page(), "Text_ReceiverName", "East");
    Press(Page(), "Button_Revert");
    EXPECT_FALSE(Page().IsDirty());
    Page().UndoStack()->undo();
    EXPECT_EQ(TextOf(Page(), "Text_ReceiverName"), "East");
}

// --- files under other hands

TEST_F(ReceiversPage, TheKeyboardStaysInItsFieldWhenChangesAreGivenUpAndComeBack) {
    QApplication::setActiveWindow(&Page());
    auto* name = Find<QLineEdit>(Page(), "Text_ReceiverName");
    auto* numbers = Find<QLineEdit>(Page(), "Text_ParallellNumbers");
    name->setFocus();
    Type(Page(), "Text_ReceiverName", "East");
    numbers->setFocus();
    Press(Page(), "Button_Revert");
    EXPECT_EQ(QApplication::focusWidget(), numbers);
    EXPECT_NE(name->text(), "East");
    for (int round = 0; round < 2; ++round) {
        Page().UndoStack()->undo();
        EXPECT_EQ(name->text(), "East");
        EXPECT_EQ(QApplication::focusWidget(), numbers);
        Page().UndoStack()->redo();
        EXPECT_EQ(QApplication::focusWidget(), numbers);
    }
}

TEST_F(ReceiversPage, TheListHasTheKeyboardWhenTheDefinitionUnderItWasDeleted) {
    PutSample("Receivers\\Receiver_0042.dat", "receiver_version_5.dat");
    QApplication::setActiveWindow(&Page());
    Find<QLineEdit>(Page(), "Text_ReceiverName")->setFocus();
    m_Prompts.m_YesNoAnswers = {true};
    Press(Page(), "Button_Delete");
    EXPECT_EQ(m_Station.Receivers().Count(), 1u);
    EXPECT_EQ(QApplication::focusWidget(), Find<QAbstractItemView>(Page(), "List_Definitions"));
}

// Light or dark, it is told from the others and can be read.
TEST_F(ReceiversPage, OneThatTakesNoPartCanBeReadInTheList) {
    const auto number = [](const QColor& colour) {
        return colour.red() + 256 * colour.green() + 65536 * colour.blue();
    };
    Press(Page(), "Check_Enabled");
    const QPalette light = QGuiApplication::palette();
    QPalette dark = light;
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::Base, QColor(27, 30, 32));
    for (const QPalette& palette : {light, dark}) {
        QApplication::setPalette(palette);
        const QModelIndex name = Find<QAbstractItemView>(Page(), "List_Definitions")->model()->index(0, 0);
        const auto shown = name.data(Qt::ForegroundRole).value<QColor>();
        EXPECT_NE(shown, palette.color(QPalette::Text));
        cUserColor row;
        row.m_ForeColor = number(shown);
        row.m_BackColor = row.m_BackColorFade = row.m_BackColorFlash = number(palette.color(QPalette::Base));
        EXPECT_GE(LeastContrast(row), kReadableContrast) << shown.name().toStdString();
    }
    QApplication::setPalette(light);
}

TEST_F(ReceiversPage, AFileThatWasChangedMeanwhileIsNotReplacedUnasked) {
    const std::string question = "mine, theirs, both: East\n";
    std::string theirs = testing::Sample("receiver_version_5.dat");
    theirs[10] = 'A';
    for (const cPrompts::eConflict answer : {cPrompts::eConflict::Cancel, cPrompts::eConflict::Both,
                                             cPrompts::eConflict::Theirs, cPrompts::eConflict::Mine}) {
        PutSample("Receivers\\Receiver_0007.dat", "receiver_version_5.dat");
        Reopen();
        Type(Page(), "Text_ReceiverName", "East");
        Put("Receivers\\Receiver_0007.dat", theirs);
        m_Prompts.m_ConflictAnswers = {answer};
        EXPECT_EQ(Page().Save(), answer == cPrompts::eConflict::Mine);
        EXPECT_EQ(Asked(), question);
        EXPECT_EQ(OnDisk("Receivers\\Receiver_0007.dat") == theirs, answer != cPrompts::eConflict::Mine);
        EXPECT_EQ(m_Station.Receivers().Count(), answer == cPrompts::eConflict::Both ? 2u : 1u);
        const bool shownIsTheirs =
            answer == cPrompts::eConflict::Both || answer == cPrompts::eConflict::Theirs;
        EXPECT_EQ(Shown().m_ReceiverName, shownIsTheirs ? "Ast" : "East");
    }
}

TEST_F(ReceiversPage, AFileThatIsGoneIsNotBroughtBackUnasked) {
    Type(Page(), "Text_ReceiverName", "East");
    m_Files.RemoveFile(Path("Receivers\\Receiver_0007.dat"));
    EXPECT_FALSE(Page().Save());
    EXPECT_EQ(Asked(), "mine, theirs: East\n");
    EXPECT_FALSE(m_Files.FileExists(Path("Receivers\\Receiver_0007.dat")));
    m_Prompts.m_ConflictAnswers = {cPrompts::eConflict::Mine};
    EXPECT_TRUE(Page().Save());
    m_Files.RemoveFile(Path("Receivers\\Receiver_0007.dat"));
    Type(Page(), "Text_ReceiverName", "West");
    m_Prompts.m_ConflictAnswers = {cPrompts::eConflict::Theirs};
    EXPECT_FALSE(Page().Save());
    EXPECT_EQ(m_Station.Receivers().Count(), 0u);
    EXPECT_FALSE(Page().IsDirty());
}

TEST_F(ReceiversPage, RevertMakesNoEmptyFileOfOneThatIsGone) {
    Type(Page(), "Text_ReceiverName", "East");
    m_Files.RemoveFile(Path("Receivers\\Receiver_0007.dat"));
    Press(Page(), "Button_Revert");
    EXPECT_EQ(Asked(), "failure: The file of \"East\" can't be read.\n");
    EXPECT_FALSE(m_Files.FileExists(Path("Receivers\\Receiver_0007.dat")));
    EXPECT_EQ(TextOf(Page(), "Text_ReceiverName"), "East");
}

TEST_F(ReceiversPage, AReceiverWhoseFileIsGoneCanBeDeleted) {
    Page();
    m_Files.RemoveFile(Path("Receivers\\Receiver_0007.dat"));
    m_Prompts.m_YesNoAnswers = {true};
    Press(Page(), "Button_Delete");
    EXPECT_EQ(Rows(Page()), "");
}

TEST_F(ReceiversPage, TheQuestionTellsThatTheFileIsAnotherByNow) {
    Page();
    PutSample("Receivers\\Receiver_0007.dat", "receiver_version_4.dat");
    Press(Page(), "Button_Delete");
    EXPECT_NE(Asked().find("Another program has changed the file since it was read."), std::string::npos);
}

TEST_F(ReceiversPage, FilesThatCantBeReadHaveARowThatSaysWhy) {
    Put("Receivers\\Receiver_0041.dat", "");
    Put("Receivers\\Receiver_0042.dat", "x");
    Put("Receivers\\Receiver_0043.dat", "??");
    Put("Receivers\\Receiver_0044.dat", std::string("\x05\x00\x01", 3));
    EXPECT_EQ(
        Rows(Page()),
        "Receiver_0041.dat | The file has 0 bytes: it is empty. | \n"
        "Receiver_0042.dat | The file has 1 bytes: it is empty. | \n"
        "Receiver_0043.dat | The file's version is 16191, not one of 3 to 5. | \n"
        "Receiver_0044.dat | The file is damaged: it ends too early or holds a value that is none. | \n" +
            kEast);
    Find<QAbstractItemView>(Page(), "List_Definitions")
        ->setCurrentIndex(Find<QAbstractItemView>(Page(), "List_Definitions")->model()->index(0, 0));
    EXPECT_EQ(Page().Chosen(), -1);
    EXPECT_FALSE(Find<QWidget>(Page(), "Form_Receiver")->isEnabled());
    EXPECT_EQ(OnDisk("Receivers\\Receiver_0042.dat"), "x");
}

TEST_F(ReceiversPage, WhatAnotherProgramDidIsTakenUpWhenThePageIsSeenAgain) {
    PutSample("Receivers\\Receiver_0042.dat", "receiver_version_5.dat");
    Page().Choose(1);
    Type(Page(), "Text_ReceiverName", "Mine");
    Page().hide();
    std::string theirs = testing::Sample("receiver_version_5.dat");
    theirs[10] = 'A';
    for (const char* name :
         {"Receivers\\Receiver_0007.dat", "Receivers\\Receiver_0042.dat", "Receivers\\Receiver_0099.dat"}) {
        Put(name, theirs);
    }
    Page().show();
    ASSERT_EQ(m_Station.Receivers().Count(), 3u);
    EXPECT_EQ(m_Station.Receivers().At(0).m_ReceiverName, "Ast");
    EXPECT_EQ(m_Station.Receivers().At(1).m_ReceiverName, "Mine");
    EXPECT_EQ(m_Station.Receivers().At(2).m_ReceiverName, "Ast");
    EXPECT_EQ(TextOf(Page(), "Text_ReceiverName"), "Mine");
}

TEST_F(ReceiversPage, AnUpgradeThatCantBeWrittenIsToldAsThat) {
    PutSample("Receivers\\Receiver_0042.dat", "receiver_version_3.dat");
    m_Files.m_FolderReadOnly = true;
    EXPECT_EQ(LabelOf(Page(), "Label_Notes"),
              "Files of an older version that could not be written anew: 1. They stay as they are.");
    EXPECT_EQ(OnDisk("Receivers\\Receiver_0042.dat"), testing::Sample("receiver_version_3.dat"));
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
}  // namespace vigrel::testing
