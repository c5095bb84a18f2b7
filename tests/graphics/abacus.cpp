// The three abacus screens: the numbers drawn, the beads under the mouse buttons, the Enter of each
// screen, the words a child types, and how the beads stand on their wires.

#include "shell/form.h"
#include "shell/program.h"
#include "support/harness.h"

#include <QTest>

using namespace contarello;
using namespace contarello::test;

namespace {

// Opens a screen with the first colour and the draw r for its number.
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

// The beads showing, tens * 10 + units; -1 when a wire's beads are not its lowest ones.
int abaco(Harness& h) {
    const QJsonObject c = h.dump().value("controls").toObject();
    int n = 0;
    for (const QString wire : {"pal_da", "pal_u"}) {
        QString bits;
        for (int i = 0; i < 9; ++i)
            bits += c.value(QStringLiteral("%1(%2)").arg(wire).arg(i))["visible"].toBool() ? '1' : '0';
        if (bits.contains("01")) return -1;
        n = n * 10 + int(bits.count('1'));
    }
    return n;
}

// Presses on Form99a, then the screen in one line: the number asked, the beads, the counters
// right/wrong, C and A for Conferma and avanti when they can be pressed. On Bot_da (d) and Bot_u (u)
// the mouse down with L left, R right, M middle, K a click and the keys space and Enter; C, A and R
// click Conferma, avanti and Ricomincia.
QString dopo(Harness& h, const QString& presses) {
    const QMap<QChar, QString> bottoni{
        {'C', "BottoneConferma"}, {'A', "BottoneAvanti"}, {'R', "Bot_ricomincia"}};
    for (const QString& p : presses.split(' ', Qt::SkipEmptyParts)) {
        const QString bot = bottoni.value(p[0], p[0] == 'd' ? "Bot_da" : "Bot_u");
        const int button = p.size() == 2 ? int(QStringLiteral("_LR_M").indexOf(p.back())) : -1;
        QStringList cmds{button > 0 ? R"({"mousedown": "@B", "button": @N})" : R"({"click": "@B"})"};
        if (p.back() == 'K')
            cmds << R"({"key": "@B", "code": 32})"
                 << R"({"key": "@B", "code": 13})";
        if (p.back() == 'D') cmds << R"({"key": "@B", "code": 46})";
        for (QString& c : cmds)
            h.run(c.replace("@B", bot).replace("@N", QString::number(button)));
    }
    return QString::asprintf("%d: %d %d/%d", h.global("NumeroEsatto"), abaco(h), h.global("Esatti"),
                             h.global("Errati")) +
           (h.enabled("BottoneConferma") ? " C" : "") + (h.enabled("BottoneAvanti") ? " A" : "");
}

struct Draw { // limite: the option of the limit panel, -1 for none
    QString form, shown;
    int limite;
    double r;
    int numero;
};
struct Enter {
    QString form, how, text;
    int numero, repeat, esatti, errati;
};

} // namespace
Q_DECLARE_METATYPE(Draw)
Q_DECLARE_METATYPE(Enter)

