#include "shell/printout.h"
#include "core/lang.h"
#include "shell/fonts/fonts.h"
#include "shell/form.h"
#include "shell/program.h"

#include <QBuffer>
#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QWidget>
#include <algorithm>

namespace contarello {

void PaintText(QPainter& p, QPagedPaintDevice& device, const TestoStampato& documento) {
    QFont f(ProgramFamily()); // the sheet's "MS Sans Serif", in the program's one face
    f.setPointSizeF(documento.fontSize);
    p.setFont(f);
    const QFontMetrics m = p.fontMetrics();
    const int pageHeight = device.pageLayout().paintRectPixels(device.logicalDpiY()).height();
    int y = m.ascent();
    QStringList lines = documento.text.split(QStringLiteral("\r\n"));
    if (!lines.isEmpty() && lines.last().isEmpty()) lines.removeLast();
    for (const QString& line : lines) {
        if (y + m.descent() > pageHeight) {
            if (!device.newPage()) break;
            y = m.ascent();
        }
        QString shown = line;
        shown.remove(u'\n').remove(u'\r');
        p.drawText(0, y, shown);
        y += m.lineSpacing();
    }
}

void PaintScreen(QPainter& p, const QRect& page, QWidget& widget) {
    // A screen prints what stands under its menu bar, drawn at the page's resolution: its text stays
    // text and its shapes stay sharp.
    QRect area = widget.rect();
    if (auto* form = qobject_cast<Form*>(&widget))
        area = QRect(form->client()->mapTo(form, QPoint(0, 0)), form->client()->size());
    if (area.width() <= 0 || area.height() <= 0 || page.isEmpty()) return;
    const double scale = std::min(double(page.width()) / area.width(), double(page.height()) / area.height());
    p.save();
    p.translate(page.left() + (page.width() - area.width() * scale) / 2, page.top());
    p.scale(scale, scale);
    widget.render(&p, QPoint(), QRegion(area), QWidget::DrawWindowBackground | QWidget::DrawChildren);
    p.restore();
}

void PaintWidget(QPainter& p, QPagedPaintDevice& device, QWidget& widget) {
    const QRect page = device.pageLayout().paintRectPixels(device.logicalDpiX());
    PaintScreen(p, QRect(QPoint(0, 0), page.size()), widget);
}

namespace {

// The pages are drawn into memory first, so that a failure to write can't leave half a file.
template <typename Draw> EsitoPdf Scrivi(const QString& path, const QString& title, Draw draw) {
    QByteArray bytes;
    {
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter writer(&buffer);
        writer.setTitle(title);
        writer.setCreator(kTitolo);
        // The margins a printer leaves of itself, so the page looks as it does on paper.
        writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                         QMarginsF(10, 10, 10, 10), QPageLayout::Millimeter));
        QPainter p;
        if (!p.begin(&writer)) return {false, QStringLiteral("non si riesce a comporre le pagine")};
        draw(p, writer);
        p.end();
    }

    const QFileInfo file(path);
    const QFileInfo folder(file.absolutePath());
    if (!folder.isDir()) return {false, QStringLiteral("la cartella non esiste")};
    if (file.isDir()) return {false, QStringLiteral("con quel nome c'è già una cartella")};
    QSaveFile out(path);
    // Unbuffered, so that a disk that fills up shows in the write itself: the buffered close
    // doesn't always tell a short write.
    if (!out.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        if (!folder.isWritable() || (file.exists() && !file.isWritable()))
            return {false, QStringLiteral("non c'è il permesso di scrivere lì")};
        return {false, QStringLiteral("il file non si può creare (") + out.errorString() + u')'};
    }
    if (out.write(bytes) != bytes.size() || !out.commit())
        return {false, QStringLiteral("il disco è pieno o non accetta il file")};
    return {};
}

void Avvisa(Program& app, const QString& path, const EsitoPdf& esito) {
    app.dialogs.MsgBox(QStringLiteral("Il file PDF non è stato salvato:") + CRLF +
                           QDir::toNativeSeparators(path) + CRLF + CRLF + esito.perche.left(1).toUpper() +
                           esito.perche.mid(1) + QStringLiteral(".") + CRLF +
                           QStringLiteral("Niente è andato perso: si può scegliere un'altra cartella."),
                       vbCritical, kTitolo);
}

const QString kFiltroPdf = QStringLiteral("Documenti PDF (*.pdf)");

} // namespace

EsitoPdf ScriviPdf(const QString& path, const QString& title, const std::vector<TestoStampato>& documenti) {
    return Scrivi(path, title, [&](QPainter& p, QPdfWriter& writer) {
        for (size_t i = 0; i < documenti.size(); ++i) {
            if (i > 0) writer.newPage();
            PaintText(p, writer, documenti[i]);
        }
    });
}

EsitoPdf ScriviPdf(const QString& path, const QString& title, QWidget& widget) {
    return Scrivi(path, title, [&](QPainter& p, QPdfWriter& writer) { PaintWidget(p, writer, widget); });
}

QString NomeFilePdf(const QString& documento) {
    return documento + QStringLiteral(" - ") + QDate::currentDate().toString(Qt::ISODate) +
           QStringLiteral(".pdf");
}

void SalvaPdf(Program& app, const QString& title, const std::vector<TestoStampato>& documenti) {
    const QString path = app.dialogs.SaveFile(QStringLiteral("Salva PDF"), NomeFilePdf(title), kFiltroPdf);
    if (path.isEmpty()) return;
    const EsitoPdf esito = ScriviPdf(path, title, documenti);
    if (!esito.ok) Avvisa(app, path, esito);
}

void SalvaPdf(Program& app, QWidget& widget, const QString& title) {
    const QString path = app.dialogs.SaveFile(QStringLiteral("Salva PDF"), NomeFilePdf(title), kFiltroPdf);
    if (path.isEmpty()) return;
    const EsitoPdf esito = ScriviPdf(path, title, widget);
    if (!esito.ok) Avvisa(app, path, esito);
}

} // namespace contarello
