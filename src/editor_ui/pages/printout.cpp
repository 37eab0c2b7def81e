#include "editor_ui/pages/printout.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPdfWriter>

namespace vigrel {
namespace {

constexpr double kTitleShare = 0.05;  // of the sheet's height
constexpr double kMargin = 12;        // millimetres

// The largest rectangle of a shape in a place, at its top.
QRectF Fitted(const QRectF& place, const QSizeF& shape) {
    if (shape.isEmpty()) return place;
    const QSizeF size = shape.scaled(place.size(), Qt::KeepAspectRatio);
    return {place.left() + (place.width() - size.width()) / 2, place.top(), size.width(), size.height()};
}

}  // namespace

void SetUpSheet(QPagedPaintDevice& device) {
    device.setPageOrientation(QPageLayout::Landscape);
    device.setPageMargins({kMargin, kMargin, kMargin, kMargin}, QPageLayout::Millimeter);
}

bool PrintOn(QPagedPaintDevice& device, const cPrintout& printout) {
    QPainter painter;
    if (!painter.begin(&device)) return false;
    const QRectF sheet(0, 0, device.width(), device.height());
    QFont font = QGuiApplication::font();
    font.setPixelSize(static_cast<int>(sheet.height() * kTitleShare * 0.6));
    font.setBold(true);
    painter.setFont(font);
    painter.drawText(QRectF(0, 0, sheet.width(), sheet.height() * kTitleShare), Qt::AlignTop, printout.title);
    font.setBold(false);
    painter.setFont(font);
    printout.paint(painter, Fitted(sheet.adjusted(0, sheet.height() * kTitleShare, 0, 0), printout.shape));
    return painter.end();
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
