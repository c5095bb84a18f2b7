// FormGraf, FormGraf1, FormGrafMeno, FormGrafMeno1: additions and subtractions with longs and
// squares, the change in both directions, and the draws that must never hang.

#include "graphics/longs.h"
#include "core/scripted.h"
#include "support/harness.h"

#include <QTest>

using namespace contarello;
using contarello::test::Harness;

namespace {

// The draw that gives k from Int(Rnd * n).
double v(int k, int n) {
    return (k + 0.5) / n;
}

// A random source stuck on one value, as a broken one could be.
class FixedRandom : public Random {
public:
    explicit FixedRandom(double x) : x_(x) {}
    double Rnd() override {
        ++calls;
        return x_;
    }
    void Randomize() override {}
    int calls = 0;

private:
    double x_;
};

const QString kRisultato = QStringLiteral("Inserisci il risultato.");

// The screen opened straight after the start screen, whose colour takes the first draw; then the
// screen's colour and its draws.
void apri(Harness& h, const QString& form, const QList<double>& draws, bool avanti = true) {
    h.engine.execute({{"rnd", QJsonArray{0.0}}});
    h.dump();
    h.engine.program().g.AttendiBottone = avanti ? -1 : 0;
    QJsonArray a{0.0};
    for (double x : draws)
        a.append(x);
    h.engine.execute({{"rnd", a}});
    h.run(QStringLiteral(R"({"show": "%1"})").arg(form));
}

void clicca(Harness& h, const QString& name, int volte = 1) {
    for (int i = 0; i < volte; ++i)
        h.run(QStringLiteral(R"({"click": "%1"})").arg(name));
}

void invio(Harness& h, const QString& text) {
    h.run(QStringLiteral(R"({"settext": "Risultato", "text": "%1"})").arg(text));
    h.run(R"({"key": "Risultato", "code": 13})");
}

// How many shapes of an array show.
int visibili(Harness& h, const QString& name, int n) {
    int k = 0;
    for (int i = 0; i < n; ++i)
        k += h.visible(QStringLiteral("%1(%2)").arg(name).arg(i));
    return k;
}

int campo(Harness& h, const char* name) {
    return h.dump().value("fields").toObject().value(QLatin1String(name)).toInt();
}

} // namespace

class LongsTest : public QObject {
    Q_OBJECT
private slots:
    void senzaCambio_data();
    void senzaCambio();
    void sorgenteBloccata_data();
    void sorgenteBloccata();
    void molteEstrazioni();
    void addizioneConCambio();
    void addizioneBordi();
    void sottrazioneConCambio();
    void sottrazioneSenzaPassi_data();
    void sottrazioneSenzaPassi();
    void ricominciaSottrazione();
    void schermi_data();
    void schermi();
};

void LongsTest::senzaCambio_data() {
    QTest::addColumn<QList<double>>("draws");
    QTest::addColumn<int>("meta");
    QTest::addColumn<int>("termine1");
    QTest::newRow("first try") << QList<double>{v(5, 10), v(8, 10), v(2, 5), v(3, 8)} << 58 << 23;
    // 0, 1, 10 and 11 are drawn again before any first number is tried; then 52 with 0 tried once.
    QTest::newRow("unfit meta, then a zero")
        << QList<double>{0.0,      0.0,      0.0,      v(1, 10), v(1, 10), 0.0,     v(1, 10),
                         v(1, 10), v(5, 10), v(2, 10), 0.0,      0.0,      v(2, 5), v(1, 2)}
        << 52 << 21;
    // Units 0: the first number is whole tens.
    QTest::newRow("no units") << QList<double>{v(4, 10), 0.0, v(3, 4), 0.5} << 40 << 30;
}

void LongsTest::senzaCambio() {
    QFETCH(QList<double>, draws);
    QFETCH(int, meta);
    QFETCH(int, termine1);
    ScriptedRandom rnd;
    for (double x : draws)
        rnd.queue(x);
    const Operazione o = OperazioneSenzaCambio(rnd);
    QCOMPARE(o.Meta, meta);
    QCOMPARE(o.Termine1, termine1);
    QCOMPARE(o.Termine2, meta - termine1);
    QCOMPARE(rnd.pending(), size_t(0));
}

void LongsTest::sorgenteBloccata_data() {
    QTest::addColumn<double>("x");
    QTest::newRow("meta 0") << 0.0;
    QTest::newRow("meta 11") << 0.15;
    QTest::newRow("first number 0 under 22") << 0.25;
}

