// FormCol1 to FormCol4: additions and subtractions in column, digits dragged into the cells, units
// and tens typed, the carry moved up and the ten changed down.

#include "numbers/columns.h"
#include "core/scripted.h"
#include "support/harness.h"

#include <QJsonDocument>
#include <QTest>

using namespace contarello;
using contarello::test::Harness;

namespace {

// The draw that gives k from Int(Rnd * n).
double v(int k, int n) {
    return (k + 0.5) / n;
}

const QString kPrimoAdd = QStringLiteral("Incolonna il primo addendo trascinando le cifre con il mouse.");
const QString kSecondoAdd = QStringLiteral("Incolonna il secondo addendo trascinando le cifre con il mouse.");
const QString kUnitaAdd = QStringLiteral("Somma le unità. Scrivine il numero e premi invio.");
const QString kDecineAdd = QStringLiteral("Somma le decine. Scrivine il numero e premi invio.");
const QString kUnitaSub = QStringLiteral("Sottrai le unità. Scrivi il risultato e premi invio.");

// The screen opened straight after the start screen, whose colour takes the first draw.
void apri(Harness& h, const QString& form, const QList<double>& draws) {
    QJsonArray a{0.0};
    for (double x : draws)
        a.append(x);
    h.engine.execute({{"rnd", a}});
    h.run(QStringLiteral(R"({"show": "%1"})").arg(form));
}

// False when the source could not even be picked up.
bool trascina(Harness& h, const QString& from, const QString& to) {
    const QJsonObject r = h.run(QStringLiteral(R"({"drag": "%1", "to": "%2"})").arg(from, to));
    return r.value("ignored").toString() != QLatin1String("dragmode");
}

// Both digits of the first or the second number, each on its own cell.
void colloca(Harness& h, const QString& n) {
    trascina(h, "Lda" + n, "Eda" + n);
    trascina(h, "Lu" + n, "Eu" + n);
}

QString riga(Harness& h) {
    return h.caption("Lda1") + h.caption("Lu1") + h.caption("Lda2") + h.caption("Lu2");
}

// The screen's worksheet opened over it and closed again: its number.
int scheda(Harness& h) {
    h.run(R"({"menu": "mnuStampa"})");
    const int n = h.form() == QLatin1String("formStampa") ? h.global("NumeroScheda") : -1;
    h.run(R"({"click": "BottoneEsci"})");
    return n;
}

} // namespace

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
        const auto tenta = std::array{TentaCol1, TentaCol2, TentaCol3, TentaCol4}[schermo - 1];
        const bool sottrazione = schermo >= 3, libero = schermo % 2 == 0;
        ScriptedRandom rnd(nullptr, 7);
        int cambi = 0;
        for (int i = 0; i < 3000; ++i) {
            const std::optional<Colonna> c = tenta(rnd, limite);
            if (!c) continue;
            for (int d : {c->Da1, c->U1, c->Da2, c->U2, c->DaR, c->UR})
                QVERIFY(d >= 0 && d <= (sottrazione || !libero ? 9 : 18));
            const int primo = 10 * c->Da1 + c->U1, secondo = 10 * c->Da2 + c->U2;
            const int risultato = 10 * c->DaR + c->UR;
            QVERIFY(primo >= 1 && secondo >= 1 && risultato >= 1);
            QCOMPARE(risultato, sottrazione ? primo - secondo : primo + secondo);
            const bool cambio = sottrazione ? c->U1 < c->U2 : c->U1 + c->U2 >= 10;
            cambi += cambio;
            QVERIFY(libero || !cambio);
            const int s = sottrazione ? primo : risultato;
            if (libero)
                QVERIFY2(limite >= 21 ? s >= 20 && s < limite : s == limite, qPrintable(QString::number(s)));
        }
        if (libero && limite == 99) QVERIFY(cambi > 100);
    }

    void addizioneSenzaCambio() {
        Harness h;
        // A first try with an addend 0 is drawn again, with its colour; then 5 + 23.
        apri(h, "FormCol1", {0.0, 0.0, 0.5, 0.0, 0.5, v(17, 18), v(8, 10), v(5, 8), v(2, 10), v(0, 2)});
        QCOMPARE(h.events("randomize").size(), 2); // the start, then the screen
        QCOMPARE(riga(h), " 5 2 3");
        QCOMPARE(h.caption("Label3"), kPrimoAdd);
        QVERIFY(!trascina(h, "Lda1", "Eda1")); // empty
        QVERIFY(!trascina(h, "Lu2", "Eu2"));   // not yet
        trascina(h, "Lu1", "Eda2");            // not its cell: nothing moves
        QCOMPARE(h.caption("Eda2"), "");
        trascina(h, "Lu1", "Eu1"); // one digit is the whole first addend
        QCOMPARE(h.caption("Eu1") + h.caption("Eda1"), " 5");
        QCOMPARE(h.caption("Label3"), kSecondoAdd);
        colloca(h, "2");
        QCOMPARE(h.caption("Label3"), kUnitaAdd);
        QCOMPARE(h.dump().value("focus").toString(), "Eur");

        h.answer("Eur", ""); // nothing typed is 0, and the units are 8
        QCOMPARE(h.caption("EtichettaErrati"), " 1");
        QCOMPARE(h.sounds(), QStringList{"suoni/no.wav"});
        h.answer("Eur", "8"); // right units count nothing
        QCOMPARE(h.caption("Label3"), kDecineAdd);
        QVERIFY(!h.enabled("Eur") && h.enabled("Edar") && h.sounds().isEmpty());

        h.rnd({0.0, 0.0, v(9, 10), v(4, 9), v(9, 10), v(8, 9)}); // the sound, then 84 + 15
        h.answer("Edar", "2");
        QCOMPARE(h.caption("EtichettaEsatti"), " 1");
        QCOMPARE(QJsonDocument(h.events("msgbox")).toJson(QJsonDocument::Compact),
                 R"([{"event":"msgbox","result":1,"style":0,"text":"Bravo","title":"Contarello"}])");
        QCOMPARE(riga(h), " 8 4 1 5");
        QCOMPARE(h.caption("Lris") + h.caption("Eu1") + h.text("Edar"), QString());

        colloca(h, "1"); // back from the worksheet, the addition under way is gone
        QCOMPARE(scheda(h), 16);
        QCOMPARE(h.caption("Eu1") + h.caption("Label3"), kPrimoAdd);
    }

    // 37 + 33: the units make exactly 10, so the box keeps 0 and the 1 goes up, once, to the tens.
    // The drops compare texts, not controls, and the phases follow the two counters alone: the 3 of
    // the first addend fills the second's cell early, and then one drop ends the second addend.
    void riporto() {
        Harness h;
        apri(h, "FormCol2", {0.0, v(50, 79), v(36, 70)});
        QCOMPARE(riga(h), " 3 7 3 3");
        QCOMPARE(h.caption("Label3"), kPrimoAdd);
        trascina(h, "Lda1", "Eda2");
        QCOMPARE(h.caption("Eda2"), " 3");
        QVERIFY(trascina(h, "Lda1", "Eda1")); // the cell's own label stops, not the one dragged
        trascina(h, "Lu1", "Eu1");
        QCOMPARE(h.caption("Label3"), kSecondoAdd);
        trascina(h, "Lu2", "Eu2");
        QCOMPARE(h.caption("Label3"), kUnitaAdd);
        h.answer("Eur", "0"); // the units digit alone is not the sum
        QCOMPARE(h.caption("EtichettaErrati"), " 1");
        h.answer("Eur", "10");
        QCOMPARE(h.text("Eur") + '|' + h.caption("CambioUp") + '|' + h.caption("CambioUa"), " 0|1|");
        QVERIFY(h.visible("CambioUa") && !h.enabled("Eur") && !h.enabled("Edar"));
        QCOMPARE(h.caption("Label3"), "Le unità sono almeno 10. Trascina il cambio sulle decine.");
        QVERIFY(!trascina(h, "Lu1", "CambioUa")); // the digits of the row are done with

        trascina(h, "CambioUp", "CambioUa");
        QCOMPARE(h.caption("CambioUa") + '|' + h.caption("CambioUp"), "1|");
        QCOMPARE(h.caption("Label3"), kDecineAdd);
        QCOMPARE(h.dump().value("focus").toString(), "Edar");
        trascina(h, "CambioUp", "CambioUa"); // the 1 has gone: nothing more is carried
        h.answer("Edar", "6");               // 3 + 3 without the carry
        QCOMPARE(h.caption("EtichettaErrati"), " 2");
        h.answer("Edar", "7");
        QCOMPARE(h.caption("EtichettaEsatti"), " 1");
        QVERIFY(!h.visible("CambioUp") && !h.visible("CambioUa"));
        QCOMPARE(scheda(h), 15);
    }

    void sottrazione_data() {
        QTest::addColumn<QString>("form");
        QTest::addColumn<QList<double>>("draws");
        QTest::addColumn<QString>("cifre");
        QTest::addColumn<bool>("cambia");
        QTest::addColumn<QString>("unita");
        QTest::addColumn<int>("decine");
        using L = QList<double>;
        QTest::newRow("47 - 3") << "FormCol3" << L{v(7, 10), v(3, 7), v(4, 10), v(0, 4)} << " 4 7 3" << false
                                << "4" << 4;
        QTest::newRow("40 - 20, units 0")
            << "FormCol3" << L{v(0, 10), 0.5, v(4, 10), v(2, 4)} << " 4 0 2 0" << false << "" << 2;
        QTest::newRow("52 - 27") << "FormCol4" << L{v(32, 79), v(26, 52)} << " 5 2 2 7" << true << "5" << 2;
        QTest::newRow("57 - 27, same units")
            << "FormCol4" << L{v(37, 79), v(26, 57)} << " 5 7 2 7" << false << "0" << 3;
    }
    // The background stays cyan and takes no draw; the change comes before the units and changes
    // no expected digit, however many times it is made.
    void sottrazione() {
        QFETCH(QString, form);
        QFETCH(QList<double>, draws);
        QFETCH(QString, cifre);
        QFETCH(bool, cambia);
        QFETCH(QString, unita);
        QFETCH(int, decine);
        Harness h;
        apri(h, form, draws);
        QCOMPARE(h.events("randomize").size(), 1); // the start's only
        QCOMPARE(riga(h), cifre);
        QCOMPARE(h.caption("Label3"), "Incolonna il primo numero trascinando le cifre con il mouse.");
        colloca(h, "1");
        QCOMPARE(h.caption("Label3"), "Incolonna il secondo numero trascinando le cifre con il mouse.");
        colloca(h, "2");
        // FormCol3 has no magenta labels at all.
        QCOMPARE(h.dump().value("controls")["CambioUp"]["visible"].toBool(), cambia);
        if (cambia) {
            QCOMPARE(
                h.caption("Label3"),
                "Le unità non ti bastano. Cambia una decina in unità trascinando il rettangolino viola.");
            QVERIFY(!h.enabled("Eur"));
            QCOMPARE(h.caption("CambioUp") + h.caption("CambioUa"), QString());
            trascina(h, "CambioUp", "CambioUa");
            QCOMPARE(h.caption("CambioUa") + '|' + h.caption("CambioUp"), "1|-1");
        }
        QCOMPARE(h.caption("Label3"), kUnitaSub);
        QCOMPARE(h.dump().value("focus").toString(), "Eur");
        h.answer("Eur", unita);
        QCOMPARE(h.caption("Label3"), "Sottrai le decine. Scrivi il risultato e premi invio.");
        if (cambia) { // a further change asks for the units again
            trascina(h, "CambioUp", "CambioUa");
            QCOMPARE(h.text("Eur") + h.caption("Label3"), kUnitaSub);
            h.answer("Eur", unita);
        }
        h.answer("Edar", QString::number(decine));
        QCOMPARE(h.caption("EtichettaEsatti") + h.caption("EtichettaErrati"), " 10");
        QCOMPARE(h.dump().value("backcolor").toString(), "#00ffff");
        QCOMPARE(scheda(h), form == "FormCol3" ? 18 : 17);
    }
};

QTEST_MAIN(ColumnsTest)
#include "columns.moc"
