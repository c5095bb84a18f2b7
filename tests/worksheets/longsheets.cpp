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

// The draw that gives x as Int(Rnd * n) + m.
double drawFor(int x, int m, int n = 99) {
    return (x - m + 0.5) / n;
}

// Shapes of one kind shown in cell i, and whether they are the first ones.
int shownInCell(const QJsonObject& controls, const char* kind, int cell) {
    int n = 0;
    for (int j = 0; j < 9; ++j) {
        const bool on = controls.value(QStringLiteral("%1(%2)").arg(kind).arg(9 * cell + j))
                            .toObject()
                            .value("visible")
                            .toBool();
        if (on && n != j) return -1; // a gap: not filled in order
        n += on;
    }
    return n;
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
    // Words of 0 to one below the limit, each followed by the room for its digits.
    void wordsOnFormStampa1() {
        Harness h;
        openExercise(h, "Form999x");
        h.rnd({0.0, drawFor(98, 0), drawFor(10, 0), drawFor(1, 0), drawFor(21, 0), 0.99999, drawFor(70, 0),
               drawFor(17, 0)});
        h.run(R"({"menu": "mnuStampa"})");
        QCOMPARE(h.form(), QStringLiteral("formStampa1"));
        QCOMPARE(h.global("NumeroScheda"), 0);
        QCOMPARE(h.text("Text2"), QStringLiteral("Disegna decine e unità e scrivi il numero in cifre\r\n"));
        const QStringList expected{"ZERO ___ ",    "NOVANTOTTO ___ ", "DIECI ___ ",    "UNO ___ ",
                                   "VENTUNO ___ ", "NOVANTOTTO ___ ", "SETTANTA ___ ", "DICIASSETTE ___ "};
        QCOMPARE(boxes(h), expected);

        // Printed as it shows, a word typed by the teacher included; nothing changes.
        h.run(R"J({"settext": "Text1(0)", "text": "ZERO _0_"})J");
        h.events();
        h.run(R"({"menu": "mnustampa"})");
        const QJsonArray printed = h.events("printform");
        QCOMPARE(printed.size(), 1);
        QCOMPARE(printed[0].toObject().value("form").toString(), QStringLiteral("formStampa1"));
        QCOMPARE(boxes(h).first(), QStringLiteral("ZERO _0_"));

        // Shown again while loaded, the page keeps its words.
        h.run(R"({"activate": "Form999x"})");
        h.rnd({0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0});
        h.run(R"({"menu": "mnuStampa"})");
        QCOMPARE(h.events("load").size(), 0);
        QCOMPARE(boxes(h).mid(1), expected.mid(1));

        // Leaving it finds the exercise as it was left.
        h.run(R"({"menu": "mnuesci"})");
        QCOMPARE(h.form(), QStringLiteral("Form999x"));
        QCOMPARE(h.global("NumeroEsatto"), 42);
        QCOMPARE(h.caption("EtichettaNumero"), QStringLiteral("QUARANTADUE"));
        QVERIFY(!h.dump().value("loaded").toArray().contains("formStampa1"));
    }

    // Under a limit of 19 the page never shows 19 itself.
    void formStampa1StaysBelowTheLimit() {
        Harness h;
        openExercise(h, "Form999x");
        h.run(R"({"menu": "MenuNumeroMassimo"})");
        h.rnd({0.0, 0.0});
        h.run(R"J({"click": "OpzioneNumeroMassimo(0)"})J");
        h.rnd({0.99999, 0.99999, 0.99999, 0.99999, 0.99999, 0.99999, 0.99999, 0.99999});
        h.run(R"({"menu": "mnuStampa"})");
        QCOMPARE(boxes(h), QStringList(8, "DICIOTTO ___ "));
    }

    // Each cell a long per ten and a unit per one, from the first of its column; the boxes empty.
    void longsOnFormStampa4_data() {
        QTest::addColumn<QString>("exercise");
        QTest::newRow("from digits") << "Form999y";
        QTest::newRow("from words") << "Form999z";
    }
    void longsOnFormStampa4() {
        QFETCH(QString, exercise);
        Harness h;
        openExercise(h, exercise);
        const QList<int> numbers{10, 99, 1, 45, 7, 90, 23, 60};
        for (int n : numbers)
            h.rnd({drawFor(n, 1)});
        h.run(R"({"menu": "mnuStampa"})");
        QCOMPARE(h.form(), QStringLiteral("formStampa4"));
        QCOMPARE(h.text("Text2"), QStringLiteral("Scrivi il numero in parola e in cifre\r\n"));
        QJsonObject controls = h.dump().value("controls").toObject();
        for (int i = 0; i < 8; ++i) {
            QCOMPARE(shownInCell(controls, "Shape2", i), numbers[i] / 10);
            QCOMPARE(shownInCell(controls, "Shape1", i), numbers[i] % 10);
        }
        QCOMPARE(boxes(h), QStringList(8, QString()));

        // Back to the front, the page draws anew: here eight times the smallest number.
        h.run(QStringLiteral(R"({"activate": "%1"})").arg(exercise));
        QCOMPARE(h.global("NumeroEsatto"), 42);
        h.rnd({0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0});
        h.run(R"({"activate": "formStampa4"})");
        controls = h.dump().value("controls").toObject();
        for (int i = 0; i < 8; ++i) {
            QCOMPARE(shownInCell(controls, "Shape2", i), 0);
            QCOMPARE(shownInCell(controls, "Shape1", i), 1);
        }

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
