// Receivers and profiles that other programs change, remove or make meanwhile.

#include <QAction>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>
#include <QUndoStack>
#include <functional>

#include "editor_ui/page_fixture.h"
#include "editor_ui/records/definition_page.h"
#include "editor_ui/window/definitions_window.h"

namespace vigrel::testing {
namespace {

using eConflict = cPrompts::eConflict;

const std::string kEastFile = "Receivers\\Receiver_0007.dat", kNight = "Profiles\\Profile_0012.dat";

class SharedDefinitions : public PageTest {
  protected:
    SharedDefinitions() {
        PutSample(kEastFile, "receiver_version_5.dat");
        PutSample(kNight, "profile_version_5.dat");
        m_Window.show();
    }
    cDefinitionPage& Page() { return dynamic_cast<cDefinitionPage&>(*m_Window.CurrentPage()); }
    cReceiver& Receiver(std::size_t position = 0) { return m_Station.Receivers().At(position); }
    // As another program does it.
    void ChangeReceiver(std::int16_t identity, const std::function<void(cReceiver&)>& change) {
        cReceiver theirs(m_Station.Services());
        ASSERT_TRUE(theirs.LoadFromDisk(identity));
        change(theirs);
        ASSERT_TRUE(theirs.SaveToDisk());
    }
    void GiveNumbers(std::int16_t identity, const char* numbers) {
        ChangeReceiver(identity, [&](cReceiver& theirs) { theirs.m_ParallellNumbers = numbers; });
    }
    void ComeBack() {
        m_Window.hide();
        m_Window.show();
    }
    void CloseWithoutSaving() {
        m_Prompts.m_SaveAnswers = {cPrompts::eSave::Discard};
        Find<QAction>(m_Window, "Menu_Close")->trigger();
        Asked();
    }
    // The receivers of the shown profile.
    std::string Receivers() {
        QStringList items;
        for (const char* name : {"List_Parallel", "List_Sequential"}) {
            const auto* list = Find<QListWidget>(Page(), name);
            for (int row = 0; row < list->count(); ++row) items += list->item(row)->text();
        }
        return items.join(", ").toStdString();
    }
    // Takes the first parallel receiver out of the shown profile.
    void RemoveReceiver() {
        Find<QListWidget>(Page(), "List_Parallel")->setCurrentRow(0);
        Find<QPushButton>(Page(), "Button_Parallel_Remove")->click();
        EXPECT_TRUE(Page().IsDirty());
    }
    void ExpectNamedBeforeItsReceiverGoes() {
        Press(Page(), "Button_Delete");
        EXPECT_EQ(Asked(),
                  "yes or no: Delete the receiver \"\xC3\x96st\" and its file?\n\nThese profiles send alarms "
                  "to it:\nNight\n");
    }
    void Undo() { Page().UndoStack()->undo(); }
    std::string UndoText() { return Page().UndoStack()->undoText().toStdString(); }
    static std::string Changed(const std::string& name) { return "mine, theirs, both: " + name + "\n"; }

