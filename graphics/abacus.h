#pragma once
// The abacus of two wires, tens on the left and units on the right, and its three screens:
// Form99a, where the child threads the beads of the number asked, and Form99b and Form99b1, where
// the beads stand for a number the child writes in digits or in words.

#include "shell/exercise.h"

namespace contarello {

// Where a screen's abacus stands, in twips. Bead i stands kPasso higher than bead i - 1, so the
// beads stack from the bottom of the wire, touching.
struct AbacoGeometria {
    int xDecine, yDecine1, yDecine2; // the tens wire, from top to bottom
    int xUnita, yUnita1, yUnita2;    // the units wire
    int topDecine, topUnita;         // top of the lowest bead on each wire
};

// The frame, two wires and nine beads on each; the beads are only shown and hidden.
class AbacusForm : public ExerciseForm {
    Q_OBJECT
public:
    QJsonObject fields() const override;

protected:
    AbacusForm(Program& app, int widthTwips, int heightTwips, FrameOptions options, const AbacoGeometria& at);

    // All eighteen beads hidden.
    void NascondiPalline();
    // The lowest n beads of the wire shown, the others hidden.
    void MostraPalline(ControlArray<Shape>& filo, int n);

    ControlArray<Line> FiloAbaco;
    ControlArray<Shape> pal_da; // tens, red
    ControlArray<Shape> pal_u;  // units, blue
    int16_t NumeroUnita = 0;
    int16_t NumeroDecine = 0;
};

// The number asked in words or digits; the child threads the beads and confirms.
class Form99a : public AbacusForm {
    Q_OBJECT
public:
    explicit Form99a(Program& app);
    QJsonObject fields() const override;

protected:
    // All of the set-up is done as the screen loads: a return from the worksheet finds the question
    // as it was left.
    void Prepara() override;
    void NuovaDomanda() override;

private:
    // A left button threads a bead on the wire, any other takes the last one off.
    void Infila(ControlArray<Shape>& filo, int16_t& quante, int button);
    void BottoneConferma_Click();

    Label* EtichettaNumero;
    CommandButton* Bot_da;
    CommandButton* Bot_u;
    Label* Label3;
    CommandButton* Bot_ricomincia;
    CommandButton* BottoneConferma;
    MenuItem* MenuNumero;
    MenuItem* MenuParole;
    MenuItem* MenuCifre;
    int16_t InCifre = 0;
};

// Form99b and Form99b1: the beads of a number drawn, the child writes it.
struct AbacusReaderMember {
    const char* form;
    const char* consegna; // the prompt left of the box
    bool randomize;       // Form99b1 seeds the sequence again as it opens
    // Enter is taken on its release, and only on a box that isn't empty; otherwise on every press,
    // the repeats of a held key included.
    bool invioAlRilascio;
    // Whether the text typed answers the number.
    bool (*giusta)(const QString& testo, int numero, Modulo1& g);
    // The key filter of the box, or nullptr for none.
    int (*filtro)(int& keyAscii);
};

// The three abacus screens, each under its own name.
FormList AbacusForms();

class AbacusReaderForm : public AbacusForm {
    Q_OBJECT
public:
    AbacusReaderForm(Program& app, const AbacusReaderMember& member);

protected:
    void Prepara() override;
    // Each return to the screen brings a new number.
    void NuovaDomanda() override;

private:
    const AbacusReaderMember& member_;
    Label* Label3;
    TextBox* TestoNumero;
};

} // namespace contarello
