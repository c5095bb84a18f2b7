// The table of screens: every entry makes its screen under its own name, every button of the two
// exercise menus opens its own screen, and every "Stampa scheda" of an exercise opens a worksheet.

#include "app/screens.h"
#include "support/harness.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QProcess>
#include <QRegularExpression>
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

    // Each button of the two exercise menus opens its own exercise, and "Torna al menù generale" the
    // main menu; every button of the menu is in the list.
    void everyMenuButtonOpensItsScreen_data() {
        QTest::addColumn<QString>("menu");
        QTest::addColumn<QString>("buttons"); // button=screen, ...
        QTest::newRow("FormMenuNumeri")
            << "FormMenuNumeri"
            << "Command1=FormMenu Command6=FormScri Command36=FormScri2 Command8=FormSimb Command7=FormMM "
               "Command9=FormOrd Command13=Formmez Command12=Formdopo Command11=Formpri Command10=Formesp "
               "Command37=Form1 Command14=Form1a Command38=Form10 Command15=Form10a Command39=Form100 "
               "Command16=Form100bis Command2=Form1ma Command17=Form1m Command3=Form10m Command18=Form10ma "
               "Command4=Form100m Command19=Form100ma Command21=FormCol1 Command22=FormCol2 "
               "Command27=FormCol3 Command26=FormCol4";
        QTest::newRow("FormMenuGrafici")
            << "FormMenuGrafici"
            << "Command1=FormMenu Command2=Form999x Command3=Form999z Command34=Form999y Command10=FormGraf1 "
               "Command23=FormGraf Command11=FormGrafMeno1 Command24=FormGrafMeno Command4=Form99a "
               "Command5=Form99b1 Command35=Form99b Command8=Form99c1 Command20=Form99c Command9=Form99d1 "
               "Command25=Form99d Command6=Form100Trova Command7=Form100Ricon Command30=Form100a "
               "Command29=Form100b Command28=Form100f Command33=Form100c Command32=Form100d "
               "Command31=Form100e Command12=FormGradi20 Command13=FormGradi20bis";
    }
    void everyMenuButtonOpensItsScreen() {
        QFETCH(QString, menu);
        QFETCH(QString, buttons);
        QStringList listed;
        for (const QString& pair : buttons.split(' ')) {
            const QString button = pair.section('=', 0, 0), screen = pair.section('=', 1);
            listed << button;
            Harness one;
            one.run(QStringLiteral(R"({"show": "%1"})").arg(menu));
            one.run(QStringLiteral(R"({"click": "%1"})").arg(button));
            QVERIFY2(one.form() == screen, qPrintable(menu + '/' + button + " opens " + one.form()));
        }
        Harness h;
        h.run(QStringLiteral(R"({"show": "%1"})").arg(menu));
        QStringList all = h.dump().value("controls").toObject().keys().filter(QRegularExpression("^Command"));
        all.sort();
        listed.sort();
        QCOMPARE(all, listed);
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
