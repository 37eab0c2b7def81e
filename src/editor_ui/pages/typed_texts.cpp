#include "editor_ui/pages/typed_texts.h"

#include <QDataStream>
#include <QIODevice>

namespace vigrel {

// The content stands behind the typed texts, whatever bytes it has.
std::string cTypedState::Text() const {
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << static_cast<quint32>(typed.size());
    for (const auto& [field, text] : typed) stream << field << text.text << text.problem;
    return bytes.toStdString() + content;
}

cTypedState cTypedState::Of(const std::string& text) {
    cTypedState state;
    QDataStream stream(QByteArray::fromStdString(text));
    quint32 count = 0;
    stream >> count;
    for (; count > 0 && stream.status() == QDataStream::Ok; --count) {
        QString field;
        cTypedText typed;
        stream >> field >> typed.text >> typed.problem;
        state.typed[field] = typed;
    }
    state.content = text.substr(static_cast<std::size_t>(stream.device()->pos()));
    return state;
}

}  // namespace vigrel
