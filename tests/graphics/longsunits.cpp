// The three screens of longs and units end to end: the number drawn and its range, the bars and
// squares a child places, the answers typed in digits and in words, and the limit.

#include "support/harness.h"

#include <QJsonObject>
#include <QTest>

using namespace contarello;
using namespace contarello::test;

namespace {

// The draw that gives e under the limit n: Int(Rnd * n) + 1.
double drawFor(int e, int n = 99) {
    return (e - 1 + 0.5) / n;
}

// Opens a screen asking for e. Load draws twice, once as the limit is set to 99 and once for the
// question the child sees: a colour and a number each time.
void open(Harness& h, const QString& form, int e) {
    h.dump();
    h.rnd({0.0, drawFor(50), 0.0, drawFor(e)});
    h.run(QStringLiteral(R"({"show": "%1"})").arg(form));
    h.events();
}

// The drawing: which bars, then which squares, show (1) or not (0), up to the last one showing.
QString drawing(Harness& h) {
    const QJsonObject controls = h.dump().value("controls").toObject();
    QString bits;
    for (const char* array : {"Decine", "Unita"}) {
        for (int i = 0; i < 9; ++i) {
            const QJsonObject c = controls.value(QStringLiteral("%1(%2)").arg(array).arg(i)).toObject();
            bits += c.value("visible").toBool() ? '1' : '0';
        }
        while (bits.endsWith('0'))
            bits.chop(1);
        bits += '/';
    }
    return bits.chopped(1);
}

void click(Harness& h, const char* name, int times = 1) {
    for (int i = 0; i < times; ++i)
        h.run(QStringLiteral(R"({"click": "%1"})").arg(name));
}

} // namespace

class LongsTest : public QObject {
    Q_OBJECT
private slots:
    // Whatever the main menu chose, each screen starts at 99. The reading screens draw the number;
    // the limit bounds it, and 0 never comes.
    void theDrawnNumber_data() {
        QTest::addColumn<QString>("form");
        QTest::addColumn<int>("limite");
        QTest::addColumn<double>("rnd");
        QTest::addColumn<int>("numero");
        QTest::addColumn<QString>("drawing");
        QTest::newRow("no units") << "Form999y" << 99 << drawFor(40) << 40 << "1111/";
        QTest::newRow("no tens") << "Form999z" << 99 << drawFor(7) << 7 << "/1111111";
        QTest::newRow("the smallest") << "Form999y" << 99 << 0.0 << 1 << "/1";
        QTest::newRow("the limit itself") << "Form999z" << 99 << 0.99999 << 99 << "111111111/111111111";
        QTest::newRow("at most one bar under 19") << "Form999y" << 19 << 0.99999 << 19 << "1/111111111";
        QTest::newRow("building: nothing drawn") << "Form999x" << 29 << 0.99999 << 29 << "/";
    }
    void theDrawnNumber() {
        QFETCH(QString, form);
        QFETCH(int, limite);
        QFETCH(double, rnd);
        Harness h;
        h.setLimit(25);
        open(h, form, 50);
        QCOMPARE(h.global("NumeroMassimo"), 99);
        QVERIFY(!h.visible("CorniceNumeroMassimo"));
        h.run(R"({"menu": "MenuNumeroMassimo"})");
        h.rnd({0.0, rnd});
        h.run(QStringLiteral(R"J({"click": "OpzioneNumeroMassimo(%1)"})J").arg((limite - 19) / 10));
        QCOMPARE(h.global("NumeroMassimo"), limite);
        QTEST(h.global("NumeroEsatto"), "numero");
        QTEST(drawing(h), "drawing");
    }

    // Form999x: presses of the two buttons, then Conferma twice; each press of Conferma counts.
    void building_data() {
        QTest::addColumn<int>("numero");
        QTest::addColumn<int>("decine");
        QTest::addColumn<int>("unita");
        QTest::addColumn<QString>("drawing");
        QTest::addColumn<bool>("right");
        QTest::newRow("bars only") << 40 << 4 << 0 << "1111/" << true;
        QTest::newRow("squares only") << 7 << 0 << 7 << "/1111111" << true;
        QTest::newRow("a tenth press changes nothing") << 99 << 10 << 11 << "111111111/111111111" << true;
        QTest::newRow("ten squares are not a bar") << 20 << 1 << 10 << "1/111111111" << false;
        QTest::newRow("an empty drawing") << 1 << 0 << 0 << "/" << false;
    }
    void building() {
        QFETCH(int, numero);
        QFETCH(int, decine);
        QFETCH(int, unita);
        QFETCH(QString, drawing);
        QFETCH(bool, right);
        Harness h;
        open(h, "Form999x", numero);
        click(h, "BottoneDecine", decine);
        click(h, "BottoneUnita", unita);
        QCOMPARE(::drawing(h), drawing);
        h.rnd({0.0});
        click(h, "BottoneConferma");
        if (right) {
            // The screen waits for "avanti" with the drawing as built.
            QCOMPARE(h.global("Esatti"), 1);
            QVERIFY(!h.enabled("BottoneConferma") && h.enabled("BottoneAvanti"));
            h.rnd({0.0, drawFor(33)});
            click(h, "BottoneAvanti");
            QCOMPARE(h.global("NumeroEsatto"), 33);
            QVERIFY(h.enabled("BottoneConferma"));
        } else {
            // The drawing stays to be mended, and the same drawing confirmed again is a second mistake.
            click(h, "BottoneConferma");
            QCOMPARE(h.global("Errati"), 2);
            QCOMPARE(::drawing(h), drawing);
            click(h, "BottoneRicomincia");
            QCOMPARE(h.global("NumeroEsatto"), numero);
            QCOMPARE(h.global("Errati"), 2);
        }
        QCOMPARE(::drawing(h), "/");
    }

