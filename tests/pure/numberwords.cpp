#include "core/numberwords.h"

#include <QtTest>

using namespace contarello;

class NumberWordsTest : public QObject {
    Q_OBJECT

private slots:
    void words_data() {
        QTest::addColumn<qlonglong>("n");
        QTest::addColumn<QString>("word");
        QTest::newRow("zero") << 0LL << "ZERO";
        QTest::newRow("negative is zero") << -1LL << "ZERO";
        QTest::newRow("negative thousands are zero") << -21000LL << "ZERO";
        QTest::newRow("one") << 1LL << "UNO";
        QTest::newRow("teen") << 16LL << "SEDICI";
        QTest::newRow("twenty from the units table") << 20LL << "VENTI";
        QTest::newRow("plain tens") << 30LL << "TRENTA";
        QTest::newRow("no accent") << 23LL << "VENTITRE";
        QTest::newRow("elision on 1") << 21LL << "VENTUNO";
        QTest::newRow("elision on 8") << 28LL << "VENTOTTO";
        QTest::newRow("elision of A on 1") << 41LL << "QUARANTUNO";
        QTest::newRow("elision of A on 8") << 88LL << "OTTANTOTTO";
        QTest::newRow("no elision on 2") << 92LL << "NOVANTADUE";
        QTest::newRow("no elision on 11") << 11LL << "UNDICI";
        QTest::newRow("no elision on 18") << 18LL << "DICIOTTO";
        QTest::newRow("top of the hundred") << 99LL << "NOVANTANOVE";
        QTest::newRow("hundred") << 100LL << "CENTO";
        QTest::newRow("no elision after CENTO on 1") << 101LL << "CENTOUNO";
        QTest::newRow("no elision after CENTO on 8") << 108LL << "CENTOOTTO";
        QTest::newRow("teen after CENTO") << 118LL << "CENTODICIOTTO";
        QTest::newRow("CENTO then a tens word") << 180LL << "CENTOOTTANTA";
        QTest::newRow("elision after the hundreds") << 121LL << "CENTOVENTUNO";
        QTest::newRow("hundreds") << 200LL << "DUECENTO";
        QTest::newRow("eight hundred keeps its O") << 801LL << "OTTOCENTOUNO";
        QTest::newRow("largest group") << 999LL << "NOVECENTONOVANTANOVE";
        QTest::newRow("thousand") << 1000LL << "MILLE";
        QTest::newRow("thousand and one") << 1001LL << "MILLEUNO";
        QTest::newRow("thousand one hundred") << 1100LL << "MILLECENTO";
        QTest::newRow("thousands") << 2021LL << "DUEMILAVENTUNO";
        QTest::newRow("elided group of thousands") << 21000LL << "VENTUNOMILA";
        QTest::newRow("group of thousands ending in UNO") << 101000LL << "CENTOUNOMILA";
        QTest::newRow("group of thousands ending in OTTO") << 28008LL << "VENTOTTOMILAOTTO";
        QTest::newRow("million") << 1000000LL << "UNMILIONE";
        QTest::newRow("million and one") << 1000001LL << "UNMILIONEUNO";
        QTest::newRow("million and a thousand") << 1001000LL << "UNMILIONEMILLE";
        QTest::newRow("million and thousands") << 1500000LL << "UNMILIONECINQUECENTOMILA";
        QTest::newRow("millions") << 2000000LL << "DUEMILIONI";
        QTest::newRow("every group elided") << 21021021LL << "VENTUNOMILIONIVENTUNOMILAVENTUNO";
        QTest::newRow("milliard") << 1000000000LL << "UNMILIARDO";
        QTest::newRow("milliard and one") << 1000000001LL << "UNMILIARDOUNO";
        QTest::newRow("milliards and a million") << 3001000000LL << "TREMILIARDIUNMILIONE";
        QTest::newRow("largest") << 999999999999LL
                                 << "NOVECENTONOVANTANOVEMILIARDINOVECENTONOVANTANOVEMILIONI"
                                    "NOVECENTONOVANTANOVEMILANOVECENTONOVANTANOVE";
    }

    void words() {
        QFETCH(qlonglong, n);
        QFETCH(QString, word);
        Modulo1 g;
        long long copia = n;
        QCOMPARE(NumeroInParole(copia, g), word);
        if (n > 0) QCOMPARE(copia, 0LL); // the number is used up
    }

    // Other screens read the table after a call; it is laid out afresh even over stale words.
    void fillsTheWordTable() {
        Modulo1 g;
        g.ParoleNumeri.fill(QStringLiteral("X"));
        long long n = 5;
        NumeroInParole(n, g);
        QCOMPARE(g.ParoleNumeri[0], QString());
        QCOMPARE(g.ParoleNumeri[1], QString());
        QCOMPARE(g.ParoleNumeri[2], QStringLiteral("UNO"));
        QCOMPARE(g.ParoleNumeri[20], QStringLiteral("DICIANNOVE"));
        QCOMPARE(g.ParoleNumeri[21], QStringLiteral("VENTI"));
        QCOMPARE(g.ParoleNumeri[28], QStringLiteral("NOVANTA"));
        QCOMPARE(g.ParoleNumeri[29], QString());
        QCOMPARE(g.ParoleNumeri[30], QString());
    }
};

QTEST_APPLESS_MAIN(NumberWordsTest)
#include "numberwords.moc"
