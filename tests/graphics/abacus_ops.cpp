// Form99c, Form99c1, Form99d, Form99d1: additions and subtractions carried out on the abacus.

#include "graphics/abacus_ops.h"
#include "core/services.h"
#include "support/harness.h"

#include <QTest>

using namespace contarello;
using contarello::test::Harness;

namespace {

// The draw that gives k from Int(Rnd * n).
double v(int k, int n) {
    return (k + 0.5) / n;
}

// A generator that gives its values in turn, then stays on the last one for ever.
class Sequenza : public Random {
public:
    explicit Sequenza(QList<double> x) : x_(std::move(x)) {}
    double Rnd() override { return x_.at(std::min<qsizetype>(i_++, x_.size() - 1)); }
    void Randomize() override {}

private:
    QList<double> x_;
    qsizetype i_ = 0;
};

// The screen opened straight after the start screen: a draw for each background, then the question's.
void apri(Harness& h, const QString& form, const QList<double>& draws) {
    QJsonArray a{0.0, 0.0};
    for (double x : draws)
        a.append(x);
    h.engine.execute({{"rnd", a}});
    h.run(QStringLiteral(R"({"show": "%1"})").arg(form));
}

// Moves on the abacus, e.g. "+5d -2u C": n beads on (+) or off (-, ~ with the middle button) the
// tens (d) or units (u) wire, as each screen takes them: mouse buttons on Form99c and Form99c1, four
// buttons on Form99d; C is a click on "Cambio".
void muovi(Harness& h, const QString& mosse) {
    const bool somma = h.form().startsWith("Form99c");
    for (const QString& m : mosse.split(' ')) {
        const bool su = m[0] == '+', decine = m.back() == 'd';
        QString cmd = QStringLiteral(R"({"click": "%1"})")
                          .arg(m == "C"      ? "BottoneCambio"
                               : su || somma ? (decine ? "Bot_da" : "Bot_u")
                                             : (decine ? "Command1" : "Command2"));
        if (somma && m != "C")
            cmd = QStringLiteral(R"({"mousedown": "%1", "button": %2})")
                      .arg(decine ? "Bot_da" : "Bot_u")
                      .arg(su            ? 1
                           : m[0] == '~' ? 4
                                         : 2);
        for (int i = m == "C" ? 1 : m.mid(1, m.size() - 2).toInt(); i > 0; --i)
            h.run(cmd);
    }
}

int campo(Harness& h, const char* name) {
    return h.dump().value("fields").toObject().value(name).toInt(-1);
}

// Which unit beads show, as a string of 0 and 1 from index 0 up.
QString unita(Harness& h) {
    const QJsonObject c = h.dump().value("controls").toObject();
    QString s;
    for (int i = 0; c.contains(QStringLiteral("pal_u(%1)").arg(i)); ++i)
        s += c.value(QStringLiteral("pal_u(%1)").arg(i)).toObject().value("visible").toBool() ? '1' : '0';
    return s;
}

const QString kSi = QStringLiteral("suoni/si.wav");

} // namespace

class AbacusOpsTest : public QObject {
    Q_OBJECT
private slots:
    // Without change: Meta's digits D, U drawn again while unfit, then Termine1's d < D, u < U.
    // A generator stuck on unfit values still ends the draw, with digits that fit.
    void senzaCambioDraws_data() {
        QTest::addColumn<QList<double>>("draws");
        QTest::addColumn<int>("meta");
        QTest::addColumn<int>("termine1");
        QTest::newRow("0, 1, 10, 11 drawn again")
            << QList<double>{0.0,      0.0,      0.0,      v(1, 10), v(1, 10), 0.0,
                             v(1, 10), v(1, 10), v(3, 10), 0.0,      v(1, 3),  0.0}
            << 30 << 10;
        QTest::newRow("Termine1 0 drawn again")
            << QList<double>{0.0, v(5, 10), 0.0, 0.0, 0.0, v(4, 5)} << 5 << 4;
        QTest::newRow("stuck on 11") << QList<double>{0.15} << 25 << 10;
        QTest::newRow("stuck on 22, Termine1 0") << QList<double>{0.22} << 22 << 10;
        QTest::newRow("stuck at the top") << QList<double>{0.999} << 99 << 88;
    }
    void senzaCambioDraws() {
        QFETCH(QList<double>, draws);
        QFETCH(int, meta);
        QFETCH(int, termine1);
        Sequenza rnd(draws);
        const OperazioneAbaco op = TiraSenzaCambio(rnd);
        QCOMPARE(std::pair(int(op.Meta), int(op.Termine1)), std::pair(meta, termine1));
        QCOMPARE(int(op.Termine2), meta - termine1);
    }

