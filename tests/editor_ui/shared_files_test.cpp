// Files of schedules, calendars and colour rules that other programs change, remove or make meanwhile.

#include <QFileInfo>
#include <QListWidget>
#include <QStatusBar>
#include <functional>

#include "common/binary.h"
#include "editor_ui/editor_bench.h"
#include "schedule/calendar_days.h"
#include "support/samples.h"

namespace vigrel::testing {
namespace {

using eConflict = cPrompts::eConflict;

constexpr const char* kChanged = "mine, theirs, both: %1\n";
constexpr const char* kRemoved = "mine, theirs: %1\n";

// The bytes of a calendar that gives one day a type.
std::string CalendarOf(std::int32_t day, std::int16_t value) {
    cBinaryWriter file;
    for (std::int32_t i = 0; i < kCalendarDays; ++i) file.Int16(i == day ? value : std::int16_t{0});
    return file.Bytes();
}

// The bytes of the sample but for its last field.
std::string ScheduleThatUsesNoCalendar() {
    const std::string sample = Sample("schedule.dat");
    return sample.substr(0, sample.size() - 2) + std::string(2, '\0');
}

struct cSharedFile {
    const char* name;
    const char* title;
    std::string first, theirs;
    std::function<void(cEditorBench&, cEditorPage&)> change;
};

const cSharedFile kFiles[] = {
    {"schedule", "a.sch", Sample("schedule.dat"), ScheduleThatUsesNoCalendar(),
     [](cEditorBench&, cEditorPage& page) {
         QWidget& view = cEditorBench::Find<QWidget>(page, "Picture_TimeSchedule");
         cEditorBench::Drag(view, {cEditorBench::At(6, 600), cEditorBench::At(6, 700)});
     }},
    {"calendar", "a.cal", CalendarOf(0, 8), CalendarOf(1, 9),
     [](cEditorBench&, cEditorPage& page) {
         cEditorBench::Find<QListWidget>(page, "List_Calendar_DayType").setCurrentRow(3);
         cEditorBench::Drag(cEditorBench::Find<QWidget>(page, "Picture_Calendar"), {{170, 60}, {210, 60}});
     }},
    {"colours", "ColourRules.txt", "A* | * | * | 0,0,0 | 255,255,255 | 15\r\n",
     "B* | * | * | 0,0,0 | 255,255,0 | 15\r\n",
     [](cEditorBench& bench, cEditorPage& page) { bench.Choose(page, "Action_Add"); }},
    {"holidays", "OwnHolidays.txt", "12-24 | Eve\r\n", "12-31 | Eve\r\n",
     [](cEditorBench& bench, cEditorPage& page) { bench.Choose(page, "Action_Add"); }},
};

class SharedFile : public ::testing::TestWithParam<cSharedFile>, protected cEditorBench {
  protected:
    SharedFile() {
        m_Files.Put(Path(), GetParam().first);
        EXPECT_TRUE(m_Window->OpenFile(QString::fromStdString(Path())));
    }
    static std::string Path() { return std::string("/app/") + GetParam().title; }
    cEditorPage& Page() { return *m_Window->CurrentPage(); }
    void Change() {
        GetParam().change(*this, Page());
        EXPECT_TRUE(Page().IsDirty());
    }
    // By another program.
    void WriteTheirs() { m_Files.WriteFile(Path(), GetParam().theirs, false); }
    std::string OnDisk() { return m_Files.ReadFile(Path()); }
    QString Asked() { return std::exchange(m_Prompts.m_Asked, {}); }
    static QString Of(const char* question) { return QString(question).arg(GetParam().title); }
    void ComeBack() {
        m_Window->hide();
        m_Window->show();
    }
    void ExpectAskedBeforeTheirsIsReplaced() {
        Asked();
        EXPECT_TRUE(Page().IsDirty());
        EXPECT_FALSE(Page().Save());
        EXPECT_EQ(Asked(), Of(kChanged));
        EXPECT_EQ(OnDisk(), GetParam().theirs);
    }
    void ExpectSavedUnasked(const std::string& content) {
        EXPECT_TRUE(Page().Save());
        EXPECT_EQ(Asked(), "");
        EXPECT_EQ(OnDisk(), content);
    }
};

TEST_P(SharedFile, ThatOthersChangedIsNotReplacedUnasked) {
    Change();
    WriteTheirs();
    EXPECT_FALSE(Page().Save());
    EXPECT_EQ(Asked(), Of(kChanged));
    EXPECT_EQ(OnDisk(), GetParam().theirs);
    EXPECT_TRUE(Page().IsDirty());
    m_Prompts.m_ConflictAnswers = {eConflict::Mine};
    EXPECT_TRUE(Page().Save());
    EXPECT_NE(OnDisk(), GetParam().theirs);
    EXPECT_FALSE(Page().IsDirty());
    // What was written here is no change by others.
    Choose(*m_Window, "Menu_Undo");
    Asked();
    EXPECT_TRUE(Page().Save());
    EXPECT_EQ(Asked(), "");
    EXPECT_EQ(OnDisk(), GetParam().first);
}

TEST_P(SharedFile, ThatOthersWriteInTheMomentOfASaveIsNotReplacedUnasked) {
    Change();
    bool isWritten = false;
    // The file has its name when the folder is synced.
    m_Files.m_OnCall = [&](std::string_view operation, std::string_view) {
        if (operation == "sync" && !std::exchange(isWritten, true)) WriteTheirs();
    };
    EXPECT_TRUE(Page().Save());
    m_Files.m_OnCall = nullptr;
    EXPECT_EQ(OnDisk(), GetParam().theirs);
    Choose(*m_Window, "Menu_Undo");
    ExpectAskedBeforeTheirsIsReplaced();
}

// A copy that is put back, a second editor that saves what it has read: nothing is lost, nothing is asked.
TEST_P(SharedFile, ThatOthersWroteAsItWasIsNoNews) {
    m_Files.WriteFile(Path(), GetParam().first, false);
    ComeBack();
    EXPECT_EQ(Page().UndoStack()->count(), 0);
    EXPECT_EQ(m_Window->statusBar()->currentMessage().toStdString(), "");
    Change();
    m_Files.WriteFile(Path(), GetParam().first, false);
    EXPECT_TRUE(Page().Save());
    EXPECT_EQ(Asked(), "");
    EXPECT_NE(OnDisk(), GetParam().first);
}

TEST_P(SharedFile, ThatOthersChangedCanTakeThePlaceOfMineAndBeUndone) {
    Change();
    WriteTheirs();
    m_Prompts.m_ConflictAnswers = {eConflict::Theirs};
    EXPECT_FALSE(Page().Save());
    EXPECT_FALSE(Page().IsDirty());
    EXPECT_TRUE(Page().Save());
    EXPECT_EQ(OnDisk(), GetParam().theirs);
    Choose(*m_Window, "Menu_Undo");
    EXPECT_TRUE(Page().IsDirty());
    Choose(*m_Window, "Menu_Undo");
    ExpectAskedBeforeTheirsIsReplaced();
    m_Prompts.m_ConflictAnswers = {eConflict::Mine};
    EXPECT_TRUE(Page().Save());
    EXPECT_EQ(OnDisk(), GetParam().first);
}

TEST_P(SharedFile, ThatOthersChangedIsShownBesideMine) {
    Change();
    WriteTheirs();
    m_Prompts.m_ConflictAnswers = {eConflict::Both};
    EXPECT_FALSE(Page().Save());
    ASSERT_EQ(m_Window->Pages().size(), 2);
    EXPECT_TRUE(m_Window->Pages()[0]->IsDirty());
    EXPECT_EQ(m_Window->Pages()[1], &Page());
    EXPECT_EQ(Page().Title(), QFileInfo(GetParam().title).completeBaseName() + " 2");
    EXPECT_EQ(Page().Path(), "");
    EXPECT_TRUE(Page().IsDirty());
    m_Prompts.m_Texts = {"/app/theirs"};
    EXPECT_TRUE(Page().Save());
    EXPECT_EQ(m_Files.ReadFile("/app/theirs"), GetParam().theirs);
}

TEST_P(SharedFile, ThatIsGoneIsNotBroughtBackUnasked) {
    Change();
    m_Files.RemoveFile(Path());
    EXPECT_FALSE(Page().Save());
    EXPECT_EQ(Asked(), Of(kRemoved));
    EXPECT_FALSE(m_Files.FileExists(Path()));
    m_Prompts.m_ConflictAnswers = {eConflict::Mine};
    EXPECT_TRUE(Page().Save());
    EXPECT_TRUE(m_Files.FileExists(Path()));
}

TEST_P(SharedFile, ThatIsGoneCanBeLetGo) {
    Change();
    m_Files.RemoveFile(Path());
    m_Prompts.m_ConflictAnswers = {eConflict::Theirs};
    EXPECT_FALSE(Page().Save());
    EXPECT_TRUE(m_Window->Pages().empty());
    EXPECT_FALSE(m_Files.FileExists(Path()));
}

TEST_P(SharedFile, ThatIsTakenInTheLastMomentLetsTheWindowClose) {
    Change();
    WriteTheirs();
    m_Prompts.m_SaveAnswers = {cPrompts::eSave::Save};
    m_Prompts.m_ConflictAnswers = {eConflict::Theirs};
    EXPECT_TRUE(m_Window->close());
    EXPECT_EQ(OnDisk(), GetParam().theirs);
}

TEST_P(SharedFile, ThatIsLetGoInTheLastMomentLetsTheWindowClose) {
    Change();
    m_Files.RemoveFile(Path());
    m_Prompts.m_SaveAnswers = {cPrompts::eSave::Save};
    m_Prompts.m_ConflictAnswers = {eConflict::Theirs};
    EXPECT_TRUE(m_Window->close());
    EXPECT_FALSE(m_Files.FileExists(Path()));
}

TEST_P(SharedFile, IsReadAgainWhenThePageIsSeenAgain) {
    WriteTheirs();
    ComeBack();
    EXPECT_FALSE(Page().IsDirty());
    ExpectSavedUnasked(GetParam().theirs);
}

TEST_P(SharedFile, ThatWasTakenUpIsNotReplacedUnaskedByWhatUndoBringsBack) {
    WriteTheirs();
    ComeBack();
    for (int round = 0; round < 2; ++round) {
        Choose(*m_Window, "Menu_Undo");
        ExpectAskedBeforeTheirsIsReplaced();
        Choose(*m_Window, "Menu_Redo");
        EXPECT_FALSE(Page().IsDirty());
        ExpectSavedUnasked(GetParam().theirs);
    }
    Choose(*m_Window, "Menu_Undo");
    m_Prompts.m_ConflictAnswers = {eConflict::Mine};
    EXPECT_TRUE(Page().Save());
    EXPECT_EQ(OnDisk(), GetParam().first);
    Asked();
    // That is decided now: both are the user's own.
    Choose(*m_Window, "Menu_Redo");
    ExpectSavedUnasked(GetParam().theirs);
    Choose(*m_Window, "Menu_Undo");
    ExpectSavedUnasked(GetParam().first);
}

TEST_P(SharedFile, ThatWasTakenUpStaysWithTheStepsMadeOnIt) {
    WriteTheirs();
    ComeBack();
    Change();
    EXPECT_TRUE(Page().Save());
    Choose(*m_Window, "Menu_Undo");
    ExpectSavedUnasked(GetParam().theirs);
    Choose(*m_Window, "Menu_Undo");
    ExpectAskedBeforeTheirsIsReplaced();
    m_Prompts.m_ConflictAnswers = {eConflict::Theirs};
    EXPECT_FALSE(Page().Save());
    EXPECT_FALSE(Page().IsDirty());
    Asked();
    ExpectSavedUnasked(GetParam().theirs);
    Choose(*m_Window, "Menu_Undo");
    ExpectAskedBeforeTheirsIsReplaced();
}

TEST_P(SharedFile, ThatOthersSetBackIsAskedForByWhatItHolds) {
    WriteTheirs();
    ComeBack();
    m_Files.WriteFile(Path(), GetParam().first, false);
    ComeBack();
    Choose(*m_Window, "Menu_Undo");
    EXPECT_FALSE(Page().Save());
    EXPECT_EQ(Asked(), Of(kChanged));
    // The content of the first opening, which the file has again.
    Choose(*m_Window, "Menu_Undo");
    EXPECT_FALSE(Page().IsDirty());
    ExpectSavedUnasked(GetParam().first);
}

TEST_P(SharedFile, OfAnotherNameHasNothingOfOthers) {
    WriteTheirs();
    ComeBack();
    m_Prompts.m_Texts = {"/app/mine"};
    EXPECT_TRUE(Page().SaveAs());
    Asked();
    Choose(*m_Window, "Menu_Undo");
    EXPECT_TRUE(Page().Save());
    EXPECT_EQ(Asked(), "");
    EXPECT_EQ(m_Files.ReadFile("/app/mine"), GetParam().first);
    EXPECT_EQ(OnDisk(), GetParam().theirs);
}

TEST_P(SharedFile, WithChangesOfMineStaysAsItIsWhenThePageIsSeenAgain) {
    Change();
    WriteTheirs();
    ComeBack();
    EXPECT_TRUE(Page().IsDirty());
    Choose(*m_Window, "Menu_Undo");
    m_Prompts.m_ConflictAnswers = {eConflict::Mine};
    EXPECT_TRUE(Page().Save());
    EXPECT_EQ(OnDisk(), GetParam().first);
}

TEST_P(SharedFile, ThatCantBeReadAnyMoreIsToldOnceAndStays) {
    m_Files.WriteFile(Path(), GetParam().theirs, false);
    m_Files.SetUnreadable(Path(), true);
    ComeBack();
    EXPECT_TRUE(Asked().startsWith("failure: ")) << GetParam().name;
    ComeBack();
    EXPECT_EQ(Asked(), "");
    // With all that it held.
    m_Prompts.m_Texts = {"/app/kept"};
    EXPECT_TRUE(Page().SaveAs());
    EXPECT_EQ(m_Files.ReadFile("/app/kept"), GetParam().first);
    Change();
}

// Neither loses what the other has saved.
TEST_P(SharedFile, OfTwoEditorsLosesNothing) {
    cDefinitionsWindow other(m_Services);
    other.show();
    ASSERT_TRUE(other.OpenFile(QString::fromStdString(Path())));
    Change();
    GetParam().change(*this, *other.CurrentPage());
    EXPECT_TRUE(Page().Save());
    const std::string saved = OnDisk();
    EXPECT_FALSE(other.CurrentPage()->Save());
    EXPECT_EQ(Asked(), Of(kChanged));
    EXPECT_EQ(OnDisk(), saved);
}

INSTANTIATE_TEST_SUITE_P(Of, SharedFile, ::testing::ValuesIn(kFiles),
                         [](const auto& file) { return std::string(file.param.name); });

}  // namespace
}  // namespace vigrel::testing
