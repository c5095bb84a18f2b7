// Form100a to Form100f: a sum or a difference answered by a click on the table of 0 to 99.

#include "support/harness.h"

#include <QTest>

using contarello::test::Harness;

namespace {

QString cella(int i) {
    return QStringLiteral("Numero(%1)").arg(i);
}
void clicca(Harness& h, int i) {
    h.run(QStringLiteral(R"j({"click": "%1"})j").arg(cella(i)));
}
int esatto(Harness& h) {
    return h.dump().value("fields").toObject().value("esatto").toInt(-1);
}
// Opens a screen under a limit, with the first draw of the screen's colour and then the question.
void apri(Harness& h, const QString& form, int limite, std::initializer_list<double> draws,
          bool attendi = true) {
    h.dump(); // the program starts, with its own draws and settings, before ours
    h.engine.program().g.NumeroMassimo = int16_t(limite);
    h.engine.program().g.AttendiBottone = attendi ? -1 : 0;
    h.rnd({0.5});
    h.rnd(draws);
    h.run(QStringLiteral(R"j({"show": "%1"})j").arg(form));
}

} // namespace

class TableStepsTest : public QObject {
    Q_OBJECT
private slots:
    void domanda_data() {
        QTest::addColumn<QString>("form");
        QTest::addColumn<int>("limite");
        QTest::addColumn<double>("primo");
        QTest::addColumn<double>("secondo");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<int>("cella");
        QTest::newRow("units added, top of 99 stays in the table")
            << "Form100a" << 99 << 0.9999 << 0.9999 << " 98 +  1 = " << 99;
        QTest::newRow("units added, top of 93 stays in the table")
            << "Form100a" << 93 << 0.9999 << 0.9999 << " 92 +  7 = " << 99;
        QTest::newRow("units added under 20 may pass the limit")
            << "Form100a" << 20 << 0.9999 << 0.9999 << " 19 +  8 = " << 27;
        QTest::newRow("units added, adding 0") << "Form100a" << 20 << 0.0 << 0.0 << " 10 +  0 = " << 10;
        QTest::newRow("tens added to the smallest result")
            << "Form100b" << 20 << 0.0 << 0.99 << " 1 +  0 = " << 1;
        QTest::newRow("tens added, cut to whole tens")
            << "Form100b" << 99 << 0.9999 << 0.5 << " 59 +  40 = " << 99;
        QTest::newRow("any sum, whatever the limit")
            << "Form100f" << 20 << 0.9999 << 0.0 << " 0 +  99 = " << 99;
        QTest::newRow("units taken under 20") << "Form100c" << 20 << 0.9999 << 0.9999 << " 11 -  8 = " << 3;
        QTest::newRow("units taken at 99") << "Form100c" << 99 << 0.9999 << 0.0 << " 90 -  0 = " << 90;
        QTest::newRow("tens taken, answer is the first term")
            << "Form100d" << 93 << 0.5 << 0.9999 << " 47 -  40 = " << 7;
        QTest::newRow("all taken leaves cell 0") << "Form100e" << 99 << 0.9999 << 0.0 << " 99 -  99 = " << 0;
    }
    void domanda() {
        QFETCH(QString, form);
        QFETCH(int, limite);
        QFETCH(double, primo);
        QFETCH(double, secondo);
        QFETCH(QString, caption);
        QFETCH(int, cella);
        Harness h;
        apri(h, form, limite, {primo, secondo});
        QCOMPARE(h.caption("EtichettaNumero"), caption);
        QCOMPARE(esatto(h), cella);
        // The three shared numbers hold the operation: a sum, or a difference read from Meta down.
        const int t1 = h.global("Termine1"), t2 = h.global("Termine2"), meta = h.global("Meta");
        QCOMPARE(form == "Form100c" ? t1 - t2 : t1 + t2, meta);
        QCOMPARE(h.caption(QStringLiteral("Numero(%1)").arg(cella)), QStringLiteral(" %1").arg(cella));
    }

