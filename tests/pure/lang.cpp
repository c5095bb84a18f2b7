// The number and text functions: every caption of the program is built with them, so a wrong blank
// or a wrong rounding here is a wrong caption everywhere.

#include "shell/lang.h"
#include "shell/services.h"

#include <QTest>
#include <cmath>

using namespace contarello;

class LangTest : public QObject {
    Q_OBJECT
private slots:
    void str_data() {
        QTest::addColumn<long long>("n");
        QTest::addColumn<QString>("text");
        QTest::newRow("zero has its blank") << 0LL << " 0";
        QTest::newRow("positive has its blank") << 49LL << " 49";
        QTest::newRow("negative has the sign instead") << -5LL << "-5";
        QTest::newRow("large") << 999999999999LL << " 999999999999";
    }
    void str() {
        QFETCH(long long, n);
        QFETCH(QString, text);
        QCOMPARE(Str(n), text);
    }

    void val_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");
        QTest::newRow("empty") << "" << 0.0;
        QTest::newRow("no digits") << "abc" << 0.0;
        QTest::newRow("words after the number") << "25 anni" << 25.0;
        QTest::newRow("blanks inside") << "1 2" << 12.0;
        QTest::newRow("leading blanks and tabs") << " \t 42" << 42.0;
        QTest::newRow("exponent") << "2e1" << 20.0;
        QTest::newRow("exponent with D") << "3D2" << 300.0;
        QTest::newRow("unfinished exponent") << "7e" << 7.0;
        QTest::newRow("comma is not a decimal point") << "19,5" << 19.0;
        QTest::newRow("decimal point") << "19.5" << 19.5;
        QTest::newRow("second point stops") << "1.2.3" << 1.2;
        QTest::newRow("minus") << "-3" << -3.0;
        QTest::newRow("plus") << "+8" << 8.0;
        QTest::newRow("hexadecimal") << "&H1F" << 31.0;
        QTest::newRow("octal") << "&O17" << 15.0;
        QTest::newRow("leading zeros") << "007" << 7.0;
        QTest::newRow("sign alone") << "-" << 0.0;
        QTest::newRow("letter first") << "a12" << 0.0;
    }
    void val() {
        QFETCH(QString, text);
        QFETCH(double, value);
        QCOMPARE(Val(text), value);
    }

    void valOfAThousandDigitsIsHugeNotACrash() {
        const double v = Val(QString(1000, u'9'));
        QVERIFY(v > 1e300 || std::isinf(v));
    }

    void roundingIntoAnInteger_data() {
        QTest::addColumn<double>("x");
        QTest::addColumn<int>("stored");
        QTest::newRow("down") << 19.4 << 19;
        QTest::newRow("half to even, up") << 19.5 << 20;
        QTest::newRow("half to even, down") << 20.5 << 20;
        QTest::newRow("99.4") << 99.4 << 99;
        QTest::newRow("99.5") << 99.5 << 100;
        QTest::newRow("negative half") << -2.5 << -2;
        QTest::newRow("held at the top") << 1e9 << 32767;
        QTest::newRow("held at the bottom") << -1e9 << -32768;
    }
    void roundingIntoAnInteger() {
        QFETCH(double, x);
        QFETCH(int, stored);
        QCOMPARE(int(CInt(x)), stored);
    }

    void intGoesDown() {
        QCOMPARE(Int(-0.5), -1LL);
        QCOMPARE(Int(2.999), 2LL);
        QCOMPARE(Int(-3.0), -3LL);
    }

    void drawIsIntOfRndTimesNPlusM() {
        ScriptedRandom r;
        for (double v : {0.0, 0.999999, 0.5, 0.3})
            r.queue(v);
        QCOMPARE(Draw(r, 18, 1), 1);
        QCOMPARE(Draw(r, 18, 1), 18);
        QCOMPARE(Draw(r, 99, 1), 50);
        // a negative factor rounds towards the lower number
        QCOMPARE(Draw(r, -10, 0), -3);
    }

    void format() {
        QCOMPARE(Format(7, QStringLiteral("###,###,##0")), QStringLiteral("7"));
        QCOMPARE(Format(0, QStringLiteral("#,##0")), QStringLiteral("0"));
        QCOMPARE(Format(1500000, QStringLiteral("#,##0")), QStringLiteral("1.500.000"));
    }

    void textFunctions() {
        QCOMPARE(Trim(QStringLiteral("  ventuno \t ")), QStringLiteral("ventuno \t"));
        QCOMPARE(Mid(QStringLiteral("abcdef"), 2, 3), QStringLiteral("bcd"));
        QCOMPARE(Mid(QStringLiteral("abc"), 5), QString());
        QCOMPARE(Left(QStringLiteral("abc"), -1), QString());
        QCOMPARE(InStr(QStringLiteral("a b"), QStringLiteral(" ")), 2);
        QCOMPARE(InStr(QStringLiteral("ab"), QStringLiteral(" ")), 0);
    }

    void ansiCodes() {
        QCOMPARE(Asc(QStringLiteral("A")), 65);
        QCOMPARE(Asc(QStringLiteral("à")), 224);
        QCOMPARE(Asc(QStringLiteral("€")), 128);
        QCOMPARE(Asc(QString()), 0);
        QCOMPARE(Asc(QStringLiteral("\u4e00")), 63);
        QCOMPARE(Chr(224), QStringLiteral("à"));
        QCOMPARE(Chr(128), QStringLiteral("€"));
    }
};

QTEST_APPLESS_MAIN(LangTest)
#include "lang.moc"
