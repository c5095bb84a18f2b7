// The worksheet screen end to end, opened from "più 1": the sheet and its correction, the options,
// the print size, the printouts, and the way back to the exercise.

#include "support/harness.h"
#include "worksheets/generators/generators.h"

#include <QJsonDocument>
#include <QTest>
#include <cmath>

using namespace contarello;
using namespace contarello::test;

namespace {

void act(Harness& h, const QJsonObject& command) {
    h.run(QString::fromUtf8(QJsonDocument(command).toJson(QJsonDocument::Compact)));
}
void click(Harness& h, const QString& name) {
    act(h, {{"click", name}});
}

// Queues the draws of a sheet of so many cells, spread over the range so that each cell differs.
QList<double> queue(Harness& h, int cells, double start = 0.11) {
    QList<double> v;
    QJsonArray a;
    for (int i = 0; i < cells; ++i)
        a.append(v.emplaceBack(std::fmod(start + 0.137 * i, 1.0)));
    act(h, {{"rnd", a}});
    return v;
}

// The screen holds the sheet and its correction for these draws, made apart from it: by default
// the sheet of "più 1".
void compareSheet(Harness& h, const SchedaInput& in, const QList<double>& draws, int numero = 9) {
    ScriptedRandom rnd;
    for (double v : draws)
        rnd.queue(v);
    Modulo1 g;
    g.NumeroMassimo = int16_t(h.global("NumeroMassimo"));
    const Scheda s = FaiScheda(numero, in, g, rnd);
    QCOMPARE(h.text("txtCD"), s.txtCD);
    QCOMPARE(h.text("TextCor"), s.TextCor);
}

// Form1 asking " 11 + 1 = ", then its worksheet; returns the draws the sheet was made from.
QList<double> openSheet(Harness& h) {
    h.dump();
    h.rnd({11.5 / 99, 0.0});
    h.run(R"({"show": "Form1"})");
    const QList<double> d = queue(h, 10);
    h.run(R"({"menu": "mnuStampa"})");
    h.events();
    return d;
}

// What a print button sends since the last look: one document in MS Sans Serif, named for the
// print queue after what it is.
QJsonArray printed(int size, const QString& text,
                   const QString& name = QStringLiteral("Contarello - scheda 9")) {
    return {QJsonObject{
        {"event", "print"}, {"font", "MS Sans Serif"}, {"size", size}, {"text", text}, {"name", name}}};
}

const QJsonObject kAttivazione{{"NumeroRighe", 5}, {"NumeroColonne", 2}, {"GrandezzaCarattere", 12}};

} // namespace

class StampaTest : public QObject {
    Q_OBJECT
private slots:
    // Each time the screen comes to the front it makes a new sheet in 5 rows, 2 columns and size 12,
    // though its option buttons and its box still show the last choice.
    void eachActivationStartsOver() {
        Harness h;
        const QList<double> first = openSheet(h);
        const QJsonObject d = h.dump();
        QCOMPARE(d.value("loaded").toArray(), (QJsonArray{"Form1", "formStampa"}));
        QCOMPARE(d.value("backcolor").toString(), QStringLiteral("#ffff00"));
        QCOMPARE(d.value("fields").toObject(), kAttivazione);
        compareSheet(h, {}, first);
        QVERIFY(!h.visible("TextCor") && !h.visible("List1"));
        QVERIFY(!h.control("OptionRighe(1)").value("value").toBool()); // 5 rows, but not chosen
        QVERIFY(h.control("OptionCarattere(1)").value("value").toBool());

        click(h, "OptionRighe(0)");
        click(h, "OptionCarattere(2)");
        h.run(R"({"activate": "Form1"})");
        const QList<double> again = queue(h, 10, 0.5);
        h.run(R"({"menu": "mnuStampa"})");
        QCOMPARE(h.dump().value("fields").toObject(), kAttivazione);
        compareSheet(h, {}, again);
        QVERIFY(h.control("OptionRighe(0)").value("value").toBool() &&
                h.control("OptionCarattere(2)").value("value").toBool());
        QCOMPARE(h.control("txtCD").value("fontsize").toDouble(), 14.0);
    }

    void rowsAndColumnsMakeANewSheet_data() {
        QTest::addColumn<QStringList>("clicks");
        QTest::addColumn<int>("righe");
        QTest::addColumn<int>("colonne");
        QTest::newRow("3 rows") << QStringList{"OptionRighe(0)"} << 3 << 2;
        QTest::newRow("25 rows") << QStringList{"OptionRighe(5)"} << 25 << 2;
        QTest::newRow("1 column") << QStringList{"OptionColonne(0)"} << 5 << 1;
        QTest::newRow("15 rows of 6, kept by Nuova scheda")
            << QStringList{"OptionRighe(3)", "OptionColonne(5)", "Command2"} << 15 << 6;
        QTest::newRow("Nuova scheda with no option chosen") << QStringList{"Command2"} << 5 << 2;
    }
    void rowsAndColumnsMakeANewSheet() {
        QFETCH(QStringList, clicks);
        QFETCH(int, righe);
        QFETCH(int, colonne);
        Harness h;
        openSheet(h);
        // Only the last click's draws are scripted: the sheet must come from them alone.
        for (int i = 0; i < clicks.size() - 1; ++i)
            click(h, clicks[i]);
        const QList<double> d = queue(h, righe * colonne, 0.03);
        click(h, clicks.last());
        compareSheet(h, {righe, colonne}, d);
    }

