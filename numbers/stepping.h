#pragma once
// The twelve screens that add or take away 1, 10, some units or some tens: one class, one table.

#include "shell/exercise.h"

#include <memory>

namespace contarello {

class Random;

struct Domanda {
    int esatto;      // the result the child must type
    QString caption; // the operation, as the child reads it
};

struct StepMember {
    const char* form;
    int16_t numeroScheda;
    // Draws a question under the limit n, taking its draws in their order.
    Domanda (*draw)(Random& rnd, int n);
};

// The twelve screens, each under its own name.
FormList StepForms();

class StepForm : public QuestionForm {
    Q_OBJECT
public:
    StepForm(Program& app, const StepMember& member);

protected:
    void NuovaDomanda() override;

private:
    const StepMember& member_;
};

} // namespace contarello
