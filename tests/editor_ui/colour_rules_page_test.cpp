#include "editor_ui/colours/colour_rules_page.h"

#include <QAction>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QStyle>
#include <QTabWidget>
#include <QTableWidget>
#include <QUndoStack>
#include <map>
#include <set>

#include "common/dates.h"
#include "editor_ui/page_fixture.h"
#include "events/vigrel_reciever_alarm.h"

namespace vigrel::testing {
namespace {

const char* const kContent = "# rules\r\nP* | 5;7-9 | * | 255,255,255 | 10,20,30 | 15\r\n";

class ColourRulesPage : public PageTest {
  protected:
    cColourRulesPage& Page() {
        if (!m_Page) {
            m_Page = std::make_unique<cColourRulesPage>(m_Services);
            EXPECT_TRUE(m_Page->Open(Path("ColourRules.txt")));
            m_Page->resize(900, 500);
            m_Page->show();
        }
        return *m_Page;
    }
    QTableWidget& Rules() { return *Find<QTableWidget>(Page(), "List_Rules"); }
    QTableWidget& Preview() { return *Find<QTableWidget>(Page(), "List_Preview"); }
    QColor Background(int row, int column) { return Preview().item(row, column)->background().color(); }

    std::unique_ptr<cColourRulesPage> m_Page;
};

TEST_F(ColourRulesPage, TheCaptionsOfThePreviewAreSeenWhole) {
    QHeaderView& header = *Preview().horizontalHeader();
    for (int column = 0; column < header.count(); ++column) {
        const QString caption = Preview().horizontalHeaderItem(column)->text();
        EXPECT_GE(header.sectionSize(column), header.fontMetrics().horizontalAdvance(caption))
            << caption.toStdString();
    }
}

// White is seen on a light ground, black on a dark one, and either as it is while its row is chosen.
TEST_F(ColourRulesPage, TheSampleOfAColourHasABorder) {
    Put("ColourRules.txt", "* | * | * | 255,255,255 | 0,0,0 | 0\r\n");
    const std::map<int, QColor> colours{{3, Qt::white}, {4, Qt::black}};
    for (const auto& [column, colour] : colours) {
        for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Selected}) {
            const QImage sample = Rules().item(0, column)->icon().pixmap(16, mode).toImage();
            ASSERT_EQ(sample.size(), QSize(16, 16));
            EXPECT_EQ(sample.pixelColor(8, 8), colour) << column << " " << mode;
            for (const QPoint edge : {QPoint(0, 0), QPoint(15, 15), QPoint(8, 0), QPoint(0, 8)}) {
                EXPECT_EQ(sample.pixelColor(edge), QColor(128, 128, 128)) << column << " " << mode;
            }
        }
    }
}

TEST_F(ColourRulesPage, TheLongestColourIsSeenWholeBesideItsSample) {
    Put("ColourRules.txt", "* | * | * | 255,255,255 | 255,255,255 | 0\r\n");
    QFont large = Rules().font();
    large.setPixelSize(24);
    Rules().setFont(large);
    QTest::qWait(1);
    const QFontMetrics metrics = Rules().fontMetrics();
    // The sample is as wide as an icon.
    const int wanted =
        metrics.horizontalAdvance("255,255,255") + Rules().style()->pixelMetric(QStyle::PM_SmallIconSize);
    EXPECT_GE(Rules().columnWidth(3), wanted);
    EXPECT_GE(Rules().columnWidth(4), wanted);
}

TEST_F(ColourRulesPage, ARuleIsAddedEditedSavedReopenedAndDeleted) {
    Press(Page(), "Button_Add");
    Rules().item(0, 0)->setText("P*");
    Rules().item(0, 1)->setText("5;7-9");
    Rules().item(0, 3)->setText("255,255,255");
    Rules().item(0, 4)->setText("10,20,30");
    EXPECT_TRUE(Page().IsDirty());
    EXPECT_TRUE(Page().Save());
    EXPECT_EQ(OnDisk("ColourRules.txt"), "P* | 5;7-9 | * | 255,255,255 | 10,20,30 | 15\r\n");
    m_Page.reset();
    ASSERT_EQ(Rules().rowCount(), 1);
    EXPECT_EQ(Rules().item(0, 1)->text().toStdString(), "5;7-9");
    Press(Page(), "Button_Remove");
    EXPECT_TRUE(Page().Save());
    EXPECT_EQ(OnDisk("ColourRules.txt"), "");
}

