// The worksheet screen opened from "più 1": the sheet and its correction for the rows and columns
// chosen, and the way back to the exercise. Its printouts are in pdf.cpp.

#include "support/harness.h"

#include <QRegularExpression>
#include <QTest>
#include <algorithm>

using namespace contarello;
using namespace contarello::test;

namespace {

void click(Harness& h, const QString& name) {
    h.run(QStringLiteral(R"J({"click": "%1"})J").arg(name));
}

// The rows of a sheet under its heading, each as the numbers standing in it.
QList<QList<int>> righeDi(const QString& testo, const QRegularExpression& cella) {
    QList<QList<int>> righe;
    const QStringList linee = testo.split(QStringLiteral("\r\n"));
    for (const QString& linea : linee.mid(3)) {
        QList<int> riga;
        for (const QRegularExpressionMatch& m : cella.globalMatch(linea))
            for (int i = 1; i <= m.lastCapturedIndex(); ++i)
                riga << m.captured(i).toInt();
        if (!riga.isEmpty()) righe << riga;
    }
    return righe;
}

// The "più 1" sheet of so many rows and columns, and its correction: every exercise n + 1 on the
// sheet stands in the same place on the correction with n + 1 worked out.
void checkSheet(Harness& h, int righe, int colonne) {
    QVERIFY(h.text("txtCD").startsWith(QStringLiteral("\r\n        ESEGUI LE ADDIZIONI\r\n\r\n")));
    const auto foglio = righeDi(h.text("txtCD"), QRegularExpression(QStringLiteral(R"((\d+) \+ 1 = ___)")));
    const auto correzione =
        righeDi(h.text("TextCor"), QRegularExpression(QStringLiteral(R"((\d+) \+ 1 = +(\d+))")));
    QCOMPARE(foglio.size(), righe);
    QCOMPARE(correzione.size(), righe);
    for (int r = 0; r < righe; ++r) {
        QCOMPARE(foglio[r].size(), colonne);
        QCOMPARE(correzione[r].size(), 2 * colonne);
        for (int c = 0; c < colonne; ++c) {
            QCOMPARE(correzione[r][2 * c], foglio[r][c]);
            QCOMPARE(correzione[r][2 * c + 1], foglio[r][c] + 1);
            QVERIFY(foglio[r][c] >= 0 && foglio[r][c] < 99);
        }
    }
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
        h.run(R"({"menu": "mnuStampa"})");
        QCOMPARE(h.dump()["loaded"].toArray(), (QJsonArray{"Form1", "formStampa"}));
        checkSheet(h, 5, 2);
        QVERIFY(!h.visible("TextCor") && !h.visible("List1") &&
                !h.control("OptionRighe(1)")["value"].toBool());
        for (int i = 0; i < clicks.size() - 1; ++i)
            click(h, clicks[i]);
        const bool again = clicks.last() == "Form1";
        if (again) h.run(R"({"activate": "Form1"})"); // a new question first
        again ? void(h.run(R"({"menu": "mnuStampa"})")) : click(h, clicks.last());
        checkSheet(h, righe, colonne);
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
        click(h, "Command2");
        QVERIFY(
            h.text("txtCD").startsWith(QStringLiteral("\r\nOrdina i numeri dal minore al maggiore \r\n")));
        const QRegularExpression numero(QStringLiteral(R"((\d+))"));
        QList<QList<int>> foglio = righeDi(h.text("txtCD"), numero),
                          correzione = righeDi(h.text("TextCor"), numero);
        QVERIFY(foglio.size() >= 5);
        QCOMPARE(correzione.size(), foglio.size());
        for (int r = 0; r < foglio.size(); ++r) {
            QCOMPARE(foglio[r].size(), 8);
            QVERIFY(std::is_sorted(correzione[r].begin(), correzione[r].end()));
            std::sort(foglio[r].begin(), foglio[r].end());
            QCOMPARE(correzione[r], foglio[r]);
        }
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
