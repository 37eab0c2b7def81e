#include "editor_ui/pages/entry_width.h"

#include <QListWidget>
#include <QStyle>
#include <algorithm>

namespace vigrel {
namespace {

constexpr int kMostLetters = 40, kLeastRows = 4;

}  // namespace

void KeepToEntries(QListWidget& list) {
    const QFontMetrics metrics = list.fontMetrics();
    const int around = 2 * list.frameWidth() + list.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const int most = metrics.averageCharWidth() * kMostLetters;
    list.setMinimumWidth(std::min(list.sizeHintForColumn(0), most) + around);
    list.setMinimumHeight(metrics.height() * kLeastRows);
    list.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
}

}  // namespace vigrel
