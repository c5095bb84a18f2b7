// What a finger does that a mouse doesn't: a short rest, a slide that ends nowhere, a second finger.
// (Every family of screens answered by fingers alone is in hands.cpp.)

#include "shell/touch.h"
#include "driver/touchscreen.h"
#include "shell/form.h"
#include "support/harness.h"

#include <QTest>
#include <QWindow>

using namespace contarello;
using namespace contarello::test;

class TouchTest : public QObject {
    Q_OBJECT
private slots:
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
