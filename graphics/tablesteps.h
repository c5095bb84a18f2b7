#pragma once
// The six screens that ask a sum or a difference and take its result as a click on the table:
// one class, one table of members.

#include "graphics/numbertable.h"

namespace contarello {

class Random;

// One question: the three numbers of the operation, the cell that answers it, and the operation
// as the child reads it.
struct DomandaTabella {
    int16_t termine1, termine2, meta;
    int16_t esatto;
    QString caption;
};

struct TableStepMember {
    const char* form;
    int16_t numeroScheda;
    // Set up once as the screen loads (question and counters then outlast a visit to the
    // worksheet), or each time it becomes active.
    bool suLoad;
    // The prompt "clicca sul numero" and the larger question.
    bool consegna;
    // Draws a question under the limit n, taking its draws in their order.
    DomandaTabella (*draw)(Random& rnd, int n);
};

// The six screens, each under its own name.
FormList TableStepForms();

class TableStepForm : public TabellaForm {
    Q_OBJECT
public:
    TableStepForm(Program& app, const TableStepMember& member);

    QJsonObject fields() const override;

protected:
    void Prepara() override;
    void NuovaDomanda() override;
    void Numero_Click(int i) override;
    void InAttesa() override;
    void Riprendi() override { Numero(esatto_)->setEnabled(true); }

private:
    const TableStepMember& member_;
    Label* EtichettaNumero;
    Label* Label3 = nullptr;
    int16_t esatto_ = 0; // the cell that answers the question on the screen
};

} // namespace contarello
