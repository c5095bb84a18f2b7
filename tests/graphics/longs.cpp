// FormGraf, FormGraf1, FormGrafMeno, FormGrafMeno1: additions and subtractions with longs and
// squares, the change in both directions, and the draws that must never hang.

#include "graphics/longs.h"
#include "core/scripted.h"
#include "support/harness.h"

#include <QTest>

#include <array>

using namespace contarello;
using contarello::test::Harness;

namespace {

// The draw that gives k from Int(Rnd * n).
double v(int k, int n) {
    return (k + 0.5) / n;
}

QString testo(const Operazione& o) {
    return QStringLiteral("%1 = %2 + %3").arg(o.Meta).arg(o.Termine1).arg(o.Termine2);
}

// The screen opened straight after the start screen, whose colour takes the first draw; then the
// screen's colour and its draws.
void apri(Harness& h, const QString& form, const QList<double>& draws, bool avanti = true) {
    h.rnd({0.0});
    h.dump();
    h.engine.program().g.AttendiBottone = avanti ? -1 : 0;
    h.rnd({0.0});
    for (double x : draws)
        h.rnd({x});
    h.run(QStringLiteral(R"({"show": "%1"})").arg(form));
}

// The screen in one line: the instruction; for each row of shapes, which show (1) and which don't
// (0) up to the last one showing; the change's long; the live buttons; the result box when it shows;
// then the sounds and messages since the last look.
QString stato(Harness& h) {
    const QJsonObject c = h.dump().value("controls").toObject();
    auto on = [&c](const QString& n, const char* key) { return c.value(n).toObject().value(key).toBool(); };
    QStringList s{c.value("Label3").toObject().value("caption").toString()};
    for (const QString row : {"Decina1", "Unita1", "Decina2", "Unita2"}) {
        QString bits;
        for (int i = 0; i < 10; ++i)
            bits += on(QStringLiteral("%1(%2)").arg(row).arg(i), "visible") ? '1' : '0';
        while (bits.endsWith('0'))
            bits.chop(1);
        if (!bits.isEmpty()) s << row + ' ' + bits;
    }
    if (on("DecinaCambio", "visible")) s << "DecinaCambio";
    for (const QString b : {"BotDecine1", "BotUnita1", "BotDecine2", "BotUnita2", "Cambio"})
        if (on(b, "enabled")) s << b;
    if (on("Risultato", "visible")) s << (on("Risultato", "enabled") ? "Risultato" : "Risultato off");
    for (const QJsonValue e : h.events()) {
        const QJsonObject o = e.toObject();
        if (o["event"] == "sound") s << o["file"].toString().section('/', -1);
        if (o["event"] == "msgbox") s << o["text"].toString() + ' ' + QString::number(o["style"].toInt());
    }
    return s.join(" | ");
}

// Clicks, e.g. "BotDecine1*2 Unita2(0)", then the screen in one line.
QString dopo(Harness& h, const QString& clic) {
    for (const QString& c : clic.split(' '))
        for (int i = std::max(1, c.section('*', 1).toInt()); i > 0; --i)
            h.run(QStringLiteral(R"({"click": "%1"})").arg(c.section('*', 0, 0)));
    return stato(h);
}

const QString kPrimoAddendo = QStringLiteral("Forma il primo addendo | BotDecine1 | BotUnita1");

} // namespace

class LongsTest : public QObject {
    Q_OBJECT
private slots:
    // The draws of an operation without change; a source stuck on an unfit draw (Meta 0, Meta 11, a
    // first number 0 under 22) ends on the fixed operation, well before its draws run out.
    void senzaCambio_data() {
        QTest::addColumn<QList<double>>("draws");
        QTest::addColumn<QString>("operazione");
        QTest::newRow("first try") << QList<double>{v(5, 10), v(8, 10), v(2, 5), v(3, 8)} << "58 = 23 + 35";
        // 0, 1, 10 and 11 are drawn again before any first number is tried; then 52 with 0 tried once.
        QTest::newRow("unfit meta, then a zero")
            << QList<double>{0.0,      0.0,      0.0,      v(1, 10), v(1, 10), 0.0,     v(1, 10),
                             v(1, 10), v(5, 10), v(2, 10), 0.0,      0.0,      v(2, 5), v(1, 2)}
            << "52 = 21 + 31";
        QTest::newRow("no units") << QList<double>{v(4, 10), 0.0, v(3, 4), 0.5} << "40 = 30 + 10";
        for (double x : {0.0, 0.15, 0.25})
            QTest::addRow("stuck on %g", x) << QList<double>(20000, x) << testo(kOperazioneDiRiserva);
    }
    void senzaCambio() {
        QFETCH(QList<double>, draws);
        ScriptedRandom rnd;
        for (double x : draws)
            rnd.queue(x);
        QTEST(testo(OperazioneSenzaCambio(rnd)), "operazione");
        QCOMPARE(rnd.pending() == 0, draws.size() < 20000);
    }

