// The start screen, the main menu with its two settings, the way out, and the colours every
// screen draws.

#include "shell/colori.h"
#include "shell/program.h"
#include "support/harness.h"

#include <QTest>

using namespace contarello;
using namespace contarello::test;

class MenusTest : public QObject {
    Q_OBJECT
private slots:
    void startScreenDrawsItsColourFirst() {
        Harness h;
        h.rnd({17.5 / 18}); // slot 18
        QCOMPARE(h.dump().value("backcolor").toString(), QStringLiteral("#ff00ff"));
        QCOMPARE(h.caption("Label2(0)"), QStringLiteral("  Contarello"));
        QCOMPARE(h.caption("Label2(1)"), QStringLiteral("Calcolario"));
        QCOMPARE(h.caption("BottoneAvvio"), QStringLiteral("Avvio"));
        // Main seeds first; each screen loads and activates before the one it leaves goes
        h.run(R"J({"click": "BottoneAvvio"})J");
        QStringList seen;
        for (const QJsonValue& e : h.events())
            seen << e.toObject().value("event").toString() + ' ' + e.toObject().value("form").toString();
        QCOMPARE(seen, (QStringList{"randomize ", "load FormAvvio", "activate FormAvvio", "load FormMenu",
                                    "activate FormMenu", "unload FormAvvio"}));
    }

    // The number is tested before it becomes an integer.
    void theLimitFromTheMainMenu_data() {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<int>("stored"); // 0: refused
        QTest::newRow("lowest taken") << "20" << 20;
        QTest::newRow("highest taken") << "99" << 99;
        QTest::newRow("19 refused") << "19" << 0;
        QTest::newRow("100 refused") << "100" << 0;
        QTest::newRow("words after the number") << "25 anni" << 25;
        QTest::newRow("a comma stops the number") << "19,5" << 0;
        QTest::newRow("19.4 passes and stores 19") << "19.4" << 19;
        QTest::newRow("19.5 stores 20") << "19.5" << 20;
        QTest::newRow("20.5 stores 20, half to even") << "20.5" << 20;
        QTest::newRow("99.5 stores 100") << "99.5" << 100;
        QTest::newRow("Cancel or empty") << "" << 0;
        QTest::newRow("no number") << "tanti" << 0;
        QTest::newRow("negative") << "-50" << 0;
        QTest::newRow("huge") << QString(400, u'9') << 0;
    }
    void theLimitFromTheMainMenu() {
        QFETCH(QString, entry);
        QFETCH(int, stored);
        Harness h;
        h.run(R"J({"click": "BottoneAvvio"})J");
        h.events();
        h.engine.execute({{"inputbox", QJsonArray{entry}}});
        h.run(R"J({"click": "Command4"})J");
        const QJsonArray boxes = h.events();
        const QJsonObject input = boxes.at(0).toObject();
        QCOMPARE(input.value("event").toString(), QStringLiteral("inputbox"));
        QCOMPARE(input.value("prompt").toString(), QStringLiteral("Scrivi un numero da 20 a 99"));
        QCOMPARE(input.value("default").toString(), QStringLiteral("99"));
        QCOMPARE(h.global("NumeroMassimo"), stored ? stored : 99);
        QCOMPARE(boxes.size(), stored ? 1 : 2); // no confirmation; a refusal asks once only
        if (!stored) {
            const QJsonObject refusal = boxes.at(1).toObject();
            QCOMPARE(refusal.value("text").toString(), QStringLiteral("Scelta non accettabile"));
            QCOMPARE(refusal.value("style").toInt(), 16);
        }
    }

    void theLimitIsTheNextDefault() {
        Harness h;
        h.setLimit(20);
        h.run(R"J({"click": "Command4"})J"); // untouched box: OK on the default
        QCOMPARE(h.events("inputbox").at(1).toObject().value("default").toString(), QStringLiteral("20"));
        QCOMPARE(h.global("NumeroMassimo"), 20);
    }

