// The screens that ask for one number on a line: the twelve stepping screens, the number before,
// after and between, the number as tens and units, and in words. Under the limit set from the main
// menu, at the ends of each range: the draws in; the instruction, question, answer and worksheet out.

#include "support/harness.h"

#include <QTest>

using contarello::test::Harness;

namespace {
struct Domanda {
    QString form;
    int limit;
    QList<double> draws; // with the colour, c, where the screen draws it
    QString domanda, risposta;
    int scheda;
    QString dopo = {}; // the line after the right answer, when it is not the question and the answer
};

const QString kCifre = QStringLiteral("Scrivi il numero in cifre");
// clang-format off
const QMap<QString, QString> kConsegne{
    {"Formpri", "Scrivi il numero precedente"}, {"Formdopo", "Scrivi il numero seguente"},
    {"Formmez", "Scrivi il numero in mezzo"}, {"Formesp", kCifre}, {"FormSimb", kCifre}, {"FormScri", kCifre},
    {"FormScri2", "Scrivi il numero in lettere"}};
// clang-format on
} // namespace
Q_DECLARE_METATYPE(Domanda)

class SteppingTest : public QObject {
    Q_OBJECT
private slots:
    void domanda_data();
    void domanda() {
        QFETCH(Domanda, d);
        Harness h;
        h.setLimit(d.limit);
        for (double x : d.draws)
            h.rnd({x});
        h.run(QStringLiteral(R"({"show": "%1"})").arg(d.form));
        QCOMPARE(h.dump().value("controls")["Label3"]["caption"].toString(), kConsegne.value(d.form));
        QCOMPARE(h.caption("EtichettaNumero"), d.domanda);
        h.answer("Text1", d.risposta);
        QCOMPARE(h.global("Esatti"), 1);
        // FormSimb's question has no equals sign of its own, so the answer comes after one.
        const QString dopo = d.form == "FormSimb" ? d.domanda + " = " + d.risposta : d.domanda + d.risposta;
        QCOMPARE(h.caption("EtichettaNumero"), d.dopo.isEmpty() ? dopo : d.dopo);
        h.run(QStringLiteral(R"({"menu": "%1"})").arg(d.form == "FormSimb" ? "mnustampa" : "mnuStampa"));
        QCOMPARE(h.global("NumeroScheda"), d.scheda);
    }
};

