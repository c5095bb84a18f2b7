// The printer gets the sheet with its long lines broken at the last blank that fits. A line that
// fits goes out whole; the break knows nothing of exercises or columns.

#include "core/lang.h"
#include "worksheets/generators/generators.h"

#include <algorithm>
#include <climits>

namespace contarello {

namespace {

// The position of the next c at or after da, remembered until da passes it: the text is consumed
// word by word, and a sheet without line ends must not be searched again for each word.
class Prossimo {
public:
    Prossimo(const QString& testo, QChar c) : testo_(testo), c_(c) {}
    // 1-based from da as InStr counts it, 0 when there is none.
    qsizetype da(qsizetype da) {
        if (trovato_ != -1 && trovato_ < da) trovato_ = -2;
        if (trovato_ == -2) trovato_ = testo_.indexOf(c_, da);
        return trovato_ == -1 ? 0 : trovato_ - da + 1;
    }

private:
    const QString& testo_;
    QChar c_;
    qsizetype trovato_ = -2; // -2: not searched yet; -1: none left
};

} // namespace

QString AndaACapo(QString testo, int larghezza) {
    testo = Trim(testo);
    // A width below 0 would take no character at a time from a long word and never end.
    const qsizetype N = std::max<qsizetype>(larghezza, 0) + 1;
    QString uscita, riga;
    qsizetype inizio = 0; // testo is consumed from here on
    Prossimo blank(testo, u' '), cr(testo, u'\r');
    for (;;) {
        const qsizetype B = blank.da(inizio), C = cr.da(inizio);
        if (C != 0 && C + riga.size() <= N) {
            // The LF after this CR stays at the head of the rest and counts in the next line.
            uscita += riga + testo.mid(inizio, C);
            riga.clear();
            inizio += C;
        } else if (B == 0) {
            break;
        } else if (B + riga.size() <= N) {
            riga += testo.mid(inizio, B); // a run of blanks goes as so many words of one blank
            inizio += B;
        } else if (B > N) {
            // A word longer than a line, which only a hand edit of the sheet can make: it goes out
            // in pieces of a whole line. The line under construction goes out first, so that no
            // word comes out of its place.
            uscita += riga + CRLF + testo.mid(inizio, N);
            riga.clear();
            inizio += N;
        } else {
            uscita += riga + CRLF;
            riga.clear();
        }
    }
    const QString resto = testo.mid(inizio);
    if (riga.isEmpty())
        uscita += resto + CRLF;
    else if (resto.size() + riga.size() > N)
        uscita += riga + CRLF + resto + CRLF;
    else
        uscita += riga + resto + CRLF;
    return uscita;
}

} // namespace contarello