    void theWaitingSettingIsShownAgainOnReturn() {
        Harness h;
        h.run(R"J({"click": "BottoneAvvio"})J");
        QVERIFY(h.control("Option1(1)").value("value").toBool());
        QVERIFY(!h.control("Option1(0)").value("value").toBool());
        QCOMPARE(h.control("Option1(0)").value("backcolor"), h.dump().value("backcolor"));
        h.run(R"J({"click": "Option1(0)"})J");
        QCOMPARE(h.global("AttendiBottone"), 0);
        // Both exercise menus go back to the main menu, which comes back alone and as it was left.
        for (const char* menu : {"Command2", "Command3"}) {
            h.run(QStringLiteral(R"J({"click": "%1"})J").arg(menu));
            h.run(R"J({"click": "Command1"})J");
            QCOMPARE(h.dump().value("loaded").toArray(), QJsonArray{"FormMenu"});
            QVERIFY(h.control("Option1(0)").value("value").toBool());
        }
        h.run(R"J({"click": "Option1(1)"})J");
        QCOMPARE(h.global("AttendiBottone"), -1);
    }

    // Yes ends the program (a script checks it); No stays.
    void noKeepsTheProgramGoing() {
        Harness h;
        h.run(R"J({"click": "BottoneAvvio"})J");
        h.run(R"J({"msgbox": [7]})J");
        h.run(R"J({"click": "Command1"})J");
        const QJsonObject d = h.dump();
        QCOMPARE(d.value("form").toString(), QStringLiteral("FormMenu"));
        QVERIFY(!d.value("ended").toBool());
        QCOMPARE(h.events("msgbox").at(0).toObject().value("text").toString(),
                 QStringLiteral("Vuoi uscire dal programma?"));
    }

    void menuCaptionsKeepTheirBlanks_data() {
        QTest::addColumn<QString>("menu");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("caption");
        // clang-format off
        QTest::newRow("tens and units") << "Command3" << "Command8" << "da  u";
        QTest::newRow("carry") << "Command3" << "Command22" << "addizioni in colonna              con il cambio";
        QTest::newRow("no carry") << "Command3" << "Command21" << "addizioni in colonna         senza cambio";
        QTest::newRow("abacus, three blanks") << "Command2" << "Command25" << "sottrazioni   con il cambio";
        QTest::newRow("leading blank") << "Command2" << "Command29" << " aggiungi decine";
        QTest::newRow("main menu option") << "" << "Option1(0)" << "prosegue automaticamente  negli esercizi";
        // clang-format on
    }
    void menuCaptionsKeepTheirBlanks() {
        QFETCH(QString, menu);
        QFETCH(QString, button);
        QFETCH(QString, caption);
        Harness h;
        h.run(R"J({"click": "BottoneAvvio"})J");
        if (!menu.isEmpty()) h.run(QStringLiteral(R"J({"click": "%1"})J").arg(menu));
        QCOMPARE(h.caption(button), caption);
    }

    void capitalsFilter_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("filtered");
        QTest::newRow("a") << 97 << 65;
        QTest::newRow("z") << 122 << 90;
        QTest::newRow("grave accent before a") << 96 << 96;
        QTest::newRow("brace after z") << 123 << 123;
        QTest::newRow("accented letter stays") << 224 << 224;
    }
    void capitalsFilter() {
        QFETCH(int, key);
        QFETCH(int, filtered);
        int k = key;
        QCOMPARE(FiltroMaiuscole(k), filtered);
        QCOMPARE(k, filtered); // the key itself is changed too
    }

    // Slots 3, 9 and 17 change with the variant; the screens' own tests see A 3, A 17, D 3 and 18.
    void colourVariants_data() {
        QTest::addColumn<int>("variant");
        QTest::addColumn<int>("slot");
        QTest::addColumn<QString>("colour");
        QTest::newRow("B 3 repeats 6") << 1 << 3 << "#ffffc0";
        QTest::newRow("B 17 repeats 9") << 1 << 17 << "#80ff80";
        QTest::newRow("C 3 repeats 4") << 2 << 3 << "#ffc080";
        QTest::newRow("C 9") << 2 << 9 << "#ffc0ff";
        QTest::newRow("D 17") << 3 << 17 << "#ffc0ff";
        QTest::newRow("shared 15 repeats 14") << 3 << 15 << "#ffc0ff";
        QTest::newRow("shared first") << 2 << 1 << "#ffc0c0";
    }
    void colourVariants() {
        QFETCH(int, variant);
        QFETCH(int, slot);
        QFETCH(QString, colour);
        QCOMPARE(ColoreSlot(Variante(variant), slot).name(), colour);
    }
};

QTEST_MAIN(MenusTest)
#include "menus.moc"
