#pragma once
// The three screens of longs and units: a ten is a long red bar, a unit a small blue square.
// Form999x asks a number and the child builds it with bars and squares; Form999y and Form999z draw
// a number and the child writes it, in digits or in words. One base for the drawing, the limit
// and the Load they share; Form999x on its own; the two readers as one class and a table.

#include "shell/exercise.h"

namespace contarello {

// The drawing, the limit panel set back to 99 at each Load, the counters and the first question.
class LongsUnitsForm : public ExerciseForm {
    Q_OBJECT
public:
    QJsonObject fields() const override;

protected:
    // The bars and squares stand in two columns of nine rows, bar i and square i on row i; top is
    // where row 0 stands, left where the bars begin.
    LongsUnitsForm(Program& app, const char* scheda, int left, int top, const FrameLayout& layout);
    // The drawing as it stands at the start of every question: nothing on show.
    void NascondiDisegno();

    ControlArray<Shape> Decine;
    ControlArray<Shape> Unita;
    int16_t NumeroUnita = 0;
    int16_t NumeroDecine = 0;
};

// "dal numero al disegno": the number in words or digits, built by adding bars and squares.
class Form999x : public LongsUnitsForm {
    Q_OBJECT
public:
    explicit Form999x(Program& app);

protected:
    void NuovaDomanda() override;

private:
    void BottoneDecine_Click();
    void BottoneUnita_Click();
    void BottoneRicomincia_Click();
    void BottoneConferma_Click();
    void ScegliCifre(bool cifre);

    Label* EtichettaNumero;
    CommandButton* BottoneUnita;
    CommandButton* BottoneDecine;
    CommandButton* BottoneRicomincia;
    CommandButton* BottoneConferma;
    MenuItem* MenuNumero;
    MenuItem* MenuParola;
    MenuItem* MenuCifre;
    bool InCifre = false; // the number asked in digits, or in words
};

// One of the two screens that draw a number and take it typed.
struct LongsReaderMember {
    const char* form;
    const char* consegna; // the fixed prompt above the box
    double fontTesto;     // points of the answer box
    // Whether the text typed names the number.
    bool (*giusta)(const QString& testo, int numero, Modulo1& g);
    // The key filter of the answer box, or nullptr for none.
    int (*filtro)(int& keyAscii);
};

// The three screens, each under its own name.
FormList LongsUnitsForms();

// Form999y, "scrivi il numero in cifre", and Form999z, "scrivi il numero in lettere".
class LongsReaderForm : public LongsUnitsForm {
    Q_OBJECT
public:
    LongsReaderForm(Program& app, const LongsReaderMember& member);

protected:
    // The box is ready for the first key, as it is the first control of the screen.
    void Prepara() override { Text1->SetFocus(); }
    void NuovaDomanda() override;

private:
    const LongsReaderMember& member_;
    TextBox* Text1;
    Label* Label3;
};

} // namespace contarello
