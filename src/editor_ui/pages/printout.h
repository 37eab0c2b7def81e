#pragma once

#include <QList>
#include <QPainter>
#include <QPixmap>
#include <QRectF>
#include <QString>
#include <functional>
#include <string>

class QPagedPaintDevice;

namespace vigrel {

// What a page of the editor puts on paper: one sheet, in colours for a white ground.
struct cPrintout {
    QString title;  // over it, and the suggested name of a file
    // Width by height, as far as the drawing has a shape of its own; empty: all of the sheet.
    QSizeF shape;
    // Draws into a rectangle of the painter.
    std::function<void(QPainter&, const QRectF&)> paint;
    // What the pictures of the drawing mean, at the foot of the sheet.
    struct cSign {
        QPixmap image;
        QString name;
    };
    QList<cSign> legend;
};

// Title, drawing and legend in a rectangle of the painter.
void PaintSheet(QPainter& painter, const QRectF& sheet, const cPrintout& printout);

// The sheet as it fits a printout best, across with narrow margins, before the user says how it is to be.
void SetUpSheet(QPagedPaintDevice& device);

// False when nothing could be drawn on the device, a printer that is gone.
bool PrintOn(QPagedPaintDevice& device, const cPrintout& printout);
// Whether all of a sheet is in the file that it was printed into, which the toolkit doesn't tell. Of what is
// no file nothing can be known.
bool IsPrintedWhole(const QString& path);

// The sheet as a PDF file, A4 across.
std::string PdfOf(const cPrintout& printout);

}  // namespace vigrel
