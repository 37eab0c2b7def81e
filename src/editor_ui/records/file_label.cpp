#include "editor_ui/records/file_label.h"

namespace vigrel {

cFileLabel::cFileLabel() {
    setObjectName("Label_File");
    setWordWrap(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    // A form gives its own width only to what wants to grow.
    QSizePolicy growing = sizePolicy();
    growing.setHorizontalPolicy(QSizePolicy::Expanding);
    setSizePolicy(growing);
}

}  // namespace vigrel
