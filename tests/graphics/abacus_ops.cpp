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

// A generator stuck on one value.
class Fisso : public Random {
public:
    explicit Fisso(double x) : x_(x) {}
    double Rnd() override { return x_; }
    void Randomize() override {}

private:
    double x_;
};

// The screen opened straight after the start screen: a draw for each background, then the question's.
void apri(Harness& h, const QString& form, const QList<double>& draws) {
    QJsonArray a{0.0, 0.0};
    for (double x : draws)
        a.append(x);
    h.engine.execute({{"rnd", a}});
    h.run(QStringLiteral(R"({"show": "%1"})").arg(form));
}

void premi(Harness& h, const QString& control, int volte, int button = 1) {
    for (int i = 0; i < volte; ++i)
        h.run(QStringLiteral(R"({"mousedown": "%1", "button": %2})").arg(control).arg(button));
}

void clicca(Harness& h, const QString& control, int volte = 1) {
    for (int i = 0; i < volte; ++i)
        h.run(QStringLiteral(R"({"click": "%1"})").arg(control));
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
    void senzaCambioDraws_data() {
        QTest::addColumn<QList<double>>("draws");
        QTest::addColumn<int>("meta");
        QTest::addColumn<int>("termine1");
        QTest::newRow("plain") << QList<double>{v(4, 10), v(7, 10), v(2, 4), v(3, 7)} << 47 << 23;
        QTest::newRow("0, 1, 10, 11 drawn again")
            << QList<double>{0.0,      0.0,      0.0,      v(1, 10), v(1, 10), 0.0,
                             v(1, 10), v(1, 10), v(3, 10), 0.0,      v(1, 3),  0.0}
            << 30 << 10;
        QTest::newRow("Termine1 0 drawn again")
            << QList<double>{0.0, v(5, 10), 0.0, 0.0, 0.0, v(4, 5)} << 5 << 4;
    }
    void senzaCambioDraws() {
        QFETCH(QList<double>, draws);
        QFETCH(int, meta);
        QFETCH(int, termine1);
        Harness h;
        apri(h, "Form99c1", draws);
        QCOMPARE(h.global("Meta"), meta);
        QCOMPARE(h.global("Termine1"), termine1);
        QCOMPARE(h.global("Termine2"), meta - termine1);
    }

    // A generator that never gives a usable number still ends the draw, with digits that fit.
    void stuckGeneratorEnds_data() {
        QTest::addColumn<double>("x");
        QTest::addColumn<int>("meta");
        QTest::addColumn<int>("termine1");
        QTest::newRow("0") << 0.0 << 25 << 10;
        QTest::newRow("11 for ever") << 0.15 << 25 << 10;
        QTest::newRow("22, Termine1 0 for ever") << 0.22 << 22 << 10;
        QTest::newRow("top") << 0.999 << 99 << 88;
    }
    void stuckGeneratorEnds() {
        QFETCH(double, x);
        QFETCH(int, meta);
        QFETCH(int, termine1);
        Fisso rnd(x);
        const OperazioneAbaco op = TiraSenzaCambio(rnd);
        QCOMPARE(int(op.Meta), meta);
        QCOMPARE(int(op.Termine1), termine1);
        QCOMPARE(int(op.Termine2), meta - termine1);
        QVERIFY(op.Termine2 % 10 <= op.Meta % 10 && op.Termine1 % 10 <= op.Meta % 10);
    }

    void conCambioDraws() {
        Fisso low(0.0), high(0.999);
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
        premi(h, "Bot_u", 9);
        premi(h, "Bot_u", 1, 2); // 9 then back to 8
        QCOMPARE(h.caption("Label5"), "aggiungi il numero  17 nell'abaco");
        QCOMPARE(h.sounds(), QStringList{kSi});
        premi(h, "Bot_da", 1);
        premi(h, "Bot_u", 7);
        QCOMPARE(h.caption("Label5"), "Esegui il cambio");
        QCOMPARE(unita(h), "1111111111111110000");
        QVERIFY(!h.visible("Text1"));
        clicca(h, "BottoneCambio");
        QCOMPARE(h.caption("Label5"), "Scrivi il risultato");
        QCOMPARE(unita(h), "1111100000000000000");
        QCOMPARE(h.caption("Label3"), " 5");
        QCOMPARE(h.caption("Label4"), " 2");
        QVERIFY(h.visible("pal_da(1)") && !h.enabled("BottoneCambio") && h.visible("Text1"));
        QCOMPARE(h.sounds().size(), 2);
        premi(h, "Bot_u", 1, 4); // a bead off with the middle button, and back: the box opens anew
        h.run(R"({"settext": "Text1", "text": "2"})");
        premi(h, "Bot_u", 1);
        QCOMPARE(h.text("Text1"), "");
        h.answer("Text1", "venticinque");
        QCOMPARE(h.global("Errati"), 1);
        h.answer("Text1", "25");
        QCOMPARE(h.global("Esatti"), 1);
        QVERIFY(h.enabled("BottoneAvanti") && !h.enabled("Text1"));
        QCOMPARE(unita(h), "1111100000000000000"); // a right result leaves the beads
        clicca(h, "BottoneAvanti");
        QCOMPARE(campo(h, "Fase"), 1);
        QVERIFY(!h.visible("Text1") && h.enabled("BottoneCambio"));
    }

    // 52 - 27 = 25: a ten changed, then 2 tens and 7 units taken off.
    void subtractionWithChange() {
        Harness h;
        apri(h, "Form99d", {v(42, 88), v(20, 42)});
        QCOMPARE(h.caption("EtichettaNumero"), " 52 -  27 = ");
        QCOMPARE(h.caption("Label5"), "inserisci il numero  52 premendo i bottoni +da  e +u");
        clicca(h, "Bot_da", 5);
        clicca(h, "Bot_u", 2);
        QCOMPARE(h.caption("Label5"),
                 "togli il numero  27 con i bottoni  -da  e -u. Esegui il cambio se necessario");
        QCOMPARE(h.sounds(), QStringList{kSi});
        clicca(h, "BottoneCambio");
        QCOMPARE(h.caption("Label3"), " 12");
        QCOMPARE(h.caption("Label4"), " 4");
        QCOMPARE(unita(h), "1111111111110000000");
        QVERIFY(!h.visible("pal_da(4)") && !h.enabled("BottoneCambio") && h.sounds().isEmpty());
        clicca(h, "Command1", 2);
        clicca(h, "Command2", 7);
        QCOMPARE(h.caption("Label5"), "scrivi il risultato");
        QVERIFY(h.visible("Text1"));
        QCOMPARE(h.sounds(), QStringList{kSi});
        h.answer("Text1", "");
        h.answer("Text1", "25");
        QCOMPARE(std::pair(h.global("Esatti"), h.global("Errati")), std::pair(1, 1));
        clicca(h, "Bot_ricomincia"); // in the wait: the box keeps its text, disabled
        QVERIFY(h.visible("Text1") && !h.enabled("Text1") && h.enabled("BottoneAvanti"));
        QCOMPARE(h.text("Text1"), "25");
    }

    // The same question without the change: 3 tens off, 3 units on.
    void subtractionWithoutChange() {
        Harness h;
        apri(h, "Form99d", {v(42, 88), v(20, 42)});
        clicca(h, "Bot_da", 5);
        clicca(h, "Bot_u", 2);
        clicca(h, "Command1", 3);
        clicca(h, "Bot_u", 3);
        QVERIFY(h.visible("Text1") && h.enabled("BottoneCambio"));
    }

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
        const bool somma = form == "Form99c";
        somma ? premi(h, "Bot_da", decine) : clicca(h, "Bot_da", decine);
        somma ? premi(h, "Bot_u", unita) : clicca(h, "Bot_u", unita);
        clicca(h, "BottoneCambio");
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
        premi(h, "Bot_da", 1, 2);
        clicca(h, "Bot_da");
        premi(h, "Bot_u", 25);
        QCOMPARE(campo(h, "NumeroUnita"), most);
        QCOMPARE(campo(h, "NumeroDecine"), 0);
        QCOMPARE(h.global("Errati"), 0);
    }

    // An addition with no change due passes the change step in the same click.
    void noChangeDueSkipsTheStep() {
        Harness h;
        apri(h, "Form99c1", {v(4, 10), v(7, 10), v(2, 4), v(3, 7)}); // 23 + 24
        premi(h, "Bot_da", 2);
        premi(h, "Bot_u", 3);
        h.sounds();
        premi(h, "Bot_da", 2);
        premi(h, "Bot_u", 4);
        QCOMPARE(h.caption("Label5"), "Scrivi il risultato");
        QCOMPARE(h.sounds().size(), 2);
        QVERIFY(h.visible("Text1"));
    }

    // With "avanti" hidden a right result brings the next question at once, the box closed and usable.
    void withoutAvanti_data() {
        QTest::addColumn<QString>("form");
        QTest::newRow("Form99c") << "Form99c";
        QTest::newRow("Form99d") << "Form99d";
    }
    void withoutAvanti() {
        QFETCH(QString, form);
        Harness h;
        h.run(R"({"show": "FormMenu"})");
        h.run(R"J({"click": "Option1(0)"})J");
        h.rnd({0.0, v(80, 88), v(0, 80), 0.0, v(42, 88), v(20, 42)}); // 5 + 85 = 90, then 52 - 27 = 25
        h.run(QStringLiteral(R"({"show": "%1"})").arg(form));
        const bool somma = form == "Form99c";
        if (somma) {
            premi(h, "Bot_u", 5);
            premi(h, "Bot_da", 8);
            premi(h, "Bot_u", 5);
            clicca(h, "BottoneCambio");
        } else {
            clicca(h, "Bot_da", 9);
            clicca(h, "Command1", 9);
            clicca(h, "Bot_u", 5);
        }
        h.answer("Text1", somma ? "90" : "5");
        QCOMPARE(h.global("Esatti"), 1);
        QCOMPARE(h.global("Meta"), 52);
        QVERIFY(!h.visible("Text1") && h.enabled("Text1") && !h.visible("BottoneAvanti"));
        QCOMPARE(campo(h, "Fase"), 1);
        QCOMPARE(unita(h), QString(19, '0'));
    }

    void worksheetNumbers_data() {
        QTest::addColumn<QString>("form");
        QTest::addColumn<int>("scheda");
        QTest::newRow("Form99c") << "Form99c" << 15;
        QTest::newRow("Form99c1") << "Form99c1" << 16;
        QTest::newRow("Form99d") << "Form99d" << 17;
        QTest::newRow("Form99d1") << "Form99d1" << 18;
    }
    void worksheetNumbers() {
        QFETCH(QString, form);
        QFETCH(int, scheda);
        Harness h;
        apri(h, form, {});
        h.run(R"({"menu": "mnuStampa"})");
        QCOMPARE(h.form(), "formStampa");
        QCOMPARE(h.global("NumeroScheda"), scheda);
    }
};

QTEST_MAIN(AbacusOpsTest)
#include "abacus_ops.moc"
