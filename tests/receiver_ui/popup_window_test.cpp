#include "receiver_ui/popups/popup_widget.h"

#include <gtest/gtest.h>

#include <QtTest/qtestspontaneevent.h>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QFontInfo>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <algorithm>
#include <set>

#include "common/code_page.h"
#include "contract/popup_contract.h"
#include "receiver_ui/popup_rig.h"
#include "signals/popups.h"
#include "support/popup_station.h"
#include "support/qt_wait.h"

namespace vigrel::testing {
namespace {

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, PopupContract, cPopupWidgetRig);

// --- text

TEST(PopupText, EveryKindOfLineEndIsOneAndTabsStay) {
    EXPECT_EQ(PopupText("a\r\nb\rc\nd\te"), QString("a\nb\nc\nd\te"));
}

TEST(PopupText, TheWholeCodePageShows) {
    for (int code = 0; code < 256; ++code) {
        const char character = static_cast<char>(code);
        const QString shown = PopupText(std::string_view(&character, 1));
        ASSERT_EQ(shown.size(), 1) << code;
        const bool control = code < 0x20 || code == 0x7F;
        if (!control) {
            EXPECT_EQ(shown[0].unicode(), ToUnicode(character)) << code;
        }
        if (control && code != '\t' && code != '\n' && code != '\r') {
            EXPECT_EQ(shown[0].unicode() & 0xFF00, 0x2400) << code;
        }
    }
    EXPECT_EQ(PopupText("\x80 \xE5\xE4\xF6 \x9F"), QString::fromUtf8("€ åäö Ÿ"));
}

// --- one window

class PopupWidget : public ::testing::Test {
  protected:
    // With what it shows inside, as if it had been shown.
    cPopupWidget& Make() {
        auto& popup = dynamic_cast<cPopupWidget&>(m_Maker.MakePopup());
        popup.Build();
        return popup;
    }
    cPopupWidget& MakeShown() {
        cPopupWidget& popup = Make();
        popup.Show();
        m_Maker.Stack().Apply();
        return popup;
    }
    static QPlainTextEdit& Label(cPopupWidget& popup) {
        return *popup.findChild<QPlainTextEdit*>("Label_Alarm");
    }
    static cPopupPicture& Picture(cPopupWidget& popup, int number) {
        return *static_cast<cPopupPicture*>(
            popup.findChild<QAbstractButton*>(QString("Picture_Alarm_%1").arg(number)));
    }
    static QColor PixelAt(QWidget& widget, QPoint place) { return widget.grab().toImage().pixelColor(place); }

    cOpenWindows m_Windows;
    cPopupWidgetMaker m_Maker{m_Windows};
};

TEST_F(PopupWidget, HasTheDesignGeometryAndShowsNoPicture) {
    cPopupWidget& popup = Make();
    EXPECT_EQ(popup.Name(), "Vigrel_Receiver_Popup");
    EXPECT_EQ(popup.objectName(), "Vigrel_Receiver_Popup");
    EXPECT_NEAR(popup.InnerWidth(), 6768, 15);
    EXPECT_NEAR(popup.InnerHeight(), 1260, 15);
    EXPECT_EQ(Label(popup).geometry(), QRect(48, 0, 401, 78));
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(popup.PictureLeft(i), 90);
        EXPECT_EQ(popup.PictureWidth(i), 384);
        EXPECT_EQ(Picture(popup, i).geometry(), QRect(6, 14, 32, 32));
        EXPECT_TRUE(Picture(popup, i).isHidden());
    }
}

TEST_F(PopupWidget, APictureThatThereIsNoneOfIsAFailure) {
    cPopupWidget& popup = Make();
    for (const int picture : {-1, 4}) {
        EXPECT_THROW(popup.SetPictureBackColour(picture, 0), cFailure) << picture;
        EXPECT_THROW(popup.SetPictureVisible(picture, true), cFailure) << picture;
        EXPECT_THROW(popup.PictureLeft(picture), cFailure) << picture;
        EXPECT_THROW(popup.PictureWidth(picture), cFailure) << picture;
    }
}

TEST_F(PopupWidget, IsAmongTheOpenWindowsFromTheStart) {
    cPopupWidget& first = Make();
    cPopupWidget& second = Make();
    EXPECT_EQ(m_Windows.OpenWindows(), (std::vector<cWindow*>{&first, &second}));
}

TEST_F(PopupWidget, BearsTheProgramsIconInOneSizeAlone) {
    const QIcon icon = Make().windowIcon();
    EXPECT_EQ(icon.availableSizes(), QList<QSize>{QSize(32, 32)});
    EXPECT_EQ(icon.pixmap(32).toImage(), QIcon(":/icons/vigrel-receiver.svg").pixmap(32).toImage());
    EXPECT_NE(icon.pixmap(32).toImage().pixelColor(16, 16).alpha(), 0);
}

