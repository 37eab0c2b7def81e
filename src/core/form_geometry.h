#pragma once

#include "common/ini.h"
#include "platform/windows.h"

namespace vigrel {

// Keeps a window's place from run to run: keys "<name>.Top", ".Left", ".Height", ".Width" of section
// "General", in twips.
void SaveFormGeometry(const cWindow& form, cIni& ini);
// Brings a window that would reach beyond the screen, or stood on one that is gone, back into view; its size
// is left as it was. Steps that fail are skipped.
void RestoreFormGeometry(cWindow& form, const cIniReader& ini, const cScreen& screen);

}  // namespace vigrel
