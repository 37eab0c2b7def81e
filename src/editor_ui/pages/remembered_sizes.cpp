#include "editor_ui/pages/remembered_sizes.h"

#include <QSettings>
#include <QSplitter>

namespace vigrel {

void RememberSizes(QSplitter& splitter, QSettings& settings, const QString& name) {
    const QString key = "Sizes/" + name;
    splitter.setObjectName("Splitter_" + name);
    splitter.restoreState(settings.value(key).toByteArray());
    QObject::connect(&splitter, &QSplitter::splitterMoved, &splitter,
                     [&splitter, &settings, key] { settings.setValue(key, splitter.saveState()); });
}

}  // namespace vigrel
