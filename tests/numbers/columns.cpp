// FormCol1 to FormCol4: additions and subtractions in column, digits dragged into the cells, units
// and tens typed, the carry moved up and the ten changed down.

#include "numbers/columns.h"
#include "core/scripted.h"
#include "support/harness.h"

#include <QJsonDocument>
#include <QTest>

using namespace contarello;

namespace {

// The draw that gives k from Int(Rnd * n).
double v(int k, int n) {
    return (k + 0.5) / n;
}

QString incolonna(const char* quale, const char* cosa) {
    return QStringLiteral("Incolonna il %1 %2 trascinando le cifre con il mouse.").arg(quale, cosa);
}
const QString kUnitaAdd = QStringLiteral("Somma le unità. Scrivine il numero e premi invio.");
const QString kUnitaSub = QStringLiteral("Sottrai le unità. Scrivi il risultato e premi invio.");

// A column screen opened straight after the start screen, whose colour takes the first draw.
struct Schermo : test::Harness {
    Schermo(const QString& form, const QList<double>& draws) {
        for (double x : QList<double>{0.0} + draws)
            rnd({x});
        run(QStringLiteral(R"({"show": "%1"})").arg(form));
    }
    // False when the source could not even be picked up.
    bool trascina(const QString& from, const QString& to) {
        const QJsonObject r = run(QStringLiteral(R"({"drag": "%1", "to": "%2"})").arg(from, to));
        return r.value("ignored").toString() != QLatin1String("dragmode");
    }
    // Both digits of the first or the second number, each on its own cell.
    void colloca(const QString& n) { trascina("Lda" + n, "Eda" + n), trascina("Lu" + n, "Eu" + n); }
    QString riga() { return caption("Lda1") + caption("Lu1") + caption("Lda2") + caption("Lu2"); }
    QString consegna() { return caption("Label3") + '|' + dump().value("focus").toString(); }
};

// One sum or difference, and the answers typed for its units and its tens, all wrong but the last.
struct Conto {
    QString form;
    QList<double> draws;
    QString cifre; // the two numbers in the row
    bool cambio;   // a carry or a change
    QStringList unita, decine;
};

} // namespace
Q_DECLARE_METATYPE(Conto)

class ColumnsTest : public QObject {
    Q_OBJECT
private slots:
    // The free screens also under the lowest limits, where they always give the limit itself.
    void tentativi_data() {
        QTest::addColumn<int>("schermo");
        QTest::addColumn<int>("limite");
        for (auto [s, limite] :
             {std::pair{1, 99}, {2, 99}, {3, 99}, {4, 99}, {2, 20}, {4, 20}, {2, 19}, {4, 19}})
            QTest::addRow("FormCol%d, limit %d", s, limite) << s << limite;
    }
    // Many seeded draws: the screens without a carry or a change never give one, no number asked
    // is 0, and the free screens stay inside their range and do bring the carry or the change.
    void tentativi() {
        QFETCH(int, schermo);
        QFETCH(int, limite);
        const bool meno = schermo >= 3, libero = schermo % 2 == 0;
        ScriptedRandom rnd(nullptr, 7);
        int cambi = 0;
        for (int i = 0; i < 3000; ++i) {
            const auto c = std::array{TentaCol1, TentaCol2, TentaCol3, TentaCol4}[schermo - 1](rnd, limite);
            if (!c) continue;
            const int primo = 10 * c->Da1 + c->U1, secondo = 10 * c->Da2 + c->U2;
            const int s = meno ? primo : 10 * c->DaR + c->UR,
                      cambio = meno ? c->U1 < c->U2 : c->U1 + c->U2 >= 10;
            cambi += cambio;
            QVERIFY(std::min({primo, secondo, s - secondo}) >= 1);
            QVERIFY2(libero ? (limite >= 21 ? s >= 20 && s < limite : s == limite) : !cambio,
                     qPrintable(QString::number(s)));
        }
        QVERIFY(!libero || limite < 99 || cambi > 100);
    }

