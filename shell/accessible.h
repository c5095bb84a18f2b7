#pragma once
// What a screen reader is told of the controls: each control a child can act on is a button, an
// option or a box with a name in Italian, as the screen says it: its caption, or the name its
// screen gave the material ("pallina", "unità del primo numero"), or what it is.

class QWidget;

namespace contarello {

// Installs, once, the descriptions of the program's own controls.
void DescribeControlsToScreenReaders();

} // namespace contarello
