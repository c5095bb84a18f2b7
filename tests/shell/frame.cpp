// The exercise frame, end to end on "più 1": what the child types, what the screen answers, and
// what the counters, faces and sounds do.

#include "shell/form.h"
#include "support/harness.h"

#include <QJsonDocument>
#include <QTest>

using namespace contarello;
using namespace contarello::test;

namespace {

// The draw that makes Form1 ask for e (e = Int(Rnd * 99) + 1).
double drawFor(int e) {
    return (e - 1 + 0.5) / 99.0;
}

// Opens "più 1" from the menus with the question " 11 + 1 = " and the first colour slot; without
// avanti, the main menu's setting is changed on the way.
void openForm1(Harness& h, bool avanti = true) {
    h.run(R"J({"click": "BottoneAvvio"})J");
    if (!avanti) h.run(R"J({"click": "Option1(0)"})J");
    h.run(R"J({"click": "Command3"})J");
    h.rnd({drawFor(12), 0.0});
    h.run(R"J({"click": "Command37"})J");
    h.events();
}

// Keys one by one, through the key filter.
void type(Harness& h, const QString& text) {
    h.run(QString::fromUtf8(QJsonDocument(QJsonObject{{"type", "Text1"}, {"text", text}}).toJson()));
}

void enter(Harness& h) {
    h.run(R"J({"key": "Text1", "code": 13})J");
}

// The frame at a glance: the face on show, both counter labels, the question, and which of the box
// and avanti is enabled.
QString frame(Harness& h) {
    const QString face =
        QString(h.visible("ComandoIconaSi") ? "si" : "") + (h.visible("ComandoIconaNo") ? "no" : "");
    return QStringLiteral("%1|%2|%3|%4|%5|%6")
        .arg(face, h.caption("EtichettaEsatti"), h.caption("EtichettaErrati"), h.caption("EtichettaNumero"),
             h.enabled("Text1") ? "Text1" : "", h.enabled("BottoneAvanti") ? "avanti" : "");
}

} // namespace

