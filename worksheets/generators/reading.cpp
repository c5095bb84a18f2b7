// Reading and placing numbers: FaiScheda1 to FaiScheda8. These are the sheets that draw within the
// limit set for the exercises, except the tens-and-units and the expressions, which cover 1 to 99.

#include "core/lang.h"
#include "core/numberwords.h"
#include "worksheets/generators/common.h"

#include <algorithm>
#include <iterator>

namespace contarello::schede {

using namespace Qt::StringLiterals;

namespace {

const QString kMargine = u"    "_s;
const QString kSpazio = u"     "_s;
const QString kInCifre = u"       SCRIVI I NUMERI IN CIFRE"_s;

// Number words to write in digits, one to a row.
void FaiScheda1(const SchedaInput& in, Modulo1& g, Random& rnd, Scheda& s) {
    Intestazione(s, kInCifre);
    for (int riga = 1, righe = Righe(in); riga <= righe; ++riga) {
        const int x = Draw(rnd, g.NumeroMassimo);
        const QString parole = InParole(x, g);
        s.txtCD += kMargine + parole + u"  _______________"_s;
        s.TextCor += kMargine + parole + u"   "_s + Str(x);
        ChiudiRiga(s);
    }
}

// Tens and units to put together. A draw of 10 to 13 leaves out that part, so a number never
// shows a 0 digit; only a pass that leaves out both is drawn again.
void FaiScheda2(const SchedaInput& in, Modulo1&, Random& rnd, Scheda& s) {
    Intestazione(s, kInCifre);
    const int colonne = Colonne(in);
    for (int riga = 1, righe = Righe(in); riga <= righe; ++riga) {
        AEntrambi(s, kMargine);
        for (int c = 1; c <= colonne; ++c) {
            int numero = 0;
            while (numero == 0) {
                const int decine = Draw(rnd, 13, 1);
                if (decine < 10) {
                    AEntrambi(s, Str(decine) + u" da   "_s);
                    numero += 10 * decine;
                }
                const int unita = Draw(rnd, 13, 1);
                if (unita < 10) {
                    AEntrambi(s, Str(unita) + u" u"_s);
                    numero += unita;
                }
            }
            s.txtCD += u" _____       "_s;
            s.TextCor += u"  "_s + Str(numero) + u"      "_s;
        }
        ChiudiRiga(s);
    }
}

// Pairs to join with >, < or =.
void FaiScheda3(const SchedaInput& in, Modulo1& g, Random& rnd, Scheda& s) {
    Intestazione(s, u"       INSERISCI I SIMBOLI   >  <  ="_s);
    const int colonne = Colonne(in);
    for (int riga = 1, righe = Righe(in); riga <= righe; ++riga) {
        AEntrambi(s, kMargine);
        for (int c = 1; c <= colonne; ++c) {
            const int a = Draw(rnd, g.NumeroMassimo);
            const int b = Draw(rnd, g.NumeroMassimo);
            s.txtCD += Str(a) + u" _____ "_s + Str(b);
            s.TextCor += Str(a) + (a < b ? u" < "_s : a > b ? u" > "_s : u" = "_s) + Str(b);
            AEntrambi(s, kSpazio);
        }
        ChiudiRiga(s);
    }
}

// Rows of numbers to put in order, as many as the ordering screen has set, in the order its
// caption asks. The correction lists them as the sorted list box of the worksheet screen does:
// by their text, each padded to four characters, which is the order of the numbers as long as none
// has more than three digits.
void FaiScheda4(const SchedaInput& in, Modulo1& g, Random& rnd, Scheda& s) {
    const int q = static_cast<int>(std::clamp<long long>(Int(Val(in.ordRowLength)), 0, kMaxNumeriInRiga));
    Intestazione(s, in.ordTask);
    const bool dalMaggiore = in.ordTask == u"Ordina i numeri dal maggiore al minore";
    for (int riga = 0, righe = Righe(in); riga <= righe; ++riga) {
        QStringList lista;
        for (int c = 1; c <= q; ++c) {
            const int x = Draw(rnd, g.NumeroMassimo);
            s.txtCD += Str(x) + u"    "_s;
            lista.append(Str(x).rightJustified(4));
        }
        std::ranges::stable_sort(lista, [](const QString& a, const QString& b) {
            return QString::compare(a, b, Qt::CaseInsensitive) < 0;
        });
        if (dalMaggiore) std::ranges::reverse(lista);
        s.txtCD += CRLF + CRLF;
        for (const QString& numero : lista) {
            s.txtCD += u"____    "_s;
            s.TextCor += numero + u"     "_s;
        }
        ChiudiRiga(s);
    }
}

// The neighbours: about one exercise in three sits on a change of ten.
struct Vicino {
    QStringView intestazione;
    int e; // 1: the number ends in 9; 0: it is a whole ten
    Celle (*celle)(int n);
};

constexpr Vicino kVicini[] = {
    {u"       INSERISCI IL NUMERO IN MEZZO", 1,
     [](int n) -> Celle {
         return {Str(n) + u" _____ "_s + Str(n + 2), Str(n) + u"  "_s + Str(n + 1) + u"  "_s + Str(n + 2)};
     }},
    {u"       INSERISCI IL NUMERO SUCCESSIVO", 1,
     [](int n) -> Celle {
         return {Str(n) + u" _____ "_s, Str(n) + u"  "_s + Str(n + 1) + u"  "_s};
     }},
    {u"       INSERISCI IL NUMERO PRECEDENTE", 0,
     [](int n) -> Celle {
         return {u" _____ "_s + Str(n), Str(n - 1) + u"  "_s + Str(n) + u"  "_s};
     }},
};

template <int i> void FaiSchedaVicino(const SchedaInput& in, Modulo1& g, Random& rnd, Scheda& s) {
    const Vicino& m = kVicini[i];
    Intestazione(s, m.intestazione.toString());
    const int colonne = Colonne(in);
    for (int riga = 1, righe = Righe(in); riga <= righe; ++riga) {
        AEntrambi(s, kMargine);
        for (int c = 1; c <= colonne; ++c) {
            int n = Draw(rnd, 3, 1) == 1 ? Draw(rnd, g.NumeroMassimo / 10.0) * 10 - m.e
                                         : Draw(rnd, g.NumeroMassimo, 1);
            // 0 and below, and 99, are moved onto a change of ten: 19 and 89 come up more often
            // than the numbers beside them.
            if (n <= 0) n = 19;
            if (n == 99) n = 89;
            const Celle e = m.celle(n);
            s.txtCD += e.foglio;
            s.TextCor += e.correzione;
            AEntrambi(s, kSpazio);
        }
        ChiudiRiga(s);
    }
}

// Expanded form, one to a row. The shared NumeroEsatto is the working storage and keeps the last
// number; the exercise behind draws a new question anyway when it is active again.
void FaiScheda8(const SchedaInput& in, Modulo1& g, Random& rnd, Scheda& s) {
    Intestazione(s, u"       ESEGUI LE ESPRESSIONI"_s);
    for (int riga = 1, righe = Righe(in); riga <= righe; ++riga) {
        AEntrambi(s, kMargine);
        g.NumeroEsatto = static_cast<int16_t>(Draw(rnd, 99, 1));
        const int t = static_cast<int>(Int(g.NumeroEsatto / 10.0));
        const int u = g.NumeroEsatto - 10 * t;
        QString e;
        if (t > 0) {
            e = u"(10 x "_s + Str(t) + u')';
            if (u > 0) e += u" + "_s;
        }
        if (u > 0) e += u"(1 x "_s + Str(u) + u')';
        AEntrambi(s, e);
        s.txtCD += u" = _____       "_s;
        s.TextCor += u" = "_s + Str(10 * t + u) + u"      "_s;
        ChiudiRiga(s);
    }
}

using Generatore = void (*)(const SchedaInput&, Modulo1&, Random&, Scheda&);

constexpr Generatore kLetture[] = {FaiScheda1,         FaiScheda2,         FaiScheda3,         FaiScheda4,
                                   FaiSchedaVicino<0>, FaiSchedaVicino<1>, FaiSchedaVicino<2>, FaiScheda8};

} // namespace

void FaiSchedaLettura(int numero, const SchedaInput& in, Modulo1& g, Random& rnd, Scheda& s) {
    if (numero >= 1 && numero <= static_cast<int>(std::size(kLetture))) kLetture[numero - 1](in, g, rnd, s);
}

} // namespace contarello::schede
