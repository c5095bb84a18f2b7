#include "core/scripted.h"
#include "worksheets/generators/generators.h"

#include <QtTest>

using namespace contarello;

namespace {

// Draws: Z gives the bottom of every range, T its top, v(k, n) the k-th of n values.
constexpr double Z = 0.0;
constexpr double T = 0.999999;
constexpr double v(int k, double n) {
    return (k + 0.5) / n;
}

const QString CR_LF = QStringLiteral("\r\n");

// A sheet: an empty line, the heading, an empty line, then each row followed by an empty line.
QString sheet(const QString& heading, const QStringList& rows) {
    QString s = CR_LF + heading + CR_LF + CR_LF;
    for (const QString& r : rows)
        s += r + CR_LF + CR_LF;
    return s;
}

QList<double> twice(const QList<double>& d) {
    return d + d;
}

const QString kAdd = QStringLiteral("           ESEGUI LE ADDIZIONI");
const QString kSub = QStringLiteral("           ESEGUI LE SOTTRAZIONI");
const QString kAdd8 = QStringLiteral("        ESEGUI LE ADDIZIONI");
const QString kSub8 = QStringLiteral("        ESEGUI LE SOTTRAZIONI");
const QString kCifre = QStringLiteral("       SCRIVI I NUMERI IN CIFRE");
const QString kAsc = QStringLiteral("Ordina i numeri dal minore al maggiore ");
const QString kDesc = QStringLiteral("Ordina i numeri dal maggiore al minore");

} // namespace

class WorksheetsTest : public QObject {
    Q_OBJECT

    // One sheet at one column over two rows, and one at six columns over one row, whose draws are
    // three exercises drawn twice.
    static void add(const QByteArray& name, int numero, int nm, int righe, int colonne,
                    const QList<double>& draws, const QString& foglio, const QString& correzione) {
        QTest::newRow(name.constData()) << numero << nm << righe << colonne << draws << foglio << correzione;
    }

    // Sums: cells of 25, a margin of four on the worksheet only, five blanks at the end of a row.
    static void addSums(const char* name, int numero, const QString& heading, const QList<double>& one,
                        const QStringList& s1, const QStringList& c1, const QList<double>& six,
                        const QStringList& s6, const QStringList& c6) {
        add(QByteArray(name).append(" one column"), numero, 99, 2, 1, one,
            sheet(heading, {"    " + s1[0] + "     ", "    " + s1[1] + "     "}),
            sheet(heading, {c1[0] + "     ", c1[1] + "     "}));
        add(QByteArray(name).append(" six columns"), numero, 99, 1, 6, twice(six),
            sheet(heading, {"    " + s6.join("").repeated(2) + "     "}),
            sheet(heading, {c6.join("").repeated(2) + "     "}));
    }

