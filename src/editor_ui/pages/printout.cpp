#include "editor_ui/pages/printout.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPdfWriter>
#include <algorithm>

namespace vigrel {
namespace {

constexpr double kTitleShare = 0.05;  // of the sheet's height
constexpr double kMargin = 12;        // millimetres
constexpr double kFootShare = 0.08;   // of the sheet's height, for a legend
constexpr int kFootLines = 2, kLeastColumns = 4;

// The largest rectangle of a shape in a place, at its top.
QRectF Fitted(const QRectF& place, const QSizeF& shape) {
    if (shape.isEmpty()) return place;
    const QSizeF size = shape.scaled(place.size(), Qt::KeepAspectRatio);
    return {place.left() + (place.width() - size.width()) / 2, place.top(), size.width(), size.height()};
}

// In columns, as wide as there are signs: of many none is left out.
void PaintLegend(QPainter& painter, const QRectF& foot, const QList<cPrintout::cSign>& legend) {
    const auto signs = static_cast<int>(legend.size());
    const int columns = std::max((signs + kFootLines - 1) / kFootLines, kLeastColumns);
    const double width = foot.width() / columns, line = foot.height() / kFootLines, size = line * 0.8;
    for (int i = 0; i < signs; ++i) {
        const int row = i / columns, column = i % columns;
        const QPointF place(foot.left() + column * width, foot.top() + row * line);
        painter.drawPixmap(QRectF(place, QSizeF(size, size)), legend[i].image, legend[i].image.rect());
        const QRectF name(place.x() + line, place.y(), width - line * 1.5, size);
        const auto room = static_cast<int>(name.width());
        painter.drawText(name, Qt::AlignVCenter | Qt::TextDontClip,
                         painter.fontMetrics().elidedText(legend[i].name, Qt::ElideMiddle, room));
    }
}

}  // namespace

void SetUpSheet(QPagedPaintDevice& device) {
    device.setPageOrientation(QPageLayout::Landscape);
    device.setPageMargins({kMargin, kMargin, kMargin, kMargin}, QPageLayout::Millimeter);
}

bool PrintOn(QPagedPaintDevice& device, const cPrintout& printout) {
    QPainter painter;
    if (!painter.begin(&device)) return false;
    PaintSheet(painter, QRectF(0, 0, device.width(), device.height()), printout);
    return painter.end();
}

bool IsPrintedWhole(const QString& path) {
    constexpr qint64 kEnd = 16;  // bytes, more than the mark and its line ends
    if (!QFileInfo(path).isFile()) return true;
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.seek(std::max<qint64>(file.size() - kEnd, 0)) &&
           file.read(kEnd).contains("%%EOF");
}

void PaintSheet(QPainter& painter, const QRectF& sheet, const cPrintout& printout) {
    const double head = sheet.height() * kTitleShare;
    const double foot = printout.legend.isEmpty() ? 0 : sheet.height() * kFootShare;
    QFont font = QGuiApplication::font();
    font.setPixelSize(static_cast<int>(head * 0.6));
    font.setBold(true);
    painter.setFont(font);
    const QString title =
        painter.fontMetrics().elidedText(printout.title, Qt::ElideMiddle, static_cast<int>(sheet.width()));
    painter.drawText(QRectF(sheet.topLeft(), QSizeF(sheet.width(), head)), Qt::AlignTop, title);
    font.setBold(false);
    painter.setFont(font);
    printout.paint(painter, Fitted(sheet.adjusted(0, head, 0, -foot * 1.2), printout.shape));
    PaintLegend(painter, QRectF(sheet.left(), sheet.bottom() - foot, sheet.width(), foot), printout.legend);
}

std::string PdfOf(const cPrintout& printout) {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&bytes);
        writer.setTitle(printout.title);
        writer.setPageSize(QPageSize(QPageSize::A4));
        SetUpSheet(writer);
        PrintOn(writer, printout);
    }
    return bytes.data().toStdString();
}

}  // namespace vigrel