// A source that never gives a fit draw ends on the fixed operation after a bounded number of draws.
void LongsTest::sorgenteBloccata() {
    QFETCH(double, x);
    FixedRandom rnd(x);
    const Operazione o = OperazioneSenzaCambio(rnd);
    QCOMPARE(o.Meta, kOperazioneDiRiserva.Meta);
    QCOMPARE(o.Termine1, kOperazioneDiRiserva.Termine1);
    QCOMPARE(o.Termine2, kOperazioneDiRiserva.Termine2);
    QVERIFY(rnd.calls < 20000);
}

// Seeded draws: no digit of the first number above the one of Meta; the free draw in its range
// also under the lowest limits.
void LongsTest::molteEstrazioni() {
    ScriptedRandom rnd(nullptr, 3);
    for (int i = 0; i < 5000; ++i) {
        const Operazione o = OperazioneSenzaCambio(rnd);
        QVERIFY(o.Termine1 >= 1 && o.Termine2 >= 1 && o.Termine1 + o.Termine2 == o.Meta);
        QVERIFY(o.Termine1 / 10 <= o.Meta / 10 && o.Termine1 % 10 <= o.Meta % 10);
    }
    for (int limite : {99, 20, 19}) {
        for (int i = 0; i < 2000; ++i) {
            const Operazione o = OperazioneLibera(rnd, limite);
            QVERIFY(o.Meta >= 19 && o.Meta <= std::max(limite - 1, 20));
            QVERIFY(o.Termine1 >= 5 && o.Termine2 >= 6 && o.Termine1 + o.Termine2 == o.Meta);
        }
    }
}

// 27 + 18: the first addend, the second, the change of 7 + 8 squares, a wrong and a right result.
void LongsTest::addizioneConCambio() {
    Harness h;
    apri(h, "FormGraf", {v(25, 79), v(22, 35)});
    QCOMPARE(h.caption("EtNumero"), " 27 +  18 =");
    QCOMPARE(h.caption("Label3"), "Forma il primo addendo");
    QVERIFY(!h.visible("Risultato") && !h.enabled("BotDecine2") && !h.enabled("Cambio"));
    clicca(h, "BotDecine1", 2);
    clicca(h, "BotUnita2"); // not yet: nothing
    QCOMPARE(visibili(h, "Unita2", 9), 0);
    h.sounds();
    clicca(h, "BotUnita1", 7);
    QCOMPARE(h.caption("Label3"), "Forma il secondo addendo");
    QCOMPARE(h.sounds(), QStringList{"suoni/si.wav"});
    QVERIFY(!h.enabled("BotDecine1") && h.enabled("BotDecine2"));
    clicca(h, "BotUnita2", 8);
    QVERIFY(h.sounds().isEmpty());
    clicca(h, "BotDecine2");
    QCOMPARE(h.caption("Label3"), "Ci sono almeno 10 unità.\r\nEsegui il cambio.");
    QCOMPARE(h.sounds(), QStringList{"suoni/si.wav"});
    QVERIFY(h.enabled("Cambio") && !h.visible("Risultato") && !h.enabled("BotUnita2"));

    clicca(h, "Cambio");
    QCOMPARE(visibili(h, "Unita1", 9), 0);
    QCOMPARE(visibili(h, "Unita2", 9), 5);
    QVERIFY(!h.visible("Unita2(2)") && h.visible("Unita2(3)") && h.visible("DecinaCambio"));
    QCOMPARE(h.caption("Label3"), kRisultato);
    QCOMPARE(h.dump().value("focus").toString(), "Risultato");
    QCOMPARE(campo(h, "NumeroUnita1") + campo(h, "NumeroUnita2"), 15);

    invio(h, "4 4");
    QCOMPARE(h.caption("EtichettaErrati"), " 1");
    QJsonArray seguito;
    for (const QJsonValue e : h.events())
        if (e.toObject()["event"] == "msgbox" || e.toObject()["event"] == "sound") seguito.append(e);
    QCOMPARE(seguito.size(), 3); // the wrong sound, the message, the wrong sound again
    QCOMPARE(seguito[0].toObject()["file"].toString(), "suoni/no.wav");
    QCOMPARE(seguito[1].toObject()["text"].toString(), "Controlla esattamente il risultato");
    QCOMPARE(seguito[1].toObject()["style"].toInt(), 16);
    QCOMPARE(seguito[2].toObject()["file"].toString(), "suoni/no.wav");
    QCOMPARE(h.text("Risultato"), "4 4");
    invio(h, "45");
    QCOMPARE(h.caption("EtichettaEsatti"), " 1");
    QVERIFY(h.visible("ComandoIconaSi") && !h.visible("ComandoIconaNo"));
    QVERIFY(!h.enabled("Risultato") && h.enabled("BottoneAvanti"));
    h.rnd({0.0, v(10, 79), v(3, 20)});
    clicca(h, "BottoneAvanti");
    QCOMPARE(h.caption("EtNumero"), " 8 +  22 =");
    QVERIFY(h.enabled("Risultato") && !h.visible("Risultato") && !h.visible("DecinaCambio"));
    QCOMPARE(h.caption("Label3"), "Forma il primo addendo");
}

