// FormCol1 to FormCol4: additions and subtractions in column, digits dragged into the cells, units
// and tens typed, the carry moved up and the ten changed down.

#include "numbers/columns.h"
#include "shell/services.h"
#include "support/harness.h"

#include <QTest>

using namespace contarello;
using contarello::test::Harness;

namespace {

// The draw that gives k from Int(Rnd * n).
double v(int k, int n) {
    return (k + 0.5) / n;
}

const QString kUnitaAdd = QStringLiteral("Somma le unità. Scrivine il numero e premi invio.");
const QString kDecineAdd = QStringLiteral("Somma le decine. Scrivine il numero e premi invio.");
const QString kUnitaSub = QStringLiteral("Sottrai le unità. Scrivi il risultato e premi invio.");
const QString kDecineSub = QStringLiteral("Sottrai le decine. Scrivi il risultato e premi invio.");
const QString kRiporto = QStringLiteral("Le unità sono almeno 10. Trascina il cambio sulle decine.");

void queue(Harness& h, const QList<double>& values) {
    QJsonArray a;
    for (double x : values)
        a.append(x);
    h.engine.execute({{"rnd", a}});
}

// The screen opened straight after the start screen, whose colour takes the first draw.
void apri(Harness& h, const QString& form, const QList<double>& draws) {
    queue(h, QList<double>{0.0} + draws);
    h.run(QStringLiteral(R"({"show": "%1"})").arg(form));
}

QJsonObject trascina(Harness& h, const QString& from, const QString& to) {
    return h.run(QStringLiteral(R"({"drag": "%1", "to": "%2"})").arg(from, to));
}

void incolonna(Harness& h) {
    for (const char* d : {"da1", "u1", "da2", "u2"})
        trascina(h, QStringLiteral("L") + d, QStringLiteral("E") + d);
}

void invio(Harness& h, const QString& box, const QString& text) {
    h.run(QStringLiteral(R"({"settext": "%1", "text": "%2"})").arg(box, text));
    h.run(QStringLiteral(R"({"key": "%1", "code": 13})").arg(box));
}

QString riga(Harness& h) {
    return h.caption("Lda1") + h.caption("Lu1") + h.caption("Lda2") + h.caption("Lu2");
}

int campo(Harness& h, const char* name) {
    return h.dump().value("fields").toObject().value(name).toInt(-1);
}

} // namespace

class ColumnsTest : public QObject {
    Q_OBJECT
private slots:
    void tentativi_data();
    void tentativi();
    void addizioneSenzaCambio();
    void riporto_data();
    void riporto();
    void cifreUgualiValgonoLUnaPerLAltra();
    void sottrazione_data();
    void sottrazione();
    void schedaENuovaOperazione_data();
    void schedaENuovaOperazione();
};

void ColumnsTest::tentativi_data() {
    QTest::addColumn<int>("schermo");
    QTest::addColumn<int>("limite");
    for (int s = 1; s <= 4; ++s)
        QTest::addRow("FormCol%d", s) << s << 99;
    // The free screens under the lowest limits: always the limit itself.
    for (int limite : {20, 19})
        for (int s : {2, 4})
            QTest::addRow("FormCol%d, limit %d", s, limite) << s << limite;
}

// Many seeded draws: the screens without a carry or a change never give one, no number asked is 0,
// and the free screens stay inside their range and do bring the carry or the change.
void ColumnsTest::tentativi() {
    QFETCH(int, schermo);
    QFETCH(int, limite);
    const auto tenta = std::array{TentaCol1, TentaCol2, TentaCol3, TentaCol4}[schermo - 1];
    const bool sottrazione = schermo >= 3, libero = schermo % 2 == 0;
    ScriptedRandom rnd(nullptr, 7);
    int speciali = 0, validi = 0;
    for (int i = 0; i < 3000; ++i) {
        const std::optional<Colonna> c = tenta(rnd, limite);
        if (!c) continue;
        ++validi;
        for (int d : {c->Da1, c->U1, c->Da2, c->U2, c->DaR, c->UR})
            QVERIFY(d >= 0 && d <= (sottrazione || !libero ? 9 : 18));
        const int primo = 10 * c->Da1 + c->U1, secondo = 10 * c->Da2 + c->U2;
        const int risultato = 10 * c->DaR + c->UR;
        QVERIFY(primo >= 1 && secondo >= 1 && risultato >= 1);
        QCOMPARE(risultato, sottrazione ? primo - secondo : primo + secondo);
        const bool speciale = sottrazione ? c->U1 < c->U2 : c->U1 + c->U2 >= 10;
        speciali += speciale;
        if (!libero) {
            QVERIFY(!speciale);
            QVERIFY(c->DaR <= 9);
        } else {
            const int s = sottrazione ? primo : risultato;
            QVERIFY2(limite >= 21 ? s >= 20 && s < limite : s == limite, qPrintable(QString::number(s)));
        }
    }
    QVERIFY(validi > 1000);
    if (libero && limite == 99) QVERIFY(speciali > 100);
}

