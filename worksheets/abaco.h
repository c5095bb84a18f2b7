#pragma once
// The two drawn worksheets of the abacus: a white page of eight cells, drawn when the sheet is
// loaded and printed as it shows. formSt99a gives words to put on empty abacuses, formSt99b abacuses
// to read and write in words and digits. Each opens over its exercise, which waits loaded behind.

#include "shell/form.h"

namespace contarello {

// The page: a heading at the top, eight frames in two rows of four, a box under each, and the
// menu bar "Stampa", "Esci". The items are drawn in Load, so showing the sheet again keeps them.
class SchedaAbaco : public Form {
    Q_OBJECT
public:
    void Load() override { Genera8Numeri(); }
    QJsonObject fields() const override;

    // Where the eight cells stand, in twips.
    struct Celle {
        int frameLeft[4]; // by column
        int frameTop[8];  // each cell's own top: one cell of a row may stand a little lower
        int frameWidth, frameHeight;
        int textTop[2]; // the boxes under the first and the second row
        int textWidth;
        double textPoints; // Arial bold
        bool centrato;     // the boxes' text in their middle
    };

protected:
    SchedaAbaco(Program& app, const QString& titolo, int text2Height, const Celle& celle);

    // Draws eight new numbers and shows them.
    virtual void Genera8Numeri() = 0;
    // The eight texts in their boxes, each from its first letter, all in one size.
    void Scrivi(const QString (&testi)[8]);
    // The page to the printer as it shows.
    int Disegna(); // one number, 1 to NumeroMassimo

    MultiLineTextBox* Text2;
    ControlArray<Frame> Frame1;
    ControlArray<TextBox> Text1;
    ControlArray<Label> Label1;
    MenuItem* mnustampa;
    MenuItem* mnuesci;
    // The numbers on the page, for the tests; not shown.
    int numeri_[8] = {};

private:
    double textPoints_;
};

// Eight number words, each over an empty abacus on which the child draws the beads.
class formSt99a : public SchedaAbaco {
    Q_OBJECT
public:
    explicit formSt99a(Program& app);

protected:
    void Genera8Numeri() override;

private:
    ControlArray<Line> Line1; // the two wires of cell i are 2i and 2i + 1
};

// Eight abacuses with their beads; the child writes each number in words and in digits.
class formSt99b : public SchedaAbaco {
    Q_OBJECT
public:
    explicit formSt99b(Program& app);

protected:
    void Genera8Numeri() override;

private:
    ControlArray<Line> Line1;   // tens wire of each cell
    ControlArray<Line> Line2;   // units wire
    ControlArray<Shape> Shape1; // tens beads, 9 i + j
    ControlArray<Shape> Shape2; // units beads
};

// formSt99a and formSt99b, each under its own name.
FormList AbacoSheetForms();

} // namespace contarello
