#include "receiver_ui/popups/popup_widget.h"

#include <QAccessible>
#include <QApplication>
#include <QFile>
#include <QKeyEvent>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "windows/seen_place.h"

namespace vigrel {
namespace {

// Esc, and Alt+F4 for window managers that leave the key to the window.
bool IsCloseKey(const QKeyEvent& key) {
    const bool escape = key.key() == Qt::Key_Escape && key.modifiers() == Qt::NoModifier;
    return escape || (key.key() == Qt::Key_F4 && key.modifiers() == Qt::AltModifier);
}

int LabelLength(double twips, const char* what) {
    if (twips < 0) throw cFailure(eFailure::InvalidCall, std::string("label: negative ") + what);
    return ToPixels(twips);
}

void CheckPicture(int picture) {
    if (picture < 0 || picture >= cPopupWindow::kPictures)
        throw cFailure(eFailure::OutOfBounds, "no such picture");
}

}  // namespace

cPopupWidget::cPopupWidget(cOpenWindows& windows, cPopupStack& stack, const PopupIcons& icons)
    : cWidgetWindow(kPopupKind, windows), m_Stack(stack), m_Icons(icons) {
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAutoFillBackground(true);
    setMinimumSize(120, 40);
    resize(ToPixels(6768), ToPixels(1260));
    constexpr std::int32_t kDesignColour = 0xF0F0F0;
    cPopupWidget::SetBackColour(kDesignColour);
    cPopupWidget::SetLabelBackColour(kDesignColour);
    m_Stack.Raise(*this);
}

void cPopupWidget::Build() {
    if (m_Content) return;
    m_Content = std::make_unique<cPopupContent>(*this, m_Icons);
    m_Content->OnPictureClick = [this](int picture) {
        if (OnPictureClick) OnPictureClick(picture);
    };
    for (const ContentStep& step : std::exchange(m_Steps, {})) step(*m_Content);
}

void cPopupWidget::WithContent(ContentStep step) {
    if (m_Content) {
        step(*m_Content);
    } else {
        m_Steps.push_back(std::move(step));
    }
}

// --- place and visibility

void cPopupWidget::SetLeft(double twips) {
    m_Place = QPoint(ToPixels(twips), m_Place ? m_Place->y() : Place().y());
    m_Stack.Schedule(*this);
}

void cPopupWidget::SetTop(double twips) {
    m_Place = QPoint(m_Place ? m_Place->x() : Place().x(), ToPixels(twips));
    m_Stack.Schedule(*this);
}

void cPopupWidget::Show() {
    if (m_Shown) return;
    m_Shown = true;
    m_Stack.Raise(*this);
}

void cPopupWidget::Hide() {
    if (!m_Shown) return;
    m_Shown = false;
    m_Stack.Schedule(*this);
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
    const QPoint place = SeenPlace({*m_Place, frameGeometry().size()});
    m_Place.reset();
    if (place != Place() || !testAttribute(Qt::WA_Moved)) PlaceAt(place);
}

void cPopupWidget::Map() {
    Build();
    Reappear();
    ShowBesideMenus();
    // Screen readers speak it, as they would a message box.
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void cPopupWidget::Closed() {
    m_Shown = false;
    m_Stack.Remove(*this);
    if (isActiveWindow()) m_Stack.PassKeyboardOn();
    deleteLater();
}

void cPopupWidget::keyPressEvent(QKeyEvent* event) {
    if (!IsCloseKey(*event)) return QWidget::keyPressEvent(event);
    // A key that is held down must not close one popup after the other.
    if (!event->isAutoRepeat() && TryClose(eCloseReason::Control)) hide();
}

// --- look

void cPopupWidget::SetForeColour(std::int32_t colour) {
    SetRole(*this, QPalette::WindowText, colour);
}

void cPopupWidget::SetBackColour(std::int32_t colour) {
    SetRole(*this, QPalette::Window, colour);
}

void cPopupWidget::SetLabelText(std::string_view text) {
    WithContent([text = PopupText(text)](cPopupContent& content) { content.Label().ShowText(text); });
}

void cPopupWidget::SetLabelForeColour(std::int32_t colour) {
    WithContent([colour](cPopupContent& content) { SetRole(content.Label(), QPalette::Text, colour); });
}

void cPopupWidget::SetLabelBackColour(std::int32_t colour) {
    WithContent([colour](cPopupContent& content) { SetRole(content.Label(), QPalette::Base, colour); });
}

void cPopupWidget::SetLabelFont(std::string_view name, double points) {
    WithContent(
        [name = std::string(name), points](cPopupContent& content) { content.SetLabelFont(name, points); });
}

void cPopupWidget::SetLabelFontStyle(bool bold, bool italic) {
    WithContent([bold, italic](cPopupContent& content) { content.SetLabelFontStyle(bold, italic); });
}

void cPopupWidget::SetLabelLeft(double twips) {
    WithContent([left = ToPixels(twips)](cPopupContent& content) {
        content.Label().move(left, content.Label().y());
    });
}

void cPopupWidget::SetLabelTop(double twips) {
    WithContent(
        [top = ToPixels(twips)](cPopupContent& content) { content.Label().move(content.Label().x(), top); });
}

void cPopupWidget::SetLabelWidth(double twips) {
    WithContent([width = LabelLength(twips, "width")](cPopupContent& content) {
        content.Label().resize(width, content.Label().height());
    });
}

void cPopupWidget::SetLabelHeight(double twips) {
    WithContent([height = LabelLength(twips, "height")](cPopupContent& content) {
        content.Label().resize(content.Label().width(), height);
    });
}

void cPopupWidget::SetPictureBackColour(int picture, std::int32_t colour) {
    CheckPicture(picture);
    WithContent([picture, colour](cPopupContent& content) {
        SetRole(content.Picture(picture), QPalette::Window, colour);
    });
}

void cPopupWidget::SetPictureVisible(int picture, bool visible) {
    CheckPicture(picture);
    WithContent([picture, visible](cPopupContent& content) { content.Picture(picture).setVisible(visible); });
}

double cPopupWidget::PictureLeft(int picture) const {
    CheckPicture(picture);
    return cPopupContent::kPictureLeft;
}

double cPopupWidget::PictureWidth(int picture) const {
    CheckPicture(picture);
    return cPopupContent::kPictureWidth;
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
