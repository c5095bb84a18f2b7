// Seeded random use of the whole program: clicks, menus, keys typed and held, pastes, drags, all
// mouse buttons, windows brought forward and closed. One long run from the start screen, then a
// short one from each exercise of the two menus and each of their worksheets, reached as a child
// would. After each action the program must hold together (see support/monkey.h).
// CONTARELLO_MONKEY_SEED and CONTARELLO_MONKEY_ACTIONS make one longer run (scripts/monkey.sh),
// which reports its time, resident memory and heap as it goes: a slope there is memory not given
// back.

#include "support/monkey.h"
#include "app/screens.h"
#include "shell/qtservices.h"
#include "support/memory.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QTest>

using namespace contarello;
using namespace contarello::test;

namespace {

using Route = std::vector<QJsonObject>;

QJsonObject dumpAfter(const Route& route) {
    DriverEngine engine;
    for (const QJsonObject& c : route)
        engine.execute(c);
    return engine.execute({{"dump", true}});
}

// Every way from the start screen into an exercise, and on to its worksheet where it has one.
QList<QPair<QString, Route>> Routes() {
    QList<QPair<QString, Route>> routes;
    for (const QString menu : {"Command3", "Command2"}) {
        const Route toMenu = {{{"click", "BottoneAvvio"}}, {{"click", menu}}};
        for (const QString& button : dumpAfter(toMenu).value("controls").toObject().keys()) {
            if (!button.startsWith("Command") || button == "Command1") continue;
            Route way = toMenu;
            way.push_back({{"click", button}});
            const QJsonObject d = dumpAfter(way);
            routes.append({d.value("form").toString(), way});
            if (!d.value("controls").toObject().contains("mnuStampa")) continue;
            way.push_back({{"menu", "mnuStampa"}});
            routes.append({d.value("form").toString() + " worksheet", way});
        }
    }
    return routes;
}

} // namespace
Q_DECLARE_METATYPE(Route)

class MonkeyTest : public QObject {
    Q_OBJECT
private slots:
    // The toolkit as the program sets it up: its style and its fonts.
    void initTestCase() { PrepareToolkit(*static_cast<QApplication*>(QCoreApplication::instance())); }

    void randomUse_data() {
        QTest::addColumn<unsigned>("seed");
        QTest::addColumn<Route>("route");
        QTest::addColumn<long>("actions");
        if (qEnvironmentVariableIsSet("CONTARELLO_MONKEY_SEED")) {
            QTest::newRow("seed from the environment")
                << unsigned(qEnvironmentVariableIntValue("CONTARELLO_MONKEY_SEED")) << Route{}
                << qEnvironmentVariable("CONTARELLO_MONKEY_ACTIONS", "1000000").toLong();
            return;
        }
        QTest::newRow("from the start screen") << 1u << Route{} << 2000L;
        unsigned seed = 100;
        for (const auto& [screen, route] : Routes())
            QTest::addRow("from %s", qPrintable(screen)) << seed++ << route << 120L;
    }
    void randomUse() {
        QFETCH(unsigned, seed);
        QFETCH(Route, route);
        QFETCH(long, actions);
        Monkey monkey(seed, route);
        // A long run in twentieths, each reported.
        const long part = actions >= 20000 ? actions / 20 : actions;
        QElapsedTimer clock;
        clock.start();
        bool held = true;
        for (long done = 0; held && done < actions; done += part) {
            held = monkey.run(std::min(part, actions - done));
            if (part < actions)
                qInfo("%ld actions, %.0f s, %.1f MB resident, %.2f MB heap, %d programs ended, "
                      "%d answers checked",
                      std::min(done + part, actions), clock.elapsed() / 1000.0, ResidentMB(),
                      HeapInUse() / 1048576.0, monkey.programsEnded(), monkey.answersChecked());
        }
        visited_ += monkey.visited();
        answers_ += monkey.answersChecked();
        if (!held) QFAIL(qPrintable(QStringLiteral("seed %1, ").arg(seed) + monkey.failure()));
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
