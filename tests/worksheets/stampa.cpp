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

// Draws for a sheet, spread over the range so that each cell differs.
QList<double> draws(int count, double start = 0.11) {
    QList<double> v;
    for (int i = 0; i < count; ++i)
        v << std::fmod(start + 0.137 * i, 1.0);
    return v;
}

void queue(Harness& h, const QList<double>& values) {
    QJsonArray a;
    for (double v : values)
        a.append(v);
    act(h, {{"rnd", a}});
}

// The sheet of "più 1" for these draws, made apart from the screen.
Scheda expected(int righe, int colonne, const QList<double>& values) {
    ScriptedRandom rnd;
    for (double v : values)
        rnd.queue(v);
    Modulo1 g;
    g.NumeroMassimo = 99;
    return FaiScheda(9, {righe, colonne, {}, {}}, g, rnd);
}

// Form1 asking " 11 + 1 = ", then its worksheet made from the given draws.
void openSheet(Harness& h, const QList<double>& sheet) {
    h.dump();
    h.rnd({11.5 / 99, 0.0});
    act(h, {{"show", "Form1"}});
    queue(h, sheet);
    act(h, {{"menu", "mnuStampa"}});
    h.events();
}

QJsonObject onlyPrint(Harness& h) {
    const QJsonArray prints = h.events(QStringLiteral("print"));
    if (prints.size() != 1) QTest::qFail("not one printout", __FILE__, __LINE__);
    return prints.isEmpty() ? QJsonObject() : prints.last().toObject();
}

QJsonObject fields(Harness& h) {
    return h.dump().value("fields").toObject();
}

const QJsonObject kAttivazione{{"NumeroRighe", 5}, {"NumeroColonne", 2}, {"GrandezzaCarattere", 12}};

} // namespace

class StampaTest : public QObject {
    Q_OBJECT
private slots:
    void opensOverTheExercise() {
        Harness h;
        const QList<double> d = draws(10);
        openSheet(h, d);
        const QJsonObject dump = h.dump();
        QCOMPARE(dump.value("form").toString(), QStringLiteral("formStampa"));
        QCOMPARE(dump.value("loaded").toArray(), (QJsonArray{"Form1", "formStampa"}));
        QCOMPARE(dump.value("backcolor").toString(), QStringLiteral("#ffff00"));
        QCOMPARE(h.global("NumeroScheda"), 9);
        QCOMPARE(fields(h), kAttivazione);
        const Scheda s = expected(5, 2, d);
        QCOMPARE(h.text("txtCD"), s.txtCD);
        QCOMPARE(h.text("TextCor"), s.TextCor);
        QVERIFY(!h.visible("TextCor"));
        QVERIFY(!h.visible("List1"));
        QVERIFY(!h.control("OptionRighe(1)").value("value").toBool()); // 5 rows, but not chosen
        QVERIFY(h.control("OptionCarattere(1)").value("value").toBool());
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
        openSheet(h, draws(10));
        const QString before = h.text("txtCD");
        // Only the last click's draws are scripted: the sheet must come from them alone.
        const QList<double> last = draws(righe * colonne, 0.03);
        for (int i = 0; i < clicks.size(); ++i) {
            if (i == clicks.size() - 1) queue(h, last);
            click(h, clicks[i]);
        }
        QCOMPARE(fields(h).value("NumeroRighe").toInt(), righe);
        QCOMPARE(fields(h).value("NumeroColonne").toInt(), colonne);
        const Scheda s = expected(righe, colonne, last);
        QCOMPARE(h.text("txtCD"), s.txtCD);
        QCOMPARE(h.text("TextCor"), s.TextCor);
        QVERIFY(h.text("txtCD") != before);
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
        openSheet(h, draws(10));
        // Six columns make rows wider than either printout: each breaks at its own width.
        const QList<double> d = draws(30);
        queue(h, d);
        click(h, QStringLiteral("OptionColonne(5)"));
        const QString edited = h.text("txtCD") + QStringLiteral("    Nome: ____________\r\n");
        act(h, {{"settext", "txtCD"}, {"text", edited}});
        if (option != 1) click(h, QStringLiteral("OptionCarattere(1)"));
        click(h, QStringLiteral("OptionCarattere(%1)").arg(option));
        QCOMPARE(h.text("txtCD"), edited);
        QCOMPARE(h.control("txtCD").value("fontsize").toDouble(), double(size));
        QCOMPARE(fields(h).value("GrandezzaCarattere").toInt(), size);

        click(h, QStringLiteral("btnCD"));
        const QJsonObject sheet = onlyPrint(h);
        QCOMPARE(sheet.value("font").toString(), QStringLiteral("MS Sans Serif"));
        QCOMPARE(sheet.value("size").toDouble(), double(size));
        QCOMPARE(sheet.value("text").toString(), AndaACapo(edited, 100));
        click(h, QStringLiteral("Command1"));
        const QJsonObject correction = onlyPrint(h);
        QCOMPARE(correction.value("size").toDouble(), double(size));
        QCOMPARE(correction.value("text").toString(), AndaACapo(expected(5, 6, d).TextCor, 90));
        QVERIFY(!correction.value("text").toString().contains("Nome"));
        QCOMPARE(h.text("txtCD"), edited); // printing changes nothing
    }

