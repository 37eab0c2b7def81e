#pragma once

#include <QString>

#include "common/phrase.h"

namespace vigrel {

// What the logic says, such as why something failed, in the editor's language.
QString Told(const cPhrase& phrase);

}  // namespace vigrel
