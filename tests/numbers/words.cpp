// The two words screens end to end: the word or the digits asked, what a child really types, and
// the limit panel.

#include "support/harness.h"

#include <QJsonDocument>
#include <QTest>

using namespace contarello;
using namespace contarello::test;

namespace {

// The draw that asks for e under the limit n: Int(Rnd * n) + 1.
double drawFor(int e, int n = 99) {
    return (e - 1 + 0.5) / n;
}
constexpr double kSlot17 = 16.5 / 18; // #ffc0ff on these screens

// Opens a words screen asking for e, the colour drawn before the number.
void open(Harness& h, const QString& form, int e) {
    h.dump(); // the program starts, with its own colour
    h.rnd({kSlot17, drawFor(e)});
    h.run(QStringLiteral(R"({"show": "%1"})").arg(form));
}

void act(Harness& h, const QJsonObject& command) {
    h.run(QString::fromUtf8(QJsonDocument(command).toJson(QJsonDocument::Compact)));
}

void enter(Harness& h) {
    h.run(R"({"key": "Text1", "code": 13})");
}

} // namespace

class WordsTest : public QObject {
    Q_OBJECT
private slots:
    void theQuestion_data() {
        QTest::addColumn<QString>("form");
        QTest::addColumn<int>("numero");
        QTest::addColumn<QString>("domanda");
        QTest::addColumn<QString>("consegna");
        QTest::addColumn<int>("randomize");
        QTest::newRow("word on FormScri") << "FormScri" << 42 << "QUARANTADUE"
                                          << "Scrivi il numero in cifre" << 1;
        QTest::newRow("digits behind a blank on FormScri2") << "FormScri2" << 7 << " 7"
                                                            << "Scrivi il numero in lettere" << 0;
    }
    void theQuestion() {
        QFETCH(QString, form);
        QFETCH(int, numero);
        QFETCH(QString, domanda);
        QFETCH(QString, consegna);
        QFETCH(int, randomize);
        Harness h;
        h.dump();
        h.events();
        h.rnd({kSlot17, drawFor(numero)});
        h.run(QStringLiteral(R"({"show": "%1"})").arg(form));
        // the colour is drawn first, then the number
        QCOMPARE(h.dump().value("backcolor").toString(), QStringLiteral("#ffc0ff"));
        QCOMPARE(h.global("NumeroEsatto"), numero);
        QCOMPARE(h.caption("EtichettaNumero"), domanda);
        QCOMPARE(h.caption("Label3"), consegna);
        QCOMPARE(h.dump().value("focus").toString(), QStringLiteral("Text1"));
        QCOMPARE(h.caption("EtichettaEsatti"), QStringLiteral("0"));
        QVERIFY(!h.enabled("BottoneAvanti"));
        QCOMPARE(h.events("randomize").size(), randomize);
        QCOMPARE(h.caption("mnuNumeroMassimo"), QStringLiteral("Numero Massimo          "));
        QCOMPARE(h.caption("mnuStampa"), QStringLiteral("Stampa scheda        "));
        QCOMPARE(h.caption("MenuInformazioni"), QStringLiteral("Informazioni         "));
        QVERIFY(!h.visible("CorniceNumeroMassimo"));
    }

    void answers_data() {
        QTest::addColumn<QString>("form");
        QTest::addColumn<int>("numero");
        QTest::addColumn<QString>("how"); // "type" goes through the keys, "settext" is a paste
        QTest::addColumn<QString>("entered");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<bool>("right");
        QTest::newRow("digits") << "FormScri" << 42 << "type"
                                << "42"
                                << "42" << true;
        QTest::newRow("a blank between the digits") << "FormScri" << 42 << "type"
                                                    << "4 2"
                                                    << "4 2" << true;
        QTest::newRow("letters around the digits") << "FormScri" << 42 << "type"
                                                   << "04x2"
                                                   << "04x2" << true;
        QTest::newRow("the word instead of digits") << "FormScri" << 42 << "type"
                                                    << "quarantadue"
                                                    << "quarantadue" << false;
        QTest::newRow("blanks only, FormScri") << "FormScri" << 42 << "type"
                                               << "   "
                                               << "   " << false;
        QTest::newRow("the digits turned round") << "FormScri" << 42 << "type"
                                                 << "24"
                                                 << "24" << false;
        QTest::newRow("small letters become capitals") << "FormScri2" << 21 << "type"
                                                       << "ventuno"
                                                       << "VENTUNO" << true;
        QTest::newRow("blanks around the word") << "FormScri2" << 28 << "type"
                                                << "  ventotto "
                                                << "  VENTOTTO " << true;
        QTest::newRow("the tens keep their vowel") << "FormScri2" << 21 << "type"
                                                   << "ventiuno"
                                                   << "VENTIUNO" << false;
        QTest::newRow("a blank inside the word") << "FormScri2" << 21 << "type"
                                                 << "venti uno"
                                                 << "VENTI UNO" << false;
        QTest::newRow("an accented letter") << "FormScri2" << 23 << "type"
                                            << "ventitré"
                                            << "VENTITRé" << false;
        QTest::newRow("no accent") << "FormScri2" << 23 << "type"
                                   << "ventitre"
                                   << "VENTITRE" << true;
        QTest::newRow("pasted in small letters") << "FormScri2" << 21 << "settext"
                                                 << "ventuno"
                                                 << "ventuno" << false;
        QTest::newRow("pasted in capitals") << "FormScri2" << 21 << "settext"
                                            << "VENTUNO"
                                            << "VENTUNO" << true;
        QTest::newRow("blanks only, FormScri2") << "FormScri2" << 21 << "type"
                                                << "  "
                                                << "  " << false;
        QTest::newRow("the digits instead of the word") << "FormScri2" << 21 << "type"
                                                        << "21"
                                                        << "21" << false;
    }
    void answers() {
        QFETCH(QString, form);
        QFETCH(int, numero);
        QFETCH(QString, how);
        QFETCH(QString, entered);
        QFETCH(QString, shown);
        QFETCH(bool, right);
        Harness h;
        open(h, form, numero);
        const QString question = h.caption("EtichettaNumero");
        act(h, {{how, "Text1"}, {"text", entered}});
        QCOMPARE(h.text("Text1"), shown);
        h.events();
        h.rnd({0.0}); // the cheerful sound
        enter(h);
        QCOMPARE(h.global("Esatti"), right ? 1 : 0);
        QCOMPARE(h.global("Errati"), right ? 0 : 1);
        QCOMPARE(h.caption(right ? "EtichettaEsatti" : "EtichettaErrati"), QStringLiteral(" 1"));
        QCOMPARE(h.visible("ComandoIconaSi"), right);
        QCOMPARE(h.visible("ComandoIconaNo"), !right);
        QCOMPARE(h.sounds(), QStringList{right ? "suoni/si1.wav" : "suoni/no.wav"});
        // Right: the screen waits for "avanti" with the question as it was. Wrong: the text stays to be
        // mended.
        QCOMPARE(h.caption("EtichettaNumero"), question);
        QCOMPARE(h.text("Text1"), shown);
        QCOMPARE(h.enabled("Text1"), !right);
        QCOMPARE(h.enabled("BottoneAvanti"), right);
        QCOMPARE(h.global("NumeroEsatto"), numero);
    }

