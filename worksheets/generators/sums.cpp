// Additions and subtractions with an answer line, FaiScheda15 to FaiScheda24. Every draw is bounded
// so that no number on the sheet goes above 99, whatever the limit set for the exercises.

#include "core/lang.h"
#include "worksheets/generators/common.h"

#include <algorithm>
#include <iterator>

namespace contarello::schede {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kAddizioni = u"           ESEGUI LE ADDIZIONI";
constexpr QStringView kSottrazioni = u"           ESEGUI LE SOTTRAZIONI";

// Each exercise fills a cell of this many characters, so the columns line up in a fixed font.
constexpr int kCella = 25;

struct Addendi {
    int a;
    int b;
};

// The draws of the plain members, in the order the numbers are drawn.
Addendi FinoA99(Random& rnd) {
    const int b = Draw(rnd, 80, 1);
    return {Draw(rnd, 100 - b), b};
}
Addendi PiuUnita(Random& rnd) {
    const int a = Draw(rnd, 90);
    return {a, Draw(rnd, 9, 1)};
}
Addendi PiuDecine(Random& rnd) {
    const int b = Draw(rnd, 9, 1) * 10;
    return {Draw(rnd, 100 - b), b};
}
Addendi UnitaODecine(Random& rnd) {
    const int b = Draw(rnd, 2, 1) == 1 ? Draw(rnd, 10) : Draw(rnd, 9, 1) * 10;
    return {Draw(rnd, 100 - b), b};
}

// How a plain exercise is written: a + b, or (a + b) less one of the two.
Celle Addizione(Addendi x) {
    const QString e = u"   "_s + Str(x.a) + u" + "_s + Str(x.b) + u" = "_s;
    return {e + u"______ "_s, e + Str(x.a + x.b)};
}
Celle TogliPrimo(Addendi x) {
    const QString e = u"   "_s + Str(x.a + x.b) + u" - "_s + Str(x.a) + u" = "_s;
    return {e + u"______ "_s, e + Str(x.b)};
}
Celle TogliSecondo(Addendi x) {
    const QString e = u"   "_s + Str(x.a + x.b) + u" - "_s + Str(x.b) + u" = "_s;
    return {e + u"______ "_s, e + Str(x.a)};
}

template <Addendi (*estrai)(Random&), Celle (*scrivi)(Addendi)> Celle Semplice(Random& rnd) {
    return scrivi(estrai(rnd));
}

// No carrying and no borrowing: the larger number is drawn digit by digit and each digit split in
// two, so no column can pass 9. The larger number is never 0.
struct Cifre {
    int D, U;   // the sum, or the minuend
    int d1, u1; // the first addend, or the subtrahend
    int d2, u2; // the second addend, or the difference
};

Cifre Scomponi(Random& rnd) {
    int U = 0, D = 0;
    while (10 * D + U == 0) {
        U = Draw(rnd, 10);
        D = Draw(rnd, 10);
    }
    const int u1 = Draw(rnd, U);
    const int d1 = Draw(rnd, D);
    return {D, U, d1, u1, D - d1, U - u1};
}

// Written as the child reads it in the column, one digit at a time; no tens digit when it is 0.
QString ACifre(int decine, int unita) {
    return (decine > 0 ? Str(decine) : QString()) + Str(unita);
}

Celle SenzaRiporto(Random& rnd) {
    const Cifre x = Scomponi(rnd);
    const QString e = u"   "_s + ACifre(x.d1, x.u1) + u" + "_s + ACifre(x.d2, x.u2) + u" = "_s;
    return {e + u"____ "_s, e + Str(10 * x.D + x.U)};
}

Celle SenzaPrestito(Random& rnd) {
    const Cifre x = Scomponi(rnd);
    const QString e = u"   "_s + ACifre(x.D, x.U) + u" - "_s + ACifre(x.d1, x.u1) + u" = "_s;
    return {e + u"____ "_s, e + Str(10 * x.d2 + x.u2)};
}

struct Somma {
    int numero;
    QStringView intestazione;
    Celle (*esercizio)(Random&);
};

constexpr Somma kSomme[] = {
    {15, kAddizioni, Semplice<FinoA99, Addizione>},
    {16, kAddizioni, SenzaRiporto},
    {17, kSottrazioni, Semplice<FinoA99, TogliPrimo>},
    {18, kSottrazioni, SenzaPrestito},
    {19, kAddizioni, Semplice<PiuUnita, Addizione>},
    {20, kAddizioni, Semplice<PiuDecine, Addizione>},
    {21, kSottrazioni, Semplice<PiuUnita, TogliSecondo>},
    {22, kSottrazioni, Semplice<PiuDecine, TogliSecondo>},
    {23, kAddizioni, Semplice<UnitaODecine, Addizione>},
    {24, kSottrazioni, Semplice<UnitaODecine, TogliSecondo>},
};

} // namespace

void FaiSchedaSomme(int numero, const SchedaInput& in, Random& rnd, Scheda& s) {
    const Somma* m = std::ranges::find(kSomme, numero, &Somma::numero);
    if (m == std::end(kSomme)) return;
    Intestazione(s, m->intestazione.toString());
    const int righe = Righe(in), colonne = Colonne(in);
    for (int riga = 1; riga <= righe; ++riga) {
        // Only the worksheet has a margin: the correction is a reference for the adult, not for
        // the child's pen.
        s.txtCD += u"    "_s;
        QString foglio, correzione;
        for (int c = 1; c <= colonne; ++c) {
            const Celle e = m->esercizio(rnd);
            foglio = (foglio + e.foglio).leftJustified(kCella * c);
            correzione = (correzione + e.correzione).leftJustified(kCella * c);
        }
        s.txtCD += foglio + u"     "_s;
        s.TextCor += correzione + u"     "_s;
        ChiudiRiga(s);
    }
}

} // namespace contarello::schede
