#include "editor_ui/pages/reasons.h"

#include <QCoreApplication>

#include "adapters/qt/qt_text.h"
#include "common/failure.h"
#include "windows/short_text.h"

namespace vigrel {

QString Told(const cPhrase& phrase) {
    const QString told = WithPathsToQString(phrase.Told([](const cPattern& pattern) {
        return FromQString(QCoreApplication::translate(pattern.context, pattern.english));
    }));
    return FewLines(told);
}

QString ToldReason(const cFailure& failure) {
    return Told(failure.Description()).replace('\\', '/');
}

}  // namespace vigrel
