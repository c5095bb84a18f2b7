// The worksheet screen opened from "più 1": the sheet and its correction for the rows and columns
// chosen, and the way back to the exercise. Its printouts are in pdf.cpp.

#include "support/harness.h"
#include "worksheets/generators/generators.h"

#include <QTest>
#include <cmath>

using namespace contarello;
using namespace contarello::test;

namespace {

void click(Harness& h, const QString& name) {
    h.run(QStringLiteral(R"J({"click": "%1"})J").arg(name));
}

// Queues the draws of a sheet of so many cells, spread over the range so that each cell differs.
QList<double> queue(Harness& h, int cells, double start) {
    QList<double> v;
    for (int i = 0; i < cells; ++i)
        h.rnd({v.emplaceBack(std::fmod(start + 0.137 * i, 1.0))});
    return v;
}

// The screen holds the sheet and its correction made apart from it for these draws ("più 1": 9).
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

} // namespace

class StampaTest : public QObject {
    Q_OBJECT
private slots:
    // The screen opens on 5 rows of 2, the correction hidden, no option chosen. An option makes a new
    // sheet, "Nuova scheda" one as the options stand; shown again, the screen starts over at 5 rows
    // of 2 and size 12, though its options and its box still show the last choice.
    void rowsAndColumns_data() {
        QTest::addColumn<QStringList>("clicks");
        QTest::addColumn<int>("righe");
        QTest::addColumn<int>("colonne");
        QTest::newRow("3 rows") << QStringList{"OptionRighe(0)"} << 3 << 2;
        QTest::newRow("25 rows") << QStringList{"OptionRighe(5)"} << 25 << 2;
        QTest::newRow("1 column") << QStringList{"OptionColonne(0)"} << 5 << 1;
        QTest::newRow("15 rows of 6, kept by Nuova scheda")
            << QStringList{"OptionRighe(3)", "OptionColonne(5)", "Command2"} << 15 << 6;
        QTest::newRow("Nuova scheda with no option chosen") << QStringList{"Command2"} << 5 << 2;
        QTest::newRow("shown again") << QStringList{"OptionRighe(0)", "OptionCarattere(2)", "Form1"} << 5
                                     << 2;
    }
    void rowsAndColumns() {
        QFETCH(QStringList, clicks);
        QFETCH(int, righe);
        QFETCH(int, colonne);
        Harness h;
        h.dump();
        h.rnd({11.5 / 99, 0.0}); // " 11 + 1 = "
        h.run(R"({"show": "Form1"})");
        const QList<double> first = queue(h, 10, 0.11);
        h.run(R"({"menu": "mnuStampa"})");
        QCOMPARE(h.dump()["loaded"].toArray(), (QJsonArray{"Form1", "formStampa"}));
        compareSheet(h, {}, first);
        QVERIFY(!h.visible("TextCor") && !h.visible("List1") &&
                !h.control("OptionRighe(1)")["value"].toBool());
        // Only the last click's draws are scripted: the sheet must come from them alone.
        for (int i = 0; i < clicks.size() - 1; ++i)
            click(h, clicks[i]);
        const bool again = clicks.last() == "Form1";
        if (again) h.run(R"({"activate": "Form1"})"); // a new question first
        const QList<double> d = queue(h, righe * colonne, 0.03);
        again ? void(h.run(R"({"menu": "mnuStampa"})")) : click(h, clicks.last());
        compareSheet(h, {righe, colonne}, d);
        QCOMPARE(h.dump().value("fields")["GrandezzaCarattere"].toInt(), 12);
        for (const QString& option : clicks.filter("Option"))
            QVERIFY(h.control(option)["value"].toBool());
        if (again) QCOMPARE(h.control("txtCD")["fontsize"].toDouble(), 14.0);
    }

    // FormOrd left while its worksheet stays: "Nuova scheda" builds the sheet of a FormOrd just
    // loaded, rows of 8 from the smallest up, not a blank page.
    void theOrderingSheetOutlivesItsScreen() {
        Harness h;
        h.script(R"J({"show": "FormOrd"}
                     {"menu": "MenuGiu"}
                     {"menu": "mnuStampa"}
                     {"activate": "FormOrd"}
                     {"msgbox": [6]}
                     {"menu": "mnuEsci"}
                     {"activate": "formStampa"})J");
        QCOMPARE(h.dump()["loaded"].toArray(), (QJsonArray{"formStampa", "FormMenu"}));
        const QList<double> draws = queue(h, 48, 0.11);
        click(h, "Command2");
        compareSheet(h, {5, 2, "8", "Ordina i numeri dal minore al maggiore "}, draws, 4);
    }

    // "Esci" brings back the exercise with a new question, its counters, and "avanti" still waiting.
    void esciGoesBackToTheExercise() {
        Harness h;
        h.dump();
        h.rnd({11.5 / 99, 0.0});
        h.run(R"({"show": "Form1"})");
        h.answer("Text1", "12");
        for (const bool waiting : {true, false}) {
            h.run(R"({"menu": "mnuStampa"})");
            h.rnd({29.5 / 99, 0.0}); // " 29 + 1 = "
            click(h, "BottoneEsci");
            QCOMPARE(h.dump()["loaded"].toArray(), QJsonArray{"Form1"});
            QCOMPARE(h.caption("EtichettaNumero") + QString::number(h.global("Esatti")), " 29 + 1 = 1");
            QCOMPARE(h.enabled("Text1"), !waiting);
            QCOMPARE(h.enabled("BottoneAvanti"), waiting);
            if (waiting) click(h, "BottoneAvanti");
        }
    }
};

QTEST_MAIN(StampaTest)
#include "stampa.moc"
