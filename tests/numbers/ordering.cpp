// FormOrd: numbers clicked into a second column, the order judged once the last one is placed.

#include "support/harness.h"

#include <QTest>

using contarello::test::Harness;

namespace {

// The draw that gives n with the limit at 99: Int(Rnd * 100) = n.
double numero(int n) {
    return (n + 0.5) / 100;
}

void click(Harness& h, const QString& name) {
    h.run(QStringLiteral(R"({"click": "%1"})").arg(name));
}

void clicca(Harness& h, const QList<int>& indici) {
    for (int k : indici)
        click(h, QStringLiteral("ComandoNumero(%1)").arg(k));
}

// FormOrd with a question of these numbers, chosen through the frame of how many numbers.
void apri(Harness& h, const QList<int>& numeri) {
    h.run(R"({"show": "FormOrd"})");
    h.run(R"({"menu": "MenuQuantiNumeri"})");
    QJsonArray draws{0.0}; // the colour
    for (int n : numeri)
        draws.append(numero(n));
    h.engine.execute({{"rnd", draws}});
    click(h, QStringLiteral("Option3D1(%1)").arg(numeri.size() - 3));
    h.events();
}

QStringList colonna(Harness& h, const QString& name, int n) {
    QStringList out;
    for (int i = 0; i < n; ++i)
        out << h.caption(QStringLiteral("%1(%2)").arg(name).arg(i));
    return out;
}

} // namespace

class OrderingTest : public QObject {
    Q_OBJECT
private slots:
    void loadMakesTheQuestionTwice();
    void ordine_data();
    void ordine();
    void laDomandaResta();
    void senzaAvantiSubitoNuoviNumeri();
};

// The choice of 7 in Load draws a question, then Load draws the one that is shown; Label3 says 8.
// 0 and the limit itself can both be drawn.
void OrderingTest::loadMakesTheQuestionTwice() {
    Harness h;
    h.rnd({0.0, 0.0, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.0, numero(0), numero(99), numero(7), numero(7),
           numero(42), numero(10), numero(1)});
    h.run(R"({"show": "FormOrd"})");
    QCOMPARE(colonna(h, "ComandoNumero", 7), (QStringList{"0", "99", "7", "7", "42", "10", "1"}));
    QVERIFY(!h.visible("ComandoNumero(7)") && !h.visible("EtNumeri") && !h.visible("Label3"));
    QCOMPARE(h.dump().value("caption").toString(), "Ordina i numeri dal minore al maggiore ");
    QCOMPARE(h.caption("Label3"), "8");
    QVERIFY(h.visible("BottoneAvanti") && !h.enabled("BottoneAvanti"));

    h.run(R"({"menu": "MenuQuantiNumeri"})");
    click(h, "Option3D1(0)");
    QCOMPARE(h.caption("Label3"), " 3");
    QVERIFY(h.visible("ComandoNumero(2)") && !h.visible("ComandoNumero(3)"));
}

void OrderingTest::ordine_data() {
    QTest::addColumn<QList<int>>("numeri");
    QTest::addColumn<int>("giuDopo"); // how many are placed before "from the largest"; -1 never
    QTest::addColumn<QList<int>>("clic");
    QTest::addColumn<bool>("giusto");

    using L = QList<int>;
    QTest::newRow("smallest first, right") << L{5, 2, 9} << -1 << L{1, 0, 2} << true;
    QTest::newRow("smallest first, wrong") << L{5, 2, 9} << -1 << L{0, 1, 2} << false;
    QTest::newRow("repeats either way, 0 and the limit") << L{0, 99, 0} << -1 << L{2, 0, 1} << true;
    QTest::newRow("all equal") << L{4, 4, 4, 4} << 0 << L{3, 0, 2, 1} << true;
    QTest::newRow("largest first, right") << L{5, 2, 9} << 0 << L{2, 0, 1} << true;
    QTest::newRow("largest first, wrong") << L{5, 2, 9} << 0 << L{1, 0, 2} << false;
    QTest::newRow("largest chosen midway") << L{2, 5, 9} << 2 << L{0, 1, 2} << false;
}

