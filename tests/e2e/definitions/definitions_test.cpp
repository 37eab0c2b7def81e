// The editor as an operator works with it.

#include <gtest/gtest.h>

#include <chrono>
#include <ctime>

#include "common/binary.h"
#include "e2e/definitions/editor_program.h"
#include "e2e/definitions/session_manager.h"
#include "e2e/windows/operator.h"
#include "schedule/schedule_builder.h"
#include "support/samples.h"

namespace vigrel::testing {
namespace {

// Monday to Friday 07:00 to 17:30 as a group, Saturday 09:00 to 13:00, Sunday the whole day.
std::string ExpectedSchedule() {
    cContent content;
    for (std::size_t day = 0; day < 5; ++day) content.Day(day, {{420, 1050}});
    content.Day(5, {{540, 780}}).Day(6, {{0, 1440}}).Grouped({0, 1, 2, 3, 4});
    for (int day = 0; day < 23; ++day)
        content.days[static_cast<std::size_t>(day)].axisIndex = std::min(day, 7);
    return content.Bytes();
}

class DefinitionsEditor : public ::testing::TestWithParam<int>, protected cEditorProgram {};

// At both sizes of the drawing.
TEST_P(DefinitionsEditor, AScheduleMadeByMouseIsSavedAndReadAgain) {
    Start(GetParam());
    Keys({"ctrl+n"});
    ASSERT_TRUE(HasTitle("Schedule 1 - Vigrel Definitions"));
    ASSERT_TRUE(FindAxis());
    Drag({At(1, 960), At(1, 1000), At(1, 1050)});
    ASSERT_TRUE(HasTitle("Schedule 1* - Vigrel Definitions"));
    Drag({At(5, 540), At(5, 600), At(5, 780)});
    RightClick(At(6, 600));
    Type("w");

    Keys({"ctrl+s"});
    ASSERT_TRUE(ChooseFile("Save as", Path("made")));
    ASSERT_TRUE(HasTitle("made.sch - Vigrel Definitions"));
    EXPECT_EQ(File("made.sch", ExpectedSchedule().size()), ExpectedSchedule());

    Keys({"ctrl+w"});
    ASSERT_TRUE(HasTitle("Vigrel Definitions"));
    Keys({"ctrl+o"});
    ASSERT_TRUE(ChooseFile("Open", Path("made.sch")));
    ASSERT_TRUE(HasTitle("made.sch - Vigrel Definitions"));
    Keys({"ctrl+shift+s"});
    ASSERT_TRUE(ChooseFile("Save as", Path("again.sch")));
    ASSERT_TRUE(HasTitle("again.sch - Vigrel Definitions"));
    EXPECT_EQ(File("again.sch", ExpectedSchedule().size()), ExpectedSchedule());
    Keys({"ctrl+q"});
    EXPECT_EQ(WaitForEnd(), 0);
}

// Tuesday to Thursday of the second week of the month after today's are special type 16.
std::string ExpectedCalendar() {
    using namespace std::chrono;
    const std::time_t now = system_clock::to_time_t(system_clock::now());
    const std::tm today = *std::localtime(&now);
    const year_month next = year{today.tm_year + 1900} / (today.tm_mon + 1) + months{1};
    const sys_days first = next / 1;
    const int monday = 7 - static_cast<int>(weekday(first).iso_encoding() - 1);
    const int index = static_cast<int>((first - sys_days(2000y / 1 / 1)).count()) + monday + 1;
    std::string bytes(29220, '\0');
    for (int day = index; day < index + 3; ++day) bytes[static_cast<std::size_t>(day) * 2] = 23;
    return bytes;
}

TEST_P(DefinitionsEditor, ACalendarPaintedByMouseIsSavedAndReadAgain) {
    Start(GetParam());
    Keys({"ctrl+shift+n"});
    ASSERT_TRUE(HasTitle("Calendar 1 - Vigrel Definitions"));
    Keys({"Next", "alt+t", "End"});
    ASSERT_TRUE(FindGrid());
    Drag({Cell(1, 1), Cell(2, 1), Cell(3, 1)});
    ASSERT_TRUE(HasTitle("Calendar 1* - Vigrel Definitions"));

    Keys({"ctrl+s"});
    ASSERT_TRUE(ChooseFile("Save as", Path("made")));
    ASSERT_TRUE(HasTitle("made.cal - Vigrel Definitions"));
    EXPECT_TRUE(File("made.cal", 29220) == ExpectedCalendar());

    Keys({"ctrl+w"});
    ASSERT_TRUE(HasTitle("Vigrel Definitions"));
    Keys({"ctrl+o"});
    ASSERT_TRUE(ChooseFile("Open", Path("made.cal")));
    ASSERT_TRUE(HasTitle("made.cal - Vigrel Definitions"));
    Keys({"ctrl+shift+s"});
    ASSERT_TRUE(ChooseFile("Save as", Path("again.cal")));
    ASSERT_TRUE(HasTitle("again.cal - Vigrel Definitions"));
    EXPECT_TRUE(File("again.cal", 29220) == ExpectedCalendar());
    Keys({"ctrl+q"});
    EXPECT_EQ(WaitForEnd(), 0);
}

INSTANTIATE_TEST_SUITE_P(Zoom, DefinitionsEditor, ::testing::Values(1, 2));

class DefinitionsFiles : public ::testing::Test, protected cEditorProgram {};

TEST_F(DefinitionsFiles, FilesOfTheCommandLineAreOpened) {
    Start(1, {SamplePath("calendar.dat"), SamplePath("schedule.dat")});
    EXPECT_TRUE(HasTitle("schedule.dat - Vigrel Definitions"));
    Keys({"ctrl+w"});
    EXPECT_TRUE(HasTitle("calendar.dat - Vigrel Definitions"));
    Keys({"ctrl+q"});
    EXPECT_EQ(WaitForEnd(), 0);
}

TEST_F(DefinitionsFiles, UnsavedChangesAreAskedForAtTheEnd) {
    Start(2, {SamplePath("schedule.dat")});
    ASSERT_TRUE(HasTitle("schedule.dat - Vigrel Definitions"));
    ASSERT_TRUE(FindAxis());
    Drag({At(6, 540), At(6, 600), At(6, 780)});
    ASSERT_TRUE(HasTitle("schedule.dat* - Vigrel Definitions"));
    Keys({"ctrl+q"});
    ASSERT_TRUE(EnterDialog("Vigrel Definitions"));
    Type("\x1B");
    EXPECT_TRUE(HasTitle("schedule.dat* - Vigrel Definitions"));
    Keys({"ctrl+z"});
    EXPECT_TRUE(HasTitle("schedule.dat - Vigrel Definitions"));
    Keys({"ctrl+q"});
    EXPECT_EQ(WaitForEnd(), 0);
}

// With a day of the schedule changed.
class EndOfTheSession : public ::testing::Test, protected cEditorProgram {
  protected:
    using eMessage = cSessionManager::eMessage;
    void StartChanged() {
        Start(2, {SamplePath("schedule.dat")});
        ASSERT_TRUE(FindAxis());
        Drag({At(6, 540), At(6, 600), At(6, 780)});
        ASSERT_TRUE(HasTitle("schedule.dat* - Vigrel Definitions"));
    }
    void EndUntilItIsAsked() {
        m_Session.EndSession();
        ASSERT_TRUE(m_Session.Await(eMessage::InteractRequest).has_value());
        m_Session.Send(eMessage::Interact);
        ASSERT_TRUE(EnterDialog("^Vigrel Definitions$"));
    }

