#pragma once
// Additions and subtractions carried out on one abacus: the child threads the first number in
// beads, adds or takes off the second, changes ten units into a ten or a ten into ten units where
// the numbers ask for it, and writes the result. Four screens, two operations, each with and
// without the change.

#include "core/draws.h"
#include "core/globals.h"
#include "shell/exercise.h"

namespace contarello {

struct AbacusOpMember {
    const char* form;
    int16_t numeroScheda;
    bool cambio; // a second units wire and the "Cambio" button
};

// The four screens, each under its own name.
FormList AbacusOpForms();

// What both operations share: the wires, the beads shown from their counts, the counts beside the
// wires, the result box, the change button and "Ricomincia".
class AbacusOpForm : public ExerciseForm {
    Q_OBJECT
public:
    AbacusOpForm(Program& app, const AbacusOpMember& member, int widthTwips, int heightTwips,
                 FrameLayout layout);

    QJsonObject fields() const override;
    // The operation, then the step of the moment.
    QString TestoDomanda() const override;

protected:
    // The wires and the beads, from the top of the wires down to the lowest bead's top.
    struct Geometria {
        int filoAlto, filoBasso;
        int daTop;             // top of the lowest tens bead
        int uTop;              // top of the lowest unit bead
        int u9Top;             // top of the tenth unit bead, the last of the first wire
        int u18Top;            // top of the last bead of the second wire, or 0 where it stands in line
        bool frecciaASinistra; // the change goes towards the tens
    };
    void CreaAbaco(const Geometria& geo);
    // The question at the top left and, beside it, the result box, hidden until the number stands.
    void CreaDomanda(int larghezzaDomanda, int leftRisultato);
    // Every bead shown or hidden from the two counts, and the counts written beside the wires.
    void MostraPalline();
    // The question's numbers kept, the beads and the dialogue back to their start.
    void AzzeraAbaco();
    // A bead more or one less on a wire; false when the wire is full or bare and nothing changed.
    bool AggiungiDecina();
    bool TogliDecina();
    bool AggiungiUnita();
    bool TogliUnita();
    int16_t LimiteUnita() const { return member_.cambio ? 19 : 9; }
    int16_t Valore() const { return int16_t(10 * NumeroDecine + NumeroUnita); }
    void ApriRisultato();

    virtual void Controlla() = 0;
    virtual void BottoneCambio_Click() = 0;
    // The number the result box expects: the sum, or what is left.
    virtual int RispostaAttesa() const = 0;

    const AbacusOpMember& member_;
    Label* EtichettaNumero;
    TextBox* Text1;
    Label* Label3; // the units counted
    Label* Label4; // the tens counted
    Label* Label5; // the instruction of the moment
    CommandButton* Bot_da;
    CommandButton* Bot_u;
    CommandButton* BottoneCambio = nullptr;
    CommandButton* Bot_ricomincia;
    ControlArray<Line> FiloAbaco;
    ControlArray<Shape> pal_da;
    ControlArray<Shape> pal_u;

    int16_t NumeroUnita = 0;
    int16_t NumeroDecine = 0;
    int16_t Fase = 1;
};

class AbacusSumForm : public AbacusOpForm {
    Q_OBJECT
public:
    AbacusSumForm(Program& app, const AbacusOpMember& member);

protected:
    void NuovaDomanda() override;
    void Controlla() override;
    void BottoneCambio_Click() override;
    int RispostaAttesa() const override { return g.Meta; }

private:
    void Ricomincia();
    void Consegna();
    Label* Label6;
};

class AbacusDifferenceForm : public AbacusOpForm {
    Q_OBJECT
public:
    AbacusDifferenceForm(Program& app, const AbacusOpMember& member);

protected:
    void NuovaDomanda() override;
    void Controlla() override;
    void BottoneCambio_Click() override;
    int RispostaAttesa() const override { return g.Termine1; }

private:
    void Ricomincia();
    void Consegna();
    CommandButton* Command1; // "- da"
    CommandButton* Command2; // "- u"
};

} // namespace contarello
