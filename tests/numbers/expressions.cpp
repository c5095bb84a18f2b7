// Formesp: a number as tens and units in brackets, (10 x  4) + (1 x  7) =.

#include "support/harness.h"

#include <QTest>

using contarello::test::Harness;

class ExpressionsTest : public QObject {
    Q_OBJECT
private slots:
    void espressione_data() {
        QTest::addColumn<int>("limit");
        QTest::addColumn<double>("draw");
        QTest::addColumn<QString>("domanda");
        QTest::addColumn<int>("esatto");
        QTest::newRow("two blanks after each x") << 99 << 0.47 << "(10 x  4) + (1 x  7) = " << 47;
        QTest::newRow("whole tens, no plus sign") << 99 << 0.4 << "(10 x  4) = " << 40;
        QTest::newRow("units alone") << 99 << 0.066 << "(1 x  7) = " << 7;
        QTest::newRow("lowest") << 99 << 0.0 << "(1 x  1) = " << 1;
        QTest::newRow("largest at 99") << 99 << 0.9999 << "(10 x  9) + (1 x  9) = " << 99;
        QTest::newRow("largest at 20") << 20 << 0.9999 << "(10 x  2) = " << 20;
    }
    void espressione() {
        QFETCH(int, limit);
        QFETCH(double, draw);
        QFETCH(QString, domanda);
        QFETCH(int, esatto);
        Harness h;
        h.setLimit(limit);
        h.rnd({0.5, 0.12, draw}); // the menu, then the colour before the number
        h.run(R"j({"click": "Command3"})j");
        h.run(R"j({"click": "Command10"})j");
        QCOMPARE(h.caption("EtichettaNumero"), domanda);
        QCOMPARE(h.dump().value("backcolor").toString(), QStringLiteral("#ff0000"));
        QCOMPARE(h.caption("Label3"), QStringLiteral("Scrivi il numero in cifre"));

        // The blanks around the answer stay in the row.
        h.answer("Text1", QStringLiteral(" %1 ").arg(esatto));
        QCOMPARE(h.global("Esatti"), 1);
        QCOMPARE(h.caption("EtichettaNumero"), domanda + ' ' + QString::number(esatto) + ' ');
        h.run(R"j({"menu": "mnuStampa"})j");
        QCOMPARE(h.global("NumeroScheda"), 8);
    }
};

QTEST_MAIN(ExpressionsTest)
#include "expressions.moc"