    void enterOnAnEmptyBoxOrHeldDown() {
        Harness h;
        open(h, QStringLiteral("FormScri2"), 21);
        h.events();
        enter(h);
        QCOMPARE(h.global("Errati"), 0);
        h.run(R"({"type": "Text1", "text": "venti"})");
        h.run(R"({"key": "Text1", "code": 13, "repeat": 4})");
        QCOMPARE(h.global("Errati"), 1);
        QCOMPARE(h.sounds(), QStringList{"suoni/no.wav"});
    }

    void avantiAndTheNextQuestion_data() {
        QTest::addColumn<bool>("attendi");
        QTest::newRow("waits for avanti") << true;
        QTest::newRow("goes on at once without avanti") << false;
    }
    void avantiAndTheNextQuestion() {
        QFETCH(bool, attendi);
        Harness h;
        h.dump();
        h.engine.program().g.AttendiBottone = attendi ? -1 : 0;
        open(h, QStringLiteral("FormScri"), 16);
        QCOMPARE(h.visible("BottoneAvanti"), attendi);
        h.run(R"({"type": "Text1", "text": "16"})");
        h.rnd({0.0, 0.0, drawFor(80)}); // the sound, the colour, the next number
        enter(h);
        if (attendi) h.run(R"({"click": "BottoneAvanti"})");
        QCOMPARE(h.caption("EtichettaNumero"), QStringLiteral("OTTANTA"));
        QCOMPARE(h.dump().value("backcolor").toString(), QStringLiteral("#ffc0c0"));
        QCOMPARE(h.text("Text1"), QString());
        QVERIFY(h.enabled("Text1"));
        QVERIFY(!h.enabled("BottoneAvanti"));
        QCOMPARE(h.caption("EtichettaEsatti"), QStringLiteral(" 1"));
        QVERIFY(h.visible("ComandoIconaSi")); // the face keeps the last verdict
    }

    void theLimitPanel_data() {
        QTest::addColumn<int>("option");
        QTest::addColumn<bool>("waiting");
        QTest::addColumn<QString>("domanda");
        QTest::newRow("19 while answering") << 0 << false << "DICIANNOVE";
        QTest::newRow("99 while waiting for avanti") << 8 << true << "NOVANTANOVE";
    }
    void theLimitPanel() {
        QFETCH(int, option);
        QFETCH(bool, waiting);
        QFETCH(QString, domanda);
        Harness h;
        open(h, QStringLiteral("FormScri"), 42);
        h.run(QStringLiteral(R"({"type": "Text1", "text": "%1"})").arg(waiting ? "42" : "7"));
        enter(h);
        h.run(R"({"menu": "mnuNumeroMassimo"})");
        QVERIFY(h.visible("CorniceNumeroMassimo"));
        const int limite = 19 + 10 * option;
        h.rnd({0.0, drawFor(limite, limite)}); // the highest number under the new limit
        act(h, {{"click", QStringLiteral("OpzioneNumeroMassimo(%1)").arg(option)}});
        QVERIFY(!h.visible("CorniceNumeroMassimo"));
        QCOMPARE(h.global("NumeroMassimo"), limite);
        QCOMPARE(h.global("NumeroEsatto"), limite);
        QCOMPARE(h.caption("EtichettaNumero"), domanda);
        // the counters and the state stay as they were
        QCOMPARE(h.global(waiting ? "Esatti" : "Errati"), 1);
        QCOMPARE(h.enabled("Text1"), !waiting);
        QCOMPARE(h.enabled("BottoneAvanti"), waiting);
    }

    void theWorksheetIsTheWordsOne() {
        Harness h;
        open(h, QStringLiteral("FormScri2"), 5);
        h.run(R"({"menu": "mnuStampa"})");
        const QJsonObject d = h.dump();
        QCOMPARE(d.value("form").toString(), QStringLiteral("formStampa"));
        QCOMPARE(h.global("NumeroScheda"), 1);
        QVERIFY(d.value("loaded").toArray().contains(QStringLiteral("FormScri2")));
        QVERIFY(!h.text("txtCD").isEmpty());
    }
};

QTEST_MAIN(WordsTest)
#include "words.moc"