TEST_F(ColourRulesPage, TypedTagsShowTheColoursOfTheFirstRuleThatMatches) {
    Put("ColourRules.txt", kContent);
    auto* tags = Find<QPlainTextEdit>(Page(), "Text_Preview_Tags");
    tags->setFocus();
    QTest::keyClicks(tags, "Pump");
    QTest::keyClick(tags, Qt::Key_Return);
    QTest::keyClicks(tags, "Fan");
    EXPECT_EQ(Preview().rowCount(), 2);
    EXPECT_EQ(Preview().item(0, 1)->text().toStdString(), "none");
    Find<QSpinBox>(Page(), "Number_Preview_Category")->setValue(8);
    EXPECT_EQ(Preview().item(0, 1)->text().toStdString(), "1");
    EXPECT_EQ(Background(0, 2), QColor(10, 20, 30));
    EXPECT_EQ(Background(0, 3), QColor(0, 5, 15));
    EXPECT_EQ(Background(0, 4), QColor(0, 0, 0));
    EXPECT_EQ(Preview().item(0, 2)->foreground().color(), QColor(255, 255, 255));
    EXPECT_EQ(Preview().item(1, 1)->text().toStdString(), "none");
    Rules().item(0, 0)->setText("F*");
    EXPECT_EQ(Preview().item(1, 1)->text().toStdString(), "1");
    EXPECT_EQ(Preview().item(0, 1)->text().toStdString(), "none");
}

TEST_F(ColourRulesPage, RulesThatAreHardToReadAreNamedWithTheirLeastContrast) {
    Put("ColourRules.txt", kContent);
    auto* label = Find<QLabel>(Page(), "Label_HardToRead");
    EXPECT_FALSE(label->isVisible());
    // Grey on white is hard to read only where the ground is darker: flashing.
    Press(Page(), "Button_Add");
    Rules().item(1, 3)->setText("110,110,110");
    EXPECT_TRUE(label->isVisible());
    EXPECT_EQ(label->text().toStdString(),
              "Hard to read, by rule and least contrast (4.5 is readable): 2 (3.0)");
    Rules().item(0, 3)->setText("10,20,30");
    EXPECT_EQ(label->text().toStdString(),
              "Hard to read, by rule and least contrast (4.5 is readable): 1 (1.0), 2 (3.0)");
    Rules().item(0, 3)->setText("255,255,255");
    Rules().item(1, 3)->setText("0,0,0");
    EXPECT_FALSE(label->isVisible());
}

TEST_F(ColourRulesPage, ContrastIsANumberAndAReadableColourOneClickAway) {
    Put("ColourRules.txt",
        "P* | * | * | 255,255,255 | 10,20,30 | 15\r\nA* | * | * | 120,120,120 | 255,255,255 | 0\r\n"
        "B* | * | * | 250,250,0 | 255,255,255 | 0\r\n");
    EXPECT_EQ(Rules().item(0, 6)->text().toStdString(), "18.5");
    EXPECT_EQ(Rules().item(1, 6)->text().toStdString(), "3.0");
    EXPECT_TRUE(Rules().item(0, 6)->icon().isNull());
    EXPECT_FALSE(Rules().item(1, 6)->icon().isNull());
    EXPECT_FALSE(Rules().item(1, 6)->flags() & Qt::ItemIsEditable);
    Press(Page(), "Button_Readable");
    EXPECT_EQ(Rules().item(0, 3)->text().toStdString(), "255,255,255");
    EXPECT_EQ(Rules().item(1, 3)->text().toStdString(), "94,94,94");
    EXPECT_EQ(Rules().item(1, 6)->text().toStdString(), "4.5");
    EXPECT_EQ(Rules().item(2, 6)->text().toStdString(), "4.5");
    EXPECT_FALSE(Find<QLabel>(Page(), "Label_HardToRead")->isVisible());
    EXPECT_FALSE(Find<QWidget>(Page(), "Button_Readable")->isVisible());
    EXPECT_EQ(Page().UndoStack()->count(), 1);
    Page().UndoStack()->undo();
    EXPECT_EQ(Rules().item(1, 3)->text().toStdString(), "120,120,120");
    EXPECT_EQ(Rules().item(2, 3)->text().toStdString(), "250,250,0");
    EXPECT_FALSE(Page().IsDirty());
}

