#include "shell/registry.h"
#include "numbers/columns.h"
#include "numbers/comparison.h"
#include "numbers/expressions.h"
#include "numbers/neighbours.h"
#include "numbers/ordering.h"
#include "numbers/stepping.h"
#include "numbers/words.h"
#include "shell/menus.h"
#include "worksheets/stampa.h"

namespace contarello {

std::vector<FormEntry> FormTable() {
    return {
        {"FormAvvio", MakeFormAvvio},
        {"FormMenu", MakeFormMenu},
        {"FormMenuNumeri", MakeFormMenuNumeri},
        {"FormMenuGrafici", MakeFormMenuGrafici},
        // stepping: +1, +10, +units, +tens and their opposites
        {"Form1", MakeStepForm<0>},
        {"Form10", MakeStepForm<1>},
        {"Form100", MakeStepForm<2>},
        {"Form1a", MakeStepForm<3>},
        {"Form10a", MakeStepForm<4>},
        {"Form100bis", MakeStepForm<5>},
        {"Form1ma", MakeStepForm<6>},
        {"Form10m", MakeStepForm<7>},
        {"Form100m", MakeStepForm<8>},
        {"Form1m", MakeStepForm<9>},
        {"Form10ma", MakeStepForm<10>},
        {"Form100ma", MakeStepForm<11>},
        // neighbours, comparison, tens and units, expressions
        {"Formpri", MakeFormpri},
        {"Formdopo", MakeFormdopo},
        {"Formmez", MakeFormmez},
        {"FormMM", MakeFormMM},
        {"FormSimb", MakeFormSimb},
        {"Formesp", MakeFormesp},
        // words and digits
        {"FormScri", MakeFormScri},
        {"FormScri2", MakeFormScri2},
        // ordering, column sums
        {"FormOrd", MakeFormOrd},
        {"FormCol1", MakeFormCol1},
        {"FormCol2", MakeFormCol2},
        {"FormCol3", MakeFormCol3},
        {"FormCol4", MakeFormCol4},
        // worksheets
        {"formStampa", MakeFormStampa},
    };
}

} // namespace contarello
