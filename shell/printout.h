#pragma once
// Pages on paper and in PDF files. The printer and the PDF lay a text out by the same routine, so a
// worksheet saved as PDF has the lines, the font and the size of the one printed. The PDF holds
// real text, not a picture: it can be searched and copied, and it prints sharp at any size.

#include <QString>
#include <vector>

class QPagedPaintDevice;
class QPainter;
class QWidget;

namespace contarello {

struct Program;

// One printed document: a text already broken into lines (CR LF), in its font and size.
struct TestoStampato {
    QString fontName;
    double fontSize = 12;
    QString text;
};

// Draws the text from the top of the current page, one line for each CR LF, and turns the page
// when the next line doesn't fit. A line wider than the page is not broken further.
void PaintText(QPainter& painter, QPagedPaintDevice& device, const TestoStampato& documento);

// Draws the widget as it shows, scaled to the width of the page (or its height, if that is less).
// Draws a screen, or any widget, into the rectangle of a page: scaled to fit its width (and height)
// and centred across it.
void PaintScreen(QPainter& painter, const QRect& page, QWidget& widget);
void PaintWidget(QPainter& painter, QPagedPaintDevice& device, QWidget& widget);

// Why a PDF could not be written, in words for the adult who asked for it; empty on success.
struct EsitoPdf {
    bool ok = true;
    QString perche;
};

// Writes the documents into one PDF file at path, each from a new page, titled with title. The
// file appears whole or not at all: a file already at path survives a failed write untouched.
EsitoPdf ScriviPdf(const QString& path, const QString& title, const std::vector<TestoStampato>& documenti);
// The same with the picture of a widget, drawn as vectors where it can be.
EsitoPdf ScriviPdf(const QString& path, const QString& title, QWidget& widget);

// The name proposed to the adult: "Contarello - scheda 9 - 2025-03-14.pdf".
QString NomeFilePdf(const QString& documento);

// "Salva PDF": asks where to save (the Dialogs service), writes, and tells a failure in a message
// box; on Cancel nothing happens. A drawn worksheet adds its menu item with one line:
//     mnuPdf->Click = [this] { SalvaPdf(app, *this, QStringLiteral("Contarello - scheda ...")); };
void SalvaPdf(Program& app, const QString& title, const std::vector<TestoStampato>& documenti);
void SalvaPdf(Program& app, QWidget& widget, const QString& title);

} // namespace contarello
