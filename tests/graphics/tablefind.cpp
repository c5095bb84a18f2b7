// Form100Trova and Form100Ricon: find a number in the table, or name its red cell, at three
// levels of help and in rounds of ten.

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
void menu(Harness& h, const QString& item) {
    h.run(QStringLiteral(R"j({"menu": "%1"})j").arg(item));
}
void avanti(Harness& h) {
    h.run(R"j({"click": "BottoneAvanti"})j");
}
QList<int> rosse(Harness& h) {
    const QJsonObject controls = h.dump().value("controls").toObject();
    QList<int> out;
    for (int i = 0; i < 100; ++i)
        if (controls.value(cella(i)).toObject().value("backcolor").toString() == "#ff0000") out << i;
    return out;
}
bool rossa(Harness& h, int i) {
    return rosse(h).contains(i);
}
void apri(Harness& h, const QString& form, int limite, bool attendi, std::initializer_list<double> draws) {
    h.dump(); // the program starts, with its own draws and settings, before ours
    h.engine.program().g.NumeroMassimo = int16_t(limite);
    h.engine.program().g.AttendiBottone = attendi ? -1 : 0;
    h.rnd({0.5});
    h.rnd(draws);
    h.run(QStringLiteral(R"j({"show": "%1"})j").arg(form));
}
// To the drawn worksheet and back: counters and round start again, every cell answers.
void schedaEritorno(Harness& h, const QString& scheda, std::initializer_list<double> draws) {
    menu(h, "mnuStampa");
    QCOMPARE(h.form(), scheda);
    h.rnd(draws);
    menu(h, "mnuesci");
    QCOMPARE(h.global("Esatti"), 0);
    QCOMPARE(h.dump().value("fields").toObject().value("Trovati").toInt(-1), 0);
    QVERIFY(!h.enabled("BottoneAvanti"));
}

} // namespace

class TableFindTest : public QObject {
    Q_OBJECT
private slots:
    // What each level shows, with its item alone checked; the question stays, and on Form100Ricon
    // the red cell never tells its number.
    void livelli_data() {
        QTest::addColumn<QString>("form");
        QTest::addColumn<QString>("item");
        QTest::addColumn<QString>("visti"); // captions of cells 0, 7, 11, 55, 90, 99
        auto riga = [](const char* nome, const char* form, const char* item, const char* visti) {
            QTest::newRow(nome) << QString(form) << QString(item) << QString(visti);
        };
        riga("find, as it opens", "Form100Trova", "", " 0| 7||| 90|");
        riga("find, easy", "Form100Trova", "mnuFacile", " 0| 7| 11| 55| 90| 99");
        riga("find, hard", "Form100Trova", "mnuDifficile", "|||||");
        riga("name, middle again", "Form100Ricon", "mnuMedia", " 0| 7||| 90|");
        riga("name, hard", "Form100Ricon", "mnuDifficile", "|||||");
    }
    void livelli() {
        QFETCH(QString, form);
        QFETCH(QString, item);
        Harness h;
        apri(h, form, 99, true, {0.33}); // cell 33
        if (!item.isEmpty()) menu(h, item);
        QStringList visti, spuntati;
        for (int i : {0, 7, 11, 55, 90, 99})
            visti << h.caption(cella(i));
        QTEST(visti.join('|'), "visti");
        const QJsonObject controls = h.dump().value("controls").toObject();
        for (const char* i : {"mnuFacile", "mnuMedia", "mnuDifficile"})
            if (controls.value(i).toObject().value("checked").toBool()) spuntati << i;
        QCOMPARE(spuntati, QStringList{item.isEmpty() ? QStringLiteral("mnuMedia") : item});
        QCOMPARE(h.global("NumeroEsatto"), 33);
        if (form == "Form100Ricon") QVERIFY(rossa(h, 33) && h.caption(cella(33)).isEmpty());
    }