    void anEmptySheetPrintsOneLineEnd() {
        Harness h;
        openSheet(h, draws(10));
        act(h, {{"settext", "txtCD"}, {"text", ""}});
        click(h, QStringLiteral("btnCD"));
        QCOMPARE(onlyPrint(h).value("text").toString(), QStringLiteral("\r\n"));
    }

    void anUnknownWorksheetLeavesBothBoxesEmpty() {
        Harness h;
        h.dump();
        h.engine.program().g.NumeroScheda = 25;
        act(h, {{"show", "formStampa"}});
        QCOMPARE(h.text("txtCD"), QString());
        QCOMPARE(h.text("TextCor"), QString());
        click(h, QStringLiteral("Command2"));
        QCOMPARE(h.text("txtCD"), QString());
    }

    // Back at the front while still loaded, the screen starts over in 5 rows, 2 columns and size 12,
    // though its option buttons and its box still show the last choice.
    void comingBackStartsOverButKeepsTheOptions() {
        Harness h;
        openSheet(h, draws(10));
        click(h, QStringLiteral("OptionRighe(0)"));
        click(h, QStringLiteral("OptionCarattere(2)"));
        act(h, {{"activate", "Form1"}});
        QCOMPARE(h.form(), QStringLiteral("Form1"));
        const QList<double> d = draws(10, 0.5);
        queue(h, d);
        act(h, {{"menu", "mnuStampa"}});
        QCOMPARE(h.form(), QStringLiteral("formStampa"));
        QCOMPARE(fields(h), kAttivazione);
        QCOMPARE(h.text("txtCD"), expected(5, 2, d).txtCD);
        QVERIFY(h.control("OptionRighe(0)").value("value").toBool());
        QVERIFY(h.control("OptionCarattere(2)").value("value").toBool());
        QCOMPARE(h.control("txtCD").value("fontsize").toDouble(), 14.0);
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
        act(h, {{"show", "Form1"}});
        act(h, {{"type", "Text1"}, {"text", "12"}});
        act(h, {{"key", "Text1"}, {"code", 13}});
        if (!waiting) click(h, QStringLiteral("BottoneAvanti"));
        act(h, {{"menu", "mnuStampa"}});
        h.rnd({29.5 / 99, 0.0}); // " 29 + 1 = "
        click(h, QStringLiteral("BottoneEsci"));
        const QJsonObject dump = h.dump();
        QCOMPARE(dump.value("form").toString(), QStringLiteral("Form1"));
        QCOMPARE(dump.value("loaded").toArray(), QJsonArray{"Form1"});
        QCOMPARE(h.caption("EtichettaNumero"), QStringLiteral(" 29 + 1 = "));
        QCOMPARE(h.global("Esatti"), 1);
        QCOMPARE(h.caption("EtichettaEsatti"), QStringLiteral(" 1"));
        QCOMPARE(h.enabled("Text1"), !waiting);
        QCOMPARE(h.enabled("BottoneAvanti"), waiting);
    }
};

QTEST_MAIN(StampaTest)
#include "stampa.moc"
