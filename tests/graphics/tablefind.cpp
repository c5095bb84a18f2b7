// Form100Trova and Form100Ricon: find a number in the table, or name its red cell, at three
// levels of help and in rounds of ten.

#include "support/harness.h"

#include <QSet>
#include <QTest>

using contarello::test::Harness;

namespace {

QString cella(int i) {
    return QStringLiteral("Numero(%1)").arg(i);
}
void clicca(Harness& h, int i) {
    h.run(QStringLiteral(R"j({"click": "%1"})j").arg(cella(i)));
}
void menu(Harness& h, const char* item) {
    h.run(QStringLiteral(R"j({"menu": "%1"})j").arg(QLatin1String(item)));
}
bool rossa(Harness& h, int i) {
    return h.control(cella(i)).value("backcolor").toString() == QStringLiteral("#ff0000");
}
int rosse(Harness& h) {
    const QJsonObject controls = h.dump().value("controls").toObject();
    int n = 0;
    for (int i = 0; i < 100; ++i)
        n += controls.value(cella(i)).toObject().value("backcolor").toString() == QStringLiteral("#ff0000");
    return n;
}
void apri(Harness& h, const char* form, int limite, bool attendi, std::initializer_list<double> draws) {
    h.dump(); // the program starts, with its own draws and settings, before ours
    h.engine.program().g.NumeroMassimo = int16_t(limite);
    h.engine.program().g.AttendiBottone = attendi ? -1 : 0;
    h.rnd({0.5});
    h.rnd(draws);
    h.run(QStringLiteral(R"j({"show": "%1"})j").arg(QLatin1String(form)));
}

} // namespace

class TableFindTest : public QObject {
    Q_OBJECT
private slots:
    // What each level shows; one item is checked at a time; the question and the round stay.
    void livelli_data() {
        QTest::addColumn<QString>("form");
        QTest::addColumn<QString>("item");
        QTest::addColumn<QString>("visti"); // captions of cells 0, 7, 11, 55, 90, 99
        QTest::newRow("find, as it opens") << "Form100Trova"
                                           << ""
                                           << " 0| 7||| 90|";
        QTest::newRow("find, easy") << "Form100Trova"
                                    << "mnuFacile"
                                    << " 0| 7| 11| 55| 90| 99";
        QTest::newRow("find, hard") << "Form100Trova"
                                    << "mnuDifficile"
                                    << "|||||";
        QTest::newRow("name, middle again") << "Form100Ricon"
                                            << "mnuMedia"
                                            << " 0| 7||| 90|";
        QTest::newRow("name, hard") << "Form100Ricon"
                                    << "mnuDifficile"
                                    << "|||||";
    }
    void livelli() {
        QFETCH(QString, form);
        QFETCH(QString, item);
        QFETCH(QString, visti);
        Harness h;
        apri(h, qPrintable(form), 99, true, {0.33}); // cell 33
        if (!item.isEmpty()) h.run(QStringLiteral(R"j({"menu": "%1"})j").arg(item));
        QStringList c;
        for (int i : {0, 7, 11, 55, 90, 99})
            c << h.caption(cella(i));
        QCOMPARE(c.join('|'), visti);
        int checked = 0;
        for (const char* i : {"mnuFacile", "mnuMedia", "mnuDifficile"}) {
            const QJsonObject m = h.dump().value("controls").toObject().value(i).toObject();
            checked += m.value("checked").toBool();
            if (!item.isEmpty() && item == i) QVERIFY(m.value("checked").toBool());
        }
        QCOMPARE(checked, 1);
        QCOMPARE(h.global("NumeroEsatto"), 33);
        if (form == "Form100Ricon") { // the red cell never tells its number, whatever the level
            QVERIFY(rossa(h, 33));
            QCOMPARE(h.caption(cella(33)), QString());
        }
    }

    void trovaCelle() {
        Harness h;
        apri(h, "Form100Trova", 99, true, {0.42});
        QCOMPARE(h.caption("EtichettaNumero"), QStringLiteral(" 42"));
        clicca(h, 41);
        QCOMPARE(h.global("Errati"), 1);
        QVERIFY(!rossa(h, 41));
        clicca(h, 42);
        QCOMPARE(h.global("Esatti"), 1);
        QVERIFY(rossa(h, 42));
        QCOMPARE(h.caption(cella(42)), QStringLiteral(" 42"));
        QVERIFY(!h.enabled(cella(42)));
        QCOMPARE(h.run(R"j({"click": "Numero(42)"})j").value("ignored").toString(),
                 QStringLiteral("disabled"));
        clicca(h, 43); // still counted wrong while waiting
        QCOMPARE(h.global("Errati"), 2);
        // A red cell isn't asked again: the second draw heeds the limit.
        h.rnd({0.5, 0.42, 0.5});
        h.run(R"j({"click": "BottoneAvanti"})j");
        QVERIFY(h.enabled(cella(42)));
        QCOMPARE(h.global("NumeroEsatto"), 49);
        // Hard: the found cell writes its number in, and a change of level blanks it again.
        menu(h, "mnuDifficile");
        clicca(h, 49);
        QCOMPARE(h.caption(cella(49)), QStringLiteral(" 49"));
        menu(h, "mnuFacile");
        menu(h, "mnuDifficile");
        QCOMPARE(h.caption(cella(49)), QString());
        QVERIFY(rossa(h, 49));
    }

