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

// The draw that gives e: Int(Rnd * n) + base.
double drawFor(int e, int base, int n = 99) {
    return (e - base + 0.5) / n;
}

int field(Harness& h, const char* name) {
    return h.dump().value("fields").toObject().value(QLatin1String(name)).toInt(-1);
}

// How many beads of the wire show, and whether they are the lowest ones.
int beads(Harness& h, const QString& wire) {
    int n = 0;
    while (n < 9 && h.visible(QStringLiteral("%1(%2)").arg(wire).arg(n)))
        ++n;
    for (int i = n; i < 9; ++i)
        if (h.visible(QStringLiteral("%1(%2)").arg(wire).arg(i))) return -1; // a gap in the stack
    return n;
}

void json(Harness& h, const QJsonObject& o) {
    h.run(QString::fromUtf8(QJsonDocument(o).toJson(QJsonDocument::Compact)));
}

} // namespace

class AbacusTest : public QObject {
    Q_OBJECT
private slots:
    void theDraws_data() {
        QTest::addColumn<QString>("form");
        QTest::addColumn<int>("limite"); // the option of the limit panel, -1 for none
        QTest::addColumn<double>("r");
        QTest::addColumn<int>("numero");
        QTest::addColumn<QString>("caption");
        QTest::newRow("99a lowest") << "Form99a" << -1 << 0.0 << 1 << "UNO";
        QTest::newRow("99a highest") << "Form99a" << -1 << 0.9999 << 99 << "NOVANTANOVE";
        QTest::newRow("99a under 19") << "Form99a" << 0 << 0.9999 << 19 << "DICIANNOVE";
        QTest::newRow("99b lowest") << "Form99b" << -1 << 0.0 << 0 << "";
        QTest::newRow("99b highest") << "Form99b" << -1 << 0.9999 << 98 << "";
        QTest::newRow("99b under 19") << "Form99b" << 0 << 0.9999 << 18 << "";
        QTest::newRow("99b1 under 29") << "Form99b1" << 1 << 0.9999 << 28 << "";
    }
    void theDraws() {
        QFETCH(QString, form);
        QFETCH(int, limite);
        QFETCH(double, r);
        QFETCH(int, numero);
        QFETCH(QString, caption);
        Harness h;
        open(h, form, limite < 0 ? r : 0.5);
        if (limite >= 0) {
            h.run(R"J({"menu": "mnuMassimo"})J");
            QVERIFY(h.visible("CorniceNumeroMassimo"));
            h.rnd({0.0, r});
            h.run(QStringLiteral(R"J({"click": "OpzioneNumeroMassimo(%1)"})J").arg(limite));
            QVERIFY(!h.visible("CorniceNumeroMassimo"));
            QCOMPARE(h.global("NumeroMassimo"), 19 + 10 * limite);
        }
        QCOMPARE(h.global("NumeroEsatto"), numero);
        if (form == "Form99a") {
            QCOMPARE(h.caption("EtichettaNumero"), caption);
            QCOMPARE(beads(h, "pal_da") + beads(h, "pal_u"), 0);
        } else {
            // the beads are the number drawn
            QCOMPARE(beads(h, "pal_da"), numero / 10);
            QCOMPARE(beads(h, "pal_u"), numero % 10);
            QCOMPARE(h.dump().value("focus").toString(), QStringLiteral("TestoNumero"));
        }
    }

    void digitsOrWords() {
        Harness h;
        open(h, "Form99a", drawFor(42, 1));
        h.rnd({0.0, drawFor(7, 1)});
        h.run(R"J({"menu": "MenuCifre"})J");
        QCOMPARE(h.caption("EtichettaNumero"), QStringLiteral(" 7    "));
        h.rnd({0.0, drawFor(70, 1)});
        h.run(R"J({"menu": "MenuParole"})J");
        QCOMPARE(h.caption("EtichettaNumero"), QStringLiteral("SETTANTA"));
    }

    // Presses on Bot_da (d) and Bot_u (u): L left, R right, M middle.
    void theBeads_data() {
        QTest::addColumn<QString>("presses");
        QTest::addColumn<int>("decine");
        QTest::addColumn<int>("unita");
        QTest::newRow("right on bare wires") << "dR uR" << 0 << 0;
        QTest::newRow("middle on bare wires") << "dM uM" << 0 << 0;
        QTest::newRow("left, left, right keeps the lowest") << "dL dL dR uL uL uR" << 1 << 1;
        QTest::newRow("middle takes off too") << "dL dL dM" << 1 << 0;
        QTest::newRow("a full wire takes no more") << "dL dL dL dL dL dL dL dL dL dL dL" << 9 << 0;
        QTest::newRow("nine off a full wire")
            << "uL uL uL uL uL uL uL uL uL uL uR uR uR uR uR uR uR uR uR uR" << 0 << 0;
    }
    void theBeads() {
        QFETCH(QString, presses);
        QFETCH(int, decine);
        QFETCH(int, unita);
        Harness h;
        open(h, "Form99a", drawFor(42, 1));
        for (const QString& p : presses.split(' ')) {
            const int button = p[1] == 'L' ? 1 : p[1] == 'R' ? 2 : 4;
            json(h, {{"mousedown", p[0] == 'd' ? "Bot_da" : "Bot_u"}, {"button", button}});
        }
        QCOMPARE(beads(h, "pal_da"), decine);
        QCOMPARE(beads(h, "pal_u"), unita);
        QCOMPARE(field(h, "NumeroDecine"), decine);
        QCOMPARE(field(h, "NumeroUnita"), unita);
        QVERIFY(h.sounds().isEmpty()); // silent at the ends of a wire
        QCOMPARE(h.global("Errati"), 0);
    }

