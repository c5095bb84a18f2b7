#include "driver/touchscreen.h"

#include "shell/menuitem.h"

#include <QAction>
#include <QEventPoint>
#include <QMenu>
#include <QMenuBar>
#include <QWindow>
#include <QtGui/qtestsupport_gui.h>

namespace contarello {

namespace {
// The one touch screen of the process, registered with the window system once.
const QPointingDevice* Device() {
    static QPointingDevice* device = QTest::createTouchDevice(QInputDevice::DeviceType::TouchScreen);
    return device;
}
} // namespace

bool TouchPoint(Control& control, QPoint& global, QWindow*& window) {
    QWidget* shows = nullptr;
    QPoint local;
    if (auto* item = dynamic_cast<MenuItem*>(&control)) {
        for (QObject* o : item->action()->associatedObjects()) {
            auto* w = qobject_cast<QWidget*>(o);
            if (!w || !w->isVisible()) continue;
            QRect r;
            if (auto* bar = qobject_cast<QMenuBar*>(w))
                r = bar->actionGeometry(item->action());
            else if (auto* menu = qobject_cast<QMenu*>(w))
                r = menu->actionGeometry(item->action());
            if (r.isEmpty()) continue;
            shows = w;
            local = r.center();
            break;
        }
    } else if (QWidget* w = control.widget(); w && w->isVisible()) {
        shows = w;
        local = w->rect().center();
    }
    if (!shows || !shows->window()->windowHandle()) return false;
    global = shows->mapToGlobal(local);
    window = shows->window()->windowHandle();
    return true;
}

bool TouchScreen::send(QWindow* window, FingerAt finger, int state) {
    if (!window) return false;
    QList<QEventPoint> points;
    bool known = false;
    for (FingerAt& other : down_) {
        if (other.id == finger.id) {
            known = true;
            other.global = finger.global;
            continue;
        }
        points.append(QEventPoint(other.id, QEventPoint::State::Stationary,
                                  window->mapFromGlobal(QPointF(other.global)), QPointF(other.global)));
    }
    const auto s = QEventPoint::State(state);
    if (s == QEventPoint::State::Pressed && !known) down_.append(finger);
    if (s == QEventPoint::State::Released)
        down_.removeIf([&](const FingerAt& f) { return f.id == finger.id; });
    points.append(
        QEventPoint(finger.id, s, window->mapFromGlobal(QPointF(finger.global)), QPointF(finger.global)));
    return qt_handleTouchEventv2(window, Device(), points);
}

bool TouchScreen::land(QWindow* window, FingerAt finger) {
    return send(window, finger, int(QEventPoint::State::Pressed));
}
bool TouchScreen::move(QWindow* window, FingerAt finger) {
    return send(window, finger, int(QEventPoint::State::Updated));
}
bool TouchScreen::lift(QWindow* window, FingerAt finger) {
    return send(window, finger, int(QEventPoint::State::Released));
}

} // namespace contarello
