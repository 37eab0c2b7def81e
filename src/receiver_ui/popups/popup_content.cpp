#include "receiver_ui/popups/popup_content.h"

#include <QApplication>
#include <QScrollBar>

#include "adapters/qt/qt_text.h"
#include "windows/colours.h"
#include "windows/fonts.h"
#include "windows/twips.h"

namespace vigrel {

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

void SetRole(QWidget& widget, QPalette::ColorRole role, std::int32_t colour) {
    QPalette palette = widget.palette();
    palette.setColor(role, ColourFromNumber(colour));
    widget.setPalette(palette);
}

cPopupContent::cPopupContent(QWidget& popup, const PopupIcons& icons) : m_Label(&popup) {
    MakePictures(popup, icons);
    MakeLabel();
}

void cPopupContent::MakePictures(QWidget& popup, const PopupIcons& icons) {
    for (int i = 0; i < cPopupWindow::kPictures; ++i) {
        const auto index = static_cast<std::size_t>(i);
        m_Pictures[index] = new cPopupPicture(i, icons[index], &popup);
        m_Pictures[index]->setGeometry(ToPixels(kPictureLeft), ToPixels(kPictureTop), cPopupPicture::kSize,
                                       cPopupPicture::kSize);
        QObject::connect(m_Pictures[index], &QAbstractButton::clicked, &popup, [this, i] {
            if (OnPictureClick) OnPictureClick(i);
        });
    }
}

void cPopupContent::MakeLabel() {
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
}

void cPopupContent::SetFont(const QFont& font) {
    m_Label.setFont(font);
    m_Label.setTabStopDistance(8 * m_Label.fontMetrics().averageCharWidth());
}

void cPopupContent::SetLabelFont(std::string_view name, double points) {
    QFont font = FontOf(name, points);
    font.setBold(m_Label.font().bold());
    font.setItalic(m_Label.font().italic());
    SetFont(font);
}

void cPopupContent::SetLabelFontStyle(bool bold, bool italic) {
    QFont font = m_Label.font();
    font.setBold(bold);
    font.setItalic(italic);
    SetFont(font);
}

}  // namespace vigrel
