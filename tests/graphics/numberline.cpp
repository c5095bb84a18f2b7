// The number lines: where a line starts and which ticks it writes, the red tick asked for, what
// counts as its number, and a whole line answered to its end.

#include "core/lang.h"
#include "support/harness.h"

#include <QJsonDocument>
#include <QTest>

using contarello::test::Harness;

namespace {

using Draws = QList<double>;
using Numeri = QMap<int, QString>; // tick -> its written number

void queue(Harness& h, const Draws& draws) {
    QJsonArray a;
    for (double d : draws)
        a.append(d);
    h.run(QString::fromUtf8(QJsonDocument(QJsonObject{{"rnd", a}}).toJson()));
}

// Sets the limit as an adult can: 20 to 99 from the main menu; 19 only by the panel of another
// screen, which leaves it behind.
void apri(Harness& h, const QString& form, int limit, const Draws& draws, bool avanti = true) {
    if (limit < 20) {
        h.run(R"j({"show": "FormScri"})j");
        h.run(R"j({"menu": "mnuNumeroMassimo"})j");
        h.run(R"j({"click": "OpzioneNumeroMassimo(0)"})j");
    } else {
        h.setLimit(limit);
        if (!avanti) h.run(R"j({"click": "Option1(0)"})j");
    }
    queue(h, draws);
    h.run(QStringLiteral(R"j({"show": "%1"})j").arg(form));
    h.events();
}

struct Linea {
    int iniziale, scelta, risposte;
    QList<int> rosse;
    Numeri numeri;
};

Linea leggi(Harness& h) {
    const QJsonObject d = h.dump();
    const QJsonObject f = d.value("fields").toObject(), c = d.value("controls").toObject();
    Linea l{f.value("NumeroIniziale").toInt(),
            f.value("TaccaScelta").toInt(),
            f.value("NumeroRisposte").toInt(),
            {},
            {}};
    for (int i = 0; i < 21; ++i) {
        const QString n = QString::number(i);
        if (c.value("Line2(" + n + ")").toObject().value("bordercolor") == "#ff0000") l.rosse << i;
        const QJsonObject label = c.value("Label3(" + n + ")").toObject();
        if (label.value("visible").toBool()) l.numeri[i] = label.value("caption").toString();
    }
    return l;
}

} // namespace

class NumberLineTest : public QObject {
    Q_OBJECT
private slots:
    void linea_data() {
        QTest::addColumn<QString>("form");
        QTest::addColumn<int>("limit");
        QTest::addColumn<Draws>("draws");
        QTest::addColumn<int>("iniziale");
        QTest::addColumn<Numeri>("numeri");
        QTest::addColumn<int>("scelta");
        const QString d = "FormGradi20", b = "FormGradi20bis";
        auto tens = [&](const char* nome, int limit, Draws draws, int iniziale, int scelta) {
            using contarello::Str;
            const Numeri numeri{{0, Str(iniziale)}, {10, Str(iniziale + 10)}, {20, Str(iniziale + 20)}};
            QTest::newRow(nome) << d << limit << draws << iniziale << numeri << scelta;
        };
        tens("tens: lowest line", 99, {0, 0.3}, 10, 6);
        tens("tens: highest line whatever the limit", 20, {0.9999, 0.999, 0.95}, 70, 19);
        tens("tens: never asked", 99, {0.5, 0, 0.48, 0.999, 0.05}, 40, 1);
        tens("tens: a stuck generator takes the next free tick", 99, Draws(300, 0.0), 10, 1);
        QTest::newRow("free: limit 20 is 0 to 20")
            << b << 20 << Draws{0.9999, 0.5, 0.1} << 0 << Numeri{{10, " 10"}} << 2;
        QTest::newRow("free: ends below 99")
            << b << 99 << Draws{0.9999, 0.9999, 0} << 78 << Numeri{{20, " 98"}} << 0;
        QTest::newRow("free: written tick never asked")
            << b << 99 << Draws{0, 0.3, 0.3, 0.3, 0.9} << 0 << Numeri{{6, " 6"}} << 18;
        QTest::newRow("free: limit 19 starts at -1")
            << b << 19 << Draws{0.5, 0, 0.5} << -1 << Numeri{{0, "-1"}} << 10;
    }
    void linea() {
        QFETCH(QString, form);
        QFETCH(int, limit);
        QFETCH(Draws, draws);
        QFETCH(Numeri, numeri);
        QFETCH(int, scelta);
        Harness h;
        apri(h, form, limit, draws);
        const Linea l = leggi(h);
        QTEST(l.iniziale, "iniziale");
        QCOMPARE(l.numeri, numeri);
        QCOMPARE(l.scelta, scelta);
        QList<int> rosse = numeri.keys() << scelta;
        std::sort(rosse.begin(), rosse.end());
        QCOMPARE(l.rosse, rosse);
        const QJsonObject d = h.dump(); // no colours of the day, no worksheet
        QCOMPARE(d.value("backcolor").toString() + d.value("focus").toString(), "#c000c0Text1");
        QVERIFY(!d.value("controls").toObject().contains("mnuStampa"));
    }