class FrameTest : public QObject {
    Q_OBJECT
private slots:
    void answers_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("pasted");
        QTest::addColumn<bool>("right");
        QTest::newRow("the number") << "12" << false << true;
        QTest::newRow("a blank between the digits") << "1 2" << false << true;
        QTest::newRow("a letter between the digits") << "1a2" << false << true;
        QTest::newRow("a minus sign is dropped") << "-12" << false << true;
        QTest::newRow("a point is dropped") << "1.2" << false << true;
        QTest::newRow("leading zeros") << "0012" << false << true;
        QTest::newRow("accented letters are dropped") << "1è2à" << false << true;
        QTest::newRow("pasted words, tab and newline") << "dodici 1\t2\n" << true << true;
        QTest::newRow("another number") << "13" << false << false;
        QTest::newRow("no digits counts as 0") << "abc" << false << false;
        QTest::newRow("a thousand digits") << QString(1000, u'1') << true << false;
    }
    // A right answer shows as the child typed it and waits for "avanti"; a wrong one stays to be
    // mended.
    void answers() {
        QFETCH(QString, typed);
        QFETCH(bool, pasted);
        QFETCH(bool, right);
        Harness h;
        openForm1(h);
        h.rnd({0.6}); // the cheerful sound: Int(0.6 * 4) + 1
        if (pasted) {
            h.answer("Text1", typed);
        } else {
            type(h, typed);
            QCOMPARE(h.global("Esatti") + h.global("Errati"), 0); // nothing is taken before Enter
            enter(h);
        }
        QCOMPARE(frame(h), right ? "si| 1|0| 11 + 1 = " + typed + "||avanti" : "no|0| 1| 11 + 1 = |Text1|");
        QCOMPARE(h.sounds(), QStringList{right ? "suoni/si3.wav" : "suoni/no.wav"});
    }

    // Only Enter released on a box with text counts, and once when it is held down. Each wrong Enter
    // counts and the question stays, with the text for the child to mend.
    void enterOnSomeTextCountsEachTime() {
        Harness h;
        openForm1(h);
        enter(h);
        type(h, "1");
        h.run(R"J({"key": "Text1", "code": 65})J");
        QCOMPARE(h.global("Esatti") + h.global("Errati"), 0);
        QVERIFY(h.sounds().isEmpty());
        h.run(R"J({"key": "Text1", "code": 13, "repeat": 5})J");
        QCOMPARE(h.global("Errati"), 1);
        QCOMPARE(h.sounds().size(), 1);
        enter(h);
        type(h, "3");
        enter(h);
        QCOMPARE(frame(h), "no|0| 3| 11 + 1 = |Text1|");
        QCOMPARE(h.text("Text1"), "1a3"); // the letter stays in the box, and out of the answer
        QCOMPARE(h.dump().value("focus").toString(), "Text1");
        h.run(R"J({"key": "Text1", "code": 8})J");
        type(h, "2");
        enter(h);
        QCOMPARE(h.global("Esatti"), 1);
        QVERIFY(h.visible("ComandoIconaSi"));
    }

    // After avanti or at once, the next question comes with a new colour and an empty box; the face
    // stays until the next answer.
    void theNextQuestion_data() {
        QTest::addColumn<bool>("avanti");
        QTest::newRow("on avanti") << true;
        QTest::newRow("at once without avanti") << false;
    }
    void theNextQuestion() {
        QFETCH(bool, avanti);
        Harness h;
        openForm1(h, avanti);
        QCOMPARE(h.visible("BottoneAvanti"), avanti);
        h.rnd({0.0, drawFor(99), 16.5 / 18}); // the sound, 98 + 1, colour slot 17 (#0000ff in this variant)
        h.answer("Text1", "12");
        if (avanti) h.run(R"J({"click": "BottoneAvanti"})J");
        QCOMPARE(frame(h), "si| 1|0| 98 + 1 = |Text1|");
        QCOMPARE(h.dump().value("backcolor").toString(), "#0000ff");
        QCOMPARE(h.text("Text1"), QString());
        QCOMPARE(h.sounds(), QStringList{"suoni/si1.wav"});
        h.answer("Text1", "5"); // a wrong answer brings the sad face back
        QCOMPARE(frame(h), "no| 1| 1| 98 + 1 = |Text1|");
    }

    void resettingTheCountersKeepsTheState_data() {
        QTest::addColumn<bool>("waiting");
        QTest::newRow("while answering") << false;
        QTest::newRow("while waiting for avanti") << true;
    }
    void resettingTheCountersKeepsTheState() {
        QFETCH(bool, waiting);
        Harness h;
        openForm1(h);
        h.answer("Text1", "3");
        if (waiting) h.answer("Text1", "12");
        h.run(R"J({"menu": "MenuAzzera"})J");
        QCOMPARE(h.global("Esatti") + h.global("Errati"), 0);
        QCOMPARE(frame(h), waiting ? "si|0|0| 11 + 1 = 12||avanti" : "no|0|0| 11 + 1 = |Text1|");
    }

    // Esci and the window's own close ask the same; No stays, Yes goes back to the menu, and the
    // next visit starts from nothing.
    void leavingAsksFirst() {
        Harness h;
        openForm1(h);
        h.answer("Text1", "3");
        h.run(R"J({"msgbox": [7, 6]})J");
        h.run(R"J({"menu": "mnuEsci"})J");
        QCOMPARE(h.form(), "Form1");
        h.engine.program().nav.active()->close(); // a key or a close box of the window system
        QCOMPARE(h.dump().value("loaded").toArray(), QJsonArray{"FormMenu"});
        QJsonObject no{{"event", "msgbox"}, {"style", 36}, {"title", "Contarello"}, {"result", 7}};
        no["text"] = QStringLiteral("Vuoi tornare al menù?");
        QJsonObject yes = no;
        yes["result"] = 6;
        QCOMPARE(h.events("msgbox"), (QJsonArray{no, yes}));
        h.run(R"J({"click": "Command3"})J");
        h.run(R"J({"click": "Command37"})J");
        QCOMPARE(h.global("Errati"), 0);
        QVERIFY(frame(h).startsWith("no|0|0|"));
    }

    // A counter at its largest value stays there, on both the variable and its label.
    void countersStopAtTheirLargestValue_data() {
        QTest::addColumn<bool>("right");
        QTest::newRow("Esatti") << true;
        QTest::newRow("Errati") << false;
    }
    void countersStopAtTheirLargestValue() {
        QFETCH(bool, right);
        Harness h;
        openForm1(h, false);
        Modulo1& g = h.engine.program().g;
        (right ? g.Esatti : g.Errati) = 32766;
        const QString counter = right ? QStringLiteral("Esatti") : QStringLiteral("Errati");
        for (int i = 0; i < 3; ++i) {
            const int esatto = h.global("NumeroEsatto");
            h.answer("Text1", QString::number(right ? esatto : esatto + 1));
        }
        QCOMPARE(h.global(counter), 32767);
        QCOMPARE(h.caption("Etichetta" + counter), " 32767");
        QCOMPARE(h.global(right ? "Errati" : "Esatti"), 0);
    }

    void informazioni() {
        Harness h;
        openForm1(h);
        h.run(R"J({"menu": "MenuInformazioni"})J");
        const QJsonObject box = h.events("msgbox").at(0).toObject();
        const QStringList lines = box.value("text").toString().split("\r\n");
        QCOMPARE(lines.size(), 4);
        QCOMPARE(lines.mid(0, 2), (QStringList{"Nora Belli  ", " ----------------------- "}));
        QVERIFY(lines[3].startsWith("mail: "));
        QCOMPARE(box.value("style").toInt(), 64);
        QCOMPARE(h.caption("EtichettaNumero"), " 11 + 1 = ");
    }
};

QTEST_MAIN(FrameTest)
#include "frame.moc"