    void theKeyboardThreadsNothing() {
        Harness h;
        open(h, "Form99a", drawFor(42, 1));
        h.run(R"J({"click": "Bot_da"})J");
        h.run(R"J({"key": "Bot_u", "code": 32})J");
        h.run(R"J({"key": "Bot_u", "code": 13})J");
        QCOMPARE(beads(h, "pal_da") + beads(h, "pal_u"), 0);
    }

    void confirming() {
        Harness h;
        open(h, "Form99a", drawFor(21, 1));
        h.run(R"J({"click": "BottoneConferma"})J"); // a bare abacus is 0, never asked here
        QCOMPARE(h.global("Errati"), 1);
        h.script(R"J({"mousedown": "Bot_da", "button": 1}
                     {"mousedown": "Bot_da", "button": 1}
                     {"mousedown": "Bot_u", "button": 1}
                     {"mousedown": "Bot_u", "button": 1})J");
        h.run(R"J({"click": "BottoneConferma"})J"); // 22 is not 21: the beads stay
        QCOMPARE(h.global("Errati"), 2);
        QCOMPARE(beads(h, "pal_u"), 2);
        h.run(R"J({"mousedown": "Bot_u", "button": 2})J");
        h.run(R"J({"click": "BottoneConferma"})J");
        QCOMPARE(h.global("Esatti"), 1);
        QVERIFY(!h.enabled("BottoneConferma"));
        QVERIFY(h.enabled("BottoneAvanti"));
        QCOMPARE(h.caption("EtichettaEsatti"), QStringLiteral(" 1"));
        // the worksheet and back: the question and the beads wait as they were
        h.run(R"J({"menu": "mnuStampa"})J");
        QCOMPARE(h.form(), QStringLiteral("formSt99a"));
        h.run(R"J({"menu": "mnuesci"})J");
        QCOMPARE(h.form(), QStringLiteral("Form99a"));
        QCOMPARE(h.global("NumeroEsatto"), 21);
        QCOMPARE(beads(h, "pal_da"), 2);
        h.rnd({0.0, drawFor(5, 1)});
        h.run(R"J({"click": "BottoneAvanti"})J");
        QVERIFY(h.enabled("BottoneConferma"));
        QCOMPARE(beads(h, "pal_da") + beads(h, "pal_u"), 0);
        QCOMPARE(h.global("NumeroEsatto"), 5);
        // "Ricomincia" takes all the beads off and nothing else
        h.script(R"J({"mousedown": "Bot_da", "button": 1}
                     {"mousedown": "Bot_u", "button": 1}
                     {"click": "Bot_ricomincia"})J");
        QCOMPARE(beads(h, "pal_da") + beads(h, "pal_u"), 0);
        QCOMPARE(h.global("NumeroEsatto"), 5);
    }

    void withoutAvantiTheNextComesAtOnce() {
        Harness h;
        open(h, "Form99a", drawFor(1, 1), false);
        QVERIFY(!h.visible("BottoneAvanti"));
        h.run(R"J({"mousedown": "Bot_u", "button": 1})J");
        h.rnd({0.0, 0.0, drawFor(30, 1)}); // the cheerful sound, the colour, the number
        h.run(R"J({"click": "BottoneConferma"})J");
        QCOMPARE(h.global("Esatti"), 1);
        QCOMPARE(h.global("NumeroEsatto"), 30);
        QCOMPARE(beads(h, "pal_u"), 0);
        QVERIFY(h.enabled("BottoneConferma"));
    }

