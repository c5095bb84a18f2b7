#pragma once
// The three screens that ask for a number next to another: the one before, the one after, the one
// in between. One class, one table; after a right answer the whole row is written anew, so the child
// reads the numbers in their order without the blank line.

#include "shell/exercise.h"

#include <memory>

namespace contarello {

class Random;

struct NeighbourMember {
    const char* form;
    const char* prompt; // what Label3 asks, under the answer box
    Variante variante;
    int16_t numeroScheda;
    // The missing number, drawn under the limit n.
    int (*draw)(Random& rnd, int n);
    // The row with a blank line where the number is missing.
    QString (*domanda)(int esatto);
    // The row as it reads once the number is found.
    QString (*riga)(int esatto);
};

// The three screens, each under its own name.
FormList NeighbourForms();

class NeighbourForm : public QuestionForm {
    Q_OBJECT
public:
    NeighbourForm(Program& app, const NeighbourMember& member);

protected:
    void NuovaDomanda() override;
    void MostraRispostaEsatta() override;

private:
    const NeighbourMember& member_;
};

} // namespace contarello
