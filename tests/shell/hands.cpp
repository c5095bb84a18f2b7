// Every family of screens answered by a child's hands alone, once by the keys and once by the
// fingers: from the start screen to one right answer (or the printed worksheet), the state read
// from the dump to choose the next move, as a child reads the screen. One answer per family, told
// in what a hand does (reach a control and use it, the right button, a number typed, a digit
// placed); the keys do it by Tab, the arrows, Enter, Delete, Escape, F10 and the digits, the
// fingers by tap, hold, swipe and the keypad that the first touch brings.

#include "support/harness.h"

#include <QRegularExpression>
#include <QTest>
#include <functional>

using namespace contarello::test;

namespace {

struct Mano : Harness {
    virtual ~Mano() = default;
    // The control reached and used, as the left button does.
    virtual void act(const QString& name, int times = 1) = 0;
    // The right button on the control.
    virtual void right(const QString& name) = 0;
    // The number typed in the box, then Enter.
    virtual void type(const QString& box, int n) = 0;
    // A digit picked up and placed on a cell.
    virtual void place(const QString& from, const QString& to) = 0;
    // The digit picked up put back.
    virtual void back() = 0;
    // "Stampa scheda" from the menu bar.
    virtual void menu(const QString& item) = 0;

    QString focus() { return dump().value("focus").toString(); }
    QJsonObject fields() { return dump().value("fields").toObject(); }
    // A property of a control that may not be there: false then.
    QJsonValue of(const QString& name, const char* key) {
        return dump().value("controls").toObject().value(name).toObject().value(key);
    }
    // The two numbers of the operation a label shows, " 27 +  18 =".
    std::pair<int, int> termini(const QString& label) {
        QList<int> n;
        for (const auto& m : QRegularExpression("\\d+").globalMatch(caption(label)))
            n << m.captured().toInt();
        return {n.value(0), n.value(1)};
    }
};

struct Tasti : Mano {
    void press(const QString& key, int times = 1) {
        if (times > 0) run(QStringLiteral(R"({"press": "%1", "repeat": %2})").arg(key).arg(times));
    }
    // Tab until the focus is on the control, as a child goes through the screen; in the table of
    // 100, the arrows from wherever Tab first lands on it.
    void reach(const QString& name) {
        const bool cella = name.startsWith("Numero(");
        const int n = cella ? name.mid(7).chopped(1).toInt() : -1;
        for (int i = 0; i < 60 && focus() != name; ++i) {
            const QString f = focus();
            const int k = cella && f.startsWith("Numero(") ? f.mid(7).chopped(1).toInt() : -1;
            press(k < 0              ? "Tab"
                  : k / 10 != n / 10 ? (k / 10 < n / 10 ? "Down" : "Up")
                                     : (k % 10 < n % 10 ? "Right" : "Left"));
        }
        QVERIFY2(focus() == name, qPrintable(name + " never takes the focus on " + form()));
    }
    void act(const QString& name, int times) override {
        if (times < 1) return;
        reach(name);
        press("Enter", times);
    }
    void right(const QString& name) override {
        reach(name);
        press("Delete");
    }
    void type(const QString& box, int n) override {
        reach(box);
        for (QChar ch : QString::number(n))
            press(ch);
        press("Enter");
    }
    void place(const QString& from, const QString& to) override {
        act(from, 1);
        act(to, 1);
    }
    void back() override { press("Escape"); }
    // The bar's first title lit, then the next one, whose first item is the one the table uses.
    void menu(const QString&) override {
        press("F10");
        press("Right");
        press("Enter");
    }
};

struct Dita : Mano {
    void finger(const char* verb, const QString& name) {
        run(QStringLiteral(R"({"%1": "%2"})").arg(verb, name));
    }
    void act(const QString& name, int times) override {
        for (int i = 0; i < times; ++i)
            finger("tap", name);
    }
    void right(const QString& name) override { finger("hold", name); }
    void type(const QString& box, int n) override {
        finger("tap", box);
        for (QChar ch : QString::number(n))
            finger("tap", QStringLiteral("Tasto") + ch);
        finger("tap", "TastoInvio");
    }
    // By two taps and by a slide, in turn, so that every column screen sees both.
    void place(const QString& from, const QString& to) override {
        if ((slide = !slide))
            run(QStringLiteral(R"({"swipe": "%1", "to": "%2"})").arg(from, to));
        else
            finger("tap", from), finger("tap", to);
    }
    void back() override { finger("tap", "Label3"); } // anywhere that takes no digit
    void menu(const QString& item) override { finger("tap", item); }
    bool slide = false;
};

using Risposta = std::function<void(Mano&)>;

void numero(Mano& t) {
    t.type(t.focus(), t.global("NumeroEsatto"));
}

// The smallest first: each number is the first button still showing it.
void ordina(Mano& t) {
    QList<int> numeri;
    for (int i = 0; i < t.fields()["QuantiNumeri"].toInt(); ++i)
        numeri << t.fields()["Numeri"][i].toInt();
    std::sort(numeri.begin(), numeri.end());
    for (int n : numeri)
        for (int i = 0; i < 11; ++i)
            if (t.caption(QStringLiteral("ComandoNumero(%1)").arg(i)).trimmed() == QString::number(n)) {
                t.act(QStringLiteral("ComandoNumero(%1)").arg(i));
                break;
            }
}

// Digits picked up and placed on their cells, the change carried the same way, the units and then
// the tens typed. Before that: a digit picked up and put back is not placed by using a cell, and a
// place that refuses it (the first number's units on its tens) changes nothing at all.
void colonna(Mano& t) {
    QVERIFY(t.caption("Lda1") != t.caption("Lu1"));
    t.act("Lu1");
    t.back();
    t.act("Eu1");
    QCOMPARE(t.caption("Eu1"), "");
    const QJsonObject prima = t.dump();
    t.place("Lu1", "Eda1");
    t.act("Eu1");
    QCOMPARE(t.dump()["controls"], prima["controls"]);
    QCOMPARE(t.dump()["fields"], prima["fields"]);
    int cambi = 0;
    for (int passo = 0; passo < 10 && t.global("Esatti") == 0; ++passo) {
        auto prende = [&t](const char* l) { return t.of(l, "visible").toBool() && t.of(l, "dragmode") == 1; };
        if (const char* da = prende("Lda1")   ? "Lda1"
                             : prende("Lu1")  ? "Lu1"
                             : prende("Lda2") ? "Lda2"
                             : prende("Lu2")  ? "Lu2"
                                              : nullptr) {
            t.place(da, QString(da).replace(0, 1, "E"));
        } else if (prende("CambioUp") && t.caption("CambioUa").isEmpty()) {
            t.place("CambioUp", "CambioUa");
            ++cambi;
        } else {
            const bool unita = t.of("Eur", "enabled").toBool();
            t.type(unita ? "Eur" : "Edar", t.fields()[unita ? "UR" : "DaR"].toInt());
        }
    }
    QCOMPARE(cambi, 1);
}

// Bars and squares built with their buttons.
void lunghi(Mano& t) {
    const int n = t.global("NumeroEsatto");
    t.act("BottoneDecine", n / 10);
    t.act("BottoneUnita", n % 10);
    t.act("BottoneConferma");
}

// Beads threaded with the wires' buttons; one too many taken off again with the right button.
void perline(Mano& t) {
    const int n = t.global("NumeroEsatto");
    t.act("Bot_da", n / 10);
    t.act("Bot_u", n % 10 + 1);
    t.right("Bot_u");
    QCOMPARE(t.fields()["NumeroUnita"].toInt(), n % 10);
    t.act("BottoneConferma");
}

// Longs and squares: the operands built, the change, the shapes taken away one by one, the result.
void graficoConto(Mano& t) {
    const auto [a, b] = t.termini("EtNumero");
    const bool meno = t.form().startsWith("FormGrafMeno");
    t.act("BotDecine1", a / 10);
    t.act("BotUnita1", a % 10);
    if (!meno) t.act("BotDecine2", b / 10), t.act("BotUnita2", b % 10);
    const bool cambio = t.of("Cambio", "enabled").toBool();
    if (cambio) t.act("Cambio");
    QCOMPARE(cambio, !t.form().endsWith('1'));
    for (int i = 0; i < 20 && !t.caption("Label3").startsWith("Inserisci"); ++i) {
        const bool unita = t.caption("Label3").contains("unità");
        for (int k = 0; k < 20; ++k) {
            const QString s =
                QStringLiteral("%1(%2)").arg(unita ? (k < 10 ? "Unita1" : "Unita2") : "Decina1").arg(k % 10);
            if (t.of(s, "visible").toBool()) {
                t.act(s);
                break;
            }
        }
    }
    t.type("Risultato", meno ? a - b : a + b);
}

// The abacus: the first number threaded, the second threaded or taken off, the change, the result.
void abacoConto(Mano& t) {
    const auto [a, b] = t.termini("EtichettaNumero");
    const bool meno = t.form().startsWith("Form99d");
    t.act("Bot_da", a / 10);
    t.act("Bot_u", a % 10);
    const bool cambio = meno ? a % 10 < b % 10 : a % 10 + b % 10 > 9;
    QVERIFY(cambio);
    if (meno) t.act("BottoneCambio");
    t.act(meno ? "Command1" : "Bot_da", b / 10);
    t.act(meno ? "Command2" : "Bot_u", b % 10);
    if (!meno) t.act("BottoneCambio");
    t.type("Text1", meno ? a - b : a + b);
}

void gradi(Mano& t) {
    t.type(t.focus(), t.fields()["NumeroIniziale"].toInt() + t.fields()["TaccaScelta"].toInt());
}

// "Stampa scheda" from the menu bar of the exercise, then its button on the worksheet.
void scheda(Mano& t) {
    t.menu("mnuStampa");
    QCOMPARE(t.form(), "formStampa");
    t.events();
    t.act("btnCD");
    const QJsonArray stampe = t.events("print");
    QVERIFY(stampe.size() == 1 && stampe[0]["text"].toString().contains("ESEGUI LE ADDIZIONI"));
}

} // namespace
Q_DECLARE_METATYPE(Risposta)

