// The number before, after and between: the row with its blank line, the row written anew after a
// right answer, and the ends of each range.

#include "support/harness.h"

#include <QTest>

using contarello::test::Harness;

class NeighboursTest : public QObject {
    Q_OBJECT
private slots:
    void riga_data();
    void riga();
    void senzaAvantiLaRigaNonSiVede();
};

void NeighboursTest::riga_data() {
    QTest::addColumn<QString>("form");
    QTest::addColumn<double>("draw");
    QTest::addColumn<QString>("domanda");
    QTest::addColumn<int>("esatto");
    QTest::addColumn<QString>("riga");
    QTest::addColumn<QString>("prompt");
    QTest::addColumn<QString>("colore"); // slot 3 of the screen's variant
    QTest::addColumn<int>("scheda");

    const double hi = 0.9999;
    QTest::newRow("Formpri two blanks before the number") << "Formpri" << 0.0 << "  ___  2" << 1 << " 1   2"
                                                          << "Scrivi il numero precedente"
                                                          << "#ffc0c0" << 7;
    QTest::newRow("Formpri shows 100 at 99") << "Formpri" << hi << "  ___  100" << 99 << " 99   100"
                                             << "Scrivi il numero precedente"
                                             << "#ffc0c0" << 7;
    QTest::newRow("Formdopo after 0") << "Formdopo" << 0.0 << " 0 ___" << 1 << " 0  1"
                                      << "Scrivi il numero seguente"
                                      << "#ff0000" << 6;
    QTest::newRow("Formdopo highest") << "Formdopo" << hi << " 98 ___" << 99 << " 98  99"
                                      << "Scrivi il numero seguente"
                                      << "#ff0000" << 6;
    QTest::newRow("Formmez lowest") << "Formmez" << 0.0 << " 0 _______ 2" << 1 << " 0   1  2"
                                    << "Scrivi il numero in mezzo"
                                    << "#ffc0c0" << 5;
    QTest::newRow("Formmez never uses 99") << "Formmez" << hi << " 96 _______ 98" << 97 << " 96   97  98"
                                           << "Scrivi il numero in mezzo"
                                           << "#ffc0c0" << 5;
}

void NeighboursTest::riga() {
    QFETCH(QString, form);
    QFETCH(double, draw);
    QFETCH(QString, domanda);
    QFETCH(int, esatto);
    QFETCH(QString, riga);
    QFETCH(QString, prompt);
    QFETCH(QString, colore);
    QFETCH(int, scheda);

    Harness h;
    h.rnd({0.5, draw, 0.12}); // the start screen's colour, then the question's draws
    h.run(QStringLiteral(R"j({"show": "%1"})j").arg(form));
    QCOMPARE(h.caption("EtichettaNumero"), domanda);
    QCOMPARE(h.global("NumeroEsatto"), esatto);
    QCOMPARE(h.caption("Label3"), prompt);
    QCOMPARE(h.dump().value("backcolor").toString(), colore);

    h.rnd({0.0});
    h.script(QStringLiteral(R"j({"type": "Text1", "text": "%1"}
{"key": "Text1", "code": 13})j")
                 .arg(esatto));
    QCOMPARE(h.caption("EtichettaNumero"), riga);
    QVERIFY(!h.enabled("Text1"));
    QVERIFY(h.enabled("BottoneAvanti"));

    h.run(R"j({"menu": "mnuStampa"})j");
    QCOMPARE(h.global("NumeroScheda"), scheda);
}

// With the limit at 20 and no waiting, a right answer brings the next question at once.
void NeighboursTest::senzaAvantiLaRigaNonSiVede() {
    Harness h;
    h.run(R"j({"click": "BottoneAvvio"})j");
    h.script(R"j({"inputbox": ["20"]}
{"click": "Command4"}
{"click": "Option1(0)"})j");
    h.rnd({0.9999, 0.0});
    h.run(R"j({"show": "Formmez"})j");
    QCOMPARE(h.caption("EtichettaNumero"), QStringLiteral(" 17 _______ 19"));
    h.rnd({0.0, 0.0});
    h.script(R"j({"type": "Text1", "text": "18"}
{"key": "Text1", "code": 13})j");
    QCOMPARE(h.caption("EtichettaNumero"), QStringLiteral(" 0 _______ 2"));
    QVERIFY(!h.visible("BottoneAvanti"));
    QVERIFY(h.enabled("Text1"));
}

QTEST_MAIN(NeighboursTest)
#include "neighbours.moc"