TEST_F(PopupWidget, TakesItsColours) {
    cPopupWidget& popup = Make();
    EXPECT_EQ(PixelAt(popup, {2, 2}), QColor(240, 240, 240));
    popup.SetBackColour(0x0000FF);
    popup.SetLabelBackColour(0x00FF00);
    popup.SetPictureBackColour(2, 0xFF0000);
    popup.SetPictureVisible(2, true);
    EXPECT_EQ(PixelAt(popup, {2, 2}), QColor(255, 0, 0));
    EXPECT_EQ(PixelAt(popup, {300, 60}), QColor(0, 255, 0));
    EXPECT_EQ(PixelAt(popup, {7, 15}), QColor(0, 0, 255));
    EXPECT_EQ(Label(popup).verticalScrollBar()->palette().color(QPalette::Window),
              QApplication::palette().color(QPalette::Window));
    popup.SetForeColour(0x010203);
    popup.SetLabelForeColour(0x010203);
    EXPECT_EQ(popup.palette().color(QPalette::WindowText), QColor(3, 2, 1));
    EXPECT_EQ(Label(popup).palette().color(QPalette::Text), QColor(3, 2, 1));
}

TEST_F(PopupWidget, TextIsNeverTakenAsMarkup) {
    cPopupWidget& popup = Make();
    popup.SetLabelText("<b>a</b> & b\r\nc");
    EXPECT_EQ(Label(popup).toPlainText(), "<b>a</b> & b\nc");
}

