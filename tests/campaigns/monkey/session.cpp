#include "campaigns/monkey/session.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QMenu>
#include <QPointer>
#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <utility>

#include "campaigns/monkey/others.h"
#include "editor_ui/drawing/drawing_view.h"
#include "editor_ui/pages/content_editor.h"
#include "support/samples.h"

namespace vigrel::campaign {
namespace {

using testing::Sample;

constexpr const char* kTexts[] = {"North", "", "Ärende ö", "a.sch", "12", "&Name"};

bool IsDefinition(const std::string& path) {
    return path.find("Receiver_") != std::string::npos || path.find("Profile_") != std::string::npos;
}

template <class Folder>
void SaveAll(Folder& folder) {
    for (std::size_t i = 0; i < folder.Count(); ++i) {
        if (!folder.Save(i)) throw std::runtime_error("a definition can't be saved");
    }
}

}  // namespace

cSession::cSession(const std::string& page, std::uint32_t seed, cFigures& figures)
    : m_Random(seed), m_Figures(figures), m_PageName(page) {
    PutFiles();
    m_Bench.m_Window->resize(1100, 700);
    // Half of them with drawings of the window's size.
    if (seed % 2 == 0) m_Bench.Choose(*m_Bench.m_Window, "Menu_Zoom_Fit");
    OpenPage();
    m_Bench.m_Window->activateWindow();
    m_Closer.callOnTimeout([this] { CloseBoxes(); });
    m_Closer.start(0);
    Settle();
}

void cSession::PutFiles() {
    testing::cFakeFiles& files = m_Bench.m_Files;
    files.Put("/app/a.sch", Sample("schedule.dat"));
    files.Put("/app/Calendar.cal", std::string(2 * kCalendarDays, '\0'));
    files.Put("/app/OwnHolidays.txt",
              "# ours\r\n 12-24 | Eve\r\nnonsense\r\n2026-07-06..2026-07-31 | Works\r\n");
    files.Put("/app/ColourRules.txt", "A* | * | * | 0,0,0 | 255,255,255 | 15\r\nnonsense\r\n");
    for (const char* name : {"Receiver_0007", "Receiver_0008", "Receiver_0100"}) {
        files.Put(std::string("/app/Receivers/") + name + ".dat", Sample("receiver_version_5.dat"));
    }
    files.Put("/app/Profiles/Profile_0012.dat", Sample("profile_version_5.dat"));
    files.Put("/app/Profiles/Profile_0013.dat", Sample("profile_version_5.dat"));
    files.Put("/app/ReceiverTypes.txt", "2;PRINTER;Printer\n9;XRT;Radio;Radio.INI\n");
    files.Put("/app/Radio.INI",
              "[ReceiverTypeSettings]\r\nSetting0=A\r\nSetting0Type=Integer16\r\nSetting1=B\r\n"
              "Setting1Type=Currency\r\nSetting2=C\r\nSetting3=D\r\nSetting3Type=YesNo\r\n");
}

void cSession::OpenPage() {
    const std::string& page = m_PageName;
    cDefinitionsWindow& window = *m_Bench.m_Window;
    if (page == "schedule") {
        window.OpenFile("/app/a.sch");
    } else if (page == "calendar") {
        window.OpenFile("/app/Calendar.cal");
    } else if (page == "colours") {
        window.ShowColourRules();
    } else if (page == "holidays") {
        window.ShowOwnHolidays();
    } else if (page == "receivers") {
        window.ShowReceivers();
    } else if (page == "profiles") {
        window.ShowProfiles();
    }
    m_Page = window.CurrentPage();
    if (m_Page == nullptr) throw std::runtime_error("there is no page " + page);
}

// Every question is answered with yes: a step that is refused ends the others.
void cSession::Act() {
    m_Bench.m_Prompts.m_YesNoAnswers.assign(20, true);
    m_Bench.m_Prompts.m_Texts.assign(1, QString(kTexts[Below(std::size(kTexts))]));
    const int choice = Below(100);
    if (choice < 45) {
        Press();
    } else if (choice < 85) {
        TypeKey();
    } else {
        ChooseEntry();
    }
    Settle();
}

void cSession::Press() {
    std::vector<QWidget*> widgets;
    for (QWidget* widget : m_Page->findChildren<QWidget*>()) {
        if (widget->isVisible() && widget->isEnabled() && !widget->visibleRegion().isEmpty())
            widgets.push_back(widget);
    }
    if (widgets.empty()) return;
    // The drawings are few and what the pages are about.
    std::vector<QWidget*> drawings;
    std::copy_if(widgets.begin(), widgets.end(), std::back_inserter(drawings),
                 [](const QWidget* each) { return qobject_cast<const cDrawingView*>(each) != nullptr; });
    const QPointer<QWidget> widget = AnyOf(!drawings.empty() && Below(3) == 0 ? drawings : widgets);
    const Qt::MouseButton button = Below(5) == 0 ? Qt::RightButton : Qt::LeftButton;
    QPointF place(Below(widget->width()), Below(widget->height()));
    const auto send = [&](QEvent::Type type, Qt::MouseButton changed, Qt::MouseButtons held) {
        if (!widget) return;
        QMouseEvent event(type, place, widget->mapToGlobal(place), changed, held, Qt::NoModifier);
        QCoreApplication::sendEvent(widget, &event);
    };
    ++m_Figures.presses;
    if (widget->focusPolicy() & Qt::ClickFocus) widget->setFocus(Qt::MouseFocusReason);
    send(QEvent::MouseButtonPress, button, button);
    for (int moves = Below(4); moves > 0 && widget; --moves) {
        place = QPointF(Below(widget->width()), Below(widget->height()));
        send(QEvent::MouseMove, Qt::NoButton, button);
        // A key or an entry in the middle of a drag.
        if (Below(20) == 0) m_Page->UndoStack()->undo();
    }
    send(QEvent::MouseButtonRelease, button, Qt::NoButton);
    if (button == Qt::RightButton && widget) {
        QContextMenuEvent menu(QContextMenuEvent::Mouse, place.toPoint(),
                               widget->mapToGlobal(place.toPoint()));
        QCoreApplication::sendEvent(widget, &menu);
    }
}

void cSession::TypeKey() {
    static const std::vector<int> keys{
        Qt::Key_A,     Qt::Key_1,      Qt::Key_8,        Qt::Key_Colon,  Qt::Key_Comma, Qt::Key_Asterisk,
        Qt::Key_Space, Qt::Key_Return, Qt::Key_Tab,      Qt::Key_Delete, Qt::Key_Up,    Qt::Key_Down,
        Qt::Key_Left,  Qt::Key_Right,  Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Home,  Qt::Key_End,
        Qt::Key_F2,    Qt::Key_Insert, Qt::Key_Backspace};
    static const std::vector<Qt::KeyboardModifiers> modifiers{Qt::NoModifier, Qt::NoModifier, Qt::NoModifier,
                                                              Qt::ShiftModifier, Qt::ControlModifier};
    QWidget* widget = m_Page->focusWidget() == nullptr ? m_Page : m_Page->focusWidget();
    if (!m_LeftAlone.isEmpty() && widget->objectName() == m_LeftAlone) return;
    ++m_Figures.keys;
    if (const int special = Below(12); special < 2) {
        QTest::keyClick(widget, special == 0 ? Qt::Key_Z : Qt::Key_Y, Qt::ControlModifier);
    } else {
        QTest::keyClick(widget, static_cast<Qt::Key>(AnyOf(keys)), AnyOf(modifiers));
    }
}

void cSession::ChooseEntry() {
    std::vector<QAction*> entries;
    for (QAction* action : m_Page->EditActions()) {
        if (action != nullptr && action->isEnabled()) entries.push_back(action);
    }
    if (entries.empty()) return;
    ++m_Figures.entries;
    AnyOf(entries)->trigger();
}

void cSession::CloseBoxes() {
    if (QWidget* popup = QApplication::activePopupWidget()) {
        ++m_Figures.boxes;
        auto* menu = qobject_cast<QMenu*>(popup);
        if (menu != nullptr && !menu->actions().isEmpty()) {
            QAction* entry = menu->actions().at(Below(static_cast<int>(menu->actions().size())));
            if (entry->isEnabled() && entry->menu() == nullptr) entry->trigger();
        }
        if (auto* list = popup->findChild<QAbstractItemView*>(); list != nullptr && menu == nullptr) {
            list->setCurrentIndex(list->model()->index(Below(list->model()->rowCount()), 0));
            QTest::keyClick(list, Qt::Key_Return);
        }
        if (QApplication::activePopupWidget() == popup) popup->close();
    } else if (auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
        ++m_Figures.boxes;
        box->done(Below(2));
    }
}

void cSession::Settle() {
    for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
}

void cSession::UndoAll() {
    QUndoStack& stack = *m_Page->UndoStack();
    for (int before = -1; stack.canUndo() && stack.index() != before;) {
        before = stack.index();
        m_Bench.m_Prompts.m_YesNoAnswers.assign(20, true);
        stack.undo();
        Settle();
    }
}

void cSession::RedoAll() {
    QUndoStack& stack = *m_Page->UndoStack();
    for (int before = -1; stack.canRedo() && stack.index() != before;) {
        before = stack.index();
        m_Bench.m_Prompts.m_YesNoAnswers.assign(20, true);
        stack.redo();
        Settle();
    }
}

std::string cSession::Content() {
    std::string content;
    for (const auto* editor : m_Page->findChildren<cContentEditor*>()) {
        // That of a form shows a definition, which is told below.
        if (editor->objectName() != "Editor_Schedule" || m_Page->objectName() == "Page_Schedule")
            content += editor->State() + "\n";
    }
    if (m_Page->objectName() == "Page_Receivers") SaveAll(m_Bench.m_Station.Receivers());
    if (m_Page->objectName() == "Page_Profiles") SaveAll(m_Bench.m_Station.Profiles());
    for (const std::string& path : m_Bench.m_Files.AllPaths()) {
        if (IsDefinition(path)) content += path + "\n" + m_Bench.m_Files.ReadFile(path) + "\n";
    }
    return content;
}

void cSession::Expect(const std::string& content, const std::string& when) {
    if (Content() != content) throw std::runtime_error("the content differs " + when);
}

void cSession::Run(int actions) {
    const std::string first = Content();
    for (int i = 0; i < actions; ++i) Act();
    m_Page->FinishInput();
    Settle();
    m_Figures.steps += m_Page->UndoStack()->count();
    if (Content() != first) ++m_Figures.changed;
    UndoAll();
    Expect(first, "after everything is undone");
    RedoAll();
    UndoAll();
    Expect(first, "after everything is done again and undone");
    ++m_Figures.sessions;
}

// Every one of yes or no is answered with yes.
void cSession::NoteQuestion(cOthers& others) {
    ++m_Figures.questions;
    const QString asked = std::exchange(m_Bench.m_Prompts.m_Asked, {});
    const auto conflict = asked.lastIndexOf("mine, theirs"), yesOrNo = asked.lastIndexOf("yes or no: ");
    if (yesOrNo > conflict || m_Bench.m_Prompts.m_ConflictAnswers.front() == cPrompts::eConflict::Mine)
        others.NoteConsent(asked.mid(std::max(conflict, yesOrNo)).trimmed());
}

void cSession::ComeToPage(cOthers& others) {
    cDefinitionsWindow& window = *m_Bench.m_Window;
    m_Bench.m_Prompts.m_SaveAnswers.assign(20, cPrompts::eSave::Discard);
    if (!m_Page || !window.Pages().contains(m_Page)) {
        others.Mend();
        OpenPage();
    }
    while (window.CurrentPage() != m_Page) m_Bench.Choose(window, "Menu_Close");
}

void cSession::RunWithOthers(int actions) {
    using eConflict = cPrompts::eConflict;
    static const std::vector<eConflict> answers{eConflict::Mine, eConflict::Theirs, eConflict::Both,
                                                eConflict::Cancel};
    cOthers others(m_Bench, m_PageName, [this](int limit) { return Below(limit); });
    m_LeftAlone = SignFieldOf(m_PageName);
    m_Bench.m_Prompts.m_WhileAsked = [&] { NoteQuestion(others); };
    for (int i = 0; i < actions; ++i) {
        if (Below(3) == 0) {
            others.Work();
            ++m_Figures.theirs;
        }
        m_Bench.m_Prompts.m_ConflictAnswers.assign(20, AnyOf(answers));
        if (Below(4) == 0) {
            m_Bench.m_Window->hide();
            m_Bench.m_Window->show();
        }
        Act();
        if (Below(5) == 0) m_Bench.Choose(*m_Bench.m_Window, "Menu_Save");
        Settle();
        others.Judge();
        ComeToPage(others);
        m_Bench.m_Prompts.m_Asked.clear();
    }
    m_Bench.m_Prompts.m_WhileAsked = nullptr;
    m_Figures.steps += m_Page->UndoStack()->count();
    ++m_Figures.sessions;
}

}  // namespace vigrel::campaign