class AbacusTest : public QObject {
    Q_OBJECT
private slots:
    // Form99a draws 1 to the limit, the other two 0 to the limit less one, and these two draw anew
    // on each return to the screen. Form99a shows the number in words, the others give the box the focus.
    void theDraws_data() {
        QTest::addColumn<Draw>("c");
        QTest::newRow("99a lowest") << Draw{"Form99a", "UNO", -1, 0.0, 1};
        QTest::newRow("99a highest") << Draw{"Form99a", "NOVANTANOVE", -1, 0.9999, 99};
        QTest::newRow("99a under 19") << Draw{"Form99a", "DICIANNOVE", 0, 0.9999, 19};
        QTest::newRow("99b lowest") << Draw{"Form99b", "TestoNumero", -1, 0.0, 0};
        QTest::newRow("99b highest") << Draw{"Form99b", "TestoNumero", -1, 0.9999, 98};
        QTest::newRow("99b under 19") << Draw{"Form99b", "TestoNumero", 0, 0.9999, 18};
        QTest::newRow("99b1 under 29") << Draw{"Form99b1", "TestoNumero", 1, 0.9999, 28};
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
        QCOMPARE(threaded ? h.caption("EtichettaNumero") : h.dump().value("focus").toString(), c.shown);
        QCOMPARE(abaco(h), threaded ? 0 : c.numero);
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

    // What the presses on Form99a leave on the abacus, silently at the ends of a wire.
    void theBeads_data() {
        QTest::addColumn<QString>("presses");
        QTest::addColumn<int>("abaco");
        QTest::newRow("right and middle on bare wires") << "dR uR dM uM" << 0;
        QTest::newRow("left, left, right keeps the lowest") << "dL dL dR uL uL uR" << 11;
        QTest::newRow("middle takes off too") << "dL dL dM" << 10;
        QTest::newRow("a full wire takes no more") << "dL dL dL dL dL dL dL dL dL dL dL" << 90;
        QTest::newRow("nine off a full wire")
            << "uL uL uL uL uL uL uL uL uL uL uR uR uR uR uR uR uR uR uR uR" << 0;
        QTest::newRow("Space and Enter thread, Delete takes off") << "dK uK uD" << 21;
    }
    void theBeads() {
        QFETCH(QString, presses);
        QFETCH(int, abaco);
        Harness h;
        open(h, "Form99a", drawFor(42, 1));
        QCOMPARE(dopo(h, presses), QStringLiteral("42: %1 0/0 C").arg(abaco));
        const QJsonObject f = h.dump().value("fields").toObject(); // what Conferma judges
        QCOMPARE(f.value("NumeroDecine").toInt() * 10 + f.value("NumeroUnita").toInt(), abaco);
        QVERIFY(h.sounds().isEmpty());
    }

    // A bare abacus is 0, never asked here; a wrong number leaves the beads, a right one waits for
    // avanti, also across a visit to the worksheet. Ricomincia takes the beads off and nothing else.
    void confirming() {
        Harness h;
        open(h, "Form99a", drawFor(21, 1));
        QCOMPARE(dopo(h, "C dL dL uL uL C"), "21: 22 0/2 C");
        QCOMPARE(dopo(h, "uR C"), "21: 21 1/2 A");
        h.script("{\"menu\": \"mnuStampa\"}\n{\"menu\": \"mnuesci\"}");
        QCOMPARE(dopo(h, ""), "21: 21 1/2 A");
        h.rnd({0.0, drawFor(5, 1)});
        QCOMPARE(dopo(h, "A"), "5: 0 1/2 C");
        QCOMPARE(dopo(h, "dL uL R"), "5: 0 1/2 C");
        // without avanti the next number comes at once, on a bare abacus
        Harness w;
        open(w, "Form99a", drawFor(1, 1), false);
        w.rnd({0.0, 0.0, drawFor(30, 1)}); // the cheerful sound, the colour, the number
        QCOMPARE(dopo(w, "uL C"), "30: 0 1/0 C");
        QVERIFY(!w.visible("BottoneAvanti"));
    }

    // Enter on the two writing screens: the text typed ("type") or pasted ("settext"), the presses
    // of Enter held down, what counts.
    void enter_data() {
        QTest::addColumn<Enter>("c");
        QTest::newRow("99b blanks and letters") << Enter{"Form99b", "type", " 2 3abc", 23, 1, 1, 0};
        QTest::newRow("99b empty box is 0") << Enter{"Form99b", "type", "", 0, 1, 1, 0};
        QTest::newRow("99b empty box, not 0") << Enter{"Form99b", "type", "", 23, 1, 0, 1};
        QTest::newRow("99b held, wrong: each press") << Enter{"Form99b", "type", "24", 23, 3, 0, 3};
        QTest::newRow("99b held, right: then waits") << Enter{"Form99b", "type", "23", 23, 3, 1, 0};
        QTest::newRow("99b1 typed small, blanks around")
            << Enter{"Form99b1", "type", " ventitre ", 23, 1, 1, 0};
        QTest::newRow("99b1 blank inside") << Enter{"Form99b1", "type", "venti tre", 23, 1, 0, 1};
        QTest::newRow("99b1 accent") << Enter{"Form99b1", "type", "ventitré", 23, 1, 0, 1};
        QTest::newRow("99b1 pasted small") << Enter{"Form99b1", "settext", "ventitre", 23, 1, 0, 1};
        QTest::newRow("99b1 zero") << Enter{"Form99b1", "type", "zero", 0, 1, 1, 0};
        QTest::newRow("99b1 digits") << Enter{"Form99b1", "type", "23", 23, 1, 0, 1};
        QTest::newRow("99b1 empty box") << Enter{"Form99b1", "type", "", 0, 1, 0, 0};
        QTest::newRow("99b1 held: once") << Enter{"Form99b1", "type", "venti", 23, 3, 0, 1};
    }
    void enter() {
        QFETCH(Enter, c);
        Harness h;
        open(h, c.form, drawFor(c.numero, 0));
        h.run(QStringLiteral(R"({"%1": "TestoNumero", "text": "%2"})").arg(c.how, c.text));
        h.run(QStringLiteral(R"({"key": "TestoNumero", "code": 13, "repeat": %1})").arg(c.repeat));
        QCOMPARE(std::pair(h.global("Esatti"), h.global("Errati")), std::pair(c.esatti, c.errati));
        QCOMPARE(h.sounds().size(), c.esatti + c.errati);
        if (c.esatti) { // waiting for avanti, the box closed; avanti opens it on a new number
            QVERIFY(!h.enabled("TestoNumero"));
            h.rnd({0.0, drawFor(57, 0)});
            h.run(R"J({"click": "BottoneAvanti"})J");
            QVERIFY(h.enabled("TestoNumero") && h.text("TestoNumero").isEmpty() && abaco(h) == 57);
        } else if (c.errati) { // the text stays, the box keeps the focus
            QCOMPARE(h.text("TestoNumero").isEmpty(), c.text.isEmpty());
            QCOMPARE(h.dump().value("focus").toString(), QStringLiteral("TestoNumero"));
        }
    }

    // A bead is round, sits on its wire, touches the one below, and nothing cuts it or covers it.
    void theBeadsLookLikeBeads() {
        for (const QString form : {"Form99a", "Form99b", "Form99b1"}) {
            Harness h;
            open(h, form, 0.5);
            Form* f = h.engine.program().nav.find(form);
            for (int filo : {1, 2}) {
                const double x =
                    f->find(QStringLiteral("FiloAbaco(%1)").arg(filo))->widget()->geometry().center().x();
                QRectF below;
                for (int i = 0; i < 9; ++i) {
                    auto* s = dynamic_cast<Shape*>(
                        f->find((filo == 1 ? "pal_da(" : "pal_u(") + QString::number(i) + ')'));
                    const QRectF r = s->figureRect().translated(s->pos());
                    bool ok = qAbs(r.width() - r.height()) < 0.01 && qAbs(r.center().x() - x - 0.5) <= 1.0 &&
                              (i == 0 || (r.bottom() >= below.top() && r.bottom() <= below.top() + 2)) &&
                              f->client()->rect().contains(s->geometry());
                    for (const char* other : {"Bot_da", "Bot_u", "Label3", "TestoNumero", "EtichettaNumero",
                                              "BottoneAvanti", "EtichettaEsatti", "EtichettaErrati"})
                        if (auto* c = f->find(QLatin1String(other)))
                            ok = ok && !c->widget()->geometry().intersects(s->geometry());
                    QVERIFY2(ok, qPrintable(form + ' ' + s->name()));
                    below = r;
                }
            }
        }
    }
};

QTEST_MAIN(AbacusTest)
#include "abacus.moc"