// 20 + 15 without change: no units in the first addend, a row stopped at nine, letters, Enter held;
// without "avanti" the right result goes straight on.
void LongsTest::addizioneBordi() {
    Harness h;
    apri(h, "FormGraf1", {v(3, 10), v(5, 10), v(2, 3), 0.0}, false);
    QCOMPARE(h.caption("EtNumero"), " 20 +  15 =");
    clicca(h, "BotDecine1", 2); // the row is finished without a square
    QCOMPARE(h.caption("Label3"), "Forma il secondo addendo");
    clicca(h, "BotDecine2");
    clicca(h, "BotUnita2", 5);
    QCOMPARE(h.caption("Label3"), kRisultato); // 5 units in all: no change, straight to the result
    QVERIFY(h.visible("Risultato") && !h.dump().value("controls").toObject().contains("Cambio"));

    invio(h, "abc");
    QCOMPARE(h.caption("EtichettaErrati"), " 1");
    h.run(R"({"key": "Risultato", "code": 13, "repeat": 5})");
    QCOMPARE(h.caption("EtichettaErrati"), " 2");
    h.run(R"({"key": "Risultato", "code": 65})"); // any other key judges nothing
    QCOMPARE(h.caption("EtichettaErrati"), " 2");

    // Ricomincia keeps the question; a row past its number stays silent; nine is the most.
    clicca(h, "BottoneRicomincia");
    QCOMPARE(h.caption("Label3"), "Forma il primo numero in alto");
    QVERIFY(!h.visible("Risultato") && visibili(h, "Unita2", 9) == 0 && visibili(h, "Decina1", 9) == 0);
    h.sounds();
    clicca(h, "BotUnita1", 12);
    QCOMPARE(visibili(h, "Unita1", 9), 9);
    QCOMPARE(campo(h, "NumeroUnita1"), 9);
    QVERIFY(h.sounds().isEmpty() && h.events("msgbox").isEmpty());
    QCOMPARE(h.caption("Label3"), "Forma il primo numero in alto");

    clicca(h, "BottoneRicomincia");
    clicca(h, "BotDecine1", 2);
    clicca(h, "BotDecine2");
    clicca(h, "BotUnita2", 5);
    h.rnd({0.0, 0.0, v(4, 10), v(5, 10), v(1, 4), v(2, 5)});
    invio(h, "35");
    QCOMPARE(h.caption("EtichettaEsatti"), " 1");
    QCOMPARE(h.caption("EtNumero"), " 12 +  33 =");
    QVERIFY(h.enabled("Risultato") && !h.visible("Risultato"));
}

// 52 - 27: 5 longs and 2 squares, one long changed, 7 squares and 2 longs clicked away.
void LongsTest::sottrazioneConCambio() {
    Harness h;
    apri(h, "FormGrafMeno", {v(32, 79), v(22, 42)});
    QCOMPARE(h.caption("EtNumero"), " 52 -  27 =");
    QCOMPARE(h.caption("Label3"), "Forma il primo numero");
    clicca(h, "BotUnita1", 2);
    clicca(h, "Unita1(0)"); // not clickable while the number is built
    QCOMPARE(visibili(h, "Unita1", 9), 2);
    clicca(h, "BotDecine1", 5);
    QCOMPARE(h.caption("Label3"),
             "Non hai unità sufficienti. Premi il bottone cambio per cambiare una decina in unità.");
    QVERIFY(h.enabled("Cambio") && !h.enabled("BotDecine1") && !h.enabled("BotUnita1"));
    QCOMPARE(h.sounds(), (QStringList{"suoni/si.wav", "suoni/si.wav", "suoni/si.wav"}));

    clicca(h, "Cambio");
    QVERIFY(!h.visible("Decina1(4)") && h.visible("Decina1(3)") && !h.enabled("Cambio"));
    QCOMPARE(visibili(h, "Unita1", 9) + visibili(h, "Unita2", 10), 12);
    QCOMPARE(campo(h, "NumeroUnita"), 12);
    QCOMPARE(h.caption("Label3"), "Clicca con il mouse sulle sulle unità da eliminare.");
    clicca(h, "Decina1(0)"); // the longs wait their turn
    QCOMPARE(visibili(h, "Decina1", 9), 4);
    for (const char* s : {"Unita2(9)", "Unita1(0)", "Unita2(0)", "Unita2(4)", "Unita1(1)", "Unita2(1)"})
        clicca(h, s);
    clicca(h, "Unita2(0)"); // already gone
    QCOMPARE(campo(h, "NumeroUnita"), 6);
    clicca(h, "Unita2(2)");
    QCOMPARE(h.caption("Label3"), "Clicca con il mouse sulle sulle decine da eliminare.");
    QCOMPARE(visibili(h, "Unita1", 9) + visibili(h, "Unita2", 10), 5);
    QVERIFY(!h.enabled("Unita2(3)"));
    clicca(h, "Decina1(3)");
    clicca(h, "Decina1(0)");
    QCOMPARE(h.caption("Label3"), kRisultato);
    QVERIFY(h.visible("Risultato"));
    QCOMPARE(visibili(h, "Decina1", 9), 2);
    invio(h, "25");
    QCOMPARE(h.caption("EtichettaEsatti"), " 1");
    QVERIFY(h.events("msgbox").isEmpty());
}