    // Seeded draws: no digit of the first number above the one of Meta; the free draw in its range,
    // also under the lowest limits.
    void molteEstrazioni() {
        ScriptedRandom rnd(nullptr, 3);
        for (int i = 0; i < 6000; ++i) {
            const Operazione o = OperazioneSenzaCambio(rnd);
            QVERIFY(o.Termine1 >= 1 && o.Termine2 >= 1 && o.Termine1 + o.Termine2 == o.Meta);
            QVERIFY(o.Termine1 / 10 <= o.Meta / 10 && o.Termine1 % 10 <= o.Meta % 10);
            const int limite = std::array{99, 20, 19}[i % 3];
            const Operazione l = OperazioneLibera(rnd, limite);
            QVERIFY(l.Meta >= 19 && l.Meta <= std::max(limite - 1, 20));
            QVERIFY(l.Termine1 >= 5 && l.Termine2 >= 6 && l.Termine1 + l.Termine2 == l.Meta);
        }
    }

    // 27 + 18: the first addend, the second, the change of 7 + 8 squares, a wrong and a right result.
    void addizioneConCambio() {
        Harness h;
        apri(h, "FormGraf", {v(25, 79), v(22, 35)});
        QCOMPARE(h.caption("EtNumero"), " 27 +  18 =");
        QCOMPARE(stato(h), kPrimoAddendo);
        QCOMPARE(dopo(h, "BotDecine1*2 BotUnita2 BotUnita1*7"), // the second row not yet
                 "Forma il secondo addendo | Decina1 11 | Unita1 1111111 | BotDecine2 | BotUnita2 | si.wav");
        QCOMPARE(dopo(h, "BotUnita2*8 BotDecine2"),
                 "Ci sono almeno 10 unità.\r\nEsegui il cambio. | Decina1 11 | "
                 "Unita1 1111111 | Decina2 1 | Unita2 11111111 | Cambio | si.wav");
        // All 7 squares of the first row and the first 3 of the second go; the counters stay.
        QCOMPARE(dopo(h, "Cambio"), "Inserisci il risultato. | Decina1 11 | Decina2 1 | Unita2 00011111 | "
                                    "DecinaCambio | Cambio | Risultato");
        QCOMPARE(h.dump().value("focus").toString(), "Risultato");
        h.answer("Risultato", "4 4");
        QVERIFY(stato(h).endsWith("Risultato | no.wav | Controlla esattamente il risultato 16 | no.wav"));
        QCOMPARE(h.text("Risultato"), "4 4");
        h.answer("Risultato", "45");
        QCOMPARE(std::pair(h.global("Esatti"), h.global("Errati")), std::pair(1, 1));
        QVERIFY(stato(h).contains("Risultato off") && h.enabled("BottoneAvanti"));
        h.rnd({0.0, v(10, 79), v(3, 20)});
        QCOMPARE(dopo(h, "BottoneAvanti"), kPrimoAddendo);
        QVERIFY(h.caption("EtNumero") == " 8 +  22 =" && h.enabled("Risultato"));
    }

    // 20 + 15 without change: no units in the first addend, letters, other keys; without "avanti" the
    // right result goes straight on. Then a row stopped at nine, silent past its number, and Ricomincia.
    void addizioneBordi() {
        Harness h;
        apri(h, "FormGraf1", {v(3, 10), v(5, 10), v(2, 3), 0.0}, false);
        QCOMPARE(h.caption("EtNumero"), " 20 +  15 =");
        QCOMPARE(dopo(h, "BotDecine1*2"), // the row is finished without a square
                 "Forma il secondo addendo | Decina1 11 | BotDecine2 | BotUnita2 | si.wav");
        QCOMPARE(dopo(h, "BotDecine2 BotUnita2*5"), // 5 units in all: no change
                 "Inserisci il risultato. | Decina1 11 | Decina2 1 | Unita2 11111 | Risultato | si.wav");
        h.answer("Risultato", "abc");
        h.run(R"({"key": "Risultato", "code": 65})"); // any other key judges nothing
        QCOMPARE(h.global("Errati"), 1);
        h.events();
        h.rnd({0.0, 0.0, v(4, 10), v(5, 10), v(1, 4), v(2, 5)});
        h.answer("Risultato", "35");
        QVERIFY(h.global("Esatti") == 1 && h.caption("EtNumero") == " 12 +  33 =" && h.enabled("Risultato"));
        QCOMPARE(stato(h), kPrimoAddendo + " | si1.wav");
        QCOMPARE(dopo(h, "BotUnita1*12"),
                 "Forma il primo addendo | Unita1 111111111 | BotDecine1 | BotUnita1");
        QCOMPARE(dopo(h, "BottoneRicomincia"), "Forma il primo numero in alto | BotDecine1 | BotUnita1");
        QCOMPARE(h.caption("EtNumero"), " 12 +  33 =");
    }

