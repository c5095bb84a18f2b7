// Form99c, Form99c1, Form99d, Form99d1: additions and subtractions carried out on the abacus.

#include "graphics/abacus_ops.h"
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

// The screen opened straight after the start screen: a draw for each background, then the question's.
void apri(Harness& h, const QString& form, const QList<double>& draws) {
    h.rnd({0.0, 0.0});
    for (double x : draws)
        h.rnd({x});
    h.run(QStringLiteral(R"({"show": "%1"})").arg(form));
}

// Moves on the abacus, e.g. "+5d -2u C": n beads on (+) or off (-, ~ with the middle button) the
// tens (d) or units (u) wire, as each screen takes them: mouse buttons on Form99c and Form99c1, four
// buttons on Form99d; C is a click on "Cambio", K a click on Bot_da.
void muovi(Harness& h, const QString& mosse) {
    const bool somma = h.form().startsWith("Form99c");
    for (const QString& m : mosse.split(' ')) {
        const bool d = m.back() == 'd', click = m.size() == 1 || (!somma && m[0] != '~');
        QString bot = m == "C" ? "BottoneCambio" : m == "K" || d ? "Bot_da" : "Bot_u";
        if (!somma && m[0] == '-') bot = d ? "Command1" : "Command2";
        const QString cmd = click ? R"({"click": "@B"})" : R"({"mousedown": "@B", "button": @N})";
        for (int i = m.size() == 1 ? 1 : m.mid(1, m.size() - 2).toInt(); i > 0; --i)
            h.run(QString(cmd).replace("@B", bot).replace(
                "@N", QString::number(QString("+-_~").indexOf(m[0]) + 1)));
    }
}

// The screen in one line: the instruction; tens and units as counted; which unit beads show (1)
// up to the last one showing; Cambio when it can be pressed; the result box when it shows; the
// sounds since the last look.
QString stato(Harness& h) {
    const QJsonObject c = h.dump().value("controls").toObject();
    auto on = [&c](const QString& n, const char* key) { return c.value(n)[key].toBool(); };
    QString bits;
    for (int i = 0; c.contains(QStringLiteral("pal_u(%1)").arg(i)); ++i)
        bits += on(QStringLiteral("pal_u(%1)").arg(i), "visible") ? '1' : '0';
    while (bits.endsWith('0'))
        bits.chop(1);
    QStringList s{c.value("Label5")["caption"].toString(),
                  "da" + c.value("Label4")["caption"].toString() + " u" +
                      c.value("Label3")["caption"].toString(),
                  bits};
    if (on("BottoneCambio", "enabled")) s << "Cambio";
    if (on("Text1", "visible")) s << (on("Text1", "enabled") ? "Text1" : "Text1 off");
    for (const QString& f : h.sounds())
        s << f.section('/', -1);
    return s.join(" | ");
}

int campo(Harness& h, const char* name) {
    return h.dump().value("fields").toObject().value(name).toInt(-1);
}

} // namespace

class AbacusOpsTest : public QObject {
    Q_OBJECT
private slots:
    // Without change: Meta's digits D, U drawn again while unfit, then Termine1's d < D, u < U (a
    // source stuck on unfit values is the longs' test, the draw is the same). With change: Meta from
    // 10 to the limit less 2, Termine1 from 5.
    void draws_data() {
        QTest::addColumn<bool>("cambio");
        QTest::addColumn<QList<double>>("draws");
        QTest::addColumn<int>("meta");
        QTest::addColumn<int>("termine1");
        QTest::newRow("0, 1, 10, 11 drawn again")
            << false << QList<double>{0.0,      0.0,      0.0,      v(1, 10), v(1, 10), 0.0,
                                      v(1, 10), v(1, 10), v(3, 10), 0.0,      v(1, 3),  0.0}
            << 30 << 10;
        QTest::newRow("Termine1 0 drawn again")
            << false << QList<double>{0.0, v(5, 10), 0.0, 0.0, 0.0, v(4, 5)} << 5 << 4;
        QTest::newRow("stuck at the top") << false << QList<double>{0.999} << 99 << 88;
        QTest::newRow("change, lowest") << true << QList<double>{0.0} << 10 << 5;
        QTest::newRow("change, highest") << true << QList<double>{0.999} << 97 << 91;
    }
    void draws() {
        QFETCH(bool, cambio);
        QFETCH(QList<double>, draws);
        ScriptedRandom rnd;
        for (int i = 0; i < 200; ++i) // then stuck on the last one
            rnd.queue(draws.value(i, draws.back()));
        const Operazione op = cambio ? TiraConCambio(rnd, 99) : OperazioneSenzaCambio(rnd);
        QTEST(int(op.Meta), "meta");
        QTEST(int(op.Termine1), "termine1");
        QCOMPARE(op.Termine2, op.Meta - op.Termine1);
    }

