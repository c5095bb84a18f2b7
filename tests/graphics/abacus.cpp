// The three abacus screens end to end: the numbers drawn, the beads under both mouse buttons, the
// Enter of each screen, the words a child types, and how the beads stand on their wires.

#include "shell/form.h"
#include "shell/program.h"
#include "support/harness.h"

#include <QJsonDocument>
#include <QTest>

using namespace contarello;
using namespace contarello::test;

namespace {

// Opens a screen with the first colour and the draw r for its number; avanti as the main menu says.
void open(Harness& h, const QString& form, double r, bool avanti = true) {
    h.run(R"J({"click": "BottoneAvvio"})J");
    if (!avanti) h.run(R"J({"click": "Option1(0)"})J");
    h.rnd({0.0, r});
    h.run(QStringLiteral(R"({"show": "%1"})").arg(form));
    h.events();
}

// The draw that gives e: Int(Rnd * 99) + base.
double drawFor(int e, int base) {
    return (e - base + 0.5) / 99;
}

// How many beads of the wire show, -1 if they are not the lowest ones.
int beads(Harness& h, const QString& wire) {
    int n = 0;
    while (n < 9 && h.visible(QStringLiteral("%1(%2)").arg(wire).arg(n)))
        ++n;
    for (int i = n; i < 9; ++i)
        if (h.visible(QStringLiteral("%1(%2)").arg(wire).arg(i))) return -1;
    return n;
}

void json(Harness& h, const QJsonObject& o) {
    h.run(QString::fromUtf8(QJsonDocument(o).toJson(QJsonDocument::Compact)));
}

// Presses on Bot_da (d) and Bot_u (u): the mouse down with L left, R right, M middle; K a click and
// the keys space and Enter.
void press(Harness& h, const QString& presses) {
    for (const QString& p : presses.split(' ')) {
        const QString bot = p[0] == 'd' ? "Bot_da" : "Bot_u";
        if (p[1] == 'K') {
            json(h, {{"click", bot}});
            json(h, {{"key", bot}, {"code", 32}});
            json(h, {{"key", bot}, {"code", 13}});
        } else {
            json(h, {{"mousedown", bot}, {"button", p[1] == 'L' ? 1 : p[1] == 'R' ? 2 : 4}});
        }
    }
}

struct Draw {
    QString form;
    int limite; // the option of the limit panel, -1 for none
    double r;
    int numero;
    QString caption;
};

struct Enter {
    QString form;
    int numero;
    QString how; // "type" through the keys, "settext" as a paste
    QString text;
    int repeat; // presses of Enter held down
    int esatti, errati;
};

} // namespace
Q_DECLARE_METATYPE(Draw)
Q_DECLARE_METATYPE(Enter)

class AbacusTest : public QObject {
    Q_OBJECT
private slots:
    // Form99a draws 1 to the limit, the other two 0 to the limit less one, and these two draw anew
    // on each return to the screen.
    void theDraws_data() {
        QTest::addColumn<Draw>("c");
        QTest::newRow("99a lowest") << Draw{"Form99a", -1, 0.0, 1, "UNO"};
        QTest::newRow("99a highest") << Draw{"Form99a", -1, 0.9999, 99, "NOVANTANOVE"};
        QTest::newRow("99a under 19") << Draw{"Form99a", 0, 0.9999, 19, "DICIANNOVE"};
        QTest::newRow("99b lowest") << Draw{"Form99b", -1, 0.0, 0, ""};
        QTest::newRow("99b highest") << Draw{"Form99b", -1, 0.9999, 98, ""};
        QTest::newRow("99b under 19") << Draw{"Form99b", 0, 0.9999, 18, ""};
        QTest::newRow("99b1 under 29") << Draw{"Form99b1", 1, 0.9999, 28, ""};
    }
    void theDraws() {
        QFETCH(Draw, c);
        Harness h;
        open(h, c.form, c.limite < 0 ? c.r : 0.5);
        if (c.limite >= 0) {
            h.run(R"J({"menu": "mnuMassimo"})J");
            h.rnd({0.0, c.r});
            h.run(QStringLiteral(R"J({"click": "OpzioneNumeroMassimo(%1)"})J").arg(c.limite));
        }
        QCOMPARE(h.global("NumeroEsatto"), c.numero);
        const bool threaded = c.form == "Form99a"; // there the beads are the child's, none at first
        if (threaded)
            QCOMPARE(h.caption("EtichettaNumero"), c.caption);
        else
            QCOMPARE(h.dump().value("focus").toString(), QStringLiteral("TestoNumero"));
        QCOMPARE(beads(h, "pal_da"), threaded ? 0 : c.numero / 10);
        QCOMPARE(beads(h, "pal_u"), threaded ? 0 : c.numero % 10);
        h.run(R"J({"menu": "mnuStampa"})J");
        h.rnd({0.0, 0.5});
        h.run(R"J({"menu": "mnuesci"})J");
        QCOMPARE(h.global("NumeroEsatto"),
                 threaded ? c.numero : (c.limite < 0 ? 99 : 19 + 10 * c.limite) / 2);
    }