    // The first draw heeds no limit, a repeated one does; a red cell isn't asked again. Ten found
    // make a round: the tenth clears the table at once, also while it waits for "avanti".
    void trova() {
        Harness h;
        apri(h, "Form100Trova", 20, true, {0.42});
        QCOMPARE(h.caption("EtichettaNumero"), QStringLiteral(" 42"));
        clicca(h, 41);
        clicca(h, 42);
        QCOMPARE(rosse(h), QList<int>{42});
        QVERIFY(!h.enabled(cella(42)));
        clicca(h, 42);
        clicca(h, 43); // still counted wrong while waiting
        QCOMPARE(h.global("Esatti"), 1);
        QCOMPARE(h.global("Errati"), 2);
        h.rnd({0.5, 0.42, 0.5});
        avanti(h);
        QCOMPARE(h.global("NumeroEsatto"), 10);
        // Hard: the found cell writes its number in, and a change of level blanks it again.
        menu(h, "mnuDifficile");
        clicca(h, 10);
        QCOMPARE(h.caption(cella(10)), QStringLiteral(" 10"));
        menu(h, "mnuFacile");
        menu(h, "mnuDifficile");
        QVERIFY(rossa(h, 10) && h.caption(cella(10)).isEmpty());

        schedaEritorno(h, "formStampa2", {0.5, 0.12});
        QVERIFY(!rossa(h, 10) && h.enabled(cella(10)) && h.enabled(cella(42)));
        for (int n = 1; n <= 10; ++n) {
            QCOMPARE(rosse(h).size(), n - 1);
            clicca(h, h.global("NumeroEsatto"));
            avanti(h);
        }
        QCOMPARE(rosse(h), QList<int>{});
        QCOMPARE(h.global("Esatti"), 10);
    }

    // Many rounds of naming: never a cell that shows its number, on the middle level never one of
    // the first row or column, also under 20 where the middle level has only nine such cells.
    void riconosciResta_data() {
        QTest::addColumn<int>("limite");
        QTest::addColumn<bool>("difficile");
        QTest::newRow("middle, 20") << 20 << false;
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
        for (int n = 1; n <= 35; ++n) {
            const int e = h.global("NumeroEsatto");
            QVERIFY(rossa(h, e) && h.caption(cella(e)).isEmpty());
            if (!difficile) QVERIFY(e > 10 && e % 10 != 0);
            h.answer("Text1", QString::number(e));
            QCOMPARE(h.global("Esatti"), n);
        }
    }

    // A wrong answer keeps the text, the red cell and the question, and an empty box reads as 0.
    // Once the nine cells under 20 of the middle level are named, the next question comes from the
    // free cells of the whole table after a bounded number of draws.
    void riconosci() {
        Harness h;
        apri(h, "Form100Ricon", 20, true, {0.111});
        h.answer("Text1", "73");
        QCOMPARE(h.text("Text1"), QStringLiteral("73"));
        h.answer("Text1", "");
        QCOMPARE(h.global("Errati"), 2);
        QVERIFY(rossa(h, 11));
        for (int k = 11; k <= 19; ++k) {
            QCOMPARE(h.global("NumeroEsatto"), k);
            h.answer("Text1", QString::number(k) + " rosso");
            QCOMPARE(h.caption(cella(k)), QStringLiteral(" %1").arg(k));
            QVERIFY(!h.enabled("Text1"));
            if (k < 19)
                h.rnd({0.5, k / 100.0 + 0.011});
            else // 5 shows its number, 18 and 10 too
                h.rnd({0.5, 0.05, 0.9, 0.5, 0.9, 0.5, 0.9, 0.5, 0.9, 0.5, 0.0});
            avanti(h);
        }
        QCOMPARE(h.global("NumeroEsatto"), 21); // the first free cell of the rest of the table
        h.answer("Text1", "21");
        QCOMPARE(rosse(h), QList<int>{}); // the tenth named: a new round
        // The hard level can ask for 0, which an empty box names.
        menu(h, "mnuDifficile");
        h.rnd({0.5, 0.0});
        avanti(h);
        QCOMPARE(h.global("NumeroEsatto"), 0);
        h.answer("Text1", "");
        QCOMPARE(h.global("Esatti"), 11);

        schedaEritorno(h, "formStampa3", {0.5, 0.55});
        QVERIFY(h.enabled("Text1"));
        QCOMPARE(rosse(h), QList<int>{55}); // the new question only
    }
};

QTEST_MAIN(TableFindTest)
#include "tablefind.moc"
