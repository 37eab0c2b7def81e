#include "receiver_ui/popups/popup_widget.h"

#include <QAccessible>
#include <QApplication>
#include <QFile>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "windows/colours.h"
#include "windows/fonts.h"

namespace vigrel {
namespace {

constexpr double kPictureLeft = 90, kPictureTop = 210, kPictureWidth = 384;
constexpr Qt::Key kCloseKey = Qt::Key_F4;

// Gives one role of a widget a colour.
void SetRole(QWidget& widget, QPalette::ColorRole role, std::int32_t colour) {
    QPalette palette = widget.palette();
    palette.setColor(role, ColourFromNumber(colour));
    widget.setPalette(palette);
}

int LabelLength(double twips, const char* what) {
    if (twips < 0) throw cFailure(eFailure::InvalidCall, std::string("label: negative ") + what);
    return ToPixels(twips);
}

}  // namespace

QString PopupText(std::string_view text) {
    QString shown = ToQString(text);
    shown.replace("\r\n", "\n").replace('\r', '\n');
    for (QChar& character : shown) {
        const char16_t code = character.unicode();
        const bool plain = code >= 0x20 && code != 0x7F;
        if (plain || code == '\n' || code == '\t') continue;
        character = code == 0x7F ? QChar(0x2421) : QChar(static_cast<char16_t>(0x2400 + code));
    }
    return shown;
}

cPopupWidget::cPopupWidget(cOpenWindows& windows, cPopupStack& stack, const PopupIcons& icons)
    : cWidgetWindow(kPopupKind, windows), m_Stack(stack), m_Label(this) {
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAutoFillBackground(true);
    setMinimumSize(120, 40);
    resize(ToPixels(6768), ToPixels(1260));
    for (int i = 0; i < kPictures; ++i) {
        const auto index = static_cast<std::size_t>(i);
        m_Pictures[index] = new cPopupPicture(i, icons[index], this);
        m_Pictures[index]->setGeometry(ToPixels(kPictureLeft), ToPixels(kPictureTop), cPopupPicture::kSize,
                                       cPopupPicture::kSize);
        QObject::connect(m_Pictures[index], &QAbstractButton::clicked, this, [this, i] {
            if (OnPictureClick) OnPictureClick(i);
        });
    }
    m_Label.setObjectName("Label_Alarm");
    m_Label.setAccessibleName("Alarm");
    m_Label.setReadOnly(true);
    m_Label.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_Label.setUndoRedoEnabled(false);
    m_Label.setTabChangesFocus(true);
    m_Label.setFrameShape(QFrame::NoFrame);
    m_Label.setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    m_Label.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_Label.document()->setDocumentMargin(0);
    // The colours of an alarm are not for its scroll bar, which must stay recognisable.
    QPalette ordinary = QApplication::palette();
    ordinary.setResolveMask(~QPalette::ResolveMask{0});
    m_Label.verticalScrollBar()->setPalette(ordinary);
    m_Label.setGeometry(ToPixels(720), 0, ToPixels(6015), ToPixels(1170));
    // The text, not the picture: a key pressed by chance must not close an alarm that nobody has read.
    m_Label.setFocus();
    constexpr std::int32_t kDesignColour = 0xF0F0F0;
    cPopupWidget::SetBackColour(kDesignColour);
    cPopupWidget::SetLabelBackColour(kDesignColour);
    m_Stack.Raise(*this);
}

// --- place and visibility

void cPopupWidget::SetLeft(double twips) {
    m_Place = QPoint(ToPixels(twips), m_Place ? m_Place->y() : Place().y());
    m_Stack.Schedule();
}

void cPopupWidget::SetTop(double twips) {
    m_Place = QPoint(m_Place ? m_Place->x() : Place().x(), ToPixels(twips));
    m_Stack.Schedule();
}

void cPopupWidget::Show() {
    if (m_Shown) return;
    m_Shown = true;
    m_Stack.Raise(*this);
}

void cPopupWidget::Hide() {
    m_Shown = false;
    m_Stack.Schedule();
}

void cPopupWidget::SetTopMost(bool topMost) {
    SetStaysOnTop(topMost);
    m_Stack.Raise(*this);
}

void cPopupWidget::PlaceBehind(cPopupWindow& other) {
    m_Stack.PlaceBehind(*this, dynamic_cast<cPopupWidget&>(other));
}

bool cPopupWidget::ReachScreen() {
    ReachPlace();
    if (m_Shown == isVisible()) return false;
    if (m_Shown) {
        Map();
    } else {
        Vanish();
    }
    return true;
}

void cPopupWidget::ReachPlace() {
    if (!m_Place) return;
    QRect frame(*m_Place, frameGeometry().size());
    m_Place.reset();
    // A place on no screen, as after a monitor went, would hide an alarm from the operator.
    const auto screens = QGuiApplication::screens();
    const bool seen = std::any_of(screens.begin(), screens.end(), [&](const QScreen* screen) {
        return screen->availableGeometry().intersects(frame);
    });
    if (!seen) frame.moveTopLeft(QGuiApplication::primaryScreen()->availableGeometry().topLeft());
    if (frame.topLeft() != Place() || !testAttribute(Qt::WA_Moved)) PlaceAt(frame.topLeft());
}

void cPopupWidget::Map() {
    Reappear();
    show();
    // Screen readers speak it, as they would a message box.
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void cPopupWidget::Closed() {
    m_Shown = false;
    m_Stack.Remove(*this);
    deleteLater();
}

void cPopupWidget::keyPressEvent(QKeyEvent* event) {
    // For window managers that leave the key to the window.
    const bool closes = event->key() == kCloseKey && event->modifiers() == Qt::AltModifier;
    if (closes && TryClose(eCloseReason::Control)) hide();
}

// --- look

void cPopupWidget::SetForeColour(std::int32_t colour) {
    SetRole(*this, QPalette::WindowText, colour);
}

void cPopupWidget::SetBackColour(std::int32_t colour) {
    SetRole(*this, QPalette::Window, colour);
}

void cPopupWidget::SetLabelText(std::string_view text) {
    m_Label.setPlainText(PopupText(text));
}

void cPopupWidget::SetLabelForeColour(std::int32_t colour) {
    SetRole(m_Label, QPalette::Text, colour);
}

void cPopupWidget::SetLabelBackColour(std::int32_t colour) {
    SetRole(m_Label, QPalette::Base, colour);
}

void cPopupWidget::SetLabelFontTo(const QFont& font) {
    m_Label.setFont(font);
    m_Label.setTabStopDistance(8 * m_Label.fontMetrics().averageCharWidth());
}

void cPopupWidget::SetLabelFont(std::string_view name, double points) {
    QFont font = FontOf(name, points);
    font.setBold(m_Label.font().bold());
    font.setItalic(m_Label.font().italic());
    SetLabelFontTo(font);
}

void cPopupWidget::SetLabelFontStyle(bool bold, bool italic) {
    QFont font = m_Label.font();
    font.setBold(bold);
    font.setItalic(italic);
    SetLabelFontTo(font);
}

void cPopupWidget::SetLabelLeft(double twips) {
    m_Label.move(ToPixels(twips), m_Label.y());
}

void cPopupWidget::SetLabelTop(double twips) {
    m_Label.move(m_Label.x(), ToPixels(twips));
}

void cPopupWidget::SetLabelWidth(double twips) {
    m_Label.resize(LabelLength(twips, "width"), m_Label.height());
}

void cPopupWidget::SetLabelHeight(double twips) {
    m_Label.resize(m_Label.width(), LabelLength(twips, "height"));
}

const cPopupPicture& cPopupWidget::Picture(int picture) const {
    if (picture < 0 || picture >= kPictures) throw cFailure(eFailure::OutOfBounds, "no such picture");
    return *m_Pictures[static_cast<std::size_t>(picture)];
}

cPopupPicture& cPopupWidget::Picture(int picture) {
    return const_cast<cPopupPicture&>(std::as_const(*this).Picture(picture));
}

void cPopupWidget::SetPictureBackColour(int picture, std::int32_t colour) {
    SetRole(Picture(picture), QPalette::Window, colour);
}

void cPopupWidget::SetPictureVisible(int picture, bool visible) {
    Picture(picture).setVisible(visible);
}

double cPopupWidget::PictureLeft(int picture) const {
    Picture(picture);
    return kPictureLeft;
}

double cPopupWidget::PictureWidth(int picture) const {
    Picture(picture);
    return kPictureWidth;
}

// --- maker

cPopupWidgetMaker::cPopupWidgetMaker(cOpenWindows& windows) : m_Windows(windows) {
    for (int i = 0; i < cPopupWindow::kPictures; ++i) {
        const QString path = QString(":/icons/popup/%1.svg").arg(i);
        if (QFile::exists(path)) m_Icons[static_cast<std::size_t>(i)] = QIcon(path);
    }
    // In one size: each popup sends its icon to the window system anew, and there can be a thousand of them.
    constexpr int kCaptionIcon = 32;
    m_WindowIcon = QIcon(QIcon(":/icons/vigrel-receiver.svg").pixmap(kCaptionIcon));
}

cPopupWidgetMaker::~cPopupWidgetMaker() {
    while (!m_Stack.Order().empty()) delete m_Stack.Order().front();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

cPopupWindow& cPopupWidgetMaker::MakePopup() {
    if (m_Stack.Order().empty()) m_Step = 0;
    auto* popup = new cPopupWidget(m_Windows, m_Stack, m_Icons);
    popup->setWindowIcon(m_WindowIcon);
    m_Windows.Enter(*popup);
    const QPoint place = NextPlace(popup->size());
    popup->SetLeft(ToTwips(place.x()));
    popup->SetTop(ToTwips(place.y()));
    return *popup;
}

// Down a stair, so that every caption can be seen; at the screen's edge it begins anew.
QPoint cPopupWidgetMaker::NextPlace(QSize size) {
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    constexpr int kStair = 26;  // the height of a caption, about
    const int steps = std::min(room.width() - size.width(), room.height() - size.height()) / kStair - 1;
    const int step = 1 + m_Step++ % std::max(steps, 1);
    return room.topLeft() + QPoint(step, step) * kStair;
}

}  // namespace vigrel
