#pragma once
// The draws of an addition or a subtraction that the longs and the abacus screens share: the three
// numbers of one operation, with a change due on some questions or on none.

#include <cstdint>

namespace contarello {

class Random;

// For an addition Termine1 + Termine2 = Meta, for a subtraction Meta - Termine1 = Termine2.
struct Operazione {
    int16_t Meta = 0, Termine1 = 0, Termine2 = 0;
};

// An unfit draw is drawn again, but never without end: a source stuck on unfit values must not
// freeze the screen. An unfit draw comes at worst one time in two, so this many in a row only come
// from a source that has stopped being random; then a fixed fit value stands in.
constexpr int kProve = 64;

// The longs: Meta from 20 to below the limit, Termine1 from 5 to Meta - 6; the digits fall as they
// may, so a change is due on some questions only.
Operazione OperazioneLibera(Random& rnd, int numeroMassimo);
// The abacus: Meta from 10 to the limit less 2 (the smallest sum under a limit of 21), Termine1 from
// 5 to Meta - 6; the units are free, so a change is due on some questions only.
Operazione TiraConCambio(Random& rnd, int numeroMassimo);
// No change is ever due: each digit of Termine1 at most that of Meta, drawn after it, tens first.
// Meta and Termine1 are never 0; a Meta that has no such Termine1 (1, 10, 11) is drawn again. Each
// of the two draws is tried kProve times at most, then kOperazioneDiRiserva stands in.
Operazione OperazioneSenzaCambio(Random& rnd);
constexpr Operazione kOperazioneDiRiserva{25, 12, 13};

} // namespace contarello
