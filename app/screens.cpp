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

// Each family names its own screens; here they only stand together, in the order of the menus.
std::vector<FormEntry> FormTable() {
    return Join({
        MenuForms(),   StepForms(),       NeighbourForms(),  ComparisonForms(), ExpressionForms(),
        WordsForms(),  OrderingForms(),   ColumnForms(),     LongsUnitsForms(), LongsForms(),
        AbacusForms(), AbacusOpForms(),   TableStepForms(),  TableFindForms(),  NumberLineForms(),
        StampaForms(), LongsSheetForms(), TableSheetForms(), AbacoSheetForms(),
    });
}

} // namespace contarello