    cSessionManager m_Session{Path("session")};
};

TEST_F(EndOfTheSession, WaitsForTheAnswerWhatBecomesOfChanges) {
    ASSERT_NO_FATAL_FAILURE(StartChanged());
    ASSERT_NO_FATAL_FAILURE(EndUntilItIsAsked());
    PressHere({"Tab", "Return"});  // Discard
    EXPECT_EQ(m_Session.Await(eMessage::InteractDone), false);
    EXPECT_EQ(m_Session.Await(eMessage::SaveYourselfDone), true);
    m_Session.Send(eMessage::Die);
    EXPECT_EQ(WaitForEnd(), 0);
}

TEST_F(EndOfTheSession, IsCalledOffByWhoGoesOnEditing) {
    ASSERT_NO_FATAL_FAILURE(StartChanged());
    ASSERT_NO_FATAL_FAILURE(EndUntilItIsAsked());
    Type("\x1B");
    EXPECT_EQ(m_Session.Await(eMessage::InteractDone), true);
    EXPECT_TRUE(m_Session.Await(eMessage::SaveYourselfDone).has_value());
    m_Session.Send(eMessage::ShutdownCancelled);
    Keys({"ctrl+z"});
    EXPECT_TRUE(HasTitle("schedule.dat - Vigrel Definitions"));
    Keys({"ctrl+q"});
    EXPECT_EQ(WaitForEnd(), 0);
}

class DefinitionsOfAStation : public ::testing::TestWithParam<int>, protected cEditorProgram {
  protected:
    void ShowPage(const std::string& keys, const std::string& title) {
        Keys({keys});
        ASSERT_TRUE(HasTitle(title + " - Vigrel Definitions"));
    }
    void SavePage(const std::string& title) {
        ASSERT_TRUE(HasTitle(title + "* - Vigrel Definitions"));
        Keys({"ctrl+s"});
        ASSERT_TRUE(HasTitle(title + " - Vigrel Definitions"));
    }
    // From the search field to the list: in a text field the keys delete a word.
    void DeleteChosen() {
        Keys({"ctrl+f", "Tab", "ctrl+Delete"});
        ASSERT_TRUE(EnterDialog("Vigrel Definitions"));
        Type("y");
    }
    void End() {
        Keys({"ctrl+q"});
        EXPECT_EQ(WaitForEnd(), 0);
    }
};

// A saved receiver without the moment of its save: its identity is in the name of its file.
std::string ReceiverBytes(const std::string& fileName, const std::string& name, const std::string& numbers) {
    cBinaryWriter file;
    file.Int16(5);
    file.Int16(static_cast<std::int16_t>(std::stoi(fileName.substr(9, 4))));
    file.Int16(-1);
    file.Int16(1);  // the printer
    file.String(name);
    for (int setting = 0; setting < 4; ++setting) file.Int16(0);
    file.Zeros(10);
    file.String(numbers);
    return file.Bytes();
}

TEST_P(DefinitionsOfAStation, AReceiverIsMadeSavedReopenedChangedAndDeleted) {
    Put("ReceiverTypes.txt", "1; PRINTER; Printer\n");
    StartScaled(GetParam());
    ShowPage("ctrl+r", "Receivers");
    Keys({"ctrl+Insert"});
    Type("Duty");
    Keys({"alt+t"});
    Type("Printer");
    Keys({"alt+p"});
    Type("12;13");
    SavePage("Receivers");
    const std::string name = OnlyFileIn("Receivers");
    ASSERT_TRUE(name.starts_with("Receiver_")) << name;
    EXPECT_TRUE(Bytes("Receivers/" + name).starts_with(ReceiverBytes(name, "Duty", "12;13")));

    Keys({"ctrl+w"});
    ASSERT_TRUE(HasTitle("Vigrel Definitions"));
    ShowPage("ctrl+r", "Receivers");
    Keys({"alt+m", "ctrl+a"});
    Type("Night");
    SavePage("Receivers");
    EXPECT_EQ(OnlyFileIn("Receivers"), name);
    EXPECT_TRUE(Bytes("Receivers/" + name).starts_with(ReceiverBytes(name, "Night", "12;13")));

    DeleteChosen();
    EXPECT_TRUE(BecomesEmpty("Receivers"));
    End();
}

class EditorsLanguage : public ::testing::Test, protected cEditorProgram {};

// Where the off duty behaviour stands behind a name of five characters and otherwise empty texts.
constexpr std::size_t kOffDuty = 187;

TEST_P(DefinitionsOfAStation, AProfileIsMadeSavedReopenedChangedAndDeleted) {
    StartScaled(GetParam());
    ShowPage("ctrl+p", "Profiles");
    Keys({"ctrl+Insert"});
    Type("Night");
    Keys({"alt+o", "ctrl+a"});
    Type("258");
    SavePage("Profiles");
    const std::string name = OnlyFileIn("Profiles");
    ASSERT_TRUE(name.starts_with("Profile_")) << name;
    const std::string made = Bytes("Profiles/" + name);
    EXPECT_TRUE(made.starts_with(std::string("\5\0\0\0\xFF\xFF\5\0Night", 13))) << name;
    EXPECT_EQ(made.substr(kOffDuty, 2), "\2\1");

    Keys({"ctrl+w"});
    ASSERT_TRUE(HasTitle("Vigrel Definitions"));
    ShowPage("ctrl+p", "Profiles");
    Keys({"alt+a"});
    SavePage("Profiles");
    EXPECT_EQ(OnlyFileIn("Profiles"), name);
    const std::string changed = Bytes("Profiles/" + name);
    EXPECT_TRUE(changed.starts_with(std::string("\5\0\0\0\0\0\5\0Night", 13)));
    EXPECT_EQ(changed.substr(kOffDuty, 2), "\2\1");
    EXPECT_EQ(changed.size(), made.size());

    DeleteChosen();
    EXPECT_TRUE(BecomesEmpty("Profiles"));
    End();
}

TEST_F(EditorsLanguage, IsThatOfTheStation) {
    Put("VigrelReceiver.INI", "[General]\r\nLanguage=358\r\n");
    Start(1);
    ASSERT_TRUE(HasTitle("Vigrel-m\u00e4\u00e4ritykset"));
    Keys({"ctrl+n"});
    ASSERT_TRUE(HasTitle("Aikaohjelma 1 - Vigrel-m\u00e4\u00e4ritykset"));
    Keys({"ctrl+q"});
    EXPECT_EQ(WaitForEnd(), 0);
}

INSTANTIATE_TEST_SUITE_P(Scale, DefinitionsOfAStation, ::testing::Values(1, 2));

}  // namespace
}  // namespace vigrel::testing
