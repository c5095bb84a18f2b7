#pragma once
// How the controls look: the colour a caption is written in against what it stands on, the faded
// look of what can't be used, and the drawing of the controls that paint themselves
// (shell/look.cpp holds their paint events beside these rules).

#include <QColor>
#include <QPixmap>

namespace contarello {

// How far apart two colours stand to the eye: 1 for the same, 21 for black on white.
double Contrasto(QColor a, QColor b);
// Black or white, whichever reads better on the given ground.
QColor InchiostroSu(QColor fondo);
// a and b mixed, with the share of a given: halfway by default, how a disabled caption fades into
// what it stands on.
QColor blend(QColor a, QColor b, double quota = 0.5);
// A picture in light greys, its shape kept.
QPixmap greyed(const QPixmap& pm);

// What the controls of a screen stand on, at the bottom of their parents: its colour ends the search
// for a caption's ground, and a fill changed on one control refits the inks of them all. The screen
// is one; the controls reach it through this alone.
class Backdrop {
public:
    virtual ~Backdrop() = default;
    virtual QColor groundColour() const = 0;
    virtual void fitInks() = 0;
};

} // namespace contarello
