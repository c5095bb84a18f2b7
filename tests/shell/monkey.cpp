// Random use of the whole program, seeded so that a failure can be replayed: clicks, menu items,
// keys typed and held, pastes, drags, all three mouse buttons, windows brought to the front and
// closed. One run wanders from the start screen; then one run sets off from each button of the two
// exercise menus (and from each of those exercises' worksheets), reached through the menus as a
// child would, so that every screen there is gets its share however many there are. After each
// action the program must still hold together: one active screen, one face, counters that agree
// with their labels, questions that can be answered.
//
// CONTARELLO_MONKEY_ACTIONS and CONTARELLO_MONKEY_SEED make a longer run of one seed from the start
// screen (scripts/monkey.sh runs one per core).

#include "support/monkey.h"
#include "app/screens.h"

#include <QJsonArray>
#include <QTest>

using namespace contarello;
using namespace contarello::test;

namespace {

using Route = std::vector<QJsonObject>;

QJsonObject click(const QString& control) {
    return {{"click", control}};
}

// Every way from the start screen into an exercise, and on to its worksheet where it has one.
QList<QPair<QString, Route>> Routes() {
    QList<QPair<QString, Route>> routes;
    for (const QString menuButton : {"Command3", "Command2"}) {
        DriverEngine menu;
        menu.execute(click("BottoneAvvio"));
        menu.execute(click(menuButton));
        const QJsonObject controls = menu.execute({{"dump", true}}).value("controls").toObject();
        for (const QString& button : controls.keys()) {
            if (!button.startsWith("Command") || button == "Command1") continue;
            const Route way = {click("BottoneAvvio"), click(menuButton), click(button)};
            DriverEngine probe;
            for (const QJsonObject& c : way)
                probe.execute(c);
            const QJsonObject d = probe.execute({{"dump", true}});
            const QString screen = d.value("form").toString();
            routes.append({screen, way});
            if (d.value("controls").toObject().contains("mnuStampa")) {
                Route toSheet = way;
                toSheet.push_back({{"menu", "mnuStampa"}});
                routes.append({screen + " worksheet", toSheet});
            }
        }
    }
    return routes;
}

} // namespace
Q_DECLARE_METATYPE(Route)

class MonkeyTest : public QObject {
    Q_OBJECT
private slots:
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
        const bool held = monkey.run(actions);
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
