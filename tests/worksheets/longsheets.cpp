// The two drawn pages of longs and units: the words of formStampa1 and the longs and units of
// formStampa4 for the numbers drawn. Printing, showing again and leaving are in pdf.cpp.

#include "shell/form.h"
#include "shell/program.h"
#include "support/harness.h"

#include <QTest>

using namespace contarello;
using contarello::test::Harness;

namespace {

// Each cell as its text, then the longs and the units it shows (none on formStampa1), "gap" where
// they don't fill their column from the first one.
QStringList cells(Harness& h) {
    const QJsonValue controls = h.dump()["controls"];
    const QString shape = QStringLiteral("Shape%1(%2)"); // Shape2 the longs, Shape1 the units
    QStringList out;
    for (int cell = 0; cell < 8; ++cell) {
        QString s = controls[QStringLiteral("Text1(%1)").arg(cell)]["text"].toString();
        for (int kind : {2, 1}) {
            QString on;
            for (int j = 0; j < 9; ++j)
                on += controls[shape.arg(kind).arg(9 * cell + j)]["visible"].toBool() ? '1' : '0';
            s += QString::number(on.count('1')) + (on.contains("01") ? "gap" : "");
        }
        out << s;
    }
    return out;
}

// The words' size on a sheet opened at a scale, as a share of their boxes' width, and how many
// sizes the page has.
struct Parole {
    double quota = 0;
    int misure = 0;
    double punti = 0; // at scale 1
};
Parole parole(const QString& sheet, double scala, const QList<double>& draws) {
    SetScaleFactor(scala);
    Harness h;
    h.dump();
    for (double x : draws)
        h.rnd({x});
    h.run(QStringLiteral(R"({"show": "%1"})").arg(sheet));
    Form* form = h.engine.program().nav.find(sheet);
    QSet<double> sizes;
    Parole p;
    for (int i = 0; i < 8; ++i) {
        QWidget* box = form->find(QStringLiteral("Text1(%1)").arg(i))->widget();
        sizes << box->font().pointSizeF();
        p.quota = box->font().pointSizeF() / box->width();
        p.punti = box->font().pointSizeF() / scala;
    }
    p.misure = int(sizes.size());
    SetScaleFactor(1);
    return p;
}

} // namespace

class LongSheetsTest : public QObject {
    Q_OBJECT
private slots:
    // formStampa1: words of 0 to one below the limit (19 here), each with the room for its digits.
    // formStampa4: a long per ten and a unit per one, from 1 to 99, the boxes empty. Leaving finds
    // the exercise as it was, asking for its number.
    void sheets_data() {
        QTest::addColumn<QString>("exercise");
        QTest::addColumn<QString>("draws");
        QTest::addColumn<QString>("page");
        QTest::newRow("formStampa1") << "Form999x"
                                     << "[0, 0.99999, 0.56, 0.08, 0.93, 0.99999, 0.61, 0.4]"
                                     << "formStampa1 Disegna decine e unità e scrivi il numero in cifre\r\n|"
                                        "ZERO ___ 00|DICIOTTO ___ 00|DIECI ___ 00|UNO ___ 00|"
                                        "DICIASSETTE ___ 00|DICIOTTO ___ 00|UNDICI ___ 00|SETTE ___ 00";
        const QString draws = "[0.1, 0.99999, 0, 0.45, 0.07, 0.9, 0.23, 0.6]";
        const QString page = "formStampa4 Scrivi il numero in parola e in cifre\r\n|10|99|01|45|07|90|23|60";
        QTest::newRow("formStampa4 from digits") << "Form999y" << draws << page;
        QTest::newRow("formStampa4 from words") << "Form999z" << draws << page;
    }
    void sheets() {
        QFETCH(QString, exercise);
        QFETCH(QString, draws);
        QFETCH(QString, page);
        const bool words = exercise == "Form999x";
        Harness h;
        h.dump();
        h.rnd({0.0, 0.5, 0.0, 41.5 / 99}); // colour and number, twice: 42 under the limit 99
        h.run(QStringLiteral(R"({"show": "%1"})").arg(exercise));
        if (words) // the limit 19, and 1 asked
            h.script(R"J({"menu": "MenuNumeroMassimo"}
                         {"rnd": [0, 0]}
                         {"click": "OpzioneNumeroMassimo(0)"})J");
        h.run(QStringLiteral(R"({"rnd": %1})").arg(draws));
        h.run(R"({"menu": "mnuStampa"})");
        QCOMPARE(h.form() + ' ' + h.text("Text2") + '|' + cells(h).join('|'), page);
        h.run(R"({"menu": "mnuesci"})");
        QCOMPARE(h.form() + ' ' + QString::number(h.global("NumeroEsatto")),
                 exercise + (words ? " 1" : " 42"));
    }

    // All the words of a page at the one size the longest needs, the sheet's own when they all fit,
    // and in the same proportion to their boxes at scale 1 and 2.
    void oneSizeAtEveryScale_data() {
        QTest::addColumn<QString>("sheet");
        QTest::addColumn<QList<double>>("draws"); // the eight numbers
        QTest::addColumn<double>("punti");        // the size at scale 1, 0 if smaller than the sheet's
        const QList<double> corte{1.5 / 99, 2.5 / 99, 3.5 / 99, 6.5 / 99,
                                  1.5 / 99, 2.5 / 99, 3.5 / 99, 6.5 / 99};
        const QList<double> lunghe{1.5 / 99, 54.5 / 99, 2.5 / 99, 77.5 / 99,
                                   3.5 / 99, 6.5 / 99,  0.5 / 99, 1.5 / 99};
        QTest::newRow("formStampa1, short words") << "formStampa1" << corte << 9.75;
        QTest::newRow("formStampa1, CINQUANTAQUATTRO among them") << "formStampa1" << lunghe << 0.0;
        QTest::newRow("formSt99a, short words") << "formSt99a" << corte << 9.75;
        QTest::newRow("formSt99a, long words") << "formSt99a" << lunghe << 0.0;
    }
    void oneSizeAtEveryScale() {
        QFETCH(QString, sheet);
        QFETCH(QList<double>, draws);
        QFETCH(double, punti);
        const Parole uno = parole(sheet, 1, draws), due = parole(sheet, 2, draws);
        QCOMPARE(uno.misure, 1);
        QCOMPARE(due.misure, 1);
        QVERIFY2(qAbs(due.quota / uno.quota - 1) < 0.04, qPrintable(QString::number(due.quota / uno.quota)));
        if (punti > 0)
            QCOMPARE(uno.punti, punti);
        else
            QVERIFY(uno.punti < 9.75 && uno.punti >= 7);
    }
};

QTEST_MAIN(LongSheetsTest)
#include "longsheets.moc"