    // The tenth number found clears the table at once, also the cell just found.
    void dieciTrovatiRicominciano() {
        Harness h;
        h.run(R"j({"seed": 5})j");
        apri(h, "Form100Trova", 99, false, {});
        for (int n = 1; n <= 9; ++n)
            clicca(h, h.global("NumeroEsatto"));
        QCOMPARE(rosse(h), 9);
        QCOMPARE(h.dump().value("fields").toObject().value("Trovati").toInt(), 9);
        clicca(h, h.global("NumeroEsatto"));
        QCOMPARE(rosse(h), 0);
        QCOMPARE(h.dump().value("fields").toObject().value("Trovati").toInt(), 0);
        QCOMPARE(h.global("Esatti"), 10);
    }

    // Under the limit 20 on the middle level only nine cells can be asked for; once they are
    // named the questions go on from the rest of the table, never in the first row or column and
    // never a cell that shows its number. Under 99 and on the hard level too, many rounds through.
    void riconosciResta_data() {
        QTest::addColumn<int>("limite");
        QTest::addColumn<bool>("difficile");
        QTest::newRow("middle, 20") << 20 << false;
        QTest::newRow("middle, 93") << 93 << false;
        QTest::newRow("hard, 20") << 20 << true;
        QTest::newRow("middle, 99") << 99 << false;
    }
    void riconosciResta() {
        QFETCH(int, limite);
        QFETCH(bool, difficile);
        Harness h;
        h.run(R"j({"seed": 3})j");
        apri(h, "Form100Ricon", limite, false, {});
        if (difficile) menu(h, "mnuDifficile");
        QSet<int> sottoIlLimite;
        for (int n = 1; n <= 35; ++n) {
            const int e = h.global("NumeroEsatto");
            QVERIFY(rossa(h, e));
            QCOMPARE(h.caption(cella(e)), QString());
            if (!difficile) QVERIFY(e > 10 && e % 10 != 0);
            if (e < limite) sottoIlLimite << e;
            h.answer("Text1", QString::number(e));
            QCOMPARE(h.global("Esatti"), n);
        }
        QVERIFY(!sottoIlLimite.isEmpty());
    }

    // The nine cells under 20 that the middle level can ask for, all named: the next question
    // comes from the free cells of the whole table, after a bounded number of draws.
    void riconosciOltreIlLimite() {
        Harness h;
        apri(h, "Form100Ricon", 20, true, {0.111});
        for (int k = 11; k <= 19; ++k) {
            QCOMPARE(h.global("NumeroEsatto"), k);
            h.answer("Text1", QString::number(k));
            if (k < 19)
                h.rnd({0.5, k / 100.0 + 0.011});
            else
                h.rnd({0.5, 0.05, 0.9, 0.9, 0.9, 0.9, 0.9, 0.9, 0.9, 0.9, 0.0});
            h.run(R"j({"click": "BottoneAvanti"})j");
        }
        QCOMPARE(h.global("NumeroEsatto"), 21); // the first free cell of the rest of the table
        QVERIFY(rossa(h, 21));
        QCOMPARE(h.global("Esatti"), 9);
    }

    void riconosciRisposte() {
        Harness h;
        apri(h, "Form100Ricon", 99, true, {0.37});
        h.answer("Text1", "73");
        QCOMPARE(h.global("Errati"), 1);
        QCOMPARE(h.text("Text1"), QStringLiteral("73"));
        QVERIFY(rossa(h, 37));
        QCOMPARE(h.global("NumeroEsatto"), 37);
        h.answer("Text1", ""); // an empty box reads as 0
        QCOMPARE(h.global("Errati"), 2);
        h.answer("Text1", "37 rosso");
        QCOMPARE(h.global("Esatti"), 1);
        QCOMPARE(h.caption(cella(37)), QStringLiteral(" 37"));
        QVERIFY(!h.enabled("Text1"));
        // The hard level can ask for 0, which an empty box names.
        menu(h, "mnuDifficile");
        h.rnd({0.5, 0.0});
        h.run(R"j({"click": "BottoneAvanti"})j");
        QCOMPARE(h.global("NumeroEsatto"), 0);
        h.answer("Text1", "");
        QCOMPARE(h.global("Esatti"), 2);
    }

    // Back from the drawn worksheet: counters, round and red cells start again, and every cell
    // answers, also the one that waited for "avanti".
    void ritornoDallaScheda_data() {
        QTest::addColumn<QString>("form");
        QTest::addColumn<QString>("scheda");
        QTest::newRow("find") << "Form100Trova"
                              << "formStampa2";
        QTest::newRow("name") << "Form100Ricon"
                              << "formStampa3";
    }
    void ritornoDallaScheda() {
        QFETCH(QString, form);
        QFETCH(QString, scheda);
        Harness h;
        apri(h, qPrintable(form), 99, true, {0.55});
        if (form == "Form100Trova")
            clicca(h, 55);
        else
            h.answer("Text1", "55");
        QCOMPARE(h.global("Esatti"), 1);
        h.run(R"j({"menu": "mnuStampa"})j");
        QCOMPARE(h.form(), scheda);
        h.rnd({0.5, 0.12});
        h.run(R"j({"menu": "mnuesci"})j");
        QCOMPARE(h.form(), form);
        QCOMPARE(h.global("Esatti"), 0);
        QCOMPARE(h.dump().value("fields").toObject().value("Trovati").toInt(), 0);
        QVERIFY(!rossa(h, 55));
        QVERIFY(h.enabled(cella(55)));
        QVERIFY(!h.enabled("BottoneAvanti"));
        QCOMPARE(rosse(h), form == "Form100Trova" ? 0 : 1);
    }
};

QTEST_MAIN(TableFindTest)
#include "tablefind.moc"
