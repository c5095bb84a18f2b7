#include "core/phrases.h"
#include "core/numberwords.h"

#include <QHash>
#include <QStringList>

namespace contarello {

QString NumeroDetto(long long n) {
    Modulo1 g;
    QString parola = InParole(n, g).toLower();
    // The screens write VENTITRE; said, and written by hand, it is ventitré, as is every "tre" that
    // closes a longer number. The plain tre has no accent.
    if (parola.size() > 3 && parola.endsWith(QLatin1String("tre"))) parola[parola.size() - 1] = u'é';
    return parola;
}

namespace {

// The number words in capitals as the screens show them, from ZERO to NOVECENTONOVANTANOVE.
const QHash<QString, int>& ParoleMaiuscole() {
    static const QHash<QString, int> parole = [] {
        QHash<QString, int> p;
        Modulo1 g;
        for (int n = 0; n < 1000; ++n)
            p.insert(InParole(n, g), n);
        return p;
    }();
    return parole;
}

bool Lettera(QChar c) {
    return c.isLetter() || c == u'\'';
}

// The phrase as it is built: words with one blank between them, punctuation closing the word
// before it.
class Frase {
public:
    void parola(const QString& w) {
        if (!testo_.isEmpty() && !testo_.endsWith(u' ')) testo_ += u' ';
        testo_ += w;
    }
    // Replaces the last word said.
    void ultima(const QString& w) {
        testo_.truncate(testo_.lastIndexOf(u' ') + 1);
        testo_ += w;
    }
    void segno(QChar s) {
        while (testo_.endsWith(u' '))
            testo_.chop(1);
        if (testo_.isEmpty()) return; // nothing to pause after
        if (testo_.back() == u',' || testo_.back() == u'.' || testo_.back() == u':') {
            // A full stop wins over a pause; a pause after a full stop adds nothing.
            if (s == u'.') testo_.back() = s;
            return;
        }
        if (testo_.back() == u'?' || testo_.back() == u'!') return;
        testo_ += s;
    }
    QString fine() {
        while (!testo_.isEmpty() && (testo_.back() == u' ' || testo_.back() == u','))
            testo_.chop(1);
        return testo_;
    }

private:
    QString testo_;
};

// Whether the rest of the line after position i holds only blanks.
bool FineRiga(const QString& s, qsizetype i) {
    for (; i < s.size() && s[i] != u'\n' && s[i] != u'\r'; ++i)
        if (!s[i].isSpace()) return false;
    return true;
}

} // namespace

QString FraseDaDire(const QString& testo) {
    Frase frase;
    // The number just said, for the words that count it ("3 da", "1 u", "10 x 3"); -1 when the
    // last thing said was not a number.
    long long numero = -1;
    const qsizetype n = testo.size();
    for (qsizetype i = 0; i < n;) {
        const QChar c = testo[i];
        if (c.isDigit()) {
            qsizetype j = i;
            QString cifre;
            // Digits in groups of three with a separator are one number: 1.000 or 1,000.
            while (j < n) {
                if (testo[j].isDigit()) {
                    cifre += testo[j++];
                } else if ((testo[j] == u'.' || testo[j] == u',') && j + 3 < n && testo[j + 1].isDigit() &&
                           testo[j + 2].isDigit() && testo[j + 3].isDigit() &&
                           (j + 4 >= n || !testo[j + 4].isDigit())) {
                    ++j;
                } else {
                    break;
                }
            }
            // Past what the words can say, the digits are said one by one.
            if (cifre.size() > 12) {
                for (QChar d : cifre)
                    frase.parola(NumeroDetto(d.digitValue()));
                numero = -1;
            } else {
                numero = cifre.toLongLong();
                frase.parola(NumeroDetto(numero));
            }
            i = j;
            continue;
        }
        if (Lettera(c)) {
            qsizetype j = i;
            while (j < n && Lettera(testo[j]))
                ++j;
            const QString w = testo.mid(i, j - i);
            i = j;
            const long long prima = std::exchange(numero, -1);
            // One ten is "una decina", one unit "un'unità": the number agrees with its word.
            if (prima >= 0 && w == QLatin1String("da")) {
                if (prima == 1) frase.ultima(QStringLiteral("una"));
                frase.parola(prima == 1 ? QStringLiteral("decina") : QStringLiteral("decine"));
            } else if (prima >= 0 && w == QLatin1String("u")) {
                if (prima == 1)
                    frase.ultima(QStringLiteral("un'unità"));
                else
                    frase.parola(QStringLiteral("unità"));
            } else if (prima >= 0 && w == QLatin1String("x")) {
                frase.parola(QStringLiteral("per"));
            } else if (auto it = ParoleMaiuscole().constFind(w); it != ParoleMaiuscole().constEnd()) {
                numero = it.value();
                frase.parola(NumeroDetto(numero));
            } else {
                frase.parola(w);
            }
            continue;
        }
        ++i;
        switch (c.unicode()) {
        case u'+':
            frase.parola(QStringLiteral("più"));
            break;
        case u'-':
            frase.parola(QStringLiteral("meno"));
            break;
        case u'<':
            frase.parola(QStringLiteral("minore di"));
            break;
        case u'>':
            frase.parola(QStringLiteral("maggiore di"));
            break;
        case u'=':
            // At the end of its line the question waits for the answer: the child hears the sum,
            // not a sentence left hanging on "uguale".
            if (!FineRiga(testo, i)) frase.parola(QStringLiteral("uguale"));
            break;
        case u'_':
            while (i < n && testo[i] == u'_')
                ++i;
            frase.segno(u',');
            break;
        case u'\n':
        case u'\r':
            frase.segno(u'.');
            break;
        case u'.':
        case u',':
        case u';':
        case u':':
        case u'?':
        case u'!':
            frase.segno(c == u';' ? u',' : c);
            break;
        default:
            break; // blanks, brackets and anything else are not said
        }
        // A blank or a bracket keeps the number before it for "da", "u" and "x".
        if (!c.isSpace() && c != u'(' && c != u')') numero = -1;
    }
    return frase.fine();
}

} // namespace contarello