TEST_F(PopupWidget, AShortTextNeedsNoScrollBarAndALongOneGetsIt) {
    cPopupWidget& popup = MakeShown();
    popup.SetLabelFont("MS Sans Serif", 8);
    popup.SetLabelText("Short");
    EXPECT_EQ(Label(popup).verticalScrollBar()->maximum(), 0);
    popup.SetLabelText(std::string(3000, 'x'));
    EXPECT_GT(Label(popup).verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(Label(popup).horizontalScrollBar()->maximum(), 0);
}

// Whether all of a label's text is in sight without a scroll bar.
bool FitsWithoutBar(const QPlainTextEdit& label) {
    QPlainTextEdit bare;
    bare.setFrameShape(QFrame::NoFrame);
    bare.setFont(label.font());
    bare.setWordWrapMode(label.wordWrapMode());
    bare.document()->setDocumentMargin(0);
    bare.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    bare.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    bare.setPlainText(label.toPlainText());
    bare.resize(label.size());
    bare.setAttribute(Qt::WA_DontShowOnScreen);
    bare.show();
    return bare.verticalScrollBar()->maximum() == 0;
}

// The bar takes room: with it a text can need lines that it doesn't need without it.
TEST_F(PopupWidget, AScrollBarStandsBesideTextThatDoesNotFitAndNowhereElse) {
    cPopupWidget& popup = MakeShown();
    popup.SetLabelFont("MS Sans Serif", 16);
    popup.SetLabelText("Fire - Active\r\nSmoke detector 4:17 in the corridor\r\nHarbour House\r\nPLC1");
    for (int width = 3000; width < 7000; width += 105) {
        for (const double height : {900.0, 1500.0, 1700.0, 1900.0, 2400.0, 3000.0}) {
            popup.SetLabelHeight(height);
            popup.SetLabelWidth(width);
            QCoreApplication::processEvents();
            EXPECT_EQ(Label(popup).verticalScrollBar()->isVisible(), !FitsWithoutBar(Label(popup)))
                << width << " x " << height;
        }
    }
}

TEST_F(PopupWidget, AFontInWhichTheTextFitsTakesTheScrollBarAway) {
    cPopupWidget& popup = MakeShown();
    std::string text;
    for (int words = 1; words <= 36; ++words) {
        text += "alarm ";
        if (words < 15 || words % 3 != 0) continue;
        for (double points = 8; points < 14; points += 0.5) {
            popup.SetLabelFont("MS Sans Serif", 20);
            popup.SetLabelText(text);
            RunEvents(5);
            EXPECT_TRUE(Label(popup).verticalScrollBar()->isVisible()) << words;
            popup.SetLabelFont("MS Sans Serif", points);
            RunEvents(5);
            EXPECT_EQ(Label(popup).verticalScrollBar()->isVisible(), !FitsWithoutBar(Label(popup)))
                << words << " words of " << points;
        }
    }
}

TEST_F(PopupWidget, TheLabelTakesItsFont) {
    cPopupWidget& popup = Make();
    popup.SetLabelFontStyle(true, true);
    popup.SetLabelFont("MS Sans Serif", 9.5);
    const QFont font = Label(popup).font();
    EXPECT_EQ(font.families().first(), "MS Sans Serif");
    EXPECT_EQ(font.pointSizeF(), 9.5);
    EXPECT_TRUE(font.bold());
    EXPECT_TRUE(font.italic());
    EXPECT_FALSE(QFontInfo(font).family().contains("Serif"));
    popup.SetLabelFontStyle(false, false);
    EXPECT_FALSE(Label(popup).font().bold());
    EXPECT_EQ(Label(popup).font().pointSizeF(), 9.5);
}

TEST_F(PopupWidget, AFontSizeThatNobodyCanReadIsRaised) {
    cPopupWidget& popup = Make();
    popup.SetLabelFont("MS Sans Serif", 0);
    EXPECT_EQ(Label(popup).font().pointSizeF(), 5);
    popup.SetLabelFont("MS Sans Serif", -8);
    EXPECT_EQ(Label(popup).font().pointSizeF(), 5);
}

TEST_F(PopupWidget, TheLabelGoesWhereItIsPutAndRefusesNegativeSizes) {
    cPopupWidget& popup = Make();
    popup.SetLabelTop(150);
    popup.SetLabelLeft(300);
    popup.SetLabelWidth(1500);
    popup.SetLabelHeight(600);
    EXPECT_EQ(Label(popup).geometry(), QRect(20, 10, 100, 40));
    EXPECT_THROW(popup.SetLabelWidth(-1), cFailure);
    EXPECT_THROW(popup.SetLabelHeight(-1), cFailure);
    EXPECT_EQ(Label(popup).geometry(), QRect(20, 10, 100, 40));
    popup.SetLabelWidth(0);
    popup.SetLabelHeight(0);
    EXPECT_EQ(Label(popup).geometry(), QRect(20, 10, 0, 0));
}

TEST_F(PopupWidget, TellsOfItsResizes) {
    cPopupWidget& popup = Make();
    int resizes = 0;
    popup.OnResize = [&] { ++resizes; };
    popup.Show();
    m_Maker.Stack().Apply();
    EXPECT_GT(resizes, 0);
    resizes = 0;
    popup.SetWidth(9000);
    EXPECT_EQ(resizes, 1);
    EXPECT_EQ(popup.Width(), 9000);
}

TEST_F(PopupWidget, StaysLargeEnoughToBeSeen) {
    cPopupWidget& popup = Make();
    popup.SetWidth(0);
    popup.SetHeight(0);
    EXPECT_EQ(popup.size(), QSize(120, 40));
}

// --- closing

TEST_F(PopupWidget, AClickOnThePictureIsTold) {
    cPopupWidget& popup = MakeShown();
    popup.SetPictureVisible(1, true);
    int clicked = -1;
    popup.OnPictureClick = [&](int picture) { clicked = picture; };
    QTest::mouseClick(&Picture(popup, 1), Qt::RightButton);
    EXPECT_EQ(clicked, -1);
    QTest::mouseClick(&Picture(popup, 1), Qt::LeftButton);
    EXPECT_EQ(clicked, 1);
}

// Its first click has closed another popup that lay over this one.
TEST_F(PopupWidget, TheSecondClickOfADoubleClickIsForNoPicture) {
    cPopupWidget& popup = MakeShown();
    popup.SetPictureVisible(1, true);
    int clicks = 0;
    popup.OnPictureClick = [&](int) { ++clicks; };
    cPopupPicture& picture = Picture(popup, 1);
    QMouseEvent second(QEvent::MouseButtonDblClick, picture.rect().center(),
                       picture.mapToGlobal(picture.rect().center()), Qt::LeftButton, Qt::LeftButton,
                       Qt::NoModifier);
    QCoreApplication::sendEvent(&picture, &second);
    QTest::mouseRelease(&picture, Qt::LeftButton);
    EXPECT_EQ(clicks, 0);
    QTest::mouseClick(&picture, Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
}

TEST_F(PopupWidget, AClickOnThePictureThatNobodyHearsDoesNothing) {
    cPopupWidget& popup = MakeShown();
    popup.SetPictureVisible(1, true);
    QTest::mouseClick(&Picture(popup, 1), Qt::LeftButton);
    EXPECT_TRUE(popup.isVisible());
    EXPECT_TRUE(m_Windows.Holds(popup));
}

TEST_F(PopupWidget, TheLabelTakesNoClick) {
    cPopupWidget& popup = MakeShown();
    popup.OnPictureClick = [](int) { FAIL(); };
    QTest::mouseClick(Label(popup).viewport(), Qt::LeftButton);
    EXPECT_TRUE(m_Windows.Holds(popup));
}

TEST_F(PopupWidget, ThePictureWorksByKeyboardAndIgnoresAKeyHeldDown) {
    cPopupWidget& popup = MakeShown();
    popup.SetPictureVisible(3, true);
    int clicks = 0;
    popup.OnPictureClick = [&](int) { ++clicks; };
    cPopupPicture& picture = Picture(popup, 3);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        QKeyEvent held(QEvent::KeyPress, key, Qt::NoModifier, "\r", true);
        QCoreApplication::sendEvent(&picture, &held);
    }
    EXPECT_EQ(clicks, 0);
    QTest::keyClick(&picture, Qt::Key_Return);
    QTest::keyClick(&picture, Qt::Key_Enter);
    QTest::keyClick(&picture, Qt::Key_Space);
    EXPECT_EQ(clicks, 3);
    QTest::keyClick(&picture, Qt::Key_Escape);
    EXPECT_EQ(clicks, 3);
}

TEST_F(PopupWidget, TheKeyboardReachesTheTextFirstAndThenThePicture) {
    cPopupWidget& popup = MakeShown();
    popup.SetPictureVisible(0, true);
    popup.activateWindow();
    ASSERT_TRUE(WaitUntil([&] { return popup.isActiveWindow(); }));
    EXPECT_EQ(popup.focusWidget(), &Label(popup));
    QTest::keyClick(popup.focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(popup.focusWidget(), &Picture(popup, 0));
}

TEST_F(PopupWidget, AssistiveToolsFindAButtonWithAName) {
    cPopupWidget& popup = MakeShown();
    popup.SetPictureVisible(1, true);
    QAccessibleInterface* picture = QAccessible::queryAccessibleInterface(&Picture(popup, 1));
    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(picture->role(), QAccessible::Button);
    const char* const names[] = {"Inactive, close", "Active, close", "Acknowledged, close", "Message, close"};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(Picture(popup, i).accessibleName(), names[i]);
        EXPECT_EQ(Picture(popup, i).accessibleDescription(), "Closes the popup");
    }
    popup.SetLabelText("Pump 1");
    QAccessibleInterface* label = QAccessible::queryAccessibleInterface(&Label(popup));
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->text(QAccessible::Name), "Alarm");
    ASSERT_NE(label->textInterface(), nullptr);
    EXPECT_EQ(label->textInterface()->text(0, label->textInterface()->characterCount()), "Pump 1");
}