    // Enter on the two writing screens: what is in the box, how Enter comes, what counts.
    void enter_data() {
        QTest::addColumn<QString>("form");
        QTest::addColumn<int>("numero");
        QTest::addColumn<QString>("how"); // "type" through the keys, "settext" as a paste
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("repeat"); // presses of Enter held down
        QTest::addColumn<int>("esatti");
        QTest::addColumn<int>("errati");
        QTest::newRow("99b digits") << "Form99b" << 23 << "type"
                                    << "23" << 1 << 1 << 0;
        QTest::newRow("99b blanks and letters") << "Form99b" << 23 << "type"
                                                << " 2 3abc" << 1 << 1 << 0;
        QTest::newRow("99b a word") << "Form99b" << 23 << "type"
                                    << "ventitre" << 1 << 0 << 1;
        QTest::newRow("99b empty box is 0") << "Form99b" << 0 << "type"
                                            << "" << 1 << 1 << 0;
        QTest::newRow("99b empty box, not 0") << "Form99b" << 23 << "type"
                                              << "" << 1 << 0 << 1;
        QTest::newRow("99b held, wrong: each press") << "Form99b" << 23 << "type"
                                                     << "24" << 3 << 0 << 3;
        QTest::newRow("99b held, right: then waits") << "Form99b" << 23 << "type"
                                                     << "23" << 3 << 1 << 0;
        QTest::newRow("99b1 typed small") << "Form99b1" << 23 << "type"
                                          << "ventitre" << 1 << 1 << 0;
        QTest::newRow("99b1 blanks around") << "Form99b1" << 23 << "type"
                                            << "  ventitre " << 1 << 1 << 0;
        QTest::newRow("99b1 blank inside") << "Form99b1" << 23 << "type"
                                           << "venti tre" << 1 << 0 << 1;
        QTest::newRow("99b1 accent") << "Form99b1" << 23 << "type"
                                     << "ventitré" << 1 << 0 << 1;
        QTest::newRow("99b1 pasted small") << "Form99b1" << 23 << "settext"
                                           << "ventitre" << 1 << 0 << 1;
        QTest::newRow("99b1 zero") << "Form99b1" << 0 << "type"
                                   << "zero" << 1 << 1 << 0;
        QTest::newRow("99b1 digits") << "Form99b1" << 23 << "type"
                                     << "23" << 1 << 0 << 1;
        QTest::newRow("99b1 empty box") << "Form99b1" << 0 << "type"
                                        << "" << 1 << 0 << 0;
        QTest::newRow("99b1 held: once") << "Form99b1" << 23 << "type"
                                         << "venti" << 3 << 0 << 1;
    }
    void enter() {
        QFETCH(QString, form);
        QFETCH(int, numero);
        QFETCH(QString, how);
        QFETCH(QString, text);
        QFETCH(int, repeat);
        QFETCH(int, esatti);
        QFETCH(int, errati);
        Harness h;
        open(h, form, drawFor(numero, 0));
        QCOMPARE(h.global("NumeroEsatto"), numero);
        json(h, {{how, "TestoNumero"}, {"text", text}});
        json(h, {{"key", "TestoNumero"}, {"code", 13}, {"repeat", repeat}});
        QCOMPARE(h.global("Esatti"), esatti);
        QCOMPARE(h.global("Errati"), errati);
        QCOMPARE(h.sounds().size(), esatti + errati);
        if (esatti) {
            // waiting for avanti, the box closed; avanti opens it on a new number
            QVERIFY(!h.enabled("TestoNumero"));
            h.rnd({0.0, drawFor(57, 0)});
            h.run(R"J({"click": "BottoneAvanti"})J");
            QVERIFY(h.enabled("TestoNumero"));
            QCOMPARE(h.text("TestoNumero"), QString());
            QCOMPARE(beads(h, "pal_da"), 5);
            QCOMPARE(beads(h, "pal_u"), 7);
        } else if (errati) {
            QVERIFY(!h.text("TestoNumero").isEmpty() || text.isEmpty()); // the text stays
            QCOMPARE(h.dump().value("focus").toString(), QStringLiteral("TestoNumero"));
        }
    }

    void eachReturnBringsANewNumber() {
        for (const QString form : {"Form99b", "Form99b1"}) {
            Harness h;
            open(h, form, drawFor(12, 0));
            h.run(R"J({"menu": "mnuStampa"})J");
            QCOMPARE(h.form(), QStringLiteral("formSt99b"));
            h.rnd({0.0, drawFor(34, 0)});
            h.run(R"J({"menu": "mnuesci"})J");
            QCOMPARE(h.form(), form);
            QCOMPARE(h.global("NumeroEsatto"), 34);
            QCOMPARE(beads(h, "pal_da"), 3);
        }
    }

    // A bead is round, sits on its wire, touches the next one, and nothing cuts it or covers it.
    void theBeadsLookLikeBeads() {
        for (const QString form : {"Form99a", "Form99b", "Form99b1"}) {
            Harness h;
            open(h, form, 0.5);
            Form* f = h.engine.program().nav.find(form);
            QVERIFY(f);
            const QRect area = f->client()->rect();
            for (const QString wire : {"pal_da", "pal_u"}) {
                auto* filo =
                    dynamic_cast<QWidget*>(f->find(wire == "pal_da" ? "FiloAbaco(1)" : "FiloAbaco(2)"));
                const double x = filo->geometry().center().x() + 0.5;
                QRectF below;
                for (int i = 0; i < 9; ++i) {
                    auto* s = dynamic_cast<Shape*>(f->find(QStringLiteral("%1(%2)").arg(wire).arg(i)));
                    const QRectF r = s->figureRect().translated(s->pos());
                    const QString what = form + ' ' + s->name();
                    QVERIFY2(qAbs(r.width() - r.height()) < 0.01, qPrintable(what));
                    QVERIFY2(qAbs(r.center().x() - x) <= 1.0, qPrintable(what));
                    QVERIFY2(area.contains(s->geometry()), qPrintable(what));
                    if (i > 0)
                        QVERIFY2(r.bottom() >= below.top() && r.bottom() <= below.top() + 2,
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
