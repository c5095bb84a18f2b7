// The two words screens end to end: the word or the digits asked, what a child really types, and
// the limit panel.

#include "support/harness.h"

#include <QTest>

using namespace contarello;
using namespace contarello::test;

namespace {

// The draw that asks for e under the limit n: Int(Rnd * n) + 1.
double drawFor(int e, int n = 99) {
    return (e - 1 + 0.5) / n;
}

// Opens a words screen asking for e, with colour slot 17 (#ffc0ff) drawn before the number.
void open(Harness& h, const QString& form, int e) {
    h.dump(); // the program starts, with its own colour
    h.events();
    h.rnd({16.5 / 18, drawFor(e)});
    h.run(QStringLiteral(R"({"show": "%1"})").arg(form));
}

void enter(Harness& h) {
    h.run(R"({"key": "Text1", "code": 13})");
}

// One answer: "type" goes through the keys, "settext" is a paste.
void row(const char* name, const char* form, int numero, const char* entered, const char* shown, bool right,
         const char* how = "type") {
    QTest::newRow(name) << form << numero << how << QString::fromUtf8(entered) << QString::fromUtf8(shown)
                        << right;
}

} // namespace

class WordsTest : public QObject {
    Q_OBJECT
private slots:
    void theQuestion_data() {
        QTest::addColumn<QString>("form");
        QTest::addColumn<QString>("domanda");
        QTest::addColumn<QString>("consegna");
        QTest::addColumn<int>("randomize");
        QTest::newRow("the word on FormScri") << "FormScri"
                                              << "QUARANTADUE"
                                              << "Scrivi il numero in cifre" << 1;
        QTest::newRow("digits behind a blank on FormScri2") << "FormScri2"
                                                            << " 42"
                                                            << "Scrivi il numero in lettere" << 0;
    }
    void theQuestion() {
        QFETCH(QString, form);
        QFETCH(QString, domanda);
        QFETCH(QString, consegna);
        QFETCH(int, randomize);
        Harness h;
        open(h, form, 42);
        QCOMPARE(h.events("randomize").size(), randomize);
        // the colour is drawn first, then the number
        QCOMPARE(h.dump().value("backcolor").toString(), QStringLiteral("#ffc0ff"));
        QCOMPARE(h.caption("EtichettaNumero"), domanda);
        QCOMPARE(h.caption("Label3"), consegna);
        QCOMPARE(h.dump().value("focus").toString(), QStringLiteral("Text1"));
        QVERIFY(!h.visible("CorniceNumeroMassimo"));
        const QStringList menus{h.caption("MenuAzzera"), h.caption("mnuNumeroMassimo"),
                                h.caption("mnuStampa"), h.caption("MenuInformazioni")};
        QCOMPARE(menus, (QStringList{"Azzera conteggio        ", "Numero Massimo          ",
                                     "Stampa scheda        ", "Informazioni         "}));
        // both print the words worksheet
        h.run(R"({"menu": "mnuStampa"})");
        QCOMPARE(h.form(), QStringLiteral("formStampa"));
        QCOMPARE(h.global("NumeroScheda"), 1);
    }

    void answers_data() {
        QTest::addColumn<QString>("form");
        QTest::addColumn<int>("numero");
        QTest::addColumn<QString>("how");
        QTest::addColumn<QString>("entered");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<bool>("right");
        // In digits only the digits count, wherever they stand.
        row("digits", "FormScri", 42, "42", "42", true);
        row("signs, blanks and letters among the digits", "FormScri", 42, "-4 x2", "-4 x2", true);
        row("the word instead of digits", "FormScri", 42, "quarantadue", "quarantadue", false);
        row("blanks only, FormScri", "FormScri", 42, "   ", "   ", false);
        // In words one spelling only, in capitals that the keys alone make.
        row("small letters become capitals", "FormScri2", 21, "ventuno", "VENTUNO", true);
        row("blanks around the word", "FormScri2", 28, "  ventotto ", "  VENTOTTO ", true);
        row("the tens keep their vowel", "FormScri2", 21, "ventiuno", "VENTIUNO", false);
        row("a blank inside the word", "FormScri2", 21, "vent uno", "VENT UNO", false);
        row("an accented letter", "FormScri2", 23, "ventitré", "VENTITRé", false);
        row("pasted in small letters", "FormScri2", 21, "ventuno", "ventuno", false, "settext");
        row("blanks only, FormScri2", "FormScri2", 21, "  ", "  ", false);
        row("the digits instead of the word", "FormScri2", 21, "21", "21", false);
    }
    // Enter on the empty box counts nothing, and Enter held down gives one answer.
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
        enter(h);
        h.run(QStringLiteral(R"({"%1": "Text1", "text": "%2"})").arg(how, entered));
        h.events();
        h.rnd({0.0}); // the cheerful sound
        h.run(R"({"key": "Text1", "code": 13, "repeat": 3})");
        QCOMPARE(h.global("Esatti"), right ? 1 : 0);
        QCOMPARE(h.global("Errati"), right ? 0 : 1);
        QCOMPARE(h.sounds(), QStringList{right ? "suoni/si1.wav" : "suoni/no.wav"});
        // Right: the screen waits for "avanti" with the question as it was. Wrong: the text stays to be
        // mended.
        QCOMPARE(h.caption("EtichettaNumero"), question);
        QCOMPARE(h.text("Text1"), shown);
        QCOMPARE(h.enabled("Text1"), !right);
        QCOMPARE(h.enabled("BottoneAvanti"), right);
    }

    // A new limit brings a new question at once, here the highest number under it, whether the child
    // was answering or waiting for "avanti"; the counters, the state and the last verdict stay.
    void theLimitPanel_data() {
        QTest::addColumn<int>("limite");
        QTest::addColumn<bool>("waiting");
        QTest::addColumn<QString>("domanda");
        QTest::newRow("19 while answering") << 19 << false << "DICIANNOVE";
        QTest::newRow("99 while waiting for avanti") << 99 << true << "NOVANTANOVE";
    }
    void theLimitPanel() {
        QFETCH(int, limite);
        QFETCH(bool, waiting);
        QFETCH(QString, domanda);
        Harness h;
        open(h, QStringLiteral("FormScri"), 16);
        if (waiting) h.rnd({0.0}); // the cheerful sound
        h.run(QStringLiteral(R"({"type": "Text1", "text": "%1"})").arg(waiting ? "16" : "7"));
        enter(h);
        h.run(R"({"menu": "mnuNumeroMassimo"})");
        QVERIFY(h.visible("CorniceNumeroMassimo"));
        h.rnd({0.0, drawFor(limite, limite)}); // the colour, then the number
        h.run(QStringLiteral(R"J({"click": "OpzioneNumeroMassimo(%1)"})J").arg((limite - 19) / 10));
        QVERIFY(!h.visible("CorniceNumeroMassimo"));
        QCOMPARE(h.global("NumeroMassimo"), limite);
        QCOMPARE(h.caption("EtichettaNumero"), domanda);
        QCOMPARE(h.dump().value("backcolor").toString(), QStringLiteral("#ffc0c0"));
        QCOMPARE(h.text("Text1"), QString());
        QCOMPARE(h.enabled("Text1"), !waiting);
        QCOMPARE(h.enabled("BottoneAvanti"), waiting);
        QCOMPARE(h.global(waiting ? "Esatti" : "Errati"), 1);
        QCOMPARE(h.visible("ComandoIconaSi"), waiting);
    }
};

QTEST_MAIN(WordsTest)
#include "words.moc"