// The reasons that the close query is given, in order.
class cCloseReasons {
  public:
    explicit cCloseReasons(cPopupWidget& popup) {
        popup.OnQueryUnload = [this](eCloseReason reason) {
            m_Text += std::to_string(static_cast<int>(reason)) + " ";
            return m_Allow;
        };
        popup.OnUnload = [this] { m_Text += "unload "; };
    }
    std::string m_Text;
    bool m_Allow = true;
};

// Whether the popup let itself be closed.
bool CloseByWindowManager(cPopupWidget& popup) {
    QCloseEvent event;
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(&popup, &event);
    return event.isAccepted();
}

TEST_F(PopupWidget, AClosedPopupIsGoneAtTheNextTurnOfTheLoop) {
    cPopupWidget& popup = MakeShown();
    const QPointer<QWidget> widget(&popup);
    const cCloseReasons reasons(popup);
    popup.OnUnload = [&] { EXPECT_TRUE(m_Windows.Holds(popup)); };
    popup.Close();
    EXPECT_EQ(reasons.m_Text, "1 ");
    EXPECT_TRUE(m_Windows.OpenWindows().empty());
    EXPECT_FALSE(popup.isVisible());
    EXPECT_TRUE(WaitUntil([&] { return widget.isNull(); }));
}

TEST_F(PopupWidget, ACloseByTheWindowManagerHasReason0) {
    cPopupWidget& popup = MakeShown();
    const cCloseReasons reasons(popup);
    EXPECT_TRUE(CloseByWindowManager(popup));
    EXPECT_EQ(reasons.m_Text, "0 unload ");
}

TEST_F(PopupWidget, ACloseByTheEndOfTheDesktopSessionHasReason2) {
    cPopupWidget& popup = MakeShown();
    const cCloseReasons reasons(popup);
    QApplication::closeAllWindows();
    EXPECT_EQ(reasons.m_Text, "2 unload ");
}

TEST_F(PopupWidget, AltF4ClosesAsTheWindowsOwnControlDoes) {
    cPopupWidget& popup = MakeShown();
    const cCloseReasons reasons(popup);
    QTest::keyClick(&Label(popup), Qt::Key_F4);
    EXPECT_EQ(reasons.m_Text, "");
    QTest::keyClick(&Label(popup), Qt::Key_F4, Qt::AltModifier);
    EXPECT_EQ(reasons.m_Text, "0 unload ");
    EXPECT_FALSE(popup.isVisible());
}

