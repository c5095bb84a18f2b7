#pragma once
// Additions and subtractions done with material: red longs for the tens, blue squares for the
// units. The child builds the numbers with the buttons, changes ten squares into a long or a long
// into ten squares where the numbers ask for it, clicks away what a subtraction takes off, and
// types the result. Only the typed result counts. Four screens: each operation with its change and
// without it.

#include "core/draws.h"
#include "shell/exercise.h"

namespace contarello {

struct LongsMember {
    const char* form;
    int16_t numeroScheda;
    bool cambio;      // the change of ten units into a long (addition) or the reverse (subtraction)
    int risultatoTop; // where the result box stands
};

// The four screens, each under its own name.
FormList LongsForms();

// What the four screens share: the operation, the instruction, the result box, "Ricomincia".
class LongsOpForm : public ExerciseForm {
    Q_OBJECT
public:
    LongsOpForm(Program& app, const LongsMember& member, int label3Width, int label3Height,
                int risultatoHeight);

protected:
    virtual void BottoneRicomincia_Click() = 0;
    // The number the typed result must be.
    virtual int16_t RisultatoAtteso() const = 0;

    // The operation drawn, as the member says, into the shared variables.
    void EstraiOperazione();
    void Consegna(const char* testo) {
        Label3->setCaption(QString::fromUtf8(testo));
        Annuncia();
    }
    // The result box opened, empty, with the focus when it can take it.
    void InRisultato();
    // A long (red) or a square (blue), hidden until the child places it.
    Label* Pezzo(const QString& name, int left, int top, int width, QColor colour);
    CommandButton* BottoneMateriale(const char* name, const char* caption, int left, int top, QColor colour);

    const LongsMember& member_;
    Label* EtNumero;
    TextBox* Risultato;
    Label* Label3;
    CommandButton* BottoneRicomincia;
};

// Addition: two rows, one for each addend, and a strip between them where the change puts its long.
class LongsAddForm : public LongsOpForm {
    Q_OBJECT
public:
    LongsAddForm(Program& app, const LongsMember& member);
    QJsonObject fields() const override;

protected:
    void NuovaDomanda() override;
    void BottoneRicomincia_Click() override;
    int16_t RisultatoAtteso() const override;

private:
    // Shows the next shape of a row, unless the row already holds nine.
    void Aggiungi(ControlArray<Label>& row, int16_t& counter, bool primo);
    void Controlla1();
    void Controlla2();
    void ControllaSeCambio();
    void Cambio_Click();
    // Every shape hidden, the counters at 0, the first row's buttons live.
    void Azzera();

    CommandButton *BotDecine1, *BotUnita1, *BotDecine2, *BotUnita2;
    CommandButton* Cambio = nullptr;
    Label* DecinaCambio = nullptr;
    ControlArray<Label> Decina1, Unita1, Decina2, Unita2;
    int16_t NumeroDecine1 = 0, NumeroUnita1 = 0, NumeroDecine2 = 0, NumeroUnita2 = 0;
};

// Subtraction: one row for the first number, and on the screen with the change a strip for the ten
// squares a long turns into.
class LongsSubForm : public LongsOpForm {
    Q_OBJECT
public:
    LongsSubForm(Program& app, const LongsMember& member);
    QJsonObject fields() const override;

protected:
    void NuovaDomanda() override;
    void BottoneRicomincia_Click() override;
    int16_t RisultatoAtteso() const override;

private:
    void Aggiungi(ControlArray<Label>& row, int16_t& counter);
    void Controlla1();
    void Controlla2();
    void Controlla3();
    void FaiIlCambio();
    void Cambio_Click();
    void TogliLeUnita();
    void togliledecine();
    void Unita_Click(Label* square);
    void Decina1_Click(int index);
    // Which shapes a click takes away: the squares, the longs, or none.
    void UnitaCliccabili(bool on);
    void DecineCliccabili(bool on);
    // Every shape hidden and still, the counters at 0, the two buttons live.
    void Azzera();

    CommandButton *BotDecine1, *BotUnita1;
    CommandButton* Cambio = nullptr;
    ControlArray<Label> Decina1, Unita1, Unita2;
    int16_t NumeroUnita = 0, NumeroDecine = 0;
    int16_t UnitaMeta = 0, UnitaRisultato = 0, DecineRisultato = 0;
};

} // namespace contarello