    void digitsOrWords() {
        Harness h;
        open(h, "Form99a", drawFor(42, 1));
        h.rnd({0.0, drawFor(7, 1), 0.0, drawFor(70, 1)});
        h.run(R"J({"menu": "MenuCifre"})J");
        QCOMPARE(h.caption("EtichettaNumero"), QStringLiteral(" 7    "));
        h.run(R"J({"menu": "MenuParole"})J");
        QCOMPARE(h.caption("EtichettaNumero"), QStringLiteral("SETTANTA"));
    }

    // What the presses leave on the abacus: tens * 10 + units.
    void theBeads_data() {
        QTest::addColumn<QString>("presses");
        QTest::addColumn<int>("abaco");
        QTest::newRow("right and middle on bare wires") << "dR uR dM uM" << 0;
        QTest::newRow("left, left, right keeps the lowest") << "dL dL dR uL uL uR" << 11;
        QTest::newRow("middle takes off too") << "dL dL dM" << 10;
        QTest::newRow("a full wire takes no more") << "dL dL dL dL dL dL dL dL dL dL dL" << 90;
        QTest::newRow("nine off a full wire")
            << "uL uL uL uL uL uL uL uL uL uL uR uR uR uR uR uR uR uR uR uR" << 0;
        QTest::newRow("the keyboard threads nothing") << "dK uK" << 0;
    }
    void theBeads() {
        QFETCH(QString, presses);
        QFETCH(int, abaco);
        Harness h;
        open(h, "Form99a", drawFor(42, 1));
        press(h, presses);
        QCOMPARE(beads(h, "pal_da") * 10 + beads(h, "pal_u"), abaco);
        const QJsonObject f = h.dump().value("fields").toObject();
        QCOMPARE(f.value("NumeroDecine").toInt() * 10 + f.value("NumeroUnita").toInt(), abaco);
        QVERIFY(h.sounds().isEmpty()); // silent at the ends of a wire
        QCOMPARE(h.global("Errati"), 0);
    }

    void confirming() {
        Harness h;
        open(h, "Form99a", drawFor(21, 1));
        h.run(R"J({"click": "BottoneConferma"})J"); // a bare abacus is 0, never asked here
        press(h, "dL dL uL uL");
        h.run(R"J({"click": "BottoneConferma"})J"); // 22 is not 21: the beads stay
        QCOMPARE(h.global("Errati"), 2);
        QCOMPARE(beads(h, "pal_u"), 2);
        press(h, "uR");
        h.run(R"J({"click": "BottoneConferma"})J");
        QCOMPARE(h.global("Esatti"), 1);
        QVERIFY(!h.enabled("BottoneConferma") && h.enabled("BottoneAvanti"));
        // the worksheet and back: the question and the beads wait as they were
        h.run(R"J({"menu": "mnuStampa"})J");
        h.run(R"J({"menu": "mnuesci"})J");
        QCOMPARE(h.global("NumeroEsatto"), 21);
        QCOMPARE(beads(h, "pal_da"), 2);
        h.rnd({0.0, drawFor(5, 1)});
        h.run(R"J({"click": "BottoneAvanti"})J");
        QVERIFY(h.enabled("BottoneConferma"));
        QCOMPARE(beads(h, "pal_da") + beads(h, "pal_u"), 0);
        // "Ricomincia" takes all the beads off and nothing else
        press(h, "dL uL");
        h.run(R"J({"click": "Bot_ricomincia"})J");
        QCOMPARE(beads(h, "pal_da") + beads(h, "pal_u"), 0);
        QCOMPARE(h.global("NumeroEsatto"), 5);
    }

    void withoutAvantiTheNextComesAtOnce() {
        Harness h;
        open(h, "Form99a", drawFor(1, 1), false);
        QVERIFY(!h.visible("BottoneAvanti"));
        press(h, "uL");
        h.rnd({0.0, 0.0, drawFor(30, 1)}); // the cheerful sound, the colour, the number
        h.run(R"J({"click": "BottoneConferma"})J");
        QCOMPARE(h.global("NumeroEsatto"), 30);
        QVERIFY(beads(h, "pal_u") == 0 && h.enabled("BottoneConferma"));
    }