void OrderingTest::ordine() {
    QFETCH(QList<int>, numeri);
    QFETCH(int, giuDopo);
    QFETCH(QList<int>, clic);
    QFETCH(bool, giusto);

    Harness h;
    apri(h, numeri);
    QStringList posti, stessi;
    for (int i = 0; i < clic.size(); ++i) {
        if (i == giuDopo) h.run(R"({"menu": "MenuGiu"})");
        QCOMPARE(h.global("Errati") + h.global("Esatti"), 0); // nothing is judged before the last
        clicca(h, {clic[i]});
        posti << QString::number(numeri[clic[i]]);
        stessi << QString::number(numeri[i]);
    }
    if (giuDopo >= 0)
        QCOMPARE(h.dump().value("caption").toString(), "Ordina i numeri dal maggiore al minore");
    QCOMPARE(h.caption(giusto ? "EtichettaEsatti" : "EtichettaErrati"), " 1");
    QCOMPARE(h.visible("ComandoIconaSi"), giusto);
    QCOMPARE(h.enabled("BottoneAvanti"), giusto); // only a right order opens it
    QCOMPARE(h.enabled("ComandoNumero(0)"), !giusto);
    QCOMPARE(h.visible("EtNumero(0)"), giusto);
    // A right order stays placed, leaving the buttons empty; a wrong one comes back in its places.
    QCOMPARE(colonna(h, "ComandoNumero", clic.size()), giusto ? QStringList(clic.size(), "") : stessi);
    if (giusto) QCOMPARE(colonna(h, "EtNumero", clic.size()), posti);
}

// Back from the worksheet and after "Ricomincia" the same numbers stand in the same places, and
// "Ricomincia" counts nothing, also once the right order waits for "avanti".
void OrderingTest::laDomandaResta() {
    Harness h;
    apri(h, {8, 3, 6});
    clicca(h, {1});
    h.run(R"({"menu": "mnuStampa"})");
    QCOMPARE(h.form() + QString::number(h.global("NumeroScheda")), "formStampa4");
    click(h, "BottoneEsci");
    QCOMPARE(colonna(h, "ComandoNumero", 3), (QStringList{"8", "", "6"}));
    QCOMPARE(h.caption("EtNumero(0)"), "3");

    clicca(h, {0});
    click(h, "BottoneRicomincia");
    QCOMPARE(colonna(h, "ComandoNumero", 3), (QStringList{"8", "3", "6"}));
    QVERIFY(!h.visible("EtNumero(0)") && h.enabled("ComandoNumero(1)"));
    QVERIFY(h.events("sound").isEmpty() && h.caption("EtichettaErrati") == "0");

    clicca(h, {1, 2, 0});
    click(h, "BottoneRicomincia");
    QVERIFY(h.enabled("BottoneAvanti") && h.enabled("ComandoNumero(0)"));
    QCOMPARE(h.caption("EtichettaEsatti"), " 1");
}

void OrderingTest::senzaAvantiSubitoNuoviNumeri() {
    Harness h;
    h.dump(); // the program starts
    h.engine.program().g.AttendiBottone = 0;
    apri(h, {1, 2, 3});
    QVERIFY(!h.visible("BottoneAvanti"));
    h.rnd({0.0, 0.0, numero(70), numero(60), numero(50)}); // the sound, the colour, the numbers
    clicca(h, {0, 1, 2});
    QCOMPARE(h.caption("EtichettaEsatti"), " 1");
    QCOMPARE(colonna(h, "ComandoNumero", 3), (QStringList{"70", "60", "50"}));
    QVERIFY(!h.visible("EtNumero(0)"));
}

QTEST_MAIN(OrderingTest)
#include "ordering.moc"
