// The exercise frame, end to end on "più 1": what the child types, what the screen answers, and
// what the counters, faces and sounds do.

#include "shell/forms.h"
#include "support/harness.h"

#include <QTest>

using namespace contarello;
using namespace contarello::test;

namespace {

// The draw that makes Form1 ask for e (e = Int(Rnd * 99) + 1).
double drawFor(int e) {
    return (e - 1 + 0.5) / 99.0;
}

// Opens "più 1" from the menus with the question " 11 + 1 = " and the first colour slot.
void openForm1(Harness& h, int e = 12) {
    h.run(R"J({"click": "BottoneAvvio"})J");
    h.run(R"J({"click": "Command3"})J");
    h.rnd({drawFor(e), 0.0});
    h.run(R"J({"click": "Command37"})J");
    h.events();
}

void enter(Harness& h) {
    h.run(R"J({"key": "Text1", "code": 13})J");
}

} // namespace

class FrameTest : public QObject {
    Q_OBJECT
private slots:
    void answers_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("right");
        QTest::newRow("the number") << "12" << true;
        QTest::newRow("a blank between the digits") << "1 2" << true;
        QTest::newRow("a letter between the digits") << "1a2" << true;
        QTest::newRow("a minus sign is dropped") << "-12" << true;
        QTest::newRow("a point is dropped") << "1.2" << true;
        QTest::newRow("leading zeros") << "0012" << true;
        QTest::newRow("accented letters are dropped") << "1è2à" << true;
        QTest::newRow("another number") << "13" << false;
        QTest::newRow("no digits counts as 0") << "abc" << false;
        QTest::newRow("a thousand digits") << QString(1000, u'1') << false;
    }
    void answers() {
        QFETCH(QString, typed);
        QFETCH(bool, right);
        Harness h;
        openForm1(h, 12);
        h.run(QStringLiteral(R"J({"type": "Text1", "text": "%1"})J").arg(typed));
        QCOMPARE(h.global("Esatti") + h.global("Errati"), 0); // nothing is taken before Enter
        h.rnd({0.6});                                         // the cheerful sound: Int(0.6 * 4) + 1
        enter(h);
        QCOMPARE(h.global("Esatti"), right ? 1 : 0);
        QCOMPARE(h.global("Errati"), right ? 0 : 1);
        QCOMPARE(h.visible("ComandoIconaSi"), right);
        QCOMPARE(h.visible("ComandoIconaNo"), !right);
        QCOMPARE(h.sounds(), QStringList{right ? "suoni/si3.wav" : "suoni/no.wav"});
        QCOMPARE(h.caption(right ? "EtichettaEsatti" : "EtichettaErrati"), QStringLiteral(" 1"));
        QCOMPARE(h.caption(right ? "EtichettaErrati" : "EtichettaEsatti"), QStringLiteral("0"));
        // A right answer shows as the child typed it and waits for "avanti"; a wrong one stays to be mended.
        QCOMPARE(h.caption("EtichettaNumero"),
                 right ? QStringLiteral(" 11 + 1 = ") + typed : QStringLiteral(" 11 + 1 = "));
        QCOMPARE(h.text("Text1"), typed);
        QCOMPARE(h.enabled("Text1"), !right);
        QCOMPARE(h.enabled("BottoneAvanti"), right);
        QCOMPARE(h.global("NumeroEsatto"), 12);
    }

    void enterOnAnEmptyBoxOrAnotherKeyDoesNothing() {
        Harness h;
        openForm1(h);
        enter(h);
        h.run(R"J({"type": "Text1", "text": "12"})J");
        h.run(R"J({"key": "Text1", "code": 65})J");
        QCOMPARE(h.global("Esatti") + h.global("Errati"), 0);
        QVERIFY(h.sounds().isEmpty());
    }

    void enterHeldDownCountsOnce() {
        Harness h;
        openForm1(h);
        h.run(R"J({"type": "Text1", "text": "5"})J");
        h.run(R"J({"key": "Text1", "code": 13, "repeat": 5})J");
        QCOMPARE(h.global("Errati"), 1);
        QCOMPARE(h.sounds().size(), 1);
    }

    void eachWrongEnterCountsAndTheQuestionStays() {
        Harness h;
        openForm1(h, 40);
        const QString colour = h.dump().value("backcolor").toString();
        h.run(R"J({"type": "Text1", "text": "4"})J");
        enter(h);
        enter(h);
        h.run(R"J({"type": "Text1", "text": "1"})J");
        enter(h);
        QCOMPARE(h.global("Errati"), 3);
        QCOMPARE(h.caption("EtichettaErrati"), QStringLiteral(" 3"));
        QCOMPARE(h.text("Text1"), QStringLiteral("41"));
        QCOMPARE(h.caption("EtichettaNumero"), QStringLiteral(" 39 + 1 = "));
        QCOMPARE(h.dump().value("backcolor").toString(), colour);
        QCOMPARE(h.dump().value("focus").toString(), QStringLiteral("Text1"));
        // mended, it is right, and the sad face gives way
        h.run(R"J({"key": "Text1", "code": 8})J");
        h.run(R"J({"type": "Text1", "text": "0"})J");
        enter(h);
        QCOMPARE(h.global("Esatti"), 1);
        QVERIFY(h.visible("ComandoIconaSi"));
    }

    void avantiDrawsTheNextQuestion() {
        Harness h;
        openForm1(h, 12);
        h.run(R"J({"type": "Text1", "text": "12"})J");
        enter(h);
        h.rnd({drawFor(99), 16.5 / 18}); // 98 + 1, colour slot 17 (#0000ff in this variant)
        h.run(R"J({"click": "BottoneAvanti"})J");
        QCOMPARE(h.caption("EtichettaNumero"), QStringLiteral(" 98 + 1 = "));
        QCOMPARE(h.dump().value("backcolor").toString(), QStringLiteral("#0000ff"));
        QVERIFY(h.enabled("Text1"));
        QCOMPARE(h.text("Text1"), QString());
        QVERIFY(!h.enabled("BottoneAvanti"));
        QVERIFY(h.visible("ComandoIconaSi")); // the face stays until the next answer
        QCOMPARE(h.caption("EtichettaEsatti"), QStringLiteral(" 1"));
        // while waiting, the box takes no keys
        QCOMPARE(h.run(R"J({"click": "BottoneAvanti"})J").value("ignored").toString(),
                 QStringLiteral("disabled"));
    }

    void withoutAvantiTheNextQuestionComesAtOnce() {
        Harness h;
        h.run(R"J({"click": "BottoneAvvio"})J");
        h.run(R"J({"click": "Option1(0)"})J");
        QCOMPARE(h.global("AttendiBottone"), 0);
        h.run(R"J({"click": "Command3"})J");
        h.rnd({drawFor(12), 0.0});
        h.run(R"J({"click": "Command37"})J");
        QVERIFY(!h.visible("BottoneAvanti"));
        h.run(R"J({"type": "Text1", "text": "12"})J");
        h.rnd({0.0, drawFor(30), 0.0}); // the sound, then the next question
        enter(h);
        QCOMPARE(h.global("Esatti"), 1);
        QCOMPARE(h.caption("EtichettaNumero"), QStringLiteral(" 29 + 1 = "));
        QVERIFY(h.enabled("Text1"));
        QCOMPARE(h.text("Text1"), QString());
        QCOMPARE(h.sounds(), QStringList{"suoni/si1.wav"});
    }

    void resettingTheCountersKeepsTheState_data() {
        QTest::addColumn<bool>("waiting");
        QTest::newRow("while answering") << false;
        QTest::newRow("while waiting for avanti") << true;
    }
    void resettingTheCountersKeepsTheState() {
        QFETCH(bool, waiting);
        Harness h;
        openForm1(h, 12);
        h.run(R"J({"type": "Text1", "text": "3"})J");
        enter(h);
        if (waiting) {
            h.run(R"J({"settext": "Text1", "text": "12"})J");
            enter(h);
        }
        const QString question = h.caption("EtichettaNumero");
        h.run(R"J({"menu": "MenuAzzera"})J");
        QCOMPARE(h.caption("EtichettaEsatti"), QStringLiteral("0"));
        QCOMPARE(h.caption("EtichettaErrati"), QStringLiteral("0"));
        QCOMPARE(h.global("Esatti"), 0);
        QCOMPARE(h.global("Errati"), 0);
        QCOMPARE(h.caption("EtichettaNumero"), question);
        QCOMPARE(h.enabled("BottoneAvanti"), waiting);
        QCOMPARE(h.enabled("Text1"), !waiting);
        QCOMPARE(h.visible("ComandoIconaSi"), waiting);
    }

    void leavingAsksFirst() {
        Harness h;
        openForm1(h);
        h.run(R"J({"type": "Text1", "text": "3"})J");
        enter(h);
        h.run(R"J({"msgbox": [7]})J");
        h.run(R"J({"menu": "mnuEsci"})J");
        QCOMPARE(h.form(), QStringLiteral("Form1"));
        const QJsonObject box = h.events("msgbox").at(0).toObject();
        QCOMPARE(box.value("text").toString(), QStringLiteral("Vuoi tornare al menù?"));
        QCOMPARE(box.value("style").toInt(), 36);
        QCOMPARE(box.value("title").toString(), QStringLiteral("Contarello"));

        h.run(R"J({"msgbox": [6]})J");
        h.run(R"J({"menu": "mnuEsci"})J");
        QCOMPARE(h.form(), QStringLiteral("FormMenu"));
        QCOMPARE(h.dump().value("loaded").toArray(), QJsonArray{"FormMenu"});
        // the next visit starts from nothing
        h.run(R"J({"click": "Command3"})J");
        h.run(R"J({"click": "Command37"})J");
        QCOMPARE(h.caption("EtichettaErrati"), QStringLiteral("0"));
        QCOMPARE(h.global("Errati"), 0);
        QVERIFY(h.visible("ComandoIconaNo"));
        QVERIFY(!h.visible("ComandoIconaSi"));
    }

    void closingTheWindowFromOutsideAsksLikeEsci() {
        Harness h;
        openForm1(h);
        h.engine.program().nav.active()->close(); // a key or a close box of the window system
        QCOMPARE(h.form(), QStringLiteral("Form1"));
        QCOMPARE(h.events("msgbox").at(0).toObject().value("text").toString(),
                 QStringLiteral("Vuoi tornare al menù?"));
        h.run(R"J({"msgbox": [6]})J");
        h.engine.program().nav.active()->close();
        QCOMPARE(h.form(), QStringLiteral("FormMenu"));
    }

    void informazioni() {
        Harness h;
        openForm1(h);
        h.run(R"J({"menu": "MenuInformazioni"})J");
        const QJsonObject box = h.events("msgbox").at(0).toObject();
        const QStringList lines = box.value("text").toString().split("\r\n");
        QCOMPARE(lines.size(), 4);
        QCOMPARE(lines[0], QStringLiteral("Nora Belli  "));
        QCOMPARE(lines[1], QStringLiteral(" ----------------------- "));
        QVERIFY(lines[3].startsWith(QStringLiteral("mail: ")));
        QCOMPARE(box.value("style").toInt(), 64);
        QCOMPARE(h.caption("EtichettaNumero"), QStringLiteral(" 11 + 1 = "));
    }

    void pastedTextIsFilteredToo() {
        Harness h;
        openForm1(h, 12);
        h.run(R"J({"settext": "Text1", "text": "dodici 1\t2\n"})J");
        enter(h);
        QCOMPARE(h.global("Esatti"), 1);
        QCOMPARE(h.caption("EtichettaNumero"), QStringLiteral(" 11 + 1 = dodici 1\t2\n"));
    }
};

QTEST_MAIN(FrameTest)
#include "frame.moc"
