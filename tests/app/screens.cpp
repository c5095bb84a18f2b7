// The table of screens: every entry makes its screen under its own name, every button of the two
// exercise menus opens a screen, and every "Stampa scheda" of an exercise opens a worksheet.

#include "app/screens.h"
#include "support/harness.h"

#include <QJsonArray>
#include <QSet>
#include <QTest>

using namespace contarello;
using contarello::test::Harness;

namespace {

const QSet<QString> kNotExercises = {"FormAvvio", "FormMenu", "FormMenuNumeri", "FormMenuGrafici"};

QStringList names() {
    QStringList all;
    for (const FormEntry& e : FormTable())
        all << QLatin1String(e.name);
    return all;
}

} // namespace

class ScreensTest : public QObject {
    Q_OBJECT
private slots:
    void everyEntryMakesItsScreen() {
        const QStringList all = names();
        QCOMPARE(QSet<QString>(all.begin(), all.end()).size(), all.size()); // no name twice
        for (const QString& name : all) {
            Harness h;
            h.run(QStringLiteral(R"({"show": "%1"})").arg(name));
            QVERIFY2(h.form() == name, qPrintable(name + " was not made, or not under its name"));
        }
    }

    void everyMenuButtonOpensAScreen() {
        for (const QString menu : {"FormMenuNumeri", "FormMenuGrafici"}) {
            Harness h;
            h.run(QStringLiteral(R"({"show": "%1"})").arg(menu));
            const QStringList buttons = h.dump().value("controls").toObject().keys();
            for (const QString& b : buttons) {
                if (!b.startsWith("Command")) continue;
                Harness one;
                one.run(QStringLiteral(R"({"show": "%1"})").arg(menu));
                one.run(QStringLiteral(R"({"click": "%1"})").arg(b));
                QVERIFY2(one.form() != menu, qPrintable(menu + '/' + b + " opens nothing"));
            }
        }
    }

    void everyWorksheetMenuOpensAWorksheet() {
        for (const QString& name : names()) {
            if (kNotExercises.contains(name) || name.startsWith("formSt")) continue;
            Harness h;
            h.run(QStringLiteral(R"({"show": "%1"})").arg(name));
            const QJsonObject controls = h.dump().value("controls").toObject();
            if (!controls.contains("mnuStampa")) continue;
            h.run(R"({"menu": "mnuStampa"})");
            QVERIFY2(h.form().startsWith("formSt"), qPrintable(name + " prints nothing"));
            QVERIFY2(h.dump().value("loaded").toArray().contains(name), qPrintable(name));
        }
    }
};

QTEST_MAIN(ScreensTest)
#include "screens.moc"
