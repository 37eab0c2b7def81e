#include "windows/window_hiding.h"

#include <QWidget>

#include "windows/seen_place.h"

namespace vigrel {

const QRect* cWindowHiding::HiddenMaximised() const {
    return m_Maximised && m_Window.isMaximized() ? &*m_Maximised : nullptr;
}

QSize cWindowHiding::Size() const {
    if (HiddenMaximised() != nullptr) return HiddenMaximised()->size();
    const bool becomes = m_ToBeGivenUp && m_SizeBehind.isValid();
    return becomes ? m_SizeBehind + (m_Frame.Size() - m_Window.size()) : m_Frame.Size();
}

QPoint cWindowHiding::Place() const {
    if (HiddenMaximised() != nullptr) return HiddenMaximised()->topLeft();
    if (m_HiddenPlace) return *m_HiddenPlace;
    // The toolkit's own answer is without the frame now and then.
    const bool frameSeen = m_Frame.State() == cWindowFrame::eState::Seen;
    return frameSeen ? m_Window.geometry().topLeft() - m_Frame.Corner() : m_Window.pos();
}

void cWindowHiding::PlaceAt(QPoint place) {
    if (m_HiddenPlace) {
        m_HiddenPlace = place;
        m_Maximised.reset();
    } else {
        m_Window.move(place);
    }
}

void cWindowHiding::Vanish() {
    if (!m_Window.isVisible()) return;
    const bool maximised = m_Window.isMaximized();
    const QRect restored = m_Window.normalGeometry();  // of the inside
    const QPoint place = Place();
    if (maximised) m_Maximised = QRect(place, m_Frame.Size());
    m_HiddenPlace = maximised ? restored.topLeft() - m_Frame.Corner() : place;
    m_Window.hide();
    m_SizeBehind = maximised ? restored.size() : QSize();
    m_ToBeGivenUp = true;
    QMetaObject::invokeMethod(
        &m_Window, [this] { GiveUp(); }, Qt::QueuedConnection);
}

void cWindowHiding::GiveUp() {
    if (!std::exchange(m_ToBeGivenUp, false)) return;
    m_GiveUp();
    if (m_SizeBehind.isValid()) m_Window.resize(m_SizeBehind);
}

void cWindowHiding::Reappear() {
    if (!m_HiddenPlace) return;
    GiveUp();
    const QPoint place = SeenPlace({*m_HiddenPlace, m_Frame.Size()});
    // By the inside, for which the toolkit needs to know nothing of the frame.
    m_Window.setGeometry(QRect(place + m_Frame.Corner(), m_Window.size()));
    m_HiddenPlace.reset();
    m_Maximised.reset();
}

}  // namespace vigrel
