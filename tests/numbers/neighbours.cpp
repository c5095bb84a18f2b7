// The number before, after and between: the row with its blank line, the row written anew after a
// right answer, and the ends of each range.

#include "support/harness.h"

#include <QTest>

using contarello::test::Harness;

namespace {
struct Vicino {
    QString form;
    int limit;
    double draw;
    QString domanda, riga; // before and after the right answer
    int esatto;
    QString prompt, colore; // the colour is slot 3 of the screen's variant
    int scheda;
};
} // namespace
Q_DECLARE_METATYPE(Vicino)

static void caso(const char* name, const Vicino& v) {
    QTest::newRow(name) << v;
}

class NeighboursTest : public QObject {
    Q_OBJECT
private slots:
    void riga_data();
    void riga() {
        QFETCH(Vicino, v);
        Harness h;
        h.setLimit(v.limit);
        h.rnd({v.draw, 0.12}); // the number first, then the colour
        h.run(QStringLiteral(R"j({"show": "%1"})j").arg(v.form));
        QCOMPARE(h.caption("EtichettaNumero"), v.domanda);
        QCOMPARE(h.caption("Label3"), v.prompt);
        QCOMPARE(h.dump().value("backcolor").toString(), v.colore);

        h.answer("Text1", QString::number(v.esatto));
        QCOMPARE(h.caption("EtichettaNumero"), v.riga);
        h.run(R"j({"menu": "mnuStampa"})j");
        QCOMPARE(h.global("NumeroScheda"), v.scheda);
    }
};

void NeighboursTest::riga_data() {
    QTest::addColumn<Vicino>("v");
    const double hi = 0.9999;
    const char* pri = "Scrivi il numero precedente";
    const char* dopo = "Scrivi il numero seguente";
    const char* mez = "Scrivi il numero in mezzo";
    caso("Formpri two blanks", {"Formpri", 99, 0, "  ___  2", " 1   2", 1, pri, "#ffc0c0", 7});
    caso("Formpri shows 100 at 99", {"Formpri", 99, hi, "  ___  100", " 99   100", 99, pri, "#ffc0c0", 7});
    caso("Formdopo after 0", {"Formdopo", 99, 0, " 0 ___", " 0  1", 1, dopo, "#ff0000", 6});
    caso("Formdopo highest", {"Formdopo", 99, hi, " 98 ___", " 98  99", 99, dopo, "#ff0000", 6});
    caso("Formmez lowest", {"Formmez", 99, 0, " 0 _______ 2", " 0   1  2", 1, mez, "#ffc0c0", 5});
    caso("Formmez below 99", {"Formmez", 99, hi, " 96 _______ 98", " 96   97  98", 97, mez, "#ffc0c0", 5});
    caso("Formmez at 20", {"Formmez", 20, hi, " 17 _______ 19", " 17   18  19", 18, mez, "#ffc0c0", 5});
}

QTEST_MAIN(NeighboursTest)
#include "neighbours.moc"
