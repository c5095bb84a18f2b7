#pragma once
// The pictures of the buttons, drawn here rather than loaded: 32 by 32 pixels each.

#include <QPixmap>
#include <functional>

class QPainter;

namespace contarello::pictures {

// A picture of a screen's own, drawn on the same 32 by 32 grid as these and grown with them.
QPixmap Disegna(const std::function<void(QPainter&)>& draw);

QPixmap FacciaSorridente(); // round yellow face, smiling
QPixmap FacciaTriste();     // round yellow face, sad
QPixmap Freccia();          // light grey arrow with a dark blue edge, pointing right
QPixmap ManoAlzata();       // a raised hand, for leaving
QPixmap Avvio();            // a green "go" triangle in a circle, for the start screen
QPixmap Stampante();        // a printer, for the print buttons
QPixmap FoglioNuovo();      // a fresh sheet with a star
QPixmap Porta();            // an open door, for leaving a worksheet
QPixmap FrecciaCircolare(); // a green arrow turning back on itself: "start again"

} // namespace contarello::pictures
