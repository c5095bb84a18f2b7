#include "core/numberwords.h"

#include <array>

namespace contarello {

namespace {

// The word table as it is left in ParoleNumeri: the word of r (0 to 20) at r + 1, the word of
// d tens (2 to 9) at d + 19.
// clang-format off
constexpr std::array<QStringView, 31> kParole = {
    u"", u"", u"UNO", u"DUE", u"TRE", u"QUATTRO", u"CINQUE", u"SEI", u"SETTE", u"OTTO", u"NOVE",
    u"DIECI", u"UNDICI", u"DODICI", u"TREDICI", u"QUATTORDICI", u"QUINDICI", u"SEDICI", u"DICIASSETTE",
    u"DICIOTTO", u"DICIANNOVE",
    u"VENTI", u"TRENTA", u"QUARANTA", u"CINQUANTA", u"SESSANTA", u"SETTANTA", u"OTTANTA", u"NOVANTA",
    u"", u""};
// clang-format on

// How a group of three digits is closed, by its place: the word for exactly one of it, which
// replaces the UNO just written, and the word for more.
struct Chiusura {
    long long potenza;
    QStringView uno;
    QStringView molti;
};
constexpr std::array<Chiusura, 4> kGruppi = {{
    {1, u"", u""},
    {1000, u"MILLE", u"MILA"},
    {1000000, u"UNMILIONE", u"MILIONI"},
    {1000000000, u"UNMILIARDO", u"MILIARDI"},
}};

} // namespace

QString InParole(long long numero, Modulo1& g) {
    return NumeroInParole(numero, g);
}

QString NumeroInParole(long long& n, Modulo1& g) {
    for (size_t i = 0; i < kParole.size(); ++i)
        g.ParoleNumeri[i] = kParole[i].toString();
    // Past 999 milliards a group can ask for a word the table doesn't have: it writes nothing.
    const auto parola = [&g](long long i) {
        return i >= 0 && i < static_cast<long long>(g.ParoleNumeri.size()) ? g.ParoleNumeri[i] : QString();
    };

    QString s;
    for (int i = 3; i >= 0; --i) {
        const Chiusura& posto = kGruppi[i];
        const long long gruppo = n / posto.potenza;
        if (gruppo <= 0) continue;
        long long r = gruppo;
        if (r > 99) {
            const long long c = r / 100;
            r -= 100 * c;
            if (c != 1) s += parola(c + 1);
            s += u"CENTO";
        }
        if (r > 20) {
            const long long d = r / 10;
            s += parola(d + 19);
            r -= 10 * d;
            if (r == 1 || r == 8) s.chop(1); // VENTI + UNO is VENTUNO, TRENTA + OTTO is TRENTOTTO
        }
        s += parola(r + 1);
        if (i > 0) {
            if (gruppo == 1) {
                s.chop(3); // the UNO: one thousand is MILLE, not UNOMILLE
                s += posto.uno;
            } else {
                s += posto.molti;
            }
        }
        n -= gruppo * posto.potenza;
    }
    return s.isEmpty() ? QStringLiteral("ZERO") : s;
}

} // namespace contarello