void LongsTest::sottrazioneSenzaPassi_data() {
    QTest::addColumn<int>("termine1");
    QTest::addColumn<double>("decine"); // the draws of the tens and the units of Termine1
    QTest::addColumn<double>("unita");
    QTest::addColumn<QString>("dopoIlNumero"); // Label3 once 58 is built
    QTest::addColumn<QString>("clic");         // the shape clicked until the result opens
    QTest::addColumn<int>("volte");
    QTest::newRow("58 - 30: no units")
        << 30 << v(3, 5) << 0.0 << "Clicca con il mouse sulle sulle decine da eliminare."
        << "Decina1" << 3;
    QTest::newRow("58 - 3: no tens") << 3 << 0.0 << v(3, 8)
                                     << "Clicca con il mouse sulle sulle unità da eliminare."
                                     << "Unita1" << 3;
}

void LongsTest::sottrazioneSenzaPassi() {
    QFETCH(int, termine1);
    QFETCH(double, decine);
    QFETCH(double, unita);
    QFETCH(QString, dopoIlNumero);
    QFETCH(QString, clic);
    QFETCH(int, volte);
    Harness h;
    apri(h, "FormGrafMeno1", {v(5, 10), v(8, 10), decine, unita});
    clicca(h, "BotDecine1", 5);
    clicca(h, "BotUnita1", 8);
    QCOMPARE(h.caption("Label3"), dopoIlNumero);
    for (int i = 0; i < volte; ++i) {
        QVERIFY(!h.visible("Risultato"));
        clicca(h, QStringLiteral("%1(%2)").arg(clic).arg(i));
    }
    QCOMPARE(h.caption("Label3"), kRisultato);
    invio(h, QString::number(58 - termine1));
    QCOMPARE(h.caption("EtichettaEsatti"), " 1");
}

// Shapes enabled by an earlier step go still on Ricomincia, so the rebuilt number has no gaps.
void LongsTest::ricominciaSottrazione() {
    Harness h;
    apri(h, "FormGrafMeno1", {v(5, 10), v(8, 10), v(2, 5), v(3, 8)}); // 58 - 23
    clicca(h, "BotDecine1", 5);
    clicca(h, "BotUnita1", 8);
    clicca(h, "Unita1(7)");
    clicca(h, "BottoneRicomincia");
    QCOMPARE(h.caption("Label3"), "Forma il primo numero.");
    QCOMPARE(campo(h, "NumeroUnita"), 0);
    clicca(h, "BotUnita1", 3);
    clicca(h, "Unita1(1)");
    QCOMPARE(visibili(h, "Unita1", 9), 3);
    QCOMPARE(campo(h, "NumeroUnita"), 3);
}

void LongsTest::schermi_data() {
    QTest::addColumn<QString>("form");
    QTest::addColumn<int>("scheda");
    QTest::newRow("FormGraf") << "FormGraf" << 15;
    QTest::newRow("FormGraf1") << "FormGraf1" << 16;
    QTest::newRow("FormGrafMeno") << "FormGrafMeno" << 17;
    QTest::newRow("FormGrafMeno1") << "FormGrafMeno1" << 18;
}

// Each screen prints its own worksheet and comes back to a new question.
void LongsTest::schermi() {
    QFETCH(QString, form);
    QFETCH(int, scheda);
    Harness h;
    apri(h, form, {});
    clicca(h, "BotDecine1");
    h.run(R"({"menu": "mnuStampa"})");
    QCOMPARE(h.form(), "formStampa");
    QCOMPARE(h.global("NumeroScheda"), scheda);
    h.run(R"({"click": "BottoneEsci"})");
    QCOMPARE(h.form(), form);
    QVERIFY(h.caption("Label3").startsWith("Forma il primo"));
    QCOMPARE(visibili(h, "Decina1", 9), 0);
}

QTEST_MAIN(LongsTest)
#include "longs.moc"
