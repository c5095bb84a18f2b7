#pragma once
// A printer that records each document and each printed screen for the driver and the tests, and
// keeps the last printed page as a picture so that a test can look at it.

#include "core/services.h"

#include <QImage>

namespace contarello {

class RecordingPrinter : public BufferedPrinter {
public:
    explicit RecordingPrinter(EventLog& log) : log_(log) {}
    void endDoc() override;
    void printForm(QWidget& form, const QString& formName) override;
    // The page of the last printed screen, at a low resolution.
    const QImage& lastPage() const { return lastPage_; }

private:
    QImage lastPage_;
    EventLog& log_;
};

} // namespace contarello