    // Steps: each cell followed by the gap; margin and gap on both texts.
    static void addSteps(const char* name, int numero, const QString& heading, const QString& margin,
                         const QString& gap, const QList<double>& one, const QStringList& s1,
                         const QStringList& c1, const QList<double>& six, const QStringList& s6,
                         const QStringList& c6) {
        const auto row = [&](const QStringList& cells) { return margin + cells.join(gap) + gap; };
        add(QByteArray(name).append(" one column"), numero, 99, 2, 1, one,
            sheet(heading, {row({s1[0]}), row({s1[1]})}), sheet(" " + heading, {row({c1[0]}), row({c1[1]})}));
        add(QByteArray(name).append(" six columns"), numero, 99, 1, 6, twice(six),
            sheet(heading, {row(s6 + s6)}), sheet(" " + heading, {row(c6 + c6)}));
    }

private slots:
    void generators_data() {
        QTest::addColumn<int>("numero");
        QTest::addColumn<int>("nm");
        QTest::addColumn<int>("righe");
        QTest::addColumn<int>("colonne");
        QTest::addColumn<QList<double>>("draws");
        QTest::addColumn<QString>("foglio");
        QTest::addColumn<QString>("correzione");

        // ---- additions and subtractions ----
        addSums("15 sum up to 99", 15, kAdd, {v(22, 80), v(41, 77), T, T},
                {"    41 +  23 = ______    ", "    19 +  80 = ______    "},
                {"    41 +  23 =  64       ", "    19 +  80 =  99       "}, {Z, Z, T, T, v(9, 80), v(45, 90)},
                {"    0 +  1 = ______      ", "    19 +  80 = ______    ", "    45 +  10 = ______    "},
                {"    0 +  1 =  1          ", "    19 +  80 =  99       ", "    45 +  10 =  55       "});
        addSums("17 minuend up to 99", 17, kSub, {v(22, 80), v(41, 77), T, T},
                {"    64 -  41 = ______    ", "    99 -  19 = ______    "},
                {"    64 -  41 =  23       ", "    99 -  19 =  80       "}, {Z, Z, T, T, v(9, 80), v(45, 90)},
                {"    1 -  0 = ______      ", "    99 -  19 = ______    ", "    55 -  45 = ______    "},
                {"    1 -  0 =  1          ", "    99 -  19 =  80       ", "    55 -  45 =  10       "});
        addSums("19 add units", 19, kAdd, {v(41, 90), v(6, 9), T, T},
                {"    41 +  7 = ______     ", "    89 +  9 = ______     "},
                {"    41 +  7 =  48        ", "    89 +  9 =  98        "}, {Z, Z, T, T, v(41, 90), v(6, 9)},
                {"    0 +  1 = ______      ", "    89 +  9 = ______     ", "    41 +  7 = ______     "},
                {"    0 +  1 =  1          ", "    89 +  9 =  98        ", "    41 +  7 =  48        "});
        addSums("20 add tens", 20, kAdd, {v(2, 9), v(41, 70), T, T},
                {"    41 +  30 = ______    ", "    9 +  90 = ______     "},
                {"    41 +  30 =  71       ", "    9 +  90 =  99        "}, {Z, Z, T, T, v(2, 9), v(41, 70)},
                {"    0 +  10 = ______     ", "    9 +  90 = ______     ", "    41 +  30 = ______    "},
                {"    0 +  10 =  10        ", "    9 +  90 =  99        ", "    41 +  30 =  71       "});
        addSums("21 take away units", 21, kSub, {v(41, 90), v(6, 9), T, T},
                {"    48 -  7 = ______     ", "    98 -  9 = ______     "},
                {"    48 -  7 =  41        ", "    98 -  9 =  89        "}, {Z, Z, T, T, v(41, 90), v(6, 9)},
                {"    1 -  1 = ______      ", "    98 -  9 = ______     ", "    48 -  7 = ______     "},
                {"    1 -  1 =  0          ", "    98 -  9 =  89        ", "    48 -  7 =  41        "});
        addSums("22 take away tens", 22, kSub, {v(2, 9), v(41, 70), T, T},
                {"    71 -  30 = ______    ", "    99 -  90 = ______    "},
                {"    71 -  30 =  41       ", "    99 -  90 =  9        "}, {Z, Z, T, T, v(2, 9), v(41, 70)},
                {"    10 -  10 = ______    ", "    99 -  90 = ______    ", "    71 -  30 = ______    "},
                {"    10 -  10 =  0        ", "    99 -  90 =  9        ", "    71 -  30 =  41       "});
        addSums("23 add units or tens", 23, kAdd, {Z, v(7, 10), v(50, 93), T, v(3, 9), T},
                {"    50 +  7 = ______     ", "    59 +  40 = ______    "},
                {"    50 +  7 =  57        ", "    59 +  40 =  99       "}, {Z, Z, T, T, T, T, Z, T, Z},
                {"    99 +  0 = ______     ", "    9 +  90 = ______     ", "    0 +  9 = ______      "},
                {"    99 +  0 =  99        ", "    9 +  90 =  99        ", "    0 +  9 =  9          "});
        addSums("24 take away units or tens", 24, kSub, {Z, v(7, 10), v(50, 93), T, v(3, 9), T},
                {"    57 -  7 = ______     ", "    99 -  40 = ______    "},
                {"    57 -  7 =  50        ", "    99 -  40 =  59       "}, {Z, Z, T, T, T, T, Z, T, Z},
                {"    99 -  0 = ______     ", "    99 -  90 = ______    ", "    9 -  9 = ______      "},
                {"    99 -  0 =  99        ", "    99 -  90 =  9        ", "    9 -  9 =  0          "});
        // Digit by digit: a zero sum is drawn again, a digit of 0 draws its split all the same.
        const QList<double> digitsOne = {Z, Z, v(7, 10), v(3, 10), v(4, 7), v(2, 3), T, Z, T, 0.7};
        const QList<double> digitsSix = {Z, v(3, 10), 0.7, Z, T, T, T, T, Z, Z, v(7, 10), Z, Z, 0.7};
        addSums("16 without carrying", 16, kAdd, digitsOne,
                {"    2 4 +  1 3 = ____    ", "    8 +  1 = ____        "},
                {"    2 4 +  1 3 =  37     ", "    8 +  1 =  9          "}, digitsSix,
                {"    0 +  3 0 = ____      ", "    8 8 +  1 1 = ____    ", "    0 +  7 = ____        "},
                {"    0 +  3 0 =  30       ", "    8 8 +  1 1 =  99     ", "    0 +  7 =  7          "});
        addSums("18 without borrowing", 18, kSub, digitsOne,
                {"    3 7 -  2 4 = ____    ", "    9 -  8 = ____        "},
                {"    3 7 -  2 4 =  13     ", "    9 -  8 =  1          "}, digitsSix,
                {"    3 0 -  0 = ____      ", "    9 9 -  8 8 = ____    ", "    7 -  0 = ____        "},
                {"    3 0 -  0 =  30       ", "    9 9 -  8 8 =  11     ", "    7 -  0 =  7          "});

        // ---- one and ten ----
        addSteps("9 add one", 9, kAdd8, "    ", "     ", {v(6, 98), T},
                 {"   7 + 1 = ___ ", "  98 + 1 = ___ "}, {"   7 + 1 =    8  ", "  98 + 1 =   99  "},
                 {Z, T, v(6, 98)}, {"   1 + 1 = ___ ", "  98 + 1 = ___ ", "   7 + 1 = ___ "},
                 {"   1 + 1 =    2  ", "  98 + 1 =   99  ", "   7 + 1 =    8  "});
        addSteps("10 add ten", 10, kAdd8, "    ", "     ", {v(44, 88), T},
                 {"  45 + 10 = ___ ", "  88 + 10 = ___ "}, {"  45 + 10 =   55  ", "  88 + 10 =   98  "},
                 {Z, T, v(44, 88)}, {"   1 + 10 = ___ ", "  88 + 10 = ___ ", "  45 + 10 = ___ "},
                 {"   1 + 10 =   11  ", "  88 + 10 =   98  ", "  45 + 10 =   55  "});
        addSteps("12 take away ten", 12, kSub8, "  ", "    ", {v(35, 88), T},
                 {"  45 - 10 = ___ ", "  97 - 10 = ___ "}, {"  45 - 10 =   35  ", "  97 - 10 =   87  "},
                 {Z, T, v(35, 88)}, {"  10 - 10 = ___ ", "  97 - 10 = ___ ", "  45 - 10 = ___ "},
                 {"  10 - 10 =    0  ", "  97 - 10 =   87  ", "  45 - 10 =   35  "});
        addSteps("14 take away one", 14, kSub8, "    ", "     ", {v(6, 98), T},
                 {"   7 - 1 = ___ ", "  98 - 1 = ___ "}, {"   7 - 1 =    6  ", "  98 - 1 =   97  "},
                 {Z, T, v(6, 98)}, {"   1 - 1 = ___ ", "  98 - 1 = ___ ", "   7 - 1 = ___ "},
                 {"   1 - 1 =    0  ", "  98 - 1 =   97  ", "   7 - 1 =    6  "});
        addSteps("11 add one or ten", 11, kAdd8, "  ", "    ", {Z, v(6, 98), T, T},
                 {" 6 + 1 =  ___       ", " 87 + 10 =  ___     "},
                 {" 6 + 1 =  7         ", " 87 + 10 =  97      "}, {Z, Z, T, Z, Z, T},
                 {" 0 + 1 =  ___       ", " 0 + 10 =  ___      ", " 97 + 1 =  ___      "},
                 {" 0 + 1 =  1         ", " 0 + 10 =  10       ", " 97 + 1 =  98       "});
        addSteps("13 take away one or ten", 13, kSub8, "  ", "    ", {Z, v(6, 97), T, T},
                 {" 8 - 1 =  ___       ", " 97 - 10 =  ___     "},
                 {" 8 - 1 =  7         ", " 97 - 10 =  87      "}, {Z, Z, T, Z, Z, T},
                 {" 2 - 1 =  ___       ", " 20 - 10 =  ___     ", " 98 - 1 =  ___      "},
                 {" 2 - 1 =  1         ", " 20 - 10 =  10      ", " 98 - 1 =  97       "});

        // ---- reading and placing ----
        // One exercise a row whatever the columns.
        for (int colonne : {1, 6}) {
            add("1 words, " + QByteArray::number(colonne) + " columns", 1, 99, 2, colonne, {v(21, 99), Z},
                sheet(kCifre, {"    VENTUNO  _______________", "    ZERO  _______________"}),
                sheet(kCifre, {"    VENTUNO    21", "    ZERO    0"}));
            add("8 expressions, " + QByteArray::number(colonne) + " columns", 8, 99, 3, colonne,
                {v(33, 99), v(39, 99), Z},
                sheet("       ESEGUI LE ESPRESSIONI",
                      {"    (10 x  3) + (1 x  4) = _____       ", "    (10 x  4) = _____       ",
                       "    (1 x  1) = _____       "}),
                sheet("       ESEGUI LE ESPRESSIONI",
                      {"    (10 x  3) + (1 x  4) =  34      ", "    (10 x  4) =  40      ",
                       "    (1 x  1) =  1      "}));
        }
        add("2 tens and units one column", 2, 99, 2, 1, {v(3, 13), v(6, 13), T, v(10, 13), Z, T},
            sheet(kCifre, {"     4 da    7 u _____       ", "     1 da    _____       "}),
            sheet(kCifre, {"     4 da    7 u   47      ", "     1 da      10      "}));
        add("2 tens and units six columns", 2, 99, 1, 6,
            twice({Z, Z, v(11, 13), v(8, 13), T, T, v(8, 13), v(8, 13)}),
            sheet(
                kCifre,
                {"    " +
                 QString(" 1 da    1 u _____        9 u _____        9 da    9 u _____       ").repeated(2)}),
            sheet(kCifre,
                  {"    " +
                   QString(" 1 da    1 u   11       9 u   9       9 da    9 u   99      ").repeated(2)}));
        const QString kSimboli = "       INSERISCI I SIMBOLI   >  <  =";
        add("3 compare one column", 3, 99, 2, 1, {v(21, 99), v(40, 99), T, Z},
            sheet(kSimboli, {"     21 _____  40     ", "     98 _____  0     "}),
            sheet(kSimboli, {"     21 <  40     ", "     98 >  0     "}));
        add("3 compare six columns", 3, 50, 1, 6, twice({Z, Z, T, v(20, 50), v(5, 50), T}),
            sheet(kSimboli,
                  {"    " + QString(" 0 _____  0      49 _____  20      5 _____  49     ").repeated(2)}),
            sheet(kSimboli, {"    " + QString(" 0 =  0      49 >  20      5 <  49     ").repeated(2)}));

        // The neighbours: k = 1 sits on a change of ten; 0 and below become 19, 99 becomes 89.
        const QString kMezzo = "       INSERISCI IL NUMERO IN MEZZO";
        const QString kDopo = "       INSERISCI IL NUMERO SUCCESSIVO";
        const QString kPrima = "       INSERISCI IL NUMERO PRECEDENTE";
        const QList<double> nearOne = {Z, 4.5 / 9.9, T, T};
        const QList<double> nearSix = twice({Z, Z, v(1, 3), T, Z, T}); // with the limit at 20
        add("5 middle one column", 5, 99, 2, 1, nearOne,
            sheet(kMezzo, {"     39 _____  41     ", "     89 _____  91     "}),
            sheet(kMezzo, {"     39   40   41     ", "     89   90   91     "}));
        add("5 middle six columns", 5, 20, 1, 6, nearSix,
            sheet(kMezzo,
                  {"    " + QString(" 19 _____  21      20 _____  22      9 _____  11     ").repeated(2)}),
            sheet(kMezzo,
                  {"    " + QString(" 19   20   21      20   21   22      9   10   11     ").repeated(2)}));
        add("6 next one column", 6, 99, 2, 1, nearOne,
            sheet(kDopo, {"     39 _____      ", "     89 _____      "}),
            sheet(kDopo, {"     39   40       ", "     89   90       "}));
        add("6 next six columns", 6, 20, 1, 6, nearSix,
            sheet(kDopo, {"    " + QString(" 19 _____       20 _____       9 _____      ").repeated(2)}),
            sheet(kDopo, {"    " + QString(" 19   20        20   21        9   10       ").repeated(2)}));
        add("7 before one column", 7, 99, 2, 1, nearOne,
            sheet(kPrima, {"     _____  40     ", "     _____  89     "}),
            sheet(kPrima, {"     39   40       ", "     88   89       "}));
        add("7 before six columns", 7, 20, 1, 6, nearSix,
            sheet(kPrima, {"    " + QString(" _____  19      _____  20      _____  10     ").repeated(2)}),
            sheet(kPrima, {"    " + QString(" 18   19        19   20        9   10       ").repeated(2)}));
    }