    // The number asked in words, or in digits from MenuCifre on, for every later question too; an
    // item already checked still brings a new number.
    void wordsOrDigits() {
        Harness h;
        open(h, "Form999x", 42);
        QCOMPARE(h.caption("EtichettaNumero"), "QUARANTADUE");
        auto choose = [&h](const char* item, int number) {
            h.rnd({0.0, drawFor(number)});
            h.run(QStringLiteral(R"({"menu": "%1"})").arg(item));
            return h.caption("EtichettaNumero");
        };
        QCOMPARE(choose("MenuCifre", 7), "7");
        QVERIFY(!h.control("MenuParola").value("checked").toBool());
        h.rnd({0.0});
        click(h, "BottoneUnita", 7);
        click(h, "BottoneConferma");
        h.rnd({0.0, drawFor(61)});
        click(h, "BottoneAvanti");
        QCOMPARE(h.caption("EtichettaNumero"), "61");
        QCOMPARE(choose("MenuCifre", 23), "23");
        QCOMPARE(choose("MenuParola", 23), "VENTITRE");
        QVERIFY(h.control("MenuParola").value("checked").toBool());
    }

    void typedAnswers_data() {
        QTest::addColumn<QString>("form");
        QTest::addColumn<int>("numero");
        QTest::addColumn<QString>("how");
        QTest::addColumn<QString>("entered");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<bool>("right");
        auto row = [](const char* name, const char* form, int n, const char* how, const char* in,
                      const char* out, bool right) {
            QTest::newRow(name) << form << n << how << QString::fromUtf8(in) << QString::fromUtf8(out)
                                << right;
        };
        // In digits the leading number is read (the reading itself is tested with Val).
        row("a letter behind", "Form999y", 7, "type", "7a", "7a", true);
        row("the tens and units swapped", "Form999y", 46, "type", "64", "64", false);
        // In words one spelling, capitals from the keys, blanks around forgiven.
        row("small letters", "Form999z", 21, "type", "ventuno", "VENTUNO", true);
        row("blanks around", "Form999z", 21, "type", "  VENTUNO ", "  VENTUNO ", true);
        row("a blank inside", "Form999z", 21, "type", "venti uno", "VENTI UNO", false);
        row("a full stop behind", "Form999z", 21, "type", "ventuno.", "VENTUNO.", false);
        row("an accent", "Form999z", 23, "type", "ventitrè", "VENTITRè", false);
        row("blanks only", "Form999z", 21, "type", "   ", "   ", false);
        row("pasted in small letters", "Form999z", 21, "settext", "ventuno", "ventuno", false);
    }
    // Enter on the empty box counts nothing; Enter held down counts once.
    void typedAnswers() {
        QFETCH(QString, form);
        QFETCH(int, numero);
        QFETCH(QString, how);
        QFETCH(QString, entered);
        QFETCH(bool, right);
        Harness h;
        open(h, form, numero);
        QCOMPARE(h.dump().value("focus").toString(), "Text1");
        h.run(R"({"key": "Text1", "code": 13, "repeat": 2})");
        QCOMPARE(h.global("Esatti") + h.global("Errati"), 0);
        h.run(QStringLiteral(R"({"%1": "Text1", "text": "%2"})").arg(how, entered));
        h.rnd({0.0});
        h.run(R"({"key": "Text1", "code": 13, "repeat": 3})");
        QCOMPARE(h.global("Esatti"), right ? 1 : 0);
        QCOMPARE(h.global("Errati"), right ? 0 : 1);
        QTEST(h.text("Text1"), "shown");
        QCOMPARE(h.enabled("Text1"), !right); // right: waiting for "avanti" on the same number
        QCOMPARE(h.global("NumeroEsatto"), numero);
    }
};

QTEST_MAIN(LongsTest)
#include "longsunits.moc"
