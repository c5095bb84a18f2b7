// The text worksheets to the last blank: each generator's heading, rows and correction for draws at
// the ends of its ranges, the ordering sheet, and the line breaks of the printouts.

#include "core/scripted.h"
#include "worksheets/generators/generators.h"

#include <QtTest>

using namespace contarello;

Q_DECLARE_METATYPE(SchedaInput)

namespace {

// Draws: Z gives the bottom of every range, T its top, v(k, n) the k-th of n values.
constexpr double Z = 0.0, T = 0.999999;
constexpr auto v = [](int k, double n) { return (k + 0.5) / n; };

const QString CR_LF = QStringLiteral("\r\n");

// A sheet: an empty line, the heading, an empty line, then each row followed by an empty line.
QString sheet(const QString& heading, const QStringList& rows) {
    return CR_LF + heading + CR_LF + CR_LF + rows.join(CR_LF + CR_LF) + CR_LF + CR_LF;
}

// The cells in so many rows: each row a margin, then every cell followed by the gap, then the tail.
QStringList rows(const QStringList& cells, int righe, const QString& margin, const QString& gap,
                 const QString& tail = {}) {
    QStringList out;
    const qsizetype n = cells.size() / righe;
    for (int r = 0; r < righe; ++r)
        out << margin + cells.mid(r * n, n).join(gap) + gap + tail;
    return out;
}

const QString kAdd = QStringLiteral("           ESEGUI LE ADDIZIONI");
const QString kSub = QStringLiteral("           ESEGUI LE SOTTRAZIONI");
const QString kAdd8 = QStringLiteral("        ESEGUI LE ADDIZIONI");
const QString kSub8 = QStringLiteral("        ESEGUI LE SOTTRAZIONI");
const QString kAsc = QStringLiteral("Ordina i numeri dal minore al maggiore ");
const QString kDesc = QStringLiteral("Ordina i numeri dal maggiore al minore");

// The worksheet's cells: the correction's with the answer line in place of the result.
QStringList ask(const QStringList& correzione, const QString& blank, int width) {
    QStringList out;
    for (const QString& c : correzione)
        out << (c.left(c.indexOf(u'=') + 2) + blank).leftJustified(width);
    return out;
}

// Sums: cells of 25 characters, a margin of four on the worksheet only, five blanks closing a row.
void sums(const char* name, int numero, const QString& heading, const QList<double>& draws,
          const QStringList& c, const QString& blank = "______", int righe = 1) {
    QTest::newRow(name) << numero << 99 << SchedaInput{righe, int(c.size()) / righe} << draws
                        << sheet(heading, rows(ask(c, blank, 25), righe, "    ", "", "     "))
                        << sheet(heading, rows(c, righe, "", "", "     "));
}

// One and ten: margin and gap on both texts, the correction's heading one blank further right.
void steps(const char* name, int numero, const QString& heading, const QString& margin, const QString& gap,
           const QString& blank, int width, const QList<double>& draws, const QStringList& c, int righe = 1) {
    QTest::newRow(name) << numero << 99 << SchedaInput{righe, int(c.size()) / righe} << draws
                        << sheet(heading, rows(ask(c, blank, width), righe, margin, gap))
                        << sheet(" " + heading, rows(c, righe, margin, gap));
}

// Reading and placing: a margin of four on both texts.
void reading(const char* name, int numero, const QString& heading, int nm, int righe, int colonne,
             const QString& gap, const QList<double>& draws, const QStringList& s, const QStringList& c) {
    QTest::newRow(name) << numero << nm << SchedaInput{righe, colonne} << draws
                        << sheet(heading, rows(s, righe, "    ", gap))
                        << sheet(heading, rows(c, righe, "    ", gap));
}

// Ordering: two lines a row on the worksheet (the numbers, then as many answer lines), one on the
// correction; one row more than asked, and the columns are ignored.
void ordering(const char* name, const QString& rowLength, const QString& task, int nm,
              const QList<double>& draws, const QStringList& numbers, const QStringList& c) {
    const QString answers = CR_LF + CR_LF + QStringLiteral("____    ").repeated(rowLength.trimmed().toInt());
    QTest::newRow(name) << 4 << nm << SchedaInput{1, 6, rowLength, task} << draws
                        << sheet(task, {numbers[0] + answers, numbers[1] + answers}) << sheet(task, c);
}

} // namespace

