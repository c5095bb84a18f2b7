#pragma once
// The table of the numbers 0 to 99 that four kinds of screen share: a hundred cells in ten rows of
// ten, 0 at the top left, and the frame's counters, faces and "avanti" in a column at its right.

#include "shell/exercise.h"

namespace contarello {

// One cell of the table. A hundred of them stand on a screen at once, so each paints itself
// flat, in one fill and one caption, and a new colour repaints the cell alone.
class Casella : public CommandButton {
    Q_OBJECT
public:
    explicit Casella(QWidget* parent);
    void setBackColor(QColor c) override;

protected:
    void paintEvent(QPaintEvent*) override;
};

// The colours of a cell: as the table starts, and once its number is found or asked for.
inline const QColor kCellaLibera{0xc0, 0xff, 0xc0};
inline const QColor kCellaRossa = kRosso;

// Where a control of the right-hand column stands, in twips.
struct ColonnaTabella {
    static constexpr int left = 6360;
    static constexpr int width = 3000;
};

// A screen with the table: the cells made, numbered and placed, and the frame laid out beside it.
class TabellaForm : public ExerciseForm {
    Q_OBJECT
public:
    TabellaForm(Program& app, int16_t numeroScheda, FrameOptions options = {});

protected:
    // Writes every cell's number into it, with the leading blank of Str.
    void ScriviTutti();
    // Each cell enabled again, as a new round of the table starts.
    void AbilitaTutte();
    // A click on cell i; by default, where a click answers nothing, the cell says its number.
    virtual void Numero_Click(int i) { DiNumero(Numero(i)->Caption()); }
    // The frame's options with the table's layout: the frame's controls in the right-hand column.
    static FrameOptions Opzioni(FrameOptions options);

    ControlArray<Casella> Numero;
};

} // namespace contarello
