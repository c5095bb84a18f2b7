#pragma once
// Fingers on a touch screen, for the driver and the tests: real touch events from a registered
// touch screen device, delivered to a window as the window system delivers them.

#include <QList>
#include <QPoint>

class QWindow;

namespace contarello {

class Control;

// Where a finger touches a control: the middle of its widget, or of its item on the menu bar or on
// an open menu, on the display; and the window that shows it. False if nothing of it shows.
bool TouchPoint(Control& control, QPoint& global, QWindow*& window);

struct FingerAt {
    int id;
    QPoint global; // on the display
};

class TouchScreen {
public:
    // Fingers that land, move, or lift, each with the others still down as they stand; false if
    // the window took none of it.
    bool land(QWindow* window, FingerAt finger);
    bool move(QWindow* window, FingerAt finger);
    bool lift(QWindow* window, FingerAt finger);

private:
    bool send(QWindow* window, FingerAt finger, int state);
    QList<FingerAt> down_;
};

} // namespace contarello