class HandsTest : public QObject {
    Q_OBJECT
private slots:
    void unaRispostaGiusta_data() {
        QTest::addColumn<bool>("dita");
        QTest::addColumn<QString>("strada"); // the buttons of the main menu and of the exercise menu
        QTest::addColumn<QString>("primo");  // where the focus waits on the first question
        QTest::addColumn<Risposta>("risposta");
        QTest::addColumn<QList<double>>("estratti"); // draws queued for the exercise
        for (const bool dita : {false, true}) {
            auto riga = [dita](const char* form, const char* strada, const char* primo, Risposta r,
                               QList<double> estratti = {}) {
                QTest::addRow("%s: %s", dita ? "fingers" : "keys", form)
                    << dita << QString(strada) << QString(primo) << r << estratti;
            };
            riga("Form1", "Command3 Command37", "Text1", numero);
            riga("FormOrd", "Command3 Command9", "ComandoNumero(0)", ordina);
            riga("FormCol2", "Command3 Command22", "Lu1", colonna);
            riga("FormCol4", "Command3 Command26", "Lda1", colonna, {32.5 / 79, 26.5 / 52}); // 52 - 27
            riga("Form999x", "Command2 Command2", "BottoneUnita", lunghi);
            riga("Form99a", "Command2 Command4", "Bot_da", perline);
            riga("Form99b", "Command2 Command35", "TestoNumero", numero);
            riga("FormGraf", "Command2 Command23", "BotDecine1", graficoConto);
            riga("FormGraf1", "Command2 Command10", "BotDecine1", graficoConto);
            riga("FormGrafMeno", "Command2 Command24", "BotDecine1", graficoConto);
            riga("FormGrafMeno1", "Command2 Command11", "BotDecine1", graficoConto);
            riga("Form99c", "Command2 Command20", "Bot_da", abacoConto);
            riga("Form99d", "Command2 Command25", "Bot_da", abacoConto);
            riga("Form100a", "Command2 Command30", "Numero(0)",
                 [](Mano& t) { t.act(QStringLiteral("Numero(%1)").arg(t.global("Meta"))); });
            riga("Form100Trova", "Command2 Command6", "Numero(0)",
                 [](Mano& t) { t.act(QStringLiteral("Numero(%1)").arg(t.global("NumeroEsatto"))); });
            riga("Form100Ricon", "Command2 Command7", "Text1", numero);
            riga("FormGradi20", "Command2 Command12", "Text1", gradi);
            riga("FormGradi20bis", "Command2 Command13", "Text1", gradi);
            riga("formStampa", "Command3 Command37", "Text1", scheda);
        }
    }
    void unaRispostaGiusta() {
        QFETCH(bool, dita);
        QFETCH(QString, strada);
        QFETCH(Risposta, risposta);
        QFETCH(QList<double>, estratti);
        std::unique_ptr<Mano> t = dita ? std::unique_ptr<Mano>(new Dita) : std::make_unique<Tasti>();
        QCOMPARE(t->focus(), "BottoneAvvio");
        t->act("BottoneAvvio");
        const QStringList passi = strada.split(' ');
        for (qsizetype i = 0; i < passi.size(); ++i) {
            if (i == passi.size() - 1)
                for (double x : estratti)
                    t->rnd({x});
            t->act(passi[i]);
        }
        QTEST(t->focus(), "primo");
        risposta(*t);
        const bool scheda = QString(QTest::currentDataTag()).endsWith("formStampa");
        QCOMPARE(std::pair(t->global("Esatti"), t->global("Errati")), std::pair(int(!scheda), 0));
    }

    // The menu bar and the panel it opens from the keyboard: the focus on the choice in force, an
    // arrow that reaches another choice doesn't make it, Enter does; then back to the answer box,
    // as Escape on the bar goes back too.
    void menuAndPanel() {
        Tasti t;
        t.run(R"({"show": "FormScri"})");
        t.menu("mnuNumeroMassimo");
        QCOMPARE(t.focus(), "OpzioneNumeroMassimo(8)");
        t.press("Up");
        QCOMPARE(t.focus(), "OpzioneNumeroMassimo(7)");
        QCOMPARE(t.global("NumeroMassimo"), 99);
        t.press("Enter");
        QCOMPARE(t.global("NumeroMassimo"), 89);
        QVERIFY(!t.visible("CorniceNumeroMassimo"));
        QCOMPARE(t.focus(), "Text1");
        t.press("F10");
        QVERIFY(t.focus() != "Text1");
        t.press("Escape");
        QCOMPARE(t.focus(), "Text1");
    }
};

QTEST_MAIN(HandsTest)
#include "hands.moc"
