// FormOrd: numbers clicked into a second column, the order judged once the last one is placed.

#include "support/harness.h"

#include <QTest>

using contarello::test::Harness;

namespace {

// The draw that gives n with the limit at 99: Int(Rnd * 100) = n.
double numero(int n) {
    return (n + 0.5) / 100;
}

void queue(Harness& h, const QList<double>& values) {
    QJsonArray a;
    for (double v : values)
        a.append(v);
    h.engine.execute({{"rnd", a}});
}

void click(Harness& h, const QString& name) {
    h.run(QStringLiteral(R"({"click": "%1"})").arg(name));
}

// FormOrd with a question of these numbers, chosen through the frame of how many numbers.
void apri(Harness& h, const QList<int>& numeri) {
    h.run(R"({"show": "FormOrd"})");
    h.run(R"({"menu": "MenuQuantiNumeri"})");
    QList<double> draws{0.0};
    for (int n : numeri)
        draws << numero(n);
    queue(h, draws);
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
    void ricominciaRimetteINumeri();
    void senzaAvantiSubitoNuoviNumeri();
    void laSchedaNonCambiaLaDomanda();
};

// The choice of 7 in Load draws a question, then Load draws the one that is shown; Label3 says 8.
void OrderingTest::loadMakesTheQuestionTwice() {
    Harness h;
    QList<double> draws{0.0, 0.0, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.0};
    for (int n : {0, 99, 7, 7, 42, 10, 1})
        draws << numero(n);
    queue(h, draws);
    h.run(R"({"show": "FormOrd"})");
    QCOMPARE(colonna(h, "ComandoNumero", 7), (QStringList{"0", "99", "7", "7", "42", "10", "1"}));
    QVERIFY(!h.visible("ComandoNumero(7)") && !h.visible("EtNumeri") && !h.visible("Label3"));
    QCOMPARE(h.dump().value("caption").toString(), QStringLiteral("Ordina i numeri dal minore al maggiore "));
    QCOMPARE(h.caption("Label3"), QStringLiteral("8"));
    QVERIFY(h.visible("BottoneAvanti") && !h.enabled("BottoneAvanti"));

    h.run(R"({"menu": "MenuQuantiNumeri"})");
    queue(h, {0.0, 0.5, 0.5, 0.5});
    click(h, "Option3D1(0)");
    QCOMPARE(h.caption("Label3"), QStringLiteral(" 3"));
    QVERIFY(h.visible("ComandoNumero(2)") && !h.visible("ComandoNumero(3)") && !h.visible("EtNumeri"));
}

void OrderingTest::ordine_data() {
    QTest::addColumn<QList<int>>("numeri");
    QTest::addColumn<int>("giuDopo"); // how many are placed before "from the largest"; -1 never
    QTest::addColumn<QList<int>>("clic");
    QTest::addColumn<bool>("giusto");

    using L = QList<int>;
    QTest::newRow("smallest first, right") << L{5, 2, 9} << -1 << L{1, 0, 2} << true;
    QTest::newRow("smallest first, wrong") << L{5, 2, 9} << -1 << L{0, 1, 2} << false;
    QTest::newRow("repeats either way") << L{5, 5, 2} << -1 << L{2, 1, 0} << true;
    QTest::newRow("all equal") << L{4, 4, 4, 4} << 0 << L{3, 0, 2, 1} << true;
    QTest::newRow("largest first, right") << L{5, 2, 9} << 0 << L{2, 0, 1} << true;
    QTest::newRow("largest first, wrong") << L{5, 2, 9} << 0 << L{1, 0, 2} << false;
    QTest::newRow("largest chosen midway") << L{2, 5, 9} << 2 << L{0, 1, 2} << false;
    QTest::newRow("zero and the limit") << L{99, 0, 0} << -1 << L{1, 2, 0} << true;
}

void OrderingTest::ordine() {
    QFETCH(QList<int>, numeri);
    QFETCH(int, giuDopo);
    QFETCH(QList<int>, clic);
    QFETCH(bool, giusto);

    Harness h;
    apri(h, numeri);
    QStringList attesi, stessi;
    for (int i = 0; i < clic.size(); ++i) {
        if (i == giuDopo) h.run(R"({"menu": "MenuGiu"})");
        QCOMPARE(h.global("Errati") + h.global("Esatti"), 0); // nothing is judged before the last
        attesi << QString::number(numeri[clic[i]]);
        stessi << QString::number(numeri[i]);
        click(h, QStringLiteral("ComandoNumero(%1)").arg(clic[i]));
    }
    QCOMPARE(h.caption(giusto ? "EtichettaEsatti" : "EtichettaErrati"), QStringLiteral(" 1"));
    QCOMPARE(h.visible("ComandoIconaSi"), giusto);
    QCOMPARE(h.sounds().value(0).startsWith("suoni/si"), giusto);
    QCOMPARE(h.enabled("BottoneAvanti"), giusto); // only a right order opens it
    QCOMPARE(h.enabled("ComandoNumero(0)"), !giusto);
    if (giusto) { // the placed column stays, the buttons are left empty
        QCOMPARE(colonna(h, "EtNumero", clic.size()), attesi);
        QCOMPARE(colonna(h, "ComandoNumero", clic.size()), QStringList(clic.size(), QString()));
    } else { // the same numbers back in their places
        QCOMPARE(colonna(h, "ComandoNumero", numeri.size()), stessi);
        QVERIFY(!h.visible("EtNumero(0)"));
    }
}

void OrderingTest::ricominciaRimetteINumeri() {
    Harness h;
    apri(h, {8, 3, 6});
    click(h, "ComandoNumero(1)");
    click(h, "ComandoNumero(0)");
    click(h, "BottoneRicomincia");
    QCOMPARE(colonna(h, "ComandoNumero", 3), (QStringList{"8", "3", "6"}));
    QVERIFY(!h.visible("EtNumero(0)") && h.enabled("ComandoNumero(1)"));
    QVERIFY(h.events("sound").isEmpty());
    QCOMPARE(h.caption("EtichettaErrati"), QStringLiteral("0"));

    for (int k : {1, 2, 0})
        click(h, QStringLiteral("ComandoNumero(%1)").arg(k));
    click(h, "BottoneRicomincia"); // waiting: the same numbers again, avanti still open
    QVERIFY(h.enabled("BottoneAvanti") && h.enabled("ComandoNumero(0)"));
    QCOMPARE(h.caption("EtichettaEsatti"), QStringLiteral(" 1"));
}

void OrderingTest::senzaAvantiSubitoNuoviNumeri() {
    Harness h;
    h.rnd({0.0});
    h.run(R"({"show": "FormMenu"})");
    h.engine.program().g.AttendiBottone = 0;
    apri(h, {1, 2, 3});
    QVERIFY(!h.visible("BottoneAvanti"));
    queue(h, {0.0, 0.0, numero(70), numero(60), numero(50)}); // the sound, the colour, the numbers
    for (int k : {0, 1, 2})
        click(h, QStringLiteral("ComandoNumero(%1)").arg(k));
    QCOMPARE(h.caption("EtichettaEsatti"), QStringLiteral(" 1"));
    QCOMPARE(colonna(h, "ComandoNumero", 3), (QStringList{"70", "60", "50"}));
    QVERIFY(!h.visible("EtNumero(0)"));
}

void OrderingTest::laSchedaNonCambiaLaDomanda() {
    Harness h;
    apri(h, {4, 1, 3, 2});
    click(h, "ComandoNumero(1)");
    h.run(R"({"menu": "mnuStampa"})");
    QCOMPARE(h.global("NumeroScheda"), 4);
    QCOMPARE(h.form(), QStringLiteral("formStampa"));
    click(h, "BottoneEsci");
    QCOMPARE(h.form(), QStringLiteral("FormOrd"));
    QCOMPARE(colonna(h, "ComandoNumero", 4), (QStringList{"4", "", "3", "2"}));
    QCOMPARE(h.caption("EtNumero(0)"), QStringLiteral("1"));
}

QTEST_MAIN(OrderingTest)
#include "ordering.moc"
