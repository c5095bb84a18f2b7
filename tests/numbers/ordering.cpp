// FormOrd: numbers clicked into a second column, the order judged once the last one is placed.

#include "support/harness.h"

#include <QTest>

namespace {

struct Ordina : contarello::test::Harness {
    void click(const QString& name) { run(QStringLiteral(R"J({"click": "%1"})J").arg(name)); }
    void clicca(const QList<int>& indici) {
        for (int k : indici)
            click(QStringLiteral("ComandoNumero(%1)").arg(k));
    }
    // The colour of a question, then its numbers with the limit at 99: Int(Rnd * 100) = n.
    void numeri(const QList<int>& numeri) {
        rnd({0.0});
        for (int n : numeri)
            rnd({(n + 0.5) / 100});
    }
    QString colonna(const QString& name, qsizetype n = 7) {
        QStringList out;
        for (int i = 0; i < n; ++i)
            out << caption(QStringLiteral("%1(%2)").arg(name).arg(i));
        return out.join(' ');
    }
};

} // namespace

class OrderingTest : public QObject {
    Q_OBJECT
private slots:
    // Load draws a question for the choice of 7, then the one shown; Label3, which the worksheet
    // reads, says 8. 0 and the limit itself can both be drawn. Back from the worksheet and after
    // "Ricomincia" the same numbers stand in the same places; "Ricomincia" counts nothing.
    void laDomanda() {
        Ordina h;
        h.rnd({0.0}); // the start screen
        h.numeri({50, 50, 50, 50, 50, 50, 50});
        h.numeri({0, 99, 7, 7, 42, 10, 1});
        h.run(R"({"show": "FormOrd"})");
        QCOMPARE(h.colonna("ComandoNumero") + '|' + h.caption("Label3"), "0 99 7 7 42 10 1|8");
        QVERIFY(!h.visible("ComandoNumero(7)") && !h.visible("EtNumeri") && !h.visible("Label3"));
        h.clicca({1});
        h.run(R"({"menu": "mnuStampa"})");
        QCOMPARE(h.form() + QString::number(h.global("NumeroScheda")), "formStampa4");
        h.click("BottoneEsci");
        QCOMPARE(h.colonna("ComandoNumero") + '|' + h.caption("EtNumero(0)"), "0  7 7 42 10 1|99");
        h.click("BottoneRicomincia");
        QCOMPARE(h.colonna("ComandoNumero"), "0 99 7 7 42 10 1");
        QVERIFY(!h.visible("EtNumero(0)") && h.enabled("ComandoNumero(1)") && h.events("sound").isEmpty());
        QCOMPARE(h.caption("EtichettaEsatti") + h.caption("EtichettaErrati"), "00");
    }

    void ordine_data() {
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
    // As many numbers as chosen on their panel; the title bar tells the order asked. Nothing is
    // judged before the last number; only a right order opens "avanti" and stays placed, leaving the
    // buttons empty; a wrong one comes back in its places.
    void ordine() {
        QFETCH(QList<int>, numeri);
        QFETCH(int, giuDopo);
        QFETCH(QList<int>, clic);
        QFETCH(bool, giusto);
        Ordina h;
        h.run(R"({"show": "FormOrd"})");
        h.run(R"({"menu": "MenuQuantiNumeri"})");
        h.numeri(numeri);
        h.click(QStringLiteral("Option3D1(%1)").arg(numeri.size() - 3));
        QVERIFY(h.caption("Label3") == ' ' + QString::number(numeri.size()) &&
                !h.visible(QStringLiteral("ComandoNumero(%1)").arg(numeri.size())));
        QStringList posti, stessi;
        for (int i = 0; i < clic.size(); ++i) {
            if (i == giuDopo) h.run(R"({"menu": "MenuGiu"})");
            QCOMPARE(h.global("Errati") + h.global("Esatti"), 0);
            h.clicca({clic[i]});
            posti << QString::number(numeri[clic[i]]);
            stessi << QString::number(numeri[i]);
        }
        QCOMPARE(h.dump().value("caption").toString(), giuDopo >= 0
                                                           ? "Ordina i numeri dal maggiore al minore"
                                                           : "Ordina i numeri dal minore al maggiore ");
        QCOMPARE(h.caption(giusto ? "EtichettaEsatti" : "EtichettaErrati"), " 1");
        QVERIFY(h.visible("ComandoIconaSi") == giusto && h.enabled("BottoneAvanti") == giusto);
        QVERIFY(h.enabled("ComandoNumero(0)") != giusto && h.visible("EtNumero(0)") == giusto);
        QCOMPARE(h.colonna("ComandoNumero", clic.size()) + '|' + h.colonna("EtNumero", clic.size()),
                 (giusto ? QStringList(clic.size(), "") : stessi).join(' ') + '|' + posti.join(' '));
    }
};

QTEST_MAIN(OrderingTest)
#include "ordering.moc"
