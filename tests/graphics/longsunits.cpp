// The three screens of longs and units: the number drawn and its range, the bars and squares a
// child places, the answers typed in digits and in words, and the limit.

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
        for (int i = 0; i < 9; ++i)
            bits +=
                controls.value(QStringLiteral("%1(%2)").arg(array).arg(i))["visible"].toBool() ? '1' : '0';
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

struct Typed {
    QString form, how, entered, shown;
    int numero;
    bool right;
};

} // namespace
Q_DECLARE_METATYPE(Typed)

class LongsTest : public QObject {
    Q_OBJECT
private slots:
    // Whatever the main menu chose, each screen starts at 99. The reading screens draw the number
    // and show it; the limit bounds it, and 0 never comes.
    void theDrawnNumber_data() {
        QTest::addColumn<QString>("form");
        QTest::addColumn<int>("limite");
        QTest::addColumn<double>("rnd");
        QTest::addColumn<int>("numero");
        QTest::addColumn<QString>("drawing");
        QTest::newRow("no units") << QString("Form999y") << 99 << drawFor(40) << 40 << "1111/";
        QTest::newRow("no tens") << QString("Form999z") << 99 << drawFor(7) << 7 << "/1111111";
        QTest::newRow("the smallest") << QString("Form999y") << 99 << 0.0 << 1 << "/1";
        QTest::newRow("the limit itself")
            << QString("Form999z") << 99 << 0.99999 << 99 << "111111111/111111111";
        QTest::newRow("at most one bar under 19")
            << QString("Form999y") << 19 << 0.99999 << 19 << "1/111111111";
        QTest::newRow("building: nothing drawn") << QString("Form999x") << 29 << 0.99999 << 29 << "/";
    }
    void theDrawnNumber() {
        QFETCH(QString, form);
        QFETCH(int, limite);
        QFETCH(double, rnd);
        Harness h;
        h.setLimit(25);
        open(h, form, 50);
        QVERIFY(h.global("NumeroMassimo") == 99 && !h.visible("CorniceNumeroMassimo"));
        h.run(R"({"menu": "MenuNumeroMassimo"})");
        h.rnd({0.0, rnd});
        h.run(QStringLiteral(R"J({"click": "OpzioneNumeroMassimo(%1)"})J").arg((limite - 19) / 10));
        QCOMPARE(h.global("NumeroMassimo"), limite);
        QTEST(h.global("NumeroEsatto"), "numero");
        QTEST(drawing(h), "drawing");
    }

    // Form999x: presses of the two buttons, then Conferma; a wrong drawing stays to be mended, and
    // confirmed again is a second mistake; a right one waits for "avanti" as built.
    void building_data() {
        QTest::addColumn<int>("numero");
        QTest::addColumn<int>("decine");
        QTest::addColumn<int>("unita");
        QTest::addColumn<QString>("drawing");
        QTest::newRow("bars only") << 40 << 4 << 0 << "1111/";
        QTest::newRow("squares only") << 7 << 0 << 7 << "/1111111";
        QTest::newRow("a tenth press changes nothing") << 99 << 10 << 11 << "111111111/111111111";
        QTest::newRow("ten squares are not a bar") << 20 << 1 << 10 << "1/111111111";
        QTest::newRow("an empty drawing") << 1 << 0 << 0 << "/";
    }
    void building() {
        QFETCH(int, numero);
        QFETCH(int, decine);
        QFETCH(int, unita);
        QFETCH(QString, drawing);
        const bool right = numero == std::min(decine, 9) * 10 + std::min(unita, 9); // nine of a kind at most
        Harness h;
        open(h, "Form999x", numero);
        click(h, "BottoneDecine", decine);
        click(h, "BottoneUnita", unita);
        QCOMPARE(::drawing(h), drawing);
        h.rnd({0.0});
        click(h, "BottoneConferma");
        if (right) {
            QVERIFY(h.global("Esatti") == 1 && !h.enabled("BottoneConferma") && h.enabled("BottoneAvanti"));
            QCOMPARE(::drawing(h), drawing);
            h.rnd({0.0, drawFor(33)});
            click(h, "BottoneAvanti");
            QVERIFY(h.global("NumeroEsatto") == 33 && h.enabled("BottoneConferma"));
        } else {
            click(h, "BottoneConferma");
            QCOMPARE(std::pair(h.global("Errati"), ::drawing(h)), std::pair(2, drawing));
            click(h, "BottoneRicomincia"); // all the shapes off; the question and the counters stay
            QCOMPARE(std::pair(h.global("NumeroEsatto"), h.global("Errati")), std::pair(numero, 2));
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
            return h.caption("EtichettaNumero") + (h.control("MenuParola")["checked"].toBool() ? " P" : " C");
        };
        QCOMPARE(choose("MenuCifre", 7), "7 C");
        h.rnd({0.0});
        click(h, "BottoneUnita", 7);
        click(h, "BottoneConferma");
        h.rnd({0.0, drawFor(61)});
        click(h, "BottoneAvanti");
        QCOMPARE(h.caption("EtichettaNumero"), "61");
        QCOMPARE(choose("MenuCifre", 23), "23 C");
        QCOMPARE(choose("MenuParola", 23), "VENTITRE P");
    }

    // Enter on the empty box counts nothing; Enter held down counts once. In digits the leading
    // number is read; in words one spelling, capitals from the keys, blanks around forgiven.
    void typedAnswers_data() {
        QTest::addColumn<Typed>("t");
        QTest::newRow("a letter behind") << Typed{"Form999y", "type", "7a", "7a", 7, true};
        QTest::newRow("the tens and units swapped") << Typed{"Form999y", "type", "64", "64", 46, false};
        QTest::newRow("small letters") << Typed{"Form999z", "type", "ventuno", "VENTUNO", 21, true};
        QTest::newRow("blanks around") << Typed{"Form999z", "type", "  VENTUNO ", "  VENTUNO ", 21, true};
        QTest::newRow("a blank inside") << Typed{"Form999z", "type", "venti uno", "VENTI UNO", 21, false};
        QTest::newRow("a full stop behind") << Typed{"Form999z", "type", "ventuno.", "VENTUNO.", 21, false};
        QTest::newRow("an accent") << Typed{"Form999z", "type", "ventitrè", "VENTITRè", 23, false};
        QTest::newRow("blanks only") << Typed{"Form999z", "type", "   ", "   ", 21, false};
        QTest::newRow("pasted in small letters")
            << Typed{"Form999z", "settext", "ventuno", "ventuno", 21, false};
    }
    void typedAnswers() {
        QFETCH(Typed, t);
        Harness h;
        open(h, t.form, t.numero);
        QCOMPARE(h.dump().value("focus").toString(), "Text1");
        h.run(R"({"key": "Text1", "code": 13, "repeat": 2})");
        QCOMPARE(h.global("Esatti") + h.global("Errati"), 0);
        h.run(QStringLiteral(R"({"%1": "Text1", "text": "%2"})").arg(t.how, t.entered));
        h.rnd({0.0});
        h.run(R"({"key": "Text1", "code": 13, "repeat": 3})");
        QCOMPARE(std::pair(h.global("Esatti"), h.global("Errati")), std::pair(int(t.right), int(!t.right)));
        QCOMPARE(h.text("Text1"), t.shown);
        QCOMPARE(h.enabled("Text1"), !t.right); // right: waiting for "avanti" on the same number
        QCOMPARE(h.global("NumeroEsatto"), t.numero);
    }
};

QTEST_MAIN(LongsTest)
#include "longsunits.moc"
