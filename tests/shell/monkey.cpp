// Random use of the whole program, seeded so that a failure can be replayed: clicks, menu items,
// keys typed and held, pastes, drags, all three mouse buttons, windows brought to the front and
// closed, over every screen the menus lead to. After each action the program must still hold
// together: one active screen, one face, counters that agree with their labels, questions that
// can be answered.
//
// CONTARELLO_MONKEY_ACTIONS and CONTARELLO_MONKEY_SEED make a longer run of one seed
// (scripts/monkey.sh runs one per core).

#include "support/monkey.h"
#include "app/screens.h"

#include <QTest>

using namespace contarello;
using namespace contarello::test;

class MonkeyTest : public QObject {
    Q_OBJECT
private slots:
    void randomUse_data() {
        QTest::addColumn<unsigned>("seed");
        if (qEnvironmentVariableIsSet("CONTARELLO_MONKEY_SEED")) {
            QTest::newRow("seed from the environment")
                << unsigned(qEnvironmentVariableIntValue("CONTARELLO_MONKEY_SEED"));
            return;
        }
        for (unsigned seed : {1u, 2u, 3u})
            QTest::addRow("seed %u", seed) << seed;
    }
    void randomUse() {
        QFETCH(unsigned, seed);
        const long actions = qEnvironmentVariableIsSet("CONTARELLO_MONKEY_ACTIONS")
                                 ? qEnvironmentVariable("CONTARELLO_MONKEY_ACTIONS").toLong()
                                 : 6000;
        Monkey monkey(seed);
        const bool held = monkey.run(actions);
        visited_ += monkey.visited();
        answers_ += monkey.answersChecked();
        if (!held) QFAIL(qPrintable(QStringLiteral("seed %1, ").arg(seed) + monkey.failure()));
        qInfo("seed %u: %ld actions, %d screens, %d answers checked, %d runs ended", seed, actions,
              int(monkey.visited().size()), monkey.answersChecked(), monkey.programsEnded());
    }

    // The menus lead to every screen there is, and typed answers were really put to the test.
    void everyScreenWasReached() {
        QStringList missed;
        for (const FormEntry& e : FormTable())
            if (!visited_.contains(QLatin1String(e.name))) missed.append(QLatin1String(e.name));
        QVERIFY2(missed.isEmpty(), qPrintable(QStringLiteral("never reached: ") + missed.join(u' ')));
        QVERIFY(answers_ > 0);
    }

private:
    QSet<QString> visited_;
    int answers_ = 0;
};

QTEST_MAIN(MonkeyTest)
#include "monkey.moc"
