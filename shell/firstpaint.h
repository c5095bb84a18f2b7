#pragma once
// For the start-up benchmark: quits the program as soon as a window has been painted once.

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QTimer>

namespace contarello {

class ExitAfterFirstPaint : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* e) override {
        if (e->type() == QEvent::Paint && !done_) {
            done_ = true;
            QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(0); });
        }
        return QObject::eventFilter(watched, e);
    }

private:
    bool done_ = false;
};

} // namespace contarello
