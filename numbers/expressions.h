#pragma once
// Formesp: a number broken into tens and units as an expression with brackets, (10 x 4) + (1 x 7) =,
// whose value the child writes in digits.

#include "shell/exercise.h"

#include <memory>

namespace contarello {

// The expression of a number from 1 to 99; a part that is 0 is left out, and the plus sign stands
// only between two parts.
QString Espressione(int numero);

class Formesp : public QuestionForm {
    Q_OBJECT
public:
    explicit Formesp(Program& app);

protected:
    void NuovaDomanda() override;
};

// Formesp under its name.
FormList ExpressionForms();

} // namespace contarello
