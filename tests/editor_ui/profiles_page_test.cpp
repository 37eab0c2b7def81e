#include "editor_ui/records/profiles_page.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDateEdit>
#include <QImage>
#include <QListWidget>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QUndoStack>
#include <QWheelEvent>

#include "common/dates.h"
#include "editor_ui/calendar/calendar_editor.h"
#include "editor_ui/page_fixture.h"
#include "editor_ui/pages/file_document.h"
#include "schedule/schedule_builder.h"

namespace vigrel::testing {
namespace {

class ProfilesPage : public PageTest {
  protected:
    ProfilesPage() {
        PutSample("Profiles\\Profile_0012.dat", "profile_version_5.dat");
        PutSample("Receivers\\Receiver_0007.dat", "receiver_version_5.dat");
        PutSample("Receivers\\Receiver_0042.dat", "receiver_version_4.dat");
    }
    cProfilesPage& Page() {
        if (!m_Page) {
            m_Page = std::make_unique<cProfilesPage>(m_Services);
            m_Page->resize(1000, 700);
            m_Page->show();
        }
        return *m_Page;
    }
    void Reopen() {
        m_Page.reset();
        Page();
    }
    void ShowTab(int tab) { Find<QTabWidget>(Page(), "Tabs_Profile")->setCurrentIndex(tab); }
    std::string Items(const char* list) {
        QStringList items;
        const auto* widget = Find<QListWidget>(Page(), list);
        for (int row = 0; row < widget->count(); ++row) items += widget->item(row)->text();
        return items.join('\n').toStdString();
    }
    // What the menu of an Add button offers.
    QList<QAction*> Offers(const char* button) {
        QMenu* menu = Find<QPushButton>(Page(), button)->menu();
        emit menu->aboutToShow();
        return menu->actions();
    }
    // Gives one day of a calendar another type, by mouse.
    static void MarkADay(cCalendarEditor& calendar) {
        calendar.ShowMonth(2026, 6);
        Find<QListWidget>(calendar, "List_Calendar_DayType")->setCurrentRow(8);
        auto* view = Find<QWidget>(calendar, "Picture_Calendar");
        QTest::mouseClick(view, Qt::LeftButton, {}, QPoint(50, 32));
    }
    cProfile& Shown() { return m_Station.Profiles().At(static_cast<std::size_t>(Page().Chosen())); }
    // Gives the shown profile a working week, saves it, and chooses Monday's period, 07:00 to 16:00.
    void ChooseMonday() {
        ShowTab(3);
        Shown().m_TimeSchedule = std::make_unique<cTimeSchedule>();
        Shown().m_TimeSchedule->SetDefaultPeriod();
        ASSERT_TRUE(m_Station.Profiles().Save(static_cast<std::size_t>(Page().Chosen())));
        Page().Choose(Page().Chosen());
        QApplication::setActiveWindow(&Page());
        auto* view = Find<QWidget>(Page(), "Picture_TimeSchedule");
        view->setFocus();
        for (int i = 0; i < 7; ++i) QTest::keyClick(view, Qt::Key_Up);
        ASSERT_EQ(TextOf(Page(), "Text_Schedule_Period_Stop"), "16:00");
    }
    // Leaves the field with what was typed.
    void TypeStop(const QString& text) {
        Find<QLineEdit>(Page(), "Text_Schedule_Period_Stop")->setFocus();
        Type(Page(), "Text_Schedule_Period_Stop", text);
    }
    // As a user does, by the mouse.
    void ChooseInList(int row) {
        auto* list = Find<QAbstractItemView>(Page(), "List_Definitions");
        const QAbstractItemModel& shown = *list->model();
        list->setFocus(Qt::MouseFocusReason);
        for (int i = 0; i < shown.rowCount(); ++i) {
            const QString number = shown.index(i, 2).data().toString();
            const bool isWanted = m_Station.Profiles().At(static_cast<std::size_t>(row)).m_DiskIdentity ==
                                  static_cast<std::int16_t>(number.toInt());
            if (!isWanted) continue;
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                              list->visualRect(shown.index(i, 0)).center());
        }
        ASSERT_EQ(Page().Chosen(), row);
    }
    std::string Monday(std::size_t position) {
        return Periods(*m_Station.Profiles().At(position).m_TimeSchedule, 0);
    }

