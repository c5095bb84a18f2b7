// A child at the touch panel: screens reached from the start screen and answered by fingers alone
// (tap, hold, swipe, and the keypad that the first touch brings), through real touch events; and
// what a finger does that a mouse doesn't: a short rest, a slide that ends nowhere, a second finger.

#include "shell/touch.h"
#include "driver/touchscreen.h"
#include "shell/form.h"
#include "support/harness.h"

#include <QJsonDocument>
#include <QTest>
#include <QWindow>

using namespace contarello;
using namespace contarello::test;

namespace {

// One line of a finger's script: "tap X", "hold X", "swipe X Y", "keys 12" (the keypad's keys, then
// Invio), "rnd a b" (draws queued).
void finger(Harness& h, const QString& line) {
    const QStringList w = line.split(' ', Qt::SkipEmptyParts);
    const QString verb = w.value(0);
    if (verb == u"rnd") {
        for (qsizetype i = 1; i < w.size(); ++i)
            h.rnd({w[i].toDouble()});
    } else if (verb == u"keys") {
        for (QChar c : w.value(1))
            h.run(QStringLiteral(R"({"tap": "Tasto%1"})").arg(c));
        h.run(R"({"tap": "TastoInvio"})");
    } else if (verb == u"swipe") {
        h.run(QStringLiteral(R"({"swipe": "%1", "to": "%2"})").arg(w.value(1), w.value(2)));
    } else {
        h.run(QStringLiteral(R"({"%1": "%2"})").arg(verb, w.value(1)));
    }
}

// The draw that gives k from Int(Rnd * n).
QString v(int k, int n) {
    return QString::number((k + 0.5) / n, 'g', 12);
}

} // namespace

class TouchTest : public QObject {
    Q_OBJECT
private slots:
    // From the start screen, one question answered right by fingers only; "worksheet" is the
    // event the last finger must leave, "" for a right answer counted.
    void answered_data() {
        QTest::addColumn<QStringList>("script");
        QTest::addColumn<QString>("expected");
        const QString numeri = "tap BottoneAvvio|tap Command3|", grafici = "tap BottoneAvvio|tap Command2|";
        // clang-format off
        QTest::newRow("a number screen: più 1, 11 + 1")
            << (numeri + "rnd " + v(11, 99) + " 0|tap Command37|keys 12").split('|') << "";
        // Swiped for now; two taps each once the pick-up-and-place of the keyboard is in (tap Lda1,
        // tap Eda1, and so on).
        QTest::newRow("a column addition with a carry: 37 + 33")
            << (numeri + "rnd 0 " + v(50, 79) + " " + v(36, 70) + "|tap Command22|"
                "swipe Lda1 Eda1|swipe Lu1 Eu1|swipe Lda2 Eda2|swipe Lu2 Eu2|keys 10|"
                "swipe CambioUp CambioUa|tap Edar|keys 7").split('|') << "";
        QTest::newRow("the worksheet screen's Stampa scheda")
            << (numeri + "tap Command37|tap mnuStampa|tap btnCD").split('|') << "print";
        // clang-format on
        Q_UNUSED(grafici);
    }
    void answered() {
        QFETCH(QStringList, script);
        QFETCH(QString, expected);
        Harness h;
        for (const QString& line : script)
            finger(h, line);
        if (expected.isEmpty())
            QCOMPARE(h.global("Esatti"), 1);
        else
            QVERIFY2(!h.events(expected).isEmpty(), qPrintable(script.last()));
    }

    // A finger that lifts before the threshold is a tap; one that rests past it is the right button
    // on a control that takes one, and on a button nothing more than a slow tap.
    void rests_data() {
        QTest::addColumn<int>("ms");
        QTest::addColumn<QString>("expected");
        QTest::newRow("short") << kHoldMs - 100 << "1";
        QTest::newRow("long") << kHoldMs + 100 << "2";
    }
    void rests() {
        QFETCH(int, ms);
        QFETCH(QString, expected);
        Harness h;
        h.run(R"({"show": "Form99a"})");
        Control* bead = nullptr;
        Form* form = h.engine.program().nav.active();
        QString buttons;
        for (Control* c : form->controls())
            if (auto* b = dynamic_cast<CommandButton*>(c); b && b->name().startsWith("Bot_")) {
                bead = c;
                b->MouseDown = [&buttons](int button, int, int, int) { buttons += QString::number(button); };
                break;
            }
        QVERIFY(bead);
        h.run(QStringLiteral(R"({"hold": "%1", "ms": %2})").arg(bead->name()).arg(ms));
        QCOMPARE(buttons, expected);
    }

    // A digit slid onto nothing, or onto a cell that isn't its own, changes nothing; a second finger
    // that lands while the first slides neither takes the digit nor places it.
    void slides() {
        Harness h;
        h.rnd({0.0, (50 + 0.5) / 79, (36 + 0.5) / 70});
        h.run(R"({"show": "FormCol2"})");
        const QString before = h.caption("Eda1") + '|' + h.caption("Lda1");
        h.run(R"({"swipe": "Lda1", "to": "Label3"})");
        h.run(R"({"swipe": "Lda1", "to": "Eu2"})");
        QCOMPARE(h.caption("Eda1") + '|' + h.caption("Lda1"), before);

        Form* form = h.engine.program().nav.active();
        QPoint from, to, other;
        QWindow* window = nullptr;
        QVERIFY(TouchPoint(*form->find("Lda1"), from, window) &&
                TouchPoint(*form->find("Eda1"), to, window) &&
                TouchPoint(*form->find("Label3"), other, window));
        TouchScreen screen;
        screen.land(window, {1, other}); // the first finger rests on the instruction
        screen.land(window, {2, from});  // the second finger, on the digit
        for (int step = 1; step <= 4; ++step)
            screen.move(window, {2, from + (to - from) * step / 4});
        screen.lift(window, {2, to});
        screen.lift(window, {1, other});
        QCOMPARE(h.caption("Eda1") + '|' + h.caption("Lda1"), before);
        // The first finger alone does it.
        h.run(R"({"swipe": "Lda1", "to": "Eda1"})");
        QCOMPARE(h.caption("Eda1"), h.caption("Lda1"));
    }
};

QTEST_MAIN(TouchTest)
#include "touch.moc"