    void conCambioDraws() {
        Sequenza low({0.0}), high({0.999});
        const OperazioneAbaco a = TiraConCambio(low, 99), b = TiraConCambio(high, 99);
        QCOMPARE(std::pair(int(a.Meta), int(a.Termine1)), std::pair(10, 5));
        QCOMPARE(std::pair(int(b.Meta), int(b.Termine1)), std::pair(97, 91));
    }

    // 8 + 17 = 25: units 15, the change, then the result.
    void additionWithChange() {
        Harness h;
        apri(h, "Form99c", {v(15, 88), v(3, 15)});
        QCOMPARE(h.caption("EtichettaNumero"), " 8 +  17 = ");
        QCOMPARE(h.caption("Label5"), "inserisci il numero  8 nell'abaco");
        muovi(h, "+9u -1u"); // 9 then back to 8
        QCOMPARE(h.caption("Label5"), "aggiungi il numero  17 nell'abaco");
        QCOMPARE(h.sounds(), QStringList{kSi});
        muovi(h, "+1d +7u");
        QCOMPARE(h.caption("Label5"), "Esegui il cambio");
        QCOMPARE(unita(h), "1111111111111110000");
        QVERIFY(!h.visible("Text1"));
        muovi(h, "C");
        QCOMPARE(h.caption("Label5"), "Scrivi il risultato");
        QCOMPARE(unita(h), "1111100000000000000");
        QCOMPARE(std::pair(h.caption("Label3"), h.caption("Label4")),
                 std::pair(QString(" 5"), QString(" 2")));
        QVERIFY(h.visible("pal_da(1)") && !h.enabled("BottoneCambio") && h.visible("Text1"));
        QCOMPARE(h.sounds().size(), 2);
        muovi(h, "~1u"); // a bead off with the middle button, and back: the box opens anew
        h.run(R"({"settext": "Text1", "text": "2"})");
        muovi(h, "+1u");
        QCOMPARE(h.text("Text1"), "");
        h.answer("Text1", "venticinque");
        h.answer("Text1", "25");
        QCOMPARE(std::pair(h.global("Esatti"), h.global("Errati")), std::pair(1, 1));
        QVERIFY(h.enabled("BottoneAvanti") && !h.enabled("Text1"));
        QCOMPARE(unita(h), "1111100000000000000"); // a right result leaves the beads
    }

    // 52 - 27 = 25: a ten changed, then 2 tens and 7 units taken off.
    void subtractionWithChange() {
        Harness h;
        apri(h, "Form99d", {v(42, 88), v(20, 42)});
        QCOMPARE(h.caption("EtichettaNumero"), " 52 -  27 = ");
        QCOMPARE(h.caption("Label5"), "inserisci il numero  52 premendo i bottoni +da  e +u");
        muovi(h, "+5d +2u");
        QCOMPARE(h.caption("Label5"),
                 "togli il numero  27 con i bottoni  -da  e -u. Esegui il cambio se necessario");
        QCOMPARE(h.sounds(), QStringList{kSi});
        muovi(h, "C");
        QCOMPARE(std::pair(h.caption("Label3"), h.caption("Label4")),
                 std::pair(QString(" 12"), QString(" 4")));
        QCOMPARE(unita(h), "1111111111110000000");
        QVERIFY(!h.visible("pal_da(4)") && !h.enabled("BottoneCambio") && h.sounds().isEmpty());
        muovi(h, "-2d -7u");
        QCOMPARE(h.caption("Label5"), "scrivi il risultato");
        QVERIFY(h.visible("Text1"));
        QCOMPARE(h.sounds(), QStringList{kSi});
        h.answer("Text1", "");
        h.answer("Text1", "25");
        QCOMPARE(std::pair(h.global("Esatti"), h.global("Errati")), std::pair(1, 1));
        h.run(R"({"click": "Bot_ricomincia"})"); // in the wait: the box keeps its text, disabled
        QVERIFY(h.visible("Text1") && !h.enabled("Text1") && h.enabled("BottoneAvanti"));
        QCOMPARE(h.text("Text1"), "25");
        // the same question again, without the change: 3 tens off, 3 units on
        muovi(h, "+5d +2u -3d +3u");
        QVERIFY(h.text("Text1").isEmpty() && h.enabled("BottoneCambio")); // the box opened anew
    }