    // 52 - 27: 5 longs and 2 squares, one long changed, 7 squares and 2 longs clicked away.
    void sottrazioneConCambio() {
        Harness h;
        apri(h, "FormGrafMeno", {v(32, 79), v(22, 42)});
        QCOMPARE(h.caption("EtNumero"), " 52 -  27 =");
        QCOMPARE(stato(h), "Forma il primo numero | BotDecine1 | BotUnita1");
        QCOMPARE(
            dopo(h, "BotUnita1*2 Unita1(0) BotDecine1*5"), // no square clicked away while the number is built
            "Non hai unità sufficienti. Premi il bottone cambio per cambiare una decina in unità. | "
            "Decina1 11111 | Unita1 11 | Cambio | si.wav | si.wav | si.wav");
        QCOMPARE(dopo(h, "Cambio"), "Clicca con il mouse sulle unità da eliminare. | Decina1 1111 | "
                                    "Unita1 11 | Unita2 1111111111 | si.wav");
        // the longs wait their turn; the last square clicked is already gone
        QCOMPARE(
            dopo(
                h,
                "Decina1(0) Unita2(9) Unita1(0) Unita2(0) Unita2(4) Unita1(1) Unita2(1) Unita2(0) Unita2(2)"),
            "Clicca con il mouse sulle decine da eliminare. | Decina1 1111 | "
            "Unita2 000101111 | si.wav | si.wav");
        QCOMPARE(dopo(h, "Unita2(3) Decina1(3) Decina1(0)"), // the squares are still now
                 "Inserisci il risultato. | Decina1 011 | Unita2 000101111 | Risultato | si.wav");
        h.answer("Risultato", "25");
        QVERIFY(h.global("Esatti") == 1 && h.events("msgbox").isEmpty());
    }

    // Steps with nothing to do are passed at once: 58 - 30 takes no unit, 58 - 3 no long; the result
    // opens on the third click. Ricomincia midway leaves the shapes still while the number is rebuilt.
    void sottrazioneSenzaPassi_data() {
        QTest::addColumn<QList<double>>("draws"); // the tens and the units of Termine1
        QTest::addColumn<QString>("clic");        // the shapes clicked away
        QTest::addColumn<QString>("passo");
        QTest::addColumn<QString>("risultato");
        QTest::newRow("58 - 30: no units") << QList<double>{v(3, 5), 0.0} << QString("Decina1") << "decine"
                                           << "28";
        QTest::newRow("58 - 3: no tens") << QList<double>{0.0, v(3, 8)} << QString("Unita1") << "unità"
                                         << "55";
    }
    void sottrazioneSenzaPassi() {
        QFETCH(QList<double>, draws);
        QFETCH(QString, clic);
        QFETCH(QString, passo);
        Harness h;
        apri(h, "FormGrafMeno1", QList<double>{v(5, 10), v(8, 10)} + draws);
        dopo(h, "BotDecine1*5 BotUnita1*8 " + clic + "(0)");
        QCOMPARE(dopo(h, "BottoneRicomincia"), "Forma il primo numero. | BotDecine1 | BotUnita1");
        QCOMPARE(dopo(h, QStringLiteral("BotDecine1*5 BotUnita1 %1(0) BotUnita1*7").arg(clic))
                     .section(" | ", 1, 2),
                 "Decina1 11111 | Unita1 11111111"); // the shape clicked while the number is built stays
        QCOMPARE(dopo(h, QStringLiteral("%1(0) %1(1)").arg(clic)).section(" | ", 0, 0),
                 QStringLiteral("Clicca con il mouse sulle %1 da eliminare.").arg(passo));
        QCOMPARE(dopo(h, clic + "(2)").section(" | ", 0, 0), "Inserisci il risultato.");
        QFETCH(QString, risultato);
        h.answer("Risultato", risultato);
        QCOMPARE(h.global("Esatti"), 1);
    }

    // Each screen prints its own worksheet and comes back to a new question.
    void schede() {
        int scheda = 15;
        for (const QString form : {"FormGraf", "FormGraf1", "FormGrafMeno", "FormGrafMeno1"}) {
            Harness h;
            apri(h, form, {});
            dopo(h, "BotDecine1");
            h.run(R"({"menu": "mnuStampa"})");
            QCOMPARE(h.global("NumeroScheda"), scheda++);
            h.run(R"({"click": "BottoneEsci"})");
            QVERIFY(h.form() == form && stato(h).startsWith("Forma il primo") && !h.visible("Decina1(0)"));
        }
    }
};

QTEST_MAIN(LongsTest)
#include "longs.moc"
