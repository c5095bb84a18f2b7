// FormMM, the three symbols between two numbers, and FormSimb, a number told as tens and units.

#include "support/harness.h"

#include <QTest>

using contarello::test::Harness;

namespace {
QString coppia(Harness& h) {
    return h.caption("EtNumero(0)") + ' ' + h.caption("EtNumero(1)");
}
void clicca(Harness& h, int comando) {
    h.run(QStringLiteral(R"j({"click": "Comando(%1)"})j").arg(comando));
}
} // namespace

class ComparisonTest : public QObject {
    Q_OBJECT
private slots:
    void simbolo_data() {
        QTest::addColumn<double>("primo");
        QTest::addColumn<double>("secondo");
        QTest::addColumn<QString>("numeri");
        QTest::addColumn<int>("giusto");
        QTest::addColumn<QString>("simbolo");
        QTest::newRow("greater first") << 0.9999 << 0.0 << "99 1" << 0 << ">";
        QTest::newRow("smaller first") << 0.0 << 0.9999 << "1 99" << 1 << "<";
        QTest::newRow("equal numbers") << 0.5 << 0.5 << "50 50" << 2 << "=";
    }
    void simbolo() {
        QFETCH(double, primo);
        QFETCH(double, secondo);
        QFETCH(QString, numeri);
        QFETCH(int, giusto);
        QFETCH(QString, simbolo);
        Harness h;
        // The start screen and the two menus, then the two numbers, then the colour of variant D.
        h.rnd({0.5, 0.5, 0.5, primo, secondo, 0.12});
        h.openFromMenu("Command3", "Command7");
        QCOMPARE(coppia(h), numeri);
        QCOMPARE(h.dump().value("backcolor").toString(), QStringLiteral("#ffc0c0"));

        // A wrong symbol counts and leaves every button to try again.
        const int sbagliato = (giusto + 1) % 3;
        clicca(h, sbagliato);
        QCOMPARE(h.sounds(), QStringList{"suoni/no.wav"});
        QVERIFY(h.enabled(QStringLiteral("Comando(%1)").arg(sbagliato)));
        QVERIFY(!h.visible("Label3"));

        clicca(h, giusto);
        QCOMPARE(h.caption("EtichettaEsatti"), QStringLiteral(" 1"));
        QCOMPARE(h.caption("Label3"), simbolo);
        QVERIFY(h.visible("Label3"));
        for (int i = 0; i < 3; ++i)
            QVERIFY(!h.enabled(QStringLiteral("Comando(%1)").arg(i)));
        QVERIFY(h.enabled("BottoneAvanti"));

        // Avanti: the symbol goes, the buttons come back, a new pair is drawn.
        h.rnd({0.0, 0.0});
        h.run(R"j({"click": "BottoneAvanti"})j");
        QVERIFY(!h.visible("Label3"));
        QVERIFY(h.enabled("Comando(0)"));
        QVERIFY(!h.enabled("BottoneAvanti"));
        QCOMPARE(coppia(h), QStringLiteral("1 1"));
    }

    // The set-up stands in Load: printing a worksheet and coming back leaves the question, the
    // symbol shown and the counters as they were.
    void ritornoDallaSchedaTieneLaDomanda() {
        Harness h;
        h.rnd({0.5, 0.2, 0.7});
        h.run(R"j({"show": "FormMM"})j");
        clicca(h, 1);
        const QJsonObject prima = h.dump();
        h.run(R"j({"menu": "mnuStampa"})j");
        QCOMPARE(h.global("NumeroScheda"), 3);
        h.run(R"j({"click": "BottoneEsci"})j");
        const QJsonObject dopo = h.dump();
        for (const char* key : {"form", "controls", "fields", "backcolor"})
            QCOMPARE(dopo.value(key), prima.value(key));
    }

    void senzaAvantiSubitoUnaNuovaCoppia() {
        Harness h;
        h.run(R"j({"click": "BottoneAvvio"})j");
        h.run(R"j({"click": "Option1(0)"})j");
        h.rnd({0.3, 0.3});
        h.run(R"j({"show": "FormMM"})j");
        QVERIFY(!h.visible("BottoneAvanti"));
        h.rnd({0.0, 0.9999, 0.0}); // the sound, then the next pair
        clicca(h, 2);
        QCOMPARE(h.global("Esatti"), 1);
        QCOMPARE(coppia(h), QStringLiteral("99 1"));
        QVERIFY(!h.visible("Label3"));
        QVERIFY(h.enabled("Comando(2)"));
    }

    void decineUnita_data() {
        QTest::addColumn<int>("limit");
        QTest::addColumn<QList<double>>("draws"); // k, the number, the order
        QTest::addColumn<QString>("domanda");
        QTest::addColumn<int>("esatto");
        const double hi = 0.9999;
        QTest::newRow("tens first") << 99 << QList<double>{0.0, 0.47, 0.5} << " 4 da    7 u" << 47;
        QTest::newRow("units first") << 99 << QList<double>{0.0, 0.47, 0.0} << " 7 u 4 da   " << 47;
        QTest::newRow("whole tens, no units") << 99 << QList<double>{0.34, hi, 0.0} << " 9 da   " << 90;
        QTest::newRow("units alone, no tens") << 99 << QList<double>{0.51, hi, 0.5} << " 9 u" << 9;
        QTest::newRow("any number up to the limit") << 20 << QList<double>{hi, hi, 0.5} << " 2 da   " << 20;
        QTest::newRow("tens at 20 are 10") << 20 << QList<double>{0.34, 0.0, 0.5} << " 1 da   " << 10;
        QTest::newRow("tens at 20 are 20") << 20 << QList<double>{0.34, hi, 0.0} << " 2 da   " << 20;
    }
    void decineUnita() {
        QFETCH(int, limit);
        QFETCH(QList<double>, draws);
        QFETCH(QString, domanda);
        QFETCH(int, esatto);
        Harness h;
        h.setLimit(limit);
        h.rnd({0.12}); // the colour comes first here, then the number and its order
        for (double d : draws)
            h.rnd({d});
        h.run(R"j({"show": "FormSimb"})j");
        QCOMPARE(h.caption("EtichettaNumero"), domanda);
        QCOMPARE(h.dump().value("backcolor").toString(), QStringLiteral("#ffc0c0"));

        // The answer comes after an equals sign, as the child wrote it.
        h.answer("Text1", QString::number(esatto) + '.');
        QCOMPARE(h.global("Esatti"), 1);
        QCOMPARE(h.caption("EtichettaNumero"), domanda + " = " + QString::number(esatto) + '.');
        h.run(R"j({"menu": "mnustampa"})j");
        QCOMPARE(h.global("NumeroScheda"), 2);
    }
};

QTEST_MAIN(ComparisonTest)
#include "comparison.moc"