    // Enter on the two writing screens: what is in the box, how Enter comes, what counts.
    void enter_data() {
        QTest::addColumn<Enter>("c");
        QTest::newRow("99b blanks and letters") << Enter{"Form99b", 23, "type", " 2 3abc", 1, 1, 0};
        QTest::newRow("99b empty box is 0") << Enter{"Form99b", 0, "type", "", 1, 1, 0};
        QTest::newRow("99b empty box, not 0") << Enter{"Form99b", 23, "type", "", 1, 0, 1};
        QTest::newRow("99b held, wrong: each press") << Enter{"Form99b", 23, "type", "24", 3, 0, 3};
        QTest::newRow("99b held, right: then waits") << Enter{"Form99b", 23, "type", "23", 3, 1, 0};
        QTest::newRow("99b1 typed small, blanks around")
            << Enter{"Form99b1", 23, "type", " ventitre ", 1, 1, 0};
        QTest::newRow("99b1 blank inside") << Enter{"Form99b1", 23, "type", "venti tre", 1, 0, 1};
        QTest::newRow("99b1 accent") << Enter{"Form99b1", 23, "type", "ventitré", 1, 0, 1};
        QTest::newRow("99b1 pasted small") << Enter{"Form99b1", 23, "settext", "ventitre", 1, 0, 1};
        QTest::newRow("99b1 zero") << Enter{"Form99b1", 0, "type", "zero", 1, 1, 0};
        QTest::newRow("99b1 digits") << Enter{"Form99b1", 23, "type", "23", 1, 0, 1};
        QTest::newRow("99b1 empty box") << Enter{"Form99b1", 0, "type", "", 1, 0, 0};
        QTest::newRow("99b1 held: once") << Enter{"Form99b1", 23, "type", "venti", 3, 0, 1};
    }
    void enter() {
        QFETCH(Enter, c);
        Harness h;
        open(h, c.form, drawFor(c.numero, 0));
        json(h, {{c.how, "TestoNumero"}, {"text", c.text}});
        json(h, {{"key", "TestoNumero"}, {"code", 13}, {"repeat", c.repeat}});
        QCOMPARE(std::pair(h.global("Esatti"), h.global("Errati")), std::pair(c.esatti, c.errati));
        QCOMPARE(h.sounds().size(), c.esatti + c.errati);
        if (c.esatti) {
            // waiting for avanti, the box closed; avanti opens it on a new number
            QVERIFY(!h.enabled("TestoNumero"));
            h.rnd({0.0, drawFor(57, 0)});
            h.run(R"J({"click": "BottoneAvanti"})J");
            QVERIFY(h.enabled("TestoNumero") && h.text("TestoNumero").isEmpty());
            QCOMPARE(beads(h, "pal_da") * 10 + beads(h, "pal_u"), 57);
        } else if (c.errati) {
            QCOMPARE(h.text("TestoNumero").isEmpty(), c.text.isEmpty()); // the text stays
            QCOMPARE(h.dump().value("focus").toString(), QStringLiteral("TestoNumero"));
        }
    }

    // A bead is round, sits on its wire, touches the next one, and nothing cuts it or covers it.
    void theBeadsLookLikeBeads() {
        for (const QString form : {"Form99a", "Form99b", "Form99b1"}) {
            Harness h;
            open(h, form, 0.5);
            Form* f = h.engine.program().nav.find(form);
            for (const QString wire : {"pal_da", "pal_u"}) {
                auto* filo = f->find(wire == "pal_da" ? "FiloAbaco(1)" : "FiloAbaco(2)")->widget();
                QRectF below;
                for (int i = 0; i < 9; ++i) {
                    auto* s = dynamic_cast<Shape*>(f->find(QStringLiteral("%1(%2)").arg(wire).arg(i)));
                    const QRectF r = s->figureRect().translated(s->pos());
                    const QString what = form + ' ' + s->name();
                    QVERIFY2(qAbs(r.width() - r.height()) < 0.01, qPrintable(what));
                    QVERIFY2(qAbs(r.center().x() - filo->geometry().center().x() - 0.5) <= 1.0,
                             qPrintable(what));
                    QVERIFY2(f->client()->rect().contains(s->geometry()), qPrintable(what));
                    QVERIFY2(i == 0 || (r.bottom() >= below.top() && r.bottom() <= below.top() + 2),
                             qPrintable(what));
                    below = r;
                    for (const char* other : {"Bot_da", "Bot_u", "Label3", "TestoNumero", "EtichettaNumero",
                                              "BottoneAvanti", "EtichettaEsatti", "EtichettaErrati"})
                        if (auto* c = f->find(QLatin1String(other)))
                            QVERIFY2(!c->widget()->geometry().intersects(s->geometry()),
                                     qPrintable(what + " under " + other));
                }
            }
        }
    }
};

QTEST_MAIN(AbacusTest)
#include "abacus.moc"
