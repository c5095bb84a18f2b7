// Every family of screens from the keyboard alone: from the start screen to one right answer with
// nothing but key presses on whatever has the focus (Tab, the arrows, Enter, Delete, Escape, F10 and
// the digits), the state read from the dump to choose the next key, as a child reads the screen.

#include "support/harness.h"

#include <QRegularExpression>
#include <QTest>
#include <functional>

using namespace contarello::test;

namespace {

struct Tasti : Harness {
    void press(const QString& key, int times = 1) {
        if (times > 0) run(QStringLiteral(R"({"press": "%1", "repeat": %2})").arg(key).arg(times));
    }
    QString focus() { return dump().value("focus").toString(); }
    QJsonObject fields() { return dump().value("fields").toObject(); }
    // A property of a control that may not be there: false then.
    QJsonValue of(const QString& name, const char* key) {
        return dump().value("controls").toObject().value(name).toObject().value(key);
    }
    // Tab until the focus is on the control, as a child goes through the screen.
    void tab(const QString& name) {
        for (int i = 0; i < 60 && focus() != name; ++i)
            press("Tab");
        QVERIFY2(focus() == name, qPrintable(name + " never takes the focus on " + form()));
    }
    void enter(const QString& name, int times = 1) {
        if (times < 1) return;
        tab(name);
        press("Enter", times);
    }
    // The number typed digit by digit in the box that has the focus, then Enter.
    void digits(int n) {
        QVERIFY2(control(focus())["kind"] == "textbox", qPrintable(focus()));
        for (QChar ch : QString::number(n))
            press(ch);
        press("Enter");
    }
    // The arrows along the table of 100, from wherever Tab first lands on it, to the cell; Enter.
    void cell(int n) {
        for (int i = 0; i < 60; ++i) {
            const QString f = focus();
            const int k = f.startsWith("Numero(") ? f.mid(7).chopped(1).toInt() : -1;
            if (k == n) break;
            press(k < 0              ? "Tab"
                  : k / 10 != n / 10 ? (k / 10 < n / 10 ? "Down" : "Up")
                                     : (k % 10 < n % 10 ? "Right" : "Left"));
        }
        QCOMPARE(focus(), QStringLiteral("Numero(%1)").arg(n));
        press("Enter");
    }
    // The two numbers of the operation a label shows, " 27 +  18 =".
    std::pair<int, int> termini(const QString& label) {
        QList<int> n;
        for (const auto& m : QRegularExpression("\\d+").globalMatch(caption(label)))
            n << m.captured().toInt();
        return {n.value(0), n.value(1)};
    }
};

using Risposta = std::function<void(Tasti&)>;

void numero(Tasti& t) {
    t.digits(t.global("NumeroEsatto"));
}

// The smallest first: each number is the first button still showing it.
void ordina(Tasti& t) {
    QList<int> numeri;
    for (int i = 0; i < t.fields()["QuantiNumeri"].toInt(); ++i)
        numeri << t.fields()["Numeri"][i].toInt();
    std::sort(numeri.begin(), numeri.end());
    for (int n : numeri)
        for (int i = 0; i < 11; ++i)
            if (t.caption(QStringLiteral("ComandoNumero(%1)").arg(i)).trimmed() == QString::number(n)) {
                t.enter(QStringLiteral("ComandoNumero(%1)").arg(i));
                break;
            }
}

// Digits picked up by Enter and placed by Enter on their cells, the change carried the same way,
// the units and then the tens typed. Before that: Escape puts the digit picked up back, and a place
// that refuses it (the first number's units on its tens) changes nothing at all.
void colonna(Tasti& t) {
    QVERIFY(t.caption("Lda1") != t.caption("Lu1"));
    t.enter("Lu1");
    t.press("Escape");
    t.enter("Eu1");
    QCOMPARE(t.caption("Eu1"), "");
    const QJsonObject prima = t.dump();
    t.enter("Lu1");
    t.enter("Eda1");
    t.enter("Eu1");
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
            t.enter(da);
            t.enter(QString(da).replace(0, 1, "E"));
        } else if (prende("CambioUp") && t.caption("CambioUa").isEmpty()) {
            t.enter("CambioUp");
            t.enter("CambioUa");
            ++cambi;
        } else {
            const bool unita = t.of("Eur", "enabled").toBool();
            t.tab(unita ? "Eur" : "Edar");
            t.digits(t.fields()[unita ? "UR" : "DaR"].toInt());
        }
    }
    QCOMPARE(cambi, 1);
}

// Bars and squares built with their buttons.
void lunghi(Tasti& t) {
    const int n = t.global("NumeroEsatto");
    t.enter("BottoneDecine", n / 10);
    t.enter("BottoneUnita", n % 10);
    t.enter("BottoneConferma");
}

// Beads threaded with Enter on the wires' buttons; one too many taken off again with Delete.
void perline(Tasti& t) {
    const int n = t.global("NumeroEsatto");
    t.enter("Bot_da", n / 10);
    t.enter("Bot_u", n % 10 + 1);
    t.press("Delete");
    QCOMPARE(t.fields()["NumeroUnita"].toInt(), n % 10);
    t.enter("BottoneConferma");
}

