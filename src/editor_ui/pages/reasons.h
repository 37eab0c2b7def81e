#pragma once

#include <QString>

#include "common/phrase.h"

namespace vigrel {

class cFailure;

// What the logic says, such as why something failed, in the editor's language. What was typed stands in it,
// and is left out in part where it is long.
QString Told(const cPhrase& phrase);
// Why it failed; paths are as the operator knows them, with the separators of this system.
QString ToldReason(const cFailure& failure);

}  // namespace vigrel