TEST_F(PopupWidget, EscClosesAsTheWindowsOwnControlDoesWhereverTheKeyboardIs) {
    for (const bool inText : {true, false}) {
        cPopupWidget& popup = MakeShown();
        popup.SetPictureVisible(1, true);
        const cCloseReasons reasons(popup);
        QWidget& place = inText ? static_cast<QWidget&>(Label(popup)) : Picture(popup, 1);
        QTest::keyClick(&place, Qt::Key_Escape);
        EXPECT_EQ(reasons.m_Text, "0 unload ");
        EXPECT_FALSE(popup.isVisible());
    }
}

TEST_F(PopupWidget, ACloseKeyThatIsHeldDownOrHasOthersWithItClosesNothing) {
    cPopupWidget& popup = MakeShown();
    const cCloseReasons reasons(popup);
    QKeyEvent heldEsc(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, "", true);
    QKeyEvent heldF4(QEvent::KeyPress, Qt::Key_F4, Qt::AltModifier, "", true);
    for (QKeyEvent* held : {&heldEsc, &heldF4}) QCoreApplication::sendEvent(&Label(popup), held);
    QTest::keyClick(&Label(popup), Qt::Key_Escape, Qt::ControlModifier);
    EXPECT_EQ(reasons.m_Text, "");
    EXPECT_TRUE(popup.isVisible());
}

TEST_F(PopupWidget, ARefusedCloseLeavesThePopup) {
    cPopupWidget& popup = MakeShown();
    cCloseReasons reasons(popup);
    reasons.m_Allow = false;
    EXPECT_THROW(popup.Close(), cFailure);
    EXPECT_FALSE(CloseByWindowManager(popup));
    EXPECT_EQ(reasons.m_Text, "1 0 ");
    EXPECT_TRUE(popup.isVisible());
    EXPECT_TRUE(m_Windows.Holds(popup));
}

TEST_F(PopupWidget, AHiddenPopupCloses) {
    cPopupWidget& popup = Make();
    const cCloseReasons reasons(popup);
    popup.Close();
    EXPECT_EQ(reasons.m_Text, "1 unload ");
    EXPECT_TRUE(m_Windows.OpenWindows().empty());
}

// --- what reaches the screen

// Notes how often a widget is shown, and the area over which it was seen.
class cScreenNotes : public QObject {
  public:
    explicit cScreenNotes(QWidget& widget) : m_Widget(widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Show) ++m_Shows;
        if (m_Widget.isVisible()) m_Seen |= m_Widget.frameGeometry();
        return false;
    }
    int m_Shows = 0;
    QRect m_Seen;

  private:
    QWidget& m_Widget;
};

TEST_F(PopupWidget, APopupThatWasElsewhereForAMomentIsNeverSeenThere) {
    cPopupWidget& popup = Make();
    const cScreenNotes notes(popup);
    popup.SetLeft(288000);
    popup.SetTop(230400);
    popup.Show();
    EXPECT_TRUE(popup.Visible());
    EXPECT_FALSE(popup.isVisible());
    popup.SetLeft(1500);
    popup.SetTop(3000);
    EXPECT_EQ(popup.Left(), 1500);
    EXPECT_EQ(popup.Top(), 3000);
    ASSERT_TRUE(WaitUntil([&] { return popup.isVisible(); }));
    RunEvents(30);
    EXPECT_EQ(notes.m_Shows, 1);
    EXPECT_EQ(popup.pos(), QPoint(100, 200));
    const QRect place = popup.frameGeometry().adjusted(-2, -2, 2, 2);
    EXPECT_TRUE(place.contains(notes.m_Seen));
}

TEST_F(PopupWidget, APopupThatWasShownForAMomentIsNeverSeen) {
    cPopupWidget& popup = Make();
    const cScreenNotes notes(popup);
    popup.Show();
    popup.Hide();
    RunEvents(30);
    EXPECT_EQ(notes.m_Shows, 0);
    EXPECT_FALSE(popup.Visible());
}

TEST_F(PopupWidget, APopupThatWasNeverShownHasNothingInside) {
    auto& popup = dynamic_cast<cPopupWidget&>(m_Maker.MakePopup());
    popup.SetLabelText("Pump 1");
    popup.SetPictureVisible(1, true);
    popup.Show();
    popup.Hide();
    RunEvents(30);
    EXPECT_TRUE(popup.children().empty());
    popup.Show();
    ASSERT_TRUE(WaitUntil([&] { return popup.isVisible(); }));
    EXPECT_EQ(Label(popup).toPlainText(), "Pump 1");
    EXPECT_TRUE(Picture(popup, 1).isVisible());
    EXPECT_FALSE(Picture(popup, 0).isVisible());
}

