// What the voice says, word by word: every number a question can hold, written out by hand, and
// every kind of question the screens ask.

#include "core/phrases.h"
#include "core/lang.h"
#include "core/numberwords.h"

#include <QtTest>

using namespace contarello;

namespace {

// clang-format off
const char* const kDetti[100] = {
    "zero", "uno", "due", "tre", "quattro", "cinque", "sei", "sette", "otto", "nove",
    "dieci", "undici", "dodici", "tredici", "quattordici", "quindici", "sedici", "diciassette",
    "diciotto", "diciannove",
    "venti", "ventuno", "ventidue", "ventitré", "ventiquattro", "venticinque", "ventisei", "ventisette",
    "ventotto", "ventinove",
    "trenta", "trentuno", "trentadue", "trentatré", "trentaquattro", "trentacinque", "trentasei",
    "trentasette", "trentotto", "trentanove",
    "quaranta", "quarantuno", "quarantadue", "quarantatré", "quarantaquattro", "quarantacinque",
    "quarantasei", "quarantasette", "quarantotto", "quarantanove",
    "cinquanta", "cinquantuno", "cinquantadue", "cinquantatré", "cinquantaquattro", "cinquantacinque",
    "cinquantasei", "cinquantasette", "cinquantotto", "cinquantanove",
    "sessanta", "sessantuno", "sessantadue", "sessantatré", "sessantaquattro", "sessantacinque",
    "sessantasei", "sessantasette", "sessantotto", "sessantanove",
    "settanta", "settantuno", "settantadue", "settantatré", "settantaquattro", "settantacinque",
    "settantasei", "settantasette", "settantotto", "settantanove",
    "ottanta", "ottantuno", "ottantadue", "ottantatré", "ottantaquattro", "ottantacinque",
    "ottantasei", "ottantasette", "ottantotto", "ottantanove",
    "novanta", "novantuno", "novantadue", "novantatré", "novantaquattro", "novantacinque",
    "novantasei", "novantasette", "novantotto", "novantanove"};
// clang-format on

} // namespace

class PhrasesTest : public QObject {
    Q_OBJECT
private slots:
    // Each number as a screen writes it, in digits with the leading blank of Str and as the word in
    // capitals without its accent, is said the same.
    void numbers_data() {
        QTest::addColumn<int>("n");
        QTest::addColumn<QString>("detto");
        for (int n = 0; n < 100; ++n)
            QTest::newRow(qPrintable(QString::number(n))) << n << QString::fromUtf8(kDetti[n]);
    }
    void numbers() {
        QFETCH(int, n);
        QFETCH(QString, detto);
        Modulo1 g;
        QCOMPARE(FraseDaDire(Str(n)), detto);
        QCOMPARE(FraseDaDire(InParole(n, g)), detto);
        QCOMPARE(NumeroDetto(n), detto);
    }

    void questions_data() {
        QTest::addColumn<QString>("testo");
        QTest::addColumn<QString>("detto");
        // clang-format off
        const std::pair<const char*, const char*> rows[] = {
            // counting on and back: the "=" that waits for the answer is not said
            {" 49 + 1 = ", "quarantanove più uno"},
            {" 31 - 10 = ", "trentuno meno dieci"},
            {" 49 + 1 = 50", "quarantanove più uno uguale cinquanta"},
            // the number before, after, between: a gap is a pause
            {"  ___  24\nScrivi il numero precedente", "ventiquattro. Scrivi il numero precedente"},
            {" 22 ___\nScrivi il numero seguente", "ventidue. Scrivi il numero seguente"},
            {" 22 _______ 24\nScrivi il numero in mezzo", "ventidue, ventiquattro. Scrivi il numero in mezzo"},
            // tens and units, either way round; one of them agrees with its word
            {" 3 da    5 u\nScrivi il numero in cifre", "tre decine cinque unità. Scrivi il numero in cifre"},
            {" 8 u 1 da   ", "otto unità una decina"},
            {" 1 u", "un'unità"},
            {" 9 da   ", "nove decine"},
            // expressions
            {"(10 x  3) + (1 x  5) = \nScrivi il numero in cifre",
             "dieci per tre più uno per cinque. Scrivi il numero in cifre"},
            {"(1 x  7) = ", "uno per sette"},
            // words and digits; the word shown on screen is said with its accent
            {"VENTITRE\nScrivi il numero in cifre", "ventitré. Scrivi il numero in cifre"},
            {" 81\nScrivi il numero in lettere", "ottantuno. Scrivi il numero in lettere"},
            {"QUARANTOTTO    ", "quarantotto"},
            // comparing, ordering
            {" 23,  45", "ventitré, quarantacinque"},
            {" 23 <  45", "ventitré minore di quarantacinque"},
            {" 45 >  23", "quarantacinque maggiore di ventitré"},
            {"Ordina i numeri dal minore al maggiore :  7,  23,  0",
             "Ordina i numeri dal minore al maggiore: sette, ventitré, zero"},
            // in column, with a line end inside the prompt
            {" 36 +  47\nLe unità sono almeno 10. Trascina il cambio sulle decine.",
             "trentasei più quarantasette. Le unità sono almeno dieci. Trascina il cambio sulle decine."},
            {"Ci sono almeno 10 unità.\r\nPremi il bottone cambio.",
             "Ci sono almeno dieci unità. Premi il bottone cambio."},
            // the graphic screens' prompts
            {" 63 +  5 = \ninserisci il numero  63 nell'abaco",
             "sessantatré più cinque. inserisci il numero sessantatré nell'abaco"},
            {"quale numero è rosso?", "quale numero è rosso?"},
            {" 57\nclicca sul numero", "cinquantasette. clicca sul numero"},
            // the number line: the numbers written on it
            {" 30,  40,  50", "trenta, quaranta, cinquanta"},
            // nothing to say
            {"", ""},
            {"   ___ ", ""},
            // past the exercises' numbers, still words
            {"1.000 + 108 = ", "mille più centootto"},
            {"123", "centoventitré"},
        };
        // clang-format on
        for (const auto& [testo, detto] : rows)
            QTest::newRow(qPrintable(QString::fromUtf8(testo).replace(u'\n', u'|').remove(u'\r')))
                << QString::fromUtf8(testo) << QString::fromUtf8(detto);
    }
    void questions() {
        QFETCH(QString, testo);
        QFETCH(QString, detto);
        QCOMPARE(FraseDaDire(testo), detto);
    }
};

QTEST_APPLESS_MAIN(PhrasesTest)
#include "phrases.moc"