    // 8 + 17 = 25: units 15, the change, then the result.
    void additionWithChange() {
        Harness h;
        apri(h, "Form99c", {v(15, 88), v(3, 15)});
        QCOMPARE(h.caption("EtichettaNumero"), " 8 +  17 = ");
        QCOMPARE(stato(h), "inserisci il numero  8 nell'abaco | da 0 u 0 |  | Cambio");
        muovi(h, "+9u -1u"); // 9 then back to 8
        QCOMPARE(stato(h), "aggiungi il numero  17 nell'abaco | da 0 u 8 | 11111111 | Cambio | si.wav");
        muovi(h, "+1d +7u");
        QCOMPARE(stato(h), "Esegui il cambio | da 1 u 15 | 111111111111111 | Cambio | si.wav");
        muovi(h, "C");
        QCOMPARE(stato(h), "Scrivi il risultato | da 2 u 5 | 11111 | Text1 | si.wav");
        muovi(h, "~1u"); // a bead off with the middle button, and back: the box opens anew
        h.run(R"({"settext": "Text1", "text": "2"})");
        muovi(h, "+1u");
        QCOMPARE(h.text("Text1"), "");
        h.rnd({0.0}); // the cheerful sound
        h.answer("Text1", "venticinque");
        h.answer("Text1", "25");
        QCOMPARE(std::pair(h.global("Esatti"), h.global("Errati")), std::pair(1, 1));
        QVERIFY(h.enabled("BottoneAvanti")); // a right result leaves the beads
        QCOMPARE(stato(h), "Scrivi il risultato | da 2 u 5 | 11111 | Text1 off | no.wav | si1.wav");
        h.rnd({0.0, v(80, 88), v(0, 80)}); // the next question on a bare abacus, the change ready
        h.run(R"({"click": "BottoneAvanti"})");
        QCOMPARE(stato(h), "inserisci il numero  5 nell'abaco | da 0 u 0 |  | Cambio");
        QCOMPARE(campo(h, "Fase"), 1);
    }

    // 52 - 27 = 25: a ten changed, then 2 tens and 7 units taken off.
    void subtractionWithChange() {
        Harness h;
        apri(h, "Form99d", {v(42, 88), v(20, 42)});
        QCOMPARE(h.caption("EtichettaNumero"), " 52 -  27 = ");
        QCOMPARE(stato(h), "inserisci il numero  52 premendo i bottoni +da  e +u | da 0 u 0 |  | Cambio");
        muovi(h, "+5d +2u");
        QCOMPARE(stato(h), "togli il numero  27 con i bottoni  -da  e -u. Esegui il cambio se necessario | "
                           "da 5 u 2 | 11 | Cambio | si.wav");
        muovi(h, "C");
        QVERIFY(stato(h).endsWith("| da 4 u 12 | 111111111111")); // silent, Cambio spent
        muovi(h, "-2d -7u");
        QCOMPARE(stato(h), "scrivi il risultato | da 2 u 5 | 11111 | Text1 | si.wav");
        h.rnd({0.0}); // the cheerful sound
        h.answer("Text1", "");
        h.answer("Text1", "25");
        QCOMPARE(std::pair(h.global("Esatti"), h.global("Errati")), std::pair(1, 1));
        h.run(R"({"click": "Bot_ricomincia"})"); // in the wait: the box keeps its text, disabled
        QCOMPARE(stato(h), "inserisci il numero  52 premendo i bottoni +da  e +u | da 0 u 0 |  | Cambio | "
                           "Text1 off | no.wav | si1.wav");
        QCOMPARE(h.text("Text1"), "25");
        // the same question again, without the change: 3 tens off, 3 units on; the box opens anew
        muovi(h, "+5d +2u -3d +3u");
        QCOMPARE(stato(h), "scrivi il risultato | da 2 u 5 | 11111 | Cambio | Text1 off | si.wav | si.wav");
        QCOMPARE(h.text("Text1"), "");
        h.rnd({0.0, v(80, 88), v(0, 80)}); // the next question on a bare abacus, the box usable
        h.run(R"({"click": "BottoneAvanti"})");
        QCOMPARE(stato(h), "inserisci il numero  90 premendo i bottoni +da  e +u | da 0 u 0 |  | Cambio");
        QVERIFY(h.enabled("Text1"));
    }

