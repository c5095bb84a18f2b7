// formStampa2 and formStampa3: the drawn worksheets on the table, opened from Form100Trova and
// Form100Ricon, with their three levels and their eight items.

#include "support/harness.h"

#include <QTest>

using contarello::test::Harness;

namespace {

QStringList caselle(Harness& h) {
    const QJsonObject controls = h.dump().value("controls").toObject();
    QStringList out;
    for (int i = 0; i < 100; ++i)
        out << controls.value(QStringLiteral("numero(%1)").arg(i)).toObject().value("caption").toString();
    return out;
}
QStringList riquadri(Harness& h) {
    QStringList out;
    for (int i = 0; i < 8; ++i)
        out << h.text(QStringLiteral("Text1(%1)").arg(i));
    return out;
}
// The exercise behind, then its worksheet with the given eight draws.
void apri(Harness& h, const QString& esercizio, std::initializer_list<double> otto) {
    h.dump(); // the program starts, with its own draws, before ours
    h.rnd({0.5, 0.3});
    h.run(QStringLiteral(R"j({"show": "%1"})j").arg(esercizio));
    h.rnd(otto);
    h.run(R"j({"menu": "mnuStampa"})j");
}

// "Stampa" prints the screen as it stands, edits in the boxes included, and changes nothing.
void stampa(Harness& h, const QString& scheda) {
    h.run(R"j({"settext": "Text1(0)", "text": "rosso"})j");
    const QStringList prima = caselle(h);
    h.events();
    h.run(R"j({"menu": "mnustampa"})j");
    const QJsonArray stampe = h.events("printform");
    QCOMPARE(stampe.size(), 1);
    QCOMPARE(stampe[0].toObject().value("form").toString(), scheda);
    QCOMPARE(caselle(h), prima);
    QCOMPARE(h.text("Text1(0)"), QStringLiteral("rosso"));
}

} // namespace

class TableSheetsTest : public QObject {
    Q_OBJECT
private slots:
    // 99 never stands in a box, numbers may repeat; the level changes the table, not the numbers.
    void numeriDaColorare() {
        Harness h;
        apri(h, "Form100Trova", {0.0, 0.9999, 0.5, 0.5, 0.1, 0.2, 0.3, 0.4});
        QCOMPARE(h.text("Text2"),
                 QStringLiteral("Colora nello stesso modo il numero e la casella corrispondente\r\n"));
        const QStringList otto = {" 0", " 98", " 49", " 49", " 9", " 19", " 29", " 39"};
        QCOMPARE(riquadri(h), otto);
        QStringList c = caselle(h);
        QCOMPARE((QStringList{c[7], c[70], c[77]}), (QStringList{" 7", " 70", ""}));
        h.run(R"j({"menu": "mnuFacile"})j");
        QCOMPARE(caselle(h)[99], QStringLiteral(" 99"));
        h.run(R"j({"menu": "mnudifficile"})j");
        QCOMPARE(caselle(h).join(QString()), QString());
        QCOMPARE(riquadri(h), otto);
        QVERIFY(
            !h.dump().value("controls").toObject().value("mnuFacile").toObject().value("checked").toBool());
        stampa(h, "formStampa2");
    }

    // Two draws on cell 98, one on cell 5 of the first row: seven marks, eight empty boxes. A change
    // of level takes the old marks away and sets eight new ones.
    void caselleConLaX() {
        Harness h;
        apri(h, "Form100Ricon", {0.9999, 0.9999, 0.06, 0.11, 0.22, 0.33, 0.44, 0.66});
        QStringList c = caselle(h);
        QCOMPARE(c.count("X"), 7);
        QCOMPARE((QStringList{c[98], c[5], c[99], c[90]}), (QStringList{"X", "X", "", " 90"}));
        QCOMPARE(riquadri(h).join(QString()), QString());
        h.rnd({0.0, 0.011, 0.021, 0.031, 0.041, 0.061, 0.071, 0.081});
        h.run(R"j({"menu": "mnudifficile"})j");
        c = caselle(h);
        QCOMPARE(c.count("X"), 8);
        QCOMPARE(c[98] + c[9], QString());
        stampa(h, "formStampa3");
    }
};

QTEST_MAIN(TableSheetsTest)
#include "tablesheets.moc"