    // Eighty questions for each screen at the limits where the draws are tight: each has its cell, and a
    // click on it counts right.
    void ogniDomandaHaLaSuaCella() {
        for (const char* form : {"Form100a", "Form100b", "Form100f", "Form100c", "Form100d", "Form100e"}) {
            for (int limite : {20, 93, 99}) {
                Harness h;
                h.run(R"j({"seed": 11})j");
                apri(h, form, limite, {}, false); // the next question comes at once
                for (int n = 1; n <= 80; ++n) {
                    const int e = esatto(h);
                    QVERIFY2(e >= 0 && e <= 99,
                             qPrintable(QStringLiteral("%1 at %2: %3").arg(form).arg(limite).arg(e)));
                    clicca(h, e);
                    QCOMPARE(int(h.engine.program().g.Esatti), n);
                }
            }
        }
    }

    // Right, wrong and greyed cells while a question waits for "avanti".
    void clicSulleCelle() {
        Harness h;
        apri(h, "Form100a", 20, {0.9999, 0.9999}); // 19 + 8
        clicca(h, 19);
        QCOMPARE(h.caption("EtichettaErrati"), QStringLiteral(" 1"));
        QCOMPARE(h.sounds(), QStringList{"suoni/no.wav"});
        QVERIFY(h.visible("ComandoIconaNo"));
        QCOMPARE(h.caption("EtichettaNumero"), QStringLiteral(" 19 +  8 = "));

        clicca(h, 27);
        QCOMPARE(h.caption("EtichettaEsatti"), QStringLiteral(" 1"));
        QCOMPARE(h.caption("EtichettaNumero"), QStringLiteral(" 19 +  8 =  27"));
        QVERIFY(!h.enabled(cella(27)));
        QVERIFY(h.enabled("BottoneAvanti"));

        // The greyed answer takes no click; any other cell still counts wrong, and Esatti stays.
        QCOMPARE(h.run(R"j({"click": "Numero(27)"})j").value("ignored").toString(),
                 QStringLiteral("disabled"));
        clicca(h, 99);
        QCOMPARE(h.global("Errati"), 2);
        QCOMPARE(h.global("Esatti"), 1);
        QVERIFY(h.visible("ComandoIconaNo"));

        h.rnd({0.5, 0.0, 0.0}); // colour, then 10 + 0
        h.run(R"j({"click": "BottoneAvanti"})j");
        QVERIFY(h.enabled(cella(27)));
        QVERIFY(!h.enabled("BottoneAvanti"));
        QCOMPARE(h.caption("EtichettaNumero"), QStringLiteral(" 10 +  0 = "));
    }

    // Back from the worksheet: the adding screens start afresh, every cell live again; the taking
    // away screens keep question, counters and the greyed answer.
    void ritornoDallaScheda_data() {
        QTest::addColumn<QString>("form");
        QTest::addColumn<int>("scheda");
        QTest::addColumn<bool>("daCapo");
        QTest::newRow("units added") << "Form100a" << 19 << true;
        QTest::newRow("tens added") << "Form100b" << 20 << true;
        QTest::newRow("both added") << "Form100f" << 15 << true;
        QTest::newRow("units taken") << "Form100c" << 21 << false;
        QTest::newRow("tens taken") << "Form100d" << 22 << false;
        QTest::newRow("both taken") << "Form100e" << 17 << false;
    }
    void ritornoDallaScheda() {
        QFETCH(QString, form);
        QFETCH(int, scheda);
        QFETCH(bool, daCapo);
        Harness h;
        apri(h, form, 99, {0.3, 0.3});
        const int e = esatto(h);
        const QString domanda = h.caption("EtichettaNumero");
        clicca(h, e);
        h.run(R"j({"menu": "mnuStampa"})j");
        QCOMPARE(h.form(), QStringLiteral("formStampa"));
        QCOMPARE(h.global("NumeroScheda"), scheda);
        h.rnd({0.5, 0.7, 0.7});
        h.run(R"j({"click": "BottoneEsci"})j");
        QCOMPARE(h.form(), form);
        QCOMPARE(h.global("Esatti"), daCapo ? 0 : 1);
        QCOMPARE(h.enabled(cella(e)), daCapo);
        QCOMPARE(h.enabled("BottoneAvanti"), !daCapo);
        QCOMPARE(h.caption("EtichettaNumero") == domanda + h.caption(cella(e)), !daCapo);
    }
};

QTEST_MAIN(TableStepsTest)
#include "tablesteps.moc"