    void risposta_data() {
        QTest::addColumn<QString>("form");
        QTest::addColumn<int>("limit");
        QTest::addColumn<Draws>("draws");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("right");
        const QString d = "FormGradi20", b = "FormGradi20bis";
        const Draws sedici{0, 0.3}; // the line 10 to 30, tick 6 asked: 16
        QTest::newRow("the tick's number") << d << 99 << sedici << "16" << true;
        QTest::newRow("counted from the left") << d << 99 << sedici << "6" << false;
        QTest::newRow("empty box") << d << 99 << sedici << "" << false;
        QTest::newRow("blanks and letters after") << d << 99 << sedici << " 1 6abc" << true;
        QTest::newRow("a decimal point") << d << 99 << sedici << "16.5" << false;
        QTest::newRow("a thousand digits") << d << 99 << sedici << QString(1000, u'9') << false;
        const Draws zero{0, 0.5, 0}; // the line 0 to 20, tick 0 asked
        QTest::newRow("empty box on 0") << b << 20 << zero << "" << true;
        QTest::newRow("-1 below 0") << b << 19 << Draws{0.5, 0.5, 0} << "-1" << true; // tick 0 of -1 to 19
    }
    void risposta() {
        QFETCH(QString, form);
        QFETCH(int, limit);
        QFETCH(Draws, draws);
        QFETCH(QString, text);
        QFETCH(bool, right);
        Harness h;
        apri(h, form, limit, draws);
        const Linea prima = leggi(h);
        h.answer("Text1", text);
        const Linea dopo = leggi(h);
        QCOMPARE(h.global("Errati"), right ? 0 : 1);
        QCOMPARE(dopo.risposte, right ? 1 : 0);
        if (right) {
            QCOMPARE(dopo.numeri.value(prima.scelta), contarello::Str(prima.iniziale + prima.scelta));
            QCOMPARE(h.text("Text1"), QString());
        } else {
            QCOMPARE(dopo.scelta, prima.scelta); // the same tick, the text as typed
            QCOMPARE(dopo.rosse, prima.rosse);
            QCOMPARE(h.text("Text1"), text);
        }
    }

    // Five right answers finish a line, whatever wrong ones come between; the ticks fill up as named.
    void lineaIntera_data() {
        QTest::addColumn<QString>("form");
        QTest::addColumn<bool>("avanti");
        for (const char* f : {"FormGradi20", "FormGradi20bis"}) {
            QTest::addRow("%s waits for avanti", f) << QString(f) << true;
            QTest::addRow("%s goes straight on", f) << QString(f) << false;
        }
    }
    void lineaIntera() {
        QFETCH(QString, form);
        QFETCH(bool, avanti);
        Harness h;
        apri(h, form, 99, {}, avanti);
        const Linea inizio = leggi(h);
        const int scritte = inizio.numeri.size();
        QList<int> chieste;
        for (int r = 0; r < 5; ++r) {
            const Linea l = leggi(h);
            const int numero = l.iniziale + l.scelta;
            QVERIFY(!inizio.numeri.contains(l.scelta) && !chieste.contains(l.scelta));
            QCOMPARE(l.rosse.size(), scritte + r + 1);
            QCOMPARE(l.risposte, r);
            // Every other tick a wrong answer first: the count from the left, or one too many.
            if (r % 2 == 0) h.answer("Text1", QString::number(l.scelta == numero ? numero + 1 : l.scelta));
            h.answer("Text1", QString::number(numero));
            chieste << l.scelta;
        }
        QCOMPARE(h.global("Esatti"), 5);
        QCOMPARE(h.global("Errati"), 3);
        if (avanti) {
            QCOMPARE(leggi(h).numeri.size(), scritte + 5);
            QVERIFY(h.enabled("BottoneAvanti") && !h.enabled("Text1"));
            h.run(R"j({"click": "BottoneAvanti"})j");
            QVERIFY(!h.enabled("BottoneAvanti") && h.enabled("Text1"));
        } else {
            QVERIFY(!h.visible("BottoneAvanti"));
        }
        const Linea nuova = leggi(h);
        QCOMPARE(nuova.risposte, 0);
        QCOMPARE(nuova.numeri.size(), scritte);
        QCOMPARE(nuova.rosse.size(), scritte + 1);
    }
};

QTEST_MAIN(NumberLineTest)
#include "numberline.moc"