    // Each phase with its instruction: the digits dragged to their cells, the change before the
    // units, the units typed, the carry after them, the tens typed. Only the whole result counts as
    // right, with a "Bravo". Additions randomize as they load; subtractions draw no colour.
    void colonna_data() {
        QTest::addColumn<Conto>("c");
        const auto riga = [](const char* name, const Conto& c) { QTest::newRow(name) << c; };
        // A first try with an addend 0 is drawn again, with its colour; nothing typed is 0.
        const QList<double> cinque{0.0, 0.0, 0.5, 0.0, 0.5, v(17, 18), v(8, 10), v(5, 8), v(2, 10), v(0, 2)};
        riga("5 + 23", {"FormCol1", cinque, " 5 2 3", false, {"", "8"}, {"2"}});
        // The units make 10: the units digit alone is not the sum, nor are the tens without the carry.
        riga("37 + 33", {"FormCol2", {0.0, v(50, 79), v(36, 70)}, " 3 7 3 3", true, {"0", "10"}, {"6", "7"}});
        riga("47 - 3", {"FormCol3", {v(7, 10), v(3, 7), v(4, 10), v(0, 4)}, " 4 7 3", false, {"4"}, {"4"}});
        riga("40 - 20", {"FormCol3", {v(0, 10), 0.5, v(4, 10), v(2, 4)}, " 4 0 2 0", false, {""}, {"2"}});
        riga("52 - 27, a ten changed", {"FormCol4", {v(32, 79), v(26, 52)}, " 5 2 2 7", true, {"5"}, {"2"}});
        riga("57 - 27, same units", {"FormCol4", {v(37, 79), v(26, 57)}, " 5 7 2 7", false, {"0"}, {"3"}});
    }
    void colonna() {
        QFETCH(Conto, c);
        const bool meno = c.form >= QLatin1String("FormCol3");
        const char* cosa = meno ? "numero" : "addendo";
        Schermo h(c.form, c.draws);
        QCOMPARE(h.events("randomize").size(), meno ? 1 : 2);
        QCOMPARE(h.riga() + '|' + h.caption("Label3"), c.cifre + '|' + incolonna("primo", cosa));
        // Only the digits of the number under way move, each only to its own cell.
        QVERIFY(!h.trascina("Lu2", "Eu2") && h.trascina("Lda1", "Eda1") != h.caption("Lda1").isEmpty());
        h.trascina("Lu1", "Eda1");
        QCOMPARE(h.caption("Eda1"), h.caption("Lda1"));
        h.colloca("1");
        QCOMPARE(h.caption("Label3"), incolonna("secondo", cosa));
        h.colloca("2");
        if (meno && c.cambio) {
            QCOMPARE(
                h.caption("Label3"),
                "Le unità non ti bastano. Cambia una decina in unità trascinando il rettangolino viola.");
            QVERIFY(!h.enabled("Eur") && (h.caption("CambioUp") + h.caption("CambioUa")).isEmpty());
            h.trascina("CambioUp", "CambioUa");
            QCOMPARE(h.caption("CambioUa") + '|' + h.caption("CambioUp"), "1|-1");
        }
        QCOMPARE(h.consegna(), (meno ? kUnitaSub : kUnitaAdd) + "|Eur");
        for (const QString& u : c.unita)
            h.answer("Eur", u);
        if (!meno && c.cambio) { // the box keeps the units digit, and the 1 waits to be carried, once
            QCOMPARE(h.text("Eur") + '|' + h.caption("CambioUp") + '|' + h.caption("CambioUa"), " 0|1|");
            QVERIFY(!h.enabled("Eur") && !h.enabled("Edar") && !h.trascina("Lu1", "CambioUa"));
            QCOMPARE(h.caption("Label3"), "Le unità sono almeno 10. Trascina il cambio sulle decine.");
            h.trascina("CambioUp", "CambioUa"), h.trascina("CambioUp", "CambioUa");
            QCOMPARE(h.caption("CambioUa") + '|' + h.caption("CambioUp"), "1|");
        }
        QCOMPARE(h.consegna(), meno ? "Sottrai le decine. Scrivi il risultato e premi invio.|Edar"
                                    : "Somma le decine. Scrivine il numero e premi invio.|Edar");
        if (meno && c.cambio) { // a further change changes no expected digit, and asks for the units again
            h.trascina("CambioUp", "CambioUa");
            QCOMPARE(h.text("Eur") + h.consegna(), kUnitaSub + "|Eur");
            h.answer("Eur", c.unita.last());
        }
        for (const QString& d : c.decine)
            h.answer("Edar", d);
        QVERIFY(h.global("Esatti") == 1 && h.global("Errati") == c.unita.size() + c.decine.size() - 2);
        QCOMPARE(QJsonDocument(h.events("msgbox")).toJson(QJsonDocument::Compact),
                 R"([{"event":"msgbox","result":1,"style":0,"text":"Bravo","title":"Contarello"}])");
        // The next question comes at once, and the worksheet throws away the one under way.
        QCOMPARE(h.caption("Lris") + h.caption("Eu1") + h.caption("Label3"), incolonna("primo", cosa));
        h.colloca("1");
        h.run(R"({"menu": "mnuStampa"})");
        QCOMPARE(h.global("NumeroScheda"), (std::array{16, 15, 18, 17}[c.form.back().digitValue() - 1]));
        h.run(R"({"click": "BottoneEsci"})");
        QCOMPARE(h.caption("Eu1") + h.text("Edar") + h.caption("Label3"), incolonna("primo", cosa));
    }
};

QTEST_MAIN(ColumnsTest)
#include "columns.moc"