// Longs and squares: the operands built, the change, the shapes taken away one by one, the result.
void graficoConto(Tasti& t) {
    const auto [a, b] = t.termini("EtNumero");
    const bool meno = t.form().startsWith("FormGrafMeno");
    t.enter("BotDecine1", a / 10);
    t.enter("BotUnita1", a % 10);
    if (!meno) t.enter("BotDecine2", b / 10), t.enter("BotUnita2", b % 10);
    const bool cambio = t.of("Cambio", "enabled").toBool();
    if (cambio) t.enter("Cambio");
    QCOMPARE(cambio, !t.form().endsWith('1'));
    for (int i = 0; i < 20 && !t.caption("Label3").startsWith("Inserisci"); ++i) {
        const bool unita = t.caption("Label3").contains("unità");
        for (int k = 0; k < 20; ++k) {
            const QString s =
                QStringLiteral("%1(%2)").arg(unita ? (k < 10 ? "Unita1" : "Unita2") : "Decina1").arg(k % 10);
            if (t.of(s, "visible").toBool()) {
                t.enter(s);
                break;
            }
        }
    }
    t.tab("Risultato");
    t.digits(meno ? a - b : a + b);
}

// The abacus: the first number threaded, the second threaded or taken off, the change, the result.
void abacoConto(Tasti& t) {
    const auto [a, b] = t.termini("EtichettaNumero");
    const bool meno = t.form().startsWith("Form99d");
    t.enter("Bot_da", a / 10);
    t.enter("Bot_u", a % 10);
    const bool cambio = meno ? a % 10 < b % 10 : a % 10 + b % 10 > 9;
    QVERIFY(cambio);
    if (meno) t.enter("BottoneCambio");
    t.enter(meno ? "Command1" : "Bot_da", b / 10);
    t.enter(meno ? "Command2" : "Bot_u", b % 10);
    if (!meno) t.enter("BottoneCambio");
    t.tab("Text1");
    t.digits(meno ? a - b : a + b);
}

void gradi(Tasti& t) {
    t.digits(t.fields()["NumeroIniziale"].toInt() + t.fields()["TaccaScelta"].toInt());
}

// "Stampa scheda" from the menu bar of the exercise, then its button on the worksheet.
void scheda(Tasti& t) {
    t.press("F10");
    t.press("Right");
    t.press("Enter");
    QCOMPARE(t.form(), "formStampa");
    t.events();
    t.enter("btnCD");
    const QJsonArray stampe = t.events("print");
    QVERIFY(stampe.size() == 1 && stampe[0]["text"].toString().contains("ESEGUI LE ADDIZIONI"));
}

} // namespace
Q_DECLARE_METATYPE(Risposta)

class KeyboardTest : public QObject {
    Q_OBJECT
private slots:
    void unaRispostaGiusta_data() {
        QTest::addColumn<QString>("strada"); // the buttons of the main menu and of the exercise menu
        QTest::addColumn<QString>("primo");  // where the focus waits on the first question
        QTest::addColumn<Risposta>("risposta");
        QTest::addColumn<QList<double>>("estratti"); // draws queued for the exercise
        auto riga = [](const char* form, const char* strada, const char* primo, Risposta r,
                       QList<double> estratti = {}) {
            QTest::newRow(form) << QString(strada) << QString(primo) << r << estratti;
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
        riga("Form100a", "Command2 Command30", "Numero(0)", [](Tasti& t) { t.cell(t.global("Meta")); });
        riga("Form100Trova", "Command2 Command6", "Numero(0)",
             [](Tasti& t) { t.cell(t.global("NumeroEsatto")); });
        riga("Form100Ricon", "Command2 Command7", "Text1", numero);
        riga("FormGradi20", "Command2 Command12", "Text1", gradi);
        riga("FormGradi20bis", "Command2 Command13", "Text1", gradi);
        riga("formStampa", "Command3 Command37", "Text1", scheda);
    }
    void unaRispostaGiusta() {
        QFETCH(QString, strada);
        QFETCH(Risposta, risposta);
        QFETCH(QList<double>, estratti);
        Tasti t;
        QCOMPARE(t.focus(), "BottoneAvvio");
        t.press("Enter");
        const QStringList passi = strada.split(' ');
        for (qsizetype i = 0; i < passi.size(); ++i) {
            t.tab(passi[i]);
            if (i == passi.size() - 1)
                for (double x : estratti)
                    t.rnd({x});
            t.press("Enter");
        }
        QTEST(t.focus(), "primo");
        risposta(t);
        const bool scheda = QTest::currentDataTag() == QLatin1String("formStampa");
        QCOMPARE(std::pair(t.global("Esatti"), t.global("Errati")), std::pair(int(!scheda), 0));
    }
};

QTEST_MAIN(KeyboardTest)
#include "keyboard.moc"
