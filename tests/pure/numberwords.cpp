// Numbers in words, spelled out to the letter: the elisions, CENTO, and the words of the groups.

#include "core/numberwords.h"

#include <QtTest>

using namespace contarello;

class NumberWordsTest : public QObject {
    Q_OBJECT
private slots:
    void words_data() {
        QTest::addColumn<qlonglong>("n");
        QTest::addColumn<QString>("word");
        // The exercises' range: a tens word drops its vowel before UNO and OTTO only; CENTO never
        // drops its O; one of a group is MILLE, UNMILIONE, UNMILIARDO, more are MILA, MILIONI, MILIARDI.
        // clang-format off
        const std::pair<qlonglong, const char*> rows[] = {
            {0, "ZERO"}, {-21000, "ZERO"}, {1, "UNO"}, {11, "UNDICI"}, {18, "DICIOTTO"}, {20, "VENTI"},
            {21, "VENTUNO"}, {23, "VENTITRE"}, {28, "VENTOTTO"}, {30, "TRENTA"}, {41, "QUARANTUNO"},
            {88, "OTTANTOTTO"}, {92, "NOVANTADUE"}, {99, "NOVANTANOVE"}, {100, "CENTO"}, {101, "CENTOUNO"},
            {108, "CENTOOTTO"}, {118, "CENTODICIOTTO"}, {121, "CENTOVENTUNO"}, {180, "CENTOOTTANTA"},
            {200, "DUECENTO"}, {801, "OTTOCENTOUNO"}, {999, "NOVECENTONOVANTANOVE"}, {1000, "MILLE"},
            {1001, "MILLEUNO"}, {2021, "DUEMILAVENTUNO"}, {21000, "VENTUNOMILA"}, {101000, "CENTOUNOMILA"},
            {28008, "VENTOTTOMILAOTTO"}, {1000000, "UNMILIONE"}, {1001000, "UNMILIONEMILLE"},
            {1500000, "UNMILIONECINQUECENTOMILA"}, {2000000, "DUEMILIONI"},
            {21021021, "VENTUNOMILIONIVENTUNOMILAVENTUNO"}, {1000000000, "UNMILIARDO"},
            {1000000001, "UNMILIARDOUNO"}, {3001000000, "TREMILIARDIUNMILIONE"},
            {999999999999, "NOVECENTONOVANTANOVEMILIARDINOVECENTONOVANTANOVEMILIONI"
                           "NOVECENTONOVANTANOVEMILANOVECENTONOVANTANOVE"}};
        // clang-format on
        for (const auto& [n, word] : rows)
            QTest::newRow(qPrintable(QString::number(n))) << n << QString::fromUtf8(word);
    }
    void words() {
        QFETCH(qlonglong, n);
        QFETCH(QString, word);
        Modulo1 g;
        QCOMPARE(NumeroInParole(n, g), word);
    }
};

QTEST_APPLESS_MAIN(NumberWordsTest)
#include "numberwords.moc"