    cDefinitionsWindow m_Window{m_Services};
};

// --- undo

TEST_F(SharedDefinitions, UndoTakesBackWhatWasTakenUpBeforeTheStepsBehindIt) {
    m_Window.ShowReceivers();
    Type(Page(), "Text_ReceiverName", "East");
    ASSERT_TRUE(Page().Save());
    GiveNumbers(7, "99");
    const std::string theirs = OnDisk(kEastFile);
    ComeBack();
    EXPECT_EQ(TextOf(Page(), "Text_ParallellNumbers"), "99");
    EXPECT_EQ(UndoText(), "taking over \"East\"");
    Undo();
    EXPECT_EQ(TextOf(Page(), "Text_ReceiverName"), "East");
    EXPECT_NE(TextOf(Page(), "Text_ParallellNumbers"), "99");
    Undo();
    EXPECT_NE(TextOf(Page(), "Text_ReceiverName"), "East");
    Page().UndoStack()->redo();
    Page().UndoStack()->redo();
    EXPECT_EQ(TextOf(Page(), "Text_ParallellNumbers"), "99");
    EXPECT_FALSE(Page().IsDirty());
    EXPECT_EQ(OnDisk(kEastFile), theirs);
    EXPECT_EQ(Asked(), "");
}

TEST_F(SharedDefinitions, WhatUndoBringsBackOverTheWorkOfOthersIsNotSavedUnasked) {
    m_Window.ShowReceivers();
    Page();
    GiveNumbers(7, "99");
    const std::string theirs = OnDisk(kEastFile);
    ComeBack();
    Undo();
    Type(Page(), "Text_ReceiverName", "East");
    EXPECT_FALSE(Page().Save());
    EXPECT_EQ(Asked(), Changed("East"));
    EXPECT_EQ(OnDisk(kEastFile), theirs);
    m_Prompts.m_ConflictAnswers = {eConflict::Mine};
    EXPECT_TRUE(Page().Save());
    EXPECT_NE(OnDisk(kEastFile), theirs);
    // That is decided now.
    Asked();
    Type(Page(), "Text_ReceiverName", "West");
    EXPECT_TRUE(Page().Save());
    EXPECT_EQ(Asked(), "");
}

TEST_F(SharedDefinitions, WhatWasTakenUpStaysWithTheStepsMadeOnIt) {
    m_Window.ShowReceivers();
    GiveNumbers(7, "99");
    ComeBack();
    Type(Page(), "Text_ReceiverName", "East");
    EXPECT_TRUE(Page().Save());
    Undo();
    EXPECT_EQ(TextOf(Page(), "Text_ParallellNumbers"), "99");
    EXPECT_TRUE(Page().Save());
    EXPECT_EQ(Asked(), "");
}

TEST_F(SharedDefinitions, GivenUpChangesThatComeBackDontReplaceTheWorkOfOthersUnasked) {
    m_Window.ShowReceivers();
    Type(Page(), "Text_ReceiverName", "East");
    GiveNumbers(7, "99");
    const std::string theirs = OnDisk(kEastFile);
    Press(Page(), "Button_Revert");
    EXPECT_EQ(TextOf(Page(), "Text_ParallellNumbers"), "99");
    Undo();
    EXPECT_FALSE(Page().Save());
    EXPECT_EQ(Asked(), Changed("East"));
    EXPECT_EQ(OnDisk(kEastFile), theirs);
}

TEST_F(SharedDefinitions, WhatSeveralFilesBringAtOnceIsOneStep) {
    PutSample("Receivers\\Receiver_0042.dat", "receiver_version_5.dat");
    m_Window.ShowReceivers();
    GiveNumbers(7, "98");
    GiveNumbers(42, "99");
    ComeBack();
    EXPECT_EQ(Page().UndoStack()->count(), 1);
    EXPECT_EQ(UndoText(), "taking over the changes of other programs");
    Undo();
    EXPECT_NE(Receiver(0).m_ParallellNumbers, "98");
    EXPECT_NE(Receiver(1).m_ParallellNumbers, "99");
}

TEST_F(SharedDefinitions, WhatOthersWroteAsItWasIsNoStep) {
    m_Window.ShowReceivers();
    PutSample(kEastFile, "receiver_version_5.dat");
    ComeBack();
    EXPECT_EQ(Page().UndoStack()->count(), 0);
    EXPECT_FALSE(Page().IsDirty());
}

TEST_F(SharedDefinitions, AProfileThatOthersChangedIsTakenUpAsAStep) {
    m_Window.ShowProfiles();
    Type(Page(), "Text_ProfileName", "Day");
    ASSERT_TRUE(Page().Save());
    cProfile theirs(m_Station.Services());
    ASSERT_TRUE(theirs.LoadFromDisk(12));
    theirs.m_SequentialReceivers = "42";
    ASSERT_TRUE(theirs.SaveToDisk());
    ComeBack();
    EXPECT_EQ(UndoText(), "taking over \"Day\"");
    Undo();
    EXPECT_NE(m_Station.Profiles().At(0).m_SequentialReceivers, "42");
    EXPECT_FALSE(Page().Save());
    EXPECT_EQ(Asked(), Changed("Day"));
}

// --- while a question is open

TEST_F(SharedDefinitions, WhatOthersDoWhileItIsAskedDoesntTurnTheAnswerToAnotherOne) {
    PutSample("Receivers\\Receiver_0042.dat", "receiver_version_5.dat");
    PutSample("Receivers\\Receiver_0043.dat", "receiver_version_5.dat");
    m_Window.ShowReceivers();
    Page().Choose(1);
    m_Prompts.m_WhileAsked = [this] {
        if (m_Files.FileExists(Path(kEastFile))) m_Files.RemoveFile(Path(kEastFile));
        ComeBack();
        QCoreApplication::processEvents();
    };
    m_Prompts.m_YesNoAnswers = {true};
    Press(Page(), "Button_Delete");
    EXPECT_FALSE(m_Files.FileExists(Path("Receivers\\Receiver_0042.dat")));
    EXPECT_TRUE(m_Files.FileExists(Path("Receivers\\Receiver_0043.dat")));
    EXPECT_EQ(m_Station.Receivers().Count(), 2u);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_Station.Receivers().Count(), 1u);
    EXPECT_EQ(UndoText(), "removing \"\xC3\x96st\"");
    Undo();
    Undo();
    EXPECT_EQ(Receiver(1).m_DiskIdentity, 42);
    // A step that asks is under way.
    m_Prompts.m_YesNoAnswers = {true};
    m_Files.RemoveFile(Path("Receivers\\Receiver_0043.dat"));
    Page().UndoStack()->redo();
    EXPECT_FALSE(m_Files.FileExists(Path("Receivers\\Receiver_0042.dat")));
    QCoreApplication::processEvents();
    EXPECT_EQ(UndoText(), "removing \"\xC3\x96st\"");
    EXPECT_EQ(m_Station.Receivers().Count(), 1u);
}

// --- closing

TEST_F(SharedDefinitions, TheWindowClosesWhenWhatOthersSavedWasTaken) {
    PutSample("Receivers\\Receiver_0042.dat", "receiver_version_5.dat");
    PutSample("Receivers\\Receiver_0043.dat", "receiver_version_5.dat");
    m_Window.ShowReceivers();
    for (int position = 0; position < 3; ++position) {
        Page().Choose(position);
        Type(Page(), "Text_ReceiverName", "Mine");
    }
    GiveNumbers(7, "99");
    m_Files.RemoveFile(Path("Receivers\\Receiver_0042.dat"));
    m_Prompts.m_SaveAnswers = {cPrompts::eSave::Save};
    m_Prompts.m_ConflictAnswers = {eConflict::Theirs, eConflict::Theirs};
    EXPECT_TRUE(m_Window.close());
    ASSERT_EQ(m_Station.Receivers().Count(), 2u);
    EXPECT_EQ(Receiver(0).m_ParallellNumbers, "99");
    EXPECT_NE(OnDisk("Receivers\\Receiver_0043.dat").find("Mine"), std::string::npos);
}

TEST_F(SharedDefinitions, TheWindowStaysWhenSomethingIsStillToBeSaved) {
    m_Window.ShowReceivers();
    Type(Page(), "Text_ReceiverName", "Mine");
    GiveNumbers(7, "99");
    for (const eConflict answer : {eConflict::Cancel, eConflict::Both}) {
        m_Prompts.m_SaveAnswers = {cPrompts::eSave::Save};
        m_Prompts.m_ConflictAnswers = {answer};
        EXPECT_FALSE(m_Window.close());
    }
}

// --- on paper

TEST_F(SharedDefinitions, AWeekWithATimeThatIsNoneIsNotPrinted) {
    m_Window.ShowProfiles();
    m_Station.Profiles().At(0).m_TimeSchedule = std::make_unique<cTimeSchedule>();
    m_Station.Profiles().At(0).m_TimeSchedule->SetDefaultPeriod();
    Page().Choose(0);
    auto* tabs = Find<QTabWidget>(Page(), "Tabs_Profile");
    tabs->setCurrentIndex(3);
    QApplication::setActiveWindow(&m_Window);
    auto* view = Find<QWidget>(Page(), "Picture_TimeSchedule");
    view->setFocus();
    for (int i = 0; i < 7; ++i) QTest::keyClick(view, Qt::Key_Up);
    Find<QWidget>(Page(), "Text_Schedule_Period_Stop")->setFocus();
    Type(Page(), "Text_Schedule_Period_Stop", "25:30");
    tabs->setCurrentIndex(0);
    Asked();
    Find<QAction>(m_Window, "Menu_Pdf")->trigger();
    EXPECT_EQ(Asked(), "failure: Night can't be printed.\n\nStop: \"25:30\" lies behind 24:00.\n");
    EXPECT_EQ(tabs->currentIndex(), 3);
    EXPECT_TRUE(Find<QWidget>(Page(), "Text_Schedule_Period_Stop")->hasFocus());
    // The calendar has no part in it.
    tabs->setCurrentIndex(4);
    Find<QAction>(m_Window, "Menu_Pdf")->trigger();
    EXPECT_NE(Asked().find("save as "), std::string::npos);
}

// --- files that can't be read

TEST_F(SharedDefinitions, AFileThatWasMendedIsReadAndOneThatWasRemovedHasNoRow) {
    Put("Receivers\\Receiver_0041.dat", "??");
    Put("Receivers\\Receiver_0042.dat", "");
    m_Window.ShowReceivers();
    EXPECT_NE(Rows(Page()).find("Receiver_0041.dat | The file's version"), std::string::npos);
    PutSample("Receivers\\Receiver_0041.dat", "receiver_version_5.dat");
    ComeBack();
    EXPECT_NE(Rows(Page()).find("| 0041"), std::string::npos) << Rows(Page());
    EXPECT_EQ(Rows(Page()).find("Receiver_0041.dat"), std::string::npos) << Rows(Page());
    EXPECT_NE(Rows(Page()).find("Receiver_0042.dat"), std::string::npos) << Rows(Page());
    m_Files.RemoveFile(Path("Receivers\\Receiver_0042.dat"));
    ComeBack();
    EXPECT_EQ(Rows(Page()).find("Receiver_0042.dat"), std::string::npos) << Rows(Page());
    EXPECT_FALSE(m_Files.FileExists(Path("Receivers\\Receiver_0042.dat")));
}

TEST_F(SharedDefinitions, AFileThatIsDamagedInAnotherWayByNowSaysSo) {
    Put("Receivers\\Receiver_0041.dat", "");
    m_Window.ShowReceivers();
    Put("Receivers\\Receiver_0041.dat", "x");
    ComeBack();
    EXPECT_NE(Rows(Page()).find("Receiver_0041.dat | The file has 1 bytes"), std::string::npos);
}

TEST_F(SharedDefinitions, WhatWasToldAndNotClosedStaysWhenMoreIsToBeTold) {
    Put("Receivers\\Receiver_0041.dat", "??");
    m_Window.ShowReceivers();
    EXPECT_EQ(LabelOf(Page(), "Label_Notes"), "What could not be read: 1.");
    GiveNumbers(7, "99");
    ComeBack();
    EXPECT_TRUE(Find<QWidget>(Page(), "Bar_Notes")->isVisible());
    Put("Receivers\\Receiver_0042.dat", "??");
    ComeBack();
    EXPECT_EQ(LabelOf(Page(), "Label_Notes"), "What could not be read: 2.");
    Press(Page(), "Button_Notes_Close");
    Put("Receivers\\Receiver_0043.dat", "??");
    ComeBack();
    EXPECT_EQ(LabelOf(Page(), "Label_Notes"), "What could not be read: 1.");
}

TEST_F(SharedDefinitions, AFileThatCantBeReadSaysSoInPlaceOfTheFormOfAnother) {
    Put("Receivers\\Receiver_0041.dat", "??");
    m_Window.ShowReceivers();
    Page().Choose(0);
    EXPECT_TRUE(Find<QWidget>(Page(), "Text_ReceiverName")->isVisible());
    Page().Choose(1);
    EXPECT_FALSE(Find<QWidget>(Page(), "Text_ReceiverName")->isVisible());
    EXPECT_TRUE(Find<QWidget>(Page(), "Label_Unreadable")->isVisible());
    EXPECT_EQ(LabelOf(Page(), "Label_Unreadable"),
              "Receiver_0041.dat\n\nThe file's version is 16191, not one of 3 to 5.");
    Page().Choose(0);
    EXPECT_TRUE(Find<QWidget>(Page(), "Text_ReceiverName")->isVisible());
}

// --- removed by others

TEST_F(SharedDefinitions, WhatOthersRemovedLeavesTheListAsAStep) {
    PutSample("Receivers\\Receiver_0042.dat", "receiver_version_5.dat");
    m_Window.ShowReceivers();
    Page().Choose(1);
    Type(Page(), "Text_ReceiverName", "North");
    ASSERT_TRUE(Page().Save());
    m_Files.RemoveFile(Path(kEastFile));
    ComeBack();
    EXPECT_EQ(Rows(Page()), "North | (Unknown type: 0009) | 0042\n");
    EXPECT_EQ(TextOf(Page(), "Text_ReceiverName"), "North");
    EXPECT_EQ(UndoText(), "removing \"\xC3\x96st\"");
    EXPECT_FALSE(Page().IsDirty());
    // With its number, by which profiles know it; whether it gets a file again is for the user to say.
    Undo();
    EXPECT_EQ(Rows(Page()),
              "North | (Unknown type: 0009) | 0042\n\xC3\x96st * | (Unknown type: 0009) | 0007\n");
    EXPECT_FALSE(Page().Save());
    EXPECT_EQ(Asked(), "mine, theirs: \xC3\x96st\n");
    Undo();
    EXPECT_EQ(Receiver(1).m_ReceiverName, "\xD6st");
    for (int i = 0; i < 2; ++i) Page().UndoStack()->redo();
    EXPECT_EQ(Rows(Page()), "North | (Unknown type: 0009) | 0042\n");
    EXPECT_EQ(Asked(), "");
}

TEST_F(SharedDefinitions, TheNextOneIsChosenWhenOthersRemovedTheChosenOne) {
    PutSample("Receivers\\Receiver_0042.dat", "receiver_version_5.dat");
    m_Window.ShowReceivers();
    Page().Choose(0);
    m_Files.RemoveFile(Path(kEastFile));
    ComeBack();
    ASSERT_EQ(Page().Chosen(), 0);
    Type(Page(), "Text_ReceiverName", "North");
    EXPECT_EQ(Receiver(0).m_DiskIdentity, 42);
    EXPECT_EQ(Receiver(0).m_ReceiverName, "North");
    m_Files.RemoveFile(Path("Receivers\\Receiver_0042.dat"));
    Undo();
    ComeBack();
    EXPECT_EQ(Page().Chosen(), -1);
    EXPECT_TRUE(Find<QPushButton>(Page(), "Button_First")->isVisible());
}

TEST_F(SharedDefinitions, WhatIsChangedHereAndRemovedByOthersStaysWithAMark) {
    m_Window.ShowReceivers();
    Type(Page(), "Text_ReceiverName", "East");
    const auto row = [&] {
        return Find<QAbstractItemView>(Page(), "List_Definitions")->model()->index(0, 0);
    };
    EXPECT_EQ(row().data(Qt::ToolTipRole), "Not saved yet");
    GiveNumbers(7, "99");
    ComeBack();
    EXPECT_EQ(row().data(Qt::ToolTipRole), "Another program has changed the file meanwhile.");
    m_Files.RemoveFile(Path(kEastFile));
    ComeBack();
    EXPECT_EQ(row().data(Qt::ToolTipRole), "Another program has removed the file.");
    EXPECT_FALSE(row().data(Qt::DecorationRole).isNull());
    EXPECT_EQ(Rows(Page()), "East * | (Unknown type: 0009) | 0007\n");
    m_Prompts.m_ConflictAnswers = {eConflict::Mine};
    EXPECT_TRUE(Page().Save());
    EXPECT_TRUE(row().data(Qt::ToolTipRole).isNull());
    EXPECT_TRUE(m_Files.FileExists(Path(kEastFile)));
}

TEST_F(SharedDefinitions, AReceiverThatOthersRemovedIsMissingInTheProfilesAndNotOffered) {
    m_Window.ShowProfiles();
    m_Files.RemoveFile(Path(kEastFile));
    ComeBack();
    EXPECT_EQ(Receivers(), "(missing receiver 0007), (missing receiver 0008), (missing receiver 0009)");
    RemoveReceiver();
    QMenu* menu = Find<QPushButton>(Page(), "Button_Sequential_Add")->menu();
    emit menu->aboutToShow();
    ASSERT_EQ(menu->actions().size(), 1);
    EXPECT_EQ(menu->actions()[0]->text(), "No other saved receiver");
}

// --- the other kind

TEST_F(SharedDefinitions, AReceiverWhoseChangesWereGivenUpHasItsNameAgainInTheProfiles) {
    m_Window.ShowReceivers();
    Type(Page(), "Text_ReceiverName", "Other");
    CloseWithoutSaving();
    m_Window.ShowProfiles();
    EXPECT_EQ(Receivers().find("Other"), std::string::npos) << Receivers();
}

TEST_F(SharedDefinitions, AProfileThatIsOpenShowsTheNamesAgainToo) {
    m_Window.ShowProfiles();
    m_Window.ShowReceivers();
    Type(Page(), "Text_ReceiverName", "Other");
    CloseWithoutSaving();
    EXPECT_EQ(Page().Title(), "Profiles");
    EXPECT_EQ(Receivers().find("Other"), std::string::npos) << Receivers();
}

TEST_F(SharedDefinitions, AProfileWhoseChangesWereGivenUpIsNamedBeforeItsReceiverGoes) {
    m_Window.ShowProfiles();
    RemoveReceiver();
    CloseWithoutSaving();
    m_Window.ShowReceivers();
    ExpectNamedBeforeItsReceiverGoes();
}

TEST_F(SharedDefinitions, AProfileThatSendsToAReceiverUntilItIsSavedIsNamed) {
    m_Window.ShowProfiles();
    RemoveReceiver();
    m_Window.ShowReceivers();
    ExpectNamedBeforeItsReceiverGoes();
}

TEST_F(SharedDefinitions, AProfileThatOthersMadeIsNamedBeforeItsReceiverGoes) {
    m_Files.RemoveFile(Path(kNight));
    m_Window.ShowReceivers();
    PutSample(kNight, "profile_version_5.dat");
    ExpectNamedBeforeItsReceiverGoes();
}

TEST_F(SharedDefinitions, AProfileThatOthersMadeIsNamedWhileTheProfilesAreOpen) {
    m_Files.RemoveFile(Path(kNight));
    m_Window.ShowProfiles();
    m_Window.ShowReceivers();
    PutSample(kNight, "profile_version_5.dat");
    ExpectNamedBeforeItsReceiverGoes();
    m_Window.ShowProfiles();
    EXPECT_EQ(Rows(Page()).substr(0, 5), "Night");
}

TEST_F(SharedDefinitions, AReceiverThatOthersMadeIsKnownInTheProfiles) {
    m_Window.ShowProfiles();
    EXPECT_EQ(Receivers(), "\xC3\x96st (0007), (missing receiver 0008), (missing receiver 0009)");
    PutSample("Receivers\\Receiver_0009.dat", "receiver_version_5.dat");
    ComeBack();
    EXPECT_EQ(Receivers(), "\xC3\x96st (0007), (missing receiver 0008), \xC3\x96st (0009)");
    m_Window.ShowReceivers();
    m_Window.ShowProfiles();
    PutSample("Receivers\\Receiver_0008.dat", "receiver_version_5.dat");
    ComeBack();
    EXPECT_EQ(Receivers(), "\xC3\x96st (0007), \xC3\x96st (0008), \xC3\x96st (0009)");
}

}  // namespace
}  // namespace vigrel::testing