void ColumnsTest::addizioneSenzaCambio() {
    Harness h;
    // A first try with an addend 0 is drawn again, with its colour; then 5 + 23.
    apri(h, "FormCol1", {0.0, 0.0, 0.5, 0.0, 0.5, v(17, 18), v(8, 10), v(5, 8), v(2, 10), v(0, 2)});
    QCOMPARE(h.dump().value("backcolor").toString(), QStringLiteral("#ff00ff"));
    QCOMPARE(h.events("randomize").size(), 2); // the start, then the screen
    QCOMPARE(riga(h), QStringLiteral(" 5 2 3"));
    QCOMPARE(trascina(h, "Lda1", "Eda1").value("ignored").toString(), QStringLiteral("dragmode"));
    QCOMPARE(trascina(h, "Lu2", "Eu2").value("ignored").toString(), QStringLiteral("dragmode"));
    trascina(h, "Lu1", "Eda2"); // not its cell: nothing moves
    QCOMPARE(h.caption("Eda2") + QString::number(h.control("Lu1").value("dragmode").toInt()),
             QStringLiteral("1"));

    trascina(h, "Lu1", "Eu1"); // one digit is the whole first addend
    QCOMPARE(h.caption("Eu1") + h.caption("Eda1"), QStringLiteral(" 5"));
    QCOMPARE(h.caption("Label3"),
             QStringLiteral("Incolonna il secondo addendo trascinando le cifre cin il mouse."));
    trascina(h, "Lu2", "Eu2");
    trascina(h, "Lda2", "Eda2");
    QCOMPARE(h.caption("Label3"), kUnitaAdd);
    QCOMPARE(h.dump().value("focus").toString(), QStringLiteral("Eur"));

    invio(h, "Eur", ""); // nothing typed is 0, and the units are 8
    QCOMPARE(h.caption("EtichettaErrati"), QStringLiteral(" 1"));
    QCOMPARE(h.sounds(), QStringList{"suoni/no.wav"});
    invio(h, "Eur", "8"); // right units count nothing
    QCOMPARE(h.caption("Label3"), kDecineAdd);
    QVERIFY(!h.enabled("Eur") && h.enabled("Edar") && h.sounds().isEmpty());

    queue(h, {0.0, 0.0, v(9, 10), v(4, 9), v(9, 10), v(8, 9)}); // the sound, then 84 + 15
    invio(h, "Edar", "2");
    QCOMPARE(h.caption("EtichettaEsatti"), QStringLiteral(" 1"));
    const QJsonArray box = h.events("msgbox");
    QCOMPARE(box.size(), 1);
    QCOMPARE(box[0].toObject().value("text").toString() +
                 QString::number(box[0].toObject().value("style").toInt()),
             QStringLiteral("Bravo0"));
    QCOMPARE(riga(h), QStringLiteral(" 8 4 1 5"));
    QCOMPARE(h.caption("Lris") + h.caption("Eu1") + h.text("Edar"), QString());
}

void ColumnsTest::riporto_data() {
    QTest::addColumn<QList<double>>("draws");
    QTest::addColumn<int>("unita");
    QTest::addColumn<QString>("resto");
    QTest::addColumn<int>("decine");

    QTest::newRow("57 + 25") << QList<double>{0.0, v(62, 79), v(56, 82)} << 12 << QString(" 2") << 8;
    QTest::newRow("37 + 23, units 10")
        << QList<double>{0.0, v(40, 79), v(36, 60)} << 10 << QString(" 0") << 6;
}

