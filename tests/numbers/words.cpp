// The two words screens: what a child really types, the menus and the limit panel. The questions
// themselves are rows of the table in stepping.cpp.

#include "support/harness.h"

#include <QTest>

using contarello::test::Harness;

namespace {

// Opens a words screen asking for e (Int(Rnd * 99) + 1), with colour slot 17 (#ffc0ff) drawn
// before the number.
void open(Harness& h, const QString& form, int e) {
    h.events(); // the program starts, with its own colour
    h.rnd({16.5 / 18, (e - 0.5) / 99});
    h.run(QStringLiteral(R"({"show": "%1"})").arg(form));
}

struct Risposta {
    QString form;
    int numero;
    QString scritto, mostrato; // typed through the keys, or pasted
    bool giusta, incollata = false;
};

} // namespace
Q_DECLARE_METATYPE(Risposta)

class WordsTest : public QObject {
    Q_OBJECT
private slots:
    void answers_data() {
        QTest::addColumn<Risposta>("r");
        const auto row = [](const char* name, const Risposta& r) { QTest::newRow(name) << r; };
        // In digits only the digits count, wherever they stand.
        row("signs, blanks and letters among the digits", {"FormScri", 42, "-4 x2", "-4 x2", true});
        row("the word instead of digits", {"FormScri", 42, "quarantadue", "quarantadue", false});
        // In words one spelling only, in capitals that the keys alone make.
        row("small letters become capitals", {"FormScri2", 21, "ventuno", "VENTUNO", true});
        row("blanks around the word", {"FormScri2", 28, "  ventotto ", "  VENTOTTO ", true});
        row("the tens keep their vowel", {"FormScri2", 21, "ventiuno", "VENTIUNO", false});
        row("a blank inside the word", {"FormScri2", 21, "vent uno", "VENT UNO", false});
        row("an accented letter", {"FormScri2", 23, "ventitré", "VENTITRé", false});
        row("pasted in small letters", {"FormScri2", 21, "ventuno", "ventuno", false, true});
        row("blanks only", {"FormScri2", 21, "  ", "  ", false});
        row("the digits instead of the word", {"FormScri2", 21, "21", "21", false});
    }
    // Enter held down gives one answer. Right: the screen waits for "avanti". Wrong: the text stays
    // to be mended.
    void answers() {
        QFETCH(Risposta, r);
        Harness h;
        open(h, r.form, r.numero);
        QCOMPARE(h.events("randomize").size(), r.form == "FormScri" ? 1 : 0); // only FormScri randomizes
        h.run(QStringLiteral(R"({"%1": "Text1", "text": "%2"})")
                  .arg(r.incollata ? "settext" : "type", r.scritto));
        h.run(R"({"key": "Text1", "code": 13, "repeat": 3})");
        QVERIFY(h.global("Esatti") == r.giusta && h.global("Errati") == !r.giusta);
        QCOMPARE(h.text("Text1"), r.mostrato);
        QVERIFY(h.enabled("Text1") != r.giusta && h.enabled("BottoneAvanti") == r.giusta);
    }

    // The words screens' own menus. A new limit brings a new question at once, here the highest
    // number under it, even while the child waits for "avanti"; the counters and the state stay.
    void theLimitPanel() {
        Harness h;
        open(h, "FormScri", 16);
        const QStringList menus{h.caption("MenuAzzera"), h.caption("mnuNumeroMassimo"),
                                h.caption("mnuStampa"), h.caption("MenuInformazioni")};
        QCOMPARE(menus.join('|'), "Azzera conteggio        |Numero Massimo          |Stampa scheda        |"
                                  "Informazioni         ");
        h.answer("Text1", "16");
        h.run(R"({"menu": "mnuNumeroMassimo"})"); // the panel's options are reached only when it shows
        h.rnd({0.0, 0.9999});                     // the colour, then the number
        h.run(R"J({"click": "OpzioneNumeroMassimo(8)"})J");
        QVERIFY(!h.visible("CorniceNumeroMassimo") && h.global("NumeroMassimo") == 99);
        QCOMPARE(h.caption("EtichettaNumero") + '|' + h.text("Text1"), "NOVANTANOVE|");
        QVERIFY(!h.enabled("Text1") && h.enabled("BottoneAvanti") && h.visible("ComandoIconaSi"));
        QCOMPARE(h.global("Esatti"), 1);
    }
};

QTEST_MAIN(WordsTest)
#include "words.moc"
