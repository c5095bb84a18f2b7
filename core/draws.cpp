#include "core/draws.h"
#include "core/lang.h"

#include <algorithm>

namespace contarello {

Operazione OperazioneLibera(Random& rnd, int numeroMassimo) {
    Operazione o;
    o.Meta = int16_t(Draw(rnd, numeroMassimo - 20, 20));
    o.Termine1 = int16_t(Draw(rnd, o.Meta - 10, 5));
    o.Termine2 = int16_t(o.Meta - o.Termine1);
    return o;
}

Operazione TiraConCambio(Random& rnd, int numeroMassimo) {
    Operazione o;
    o.Meta = int16_t(Draw(rnd, std::max(numeroMassimo - 11, 1), 10));
    o.Termine1 = int16_t(Draw(rnd, o.Meta - 10, 5));
    o.Termine2 = int16_t(o.Meta - o.Termine1);
    return o;
}

Operazione OperazioneSenzaCambio(Random& rnd) {
    for (int provaMeta = 0; provaMeta < kProve; ++provaMeta) {
        const int D = Draw(rnd, 10), U = Draw(rnd, 10);
        // 0 is no operation; 1, 10 and 11 have digits of 0 and 1 only, so no first number other
        // than 0 fits under them.
        if (D <= 1 && U <= 1) continue;
        for (int prova = 0; prova < kProve; ++prova) {
            const int d = Draw(rnd, D), u = Draw(rnd, U);
            if (10 * d + u == 0) continue;
            const int16_t meta = int16_t(10 * D + U), termine1 = int16_t(10 * d + u);
            return {meta, termine1, int16_t(meta - termine1)};
        }
    }
    return kOperazioneDiRiserva;
}

} // namespace contarello
