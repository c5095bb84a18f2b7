#pragma once
// A finger on a screen. A tap is the left button of a mouse on the control it lands on; a finger
// that rests on a control taking a mouse button is its right button, with a ring that fills while
// it rests; a finger that slides from a label that can be dragged places it on the control it lifts
// over. A finger lands beside small things: when it lands on nothing a child can act on, the nearest
// such control a little way off takes it. A second finger down at the same time is ignored.

namespace contarello {

class Form;

// How long a finger rests, on the program's clock, before it is the right button.
constexpr int kHoldMs = 600;
// How far a finger may land beside a control and still reach it, and how far it may wander before
// it slides, in twips at the screen's scale.
constexpr int kReachTwips = 225;
constexpr int kSlideTwips = 150;

// Makes the screen take touches, once, as it is made; the first touch of the run starts lavagna mode.
void TakeTouches(Form& form);

} // namespace contarello