class WorksheetsTest : public QObject {
    Q_OBJECT
private slots:
    void generators_data() {
        QTest::addColumn<int>("numero");
        QTest::addColumn<int>("nm");
        QTest::addColumn<SchedaInput>("in");
        QTest::addColumn<QList<double>>("draws");
        QTest::addColumn<QString>("foglio");
        QTest::addColumn<QString>("correzione");

        sums("15 sum up to 99", 15, kAdd, {Z, Z, T, T, v(9, 80), v(45, 90), v(22, 80), v(41, 77)},
             {"    0 +  1 =  1          ", "    19 +  80 =  99       ", "    45 +  10 =  55       ",
              "    41 +  23 =  64       "},
             "______", 2);
        sums("17 minuend up to 99", 17, kSub, {Z, Z, T, T, v(9, 80), v(45, 90)},
             {"    1 -  0 =  1          ", "    99 -  19 =  80       ", "    55 -  45 =  10       "});
        sums("19 add units", 19, kAdd, {Z, Z, T, T, v(41, 90), v(6, 9)},
             {"    0 +  1 =  1          ", "    89 +  9 =  98        ", "    41 +  7 =  48        "});
        sums("20 add tens", 20, kAdd, {Z, Z, T, T, v(2, 9), v(41, 70)},
             {"    0 +  10 =  10        ", "    9 +  90 =  99        ", "    41 +  30 =  71       "});
        sums("21 take away units", 21, kSub, {Z, Z, T, T, v(41, 90), v(6, 9)},
             {"    1 -  1 =  0          ", "    98 -  9 =  89        ", "    48 -  7 =  41        "});
        sums("22 take away tens", 22, kSub, {Z, Z, T, T, v(2, 9), v(41, 70)},
             {"    10 -  10 =  0        ", "    99 -  90 =  9        ", "    71 -  30 =  41       "});
        sums("23 add units or tens", 23, kAdd, {Z, Z, T, T, T, T, Z, T, Z},
             {"    99 +  0 =  99        ", "    9 +  90 =  99        ", "    0 +  9 =  9          "});
        sums("24 take away units or tens", 24, kSub, {Z, Z, T, T, T, T, Z, T, Z},
             {"    99 -  0 =  99        ", "    99 -  90 =  9        ", "    9 -  9 =  0          "});
        // Digit by digit: a zero sum is drawn again, a digit of 0 draws its split all the same.
        const QList<double> digits = {Z, v(3, 10), 0.7, Z, T, T, T, T, Z, Z, v(7, 10), Z, Z, 0.7};
        sums("16 without carrying", 16, kAdd, digits,
             {"    0 +  3 0 =  30       ", "    8 8 +  1 1 =  99     ", "    0 +  7 =  7          "}, "____");
        sums("18 without borrowing", 18, kSub, digits,
             {"    3 0 -  0 =  30       ", "    9 9 -  8 8 =  11     ", "    7 -  0 =  7          "}, "____");

        // A step alone keeps its numbers right-aligned; a choice of steps fills a cell of 20.
        steps("9 add one", 9, kAdd8, "    ", "     ", "___ ", 0, {Z, T, v(6, 98), v(44, 98)},
              {"   1 + 1 =    2  ", "  98 + 1 =   99  ", "   7 + 1 =    8  ", "  45 + 1 =   46  "}, 2);
        steps("10 add ten", 10, kAdd8, "    ", "     ", "___ ", 0, {Z, T, v(44, 88)},
              {"   1 + 10 =   11  ", "  88 + 10 =   98  ", "  45 + 10 =   55  "});
        steps("12 take away ten", 12, kSub8, "  ", "    ", "___ ", 0, {Z, T, v(35, 88)},
              {"  10 - 10 =    0  ", "  97 - 10 =   87  ", "  45 - 10 =   35  "});
        steps("14 take away one", 14, kSub8, "    ", "     ", "___ ", 0, {Z, T, v(6, 98)},
              {"   1 - 1 =    0  ", "  98 - 1 =   97  ", "   7 - 1 =    6  "});
        steps("11 add one or ten", 11, kAdd8, "  ", "    ", " ___", 20, {Z, Z, T, Z, Z, T},
              {" 0 + 1 =  1         ", " 0 + 10 =  10       ", " 97 + 1 =  98       "});
        steps("13 take away one or ten", 13, kSub8, "  ", "    ", " ___", 20, {Z, Z, T, Z, Z, T},
              {" 2 - 1 =  1         ", " 20 - 10 =  10      ", " 98 - 1 =  97       "});

        // Words and expressions: one exercise a row whatever the columns.
        reading("1 words", 1, "       SCRIVI I NUMERI IN CIFRE", 50, 2, 6, "", {v(21, 50), Z},
                {"VENTUNO  _______________", "ZERO  _______________"}, {"VENTUNO    21", "ZERO    0"});
        reading(
            "8 expressions", 8, "       ESEGUI LE ESPRESSIONI", 99, 3, 6, "", {v(33, 99), v(39, 99), Z},
            {"(10 x  3) + (1 x  4) = _____       ", "(10 x  4) = _____       ", "(1 x  1) = _____       "},
            {"(10 x  3) + (1 x  4) =  34      ", "(10 x  4) =  40      ", "(1 x  1) =  1      "});
        // A draw of 10 to 13 leaves that part out; both left out draws the pair again.
        reading(
            "2 tens and units", 2, "       SCRIVI I NUMERI IN CIFRE", 99, 2, 2, "",
            {Z, Z, v(11, 13), v(8, 13), T, T, v(8, 13), v(8, 13), v(3, 13), T},
            {" 1 da    1 u _____       ", " 9 u _____       ", " 9 da    9 u _____       ",
             " 4 da    _____       "},
            {" 1 da    1 u   11      ", " 9 u   9      ", " 9 da    9 u   99      ", " 4 da      40      "});
        reading("3 compare", 3, "       INSERISCI I SIMBOLI   >  <  =", 50, 1, 3, "     ",
                {Z, Z, T, v(20, 50), v(5, 50), T}, {" 0 _____  0", " 49 _____  20", " 5 _____  49"},
                {" 0 =  0", " 49 >  20", " 5 <  49"});
        // The neighbours: a draw of 1 in 3 sits on a change of ten; 0 and below become 19, 99 becomes 89.
        reading("5 middle", 5, "       INSERISCI IL NUMERO IN MEZZO", 99, 2, 2, "     ",
                {Z, Z, T, T, Z, T, v(1, 3), v(41, 99)},
                {" 19 _____  21", " 89 _____  91", " 89 _____  91", " 42 _____  44"},
                {" 19   20   21", " 89   90   91", " 89   90   91", " 42   43   44"});
        reading("6 next", 6, "       INSERISCI IL NUMERO SUCCESSIVO", 20, 1, 3, "     ",
                {Z, Z, v(1, 3), T, Z, T}, {" 19 _____ ", " 20 _____ ", " 9 _____ "},
                {" 19   20  ", " 20   21  ", " 9   10  "});
        reading("7 before", 7, "       INSERISCI IL NUMERO PRECEDENTE", 20, 1, 3, "     ",
                {Z, Z, v(1, 3), T, Z, T}, {" _____  19", " _____  20", " _____  10"},
                {" 18   19  ", " 19   20  ", " 9   10  "});

        const QList<double> draws = {v(42, 99), Z, v(7, 99), T, v(42, 99), v(42, 99)};
        const QStringList numbers = {" 42     0     7    ", " 98     42     42    "};
        const QStringList up = {"   0        7       42     ", "  42       42       98     "};
        ordering("4 smallest first, ties kept", " 3", kAsc, 99, draws, numbers, up);
        ordering("4 largest first", " 3", kDesc, 99, draws, numbers,
                 {"  42        7        0     ", "  98       42       42     "});
        ordering("4 largest first needs the exact caption", "3", kDesc + " ", 99, draws, numbers, up);
        // The list sorts text: four digits don't fit the four characters and come before 999.
        ordering("4 sorted as text", "3", kAsc, 2000, {v(999, 2000), v(1000, 2000), v(5, 2000), Z, Z, Z},
                 {" 999     1000     5    ", " 0     0     0    "},
                 {"   5      1000      999     ", "   0        0        0     "});
        ordering("4 ordering screen not open", "", "", 99, {}, {"", ""}, {"", ""});

        for (int numero : {0, 25, -4})
            QTest::newRow(qPrintable("unknown " + QString::number(numero)))
                << numero << 99 << SchedaInput{} << QList<double>{} << QString() << QString();
    }

