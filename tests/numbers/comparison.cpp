// FormMM: the three symbols between two numbers. FormSimb, the number told as tens and units, has
// its rows in the table of stepping.cpp.

#include "support/harness.h"

#include <QTest>

namespace {
struct Confronto : contarello::test::Harness {
    QString coppia() { return caption("EtNumero(0)") + ' ' + caption("EtNumero(1)"); }
    void clicca(int i) { run(QStringLiteral(R"J({"click": "Comando(%1)"})J").arg(i)); }
    bool abilitato(int i) { return enabled(QStringLiteral("Comando(%1)").arg(i)); }
};
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
    // A wrong symbol counts and leaves every button to try again. The right one shows and stops the
    // buttons until "avanti" takes it away with a new pair.
    void simbolo() {
        QFETCH(double, primo);
        QFETCH(double, secondo);
        QFETCH(int, giusto);
        Confronto h;
        h.rnd({0.5, 0.5, 0.5, primo, secondo, 0.12}); // the start and the menus, the numbers, the colour
        h.openFromMenu("Command3", "Command7");
        QTEST(h.coppia(), "numeri");

        const int sbagliato = (giusto + 1) % 3;
        h.clicca(sbagliato);
        QVERIFY(h.global("Errati") == 1 && h.abilitato(sbagliato) && !h.visible("Label3"));
        h.clicca(giusto);
        QCOMPARE(h.caption("EtichettaEsatti"), " 1");
        QTEST(h.caption("Label3"), "simbolo");
        QVERIFY(h.visible("Label3") && !h.abilitato(giusto) && !h.abilitato(sbagliato) &&
                h.enabled("BottoneAvanti"));
        // The set-up stands in Load: a worksheet printed meanwhile leaves everything as it was.
        const QJsonObject prima = h.dump();
        h.run(R"({"menu": "mnuStampa"})");
        QCOMPARE(h.global("NumeroScheda"), 3);
        h.run(R"({"click": "BottoneEsci"})");
        QCOMPARE(h.dump().value("controls"), prima.value("controls"));
        h.rnd({0.0, 0.0}); // the next pair
        h.run(R"({"click": "BottoneAvanti"})");
        QVERIFY(!h.visible("Label3") && h.abilitato(giusto) && !h.enabled("BottoneAvanti"));
        QCOMPARE(h.coppia(), "1 1");
    }
};

QTEST_MAIN(ComparisonTest)
#include "comparison.moc"
