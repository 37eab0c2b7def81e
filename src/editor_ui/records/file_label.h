#pragma once

#include "windows/plain_text.h"

namespace vigrel {

// Where a form tells the file of its definition: as wide as the form, in as many lines as that takes.
class cFileLabel : public cPlainLabel {
  public:
    cFileLabel();
};

}  // namespace vigrel
