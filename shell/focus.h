#pragma once
// Every action of a screen from the keyboard, for every screen at once: Tab goes through the
// controls a child can act on in reading order, the arrows move to the nearest one in their
// direction, Enter and Space are the left mouse button on the focused control and Delete and the
// menu key the right one, Escape puts back a label picked up, F10 opens the menu bar and F11 the
// full screen. A thick ring shows where the focus is once a key has moved it.

#include <QRect>
#include <vector>

class QWidget;

namespace contarello {

class Control;
class Form;

// Gives the screen its ring and its keys; the screen's constructor calls it once.
void KeyboardFor(Form& form);

// The controls of the screen the focus can reach now, in reading order: top to bottom, and left to
// right along a row. A panel lying over the whole screen keeps the focus among its own controls.
std::vector<Control*> FocusOrder(Form& form);

// Puts the focus on the first, in reading order, of the controls among that it can reach now; true
// if there was one.
bool FocusFirst(Form& form, const std::vector<Control*>& among);

// The focus on the next control of FocusOrder after the one that has it (or the one before); false
// when there is none to go to.
bool FocusNext(Form& form, bool next);

// Whether the focus ring shows: from the moment a key moves the focus, on this screen and the next
// ones, until the mouse is used again.
bool RingShown(const Form& form);
// Where the ring is drawn around the focused control, in the screen's pixels; empty when it doesn't
// show. The ring's inner edge touches the control, its width is RingWidth.
QRect RingRect(const Form& form);
int RingWidth();

} // namespace contarello