// --- the station's own alarms

class ColourRulesOfAlarms : public ColourRulesPage {
  protected:
    // An alarm that came at an hour of 2026-03-15, in its file.
    void PutAlarm(int number, int hour, const char* tag, const char* category) {
        cVigrelRecieverAlarm alarm(m_Clock, kNoCategorySetting);
        alarm.m_CreatedTime = DateSerial(2026, 3, 15) + TimeSerial(hour, 0, 0);
        alarm.m_Alarm.m_Status = 1;
        alarm.m_Alarm.SetCondition(0, "Pump stopped");
        alarm.m_Alarm.SetCondition(1, tag);
        alarm.m_Alarm.SetCondition(2, category);
        cBinaryWriter file;
        alarm.WriteToDisk(file);
        Put("Alarms\\A000000" + std::to_string(number) + ".alm", file.Bytes());
    }
    QTableWidget& Alarms() { return *Find<QTableWidget>(Page(), "List_Preview_Alarms"); }
    std::string Rule(int row) { return Alarms().item(row, 0)->text().toStdString(); }
    QColor Ground(int row) { return Alarms().item(row, 3)->background().color(); }
};

TEST_F(ColourRulesOfAlarms, TheNewestComesFirstInTheColoursOfItsRule) {
    PutAlarm(1, 8, "PU1", "5");
    PutAlarm(2, 9, "PU2", "Fire");
    PutAlarm(3, 10, "FA1", "5");
    Put("Alarms\\A0000004.alm", "damaged");
    Put("ColourRules.txt",
        "PU* | 5 | * | 255,255,255 | 10,20,30 | 15\r\nFA* | 5 | * | 0,0,0 | 200,0,0 | 15\r\n");
    EXPECT_EQ(Find<QTabWidget>(Page(), "Tabs_Preview")->currentIndex(), 0);
    ASSERT_EQ(Alarms().rowCount(), 3);
    EXPECT_EQ(Alarms().item(0, 1)->text().toStdString(), "2026-03-15 10:00:00");
    // No rule is for texts such as "Pump stopped"; the tag is t1.
    EXPECT_EQ(Rule(0) + Rule(1) + Rule(2), "nonenonenone");
    Find<QComboBox>(Page(), "Combo_Preview_Tag")->setCurrentIndex(1);
    EXPECT_EQ(Rule(0) + Rule(1) + Rule(2), "2none1");
    EXPECT_EQ(Ground(0), QColor(200, 0, 0));
    EXPECT_EQ(Ground(2), QColor(10, 20, 30));
    EXPECT_EQ(Alarms().item(2, 3)->foreground().color(), QColor(255, 255, 255));
    // The category to try is that of alarms whose own is no number; every other row is darker.
    Find<QSpinBox>(Page(), "Number_Preview_Category")->setValue(5);
    EXPECT_EQ(Rule(1), "1");
    EXPECT_EQ(Ground(1), QColor(0, 5, 15));
    EXPECT_EQ(LabelOf(Page(), "Label_Preview_Alarms"), "3 of 4");
    // The next time the tag is the same text.
    m_Page.reset();
    EXPECT_EQ(Rule(0), "2");
}

TEST_F(ColourRulesOfAlarms, ACategoryOfMoreThanFourDigitsIsNoNumber) {
    PutAlarm(1, 8, "PU1", "0005");
    PutAlarm(2, 9, "PU2", "00005");
    PutAlarm(3, 10, "PU3", "");
    Put("ColourRules.txt", "* | 5 | * | 0,0,0 | 200,0,0 | 15\r\n* | 7 | * | 0,0,0 | 0,200,0 | 15\r\n");
    Find<QSpinBox>(Page(), "Number_Preview_Category")->setValue(7);
    EXPECT_EQ(Rule(0) + Rule(1) + Rule(2), "221");
}