    // A size never draws new numbers, and a hand-made edit survives it; "Stampa scheda" prints the
    // edit in the chosen size, "Stampa correzione" the correction as it was made.
    void theSizeAndTheHandEdits_data() {
        QTest::addColumn<int>("option");
        QTest::addColumn<int>("size");
        QTest::newRow("piccolo") << 0 << 10;
        QTest::newRow("medio") << 1 << 12;
        QTest::newRow("grande") << 2 << 14;
    }
    void theSizeAndTheHandEdits() {
        QFETCH(int, option);
        QFETCH(int, size);
        Harness h;
        openSheet(h);
        // Six columns make rows wider than either printout: each breaks at its own width.
        click(h, "OptionColonne(5)");
        const QString correzione = h.text("TextCor");
        const QString edited = h.text("txtCD") + QStringLiteral("    Nome: ____________\r\n");
        act(h, {{"settext", "txtCD"}, {"text", edited}});
        click(h, QStringLiteral("OptionCarattere(%1)").arg((option + 1) % 3));
        click(h, QStringLiteral("OptionCarattere(%1)").arg(option));
        QCOMPARE(h.text("txtCD"), edited);
        QCOMPARE(h.control("txtCD").value("fontsize").toDouble(), double(size));
        click(h, "btnCD");
        QCOMPARE(h.events("print"), printed(size, AndaACapo(edited, 100)));
        click(h, "Command1");
        QCOMPARE(h.events("print"), printed(size, AndaACapo(correzione, 90), "Contarello - correzione 9"));
        QCOMPARE(h.text("txtCD"), edited); // printing changes nothing
    }

    // An unknown worksheet number empties both boxes, and an empty sheet still prints one line end.
    void anUnknownWorksheetIsEmptyAndStillPrints() {
        Harness h;
        openSheet(h);
        h.engine.program().g.NumeroScheda = 25;
        click(h, "Command2");
        QCOMPARE(h.text("txtCD") + h.text("TextCor"), QString());
        click(h, "btnCD");
        QCOMPARE(h.events("print"), printed(12, QStringLiteral("\r\n"), "Contarello - scheda 25"));
    }

    // FormOrd left while its worksheet stays: "Nuova scheda" builds the sheet of a FormOrd just
    // loaded, rows of 8 from the smallest up, not a blank page.
    void theOrderingSheetOutlivesItsScreen() {
        Harness h;
        h.script(R"J({"click": "BottoneAvvio"}
                     {"click": "Command3"}
                     {"click": "Command9"}
                     {"menu": "MenuGiu"}
                     {"menu": "mnuStampa"}
                     {"activate": "FormOrd"}
                     {"msgbox": [6]}
                     {"menu": "mnuEsci"}
                     {"activate": "formStampa"})J");
        QCOMPARE(h.dump().value("loaded").toArray(), (QJsonArray{"formStampa", "FormMenu"}));
        const QList<double> draws = queue(h, 48);
        click(h, "Command2");
        compareSheet(h, {5, 2, "8", "Ordina i numeri dal minore al maggiore "}, draws, 4);
    }

    void esciGoesBackToTheExercise_data() {
        QTest::addColumn<bool>("waiting");
        QTest::newRow("while answering") << false;
        QTest::newRow("while waiting for avanti") << true;
    }
    void esciGoesBackToTheExercise() {
        QFETCH(bool, waiting);
        Harness h;
        h.dump();
        h.rnd({11.5 / 99, 0.0});
        h.run(R"({"show": "Form1"})");
        h.answer("Text1", "12");
        if (!waiting) click(h, "BottoneAvanti");
        h.run(R"({"menu": "mnuStampa"})");
        h.rnd({29.5 / 99, 0.0}); // " 29 + 1 = "
        click(h, "BottoneEsci");
        QCOMPARE(h.dump().value("loaded").toArray(), QJsonArray{"Form1"});
        QCOMPARE(h.caption("EtichettaNumero"), QStringLiteral(" 29 + 1 = "));
        QCOMPARE(h.global("Esatti"), 1);
        QCOMPARE(h.enabled("Text1"), !waiting);
        QCOMPARE(h.enabled("BottoneAvanti"), waiting);
    }
};

QTEST_MAIN(StampaTest)
#include "stampa.moc"
