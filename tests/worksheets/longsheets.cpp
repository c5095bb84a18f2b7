// The two drawn pages of longs and units: what each draws, when it draws anew, printing and leaving.

#include "support/harness.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

using namespace contarello;
using namespace contarello::test;

namespace {

// Opens an exercise asking for 42 under the limit 99 (two questions on Load: colour and number each).
void openExercise(Harness& h, const QString& form) {
    h.dump();
    h.rnd({0.0, 0.5, 0.0, 41.5 / 99});
    h.run(QStringLiteral(R"({"show": "%1"})").arg(form));
}

// Each cell of formStampa4 as the number its longs and units make; "gap" where they don't fill in
// order from the first one.
QStringList cells(Harness& h) {
    const QJsonObject controls = h.dump().value("controls").toObject();
    QStringList out;
    for (int cell = 0; cell < 8; ++cell) {
        int n[2] = {0, 0};
        bool gap = false;
        for (int k = 0; k < 2; ++k)
            for (int j = 0; j < 9; ++j) {
                const QString name = QStringLiteral("Shape%1(%2)").arg(2 - k).arg(9 * cell + j);
                const bool on = controls.value(name).toObject().value("visible").toBool();
                gap |= on && n[k] != j;
                n[k] += on;
            }
        out << (gap ? QStringLiteral("gap") : QString::number(10 * n[0] + n[1]));
    }
    return out;
}

QStringList boxes(Harness& h) {
    const QJsonObject controls = h.dump().value("controls").toObject();
    QStringList out;
    for (int i = 0; i < 8; ++i)
        out << controls.value(QStringLiteral("Text1(%1)").arg(i)).toObject().value("text").toString();
    return out;
}

} // namespace

class LongSheetsTest : public QObject {
    Q_OBJECT
private slots:
    // Words of 0 to one below the limit (19 here), each followed by the room for its digits; kept while
    // the page stays loaded, printed as it shows.
    void wordsOnFormStampa1() {
        Harness h;
        openExercise(h, "Form999x");
        h.run(R"({"menu": "MenuNumeroMassimo"})");
        h.rnd({0.0, 0.0});
        h.run(R"J({"click": "OpzioneNumeroMassimo(0)"})J");
        h.rnd({0.0, 0.99999, 10.5 / 19, 1.5 / 19, 17.5 / 19, 0.99999, 11.5 / 19, 7.5 / 19});
        h.run(R"({"menu": "mnuStampa"})");
        QCOMPARE(h.form(), "formStampa1");
        QCOMPARE(h.global("NumeroScheda"), 0);
        QCOMPARE(h.text("Text2"), "Disegna decine e unità e scrivi il numero in cifre\r\n");
        const QStringList expected{"ZERO ___ ",        "DICIOTTO ___ ", "DIECI ___ ",  "UNO ___ ",
                                   "DICIASSETTE ___ ", "DICIOTTO ___ ", "UNDICI ___ ", "SETTE ___ "};
        QCOMPARE(boxes(h), expected);

        h.run(R"J({"settext": "Text1(0)", "text": "ZERO _0_"})J");
        h.events();
        h.run(R"({"menu": "mnustampa"})");
        QCOMPARE(h.events("printform").size(), 1);
        h.run(R"({"activate": "Form999x"})");
        h.rnd({0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0});
        h.run(R"({"menu": "mnuStampa"})");
        QCOMPARE(boxes(h), QStringList{"ZERO _0_"} + expected.mid(1));

        // Leaving it finds the exercise as it was left.
        h.run(R"({"menu": "mnuesci"})");
        QCOMPARE(h.form(), "Form999x");
        QCOMPARE(h.caption("EtichettaNumero"), "UNO");
        QVERIFY(!h.dump().value("loaded").toArray().contains("formStampa1"));
    }

    // Each cell a long per ten and a unit per one, from the first of its column; the boxes empty; drawn
    // anew each time the page comes to the front.
    void longsOnFormStampa4_data() {
        QTest::addColumn<QString>("exercise");
        QTest::newRow("from digits") << "Form999y";
        QTest::newRow("from words") << "Form999z";
    }
    void longsOnFormStampa4() {
        QFETCH(QString, exercise);
        Harness h;
        openExercise(h, exercise);
        h.rnd({9.5 / 99, 0.99999, 0.0, 44.5 / 99, 6.5 / 99, 89.5 / 99, 22.5 / 99, 59.5 / 99});
        h.run(R"({"menu": "mnuStampa"})");
        QCOMPARE(h.form(), "formStampa4");
        QCOMPARE(h.text("Text2"), "Scrivi il numero in parola e in cifre\r\n");
        QCOMPARE(cells(h), (QStringList{"10", "99", "1", "45", "7", "90", "23", "60"}));
        QCOMPARE(boxes(h), QStringList(8, QString()));

        h.run(QStringLiteral(R"({"activate": "%1"})").arg(exercise));
        h.rnd({0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0});
        h.run(R"({"activate": "formStampa4"})");
        QCOMPARE(cells(h), QStringList(8, "1"));

        h.events();
        h.run(R"({"menu": "mnustampa"})");
        QCOMPARE(h.events("printform").size(), 1);
        h.run(R"({"menu": "mnuesci"})");
        QCOMPARE(h.form(), exercise);
        QCOMPARE(h.global("NumeroEsatto"), 42);
    }
};

QTEST_MAIN(LongSheetsTest)
#include "longsheets.moc"
