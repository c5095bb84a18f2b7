#pragma once
// Work that waits until a window has been painted once: what the start screen doesn't need is
// made after the child sees it, and the start-up benchmark quits there.

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QTimer>
#include <functional>

namespace contarello {

// Watches one window; after its first paint has finished, runs the work once and goes.
class AfterFirstPaint : public QObject {
public:
    AfterFirstPaint(QObject* window, std::function<void()> work) : QObject(window), work_(std::move(work)) {
        window->installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* e) override {
        if (e->type() == QEvent::Paint && work_) {
            watched->removeEventFilter(this);
            // The children paint after the window itself: the work waits for the whole picture.
            QTimer::singleShot(0, this, [this] {
                std::exchange(work_, nullptr)();
                deleteLater();
            });
        }
        return QObject::eventFilter(watched, e);
    }

private:
    std::function<void()> work_;
};

// For the start-up benchmark: the program ends as soon as the window has been painted once.
inline void ExitAfterFirstPaint(QObject* window) {
    new AfterFirstPaint(window, [] { QCoreApplication::exit(0); });
}

} // namespace contarello
