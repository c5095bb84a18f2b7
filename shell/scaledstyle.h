#pragma once
// The toolkit's own boxes and drop-down menus at the program's scale.

class QWidget;

namespace contarello {

// Gives the widget and everything in it a style whose margins, spacings, frames, icons and
// smallest buttons grow with the program's factor, as the screens' own controls do; its font is
// the caller's. For widgets the toolkit lays out itself: message and input boxes, drop-down menus.
void FollowTheScale(QWidget& w);

} // namespace contarello
