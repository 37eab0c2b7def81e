#include "windows/desktop.h"

#include <QApplication>
#include <QClipboard>
#include <QScreen>

#include "adapters/qt/qt_text.h"
#include "windows/twips.h"

namespace vigrel {

double cQtScreen::Width() const {
    return ToTwips(QGuiApplication::primaryScreen()->geometry().width());
}
double cQtScreen::Height() const {
    return ToTwips(QGuiApplication::primaryScreen()->geometry().height());
}
double cQtScreen::TwipsPerPixelX() const {
    return kTwipsPerPixel;
}
double cQtScreen::TwipsPerPixelY() const {
    return kTwipsPerPixel;
}

void cQtClipboard::Clear() {
    QGuiApplication::clipboard()->clear();
}
void cQtClipboard::SetText(std::string_view text) {
    QGuiApplication::clipboard()->setText(ToQString(text));
}

void cQtBeeper::Beep() {
    if (!m_PlayTone || !m_PlayTone()) QApplication::beep();
}

}  // namespace vigrel
