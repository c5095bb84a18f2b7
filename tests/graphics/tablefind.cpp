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
const QString kAvanti = R"j({"click": "BottoneAvanti"})j";
QList<int> rosse(Harness& h) {
    const QJsonObject controls = h.dump().value("controls").toObject();
    QList<int> out;
    for (int i = 0; i < 100; ++i)
        if (controls.value(cella(i))["backcolor"] == "#ff0000") out << i;
    return out;
}
void apri(Harness& h, const QString& form, int limite, std::initializer_list<double> draws) {
    h.dump(); // the program starts, with its own draws and settings, before ours
    h.engine.program().g.NumeroMassimo = int16_t(limite);
    h.rnd({0.5});
    h.rnd(draws);
    h.run(QStringLiteral(R"j({"show": "%1"})j").arg(form));
}
// To the drawn worksheet and back, from a question answered and waiting for "avanti": counters
// and round start again, and the screen goes on waiting.
void schedaEritorno(Harness& h, const QString& scheda, std::initializer_list<double> draws) {
    QVERIFY(h.enabled("BottoneAvanti"));
    menu(h, "mnuStampa");
    QCOMPARE(h.form(), scheda);
    h.rnd(draws);
    menu(h, "mnuesci");
    QCOMPARE(h.global("Esatti") + h.dump().value("fields")["Trovati"].toInt(-1), 0);
    QVERIFY(h.enabled("BottoneAvanti"));
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
        QTest::addColumn<QString>("visti"); // captions of cells 0, 7, 11, 55, 90, 99; the item checked
        auto riga = [](const char* nome, const char* form, const char* item, const char* visti) {
            QTest::newRow(nome) << QString(form) << QString(item) << QString(visti);
        };
        riga("find, as it opens", "Form100Trova", "", " 0| 7||| 90|| mnuMedia");
        riga("find, easy", "Form100Trova", "mnuFacile", " 0| 7| 11| 55| 90| 99| mnuFacile");
        riga("find, hard", "Form100Trova", "mnuDifficile", "|||||| mnuDifficile");
        riga("name, middle again", "Form100Ricon", "mnuMedia", " 0| 7||| 90|| mnuMedia");
        riga("name, hard", "Form100Ricon", "mnuDifficile", "|||||| mnuDifficile");
    }
    void livelli() {
        QFETCH(QString, form);
        QFETCH(QString, item);
        Harness h;
        apri(h, form, 99, {0.33}); // cell 33
        if (!item.isEmpty()) menu(h, item);
        QStringList visti;
        for (int i : {0, 7, 11, 55, 90, 99})
            visti << h.caption(cella(i));
        const QJsonObject controls = h.dump().value("controls").toObject();
        for (const char* i : {"mnuFacile", "mnuMedia", "mnuDifficile"})
            if (controls.value(i)["checked"].toBool()) visti << QStringLiteral(" ") + i;
        QTEST(visti.join('|'), "visti");
        QCOMPARE(controls.value("mnuTabella")["caption"].toString(), QStringLiteral("Tabella"));
        QCOMPARE(h.global("NumeroEsatto"), 33);
        if (form == "Form100Ricon") QVERIFY(rosse(h).contains(33) && h.caption(cella(33)).isEmpty());
    }

    // The first draw heeds no limit, a repeated one does; a red cell isn't asked again. Ten found
    // make a round: the tenth clears the table at once, also while it waits for "avanti".
    void trova() {
        Harness h;
        apri(h, "Form100Trova", 20, {0.42});
        QCOMPARE(h.caption("EtichettaNumero"), QStringLiteral(" 42"));
        clicca(h, 41);
        clicca(h, 42);
        QVERIFY(rosse(h) == QList<int>{42} && !h.enabled(cella(42)));
        clicca(h, 42);
        clicca(h, 43); // still counted wrong while waiting
        QCOMPARE(std::pair(h.global("Esatti"), h.global("Errati")), std::pair(1, 2));
        h.rnd({0.5, 0.42, 0.5});
        h.run(kAvanti);
        QCOMPARE(h.global("NumeroEsatto"), 10);
        // Hard: the found cell writes its number in, and a change of level blanks it again.
        menu(h, "mnuDifficile");
        clicca(h, 10);
        QCOMPARE(h.caption(cella(10)), QStringLiteral(" 10"));
        menu(h, "mnuFacile");
        menu(h, "mnuDifficile");
        QVERIFY(rosse(h).contains(10) && h.caption(cella(10)).isEmpty());

        schedaEritorno(h, "formStampa2", {0.5, 0.12});
        QVERIFY(!rosse(h).contains(10) && h.enabled(cella(10)) && h.enabled(cella(42)));
        for (int n = 1; n <= 10; ++n) {
            QCOMPARE(rosse(h).size(), n - 1);
            clicca(h, h.global("NumeroEsatto"));
            h.run(kAvanti);
        }
        QVERIFY(rosse(h).isEmpty() && h.global("Esatti") == 10);
    }

    // A wrong answer keeps the text, the red cell and the question, and an empty box reads as 0.
    // Never a cell that shows its number is asked; once the nine cells under 20 of the middle level
    // are named, the next question comes from the free cells of the whole table after a bounded
    // number of draws.
    void riconosci() {
        Harness h;
        apri(h, "Form100Ricon", 20, {0.111});
        h.answer("Text1", "73");
        QCOMPARE(h.text("Text1"), QStringLiteral("73"));
        h.answer("Text1", "");
        QVERIFY(h.global("Errati") == 2 && rosse(h).contains(11));
        for (int k = 11; k <= 19; ++k) {
            QCOMPARE(h.global("NumeroEsatto"), k);
            h.answer("Text1", QString::number(k) + " rosso");
            QVERIFY(h.caption(cella(k)) == QStringLiteral(" %1").arg(k) && !h.enabled("Text1"));
            if (k < 19)
                h.rnd({0.5, k / 100.0 + 0.011});
            else // 5 shows its number, 18 and 10 too
                h.rnd({0.5, 0.05, 0.9, 0.5, 0.9, 0.5, 0.9, 0.5, 0.9, 0.5, 0.0});
            h.run(kAvanti);
        }
        QCOMPARE(h.global("NumeroEsatto"), 21); // the first free cell of the rest of the table
        h.answer("Text1", "21");
        QCOMPARE(rosse(h), QList<int>{}); // the tenth named: a new round
        // The hard level can ask for 0, which an empty box names.
        menu(h, "mnuDifficile");
        h.rnd({0.5, 0.0});
        h.run(kAvanti);
        QCOMPARE(h.global("NumeroEsatto"), 0);
        h.answer("Text1", "");
        QCOMPARE(h.global("Esatti"), 11);
        schedaEritorno(h, "formStampa3", {0.5, 0.55});
        QVERIFY(!h.enabled("Text1") && h.text("Text1").isEmpty());
        QCOMPARE(rosse(h), QList<int>{55}); // the new question only
        h.rnd({0.5, 0.66});
        h.run(kAvanti);
        QVERIFY(h.enabled("Text1") && !h.enabled("BottoneAvanti") && h.global("NumeroEsatto") == 66);
        QCOMPARE(h.dump().value("focus").toString(), QStringLiteral("Text1"));
    }
};

QTEST_MAIN(TableFindTest)
#include "tablefind.moc"