TEST_F(PopupWidget, ManyPopupsComeUpInTheirOrderInTurnsThatLetOthersWork) {
    constexpr int kMany = 150;
    std::vector<cPopupWidget*> popups;
    for (int i = 0; i < kMany; ++i) {
        popups.push_back(&dynamic_cast<cPopupWidget&>(m_Maker.MakePopup()));
        popups.back()->Show();
    }
    const auto shown = [&] {
        return std::count_if(popups.begin(), popups.end(),
                             [](const cPopupWidget* p) { return p->isVisible(); });
    };
    std::set<std::ptrdiff_t> stages;
    ASSERT_TRUE(WaitUntil([&] {
        const auto now = shown();
        stages.insert(now);
        // Those that show are the first ones.
        EXPECT_TRUE(std::all_of(popups.begin(), popups.begin() + now,
                                [](const cPopupWidget* popup) { return popup->isVisible(); }));
        return now == kMany;
    }));
    EXPECT_GT(stages.size(), 2u);
    EXPECT_FALSE(m_Maker.Stack().Waits());
}

TEST_F(PopupWidget, APopupThatIsClosedWhileItWaitsIsForgotten) {
    for (int i = 0; i < 3; ++i) m_Maker.MakePopup().Show();
    for (cWindow* window : m_Windows.OpenWindows()) window->Close();
    EXPECT_FALSE(m_Maker.Stack().Waits());
    RunEvents(30);
    EXPECT_TRUE(m_Maker.Stack().Order().empty());
}

TEST_F(PopupWidget, HideAndShowKeepPlaceAndSize) {
    cPopupWidget& popup = MakeShown();
    popup.SetLeft(3000);
    popup.SetTop(1500);
    popup.SetWidth(7500);
    m_Maker.Stack().Apply();
    popup.Hide();
    m_Maker.Stack().Apply();
    EXPECT_FALSE(popup.isVisible());
    popup.Show();
    m_Maker.Stack().Apply();
    EXPECT_EQ(popup.Left(), 3000);
    EXPECT_EQ(popup.Top(), 1500);
    EXPECT_EQ(popup.Width(), 7500);
}

TEST_F(PopupWidget, APlaceOnNoScreenIsBroughtBack) {
    cPopupWidget& popup = Make();
    popup.SetLeft(300000);
    popup.SetTop(300);
    popup.Show();
    m_Maker.Stack().Apply();
    EXPECT_TRUE(QGuiApplication::primaryScreen()->geometry().contains(popup.frameGeometry().center()));
}

// One of many of which one shows, hidden on a monitor that has gone meanwhile.
TEST_F(PopupWidget, APopupThatWasHiddenWhereNoScreenIsIsBroughtBack) {
    cPopupWidget& popup = Make();
    popup.Show();
    m_Maker.Stack().Apply();
    popup.move(20000, 300);
    popup.Hide();
    m_Maker.Stack().Apply();
    popup.Show();
    m_Maker.Stack().Apply();
    EXPECT_TRUE(QGuiApplication::primaryScreen()->geometry().contains(popup.frameGeometry().center()));
}

TEST_F(PopupWidget, NewPopupsStandOnAStairThatStaysOnTheScreen) {
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    constexpr int kStep = 26;
    double last = 0;
    int fresh = 0, right = 0, bottom = 0;
    for (int i = 0; i < 60; ++i) {
        cPopupWidget& popup = Make();
        // With what the window manager puts around it.
        const QRect frame(QPoint(ToPixels(popup.Left()), ToPixels(popup.Top())),
                          popup.size() + QSize(kStep, kStep));
        EXPECT_TRUE(room.contains(frame)) << i;
        right = std::max(right, frame.right());
        bottom = std::max(bottom, frame.bottom());
        if (popup.Left() < last) ++fresh;
        last = popup.Left();
    }
    EXPECT_GE(fresh, 1);
    EXPECT_TRUE(right + kStep > room.right() || bottom + kStep > room.bottom()) << "down to the edge";
}

TEST_F(PopupWidget, TheStairBeginsAnewWhenAllPopupsAreGone) {
    const QPoint first = QGuiApplication::primaryScreen()->availableGeometry().topLeft() + QPoint(26, 26);
    for (int round = 0; round < 2; ++round) {
        for (int i = 0; i < 3; ++i) {
            const cPopupWidget& popup = Make();
            EXPECT_EQ(popup.Left(), ToTwips(first.x() + 26 * i)) << round << i;
            EXPECT_EQ(popup.Top(), ToTwips(first.y() + 26 * i)) << round << i;
        }
        for (cWindow* window : m_Windows.OpenWindows()) window->Close();
    }
}

TEST_F(PopupWidget, TheKeyboardOfAClosedPopupGoesToTheNextOne) {
    cPopupWidget& first = MakeShown();
    cPopupWidget& second = MakeShown();
    second.activateWindow();
    ASSERT_TRUE(WaitUntil([&] { return second.isActiveWindow(); }));
    second.Close();
    EXPECT_TRUE(WaitUntil([&] { return first.isActiveWindow(); }));
}

