// Where things stand on the pages: fields, entries and tabs in the order in which they are used, and the key
// Tab goes through them in that order.

#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QToolButton>
#include <algorithm>
#include <vector>

#include "editor_ui/editor_bench.h"
#include "editor_ui/editor_pages.h"
#include "support/qt_wait.h"

namespace vigrel::testing {
namespace {

// What the key Tab reaches in a part of the window, by name.
std::vector<QWidget*> Reached(const QWidget& part) {
    std::vector<QWidget*> reached;
    QWidget* const window = part.window();
    QWidget* each = window;
    while ((each = each->nextInFocusChain()) != window) {
        const bool isField = (each->focusPolicy() & Qt::TabFocus) != 0 && each->focusProxy() == nullptr;
        if (isField && part.isAncestorOf(each) && each->isVisible() && each->isEnabled() &&
            !each->objectName().startsWith("qt_") && !each->objectName().isEmpty())
            reached.push_back(each);
    }
    return reached;
}

std::string Names(const std::vector<QWidget*>& widgets) {
    QStringList names;
    for (const QWidget* each : widgets) names += each->objectName();
    return names.join(' ').toStdString();
}

// Line by line, and from the left in each.
std::vector<QWidget*> AsRead(const QWidget& part) {
    std::vector<QWidget*> widgets = Reached(part);
    const auto place = [&](const QWidget* each) { return each->mapTo(&part, each->rect().center()); };
    std::sort(widgets.begin(), widgets.end(),
              [&](const auto* a, const auto* b) { return place(a).y() < place(b).y(); });
    for (auto line = widgets.begin(); line != widgets.end();) {
        const auto end = std::find_if(
            line, widgets.end(), [&](const QWidget* each) { return place(each).y() > place(*line).y() + 5; });
        std::sort(line, end, [&](const auto* a, const auto* b) { return place(a).x() < place(b).x(); });
        line = end;
    }
    return widgets;
}

class ReadingOrder : public ::testing::Test {
  protected:
    ReadingOrder() { Window().resize(1200, 900); }
    cDefinitionsWindow& Window() { return m_Pages.Window(); }
    template <class T>
    T& Find(const char* name) {
        return cEditorBench::Find<T>(Window(), name);
    }
    // The fields of a part as they stand, where the key Tab takes them in the same order.
    std::string FieldsOf(const char* part) {
        QCoreApplication::processEvents();
        const auto& widget = Find<QWidget>(part);
        EXPECT_EQ(Names(testing::Reached(widget)), Names(AsRead(widget))) << part;
        return Names(AsRead(widget));
    }
    // In the order of the key Tab alone, where columns stand beside each other.
    std::string Reached(const char* part) {
        QCoreApplication::processEvents();
        return Names(testing::Reached(Find<QWidget>(part)));
    }
    QTabWidget& ProfileTabs() {
        Window().ShowProfiles();
        return Find<QTabWidget>("Tabs_Profile");
    }
    std::string TabOfProfile(int tab) {
        QTabWidget& tabs = ProfileTabs();
        tabs.setCurrentIndex(tab);
        tabs.currentWidget()->setObjectName("TheTab");
        std::string fields = FieldsOf("TheTab");
        tabs.currentWidget()->setObjectName({});
        return fields;
    }
    void CloseAll() {
        while (!Window().Pages().isEmpty()) m_Pages.Bench().Choose(Window(), "Menu_Close");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    std::string Menu(const char* title) {
        for (const QAction* menu : Window().menuBar()->actions()) {
            if (menu->text().remove('&') != title) continue;
            QStringList entries;
            for (const QAction* entry : menu->menu()->actions()) entries += entry->text().remove('&');
            return entries.join('|').toStdString();
        }
        return "no menu";
    }

    cEditorPages m_Pages{std::make_unique<QTranslator>()};
};

TEST_F(ReadingOrder, OfTheStartPage) {
    EXPECT_EQ(Names(AsRead(*Window().centralWidget())),
              "Button_NewSchedule Button_NewCalendar Button_Open Button_Receivers Button_Profiles "
              "Button_ColourRules Button_OwnHolidays");
    // The eye rests above the middle: half as much room is above as below.
    const QRect page = Window().centralWidget()->rect();
    const QWidget& last = Find<QWidget>("Button_OwnHolidays");
    const QList<QLabel*> labels = Window().centralWidget()->findChildren<QLabel*>();
    ASSERT_EQ(labels.size(), 1);
    const int below = page.bottom() - last.mapTo(Window().centralWidget(), last.rect().bottomLeft()).y();
    const int above = labels[0]->mapTo(Window().centralWidget(), QPoint(0, 0)).y();
    EXPECT_NEAR(2 * above, below, 20);
    // Those of the station stand apart.
    const auto gap = [&](const char* upper, const char* lower) {
        return Find<QWidget>(lower).y() - Find<QWidget>(upper).geometry().bottom();
    };
    EXPECT_EQ(gap("Button_Open", "Button_Receivers") - gap("Button_NewCalendar", "Button_Open"), 12);
}

TEST_F(ReadingOrder, OfTheMenus) {
    m_Pages.Bench().NewSchedule();
    EXPECT_EQ(Menu("File"),
              "New schedule|New calendar|Open...|Open recent||Save|Save as...|Print...|Save as PDF...|Close||"
              "Exit");
    EXPECT_EQ(Menu("View"), "As large as the window|100 %|150 %|200 %|300 %||Next page|Previous page");
    EXPECT_EQ(Menu("Station"), "Receivers|Profiles|Colour rules|Own holidays");
    EXPECT_EQ(Menu("Help"), "About");
    EXPECT_EQ(
        Menu("Edit"),
        "Undo|Redo||Copy the day|Paste into the day|Delete the period||Whole day|Invert the day||Grouped|"
        "Monday to Friday grouped||Rename the day type...|Image of the day type");
    m_Pages.Bench().NewCalendar();
    EXPECT_EQ(
        Menu("Edit"),
        "Undo|Redo||Give the year's holidays the chosen day type|Give all years' holidays the chosen day "
        "type||Copy the year to the next|Clear the year");
}

TEST_F(ReadingOrder, OfAProfile) {
    QTabWidget& tabs = ProfileTabs();
    QStringList captions;
    for (int tab = 0; tab < tabs.count(); ++tab) captions += tabs.tabText(tab);
    EXPECT_EQ(captions.join('|'),
              "General|Conditions|Receivers|Schedule|Calendar|Active when?|External|Systems");
    EXPECT_EQ(TabOfProfile(0),
              "Text_ProfileName Check_Enabled Check_State_0 Check_State_1 Check_State_2 Text_OffDuty");
    EXPECT_EQ(TabOfProfile(1),
              "Text_Condition_0 Text_Condition_1 Text_Condition_2 Text_Condition_3 Text_Condition_4 "
              "Text_Condition_5");
    EXPECT_EQ(TabOfProfile(5), "Date_ActiveDay Time_ActiveDay Button_ActiveDay_Now");
    EXPECT_EQ(TabOfProfile(6),
              "Check_UseExternalTag Text_ExternalTagName Check_IgnoreExternalTag Check_UseExternalFile "
              "Text_ExternalFileName Text_ExternalFileText");
    std::string systems = "Check_ScanSpecificSystems";
    for (int i = 0; i < 64; ++i) systems += " Check_System_" + std::to_string(i);
    EXPECT_EQ(TabOfProfile(7), systems + " Button_Systems_All Button_Systems_None");
}

TEST_F(ReadingOrder, OfTheReceiversOfAProfile) {
    ProfileTabs().setCurrentIndex(2);
    QCoreApplication::processEvents();
    // What can be done with the chosen one stands beside its list, from the top.
    const QWidget& buttons = *Find<QWidget>("Button_Parallel_Add").parentWidget();
    EXPECT_LT(Find<QWidget>("List_Parallel").geometry().right(), buttons.x());
    EXPECT_EQ(Find<QWidget>("Button_Parallel_Add").y(), 0);
    EXPECT_LT(Find<QWidget>("Button_Parallel_Down").geometry().bottom(), buttons.height() / 2 + 20);
    EXPECT_EQ(Reached("Tabs_Profile"),
              "List_Parallel Button_Parallel_Add Button_Parallel_Remove Button_Parallel_Down List_Sequential "
              "Button_Sequential_Add Button_Sequential_Remove");
}

TEST_F(ReadingOrder, OfAReceiver) {
    Window().ShowReceivers();
    EXPECT_EQ(
        FieldsOf("Form_Receiver"),
        "Text_ReceiverName Check_Enabled Combo_ReceiverType Text_Setting_0 Text_Setting_1 Text_Setting_2 "
        "Text_Setting_3 Text_ParallellNumbers");
    // The list comes before the form beside it.
    EXPECT_TRUE(Reached("Page_Receivers")
                    .starts_with("Text_Search List_Definitions Button_New Button_Copy Button_Delete "
                                 "Text_ReceiverName "));
}

TEST_F(ReadingOrder, OfAScheduleAndACalendar) {
    cSchedulePage& schedule = m_Pages.Bench().NewSchedule();
    QTest::keyClick(&Find<QWidget>("Picture_TimeSchedule"), Qt::Key_Down);
    ASSERT_NE(schedule.Schedule().SelectedPeriod(), nullptr);
    EXPECT_EQ(Reached("Editor_Schedule"),
              "Picture_TimeSchedule Text_Schedule_Period_Start Text_Schedule_Period_Stop "
              "Check_TimeSchedule_ViewDayType Check_TimeSchedule_UseCalendar List_DayTypes");
    m_Pages.Bench().NewCalendar();
    EXPECT_EQ(FieldsOf("Editor_Calendar"),
              "Button_Calendar_Previous Button_Calendar_Next Combo_Calendar_Month Spin_Calendar_Year "
              "Button_Calendar_Today Button_Calendar_ShowYear Picture_Calendar List_Calendar_DayType "
              "Combo_Calendar_Holidays Combo_Calendar_TimeSchedule");
}

TEST_F(ReadingOrder, OfTheListsOfTheStation) {
    Window().ShowColourRules();
    EXPECT_EQ(Reached("Editor_ColourRules"),
              "List_Rules Button_Add Button_Remove Number_Preview_Category Number_Preview_Area "
              "Text_Preview_Tags Button_Readable");
    Window().ShowOwnHolidays();
    EXPECT_EQ(FieldsOf("Editor_OwnHolidays"), "List_OwnHolidays Button_Add Button_Remove");
}

TEST_F(ReadingOrder, OfAPageWithoutDefinitions) {
    m_Pages.Bench().m_Files.RemoveFile("/app/Receivers/Receiver_0007.dat");
    Window().ShowReceivers();
    QCoreApplication::processEvents();
    const QWidget& text = Find<QWidget>("Label_NoDefinitions");
    const QWidget& first = Find<QWidget>("Button_First");
    EXPECT_LT(text.geometry().bottom(), first.y());
    EXPECT_NEAR(2 * text.y(), first.parentWidget()->height() - first.geometry().bottom(), 60);
    EXPECT_NEAR(first.geometry().center().x(), first.parentWidget()->rect().center().x(), 1);
}

// --- room

// Parts of a page stand flush with each other: what holds them adds no margin of its own.
TEST_F(ReadingOrder, StandsFlushInThePagesParts) {
    const auto margins = [this](const std::vector<const char*>& inside) {
        for (const char* name : inside) {
            const QWidget* holder = &Find<QWidget>(name);
            while (holder->layout() == nullptr) holder = holder->parentWidget();
            EXPECT_TRUE(holder->layout()->contentsMargins().isNull()) << name;
        }
    };
    Window().ShowReceivers();
    margins({"List_Definitions", "Button_New", "Text_Setting_0"});
    ProfileTabs();
    margins({"Tabs_Profile", "Editor_Schedule", "List_Parallel", "Button_Parallel_Add", "Editor_Calendar",
             "Check_System_0"});
    CloseAll();
    m_Pages.Bench().NewSchedule();
    margins({"Page_Schedule", "Picture_TimeSchedule_Frame"});
    CloseAll();
    m_Pages.Bench().NewCalendar();
    margins({"Page_Calendar", "Picture_Calendar"});
    Window().ShowColourRules();
    margins({"Page_ColourRules", "List_Rules", "Button_Add", "Preview_Colours", "Label_HardToRead"});
}

// --- tips

// What a field takes and a button does, where the text beside it doesn't tell.
TEST_F(ReadingOrder, HasTips) {
    const auto tips = [](const QWidget& part) {
        QStringList found;
        for (const QWidget* each : AsRead(part)) {
            const auto* button = qobject_cast<const QToolButton*>(each);
            const bool isOfEntry = button != nullptr && button->defaultAction() != nullptr;
            if (!each->toolTip().isEmpty() && !isOfEntry)
                found += each->objectName() + ": " + each->toolTip();
        }
        return found.join('\n').toStdString();
    };
    cSchedulePage& schedule = m_Pages.Bench().NewSchedule();
    QTest::keyClick(&Find<QWidget>("Picture_TimeSchedule"), Qt::Key_Down);
    EXPECT_EQ(tips(schedule),
              "Text_Schedule_Period_Start: A time of day, such as 8, 0830 or 16:30\n"
              "Text_Schedule_Period_Stop: A time of day, such as 8, 0830 or 16:30\n"
              "Check_TimeSchedule_UseCalendar: Rows for the day types that a calendar gives to dates");
    EXPECT_EQ(tips(m_Pages.Bench().NewCalendar()),
              "Button_Calendar_Previous: Previous month (Page Up)\n"
              "Button_Calendar_Next: Next month (Page Down)\n"
              "Button_Calendar_Today: The month of today (Home)\n"
              "Button_Calendar_ShowYear: The whole year on one page");
    Window().ShowColourRules();
    EXPECT_EQ(Find<QAction>("Action_Readable").toolTip(),
              "Gives the text of these rules the nearest colour that can be read");
    EXPECT_EQ(Find<QPlainTextEdit>("Text_Preview_Tags").placeholderText(), "Tags to try, one a line");
    Window().ShowReceivers();
    EXPECT_EQ(Find<QLineEdit>("Text_Search").placeholderText(), "Search (Ctrl+F)");
    QStringList entries;
    for (const char* name : {"New", "Copy", "Delete", "Save", "Revert", "Find"})
        entries += Find<QAction>((std::string("Action_") + name).c_str()).toolTip();
    EXPECT_EQ(entries.join('\n').toStdString(),
              "Make a new one (Ctrl+Ins)\nMake a copy of the chosen one (Ctrl+Shift+D)\n"
              "Delete the chosen one (Ctrl+Del)\nSave the chosen one; Ctrl+S saves all\n"
              "Give up the changes of the chosen one\nSearch in the list (Ctrl+F)");
}

}  // namespace
}  // namespace vigrel::testing
