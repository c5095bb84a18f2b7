// formStampa2 and formStampa3, the drawn worksheets on the table of Form100Trova and Form100Ricon: the
// eight items and the table at each level. Printing, showing again and leaving are in pdf.cpp.

#include "support/harness.h"

#include <QTest>

using contarello::test::Harness;

namespace {

// The exercise behind, then its worksheet with the given eight draws.
void apri(Harness& h, const QString& esercizio, std::initializer_list<double> otto) {
    h.dump(); // the program starts, with its own draws, before ours
    h.rnd({0.5, 0.3});
    h.run(QStringLiteral(R"j({"show": "%1"})j").arg(esercizio));
    h.rnd(otto);
    h.run(R"j({"menu": "mnuStampa"})j");
}

// The captions of the hundred cells, then the texts of the eight boxes.
QStringList pagina(Harness& h) {
    const QJsonValue c = h.dump()["controls"];
    QStringList out;
    for (int i = 0; i < 100; ++i)
        out << c[QStringLiteral("numero(%1)").arg(i)]["caption"].toString();
    for (int i = 0; i < 8; ++i)
        out << c[QStringLiteral("Text1(%1)").arg(i)]["text"].toString();
    return out;
}

} // namespace

class TableSheetsTest : public QObject {
    Q_OBJECT
private slots:
    // 99 never stands in a box, numbers may repeat. The level changes the table, not the numbers:
    // "media" shows the first row and the first column, "facile" every number, "difficile" none.
    void numeriDaColorare() {
        Harness h;
        apri(h, "Form100Trova", {0.0, 0.9999, 0.5, 0.5, 0.1, 0.2, 0.3, 0.4});
        QCOMPARE(h.text("Text2"), "Colora nello stesso modo il numero e la casella corrispondente\r\n");
        const QStringList otto = {" 0", " 98", " 49", " 49", " 9", " 19", " 29", " 39"};
        QStringList p = pagina(h);
        QCOMPARE(p.mid(100), otto);
        QCOMPARE((QStringList{p[7], p[70], p[77], p[99]}), (QStringList{" 7", " 70", "", ""}));
        h.run(R"j({"menu": "mnuFacile"})j");
        QCOMPARE(pagina(h)[99] + pagina(h)[77], " 99 77");
        h.run(R"j({"menu": "mnudifficile"})j");
        p = pagina(h);
        QCOMPARE(p.mid(0, 100).join(QString()), QString());
        QCOMPARE(p.mid(100), otto);
        QVERIFY(!h.control("mnuFacile")["checked"].toBool() && h.control("mnudifficile")["checked"].toBool());
    }

    // Two draws on cell 98, one on cell 5 of the first row: seven marks, eight empty boxes. A change
    // of level takes the old marks away and sets eight new ones.
    void caselleConLaX() {
        Harness h;
        apri(h, "Form100Ricon", {0.9999, 0.9999, 0.06, 0.11, 0.22, 0.33, 0.44, 0.66});
        QStringList p = pagina(h);
        QCOMPARE(p.count("X"), 7);
        QCOMPARE((QStringList{p[98], p[5], p[99], p[90]}), (QStringList{"X", "X", "", " 90"}));
        QCOMPARE(p.mid(100).join(QString()), QString());
        h.rnd({0.0, 0.011, 0.021, 0.031, 0.041, 0.061, 0.071, 0.081});
        h.run(R"j({"menu": "mnudifficile"})j");
        p = pagina(h);
        QCOMPARE(p.count("X"), 8);
        QCOMPARE(p[98] + p[9], QString());
    }
};

QTEST_MAIN(TableSheetsTest)
#include "tablesheets.moc"