    void generators() {
        QFETCH(int, numero);
        QFETCH(int, nm);
        QFETCH(int, righe);
        QFETCH(int, colonne);
        QFETCH(QList<double>, draws);
        QFETCH(QString, foglio);
        QFETCH(QString, correzione);
        ScriptedRandom rnd;
        for (double d : draws)
            rnd.queue(d);
        Modulo1 g;
        g.NumeroMassimo = static_cast<int16_t>(nm);
        const Scheda s = FaiScheda(numero, {righe, colonne, {}, {}}, g, rnd);
        QCOMPARE(s.txtCD, foglio);
        QCOMPARE(s.TextCor, correzione);
        QCOMPARE(rnd.pending(), size_t(0)); // every draw taken, none more
    }

    void ordering_data() {
        QTest::addColumn<QString>("rowLength");
        QTest::addColumn<QString>("task");
        QTest::addColumn<int>("nm");
        QTest::addColumn<QList<double>>("draws");
        QTest::addColumn<QStringList>("numbers");
        QTest::addColumn<QStringList>("answers");
        QTest::addColumn<QStringList>("correction");
        const QList<double> draws = {v(42, 99), Z, v(7, 99), T, v(42, 99), v(42, 99)};
        const QStringList numbers = {" 42     0     7    ", " 98     42     42    "};
        const QStringList answers = {"____    ____    ____    ", "____    ____    ____    "};
        QTest::newRow("smallest first, ties kept")
            << " 3" << kAsc << 99 << draws << numbers << answers
            << QStringList{"   0        7       42     ", "  42       42       98     "};
        QTest::newRow("largest first")
            << " 3" << kDesc << 99 << draws << numbers << answers
            << QStringList{"  42        7        0     ", "  98       42       42     "};
        // Only the exact caption reverses the order.
        QTest::newRow("largest first needs the exact caption")
            << "3" << kDesc + " " << 99 << draws << numbers << answers
            << QStringList{"   0        7       42     ", "  42       42       98     "};
        // The list sorts text: four digits don't fit the four characters and come before 999.
        QTest::newRow("sorted as text")
            << "3" << kAsc << 2000 << QList<double>{v(999, 2000), v(1000, 2000), v(5, 2000), Z, Z, Z}
            << QStringList{" 999     1000     5    ", " 0     0     0    "} << answers
            << QStringList{"   5      1000      999     ", "   0        0        0     "};
        QTest::newRow("ordering screen not open") << ""
                                                  << "" << 99 << QList<double>{} << QStringList{"", ""}
                                                  << QStringList{"", ""} << QStringList{"", ""};
    }

