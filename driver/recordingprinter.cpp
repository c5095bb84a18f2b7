#include "driver/recordingprinter.h"
#include "shell/printout.h"

#include <QJsonArray>
#include <QPageLayout>
#include <QPainter>
#include <QWidget>

namespace contarello {

void RecordingPrinter::endDoc() {
    log_.add({{"event", "print"},
              {"font", font_},
              {"size", size_},
              {"text", takeText()},
              {"name", takeDocName()}});
}

void RecordingPrinter::printForm(QWidget& form, const QString& formName) {
    // An A4 page at 72 dots to the inch with margins of a centimetre, white as paper.
    const QPageLayout a4(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(10, 10, 10, 10),
                         QPageLayout::Millimeter);
    lastPage_ = QImage(a4.fullRectPixels(72).size(), QImage::Format_RGB32);
    lastPage_.fill(Qt::white);
    QPainter p(&lastPage_);
    PaintScreen(p, a4.paintRectPixels(72), form);
    log_.add({{"event", "printform"}, {"form", formName}, {"name", takeDocName()}});
}

} // namespace contarello
