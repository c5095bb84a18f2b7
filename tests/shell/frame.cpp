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

// "più 1" from the menus with the question " 11 + 1 = " and the first colour slot; without avanti,
// the main menu's setting is changed on the way.
void openForm1(Harness& h, bool avanti = true) {
    h.run(R"J({"click": "BottoneAvvio"})J");
    if (!avanti) h.run(R"J({"click": "Option1(0)"})J");
    h.run(R"J({"click": "Command3"})J");
    h.rnd({drawFor(12), 0.0});
    h.run(R"J({"click": "Command37"})J");
    h.events();
}

// Keys one by one, through the key filter: "\r" is Enter, "\b" Backspace.
void type(Harness& h, const QString& text) {
    h.run(QString::fromUtf8(QJsonDocument(QJsonObject{{"type", "Text1"}, {"text", text}}).toJson()));
}

// The face on show, both counter labels (which must agree with their counters), the question, and
// which of the box and avanti is enabled.
QString frame(Harness& h) {
    const QString face =
        QString(h.visible("ComandoIconaSi") ? "si" : "") + (h.visible("ComandoIconaNo") ? "no" : "");
    const QString esatti = h.caption("EtichettaEsatti"), errati = h.caption("EtichettaErrati");
    if (esatti.toInt() != h.global("Esatti") || errati.toInt() != h.global("Errati"))
        return "counters differ";
    return QStringLiteral("%1|%2|%3|%4|%5|%6")
        .arg(face, esatti, errati, h.caption("EtichettaNumero"), h.enabled("Text1") ? "Text1" : "",
             h.enabled("BottoneAvanti") ? "avanti" : "");
}

} // namespace