void ColumnsTest::riporto() {
    QFETCH(QList<double>, draws);
    QFETCH(int, unita);
    QFETCH(QString, resto);
    QFETCH(int, decine);

    Harness h;
    apri(h, "FormCol2", draws);
    QCOMPARE(h.caption("Label3"),
             QStringLiteral("Incolonna il primo addendo trascinando le cifre con il muose."));
    incolonna(h);
    invio(h, "Eur", QString::number(unita % 10)); // the units digit alone is not the sum
    QCOMPARE(h.caption("EtichettaErrati"), QStringLiteral(" 1"));
    invio(h, "Eur", QString::number(unita));
    QCOMPARE(h.text("Eur") + '|' + h.caption("CambioUp") + '|' + h.caption("CambioUa"), resto + "|1|");
    QVERIFY(h.visible("CambioUa") && !h.enabled("Eur") && !h.enabled("Edar"));
    QCOMPARE(h.caption("Label3"), kRiporto);
    QCOMPARE(trascina(h, "Lu1", "CambioUa").value("ignored").toString(), QStringLiteral("dragmode"));
    trascina(h, "CambioUp", "Eda1"); // not a digit of the row: refused
    QCOMPARE(h.caption("Label3"), kRiporto);

    trascina(h, "CambioUp", "CambioUa");
    QCOMPARE(h.caption("CambioUa") + '|' + h.caption("CambioUp"), QStringLiteral("1|"));
    QCOMPARE(h.caption("Label3"), kDecineAdd);
    QCOMPARE(h.dump().value("focus").toString(), QStringLiteral("Edar"));
    trascina(h, "CambioUp", "CambioUa"); // the 1 has gone: nothing more is carried
    invio(h, "Edar", QString::number(decine - 1));
    QCOMPARE(h.caption("EtichettaErrati"), QStringLiteral(" 2"));
    invio(h, "Edar", QString::number(decine));
    QCOMPARE(h.caption("EtichettaEsatti"), QStringLiteral(" 1"));
    QVERIFY(!h.visible("CambioUp") && !h.visible("CambioUa"));
}

// The texts are compared, not the controls.
void ColumnsTest::cifreUgualiValgonoLUnaPerLAltra() {
    Harness h;
    apri(h, "FormCol2", {0.0, v(17, 79), v(32, 37)}); // 33 + 4
    trascina(h, "Lu1", "Eda1");
    QCOMPARE(h.caption("Eda1"), QStringLiteral(" 3"));
    QCOMPARE(h.control("Lda1").value("dragmode").toInt(), 0);
    QCOMPARE(h.control("Lu1").value("dragmode").toInt(), 1);
    trascina(h, "Lu1", "Eu1");
    QCOMPARE(campo(h, "Cifre1"), 0);

    Harness k;
    apri(k, "FormCol2", {0.0, v(18, 79), v(33, 38)}); // 34 + 4
    trascina(k, "Lu1", "Eu2");                        // the second addend's cell, in the first phase
    QCOMPARE(k.caption("Eu2"), QStringLiteral(" 4"));
    QCOMPARE(k.caption("Label3"), kUnitaAdd); // the phases follow the counters alone
    QVERIFY(k.enabled("Eur"));
    QCOMPARE(campo(k, "Cifre1"), 2);
}

void ColumnsTest::sottrazione_data() {
    QTest::addColumn<QString>("form");
    QTest::addColumn<QList<double>>("draws");
    QTest::addColumn<QString>("cifre");
    QTest::addColumn<bool>("cambia");
    QTest::addColumn<QString>("unita");
    QTest::addColumn<QString>("decine");

    using L = QList<double>;
    QTest::newRow("47 - 3") << "FormCol3" << L{v(7, 10), v(3, 7), v(4, 10), v(0, 4)} << " 4 7 3" << false
                            << "4"
                            << "4";
    QTest::newRow("40 - 20, units 0")
        << "FormCol3" << L{v(0, 10), 0.5, v(4, 10), v(2, 4)} << " 4 0 2 0" << false << ""
        << "2";
    QTest::newRow("0 - 0 drawn again")
        << "FormCol3" << L{0.0, 0.0, 0.0, 0.0, v(7, 10), v(3, 7), v(4, 10), v(0, 4)} << " 4 7 3" << false
        << "4"
        << "4";
    QTest::newRow("52 - 27") << "FormCol4" << L{v(32, 79), v(26, 52)} << " 5 2 2 7" << true << "5"
                             << "2";
    QTest::newRow("52 - 23") << "FormCol4" << L{v(32, 79), v(22, 52)} << " 5 2 2 3" << true << "9"
                             << "2";
    QTest::newRow("57 - 23") << "FormCol4" << L{v(37, 79), v(22, 57)} << " 5 7 2 3" << false << "4"
                             << "3";
    QTest::newRow("52 - 7") << "FormCol4" << L{v(32, 79), v(6, 52)} << " 5 2 7" << true << "5"
                            << "4";
}

