#include "app/screens.h"
#include "graphics/abacus.h"
#include "graphics/abacus_ops.h"
#include "graphics/longs.h"
#include "graphics/longsunits.h"
#include "graphics/numberline.h"
#include "graphics/tablefind.h"
#include "graphics/tablesteps.h"
#include "numbers/columns.h"
#include "numbers/comparison.h"
#include "numbers/expressions.h"
#include "numbers/neighbours.h"
#include "numbers/ordering.h"
#include "numbers/stepping.h"
#include "numbers/words.h"
#include "shell/menus.h"
#include "worksheets/abaco.h"
#include "worksheets/longsheets.h"
#include "worksheets/stampa.h"
#include "worksheets/tablesheets.h"

namespace contarello {

namespace {

// A screen of its own class.
template <class F> std::unique_ptr<Form> Make(Program& app, const QString&) {
    return std::make_unique<F>(app);
}

// A member of a family: its row of the family's table, found by the screen's name. A name the family
// doesn't know makes nothing, and the test of this table says so.
template <class F, auto find> std::unique_ptr<Form> Member(Program& app, const QString& name) {
    const auto* member = find(name);
    return member ? std::make_unique<F>(app, *member) : nullptr;
}

} // namespace

std::vector<FormEntry> FormTable() {
    return {
        {"FormAvvio", Make<FormAvvio>},
        {"FormMenu", Make<FormMenu>},
        {"FormMenuNumeri", Member<ExerciseMenuForm, ExerciseMenuForm::Find>},
        {"FormMenuGrafici", Member<ExerciseMenuForm, ExerciseMenuForm::Find>},
        // stepping: +1, +10, +units, +tens and their opposites
        {"Form1", Member<StepForm, FindStepMember>},
        {"Form10", Member<StepForm, FindStepMember>},
        {"Form100", Member<StepForm, FindStepMember>},
        {"Form1a", Member<StepForm, FindStepMember>},
        {"Form10a", Member<StepForm, FindStepMember>},
        {"Form100bis", Member<StepForm, FindStepMember>},
        {"Form1ma", Member<StepForm, FindStepMember>},
        {"Form10m", Member<StepForm, FindStepMember>},
        {"Form100m", Member<StepForm, FindStepMember>},
        {"Form1m", Member<StepForm, FindStepMember>},
        {"Form10ma", Member<StepForm, FindStepMember>},
        {"Form100ma", Member<StepForm, FindStepMember>},
        // neighbours, comparison, tens and units, expressions
        {"Formpri", Member<NeighbourForm, FindNeighbourMember>},
        {"Formdopo", Member<NeighbourForm, FindNeighbourMember>},
        {"Formmez", Member<NeighbourForm, FindNeighbourMember>},
        {"FormMM", Make<FormMM>},
        {"FormSimb", Make<FormSimb>},
        {"Formesp", Make<Formesp>},
        // words and digits
        {"FormScri", Member<WordsForm, FindWordsMember>},
        {"FormScri2", Member<WordsForm, FindWordsMember>},
        // ordering, column sums
        {"FormOrd", Make<FormOrd>},
        {"FormCol1", Member<FormAddizione, FindColumnMember>},
        {"FormCol2", Member<FormAddizione, FindColumnMember>},
        {"FormCol3", Member<FormSottrazione, FindColumnMember>},
        {"FormCol4", Member<FormSottrazione, FindColumnMember>},
        // longs and units
        {"Form999x", Make<Form999x>},
        {"Form999y", Member<LongsReaderForm, FindLongsReaderMember>},
        {"Form999z", Member<LongsReaderForm, FindLongsReaderMember>},
        {"FormGraf", Member<LongsAddForm, FindLongsAddMember>},
        {"FormGraf1", Member<LongsAddForm, FindLongsAddMember>},
        {"FormGrafMeno", Member<LongsSubForm, FindLongsSubMember>},
        {"FormGrafMeno1", Member<LongsSubForm, FindLongsSubMember>},
        // the abacus
        {"Form99a", Make<Form99a>},
        {"Form99b", Member<AbacoForm, FindAbacoMember>},
        {"Form99b1", Member<AbacoForm, FindAbacoMember>},
        {"Form99c", Member<AbacoSommaForm, FindAbacoSommaMember>},
        {"Form99c1", Member<AbacoSommaForm, FindAbacoSommaMember>},
        {"Form99d", Member<AbacoDifferenzaForm, FindAbacoDifferenzaMember>},
        {"Form99d1", Member<AbacoDifferenzaForm, FindAbacoDifferenzaMember>},
        // the table of numbers 0 to 99
        {"Form100a", Member<TableStepForm, FindTableStepMember>},
        {"Form100b", Member<TableStepForm, FindTableStepMember>},
        {"Form100f", Member<TableStepForm, FindTableStepMember>},
        {"Form100c", Member<TableStepForm, FindTableStepMember>},
        {"Form100d", Member<TableStepForm, FindTableStepMember>},
        {"Form100e", Member<TableStepForm, FindTableStepMember>},
        {"Form100Trova", Make<Form100Trova>},
        {"Form100Ricon", Make<Form100Ricon>},
        // number lines
        {"FormGradi20", Member<NumberLineForm, FindNumberLineMember>},
        {"FormGradi20bis", Member<NumberLineForm, FindNumberLineMember>},
        // worksheets: the text ones, then the drawn ones
        {"formStampa", Make<formStampa>},
        {"formStampa1", Make<formStampa1>},
        {"formStampa2", Make<formStampa2>},
        {"formStampa3", Make<formStampa3>},
        {"formStampa4", Make<formStampa4>},
        {"formSt99a", Make<formSt99a>},
        {"formSt99b", Make<formSt99b>},
    };
}

} // namespace contarello
