// The table of screens: every entry makes its screen under its own name, every button of the two
// exercise menus opens a screen, and every "Stampa scheda" of an exercise opens a worksheet.

#include "app/screens.h"
#include "support/harness.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
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

    // The program reads only its own fonts; every screen must still look exactly as it does with
    // the system's whole font configuration.
    void everyScreenLooksTheSameWithTheProgramsFonts() {
        if (!QFile::exists(QStringLiteral("/etc/fonts/fonts.conf"))) QSKIP("no system font configuration");
        QTemporaryDir dir;
        const QStringList all = names();
        const auto shoot = [&](const QString& folder, const QString& fontconfig) {
            QProcess driver;
            QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
            env.remove(QStringLiteral("FONTCONFIG_FILE"));
            if (!fontconfig.isEmpty()) env.insert(QStringLiteral("FONTCONFIG_FILE"), fontconfig);
            driver.setProcessEnvironment(env);
            driver.start(QCoreApplication::applicationDirPath() + QStringLiteral("/contarello-driver"), {});
            QDir(dir.path()).mkdir(folder);
            for (const QString& name : all)
                driver.write(QStringLiteral(R"({"show": "%1"})"
                                            "\n"
                                            R"({"screenshot": "%2/%3/%1.png"})"
                                            "\n")
                                 .arg(name, dir.path(), folder)
                                 .toUtf8());
            driver.closeWriteChannel();
            return driver.waitForFinished(120000) && driver.exitCode() == 0;
        };
        QVERIFY(shoot(QStringLiteral("own"), {}));
        QVERIFY(shoot(QStringLiteral("system"), QStringLiteral("/etc/fonts/fonts.conf")));
        for (const QString& name : all) {
            const QImage own(dir.filePath(QStringLiteral("own/") + name + QStringLiteral(".png")));
            QVERIFY2(!own.isNull(), qPrintable(name));
            QVERIFY2(own == QImage(dir.filePath(QStringLiteral("system/") + name + QStringLiteral(".png"))),
                     qPrintable(name + " looks different with the program's fonts"));
        }
    }
};

QTEST_MAIN(ScreensTest)
#include "screens.moc"
