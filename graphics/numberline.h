#pragma once
// The two number lines: 21 ticks for 21 numbers in a row, a few of them written, one red tick to
// name at a time, five to a line. "con decine fisse" runs between whole tens and writes its tens;
// "senza decine fisse" starts anywhere and writes one tick of its own choosing. One class, one
// table of the two.

#include "shell/exercise.h"

#include <array>

namespace contarello {

struct NumberLineMember {
    const char* form;
    // The line runs between whole tens, with ticks 0, 10 and 20 written and taller.
    bool decineFisse;
    // Top of ticks 0, 10 and 20 (the others start at kCimaTacca).
    int cimaDecine;
    // The numbers of ticks 0, 10 and 20, then of the others: font size and top.
    double puntiDecine;
    int altoDecine;
    double puntiAltre;
    int altoAltre;
};

// The two screens, each under its own name.
FormList NumberLineForms();

class NumberLineForm : public ExerciseForm {
    Q_OBJECT
public:
    static constexpr int kTacche = 21;
    // The answers that finish a line.
    static constexpr int kRisposteLinea = 5;

    NumberLineForm(Program& app, const NumberLineMember& member);

    QJsonObject fields() const override;
    // The numbers written on the line.
    QString TestoDomanda() const override;

protected:
    // A fresh line: its first number, its written ticks, and the first tick to name.
    void NuovaDomanda() override;
    // The tick named gets its number written.
    void Esatta() override { ScriviNumero(TaccaScelta); }
    // The line goes on to its next tick until five are named.
    bool ContinuaDomanda() override;

private:
    // Chooses a tick not yet red and marks it: the one the child names next.
    void ColoraLinea();
    // A tick turned red: written, or named already.
    void Segna(int tacca);
    // Writes the tick's number above it, the digits centred on the tick.
    void ScriviNumero(int tacca);

    const NumberLineMember& member_;
    Line* Line1;
    ControlArray<Line> Line2;
    ControlArray<Label> Label3;
    TextBox* Text1;

    std::array<bool, kTacche> Segnate{}; // the red ticks
    int16_t NumeroIniziale = 0;
    int16_t TaccaScelta = 0;
    int16_t NumeroRisposte = 0;
};

} // namespace contarello