// The background stays cyan and takes no draw; the change comes before the units and changes no
// expected digit, however many times it is made.
void ColumnsTest::sottrazione() {
    QFETCH(QString, form);
    QFETCH(QList<double>, draws);
    QFETCH(QString, cifre);
    QFETCH(bool, cambia);
    QFETCH(QString, unita);
    QFETCH(QString, decine);

    Harness h;
    apri(h, form, draws);
    QCOMPARE(h.dump().value("backcolor").toString(), QStringLiteral("#00ffff"));
    QCOMPARE(riga(h), cifre);
    trascina(h, "Lu1", "Eu1");
    trascina(h, "Lda1", "Eda1");
    QCOMPARE(h.caption("Label3"),
             QStringLiteral("Incolonna il secondo numero trascinando le cifre con il mouse."));
    trascina(h, "Lu2", "Eu2");
    trascina(h, "Lda2", "Eda2");
    // FormCol3 has no magenta labels at all.
    QCOMPARE(h.dump().value("controls").toObject().value("CambioUp").toObject().value("visible").toBool(),
             cambia);
    if (cambia) {
        QCOMPARE(h.caption("Label3"), QStringLiteral("Le unità non ti bastano. Cambia una decina in unità "
                                                     "trascinando il rettangolino viola."));
        QVERIFY(!h.enabled("Eur"));
        QCOMPARE(h.caption("CambioUp") + h.caption("CambioUa"), QString());
        trascina(h, "CambioUp", "CambioUa");
        QCOMPARE(h.caption("CambioUa") + '|' + h.caption("CambioUp"), QStringLiteral("1|-1"));
    }
    QCOMPARE(h.caption("Label3"), kUnitaSub);
    QCOMPARE(h.dump().value("focus").toString(), QStringLiteral("Eur"));
    invio(h, "Eur", unita);
    QCOMPARE(h.caption("Label3"), kDecineSub);
    if (cambia) { // a further change asks for the units again
        trascina(h, "CambioUp", "CambioUa");
        QCOMPARE(h.text("Eur") + h.caption("Label3"), kUnitaSub);
        invio(h, "Eur", unita);
    }
    invio(h, "Edar", decine);
    QCOMPARE(h.caption("EtichettaEsatti") + h.caption("EtichettaErrati"), QStringLiteral(" 10"));
    QCOMPARE(h.dump().value("backcolor").toString(), QStringLiteral("#00ffff"));
}

void ColumnsTest::schedaENuovaOperazione_data() {
    QTest::addColumn<QString>("form");
    QTest::addColumn<int>("scheda");
    QTest::addColumn<int>("randomize");
    QTest::addColumn<QList<double>>("draws");

    QTest::newRow("FormCol1") << "FormCol1" << 16 << 1
                              << QList<double>{0.0, v(8, 10), v(5, 8), v(2, 10), v(0, 2)};
    QTest::newRow("FormCol2") << "FormCol2" << 15 << 1 << QList<double>{0.0, v(62, 79), v(4, 82)};
    QTest::newRow("FormCol3") << "FormCol3" << 18 << 0 << QList<double>{v(5, 10), v(3, 5), v(2, 10), v(1, 2)};
    QTest::newRow("FormCol4") << "FormCol4" << 17 << 0 << QList<double>{v(32, 79), v(26, 52)};
}

// A worksheet opened over the screen; back from it the operation under way is gone.
void ColumnsTest::schedaENuovaOperazione() {
    QFETCH(QString, form);
    QFETCH(int, scheda);
    QFETCH(int, randomize);
    QFETCH(QList<double>, draws);

    Harness h;
    apri(h, form, draws);
    QCOMPARE(h.events("randomize").size(), 1 + randomize); // the start, then the screen
    trascina(h, "Lu1", "Eu1");
    h.run(R"({"menu": "mnuStampa"})");
    QCOMPARE(h.global("NumeroScheda"), scheda);
    QCOMPARE(h.form(), QStringLiteral("formStampa"));
    queue(h, draws);
    h.run(R"({"click": "BottoneEsci"})");
    QCOMPARE(h.form(), form);
    QCOMPARE(h.caption("Eu1") + QString::number(h.control("Lu1").value("dragmode").toInt()),
             QStringLiteral("1"));
}

QTEST_MAIN(ColumnsTest)
#include "columns.moc"