    std::unique_ptr<cProfilesPage> m_Page;
};

TEST_F(ProfilesPage, AProfileIsMadeEditedSavedReopenedAndDeleted) {
    m_Random.m_Values = {0};
    Press(Page(), "Button_New");
    QTest::keyClicks(Page().focusWidget(), "Day");
    ShowTab(1);
    Type(Page(), "Text_Condition_2", "Fire");
    EXPECT_TRUE(Page().IsDirty());
    Press(Page(), "Button_Save");
    EXPECT_FALSE(Page().IsDirty());
    EXPECT_EQ(Asked(), "");

    Reopen();
    ASSERT_EQ(m_Station.Profiles().Count(), 2u);
    Page().Choose(0);
    EXPECT_EQ(Shown().GetName(), "Day");
    EXPECT_EQ(Shown().GetCondition(2), "Fire");
    std::int16_t start = 0;
    std::int16_t stop = 0;
    ASSERT_TRUE(Shown().m_TimeSchedule->GetNextTimePeriod(0, start, stop, nullptr));
    EXPECT_EQ(stop, 960);

    m_Prompts.m_YesNoAnswers = {true};
    Press(Page(), "Button_Delete");
    EXPECT_EQ(Asked(), "yes or no: Delete the profile \"Day\" and its file?\n");
    EXPECT_FALSE(m_Files.FileExists(Path("Profiles\\Profile_0001.dat")));
    EXPECT_EQ(m_Station.Profiles().Count(), 1u);
}

TEST_F(ProfilesPage, EveryFieldIsWrittenWhereItIsReadFrom) {
    ShowTab(0);
    Type(Page(), "Text_ProfileName", "Day");
    Press(Page(), "Check_Enabled");
    Press(Page(), "Check_State_0");
    Press(Page(), "Check_State_1");
    Type(Page(), "Text_OffDuty", "9");
    ShowTab(1);
    for (int i = 0; i < 6; ++i) {
        Type(Page(), QString("Text_Condition_%1").arg(i).toLatin1().constData(), QString("c%1").arg(i));
    }
    ShowTab(3);
    Press(Page(), "Check_UseTimeSchedule");
    Press(Page(), "Check_TimeSchedule_ViewDayType");
    ShowTab(6);
    Press(Page(), "Check_UseExternalTag");
    Type(Page(), "Text_ExternalTagName", "tag");
    Press(Page(), "Check_IgnoreExternalTag");
    Press(Page(), "Check_UseExternalFile");
    Type(Page(), "Text_ExternalFileName", "file");
    Type(Page(), "Text_ExternalFileText", "text");
    ShowTab(7);
    Press(Page(), "Check_ScanSpecificSystems");
    Press(Page(), "Check_System_0");
    Press(Page(), "Check_System_62");
    EXPECT_TRUE(Page().Save());

    Reopen();
    const cProfile& profile = Shown();
    EXPECT_EQ(profile.GetName(), "Day");
    EXPECT_EQ(profile.m_Enabled, False16);
    EXPECT_EQ(profile.GetState(0), False16);
    EXPECT_EQ(profile.GetState(1), True16);
    EXPECT_EQ(profile.GetState(2), 2);
    EXPECT_EQ(profile.m_OffDutyAlarmBehaviour, 9);
    for (std::int16_t i = 0; i < 6; ++i) EXPECT_EQ(profile.GetCondition(i), "c" + std::to_string(i));
    EXPECT_EQ(profile.m_UseTimeSchedule, False16);
    EXPECT_EQ(profile.m_TimeSchedule_ViewDayType, False16);
    EXPECT_EQ(profile.m_UseExternalTag, False16);
    EXPECT_EQ(profile.m_ExternalTagName, "tag");
    EXPECT_EQ(profile.m_IgnoreExternalTagInOtherProfiles, True16);
    EXPECT_EQ(profile.m_UseExternalFile, True16);
    EXPECT_EQ(profile.m_ExternalFileName, "file");
    EXPECT_EQ(profile.m_ExternalFileText, "text");
    EXPECT_EQ(profile.m_ScanSpecificSystems, False16);
    EXPECT_EQ(profile.GetSystem(0), False16);
    EXPECT_EQ(profile.GetSystem(62), True16);
    EXPECT_EQ(profile.GetSystem(63), 3);
    EXPECT_TRUE(Find<QCheckBox>(Page(), "Check_System_62")->isChecked());
    EXPECT_EQ(TextOf(Page(), "Text_OffDuty"), "9");
}

TEST_F(ProfilesPage, ShowingAProfileChangesNothing) {
    for (int tab = 0; tab < 8; ++tab) ShowTab(tab);
    EXPECT_FALSE(Page().IsDirty());
    EXPECT_FALSE(Shown().HasChangedSinceLastLoadFromDisk());
}

TEST_F(ProfilesPage, TheButtonsOfAllSystemsStandBesideEachOtherBelowThem) {
    ShowTab(7);
    QCoreApplication::processEvents();
    const QRect all = Find<QPushButton>(Page(), "Button_Systems_All")->geometry();
    const QRect none = Find<QPushButton>(Page(), "Button_Systems_None")->geometry();
    EXPECT_EQ(all.top(), none.top());
    EXPECT_EQ(all.height(), none.height());
    EXPECT_LT(all.right(), none.left());
    EXPECT_GT(all.top(), Find<QCheckBox>(Page(), "Check_System_63")->geometry().bottom());
}

TEST_F(ProfilesPage, AllSystemsAreSetOrClearedAtOnce) {
    ShowTab(7);
    Press(Page(), "Button_Systems_All");
    for (std::int16_t i = 0; i < 64; ++i) EXPECT_NE(Shown().GetSystem(i), 0) << i;
    EXPECT_EQ(Shown().GetSystem(63), 3);
    Press(Page(), "Button_Systems_None");
    for (std::int16_t i = 0; i < 64; ++i) EXPECT_EQ(Shown().GetSystem(i), 0) << i;
}

TEST_F(ProfilesPage, SettingAllSystemsWhereAllAreSetIsNoStep) {
    ShowTab(7);
    Press(Page(), "Button_Systems_All");
    const int steps = Page().UndoStack()->count();
    Press(Page(), "Button_Systems_All");
    EXPECT_EQ(Page().UndoStack()->count(), steps);
    Press(Page(), "Button_Systems_None");
    Press(Page(), "Button_Systems_None");
    EXPECT_EQ(Page().UndoStack()->count(), steps + 1);
}

TEST_F(ProfilesPage, ReceiversAreShownByNameAndMissingOnesStay) {
    ShowTab(2);
    EXPECT_EQ(Items("List_Parallel"), "\xC3\x96st (0007)\n(missing receiver 0008)");
    EXPECT_EQ(Items("List_Sequential"), "(missing receiver 0009)");
    EXPECT_FALSE(Page().IsDirty());
    Shown().m_SequentialReceivers = "9;a b";
    Page().Choose(0);
    EXPECT_EQ(Items("List_Sequential"), "(missing receiver 0009)\n(not a receiver: a b)");
}

TEST_F(ProfilesPage, AReceiverThatOthersAddedHasItsNameAtTheNextLook) {
    ShowTab(2);
    PutSample("Receivers\\Receiver_0008.dat", "receiver_version_4.dat");
    Page().hide();
    Page().show();
    EXPECT_EQ(Items("List_Parallel"), "\xC3\x96st (0007)\nNord (0008)");
}

TEST_F(ProfilesPage, ReceiversAreAddedFromTheListOfReceiversRemovedAndPutInOrder) {
    ShowTab(2);
    const QList<QAction*> offers = Offers("Button_Parallel_Add");
    ASSERT_EQ(offers.size(), 1);
    EXPECT_EQ(offers[0]->text().toStdString(), "Nord (0042)");
    offers[0]->trigger();
    EXPECT_EQ(Shown().m_ParallellReceivers, "7;8;42");
    Press(Page(), "Button_Parallel_Up");
    EXPECT_EQ(Shown().m_ParallellReceivers, "7;42;8");
    Press(Page(), "Button_Parallel_Down");
    EXPECT_EQ(Shown().m_ParallellReceivers, "7;8;42");
    Find<QListWidget>(Page(), "List_Parallel")->setCurrentRow(1);
    Press(Page(), "Button_Parallel_Remove");
    EXPECT_EQ(Shown().m_ParallellReceivers, "7;42");
    EXPECT_EQ(Shown().m_SequentialReceivers, "9");
    const QList<QAction*> none = Offers("Button_Parallel_Add");
    ASSERT_EQ(none.size(), 1);
    EXPECT_FALSE(none[0]->isEnabled());
}

TEST_F(ProfilesPage, TheButtonsOfTheReceiversFitTheChosenOne) {
    ShowTab(2);
    auto* list = Find<QListWidget>(Page(), "List_Parallel");
    const auto enabled = [&] {
        std::string names;
        for (const char* name : {"Remove", "Up", "Down"}) {
            const QString button = QString("Button_Parallel_%1").arg(name);
            if (Find<QPushButton>(Page(), button.toLatin1().constData())->isEnabled()) names += name;
        }
        return names;
    };
    ASSERT_EQ(list->currentRow(), 0);
    EXPECT_EQ(enabled(), "RemoveDown");
    list->setCurrentRow(1);
    EXPECT_EQ(enabled(), "RemoveUp");
    list->setCurrentRow(0);
    Press(Page(), "Button_Parallel_Remove");
    EXPECT_EQ(list->currentRow(), 0);
    EXPECT_EQ(enabled(), "Remove");
    Press(Page(), "Button_Parallel_Remove");
    EXPECT_EQ(Shown().m_ParallellReceivers, "");
    EXPECT_EQ(enabled(), "");
}

TEST_F(ProfilesPage, TheReceiversOfferedAreComparedByNumber) {
    Shown().m_ParallellReceivers = "0007; 0042";
    Page().Choose(0);
    const QList<QAction*> offers = Offers("Button_Parallel_Add");
    ASSERT_EQ(offers.size(), 1);
    EXPECT_FALSE(offers[0]->isEnabled());
}

TEST_F(ProfilesPage, EveryEditIsUndoneWhereItWasMade) {
    auto* tabs = Find<QTabWidget>(Page(), "Tabs_Profile");
    ShowTab(1);
    Type(Page(), "Text_Condition_2", "Gas");
    ShowTab(2);
    Press(Page(), "Button_Parallel_Remove");
    ShowTab(3);
    Press(Page(), "Check_TimeSchedule_UseCalendar");
    ShowTab(4);
    MarkADay(*Page().findChild<cCalendarEditor*>());
    ShowTab(7);
    Press(Page(), "Check_System_0");
    Press(Page(), "Button_Systems_All");
    const std::vector<int> expected{7, 7, 4, 3, 2, 1};
    std::vector<int> shown;
    while (Page().UndoStack()->canUndo()) {
        ShowTab(0);
        Page().UndoStack()->undo();
        shown.push_back(tabs->currentIndex());
    }
    EXPECT_EQ(shown, expected);
    EXPECT_FALSE(Page().IsDirty());
}

// It stays with its period and profile as typed, whatever is chosen next.
TEST_F(ProfilesPage, ATimeThatIsNoneStandsInTheWayOfSavingWhateverIsShown) {
    m_Random.m_Values = {0};
    ChooseMonday();
    Press(Page(), "Button_New");
    ASSERT_TRUE(Page().Save());
    ChooseInList(0);
    ChooseMonday();
    TypeStop("25:30");
    auto* view = Find<QWidget>(Page(), "Picture_TimeSchedule");
    view->setFocus();
    EXPECT_EQ(LabelOf(Page(), "Label_Schedule_Problem"), "Stop: \"25:30\" lies behind 24:00.");
    QTest::keyClick(view, Qt::Key_Down);
    EXPECT_EQ(TextOf(Page(), "Text_Schedule_Period_Stop"), "16:00");
    EXPECT_EQ(LabelOf(Page(), "Label_Schedule_Problem"), "");
    QTest::keyClick(view, Qt::Key_Up);
    EXPECT_EQ(TextOf(Page(), "Text_Schedule_Period_Stop"), "25:30");
    QTest::keyClick(view, Qt::Key_Down);
    ChooseInList(1);
    EXPECT_EQ(LabelOf(Page(), "Label_Schedule_Problem"), "");
    EXPECT_EQ(Rows(Page()),
              "New profile |  | 0001\nNight * | Fire, *, \xC3\x96"
              "1 | 0012\n");
    EXPECT_TRUE(Page().IsDirty());
    ShowTab(0);
    EXPECT_FALSE(Page().Save());
    EXPECT_EQ(Asked(), "failure: \"Night\" can't be saved.\n\nStop: \"25:30\" lies behind 24:00.\n");
    EXPECT_EQ(Page().Chosen(), 0);
    EXPECT_EQ(Find<QTabWidget>(Page(), "Tabs_Profile")->currentIndex(), 3);
    auto* stop = Find<QLineEdit>(Page(), "Text_Schedule_Period_Stop");
    EXPECT_TRUE(stop->hasFocus());
    EXPECT_EQ(stop->text(), "25:30");
    EXPECT_EQ(stop->selectedText(), "25:30");
    QTest::keyClicks(stop, "1730");
    QTest::keyClick(stop, Qt::Key_Return);
    EXPECT_EQ(LabelOf(Page(), "Label_Schedule_Problem"), "");
    EXPECT_TRUE(Page().Save());
    EXPECT_EQ(Monday(0), "420-1050");
}

TEST_F(ProfilesPage, ATimeThatIsNoneIsAStepAndCanBeGivenUp) {
    ChooseMonday();
    TypeStop("25:30");
    auto* stop = Find<QLineEdit>(Page(), "Text_Schedule_Period_Stop");
    QTest::keyClick(stop, Qt::Key_Return);
    // A copy has it as well.
    Press(Page(), "Button_Copy");
    EXPECT_EQ(TextOf(Page(), "Text_Schedule_Period_Stop"), "25:30");
    EXPECT_FALSE(Page().Save());
    QUndoStack& steps = *Page().UndoStack();
    EXPECT_EQ(steps.count(), 2);
    steps.undo();
    EXPECT_EQ(steps.undoText().toStdString(), "typing times");
    ShowTab(0);
    steps.undo();
    EXPECT_EQ(Find<QTabWidget>(Page(), "Tabs_Profile")->currentIndex(), 3);
    EXPECT_EQ(stop->text(), "16:00");
    EXPECT_FALSE(Page().IsDirty());
    steps.redo();
    EXPECT_EQ(stop->text(), "25:30");
    Press(Page(), "Button_Revert");
    EXPECT_FALSE(Page().IsDirty());
    EXPECT_EQ(LabelOf(Page(), "Label_Schedule_Problem"), "");
    // Back it comes with its period, and goes when that does.
    steps.undo();
    EXPECT_TRUE(Page().IsDirty());
    auto* view = Find<QWidget>(Page(), "Picture_TimeSchedule");
    ASSERT_EQ(stop->text(), "25:30");
    view->setFocus();
    QTest::keyClick(view, Qt::Key_Delete);
    EXPECT_EQ(Monday(0), "");
    EXPECT_TRUE(Page().Save());
    steps.undo();
    EXPECT_EQ(stop->text(), "25:30");
    EXPECT_FALSE(Page().Save());
    Asked();
}

// Its end must not make a step of it any more.
TEST_F(ProfilesPage, APageCanGoWhileATimeIsBeingTyped) {
    ChooseMonday();
    TypeStop("1730");
    m_Page.reset();
    EXPECT_EQ(Monday(0), "420-960");
}

// The rows of a new profile are numbered only as they are shown.
TEST_F(ProfilesPage, WhatIsChosenAndTypedStaysWhileAnotherPageShows) {
    Press(Page(), "Button_New");
    ShowTab(3);
    QApplication::setActiveWindow(&Page());
    auto* view = Find<QWidget>(Page(), "Picture_TimeSchedule");
    view->setFocus();
    for (int i = 0; i < 7; ++i) QTest::keyClick(view, Qt::Key_Up);
    for (int i = 0; i < 2; ++i) QTest::keyClick(view, Qt::Key_Down);
    const std::string chosen = LabelOf(Page(), "Label_Schedule_Chosen");
    ASSERT_TRUE(chosen.starts_with("Wednesday")) << chosen;
    Page().hide();
    Page().show();
    EXPECT_EQ(LabelOf(Page(), "Label_Schedule_Chosen"), chosen);
    TypeStop("soon");
    Page().hide();
    Page().show();
    EXPECT_EQ(LabelOf(Page(), "Label_Schedule_Chosen"), chosen);
    EXPECT_EQ(TextOf(Page(), "Text_Schedule_Period_Stop"), "soon");
    EXPECT_TRUE(Page().IsDirty());
}

TEST_F(ProfilesPage, ANumberThatIsNoneStaysAsTyped) {
    ShowTab(0);
    const std::string before = TextOf(Page(), "Text_OffDuty");
    for (const char* text : {"", "-", "1x", "40000"}) {
        Type(Page(), "Text_OffDuty", text);
        ShowTab(1);
        Page().Choose(0);
        ShowTab(0);
        EXPECT_EQ(TextOf(Page(), "Text_OffDuty"), text);
        EXPECT_NE(LabelOf(Page(), "Label_OffDuty_Problem"), "") << text;
        EXPECT_FALSE(Page().Save());
        EXPECT_NE(Asked().find("\n\nOff duty behaviour: "), std::string::npos) << text;
    }
    while (Page().UndoStack()->canUndo()) Page().UndoStack()->undo();
    EXPECT_EQ(TextOf(Page(), "Text_OffDuty"), before);
    EXPECT_FALSE(Page().IsDirty());
    Type(Page(), "Text_OffDuty", "-7");
    EXPECT_TRUE(Page().Save());
    EXPECT_EQ(Shown().m_OffDutyAlarmBehaviour, -7);
}

// The buttons of the list, and the menu, leave the keyboard where it is.
TEST_F(ProfilesPage, ATimeThatIsStillBeingTypedStaysWithItsProfile) {
    ChooseMonday();
    TypeStop("1730");
    Press(Page(), "Button_Copy");
    EXPECT_EQ(Monday(0), "420-1050");
    EXPECT_EQ(Monday(1), "420-1050");
    Page().Choose(0);
    ChooseMonday();
    TypeStop("18");
    Press(Page(), "Button_New");
    EXPECT_EQ(Monday(0), "420-1080");
    EXPECT_EQ(Monday(2), "420-960");
    Page().Choose(0);
    ChooseMonday();
    TypeStop("19");
    Find<QAction>(Page(), "Action_Save")->trigger();
    EXPECT_EQ(Monday(0), "420-1140");
    EXPECT_FALSE(Shown().HasChangedSinceLastLoadFromDisk());
    TypeStop("20");
    Find<QAction>(Page(), "Action_Revert")->trigger();
    EXPECT_EQ(Monday(0), "420-1140");
    EXPECT_EQ(Asked(), "");
}

TEST_F(ProfilesPage, TheKeysOfTheScheduleAndOfTheListAreApart) {
    ChooseMonday();
    auto* view = Find<QWidget>(Page(), "Picture_TimeSchedule");
    QTest::keyClick(view, Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(Monday(0), "0-1440");
    EXPECT_EQ(m_Station.Profiles().Count(), 1u);
    QTest::keyClick(view, Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(m_Station.Profiles().Count(), 2u);
}

TEST_F(ProfilesPage, AReceiverRenamedMeanwhileIsShownByItsNewName) {
    Page().hide();
    m_Station.Receivers().At(0).m_ReceiverName = "East";
    Page().show();
    EXPECT_EQ(Items("List_Parallel"), "East (0007)\n(missing receiver 0008)");
}

TEST_F(ProfilesPage, TheScheduleIsEditedInTheProfile) {
    ShowTab(3);
    const std::string before = [&] {
        std::string text;
        Shown().m_TimeSchedule->ComposePeriodArray(text);
        return text;
    }();
    Press(Page(), "Check_TimeSchedule_UseCalendar");
    EXPECT_EQ(Shown().m_TimeSchedule->m_UseCalendar, False16);
    EXPECT_TRUE(Page().IsDirty());
    ASSERT_NE(Page().UndoStack(), nullptr);
    Page().UndoStack()->undo();
    std::string after;
    Shown().m_TimeSchedule->ComposePeriodArray(after);
    EXPECT_EQ(after, before);
    EXPECT_FALSE(Page().IsDirty());
}

TEST_F(ProfilesPage, AnotherProfileHasAScheduleOfItsOwn) {
    Press(Page(), "Button_Copy");
    ShowTab(3);
    Press(Page(), "Check_TimeSchedule_UseCalendar");
    EXPECT_EQ(Shown().m_TimeSchedule->m_UseCalendar, False16);
    Page().Choose(0);
    EXPECT_EQ(Shown().m_TimeSchedule->m_UseCalendar, True16);
    EXPECT_TRUE(Find<QCheckBox>(Page(), "Check_TimeSchedule_UseCalendar")->isChecked());
    // Undo goes back to the profile that it speaks of.
    Page().UndoStack()->undo();
    EXPECT_EQ(Page().Chosen(), 1);
    EXPECT_EQ(Shown().m_TimeSchedule->m_UseCalendar, True16);
}

TEST_F(ProfilesPage, AnotherCalendarIsOpenedOnlyWhenTheChangedOneIsSavedOrGivenUp) {
    using eSave = cPrompts::eSave;
    const std::string empty(29220, '\0');
    std::string other = empty;
    other[0] = 9;
    Put("Calendar.cal", empty);
    Put("Other.cal", other);
    ShowTab(4);
    cCalendarEditor& editor = *Page().findChild<cCalendarEditor*>();
    cFileDocument& calendar = *Page().findChild<cFileDocument*>();
    for (const eSave answer : {eSave::Cancel, eSave::Save, eSave::Discard}) {
        const bool saved = answer == eSave::Save;
        Put("Calendar.cal", empty);
        ASSERT_TRUE(calendar.Open(Path("Calendar.cal")));
        MarkADay(editor);
        ASSERT_TRUE(calendar.IsDirty());
        m_Prompts.m_Texts = {"C:/App/Other.cal"};
        m_Prompts.m_SaveAnswers = {answer};
        Press(Page(), "Button_OpenCalendar");
        EXPECT_EQ(OnDisk("Calendar.cal") != empty, saved);
        EXPECT_EQ(calendar.IsDirty(), answer == eSave::Cancel);
        EXPECT_EQ(LabelOf(Page(), "Label_Calendar").ends_with("Other.cal"), answer != eSave::Cancel);
    }
}

TEST_F(ProfilesPage, AnotherCalendarIsAStepAndKeepsTheStepsOfBefore) {
    const std::string empty(29220, '\0');
    std::string other = empty;
    other[0] = 9;
    Put("Calendar.cal", empty);
    Put("Other.cal", other);
    Type(Page(), "Text_ProfileName", "Day");
    ShowTab(4);
    cCalendarEditor& editor = *Page().findChild<cCalendarEditor*>();
    MarkADay(editor);
    m_Prompts.m_Texts = {"C:/App/Other.cal"};
    m_Prompts.m_SaveAnswers = {cPrompts::eSave::Discard};
    Press(Page(), "Button_OpenCalendar");
    EXPECT_EQ(editor.Calendar().GetDayType(0), 9);
    EXPECT_EQ(Page().UndoStack()->undoText(), "opening \"Other.cal\"");
    Page().UndoStack()->undo();
    EXPECT_EQ(editor.Calendar().GetDayType(0), 0);
    EXPECT_TRUE(LabelOf(Page(), "Label_Calendar").ends_with("Calendar.cal"));
    // With the changes that had been given up, and for the file that they are of.
    EXPECT_TRUE(Page().findChild<cFileDocument*>()->IsDirty());
    ASSERT_TRUE(Page().Save());
    EXPECT_NE(OnDisk("Calendar.cal"), empty);
    EXPECT_EQ(OnDisk("Other.cal"), other);
    Page().UndoStack()->redo();
    EXPECT_TRUE(LabelOf(Page(), "Label_Calendar").ends_with("Other.cal"));
    EXPECT_FALSE(Page().IsDirty());
    for (int i = 0; i < 3; ++i) Page().UndoStack()->undo();
    EXPECT_EQ(TextOf(Page(), "Text_ProfileName"), "Night");
}

TEST_F(ProfilesPage, ACalendarUnderOtherHandsIsAskedFor) {
    const std::string empty(29220, '\0');
    std::string theirs = empty;
    theirs[0] = 9;
    Put("Calendar.cal", empty);
    ShowTab(4);
    cCalendarEditor& editor = *Page().findChild<cCalendarEditor*>();
    cFileDocument& calendar = *Page().findChild<cFileDocument*>();
    QString shown;
    QObject::connect(&Page(), &cEditorPage::BothWanted, [&](const QString& path) { shown = path; });
    MarkADay(editor);
    Put("Calendar.cal", theirs);
    m_Prompts.m_ConflictAnswers = {cPrompts::eConflict::Both, cPrompts::eConflict::Theirs};
    EXPECT_FALSE(Page().Save());
    EXPECT_EQ(shown, calendar.Path());
    EXPECT_TRUE(Page().IsDirty());
    EXPECT_FALSE(Page().Save());
    EXPECT_FALSE(Page().IsDirty());
    EXPECT_EQ(editor.Calendar().GetDayType(0), 9);
    Page().UndoStack()->undo();
    EXPECT_EQ(editor.Calendar().GetDayType(0), 0);
    EXPECT_TRUE(Page().IsDirty());
    m_Files.RemoveFile(Path("Calendar.cal"));
    m_Prompts.m_ConflictAnswers = {cPrompts::eConflict::Theirs};
    EXPECT_FALSE(Page().Save());
    EXPECT_FALSE(Page().IsDirty());
    EXPECT_EQ(LabelOf(Page(), "Label_Calendar"), "A new calendar");
    Page().UndoStack()->undo();
    EXPECT_TRUE(Page().IsDirty());
}

TEST_F(ProfilesPage, ACalendarThatOthersChangedIsReadAgain) {
    std::string theirs(29220, '\0');
    Put("Calendar.cal", theirs);
    cCalendarEditor& editor = *Page().findChild<cCalendarEditor*>();
    theirs[0] = 9;
    Put("Calendar.cal", theirs);
    Page().hide();
    Page().show();
    EXPECT_EQ(editor.Calendar().GetDayType(0), 9);
    EXPECT_FALSE(Page().IsDirty());
    for (int round = 0; round < 2; ++round) {
        Page().UndoStack()->undo();
        EXPECT_EQ(editor.Calendar().GetDayType(0), 0);
        EXPECT_FALSE(Page().Save());
        EXPECT_EQ(Asked().substr(0, 20), "mine, theirs, both: ");
        EXPECT_EQ(OnDisk("Calendar.cal"), theirs);
        Page().UndoStack()->redo();
        EXPECT_FALSE(Page().IsDirty());
        EXPECT_TRUE(Page().Save());
        EXPECT_EQ(Asked(), "");
    }
}

// The window's menu speaks of the profiles there.
TEST_F(ProfilesPage, TheCalendarBesideAProfileIsCopiedToTheNextYearByItsMenu) {
    Put("Calendar.cal", std::string(29220, '\0'));
    ShowTab(4);
    cCalendarEditor& editor = *Page().findChild<cCalendarEditor*>();
    MarkADay(editor);
    auto* view = Find<QWidget>(Page(), "Picture_Calendar");
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(50, 32), view->mapToGlobal(QPoint(50, 32)));
    QCoreApplication::sendEvent(view, &event);
    auto* menu = Find<QMenu>(Page(), "Menu_CalendarPopup");
    ASSERT_TRUE(menu->isVisible());
    menu->hide();
    Find<QAction>(Page(), "Menu_Calendar_CopyYear")->trigger();
    EXPECT_EQ(editor.Calendar().GetDayType(CalendarIndex(DateSerial(2027, 6, 1))), 8);
    EXPECT_EQ(Page().UndoStack()->undoText(), "copying a year");
}

TEST_F(ProfilesPage, UndoShowsTheScheduleWhoseDayTypeItGivesItsNameBack) {
    ShowTab(3);
    auto* list = Find<QListWidget>(Page(), "List_DayTypes");
    QApplication::setActiveWindow(&Page());
    list->setFocus();
    list->setCurrentRow(7);
    m_Prompts.m_Texts = {"Lucia"};
    Find<QAction>(Page(), "Menu_TimeSchedulePopup_Rename")->trigger();
    EXPECT_EQ(m_Services.m_DayTypeNames.Name(7), "Lucia");
    ShowTab(0);
    Page().UndoStack()->undo();
    EXPECT_EQ(m_Services.m_DayTypeNames.Name(7), "Special day type 1");
    EXPECT_EQ(Find<QTabWidget>(Page(), "Tabs_Profile")->currentIndex(), 3);
    EXPECT_FALSE(Page().IsDirty());
}

TEST_F(ProfilesPage, ADayIsAnsweredForWithItsReason) {
    Shown().m_TimeSchedule = std::make_unique<cTimeSchedule>();
    Shown().m_TimeSchedule->SetDefaultPeriod();
    Shown().m_TimeSchedule->m_UseCalendar = True16;
    std::string periods;
    Shown().m_TimeSchedule->ComposePeriodArray(periods);
    // Friday, 25 December 2026, is of the first special type.
    std::string calendar(29220, '\0');
    calendar[2 * 9855] = 8;
    Put("Calendar.cal", calendar);
    ASSERT_TRUE(Page().findChild<cFileDocument*>()->Open(Path("Calendar.cal")));
    Page().Choose(Page().Chosen());
    ShowTab(5);
    auto* date = Find<QDateEdit>(Page(), "Date_ActiveDay");
    auto* time = Find<QTimeEdit>(Page(), "Time_ActiveDay");
    time->setTime({10, 30});
    date->setDate({2026, 12, 24});
    EXPECT_EQ(LabelOf(Page(), "Label_ActiveDay_Answer"), "10:30: active until 16:00");
    EXPECT_EQ(LabelOf(Page(), "Label_ActiveDay_Reason"),
              "Day type: Thursday, by the weekday: the calendar says nothing of the date\n"
              "In a group with: Monday, Tuesday, Wednesday, Friday\nPeriods: 07:00-16:00");
    date->setDate({2026, 12, 25});
    EXPECT_EQ(LabelOf(Page(), "Label_ActiveDay_Reason"),
              "Day type: Friday, by the weekday: the calendar gives Special day type 1, which the schedule "
              "doesn't use\nIn a group with: Monday, Tuesday, Wednesday, Thursday\nPeriods: 07:00-16:00");
    Shown().m_TimeSchedule->SetActive(7, True16);
    Page().Choose(Page().Chosen());
    EXPECT_EQ(LabelOf(Page(), "Label_ActiveDay_Answer"), "10:30: not active until 24:00");
    EXPECT_EQ(LabelOf(Page(), "Label_ActiveDay_Reason"),
              "Day type: Special day type 1, by the calendar\nPeriods: none");
    Shown().m_UseTimeSchedule = False16;
    Shown().m_TimeSchedule->SetActive(5, False16);
    Page().Choose(Page().Chosen());
    date->setDate({2026, 12, 26});
    EXPECT_EQ(LabelOf(Page(), "Label_ActiveDay_Reason"),
              "Day type: Saturday, by the weekday: the calendar says nothing of the date\n"
              "The schedule doesn't use this day type: nothing is active.\n"
              "The profile doesn't use its schedule.");
    Press(Page(), "Button_ActiveDay_Now");
    EXPECT_EQ(date->date(), QDate(2026, 3, 15));
}

TEST_F(ProfilesPage, TheAnswerForADayFollowsTheTickAndTheCalendar) {
    ChooseMonday();
    const auto reason = [this] { return LabelOf(Page(), "Label_ActiveDay_Reason"); };
    Find<QDateEdit>(Page(), "Date_ActiveDay")->setDate({2026, 12, 25});
    auto* used = Find<QCheckBox>(Page(), "Check_UseTimeSchedule");
    ASSERT_TRUE(used->isChecked());
    Press(Page(), "Check_UseTimeSchedule");
    ShowTab(5);
    EXPECT_TRUE(reason().ends_with("\nThe profile doesn't use its schedule.")) << reason();
    ShowTab(3);
    Press(Page(), "Check_UseTimeSchedule");
    ShowTab(5);
    EXPECT_EQ(reason().find("use its schedule"), std::string::npos) << reason();
    // Another program has written the calendar; the window comes to the front again.
    std::string calendar(29220, '\0');
    Put("Calendar.cal", calendar);
    ASSERT_TRUE(Page().findChild<cFileDocument*>()->Open(Path("Calendar.cal")));
    calendar[2 * 9855] = 8;
    Put("Calendar.cal", calendar);
    QEvent activation(QEvent::ActivationChange);
    QCoreApplication::sendEvent(&Page(), &activation);
    EXPECT_TRUE(
        reason().starts_with("Day type: Friday, by the weekday: the calendar gives Special day type 1"))
        << reason();
}

TEST_F(ProfilesPage, TheAnswerForADaySaysThatThereIsNoCalendar) {
    ShowTab(5);
    Find<QDateEdit>(Page(), "Date_ActiveDay")->setDate({2026, 12, 24});
    const auto rule = [this] {
        const std::string reason = LabelOf(Page(), "Label_ActiveDay_Reason");
        return reason.substr(0, reason.find('\n'));
    };
    EXPECT_EQ(rule(), "Day type: Thursday, by the weekday: no calendar is open");
    // Days that were painted are a calendar, too.
    MarkADay(*Page().findChild<cCalendarEditor*>());
    EXPECT_EQ(rule(), "Day type: Thursday, by the weekday: the calendar says nothing of the date");
    Page().UndoStack()->undo();
    ShowTab(5);
    EXPECT_EQ(rule(), "Day type: Thursday, by the weekday: no calendar is open");
    Put("Calendar.cal", std::string(29220, '\0'));
    ASSERT_TRUE(Page().findChild<cFileDocument*>()->Open(Path("Calendar.cal")));
    EXPECT_EQ(rule(), "Day type: Thursday, by the weekday: the calendar says nothing of the date");
}

// Also when the application folder has another place by then, as one that was restored on another machine.
TEST_F(ProfilesPage, TheCalendarOfTheLastTimeComesBackByItsNameInTheApplicationFolder) {
    std::string site(29220, '\0');
    site[0] = 9;
    Put("Calendar.cal", std::string(29220, '\0'));
    Put("Site.cal", site);
    m_Prompts.m_Texts = {"C:/App/Site.cal"};
    Press(Page(), "Button_OpenCalendar");
    EXPECT_EQ(m_Ini.GetIniString("Profiles", "Calendar", "", "VigrelDefinitions.INI"), "Site.cal");
    Reopen();
    EXPECT_EQ(LabelOf(Page(), "Label_Calendar"), "C:/App/Site.cal");
    EXPECT_EQ(Page().findChild<cCalendarEditor*>()->Calendar().GetDayType(0), 9);
    // One of elsewhere by its path.
    m_Files.Put("/elsewhere/Other.cal", site);
    m_Prompts.m_Texts = {"/elsewhere/Other.cal"};
    Press(Page(), "Button_OpenCalendar");
    Reopen();
    EXPECT_EQ(LabelOf(Page(), "Label_Calendar"), "/elsewhere/Other.cal");
}

TEST_F(ProfilesPage, TheActiveHoursAreALineOfTheDay) {
    Shown().m_UseTimeSchedule = True16;
    Shown().m_TimeSchedule = std::make_unique<cTimeSchedule>();
    Shown().m_TimeSchedule->SetDefaultPeriod();
    Page().Choose(Page().Chosen());
    ShowTab(5);
    Find<QDateEdit>(Page(), "Date_ActiveDay")->setDate({2026, 3, 16});
    Find<QTimeEdit>(Page(), "Time_ActiveDay")->setTime({23, 0});
    auto* line = Find<QWidget>(Page(), "Picture_ActiveDay");
    EXPECT_GT(line->width(), 400);
    const QImage image = line->grab().toImage();
    const auto at = [&](int minute) {
        return image.pixelColor(image.width() * minute / 1440, image.height() * 3 / 4);
    };
    EXPECT_EQ(at(10 * 60 + 30), QColor(0, 150, 60));
    EXPECT_EQ(at(5 * 60 + 30), QColor(220, 220, 220));
    EXPECT_EQ(at(19 * 60 + 30), QColor(220, 220, 220));
}

TEST_F(ProfilesPage, TheLineOfTheDayTellsAssistiveToolsTheAnswer) {
    ShowTab(5);
    const auto* line = Find<QWidget>(Page(), "Picture_ActiveDay");
    EXPECT_EQ(line->accessibleName(), "The day's 24 hours");
    EXPECT_EQ(line->accessibleDescription().toStdString(),
              LabelOf(Page(), "Label_ActiveDay_Answer") + "\n" + LabelOf(Page(), "Label_ActiveDay_Reason"));
}

TEST_F(ProfilesPage, AVersion4FileIsToldAsBroughtUp) {
    PutSample("Profiles\\Profile_0012.dat", "profile_version_4.dat");
    // The profile and one of the receivers.
    EXPECT_EQ(LabelOf(Page(), "Label_Notes"), "Files brought up to a new version: 2.");
    EXPECT_EQ(OnDisk("Profiles\\Profile_0012.dat")[0], 5);
}

TEST_F(ProfilesPage, TheListShowsTheConditions) {
    EXPECT_EQ(Rows(Page()),
              "Night | Fire, *, \xC3\x96"
              "1 | 0012\n");
}

// Scrolling past a field changes nothing; where the keyboard is, the wheel turns it.
TEST_F(ProfilesPage, TheWheelTurnsOnlyTheFieldWithTheKeyboard) {
    QApplication::setActiveWindow(&Page());
    ShowTab(4);
    auto* number = Find<QSpinBox>(Page(), "Spin_Calendar_Year");
    const auto turn = [](QWidget* field) {
        const QPointF middle = field->rect().center();
        QWheelEvent down(middle, field->mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                         Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(field, &down);
    };
    const int value = number->value();
    turn(number);
    EXPECT_EQ(number->value(), value);
    EXPECT_FALSE(Page().IsDirty());
    EXPECT_FALSE(number->hasFocus());
    auto* country = Find<QComboBox>(Page(), "Combo_Calendar_Holidays");
    country->setCurrentIndex(1);
    turn(country);
    EXPECT_EQ(country->currentIndex(), 1);
    country->setFocus();
    turn(country);
    EXPECT_EQ(country->currentIndex(), 2);
    number->setFocus();
    turn(number);
    EXPECT_EQ(number->value(), value - 1);
}

// --- paper

TEST_F(ProfilesPage, TheWeekIsPrintedUnderTheNameOfTheProfile) {
    ASSERT_TRUE(Page().CanPrint());
    const auto printout = Page().Printout();
    ASSERT_TRUE(printout);
    EXPECT_EQ(printout->title, Find<QLineEdit>(Page(), "Text_ProfileName")->text());
    QImage sheet(1200, 800, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    {
        QPainter painter(&sheet);
        printout->paint(painter,
                        QRectF(QPointF(0, 0), printout->shape.scaled(1200, 800, Qt::KeepAspectRatio)));
    }
    // The bars of periods are green.
    int green = 0;
    for (int y = 0; y < sheet.height(); y += 2) {
        for (int x = 0; x < sheet.width(); x += 2) {
            const QColor colour = sheet.pixelColor(x, y);
            green += colour.green() > 120 && colour.red() < 80 && colour.blue() < 80;
        }
    }
    EXPECT_GT(green, 500);
}

// A printer has many dots to the inch, of which letters of so many points would take too many.
TEST_F(ProfilesPage, TheHoursOverAPrintedWeekHaveTheSizeOfTheScreen) {
    ShowTab(3);
    const auto printout = Page().Printout();
    QImage sheet(printout->shape.scaled(2400, 1600, Qt::KeepAspectRatio).toSize(), QImage::Format_RGB32);
    sheet.setDotsPerMeterX(47244);
    sheet.setDotsPerMeterY(47244);
    sheet.fill(Qt::white);
    {
        QPainter painter(&sheet);
        printout->paint(painter, sheet.rect());
    }
    const int height = static_cast<int>(Find<QWidget>(Page(), "Picture_TimeSchedule_Hours")->height() *
                                        sheet.height() / printout->shape.height());
    int dark = 0;
    for (int x = 0; x < sheet.width(); ++x) {
        for (int y = 0; y < height; ++y) dark += sheet.pixelColor(x, y).lightness() < 128;
    }
    EXPECT_GT(dark, 100);
    EXPECT_LT(dark, sheet.width() * height / 10);
}

TEST_F(ProfilesPage, TheCalendarIsPrintedWhileItShows) {
    ShowTab(4);
    const QString month = Find<QLabel>(Page(), "Text_Calendar_Month")->text();
    EXPECT_TRUE(Page().Printout()->title.endsWith(" - " + month));
    Find<QAbstractButton>(Page(), "Button_Calendar_ShowYear")->click();
    EXPECT_TRUE(Page().Printout()->title.endsWith(" - 2026"));
}

TEST_F(ProfilesPage, WithoutAProfileNothingIsPrinted) {
    m_Files.RemoveFile(Path("Profiles\\Profile_0012.dat"));
    EXPECT_FALSE(Page().CanPrint());
    EXPECT_FALSE(Page().Printout());
}

// --- room

TEST_F(ProfilesPage, TheTabAndTheSizesAreThoseOfTheLastTime) {
    ShowTab(3);
    auto* splitter = Find<QSplitter>(Page(), "Splitter_Page_Profiles");
    splitter->setSizes({300, 700});
    emit splitter->splitterMoved(300, 1);
    const QList<int> sizes = splitter->sizes();
    Reopen();
    EXPECT_EQ(Find<QTabWidget>(Page(), "Tabs_Profile")->currentIndex(), 3);
    EXPECT_EQ(Find<QSplitter>(Page(), "Splitter_Page_Profiles")->sizes(), sizes);
}

// As on a small screen at 200 %.
TEST_F(ProfilesPage, InASmallWindowEveryFieldIsReachedAndTheTabsStayInSight) {
    Page().resize(560, 320);
    auto* tabs = Find<QTabWidget>(Page(), "Tabs_Profile");
    ASSERT_EQ(tabs->count(), 8);
    for (int tab = 0; tab < tabs->count(); ++tab) {
        ShowTab(tab);
        QTest::qWait(1);
        EXPECT_EQ(tabs->tabBar()->visibleRegion().boundingRect(), tabs->tabBar()->rect()) << tab;
        auto* area = qobject_cast<QScrollArea*>(tabs->currentWidget());
        ASSERT_NE(area, nullptr) << tab;
        EXPECT_GE(area->widget()->height(), area->widget()->minimumSizeHint().height()) << tab;
        // The tab's layout settles in several rounds of events.
        EXPECT_TRUE(QTest::qWaitFor([area] { return HiddenFields(*area).empty(); }))
            << tab << ": " << HiddenFields(*area);
    }
}

}  // namespace
}  // namespace vigrel::testing
