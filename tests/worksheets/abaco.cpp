// The two abacus worksheets: what each draws, kept while the sheet stays loaded, printed as it
// shows, and the way back to the exercise.

#include "shell/form.h"
#include "shell/program.h"
#include "support/harness.h"

#include <QLineEdit>
#include <QTest>

using namespace contarello;
using namespace contarello::test;

namespace {

// The exercise, then its worksheet with the eight numbers given (1 to 99).
void openSheet(Harness& h, const QString& exercise, const QList<int>& numeri) {
    h.run(R"J({"click": "BottoneAvvio"})J");
    h.rnd({0.0, 0.5});
    h.run(QStringLiteral(R"({"show": "%1"})").arg(exercise));
    for (int n : numeri)
        h.rnd({(n - 0.5) / 99});
    h.run(R"J({"menu": "mnuStampa"})J");
}

// The beads of a wire of a cell from the bottom up, 1 for each that shows.
QString beads(Harness& h, const char* kind, int cell) {
    QString s;
    for (int j = 0; j < 9; ++j)
        s += h.visible(QStringLiteral("%1(%2)").arg(QLatin1String(kind)).arg(9 * cell + j)) ? '1' : '0';
    return s;
}

// n beads from the bottom of the wire.
QString lowest(int n) {
    return QString(n, '1').leftJustified(9, '0');
}

QJsonValue numeri(Harness& h) {
    return h.dump().value("fields").toObject().value("numeri");
}

} // namespace

class AbacoSheetsTest : public QObject {
    Q_OBJECT
private slots:
    void whatEachCellShows() {
        const QList<int> numeri{10, 99, 1, 23, 40, 9, 55, 70};
        const QStringList parole{"DIECI", "NOVANTANOVE",     "UNO",     "VENTITRE", "QUARANTA",
                                 "NOVE",  "CINQUANTACINQUE", "SETTANTA"};
        Harness a, b;
        openSheet(a, "Form99a", numeri);
        QCOMPARE(a.text("Text2"), "Metti le palline sull'abaco e scrivi il numero in cifra\r\n");
        openSheet(b, "Form99b1", numeri);
        QCOMPARE(b.form(), "formSt99b");
        QCOMPARE(b.text("Text2"), "Scrivi il numero in parola e in cifre\r\n");
        for (int i = 0; i < 8; ++i) {
            QCOMPARE(a.text(QStringLiteral("Text1(%1)").arg(i)), parole[i] + " ___ ");
            QCOMPARE(beads(b, "Shape1", i), lowest(numeri[i] / 10));
            QCOMPARE(beads(b, "Shape2", i), lowest(numeri[i] % 10));
            QCOMPARE(b.text(QStringLiteral("Text1(%1)").arg(i)), QString());
        }
    }

    void keptWhileLoaded_printedAsShown_thenBack() {
        for (const QString exercise : {"Form99a", "Form99b"}) {
            const QString sheet = exercise == "Form99a" ? "formSt99a" : "formSt99b";
            Harness h;
            openSheet(h, exercise, {10, 20, 30, 40, 50, 60, 70, 80});
            const QJsonValue drawn = numeri(h);
            QCOMPARE(h.caption("mnustampa"), "Stampa   ");
            // a box written in by hand goes to the printer as it is, and stays
            h.run(R"J({"settext": "Text1(3)", "text": "quaranta 40"})J");
            h.run(R"J({"menu": "mnustampa"})J");
            const QJsonArray printed = h.events("printform");
            QCOMPARE(printed.size(), 1);
            QCOMPARE(printed.at(0).toObject().value("form").toString(), sheet);
            // shown again while loaded: the same page (Form99b draws a new question on its return)
            const bool attiva = exercise == "Form99b";
            if (attiva) h.rnd({0.0, 0.5});
            h.run(QStringLiteral(R"({"activate": "%1"})").arg(exercise));
            h.run(R"J({"menu": "mnuStampa"})J");
            QCOMPARE(h.form(), sheet);
            QCOMPARE(numeri(h), drawn);
            QCOMPARE(h.text("Text1(3)"), "quaranta 40");
            // "Esci": back to the exercise; the next sheet is a new one
            if (attiva) h.rnd({0.0, 0.5});
            h.run(R"J({"menu": "mnuesci"})J");
            QCOMPARE(h.form(), exercise);
            QVERIFY(!h.dump().value("loaded").toArray().contains(sheet));
            // and it draws up to the limit itself: under 19, from 1 to 19
            h.rnd({0.0, 0.5});
            h.run(R"J({"menu": "mnuMassimo"})J");
            h.run(R"J({"click": "OpzioneNumeroMassimo(0)"})J");
            h.rnd({0.9999, 0.0});
            h.run(R"J({"menu": "mnuStampa"})J");
            QCOMPARE(numeri(h).toArray().at(0).toInt(), 19);
            QCOMPARE(numeri(h).toArray().at(1).toInt(), 1);
        }
    }

    // Everything of the page stands inside it, the longest words and the fullest abacus too.
    void nothingFallsOffThePage() {
        for (const QString exercise : {"Form99a", "Form99b"}) {
            Harness h;
            openSheet(h, exercise, {57, 77, 67, 47, 99, 97, 87, 78});
            Form* f = h.engine.program().nav.find(h.form());
            for (Control* c : f->controls()) {
                QWidget* w = c->widget();
                if (!w) continue;
                const QString what = h.form() + ' ' + c->name();
                QVERIFY2(w->parentWidget()->rect().contains(w->geometry()), qPrintable(what)); // frames too
                if (auto* t = dynamic_cast<QLineEdit*>(w))
                    QVERIFY2(t->fontMetrics().horizontalAdvance(t->text()) <= t->width() - 8,
                             qPrintable(what));
            }
        }
    }
};

QTEST_MAIN(AbacoSheetsTest)
#include "abaco.moc"