    void generators() {
        QFETCH(int, numero);
        QFETCH(int, nm);
        QFETCH(SchedaInput, in);
        QFETCH(QList<double>, draws);
        QFETCH(QString, foglio);
        QFETCH(QString, correzione);
        ScriptedRandom rnd;
        for (double d : draws)
            rnd.queue(d);
        Modulo1 g;
        g.NumeroMassimo = static_cast<int16_t>(nm);
        const Scheda s = FaiScheda(numero, in, g, rnd);
        QCOMPARE(s.txtCD, foglio);
        QCOMPARE(s.TextCor, correzione);
        QCOMPARE(rnd.pending(), size_t(0)); // every draw taken, none more
    }

    // The printer's line breaks, after the last blank that fits.
    // The printer's line breaks, after the last blank that fits.
    void andaACapo_data() {
        QTest::addColumn<QString>("testo");
        QTest::addColumn<int>("larghezza");
        QTest::addColumn<QString>("uscita");
        QTest::newRow("a line that just fits goes out whole")
            << "aaaa bbbbb\r\ncc" << 10 << "aaaa bbbbb\r\ncc\r\n";
        QTest::newRow("one character too long breaks at the blank")
            << "aaaa bbbbbb\r\ncc dd" << 10 << "aaaa \r\nbbbbbb\r\ncc dd\r\n";
        QTest::newRow("a run of blanks is so many words") << "ab   cd" << 3 << "ab  \r\n cd\r\n";
        // The LF left at the head of the next line takes one of its characters.
        QTest::newRow("the LF counts in the next line")
            << "ab de\r\nfg ij\r\nk" << 5 << "ab de\r\nfg \r\nij\r\nk\r\n";
        QTest::newRow("a word longer than a line") << "abcdefghijkl mn" << 4 << "\r\nabcde\r\nfghijkl mn\r\n";
        QTest::newRow("a long word after a started line keeps the order")
            << "xy abcdefgh z" << 4 << "xy \r\nabcdefgh z\r\n";
        QTest::newRow("outer blanks are trimmed") << "  ab cd  " << 10 << "ab cd\r\n";
        QTest::newRow("empty text is one line end") << "" << 100 << "\r\n";
        QTest::newRow("a width below 0 still ends") << "ab cd" << -5 << "\r\na\r\nb \r\ncd\r\n";
    }
    void andaACapo() {
        QFETCH(QString, testo);
        QFETCH(int, larghezza);
        QFETCH(QString, uscita);
        QCOMPARE(AndaACapo(testo, larghezza), uscita);
    }
};

QTEST_APPLESS_MAIN(WorksheetsTest)
#include "worksheets.moc"