TEST_F(PopupWidget, APopupThatNobodyTypesInLeavesTheKeyboardWhereItIs) {
    MakeShown();
    cPopupWidget& second = MakeShown();
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(WaitUntil([&] { return other.isActiveWindow(); }));
    second.Close();
    RunEvents(50);
    EXPECT_TRUE(other.isActiveWindow());
}

TEST_F(PopupWidget, TheEndOfTheProgramTakesPopupsAwayWithoutClosingThem) {
    std::vector<QPointer<QWidget>> popups;
    {
        cOpenWindows windows;
        cPopupWidgetMaker maker(windows);
        for (int i = 0; i < 3; ++i) {
            auto& popup = dynamic_cast<cPopupWidget&>(maker.MakePopup());
            popup.OnUnload = [] { ADD_FAILURE() << "closed"; };
            if (i != 1) popup.Show();
            popups.emplace_back(&popup);
        }
        maker.Stack().Apply();
    }
    for (const QPointer<QWidget>& popup : popups) EXPECT_TRUE(popup.isNull());
}

TEST_F(PopupWidget, OneCoordinateThatIsSetLeavesTheOther) {
    cPopupWidget& popup = MakeShown();
    const double top = popup.Top();
    popup.SetLeft(3000);
    EXPECT_EQ(popup.Top(), top);
    m_Maker.Stack().Apply();
    EXPECT_EQ(popup.pos(), QPoint(200, ToPixels(top)));
    popup.SetTop(1500);
    EXPECT_EQ(popup.Left(), 3000);
    m_Maker.Stack().Apply();
    EXPECT_EQ(popup.pos(), QPoint(200, 100));
}

TEST_F(PopupWidget, ThePictureOfItsStateIsDrawnAndShowsTheKeyboard) {
    cPopupWidget& popup = MakeShown();
    for (int i = 0; i < 4; ++i) {
        cPopupPicture& picture = Picture(popup, i);
        picture.setVisible(true);
        QImage expected(32, 32, QImage::Format_RGB32);
        expected.fill(picture.palette().color(QPalette::Window));
        QPainter painter(&expected);
        QIcon(QString(":/icons/popup/%1.svg").arg(i)).paint(&painter, QRect(0, 0, 32, 32));
        painter.end();
        EXPECT_EQ(picture.grab().toImage().convertToFormat(QImage::Format_RGB32), expected) << i;
        EXPECT_EQ(picture.cursor().shape(), Qt::PointingHandCursor);
        picture.setVisible(false);
    }
    popup.activateWindow();
    ASSERT_TRUE(WaitUntil([&] { return popup.isActiveWindow(); }));
    cPopupPicture& picture = Picture(popup, 2);
    picture.setVisible(true);
    const QImage plain = picture.grab().toImage();
    QTest::keyClick(popup.focusWidget(), Qt::Key_Tab);
    ASSERT_TRUE(picture.hasFocus());
    EXPECT_NE(picture.grab().toImage(), plain);
}

