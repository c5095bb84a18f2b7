// The number and text functions: every caption of the program is built with them, so a wrong blank
// or a wrong rounding here is a wrong caption everywhere.

#include "core/lang.h"
#include "core/scripted.h"

#include <QTest>
#include <limits>

using namespace contarello;

class LangTest : public QObject {
    Q_OBJECT
private slots:
    void val_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");
        QTest::newRow("empty") << "" << 0.0;
        QTest::newRow("blanks inside") << "1 2" << 12.0;
        QTest::newRow("leading blanks and tabs") << " \t 42" << 42.0;
        QTest::newRow("exponent") << "2e1" << 20.0;
        QTest::newRow("exponent with D") << "3D2" << 300.0;
        QTest::newRow("unfinished exponent") << "7e" << 7.0;
        QTest::newRow("second point stops") << "1.2.3" << 1.2;
        QTest::newRow("minus") << "-3" << -3.0;
        QTest::newRow("plus") << "+8" << 8.0;
        QTest::newRow("hexadecimal") << "&H1F" << 31.0;
        QTest::newRow("octal") << "&O17" << 15.0;
        QTest::newRow("sign alone") << "-" << 0.0;
        QTest::newRow("letter first") << "a12" << 0.0;
        QTest::newRow("a thousand digits are inf") << QString(1000, u'9') << qInf();
    }
    void val() {
        QFETCH(QString, text);
        QFETCH(double, value);
        QCOMPARE(Val(text), value);
    }

    // Below zero: the screens' own tests see these functions only on positive numbers.
    void negatives() {
        QCOMPARE(Str(-5), QStringLiteral("-5")); // the sign stands where the blank would
        QCOMPARE(Int(-0.5), -1LL);
        QCOMPARE(Int(-3.0), -3LL);
        QCOMPARE(CInt(-2.5), int16_t(-2)); // a half goes to the even neighbour
        ScriptedRandom r;
        r.queue(0.3);
        QCOMPARE(Draw(r, -10, 0), -3); // a negative factor rounds down
    }

    void cIntIsHeldAtItsEnds() {
        QCOMPARE(CInt(1e9), int16_t(32767));
        QCOMPARE(CInt(-1e9), int16_t(-32768));
    }

    void format() {
        QCOMPARE(Format(0, QStringLiteral("#,##0")), QStringLiteral("0"));
        QCOMPARE(Format(1500000, QStringLiteral("#,##0")), QStringLiteral("1.500.000"));
    }

    // Int and Format agree on every double: beyond a long long both stay at its nearer end.
    void beyondTheRange_data() {
        QTest::addColumn<double>("x");
        QTest::addColumn<long long>("whole");
        QTest::addColumn<QString>("formatted");
        const long long hi = std::numeric_limits<long long>::max();
        const long long lo = std::numeric_limits<long long>::min();
        QTest::newRow("NaN") << qQNaN() << 0LL << "0";
        QTest::newRow("infinity") << qInf() << hi << "9.223.372.036.854.775.807";
        QTest::newRow("minus infinity") << -qInf() << lo << "-9.223.372.036.854.775.808";
        QTest::newRow("1e53") << Val(QStringLiteral("1e53")) << hi << "9.223.372.036.854.775.807";
        QTest::newRow("2^63") << 9223372036854775808.0 << hi << "9.223.372.036.854.775.807";
        QTest::newRow("-2^63 fits") << -9223372036854775808.0 << lo << "-9.223.372.036.854.775.808";
        QTest::newRow("below -2^63") << -1e19 << lo << "-9.223.372.036.854.775.808";
        QTest::newRow("largest double under 2^63")
            << 9223372036854774784.0 << 9223372036854774784LL << "9.223.372.036.854.774.784";
        QTest::newRow("a half rounds away in Format") << -2.5 << -3LL << "-3";
    }
    void beyondTheRange() {
        QFETCH(double, x);
        QFETCH(long long, whole);
        QFETCH(QString, formatted);
        QCOMPARE(Int(x), whole);
        QCOMPARE(Format(x, QStringLiteral("###,###,##0")), formatted);
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