// The numbers of the files are drawn at random.
TEST_F(ColourRulesOfAlarms, OfVeryManyTheNewestAreShown) {
    PutAlarm(1, 1, "old", "5");
    const std::string old = OnDisk("Alarms\\A0000001.alm");
    for (int i = 1000; i < 3100; ++i) Put("Alarms\\A000" + std::to_string(i) + ".alm", old);
    PutAlarm(9, 9, "new", "5");
    m_Files.RenameFile(Path("Alarms\\A0000009.alm"), Path("Alarms\\A9999999.alm"));
    EXPECT_EQ(LabelOf(Page(), "Label_Preview_Alarms"), "200 of 2102");
    EXPECT_EQ(Alarms().item(0, 1)->text().toStdString(), "2026-03-15 09:00:00");
}

TEST_F(ColourRulesOfAlarms, AreReadAgainWhenThePageIsSeenAgain) {
    const auto comeBack = [this] {
        Page().hide();
        Page().show();
    };
    Put("ColourRules.txt", "* | * | * | 0,0,0 | 200,0,0 | 15\r\n");
    PutAlarm(1, 8, "PU1", "5");
    PutAlarm(2, 9, "PU2", "5");
    ASSERT_EQ(Alarms().rowCount(), 2);
    // One has come, one has gone, one is another.
    PutAlarm(3, 10, "PU3", "5");
    m_Files.RemoveFile(Path("Alarms\\A0000001.alm"));
    PutAlarm(2, 11, "PU4", "5");
    comeBack();
    ASSERT_EQ(Alarms().rowCount(), 2);
    EXPECT_EQ(Alarms().item(0, 3)->text(), "PU4");
    EXPECT_EQ(Alarms().item(1, 3)->text(), "PU3");
    EXPECT_EQ(Ground(0), QColor(200, 0, 0));
    EXPECT_EQ(LabelOf(Page(), "Label_Preview_Alarms"), "2 of 2");
    EXPECT_FALSE(Page().IsDirty());
    // Without news no file is read.
    for (const int number : {2, 3})
        m_Files.SetUnreadable(Path("Alarms\\A000000" + std::to_string(number) + ".alm"), true);
    comeBack();
    EXPECT_EQ(Alarms().rowCount(), 2);
}

TEST_F(ColourRulesOfAlarms, AreShownAsRulesAreEdited) {
    PutAlarm(1, 8, "PU1", "5");
    Press(Page(), "Button_Add");
    EXPECT_EQ(Rule(0), "1");
    EXPECT_EQ(Ground(0), QColor(255, 255, 255));
    Rules().item(0, 4)->setText("255,255,0");
    EXPECT_EQ(Ground(0), QColor(255, 255, 0));
    Rules().item(0, 1)->setText("6");
    EXPECT_EQ(Rule(0), "none");
}

TEST_F(ColourRulesOfAlarms, AStationWithoutAnySaysSo) {
    EXPECT_EQ(Find<QTabWidget>(Page(), "Tabs_Preview")->currentIndex(), 1);
    EXPECT_EQ(LabelOf(Page(), "Label_Preview_Alarms"), "The station has no alarms yet.");
    EXPECT_EQ(Alarms().rowCount(), 0);
}

TEST_F(ColourRulesPage, EachHeadTellsWhatItsColumnTakes) {
    std::set<QString> tips;
    for (int column = 0; column < Rules().columnCount(); ++column) {
        tips.insert(Rules().horizontalHeaderItem(column)->toolTip());
    }
    EXPECT_EQ(tips.size(), 7u);
    EXPECT_FALSE(tips.contains(QString()));
    EXPECT_TRUE(Rules().horizontalHeaderItem(0)->toolTip().startsWith("A pattern"));
}

