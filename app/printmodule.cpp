// The system's printers through Qt Print Support, in a module of their own: the program loads it
// the first time something is printed, so that the start doesn't load the print libraries.

#include <QPagedPaintDevice>
#include <QPrinter>
#include <QPrinterInfo>

// The default printer, ready for a document of this name, or nothing when there is no printer.
extern "C" Q_DECL_EXPORT QPagedPaintDevice* contarello_default_printer(const QString& docName) {
    const QPrinterInfo info = QPrinterInfo::defaultPrinter();
    if (info.isNull()) return nullptr;
    auto* printer = new QPrinter(info, QPrinter::HighResolution);
    // A queue shows the name, and a PDF printer makes its file name of it: two documents no longer
    // end up in one file, the second over the first.
    printer->setDocName(docName);
    return printer;
}
