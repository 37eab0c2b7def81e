#pragma once

class QSettings;
class QSplitter;
class QString;

namespace vigrel {

// Gives the splitter the sizes that the user chose for it last, and keeps those that will be chosen.
void RememberSizes(QSplitter& splitter, QSettings& settings, const QString& name);

}  // namespace vigrel