class FrameTest : public QObject {
    Q_OBJECT
private slots:
    // A right answer shows as the child typed it and waits for "avanti"; a wrong one stays to be
    // mended. Pasted text is put in the box at once.
    void answers_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("pasted");
        QTest::addColumn<bool>("right");
        // clang-format off
        QTest::newRow("the number")                    << "12" << false << true;
        QTest::newRow("a blank between the digits")    << "1 2" << false << true;
        QTest::newRow("a letter between the digits")   << "1a2" << false << true;
        QTest::newRow("a minus sign is dropped")       << "-12" << false << true;
        QTest::newRow("a point is dropped")            << "1.2" << false << true;
        QTest::newRow("leading zeros")                 << "0012" << false << true;
        QTest::newRow("accented letters are dropped")  << "1è2à" << false << true;
        QTest::newRow("pasted words, tab and newline") << "dodici 1\t2\n" << true << true;
        QTest::newRow("another number")                << "13" << false << false;
        QTest::newRow("no digits counts as 0")         << "abc" << false << false;
        QTest::newRow("a thousand digits")             << QString(1000, u'1') << true << false;
        // clang-format on
    }
    void answers() {
        QFETCH(QString, typed);
        QFETCH(bool, pasted);
        QFETCH(bool, right);
        Harness h;
        openForm1(h);
        h.rnd({0.6}); // the cheerful sound: Int(0.6 * 4) + 1
        pasted ? h.answer("Text1", typed) : type(h, typed + "\r");
        QCOMPARE(frame(h), right ? "si| 1|0| 11 + 1 = " + typed + "||avanti" : "no|0| 1| 11 + 1 = |Text1|");
        QCOMPARE(h.sounds(), QStringList{right ? "suoni/si3.wav" : "suoni/no.wav"});
    }

    // Only Enter released on a box with text counts, and once when it is held down. Each wrong Enter
    // counts and the question stays, with the text for the child to mend.
    void enterOnSomeTextCountsEachTime() {
        Harness h;
        openForm1(h);
        type(h, "\r1a");
        QCOMPARE(frame(h), "no|0|0| 11 + 1 = |Text1|");
        QVERIFY(h.sounds().isEmpty());
        h.run(R"J({"key": "Text1", "code": 13, "repeat": 5})J");
        QCOMPARE(h.global("Errati"), 1);
        QCOMPARE(h.sounds().size(), 1);
        type(h, "\r3\r");
        QCOMPARE(frame(h), "no|0| 3| 11 + 1 = |Text1|");
        QCOMPARE(h.text("Text1"), "1a3"); // the letter stays in the box, and out of the answer
        QCOMPARE(h.dump().value("focus").toString(), "Text1");
        type(h, "\b2\r");
        QCOMPARE(frame(h), "si| 1| 3| 11 + 1 = 1a2||avanti");
    }

    // The next question comes on avanti, or at once without it, with a new colour and an empty box;
    // the face stays until the next answer. Azzera clears the counters and leaves the question be.
    void afterTheAnswer_data() {
        QTest::addColumn<bool>("avanti");
        QTest::addColumn<QString>("answers");
        QTest::addColumn<QString>("then");
        QTest::addColumn<QString>("expected");
        const QString next = "si| 1|0| 98 + 1 = |Text1|", azzera = R"J({"menu": "MenuAzzera"})J";
        // clang-format off
        QTest::newRow("next on avanti")              << true << "12" << R"J({"click": "BottoneAvanti"})J" << next;
        QTest::newRow("next at once without avanti") << false << "12" << "" << next;
        QTest::newRow("Azzera while answering")      << true << "3" << azzera << "no|0|0| 11 + 1 = |Text1|";
        QTest::newRow("Azzera waiting for avanti")   << true << "3 12" << azzera << "si|0|0| 11 + 1 = 12||avanti";
        // clang-format on
    }
    void afterTheAnswer() {
        QFETCH(bool, avanti);
        QFETCH(QString, answers);
        QFETCH(QString, then);
        QFETCH(QString, expected);
        Harness h;
        openForm1(h, avanti);
        QCOMPARE(h.visible("BottoneAvanti"), avanti);
        h.rnd({0.0, drawFor(99), 16.5 / 18}); // the sound, 98 + 1, colour slot 17 (#0000ff in this variant)
        for (const QString& a : answers.split(' '))
            h.answer("Text1", a);
        if (!then.isEmpty()) h.run(then);
        QCOMPARE(frame(h), expected);
        if (!expected.contains("98")) return;
        QCOMPARE(h.dump().value("backcolor").toString(), "#0000ff");
        QCOMPARE(h.text("Text1"), QString());
        QCOMPARE(h.sounds(), QStringList{"suoni/si1.wav"});
        h.answer("Text1", "5"); // a wrong answer brings the sad face back
        QCOMPARE(frame(h), "no| 1| 1| 98 + 1 = |Text1|");
    }

    // Esci asks first (the window's own close is in tests/scripts): No stays, Yes goes back to the
    // menu, and the next visit starts from nothing.
    void leavingAsksFirst() {
        Harness h;
        openForm1(h);
        h.answer("Text1", "3");
        h.script("{\"msgbox\": [7, 6]}\n{\"menu\": \"mnuEsci\"}");
        QCOMPARE(h.form(), "Form1");
        h.run(R"J({"menu": "mnuEsci"})J");
        QCOMPARE(h.dump()["loaded"].toArray(), QJsonArray{"FormMenu"});
        const QJsonArray boxes = h.events("msgbox");
        QCOMPARE(boxes.size(), 2);
        for (const QJsonValue& box : boxes)
            QCOMPARE(box["text"].toString() + box["title"].toString() + QString::number(box["style"].toInt()),
                     "Vuoi tornare al menù?Contarello36");
        h.script("{\"click\": \"Command3\"}\n{\"click\": \"Command37\"}");
        QVERIFY(frame(h).startsWith("no|0|0|"));
    }

    // A counter at its largest value stays there, on both the variable and its label.
    void countersStopAtTheirLargestValue() {
        Harness h;
        openForm1(h, false);
        h.engine.program().g.Esatti = h.engine.program().g.Errati = 32766;
        for (int i = 0; i < 6; ++i)
            h.answer("Text1", QString::number(h.global("NumeroEsatto") + i % 2));
        QCOMPARE(frame(h).section('|', 1, 2), " 32767| 32767");
    }

    void informazioni() {
        Harness h;
        openForm1(h);
        h.run(R"J({"menu": "MenuInformazioni"})J");
        const QJsonValue box = h.events("msgbox").at(0);
        const QStringList lines = box["text"].toString().split("\r\n");
        QCOMPARE(lines.size(), 4);
        QCOMPARE(lines.mid(0, 2), (QStringList{"Nora Belli  ", " ----------------------- "}));
        QVERIFY(lines[3].startsWith("mail: ") && box["style"].toInt() == 64);
        QCOMPARE(h.caption("EtichettaNumero"), " 11 + 1 = ");
    }
};

QTEST_MAIN(FrameTest)
#include "frame.moc"