TEST_F(PopupWidget, ItsTextCanBeMarkedAndCopiedButNotChanged) {
    cPopupWidget& popup = MakeShown();
    popup.SetLabelText("Pump 1\r\nstopped");
    QTest::keyClick(&Label(popup), Qt::Key_X);
    QTest::keyClick(&Label(popup), Qt::Key_Delete);
    QTest::keyClick(&Label(popup), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&Label(popup), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "Pump 1\nstopped");
    EXPECT_TRUE(Label(popup).textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
    EXPECT_EQ(Label(popup).frameShape(), QFrame::NoFrame);
    EXPECT_EQ(Label(popup).document()->documentMargin(), 0);
    EXPECT_FALSE(Label(popup).isUndoRedoEnabled());
}

TEST_F(PopupWidget, ATabIsAsWideAsEightLetters) {
    cPopupWidget& popup = Make();
    for (const double points : {8.0, 20.0}) {
        popup.SetLabelFont("Arial", points);
        EXPECT_EQ(Label(popup).tabStopDistance(), 8 * Label(popup).fontMetrics().averageCharWidth());
    }
}

TEST_F(PopupWidget, TopmostIsAskedOfTheWindowSystem) {
    cPopupWidget& popup = Make();
    popup.SetTopMost(true);
    popup.Show();
    m_Maker.Stack().Apply();
    EXPECT_TRUE(popup.windowHandle()->flags() & Qt::WindowStaysOnTopHint);
    const WId id = popup.windowHandle()->winId();
    popup.SetTopMost(false);
    EXPECT_FALSE(popup.windowHandle()->flags() & Qt::WindowStaysOnTopHint);
    EXPECT_EQ(popup.windowHandle()->winId(), id);
    EXPECT_TRUE(popup.testAttribute(Qt::WA_ShowWithoutActivating));
}

// --- the whole

class PopupScreen : public ::testing::Test, protected cPopupStation {
  protected:
    cPopupWidget& Show(const std::string& category, std::int16_t status = StatusActive) {
        m_Clock.AddSeconds(1);
        m_Popups.ShowPopup(Alarm(category, status));
        m_Maker.Stack().Apply();
        auto* popup = dynamic_cast<cPopupWidget*>(m_Windows.OpenWindows().back());
        m_Shown.emplace_back(popup);
        return *popup;
    }
    // The numbers of the popups that show, the uppermost first.
    std::string Stacked() {
        m_Maker.Stack().Apply();
        std::string text;
        for (const cStackedPopup* popup : m_Maker.Stack().Order()) {
            for (std::size_t i = 0; i < m_Shown.size(); ++i) {
                if (m_Shown[i] == popup && popup->OnScreen()) text += std::to_string(i + 1);
            }
        }
        return text;
    }

    cOpenWindows m_Windows;
    cPopupWidgetMaker m_Maker{m_Windows};
    cPopups m_Popups{Services(m_Windows, m_Maker)};
    std::vector<QPointer<cPopupWidget>> m_Shown;
};

TEST_F(PopupScreen, AnAlarmShowsWithItsTextPictureAndPlace) {
    Configure("X_Size=500\nY_Size=120\nWindowPosition=STATIC\nX_Start=30\nY_Start=40\nFontSize=11\n");
    m_Setting = Setting("BackColor_Active=255,0,0\nForeColor_Active=255,255,255\nEventPopupFormat=F\n");
    cPopupWidget& popup = Show("C");
    EXPECT_EQ(popup.windowTitle(), "Title (Plant)");
    EXPECT_EQ(popup.findChild<QPlainTextEdit*>("Label_Alarm")->toPlainText(), "Alarm 1/F/");
    EXPECT_TRUE(popup.findChild<QWidget*>("Picture_Alarm_1")->isVisible());
    EXPECT_FALSE(popup.findChild<QWidget*>("Picture_Alarm_0")->isVisible());
    EXPECT_EQ(popup.pos(), QPoint(30, 40));
    EXPECT_EQ(popup.Width(), 7500);
    EXPECT_EQ(popup.Height(), 1800);
    EXPECT_EQ(popup.frameGeometry().size(), QSize(500, 120));
    const QRect label = popup.findChild<QWidget*>("Label_Alarm")->geometry();
    EXPECT_EQ(label.topLeft(), QPoint(45, 7));
    EXPECT_NEAR(label.right(), popup.width(), 2);
    EXPECT_NEAR(label.bottom(), popup.height(), 2);
}

TEST_F(PopupScreen, SixPopupsStandInTheirOrder) {
    m_Settings.m_PopupFormTopMostCategory = "A,B";
    for (const char* category : {"X", "B", "A", "B", "A", "Y"}) Show(category);
    EXPECT_EQ(Stacked(), "536421");
}

TEST_F(PopupScreen, OneOfSixShowsAndTheNextComesWithEachClick) {
    m_Settings.m_PopupFormTopMostCategory = "A,B";
    m_Settings.m_ViewOnlyOnePopupForm = true;
    m_Settings.m_AckEventWhenPopupFormIsClosed = true;
    for (const char* category : {"X", "B", "A", "B", "A", "Y"}) Show(category);
    std::string seen;
    while (m_State.m_PopupFormCount > 0) {
        const std::string shown = Stacked();
        ASSERT_EQ(shown.size(), 1u);
        seen += shown;
        const auto index = static_cast<std::size_t>(shown[0] - '1');
        QTest::mouseClick(m_Shown[index]->findChild<QWidget*>("Picture_Alarm_1"), Qt::LeftButton);
    }
    EXPECT_EQ(seen, "352416");
    EXPECT_EQ(m_Transcript.Text(),
              "acknowledge Alarm 3\nacknowledge Alarm 5\nacknowledge Alarm 2\n"
              "acknowledge Alarm 4\nacknowledge Alarm 1\nacknowledge Alarm 6\n");
}

TEST_F(PopupScreen, AllAreClosedAtOnce) {
    for (int i = 0; i < 6; ++i) Show("C");
    m_Popups.ClosePopups();
    EXPECT_EQ(m_State.m_PopupFormCount, 0);
    EXPECT_TRUE(m_Windows.OpenWindows().empty());
    EXPECT_EQ(Stacked(), "");
    EXPECT_TRUE(WaitUntil([&] { return m_Shown[5].isNull(); }));
}

TEST_F(PopupScreen, AMinimisedPopupComesBackWhenItIsNext) {
    cPopupWidget& first = Show("C");
    cPopupWidget& second = Show("C");
    first.showMinimized();
    EXPECT_EQ(first.State(), eWindowState::Minimised);
    second.Close();
    EXPECT_EQ(first.State(), eWindowState::Normal);
}

}  // namespace
}  // namespace vigrel::testing
