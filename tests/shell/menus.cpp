// The start screen, the main menu with its two settings, the way out, and the key filter for
// capitals.

#include "shell/program.h"
#include "support/harness.h"

#include <QTest>

using namespace contarello;
using namespace contarello::test;

class MenusTest : public QObject {
    Q_OBJECT
private slots:
    // Main seeds first; each screen loads and activates before the one it leaves goes.
    void startScreenDrawsItsColourFirst() {
        Harness h;
        h.rnd({17.5 / 18}); // slot 18
        QCOMPARE(h.dump().value("backcolor").toString(), "#ff00ff");
        QCOMPARE(h.caption("Label2(0)") + '|' + h.caption("Label2(1)") + '|' + h.caption("BottoneAvvio"),
                 "  Contarello|Calcolario|Avvio");
        h.run(R"J({"click": "BottoneAvvio"})J");
        QStringList seen;
        for (const QJsonValue& e : h.events())
            seen << e["event"].toString() + ' ' + e["form"].toString();
        QCOMPARE(seen.join(", "), "randomize , load FormAvvio, activate FormAvvio, load FormMenu, activate "
                                  "FormMenu, unload FormAvvio");
    }

    // The number is tested before it becomes an integer. A refusal says so once, a number taken is
    // not confirmed, and the limit in force is the next default, which OK on the untouched box takes.
    void theLimitFromTheMainMenu_data() {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<int>("stored"); // 0: refused
        // clang-format off
        QTest::newRow("lowest taken")                 << "20" << 20;
        QTest::newRow("highest taken")                << "99" << 99;
        QTest::newRow("19 refused")                   << "19" << 0;
        QTest::newRow("100 refused")                  << "100" << 0;
        QTest::newRow("words after the number")       << "25 anni" << 25;
        QTest::newRow("a comma stops the number")     << "19,5" << 0;
        QTest::newRow("19.4 passes and stores 19")    << "19.4" << 19;
        QTest::newRow("19.5 stores 20")               << "19.5" << 20;
        QTest::newRow("20.5 stores 20, half to even") << "20.5" << 20;
        QTest::newRow("99.5 stores 100")              << "99.5" << 100;
        QTest::newRow("Cancel or empty")              << "" << 0;
        QTest::newRow("no number")                    << "tanti" << 0;
        QTest::newRow("negative")                     << "-50" << 0;
        QTest::newRow("huge")                         << QString(400, u'9') << 0;
        // clang-format on
    }
    void theLimitFromTheMainMenu() {
        QFETCH(QString, entry);
        QFETCH(int, stored);
        Harness h;
        h.run(R"J({"click": "BottoneAvvio"})J");
        h.events();
        h.engine.execute({{"inputbox", QJsonArray{entry}}});
        h.script("{\"click\": \"Command4\"}\n{\"click\": \"Command4\"}");
        QStringList said;
        for (const QJsonValue& e : h.events())
            said << (e["event"] == "inputbox"
                         ? e["prompt"].toString() + " [" + e["default"].toString() + "]"
                         : e["text"].toString() + " " + QString::number(e["style"].toInt()));
        const QString ask = "Scrivi un numero da 20 a 99 [%1]", no = "Scelta non accettabile 16";
        const int limit = stored ? stored : 99; // 19 and 100 stand, to be refused as the next default
        QStringList expected{ask.arg(99)};
        if (!stored) expected << no;
        expected << ask.arg(limit);
        if (limit < 20 || limit > 99) expected << no;
        QCOMPARE(said, expected);
        QCOMPARE(h.global("NumeroMassimo"), limit);
    }

    // Both exercise menus go back to the main menu, which comes back alone and as it was left.
    void theWaitingSettingIsShownAgainOnReturn() {
        Harness h;
        h.run(R"J({"click": "BottoneAvvio"})J");
        QVERIFY(h.control("Option1(1)")["value"].toBool() && !h.control("Option1(0)")["value"].toBool());
        QCOMPARE(h.control("Option1(0)")["backcolor"], h.dump()["backcolor"]);
        h.run(R"J({"click": "Option1(0)"})J");
        QCOMPARE(h.global("AttendiBottone"), 0);
        for (const char* menu : {"Command2", "Command3"}) {
            h.script(QStringLiteral("{\"click\": \"%1\"}\n{\"click\": \"Command1\"}").arg(menu));
            QCOMPARE(h.dump()["loaded"].toArray(), QJsonArray{"FormMenu"});
            QVERIFY(h.control("Option1(0)")["value"].toBool());
        }
        h.run(R"J({"click": "Option1(1)"})J");
        QCOMPARE(h.global("AttendiBottone"), -1);
    }

    // Yes ends the program (tests/scripts checks it); No stays.
    void noKeepsTheProgramGoing() {
        Harness h;
        h.script("{\"click\": \"BottoneAvvio\"}\n{\"msgbox\": [7]}\n{\"click\": \"Command1\"}");
        QCOMPARE(h.events("msgbox").at(0)["text"].toString(), "Vuoi uscire dal programma?");
        QCOMPARE(h.form(), "FormMenu");
        QVERIFY(!h.dump()["ended"].toBool());
    }

    void menuCaptionsKeepTheirBlanks_data() {
        QTest::addColumn<QString>("way"); // the clicks from the main menu
        QTest::addColumn<QString>("caption");
        // clang-format off
        QTest::newRow("tens and units")       << "Command3 Command8" << "da  u";
        QTest::newRow("carry")                << "Command3 Command22" << "addizioni in colonna              con il cambio";
        QTest::newRow("no carry")             << "Command3 Command21" << "addizioni in colonna         senza cambio";
        QTest::newRow("abacus, three blanks") << "Command2 Command25" << "sottrazioni   con il cambio";
        QTest::newRow("leading blank")        << "Command2 Command29" << " aggiungi decine";
        QTest::newRow("main menu option")     << "Option1(0)" << "prosegue automaticamente  negli esercizi";
        // clang-format on
    }
    void menuCaptionsKeepTheirBlanks() {
        QFETCH(QString, way);
        QFETCH(QString, caption);
        Harness h;
        h.run(R"J({"click": "BottoneAvvio"})J");
        if (way.contains(' ')) h.run(QStringLiteral(R"J({"click": "%1"})J").arg(way.section(' ', 0, 0)));
        QCOMPARE(h.caption(way.section(' ', -1)), caption);
    }

    // a to z become capitals, in the key itself too; their neighbours and accented letters stay.
    void capitalsFilter() {
        QStringList got;
        for (int key : {96, 97, 122, 123, 224}) {
            const int filtered = FiltroMaiuscole(key);
            got << QStringLiteral("%1 %2").arg(filtered).arg(key);
        }
        QCOMPARE(got.join(", "), "96 96, 65 65, 90 90, 123 123, 224 224");
    }
};

QTEST_MAIN(MenusTest)
#include "menus.moc"
