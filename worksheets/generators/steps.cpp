// One on and ten on, one back and ten back: FaiScheda9 to FaiScheda14. A member with one step keeps
// its numbers right-aligned in four characters; a mixed member draws which step to take and writes
// each exercise at the left of a cell of fixed width.

#include "core/lang.h"
#include "worksheets/generators/common.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iterator>

namespace contarello::schede {

using namespace Qt::StringLiterals;

namespace {

constexpr int kNumero = 4;      // a right-aligned number with its leading blank
constexpr int kCellaMista = 20; // the cell of a mixed member

// A step adds delta; the number drawn, Int(Rnd * n) + m, is the one before the step on a member
// with one step and the result on a mixed member.
struct Passo {
    int delta;
    int n;
    int m;
};

struct Passi {
    int numero;
    QStringView margine;
    QStringView spazio; // after each exercise
    bool misto;
    std::array<Passo, 2> passi;
};

constexpr Passi kPassi[] = {
    {9, u"    ", u"     ", false, {{{1, 98, 1}}}},
    {10, u"    ", u"     ", false, {{{10, 88, 1}}}},
    {11, u"  ", u"    ", true, {{{1, 98, 1}, {10, 88, 10}}}},
    {12, u"  ", u"    ", false, {{{-10, 88, 10}}}},
    {13, u"  ", u"    ", true, {{{-1, 97, 1}, {-10, 78, 10}}}},
    {14, u"    ", u"     ", false, {{{-1, 98, 1}}}},
};

// " + 1 = ", " - 10 = ": the step is written bare, without the blank of Str.
QString Operazione(int delta) {
    return (delta > 0 ? u" + "_s : u" - "_s) + QString::number(std::abs(delta)) + u" = "_s;
}

Celle Allineato(const Passo& p, Random& rnd) {
    const int a = Draw(rnd, p.n, p.m);
    const QString primo = Str(a).rightJustified(kNumero);
    const QString op = Operazione(p.delta);
    return {primo + op + u"___ "_s, primo + op + Str(a + p.delta).rightJustified(kNumero) + u"  "_s};
}

Celle Misto(const Passi& m, Random& rnd) {
    const Passo& p = Draw(rnd, 2, 1) == 1 ? m.passi[0] : m.passi[1];
    const int r = Draw(rnd, p.n, p.m);
    const QString domanda = Str(r - p.delta) + Operazione(p.delta);
    return {(domanda + u" ___"_s).leftJustified(kCellaMista), (domanda + Str(r)).leftJustified(kCellaMista)};
}

} // namespace

void FaiSchedaPassi(int numero, const SchedaInput& in, Random& rnd, Scheda& s) {
    const Passi* m = std::ranges::find(kPassi, numero, &Passi::numero);
    if (m == std::end(kPassi)) return;
    const QString titolo =
        u"        ESEGUI LE "_s + (m->passi[0].delta > 0 ? u"ADDIZIONI"_s : u"SOTTRAZIONI"_s);
    // The correction's heading stands one blank further right than the worksheet's.
    Intestazione(s, titolo, u' ' + titolo);
    const int righe = Righe(in), colonne = Colonne(in);
    for (int riga = 1; riga <= righe; ++riga) {
        AEntrambi(s, m->margine.toString());
        for (int c = 1; c <= colonne; ++c) {
            const Celle e = m->misto ? Misto(*m, rnd) : Allineato(m->passi[0], rnd);
            s.txtCD += e.foglio;
            s.TextCor += e.correzione;
            AEntrambi(s, m->spazio.toString());
        }
        ChiudiRiga(s);
    }
}

} // namespace contarello::schede