    // Two lines a row on the worksheet (numbers, then as many answer blanks), one on the correction;
    // one row more than asked, and the columns setting is ignored.
    void ordering() {
        QFETCH(QString, rowLength);
        QFETCH(QString, task);
        QFETCH(int, nm);
        QFETCH(QList<double>, draws);
        QFETCH(QStringList, numbers);
        QFETCH(QStringList, answers);
        QFETCH(QStringList, correction);
        ScriptedRandom rnd;
        for (double d : draws)
            rnd.queue(d);
        Modulo1 g;
        g.NumeroMassimo = static_cast<int16_t>(nm);
        const Scheda s = FaiScheda(4, {1, 6, rowLength, task}, g, rnd);
        QCOMPARE(s.txtCD, sheet(task, {numbers[0] + CR_LF + CR_LF + answers[0],
                                       numbers[1] + CR_LF + CR_LF + answers[1]}));
        QCOMPARE(s.TextCor, sheet(task, correction));
        QCOMPARE(rnd.pending(), size_t(0));
    }

    void expressionsLeaveTheLastNumber() {
        ScriptedRandom rnd;
        rnd.queue(v(33, 99));
        rnd.queue(v(56, 99));
        Modulo1 g;
        FaiScheda(8, {2, 2, {}, {}}, g, rnd);
        QCOMPARE(g.NumeroEsatto, int16_t(57));
    }

    void unknownNumberGivesEmptyTexts_data() {
        QTest::addColumn<int>("numero");
        QTest::newRow("0") << 0;
        QTest::newRow("25") << 25;
        QTest::newRow("-4") << -4;
    }
    void unknownNumberGivesEmptyTexts() {
        QFETCH(int, numero);
        ScriptedRandom rnd;
        Modulo1 g;
        const Scheda s = FaiScheda(numero, {}, g, rnd);
        QVERIFY(s.txtCD.isEmpty());
        QVERIFY(s.TextCor.isEmpty());
    }

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
        QTest::newRow("blanks only are one line end") << "   " << 100 << "\r\n";
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
