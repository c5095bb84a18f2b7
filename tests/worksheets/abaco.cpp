// The two abacus worksheets: what each draws, from 1 to the limit, in words that fit their boxes and
// beads that fit their wires. Printing, showing again and leaving are in pdf.cpp.

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

} // namespace

class AbacoSheetsTest : public QObject {
    Q_OBJECT
private slots:
    void theTwoSheets() {
        const QList<int> numeri{10, 99, 1, 57, 77, 67, 47, 9};
        const QStringList parole{"DIECI",         "NOVANTANOVE",   "UNO",           "CINQUANTASETTE",
                                 "SETTANTASETTE", "SESSANTASETTE", "QUARANTASETTE", "NOVE"};
        Harness a, b;
        openSheet(a, "Form99a", numeri);
        openSheet(b, "Form99b1", numeri);
        QCOMPARE(a.text("Text2"), "Metti le palline sull'abaco e scrivi il numero in cifra\r\n");
        QCOMPARE(b.form() + ' ' + b.text("Text2"), "formSt99b Scrivi il numero in parola e in cifre\r\n");
        // Words on formSt99a; on formSt99b the tens on the left wire and the units on the right, from
        // the bottom, and the boxes empty.
        const QJsonValue controls = b.dump()["controls"];
        const QString shape = QStringLiteral("Shape%1(%2)"); // Shape1 the tens, Shape2 the units
        for (int i = 0; i < 8; ++i) {
            QString beads;
            for (int j = 0; j < 18; ++j)
                beads += controls[shape.arg(1 + j / 9).arg(9 * i + j % 9)]["visible"].toBool() ? '1' : '0';
            const QString box = QStringLiteral("Text1(%1)").arg(i);
            QCOMPARE(a.text(box) + '|' + b.text(box) + '|' + beads,
                     parole[i] + " ___ ||" + QString(numeri[i] / 10, '1').leftJustified(9, '0') +
                         QString(numeri[i] % 10, '1').leftJustified(9, '0'));
        }
        // Everything stands inside the page, the longest words and the fullest abacus too.
        for (Harness* h : {&a, &b})
            for (Control* c : h->engine.program().nav.find(h->form())->controls()) {
                QWidget* w = c->widget();
                auto* t = dynamic_cast<QLineEdit*>(w);
                if (w)
                    QVERIFY2(w->parentWidget()->rect().contains(w->geometry()) &&
                                 (!t || t->fontMetrics().horizontalAdvance(t->text()) <= t->width() - 8),
                             qPrintable(c->name()));
            }
        // Left and opened again under the limit 19: from 1 to 19.
        a.script(R"J({"menu": "mnuesci"}
                     {"menu": "mnuMassimo"}
                     {"click": "OpzioneNumeroMassimo(0)"})J");
        a.rnd({0.9999, 0.0});
        a.run(R"J({"menu": "mnuStampa"})J");
        QCOMPARE(a.text("Text1(0)") + a.text("Text1(1)"), "DICIANNOVE ___ UNO ___ ");
    }
};

QTEST_MAIN(AbacoSheetsTest)
#include "abaco.moc"