void SteppingTest::domanda_data() {
    QTest::addColumn<Domanda>("d");
    const double hi = 0.9999, c = 0.12;
    const auto riga = [](const char* name, const Domanda& d) { QTest::newRow(name) << d; };
    // clang-format off
    // The stepping screens draw the colour after the question.
    riga("Form1 lowest",              {"Form1",      99, {0, c},           " 0 + 1 = ",    "1",  9});
    riga("Form1 highest at 20",       {"Form1",      20, {hi, c},          " 19 + 1 = ",   "20", 9});
    riga("Form10 below the limit",    {"Form10",     20, {hi, c},          " 9 + 10 = ",   "19", 10});
    riga("Form100 k=1 is plus one",   {"Form100",    99, {0, 0.5, c},      " 49 + 1 = ",   "50", 11});
    riga("Form100 k=2 is plus ten",   {"Form100",    99, {0.5, 0, c},      " 0 + 10 = ",   "10", 11});
    riga("Form1a adds 0",             {"Form1a",     99, {0, 0, c},        " 10 +  0 = ",  "10", 19});
    riga("Form1a highest at 20",      {"Form1a",     20, {hi, hi, c},      " 9 +  9 = ",   "18", 19});
    riga("Form10a 90 kept at 90",     {"Form10a",    90, {hi, hi, c},      " 0 +  90 = ",  "90", 20});
    riga("Form10a 90 drawn again",    {"Form10a",    50, {hi, 0.3, 0, c},  " 0 +  30 = ",  "30", 20});
    riga("Form10a 20 at last", {"Form10a", 20, {hi, hi, hi, hi, hi, c}, " 0 +  20 = ", "20", 20});
    riga("Form10a 10 at 20",          {"Form10a",    20, {0, hi, c},       " 9 +  10 = ",  "19", 20});
    riga("Form100bis units at 20",    {"Form100bis", 20, {0, hi, hi, c},   " 10 +  9 = ",  "19", 23});
    riga("Form100bis tens",           {"Form100bis", 99, {0.5, hi, hi, c}, " 8 +  90 = ",  "98", 23});
    riga("Form1ma highest at 20",     {"Form1ma",    20, {hi, c},          " 20 - 1 = ",   "19", 14});
    riga("Form10m passes the limit",  {"Form10m",    20, {hi, c},          " 28 -  10 = ", "18", 12});
    riga("Form100m k=1 at 20",        {"Form100m",   20, {0, hi, c},       " 18 - 1 = ",   "17", 13});
    riga("Form100m k=2 at 20",        {"Form100m",   20, {0.5, hi, c},     " 27 - 10 = ",  "17", 13});
    riga("Form1m result first",       {"Form1m",     99, {hi, 0.5, c},     " 102 -  5 = ", "97", 21});
    riga("Form1m takes 0 at 20",      {"Form1m",     20, {0, 0, c},        " 10 -  0 = ",  "10", 21});
    riga("Form10ma result 0",         {"Form10ma",   99, {0, 0, c},        " 10 -  10 = ", "0",  22});
    riga("Form10ma 90 redrawn at 90", {"Form10ma",   90, {hi, 0.8, hi, c}, " 88 -  80 = ", "8",  22});
    riga("Form10ma only 10 at 20", {"Form10ma", 20, {hi, hi, hi, hi, hi, c}, " 18 -  10 = ", "8", 22});
    riga("Form100ma units",           {"Form100ma",  99, {0, hi, hi, c},   " 99 -  9 = ",  "90", 24});
    riga("Form100ma tens",            {"Form100ma",  99, {0.5, hi, hi, c}, " 99 -  90 = ", "9",  24});
    riga("Form100ma 20 at 20", {"Form100ma", 20, {0.5, hi, hi, hi, hi, hi, c}, " 21 -  20 = ", "1", 24});
    // The number before, after and between: the colour after the number, and the line written out.
    riga("Formpri two blanks", {"Formpri",  99, {0, c},  "  ___  2",       "1",  7, " 1   2"});
    riga("Formpri 100 at 99",  {"Formpri",  99, {hi, c}, "  ___  100",     "99", 7, " 99   100"});
    riga("Formdopo after 0",   {"Formdopo", 99, {0, c},  " 0 ___",         "1",  6, " 0  1"});
    riga("Formdopo highest",   {"Formdopo", 99, {hi, c}, " 98 ___",        "99", 6, " 98  99"});
    riga("Formmez lowest",     {"Formmez",  99, {0, c},  " 0 _______ 2",   "1",  5, " 0   1  2"});
    riga("Formmez at 20",      {"Formmez",  20, {hi, c}, " 17 _______ 19", "18", 5, " 17   18  19"});
    // Tens and units in brackets: the colour first; blanks around the answer stay in the line.
    riga("Formesp two blanks",    {"Formesp", 99, {c, 0.47}, "(10 x  4) + (1 x  7) = ", " 47 ", 8});
    riga("Formesp no plus",       {"Formesp", 99, {c, 0.4},  "(10 x  4) = ",            "40",   8});
    riga("Formesp units, lowest", {"Formesp", 99, {c, 0},    "(1 x  1) = ",             "1",    8});
    riga("Formesp at 20",         {"Formesp", 20, {c, hi},   "(10 x  2) = ",            "20",   8});
    // Tens and units told as da and u: the colour, which part (any number, tens, units), the number,
    // then the order; the answer stands as the child wrote it.
    riga("FormSimb tens first",    {"FormSimb", 99, {c, 0, 0.47, 0.5},  " 4 da    7 u", "47.", 2});
    riga("FormSimb units first",   {"FormSimb", 99, {c, 0, 0.47, 0},    " 7 u 4 da   ", "47",  2});
    riga("FormSimb whole tens",    {"FormSimb", 99, {c, 0.34, hi, 0},   " 9 da   ",     "90",  2});
    riga("FormSimb units alone",   {"FormSimb", 99, {c, 0.51, hi, 0.5}, " 9 u",         "9",   2});
    riga("FormSimb any up to 20",  {"FormSimb", 20, {c, hi, hi, 0.5},   " 2 da   ",     "20",  2});
    riga("FormSimb tens up to 20", {"FormSimb", 20, {c, 0.34, hi, 0},   " 2 da   ",     "20",  2});
    // The words screens: the colour first; the question stays as it was.
    riga("FormScri the word",    {"FormScri",  99, {c, 0.42}, "QUARANTADUE", "42",          1, "QUARANTADUE"});
    riga("FormScri2 the digits", {"FormScri2", 99, {c, 0.42}, " 42",         "QUARANTADUE", 1, " 42"});
    // clang-format on
}

QTEST_MAIN(SteppingTest)
#include "stepping.moc"
