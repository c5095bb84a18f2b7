// Form100a to Form100f: a sum or a difference answered by a click on the table of 0 to 99.

#include "support/harness.h"

#include <QTest>

using contarello::test::Harness;

namespace {

void clicca(Harness& h, int i) {
    h.run(QStringLiteral(R"j({"click": "Numero(%1)"})j").arg(i));
}

// Opens a screen under a limit, with the first draw of the screen's colour and then the question.
void apri(Harness& h, const QString& form, int limite, std::initializer_list<double> draws) {
    h.dump(); // the program starts, with its own draws and settings, before ours
    h.engine.program().g.NumeroMassimo = int16_t(limite);
    h.rnd({0.5});
    h.rnd(draws);
    h.run(QStringLiteral(R"j({"show": "%1"})j").arg(form));
}

// The question drawn under the limit by the two draws, the cell that answers it, the worksheet.
struct Domanda {
    QString form, caption;
    int limite, cella, scheda;
    double primo, secondo;
};

} // namespace
Q_DECLARE_METATYPE(Domanda)

class TableStepsTest : public QObject {
    Q_OBJECT
private slots:
    // The question and its cell at the ends of the draws; then a visit to the worksheet: the adding
    // screens come back afresh, the taking away screens keep question, counters and greyed answer,
    // and all of them still wait for "avanti".
    void domanda_data() {
        QTest::addColumn<Domanda>("d");
        const double hi = 0.9999;
        QTest::newRow("units added, top 99") << Domanda{"Form100a", " 98 +  1 = ", 99, 99, 19, hi, hi};
        QTest::newRow("units added, top 93") << Domanda{"Form100a", " 92 +  7 = ", 93, 99, 19, hi, hi};
        QTest::newRow("units added past 20") << Domanda{"Form100a", " 19 +  8 = ", 20, 27, 19, hi, hi};
        QTest::newRow("units added, adding 0") << Domanda{"Form100a", " 10 +  0 = ", 20, 10, 19, 0.0, 0.0};
        QTest::newRow("tens added, smallest") << Domanda{"Form100b", " 1 +  0 = ", 20, 1, 20, 0.0, 0.99};
        QTest::newRow("tens added, cut") << Domanda{"Form100b", " 59 +  40 = ", 99, 99, 20, hi, 0.5};
        QTest::newRow("any sum, any limit") << Domanda{"Form100f", " 0 +  99 = ", 20, 99, 15, hi, 0.0};
        QTest::newRow("units taken under 20") << Domanda{"Form100c", " 11 -  8 = ", 20, 3, 21, hi, hi};
        QTest::newRow("units taken at 99") << Domanda{"Form100c", " 90 -  0 = ", 99, 90, 21, hi, 0.0};
        QTest::newRow("tens taken, first term") << Domanda{"Form100d", " 47 -  40 = ", 93, 7, 22, 0.5, hi};
        QTest::newRow("all taken, cell 0") << Domanda{"Form100e", " 99 -  99 = ", 99, 0, 17, hi, 0.0};
    }
    void domanda() {
        QFETCH(Domanda, d);
        Harness h;
        apri(h, d.form, d.limite, {d.primo, d.secondo});
        QCOMPARE(h.caption("EtichettaNumero"), d.caption);
        // The three shared numbers hold the operation: a sum, or a difference read from Meta down.
        const auto& g = h.engine.program().g;
        QCOMPARE(d.form == "Form100c" ? g.Termine1 - g.Termine2 : g.Termine1 + g.Termine2, int(g.Meta));
        clicca(h, d.cella);
        const QString risposta = d.caption + QStringLiteral(" %1").arg(d.cella); // two blanks after "="
        QCOMPARE(h.caption("EtichettaNumero"), risposta);
        h.run(R"j({"menu": "mnuStampa"})j");
        QCOMPARE(h.global("NumeroScheda"), d.scheda);
        h.rnd({0.5, 0.7, 0.7});
        h.run(R"j({"click": "BottoneEsci"})j");
        const bool daCapo = QStringLiteral("abf").contains(d.form.back());
        QCOMPARE(h.global("Esatti"), daCapo ? 0 : 1);
        QCOMPARE(h.enabled(QStringLiteral("Numero(%1)").arg(d.cella)), daCapo);
        QVERIFY(h.enabled("BottoneAvanti"));
        const QString dopo = h.caption("EtichettaNumero"); // a new question, or the old one answered
        QVERIFY2(daCapo ? dopo.endsWith("= ") : dopo == risposta, qPrintable(dopo));
        // "avanti" draws the next question and asks again.
        h.rnd({0.5, 0.0, 0.0});
        h.run(R"j({"click": "BottoneAvanti"})j");
        QVERIFY(!h.enabled("BottoneAvanti") && h.caption("EtichettaNumero").endsWith("= "));
        QVERIFY(h.enabled(QStringLiteral("Numero(%1)").arg(d.cella)));
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
        QCOMPARE(std::pair(h.global("Esatti"), h.global("Errati")), std::pair(1, 2));
        h.rnd({0.5, 0.0, 0.0}); // colour, then 10 + 0
        h.run(R"j({"click": "BottoneAvanti"})j");
        QVERIFY(h.enabled("Numero(27)") && !h.enabled("BottoneAvanti"));
        QCOMPARE(h.caption("EtichettaNumero"), QStringLiteral(" 10 +  0 = "));
    }
};

QTEST_MAIN(TableStepsTest)
#include "tablesteps.moc"
