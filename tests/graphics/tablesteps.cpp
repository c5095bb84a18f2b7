// Form100a to Form100f: a sum or a difference answered by a click on the table of 0 to 99.

#include "support/harness.h"

#include <QTest>

using contarello::test::Harness;

namespace {

void clicca(Harness& h, int i) {
    h.run(QStringLiteral(R"j({"click": "Numero(%1)"})j").arg(i));
}
// Opens a screen under a limit, with the first draw of the screen's colour and then the question.
void apri(Harness& h, const QString& form, int limite, std::initializer_list<double> draws,
          bool attendi = true) {
    h.dump(); // the program starts, with its own draws and settings, before ours
    h.engine.program().g.NumeroMassimo = int16_t(limite);
    h.engine.program().g.AttendiBottone = attendi ? -1 : 0;
    h.rnd({0.5});
    h.rnd(draws);
    h.run(QStringLiteral(R"j({"show": "%1"})j").arg(form));
}

} // namespace

class TableStepsTest : public QObject {
    Q_OBJECT
private slots:
    // The question drawn and the cell that answers it; then a visit to the worksheet: the adding
    // screens come back afresh, the taking away screens keep question, counters and greyed answer.
    void domanda_data() {
        QTest::addColumn<QString>("form");
        QTest::addColumn<int>("limite");
        QTest::addColumn<double>("primo");
        QTest::addColumn<double>("secondo");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<int>("cella");
        QTest::addColumn<int>("scheda");
        const double hi = 0.9999;
        QTest::newRow("units added, top 99") << "Form100a" << 99 << hi << hi << " 98 +  1 = " << 99 << 19;
        QTest::newRow("units added, top 93") << "Form100a" << 93 << hi << hi << " 92 +  7 = " << 99 << 19;
        QTest::newRow("units added past 20") << "Form100a" << 20 << hi << hi << " 19 +  8 = " << 27 << 19;
        QTest::newRow("units added, adding 0") << "Form100a" << 20 << 0.0 << 0.0 << " 10 +  0 = " << 10 << 19;
        QTest::newRow("tens added, smallest") << "Form100b" << 20 << 0.0 << 0.99 << " 1 +  0 = " << 1 << 20;
        QTest::newRow("tens added, cut") << "Form100b" << 99 << hi << 0.5 << " 59 +  40 = " << 99 << 20;
        QTest::newRow("any sum, any limit") << "Form100f" << 20 << hi << 0.0 << " 0 +  99 = " << 99 << 15;
        QTest::newRow("units taken under 20") << "Form100c" << 20 << hi << hi << " 11 -  8 = " << 3 << 21;
        QTest::newRow("units taken at 99") << "Form100c" << 99 << hi << 0.0 << " 90 -  0 = " << 90 << 21;
        QTest::newRow("tens taken, first term") << "Form100d" << 93 << 0.5 << hi << " 47 -  40 = " << 7 << 22;
        QTest::newRow("all taken, cell 0") << "Form100e" << 99 << hi << 0.0 << " 99 -  99 = " << 0 << 17;
    }
    void domanda() {
        QFETCH(QString, form);
        QFETCH(int, limite);
        QFETCH(double, primo);
        QFETCH(double, secondo);
        QFETCH(QString, caption);
        QFETCH(int, cella);
        Harness h;
        apri(h, form, limite, {primo, secondo});
        QCOMPARE(h.caption("EtichettaNumero"), caption);
        // The three shared numbers hold the operation: a sum, or a difference read from Meta down.
        const auto& g = h.engine.program().g;
        QCOMPARE(form == "Form100c" ? g.Termine1 - g.Termine2 : g.Termine1 + g.Termine2, int(g.Meta));
        clicca(h, cella);
        const QString risposta = caption + QStringLiteral(" %1").arg(cella); // two blanks after "="
        QCOMPARE(h.caption("EtichettaNumero"), risposta);

        h.run(R"j({"menu": "mnuStampa"})j");
        QTEST(h.global("NumeroScheda"), "scheda");
        h.rnd({0.5, 0.7, 0.7});
        h.run(R"j({"click": "BottoneEsci"})j");
        const bool daCapo = QStringLiteral("abf").contains(form.back());
        QCOMPARE(h.global("Esatti"), daCapo ? 0 : 1);
        QCOMPARE(h.enabled(QStringLiteral("Numero(%1)").arg(cella)), daCapo);
        QCOMPARE(h.enabled("BottoneAvanti"), !daCapo);
        const QString dopo = h.caption("EtichettaNumero"); // a new question, or the old one answered
        QVERIFY2(daCapo ? dopo.endsWith("= ") : dopo == risposta, qPrintable(dopo));
    }

    // Many questions on each screen at the limits where the draws are tight: each has its cell.
    void ogniDomandaHaLaSuaCella() {
        for (const char* form : {"Form100a", "Form100b", "Form100f", "Form100c", "Form100d", "Form100e"}) {
            for (int limite : {20, 93, 99}) {
                Harness h;
                h.run(R"j({"seed": 11})j");
                apri(h, form, limite, {}, false); // the next question comes at once
                for (int n = 1; n <= 80; ++n) {
                    const int e = h.dump().value("fields").toObject().value("esatto").toInt(-1);
                    QVERIFY2(e >= 0 && e <= 99, qPrintable(QStringLiteral("%1 at %2").arg(form).arg(limite)));
                    clicca(h, e);
                    QCOMPARE(h.global("Esatti"), n);
                }
            }
        }
    }

    // While a question waits for "avanti" its greyed cell takes no click, any other counts wrong.
    void attesa() {
        Harness h;
        apri(h, "Form100a", 20, {0.9999, 0.9999}); // 19 + 8
        clicca(h, 19);                             // wrong: the same question stays
        clicca(h, 27);
        QVERIFY(!h.enabled("Numero(27)") && h.enabled("BottoneAvanti"));
        clicca(h, 27);
        clicca(h, 99);
        QCOMPARE(h.global("Esatti"), 1);
        QCOMPARE(h.global("Errati"), 2);
        h.rnd({0.5, 0.0, 0.0}); // colour, then 10 + 0
        h.run(R"j({"click": "BottoneAvanti"})j");
        QVERIFY(h.enabled("Numero(27)") && !h.enabled("BottoneAvanti"));
        QCOMPARE(h.caption("EtichettaNumero"), QStringLiteral(" 10 +  0 = "));
    }
};

QTEST_MAIN(TableStepsTest)
#include "tablesteps.moc"