TEST_F(ColourRulesPage, AWrongFieldStaysAsTypedAndStandsInTheWayOfSaving) {
    Put("ColourRules.txt", kContent);
    Rules().item(0, 1)->setText("300");
    EXPECT_EQ(LabelOf(Page(), "Label_CellProblem"),
              "Row 1, Categories: categories: \"300\" is not a number from 0 to 255");
    EXPECT_EQ(Rules().item(0, 1)->text(), "300");
    EXPECT_FALSE(Rules().item(0, 1)->icon().isNull());
    EXPECT_EQ(Rules().item(0, 1)->toolTip(), "categories: \"300\" is not a number from 0 to 255");
    EXPECT_TRUE(Page().IsDirty());
    EXPECT_FALSE(Page().Save());
    EXPECT_EQ(
        Asked(),
        "failure: ColourRules.txt can't be saved.\n\nRow 1, Categories: categories: \"300\" is not a number "
        "from 0 to 255\n");
    // The cell is open, with what was typed.
    auto* field = qobject_cast<QLineEdit*>(Page().focusWidget());
    ASSERT_NE(field, nullptr);
    EXPECT_EQ(field->text(), "300");
    field->selectAll();
    QTest::keyClicks(field, "30");
    QTest::keyClick(field, Qt::Key_Return);
    // The table takes the text over with the next events.
    QCoreApplication::processEvents();
    EXPECT_FALSE(Find<QLabel>(Page(), "Label_CellProblem")->isVisible());
    EXPECT_TRUE(Rules().item(0, 1)->icon().isNull());
    EXPECT_TRUE(Page().Save());
    EXPECT_EQ(OnDisk("ColourRules.txt"), "# rules\r\nP* | 30 | * | 255,255,255 | 10,20,30 | 15\r\n");
    EXPECT_EQ(Asked(), "");
}

// It goes with its rule, and undo takes back and gives again what was typed.
TEST_F(ColourRulesPage, AWrongFieldGoesWithItsRule) {
    Put("ColourRules.txt", "A | 1 | 1 | 0,0,0 | 1,1,1 | 0\r\nB | 2 | 2 | 0,0,0 | 1,1,1 | 0\r\n");
    Rules().item(0, 5)->setText("dark");
    Rules().item(0, 4)->setText("red");
    Rules().setCurrentCell(0, 0);
    Press(Page(), "Button_Down");
    EXPECT_EQ(Rules().item(1, 5)->text(), "dark");
    EXPECT_EQ(Rules().item(1, 4)->text(), "red");
    EXPECT_EQ(Rules().item(0, 5)->text(), "0");
    Rules().setCurrentCell(0, 0);
    Press(Page(), "Button_Add");
    EXPECT_EQ(Rules().item(2, 5)->text(), "dark");
    Press(Page(), "Button_Remove");
    EXPECT_EQ(Rules().item(1, 5)->text(), "dark");
    Rules().item(1, 4)->setText("2,2,2");
    EXPECT_EQ(Rules().item(1, 5)->text(), "dark");
    QUndoStack& steps = *Page().UndoStack();
    while (steps.canUndo()) steps.undo();
    EXPECT_FALSE(Page().IsDirty());
    EXPECT_EQ(Rules().item(0, 5)->text(), "0");
    EXPECT_FALSE(Find<QLabel>(Page(), "Label_CellProblem")->isVisible());
    while (steps.canRedo()) steps.redo();
    EXPECT_EQ(Rules().item(1, 5)->text(), "dark");
    EXPECT_FALSE(Page().Save());
}

TEST_F(ColourRulesPage, UndoShowsTheRuleThatItChanges) {
    std::string content;
    for (int i = 0; i < 100; ++i) content += std::to_string(i) + " | 1 | 1 | 0,0,0 | 1,1,1 | 0\r\n";
    Put("ColourRules.txt", content);
    Rules().item(90, 1)->setText("7");
    Rules().setCurrentCell(0, 0);
    EXPECT_FALSE(Rules().visualItemRect(Rules().item(90, 1)).intersects(Rules().viewport()->rect()));
    Page().UndoStack()->undo();
    EXPECT_EQ(Rules().currentRow(), 90);
    EXPECT_EQ(Rules().currentColumn(), 1);
    EXPECT_TRUE(Rules().visualItemRect(Rules().item(90, 1)).intersects(Rules().viewport()->rect()));
    Rules().setCurrentCell(50, 0);
    Press(Page(), "Button_Remove");
    Rules().setCurrentCell(0, 0);
    Page().UndoStack()->undo();
    EXPECT_EQ(Rules().currentRow(), 50);
}