    // A change refused: counted wrong, the beads as they were, the button still there.
    void wrongChanges_data() {
        QTest::addColumn<QString>("form");
        QTest::addColumn<int>("decine");
        QTest::addColumn<int>("unita");
        QTest::newRow("add, bare abacus") << "Form99c" << 0 << 0;
        QTest::newRow("add, 9 units") << "Form99c" << 3 << 9;
        QTest::newRow("add, nine tens up") << "Form99c" << 9 << 12;
        QTest::newRow("take, no ten") << "Form99d" << 0 << 5;
        QTest::newRow("take, 10 units") << "Form99d" << 2 << 10;
    }
    void wrongChanges() {
        QFETCH(QString, form);
        QFETCH(int, decine);
        QFETCH(int, unita);
        Harness h;
        apri(h, form, {v(80, 88), v(0, 80)}); // 90 = 5 + 85: no step is reached on the way
        muovi(h, QStringLiteral("+%1d +%2u C").arg(decine).arg(unita));
        QCOMPARE(h.global("Errati"), 1);
        QVERIFY(h.visible("ComandoIconaNo") && h.enabled("BottoneCambio"));
        QCOMPARE(std::pair(campo(h, "NumeroDecine"), campo(h, "NumeroUnita")), std::pair(decine, unita));
    }

    // The wires stop at their last bead and at none; the keyboard threads nothing on Form99c.
    void limits_data() {
        QTest::addColumn<QString>("form");
        QTest::addColumn<int>("most");
        QTest::newRow("Form99c") << "Form99c" << 19;
        QTest::newRow("Form99c1") << "Form99c1" << 9;
    }
    void limits() {
        QFETCH(QString, form);
        QFETCH(int, most);
        Harness h;
        apri(h, form, {v(80, 88), v(0, 80), v(9, 10), v(9, 10), v(8, 9), v(8, 9)});
        muovi(h, "-1d +25u");
        h.run(R"({"click": "Bot_da"})");
        QCOMPARE(std::pair(campo(h, "NumeroDecine"), campo(h, "NumeroUnita")), std::pair(0, most));
        QCOMPARE(h.global("Errati"), 0);
    }

    // An addition with no change due passes the change step in the same click.
    void noChangeDueSkipsTheStep() {
        Harness h;
        apri(h, "Form99c1", {v(4, 10), v(7, 10), v(2, 4), v(3, 7)});
        QCOMPARE(h.caption("EtichettaNumero"), " 23 +  24 = ");
        muovi(h, "+2d +3u");
        h.sounds();
        muovi(h, "+2d +4u");
        QCOMPARE(h.caption("Label5"), "Scrivi il risultato");
        QCOMPARE(h.sounds().size(), 2);
        QVERIFY(h.visible("Text1"));
    }

    // With "avanti" hidden a right result brings the next question at once (52 - 27 = 25), the box
    // closed and usable, the abacus bare, the change ready.
    void withoutAvanti_data() {
        QTest::addColumn<QString>("form");
        QTest::addColumn<QString>("mosse");
        QTest::addColumn<QString>("risultato");
        QTest::newRow("Form99c") << "Form99c"
                                 << "+5u +8d +5u C"
                                 << "90";
        QTest::newRow("Form99d") << "Form99d"
                                 << "+9d -9d +5u"
                                 << "5";
    }
    void withoutAvanti() {
        QFETCH(QString, form);
        QFETCH(QString, mosse);
        QFETCH(QString, risultato);
        Harness h;
        h.run(R"({"show": "FormMenu"})");
        h.run(R"J({"click": "Option1(0)"})J");
        h.rnd({0.0, v(80, 88), v(0, 80), 0.0, v(42, 88), v(20, 42)});
        h.run(QStringLiteral(R"({"show": "%1"})").arg(form));
        muovi(h, mosse);
        h.answer("Text1", risultato);
        QCOMPARE(h.global("Meta"), 52);
        QVERIFY(!h.visible("Text1") && h.enabled("Text1") && !h.visible("BottoneAvanti"));
        QVERIFY(h.enabled("BottoneCambio"));
        QCOMPARE(campo(h, "Fase"), 1);
        QCOMPARE(unita(h), QString(19, '0'));
    }

    void worksheetNumbers() {
        const QList<std::pair<QString, int>> schede{
            {"Form99c", 15}, {"Form99c1", 16}, {"Form99d", 17}, {"Form99d1", 18}};
        for (const auto& [form, scheda] : schede) {
            Harness h;
            apri(h, form, {});
            h.run(R"({"menu": "mnuStampa"})");
            QCOMPARE(h.form(), "formStampa");
            QCOMPARE(h.global("NumeroScheda"), scheda);
        }
    }
};

QTEST_MAIN(AbacusOpsTest)
#include "abacus_ops.moc"
