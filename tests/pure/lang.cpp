// The number and text functions at their edges: every caption of the program is built with them, so
// a wrong blank or a wrong rounding here is a wrong caption everywhere.

#include "core/lang.h"
#include "core/scripted.h"

#include <QTest>
#include <climits>

using namespace contarello;
using namespace Qt::StringLiterals;

class LangTest : public QObject {
    Q_OBJECT
private slots:
    void val_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");
        const std::pair<const char*, double> rows[] = {
            {"", 0},    {"1 2", 12}, {" \t 42", 42}, {"2e1", 20},  {"3D2", 300}, {"7e", 7}, {"1.2.3", 1.2},
            {"-3", -3}, {"+8", 8},   {"&H1F", 31},   {"&O17", 15}, {"-", 0},     {"a12", 0}};
        for (const auto& [text, value] : rows)
            QTest::newRow(qPrintable(u'"' + QString(text) + u'"')) << QString(text) << value;
        QTest::newRow("a thousand digits are inf") << QString(1000, u'9') << qInf();
    }
    void val() {
        QFETCH(QString, text);
        QFETCH(double, value);
        QCOMPARE(Val(text), value);
    }

    // From 2^63 on Int holds the number at the nearer end of a long long, NaN is 0; Format rounds a
    // half away from zero and holds the number as Int does.
    void theEndsOfTheRange() {
        constexpr long long hi = LLONG_MAX, lo = LLONG_MIN;
        QCOMPARE((QList<long long>{Int(qQNaN()), Int(qInf()), Int(-qInf()), Int(9223372036854775808.0),
                                   Int(-9223372036854775808.0), Int(9223372036854774784.0), Int(-0.5)}),
                 (QList<long long>{0, hi, lo, hi, lo, 9223372036854774784LL, -1}));
        const QString p = QStringLiteral("###,###,##0");
        QCOMPARE((QStringList{Format(qQNaN(), p), Format(-2.5, p), Format(qInf(), p), Format(-qInf(), p)}),
                 (QStringList{"0", "-3", "9.223.372.036.854.775.807", "-9.223.372.036.854.775.808"}));
    }

    void smallFunctions() {
        // CInt: a half goes to the even neighbour, the 16-bit ends hold.
        QCOMPARE((QList<int>{CInt(-2.5), CInt(1e9), CInt(-1e9)}), (QList<int>{-2, 32767, -32768}));
        ScriptedRandom r;
        r.queue(0.3);
        QCOMPARE(Draw(r, -10, 0), -3);                       // a negative factor rounds down
        QCOMPARE(Trim(u"  ventuno \t "_s), u"ventuno \t"_s); // blanks only
        QCOMPARE(Mid(u"abcdef"_s, 2, 3) + '|' + Mid(u"abc"_s, 5) + '|' + Left(u"abc"_s, -1), u"bcd||"_s);
        QCOMPARE((QList<int>{InStr(u"a b"_s, u" "_s), InStr(u"ab"_s, u" "_s)}), (QList<int>{2, 0}));
        // Windows-1252 both ways, 0 for nothing, 63 for a character it lacks.
        QCOMPARE((QList<int>{Asc(u"à"_s), Asc(u"€"_s), Asc(QString()), Asc(u"\u4e00"_s)}),
                 (QList<int>{224, 128, 0, 63}));
        QCOMPARE(Chr(224) + Chr(128), u"à€"_s);
    }
};

QTEST_APPLESS_MAIN(LangTest)
#include "lang.moc"
