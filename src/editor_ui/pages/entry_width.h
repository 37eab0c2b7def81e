#pragma once

class QListWidget;

namespace vigrel {

// Makes a list as wide as its entries, but no wider than a long name. Its height is what the page has left.
void KeepToEntries(QListWidget& list);

}  // namespace vigrel
