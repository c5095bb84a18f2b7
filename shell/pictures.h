#pragma once
// The pictures of the buttons, drawn here rather than loaded: 32 by 32 pixels each.

#include <QPixmap>

namespace contarello::pictures {

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
