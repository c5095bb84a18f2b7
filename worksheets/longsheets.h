#pragma once
// The two drawn worksheets of longs and units, printed as pictures of the screen. formStampa1 gives
// eight number words: the child draws each with longs and units and writes its digits. formStampa4
// draws eight numbers with longs and units: the child writes each in words and in digits.

#include "shell/exercise.h" // Rect

namespace contarello {

// What both pages share: a white page of eight cells under a heading the adult may edit, and a
// menu that prints the page as it shows or leaves it.
class LongsSheetForm : public Form {
    Q_OBJECT
public:
    void CloseBox() override { UnloadMe(); }

protected:
    // The heading is a line of its own at the top of the page, at the given top and height.
    LongsSheetForm(Program& app, const QString& intestazione, int topTesta, int altezzaTesta);
    // Makes cell i: its frame and the box under it, in twips.
    void Cella(int i, Rect frame, Rect box, const QFont& font, Qt::Alignment allineamento);
    // The eight items of the page.
    virtual void Genera8Numeri() = 0;

    MultiLineTextBox* Text2;
    ControlArray<Frame> Frame1;
    ControlArray<TextBox> Text1;
    MenuItem* mnustampa;
    MenuItem* mnuesci;
};

// Eight number words, drawn once when the page opens: showing it again keeps them.
class formStampa1 : public LongsSheetForm {
    Q_OBJECT
public:
    explicit formStampa1(Program& app);
    void Load() override { Genera8Numeri(); }

protected:
    void Genera8Numeri() override;
};

// Eight numbers in longs and units, drawn anew each time the page comes to the front.
class formStampa4 : public LongsSheetForm {
    Q_OBJECT
public:
    explicit formStampa4(Program& app);
    void Activate() override { Genera8Numeri(); }

protected:
    void Genera8Numeri() override;

private:
    ControlArray<Shape> Shape1; // the units, nine to a cell: 9 * i + j
    ControlArray<Shape> Shape2; // the longs, likewise
};

// formStampa1 and formStampa4, each under its own name.
FormList LongsSheetForms();

} // namespace contarello