TEST_F(ColourRulesPage, RulesAreMovedAndStepsUndone) {
    Put("ColourRules.txt", "A | 1 | 1 | 0,0,0 | 1,1,1 | 0\r\nB | 2 | 2 | 0,0,0 | 1,1,1 | 0\r\n");
    Rules().setCurrentCell(0, 0);
    Press(Page(), "Button_Down");
    EXPECT_EQ(Rules().item(0, 0)->text().toStdString(), "B");
    EXPECT_EQ(Rules().currentRow(), 1);
    Press(Page(), "Button_Up");
    Press(Page(), "Button_Remove");
    EXPECT_EQ(Rules().rowCount(), 1);
    Page().UndoStack()->undo();
    EXPECT_EQ(Rules().item(0, 0)->text().toStdString(), "A");
    EXPECT_EQ(Rules().item(1, 0)->text().toStdString(), "B");
}

// A key of the menu doesn't leave the cell.
TEST_F(ColourRulesPage, ACellThatIsStillOpenIsSavedWithTheRest) {
    Put("ColourRules.txt", kContent);
    Rules().setCurrentCell(0, 5);
    Rules().setFocus();
    QTest::keyClick(&Rules(), Qt::Key_F2);
    QTest::keyClicks(Page().focusWidget(), "20");
    ASSERT_FALSE(Page().IsDirty());
    Page().FinishInput();
    EXPECT_TRUE(Page().IsDirty());
    EXPECT_TRUE(Page().Save());
    EXPECT_EQ(OnDisk("ColourRules.txt"), "# rules\r\nP* | 5;7-9 | * | 255,255,255 | 10,20,30 | 20\r\n");
    // The keyboard goes on in the table, where nothing is left open.
    EXPECT_EQ(Page().focusWidget(), &Rules());
    Page().FinishInput();
    EXPECT_EQ(Page().UndoStack()->count(), 1);
}

TEST_F(ColourRulesPage, LinesThatWereNotUnderstoodAreToldAndStayInTheFile) {
    const std::string content = std::string(kContent) + "nonsense\r\n";
    Put("ColourRules.txt", content);
    EXPECT_EQ(Find<QLabel>(Page(), "Label_Problems")->text().toStdString(),
              "Some lines were not understood. They stay in the file:\nColourRules.txt, line 3: a rule has "
              "six fields "
              "(tag | categories | areas | text colour | background | fade), this line has 1");
    Rules().item(0, 5)->setText("16");
    EXPECT_TRUE(Page().Save());
    EXPECT_EQ(OnDisk("ColourRules.txt"),
              "# rules\r\nP* | 5;7-9 | * | 255,255,255 | 10,20,30 | 16\r\nnonsense\r\n");
}

TEST_F(ColourRulesPage, WhatACrashLeftOfASaveGoesWhenTheFileIsOpened) {
    const std::string target = "C:\\Shared\\rules";
    for (const char* name : {"ColourRules.txt", "ColourRules.txt.$~", "Other.txt.$~"}) Put(name, kContent);
    for (const std::string& left : {target + ".$~", target + "2.$~"}) m_Files.Put(left, "half");
    Page();
    EXPECT_EQ(m_Files.ListFiles("C:\\App\\", "*.$~"), std::vector<std::string>{"Other.txt.$~"});
    EXPECT_EQ(m_Files.ListFiles("C:\\Shared\\", "*.$~").size(), 2u);
    m_Files.m_Links[Path("ColourRules.txt")] = target;
    EXPECT_TRUE(Page().Open(Path("ColourRules.txt")));
    EXPECT_EQ(m_Files.ListFiles("C:\\Shared\\", "*.$~"), std::vector<std::string>{"rules2.$~"});
}

TEST_F(ColourRulesPage, AFileThatCantBeReadIsNotOpened) {
    Put("ColourRules.txt", kContent);
    m_Files.SetUnreadable(Path("ColourRules.txt"), true);
    cColourRulesPage page(m_Services);
    EXPECT_FALSE(page.Open(Path("ColourRules.txt")));
    EXPECT_NE(Asked(), "");
}

}  // namespace
}  // namespace vigrel::testing
