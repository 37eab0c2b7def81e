// Receivers and profiles that other programs change, remove or make meanwhile.

#include <QUndoStack>
#include <functional>

#include "editor_ui/page_fixture.h"
#include "editor_ui/records/definition_page.h"
#include "editor_ui/window/definitions_window.h"

namespace vigrel::testing {
namespace {

using eConflict = cPrompts::eConflict;

const std::string kEast = "Receivers\\Receiver_0007.dat";

class SharedDefinitions : public PageTest {
  protected:
    SharedDefinitions() {
        PutSample(kEast, "receiver_version_5.dat");
        PutSample("Profiles\\Profile_0012.dat", "profile_version_5.dat");
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
    void Undo() { Page().UndoStack()->undo(); }
    std::string UndoText() { return Page().UndoStack()->undoText().toStdString(); }
    static std::string Changed(const std::string& name) {
        return "mine, theirs, both: Another program has changed the file of \"" + name +
               "\" since it was read here. Keep your version, take the one in the file, or show both?\n";
    }

    cDefinitionsWindow m_Window{m_Services};
};

// --- undo

TEST_F(SharedDefinitions, UndoTakesBackWhatWasTakenUpBeforeTheStepsBehindIt) {
    m_Window.ShowReceivers();
    Type(Page(), "Text_ReceiverName", "East");
    ASSERT_TRUE(Page().Save());
    GiveNumbers(7, "99");
    const std::string theirs = OnDisk(kEast);
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
    EXPECT_EQ(OnDisk(kEast), theirs);
    EXPECT_EQ(Asked(), "");
}

TEST_F(SharedDefinitions, WhatUndoBringsBackOverTheWorkOfOthersIsNotSavedUnasked) {
    m_Window.ShowReceivers();
    Page();
    GiveNumbers(7, "99");
    const std::string theirs = OnDisk(kEast);
    ComeBack();
    Undo();
    Type(Page(), "Text_ReceiverName", "East");
    EXPECT_FALSE(Page().Save());
    EXPECT_EQ(Asked(), Changed("East"));
    EXPECT_EQ(OnDisk(kEast), theirs);
    m_Prompts.m_ConflictAnswers = {eConflict::Mine};
    EXPECT_TRUE(Page().Save());
    EXPECT_NE(OnDisk(kEast), theirs);
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
    const std::string theirs = OnDisk(kEast);
    Press(Page(), "Button_Revert");
    EXPECT_EQ(TextOf(Page(), "Text_ParallellNumbers"), "99");
    Undo();
    EXPECT_FALSE(Page().Save());
    EXPECT_EQ(Asked(), Changed("East"));
    EXPECT_EQ(OnDisk(kEast), theirs);
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
    PutSample(kEast, "receiver_version_5.dat");
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

}  // namespace
}  // namespace vigrel::testing
