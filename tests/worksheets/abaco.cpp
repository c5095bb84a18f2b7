// The two abacus worksheets: what each draws, kept while the sheet stays loaded, printed as it
// shows, and the way back to the exercise.

#include "shell/form.h"
#include "shell/program.h"
#include "support/harness.h"

#include <QJsonDocument>
#include <QLineEdit>
#include <QTest>

using namespace contarello;
using namespace contarello::test;

namespace {

double drawFor(int e, int n = 99) {
    return (e - 1 + 0.5) / n;
}

// The exercise, then its worksheet with the eight numbers given.
void openSheet(Harness& h, const QString& exercise, const QList<int>& numeri) {
    h.run(R"J({"click": "BottoneAvvio"})J");
    h.rnd({0.0, 0.5});
    h.run(QStringLiteral(R"({"show": "%1"})").arg(exercise));
    for (int n : numeri)
        h.rnd({drawFor(n)});
    h.run(R"J({"menu": "mnuStampa"})J");
    h.events();
}

int visibleBeads(Harness& h, const char* kind, int cell) {
    int n = 0;
    for (int j = 0; j < 9; ++j)
        n += h.visible(QStringLiteral("%1(%2)").arg(QLatin1String(kind)).arg(9 * cell + j));
    return n;
}

} // namespace

class AbacoSheetsTest : public QObject {
    Q_OBJECT
private slots:
    void whatEachCellShows() {
        const QList<int> numeri{10, 99, 1, 23, 40, 9, 55, 70};
        const QStringList parole{"DIECI", "NOVANTANOVE",     "UNO",     "VENTITRE", "QUARANTA",
                                 "NOVE",  "CINQUANTACINQUE", "SETTANTA"};
        Harness a;
        openSheet(a, "Form99a", numeri);
        QCOMPARE(a.form(), QStringLiteral("formSt99a"));
        QCOMPARE(a.text("Text2"),
                 QStringLiteral("Metti le palline sull'abaco e scrivi il numero in cifra\r\n"));
        for (int i = 0; i < 8; ++i)
            QCOMPARE(a.text(QStringLiteral("Text1(%1)").arg(i)), parole[i] + " ___ ");

        Harness b;
        openSheet(b, "Form99b1", numeri);
        QCOMPARE(b.form(), QStringLiteral("formSt99b"));
        QCOMPARE(b.text("Text2"), QStringLiteral("Scrivi il numero in parola e in cifre\r\n"));
        for (int i = 0; i < 8; ++i) {
            QCOMPARE(visibleBeads(b, "Shape1", i), numeri[i] / 10);
            QCOMPARE(visibleBeads(b, "Shape2", i), numeri[i] % 10);
            // from the bottom of the wire: the lowest beads show
            if (numeri[i] % 10) QVERIFY(b.visible(QStringLiteral("Shape2(%1)").arg(9 * i)));
            QCOMPARE(b.text(QStringLiteral("Text1(%1)").arg(i)), QString());
        }
    }

    // The top of the range is the limit itself; the panel's 19 gives 19.
    void theLimitComesToo() {
        Harness h;
        h.run(R"J({"click": "BottoneAvvio"})J");
        h.rnd({0.0, 0.5});
        h.run(R"J({"show": "Form99b"})J");
        h.rnd({0.0, 0.5});
        h.run(R"J({"menu": "mnuMassimo"})J");
        h.run(R"J({"click": "OpzioneNumeroMassimo(0)"})J");
        h.rnd({0.9999, 0.0, 0.9999, 0.0, 0.9999, 0.0, 0.9999, 0.0});
        h.run(R"J({"menu": "mnuStampa"})J");
        QCOMPARE(visibleBeads(h, "Shape1", 0), 1);
        QCOMPARE(visibleBeads(h, "Shape2", 0), 9);
        QCOMPARE(visibleBeads(h, "Shape1", 1), 0);
        QCOMPARE(visibleBeads(h, "Shape2", 1), 1);
    }

    void keptWhileLoaded_printedAsShown_thenBack() {
        for (const QString exercise : {"Form99a", "Form99b"}) {
            const QString sheet = exercise == "Form99a" ? "formSt99a" : "formSt99b";
            Harness h;
            openSheet(h, exercise, {10, 20, 30, 40, 50, 60, 70, 80});
            const QJsonValue numeri = h.dump().value("fields").toObject().value("numeri");
            QCOMPARE(numeri.toArray().at(7).toInt(), 80);
            QCOMPARE(h.caption("mnustampa"), QStringLiteral("Stampa   "));
            QVERIFY(h.dump().value("loaded").toArray().contains(exercise));

            // a box written in by hand goes to the printer as it is, and stays
            h.run(R"J({"settext": "Text1(3)", "text": "quaranta 40"})J");
            h.run(R"J({"menu": "mnustampa"})J");
            const QJsonArray printed = h.events("printform");
            QCOMPARE(printed.size(), 1);
            QCOMPARE(printed.at(0).toObject().value("form").toString(), sheet);
            QCOMPARE(h.text("Text1(3)"), QStringLiteral("quaranta 40"));

            // shown again while loaded: the same page
            // (Form99b draws a new question each time it comes back: a colour and a number)
            const bool attiva = exercise == "Form99b";
            if (attiva) h.rnd({0.0, 0.5});
            h.run(QStringLiteral(R"({"activate": "%1"})").arg(exercise));
            h.run(R"J({"menu": "mnuStampa"})J");
            QCOMPARE(h.form(), sheet);
            QCOMPARE(h.dump().value("fields").toObject().value("numeri"), numeri);
            QCOMPARE(h.text("Text1(3)"), QStringLiteral("quaranta 40"));

            // "Esci": back to the exercise; the next sheet is a new one
            if (attiva) h.rnd({0.0, 0.5});
            h.run(R"J({"menu": "mnuesci"})J");
            QCOMPARE(h.form(), exercise);
            QVERIFY(!h.dump().value("loaded").toArray().contains(sheet));
            for (int i = 0; i < 8; ++i)
                h.rnd({drawFor(5)});
            h.run(R"J({"menu": "mnuStampa"})J");
            QCOMPARE(h.dump().value("fields").toObject().value("numeri").toArray().at(0).toInt(), 5);
        }
    }

    // Everything of the page stands inside it, the beads inside their frames.
    void nothingFallsOffThePage() {
        for (const QString exercise : {"Form99a", "Form99b"}) {
            Harness h;
            // the longest words, and the fullest abacus
            openSheet(h, exercise, {57, 77, 67, 47, 99, 97, 87, 78});
            Form* f = h.engine.program().nav.find(h.form());
            const QRect area = f->client()->rect();
            for (Control* c : f->controls()) {
                QWidget* w = c->widget();
                if (!w) continue;
                const QRect inParent = w->parentWidget()->rect();
                QVERIFY2(inParent.contains(w->geometry()), qPrintable(h.form() + ' ' + c->name()));
                QVERIFY2(area.contains(QRect(w->mapTo(f->client(), QPoint()), w->size())),
                         qPrintable(h.form() + ' ' + c->name()));
                if (auto* t = dynamic_cast<QLineEdit*>(w))
                    QVERIFY2(t->fontMetrics().horizontalAdvance(t->text()) <= t->width() - 8,
                             qPrintable(t->text()));
            }
        }
    }
};

QTEST_MAIN(AbacoSheetsTest)
#include "abaco.moc"
