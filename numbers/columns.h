#pragma once
// Additions and subtractions in column, step by step: the operation stands in a row at the top, the
// child drags its digits into the cells of the column, writes the units and the tens, and moves the
// carry up or changes a ten down where the numbers ask for it. Four screens, two operations: the
// column, the drops and the answers are written once here, each operation adds its own step.

#include "shell/exercise.h"

#include <memory>
#include <optional>

namespace contarello {

class Random;

// The digits of one operation, and the two the child must write.
struct Colonna {
    int16_t Da1 = 0, U1 = 0; // the first number
    int16_t Da2 = 0, U2 = 0; // the second number
    int16_t DaR = 0, UR = 0; // tens and units to be written
};

// One attempt at an operation, taking its draws in their order; nothing when it came out unfit to
// ask and must be drawn again. The limit only matters to the screens with free numbers.
std::optional<Colonna> TentaCol1(Random& rnd, int numeroMassimo); // addition, no carry
std::optional<Colonna> TentaCol2(Random& rnd, int numeroMassimo); // addition, free
std::optional<Colonna> TentaCol3(Random& rnd, int numeroMassimo); // subtraction, no change
std::optional<Colonna> TentaCol4(Random& rnd, int numeroMassimo); // subtraction, free

struct ColumnMember {
    const char* form;
    int16_t numeroScheda;
    std::optional<Colonna> (*tenta)(Random& rnd, int numeroMassimo);
    bool cambio;   // has the carry or the change, with its two magenta labels
    int line1Left; // where the rule under the numbers starts
    const char* informazioni;
    const char* primo;   // what Label3 says while the first number is placed
    const char* secondo; // ... and the second
};

// The four screens, each under its own name.
FormList ColumnForms();

class ColumnForm : public ExerciseForm {
    Q_OBJECT
public:
    ColumnForm(Program& app, const ColumnMember& member, Variante variante);

    QJsonObject fields() const override;
    // The operation, then the step of the moment.
    QString TestoDomanda() const override;

protected:
    // Every return to the screen throws the operation under way away and makes a new one.
    void NuovaDomanda() override;
    // The right tens end the operation: the result written in the row.
    void Esatta() override;

    // What each operation adds: a new background or none, the step after the second number, the
    // step after the right units, the drop on CambioUa.
    virtual bool NuoviColori() const = 0;
    virtual void SecondoCompleto() = 0;
    virtual void UnitaEsatte() = 0;
    virtual void CambioUa_DragDrop(Control* source) = 0;
    virtual QString TestoUnita() const = 0;
    virtual QString TestoDecine() const = 0;

    // The units box opened and waiting.
    void ApriUnita();
    // The tens box opened and waiting, after the right units or the carry.
    void ApriDecine();
    // The two magenta labels, hidden until the step that needs them; CambioUp can be dragged.
    void CreaCambio(int upLeft, int upTop, int uaLeft, int uaTop);
    static void Trascinabile(Label* l, int dragMode);

    const ColumnMember& member_;
    Label* Label3;
    Label *Lda1, *Lu1, *Lda2, *Lu2;
    Label *Label4, *Label5, *Label6, *Label7, *Lris;
    Label *Eda1, *Eu1, *Eda2, *Eu2;
    TextBox *Edar, *Eur;
    Label* CambioUp = nullptr;
    Label* CambioUa = nullptr;

    int16_t Da1 = 0, U1 = 0, Da2 = 0, U2 = 0, DaR = 0, UR = 0;
    int16_t Cifre1 = 0, Cifre2 = 0;

private:
    // A digit of the row dropped on a cell: taken when its text is that of the cell's own digit.
    void Casella_DragDrop(Label* casella, Label* propria, Control* source, bool primo);
    void Controlla1();
    void Controlla2();
    static void Cifra(Label* l, int16_t cifra, bool anchePerZero);
};

class FormAddizione : public ColumnForm {
    Q_OBJECT
public:
    FormAddizione(Program& app, const ColumnMember& member);

protected:
    void Prepara() override;
    bool NuoviColori() const override { return true; }
    void SecondoCompleto() override;
    void UnitaEsatte() override;
    void CambioUa_DragDrop(Control* source) override;
    QString TestoUnita() const override;
    QString TestoDecine() const override;
};

class FormSottrazione : public ColumnForm {
    Q_OBJECT
public:
    FormSottrazione(Program& app, const ColumnMember& member);

protected:
    bool NuoviColori() const override { return false; }
    void SecondoCompleto() override;
    void UnitaEsatte() override;
    void CambioUa_DragDrop(Control* source) override;
    QString TestoUnita() const override;
    QString TestoDecine() const override;

private:
    void ControllaSeCambio();
};

} // namespace contarello
