// The twelve stepping screens: scripted draws in, the question and its answer out, at the ends of
// each range, under the limit the adult sets from the main menu.

#include "support/harness.h"

#include <QTest>

using contarello::test::Harness;

namespace {
struct Passo {
    QString form;
    int limit;
    QList<double> draws;
    QString caption;
    int esatto;
    int scheda; // the worksheet the screen prints
};
} // namespace
Q_DECLARE_METATYPE(Passo)

static void riga(const char* name, const Passo& passo) {
    QTest::newRow(name) << passo;
}

class SteppingTest : public QObject {
    Q_OBJECT
private slots:
    void domanda_data();
    void domanda() {
        QFETCH(Passo, passo);
        Harness h;
        h.setLimit(passo.limit);
        for (double d : passo.draws)
            h.rnd({d});
        h.rnd({0.12}); // slot 3, the one slot where variant A differs from the others
        h.run(QStringLiteral(R"j({"show": "%1"})j").arg(passo.form));
        QCOMPARE(h.caption("EtichettaNumero"), passo.caption);
        // The colour is drawn after the question, from variant A.
        QCOMPARE(h.dump().value("backcolor").toString(), QStringLiteral("#ff0000"));

        h.answer("Text1", QString::number(passo.esatto));
        QCOMPARE(h.global("Esatti"), 1);
        QCOMPARE(h.caption("EtichettaNumero"), passo.caption + QString::number(passo.esatto));
        h.run(R"j({"menu": "mnuStampa"})j");
        QCOMPARE(h.global("NumeroScheda"), passo.scheda);
    }

    // A result of 0 must be answerable: a text with no digit at all counts as 0.
    void risultatoZero() {
        Harness h;
        h.rnd({0.5, 0.0, 0.0}); // the start screen, then ten and a result of 0
        h.run(R"j({"show": "Form10ma"})j");
        h.answer("Text1", "zero");
        QCOMPARE(h.global("Esatti"), 1);
        QCOMPARE(h.caption("EtichettaNumero"), QStringLiteral(" 10 -  10 = zero"));
    }
};

void SteppingTest::domanda_data() {
    QTest::addColumn<Passo>("passo");
    const double hi = 0.9999;
    // clang-format off
    riga("Form1 lowest",                  {"Form1",      99, {0},           " 0 + 1 = ",     1,  9});
    riga("Form1 highest at 99",           {"Form1",      99, {hi},          " 98 + 1 = ",    99, 9});
    riga("Form1 highest at 20",           {"Form1",      20, {hi},          " 19 + 1 = ",    20, 9});
    riga("Form10 lowest",                 {"Form10",     99, {0},           " 0 + 10 = ",    10, 10});
    riga("Form10 never reaches 99",       {"Form10",     99, {hi},          " 88 + 10 = ",   98, 10});
    riga("Form10 highest at 20",          {"Form10",     20, {hi},          " 9 + 10 = ",    19, 10});
    riga("Form100 k=1 is plus one",       {"Form100",    99, {0, 0.5},      " 49 + 1 = ",    50, 11});
    riga("Form100 k=2 is plus ten",       {"Form100",    99, {0.5, 0},      " 0 + 10 = ",    10, 11});
    riga("Form1a adds 0",                 {"Form1a",     99, {0, 0},        " 10 +  0 = ",   10, 19});
    riga("Form1a highest at 99",          {"Form1a",     99, {hi, hi},      " 88 +  9 = ",   97, 19});
    riga("Form1a highest at 20",          {"Form1a",     20, {hi, 0},       " 18 +  0 = ",   18, 19});
    riga("Form10a lowest",                {"Form10a",    99, {0, 0},        " 0 +  10 = ",   10, 20});
    riga("Form10a ninety at 99",          {"Form10a",    99, {hi, 0.5},     " 4 +  90 = ",   94, 20});
    riga("Form10a ninety at 90",          {"Form10a",    90, {hi, hi},      " 0 +  90 = ",   90, 20});
    riga("Form10a fitting ten kept at 50",{"Form10a",    50, {0.5, 0},      " 0 +  50 = ",   50, 20});
    riga("Form10a ninety drawn again",    {"Form10a",    50, {hi, 0.3, 0},  " 0 +  30 = ",   30, 20});
    riga("Form10a tens within 20 at last",{"Form10a",    20, {hi, hi, hi, hi, hi}, " 0 +  20 = ", 20, 20});
    riga("Form10a ten at 20",             {"Form10a",    20, {0, hi},       " 9 +  10 = ",   19, 20});
    riga("Form100bis units",              {"Form100bis", 99, {0, hi, hi},   " 89 +  9 = ",   98, 23});
    riga("Form100bis tens",               {"Form100bis", 99, {0.5, hi, hi}, " 8 +  90 = ",   98, 23});
    riga("Form100bis units at 20",        {"Form100bis", 20, {0, hi, 0},    " 19 +  0 = ",   19, 23});
    riga("Form100bis tens at 20",         {"Form100bis", 20, {0.5, hi, hi, hi, hi, hi}, " 0 +  20 = ", 20, 23});
    riga("Form1ma lowest",                {"Form1ma",    99, {0},           " 2 - 1 = ",     1,  14});
    riga("Form1ma highest at 99",         {"Form1ma",    99, {hi},          " 99 - 1 = ",    98, 14});
    riga("Form1ma highest at 20",         {"Form1ma",    20, {hi},          " 20 - 1 = ",    19, 14});
    riga("Form10m lowest",                {"Form10m",    99, {0},           " 20 -  10 = ",  10, 12});
    riga("Form10m passes the limit",      {"Form10m",    99, {hi},          " 107 -  10 = ", 97, 12});
    riga("Form10m highest at 20",         {"Form10m",    20, {hi},          " 28 -  10 = ",  18, 12});
    riga("Form100m k=1",                  {"Form100m",   99, {0, hi},       " 97 - 1 = ",    96, 13});
    riga("Form100m k=2",                  {"Form100m",   99, {0.5, hi},     " 106 - 10 = ",  96, 13});
    riga("Form100m k=2 at 20",            {"Form100m",   20, {0.5, 0},      " 20 - 10 = ",   10, 13});
    riga("Form1m result before step",     {"Form1m",     99, {hi, 0.5},     " 102 -  5 = ",  97, 21});
    riga("Form1m takes 0 at 20",          {"Form1m",     20, {0, 0},        " 10 -  0 = ",   10, 21});
    riga("Form10ma result 0",             {"Form10ma",   99, {0, 0},        " 10 -  10 = ",  0,  22});
    riga("Form10ma ninety at 99",         {"Form10ma",   99, {hi, 0.5},     " 94 -  90 = ",  4,  22});
    riga("Form10ma ninety redrawn at 90", {"Form10ma",   90, {hi, 0.8, hi}, " 88 -  80 = ",  8,  22});
    riga("Form10ma only ten at 20",       {"Form10ma",   20, {hi, hi, hi, hi, hi}, " 18 -  10 = ", 8, 22});
    riga("Form100ma units",               {"Form100ma",  99, {0, hi, hi},   " 99 -  9 = ",   90, 24});
    riga("Form100ma tens",                {"Form100ma",  99, {0.5, hi, hi}, " 99 -  90 = ",  9,  24});
    riga("Form100ma ten at 20",           {"Form100ma",  20, {0.5, 0, hi},  " 20 -  10 = ",  10, 24});
    riga("Form100ma twenty at 20",        {"Form100ma",  20, {0.5, hi, hi, hi, hi, hi}, " 21 -  20 = ", 1, 24});
    // clang-format on
}

QTEST_MAIN(SteppingTest)
#include "stepping.moc"
