#include "core/lang.h"
#include "worksheets/generators/common.h"

#include <algorithm>

namespace contarello {

namespace schede {

int Righe(const SchedaInput& in) {
    return std::min(in.NumeroRighe, kMaxRighe);
}
int Colonne(const SchedaInput& in) {
    return std::min(in.NumeroColonne, kMaxColonne);
}

void Intestazione(Scheda& s, const QString& foglio, const QString& correzione) {
    s.txtCD += CRLF + foglio + CRLF + CRLF;
    s.TextCor += CRLF + correzione + CRLF + CRLF;
}

void AEntrambi(Scheda& s, const QString& pezzo) {
    s.txtCD += pezzo;
    s.TextCor += pezzo;
}

void ChiudiRiga(Scheda& s) {
    AEntrambi(s, CRLF + CRLF);
}

} // namespace schede

Scheda FaiScheda(int numero, const SchedaInput& in, Modulo1& g, Random& rnd) {
    Scheda s;
    if (numero >= 1 && numero <= 8)
        schede::FaiSchedaLettura(numero, in, g, rnd, s);
    else if (numero >= 9 && numero <= 14)
        schede::FaiSchedaPassi(numero, in, rnd, s);
    else if (numero >= 15 && numero <= 24)
        schede::FaiSchedaSomme(numero, in, rnd, s);
    return s;
}

} // namespace contarello