    // What the moves leave, counted and on the wires: a change refused counts wrong and leaves the
    // button there; the wires stop at their last bead and at none; a click threads nothing.
    void moves_data() {
        QTest::addColumn<QString>("form");
        QTest::addColumn<QString>("mosse");
        QTest::addColumn<int>("decine");
        QTest::addColumn<int>("unita");
        QTest::addColumn<int>("errati");
        auto row = [](const char* name, const char* form, const char* mosse, int d, int u, int e) {
            QTest::newRow(name) << QString(form) << QString(mosse) << d << u << e;
        };
        row("add, bare abacus", "Form99c", "C", 0, 0, 1);
        row("add, 9 units", "Form99c", "+3d +9u C", 3, 9, 1);
        row("add, nine tens up", "Form99c", "+9d +12u C", 9, 12, 1);
        row("take, no ten", "Form99d", "+5u C", 0, 5, 1);
        row("take, 10 units", "Form99d", "+2d +10u C", 2, 10, 1);
        row("add, 19 units at most", "Form99c", "-1d +25u K", 0, 19, 0);
        row("add, 9 units without change", "Form99c1", "-1d +25u K", 0, 9, 0);
    }
    void moves() {
        QFETCH(QString, form);
        QFETCH(QString, mosse);
        QFETCH(int, errati);
        Harness h;
        apri(h, form, {v(80, 88), v(0, 80), 0.5, 0.5, 0.5, 0.5}); // 90 = 5 + 85: no step on the way
        muovi(h, mosse);
        QTEST(campo(h, "NumeroDecine"), "decine");
        QTEST(campo(h, "NumeroUnita"), "unita");
        QCOMPARE(h.global("Errati"), errati);
        if (errati) QVERIFY(h.visible("ComandoIconaNo") && h.enabled("BottoneCambio"));
    }

    // An addition with no change due passes the change step in the same click.
    void noChangeDueSkipsTheStep() {
        Harness h;
        apri(h, "Form99c1", {v(4, 10), v(7, 10), v(2, 4), v(3, 7)});
        QCOMPARE(h.caption("EtichettaNumero"), " 23 +  24 = ");
        muovi(h, "+2d +3u +2d +4u");
        QCOMPARE(stato(h), "Scrivi il risultato | da 4 u 7 | 1111111 | Text1 | si.wav | si.wav | si.wav");
    }

    void worksheetNumbers() {
        for (const auto& [form, scheda] :
             {std::pair{"Form99c", 15}, {"Form99c1", 16}, {"Form99d", 17}, {"Form99d1", 18}}) {
            Harness h;
            apri(h, form, {});
            h.run(R"({"menu": "mnuStampa"})");
            QCOMPARE(h.form() + QString::number(h.global("NumeroScheda")),
                     "formStampa" + QString::number(scheda));
        }
    }
};

QTEST_MAIN(AbacusOpsTest)
#include "abacus_ops.moc"
