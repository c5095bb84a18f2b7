// The number lines: where a line starts and which ticks it writes, the red tick asked for, what
// counts as its number, and a whole line answered to its end.

#include "core/lang.h"
#include "support/harness.h"

#include <QTest>

using contarello::Str;
using contarello::test::Harness;

namespace {

using Draws = QList<double>;

// Sets the limit as an adult can: 20 to 99 from the main menu; 19 only by the panel of another
// screen, which leaves it behind.
void apri(Harness& h, const QString& form, int limit, const Draws& draws, bool avanti = true) {
    if (limit < 20)
        h.script("{\"show\": \"FormScri\"}\n{\"menu\": \"mnuNumeroMassimo\"}\n"
                 "{\"click\": \"OpzioneNumeroMassimo(0)\"}");
    else
        h.setLimit(limit);
    if (!avanti) h.run(R"j({"click": "Option1(0)"})j");
    for (double d : draws)
        h.rnd({d});
    h.run(QStringLiteral(R"j({"show": "%1"})j").arg(form));
}

int campo(Harness& h, const char* name) {
    return h.dump().value("fields")[name].toInt(-99);
}

// The line in one line: its first number and the tick asked; the ticks written, each with its
// caption where that isn't the tick's own number; the red ticks.
QString linea(Harness& h) {
    const QJsonObject d = h.dump(), c = d.value("controls").toObject();
    const int iniziale = d.value("fields")["NumeroIniziale"].toInt();
    QStringList scritte, rosse;
    for (int i = 0; i < 21; ++i) {
        const QJsonObject l = c.value(QStringLiteral("Label3(%1)").arg(i)).toObject();
        const QString caption = l.value("caption").toString();
        if (l.value("visible").toBool())
            scritte << QString::number(i) + (caption == Str(iniziale + i) ? QString() : '=' + caption);
        if (c.value(QStringLiteral("Line2(%1)").arg(i))["bordercolor"] == "#ff0000")
            rosse << QString::number(i);
    }
    return QStringLiteral("%1 +%2 | %3 | %4")
        .arg(iniziale)
        .arg(d.value("fields")["TaccaScelta"].toInt())
        .arg(scritte.join(' '), rosse.join(' '));
}

} // namespace

class NumberLineTest : public QObject {
    Q_OBJECT
private slots:
    // A new line: the ticks written and the tick asked, all red, the box ready. Then an answer: the
    // red tick's own number, not a count from the left, writes the number on the tick; a wrong one
    // keeps the tick and the text.
    void risposta_data() {
        QTest::addColumn<QString>("form");
        QTest::addColumn<int>("limit");
        QTest::addColumn<Draws>("draws");
        QTest::addColumn<QString>("linea");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("right");
        auto row = [](const char* nome, const char* form, int limit, Draws draws, const char* linea,
                      const QString& text, bool right) {
            QTest::newRow(nome) << QString(form) << limit << draws << QString(linea) << text << right;
        };
        const char* d = "FormGradi20";
        const char* b = "FormGradi20bis";
        const char* sedici = "10 +6 | 0 10 20 | 0 6 10 20";
        row("tens: lowest line", d, 99, {0, 0.3}, sedici, "16", true);
        row("tens: highest line whatever the limit", d, 20, {0.9999, 0.999, 0.95},
            "70 +19 | 0 10 20 | 0 10 19 20", "89", true);
        row("tens: never asked", d, 99, {0.5, 0, 0.48, 0.999, 0.05}, "40 +1 | 0 10 20 | 0 1 10 20", "41",
            true);
        row("tens: a stuck generator takes the next free tick", d, 99, Draws(300, 0.0),
            "10 +1 | 0 10 20 | 0 1 10 20", "11", true);
        row("free: limit 20 is 0 to 20", b, 20, {0.9999, 0.5, 0.1}, "0 +2 | 10 | 2 10", "2", true);
        row("free: ends below 99", b, 99, {0.9999, 0.9999, 0}, "78 +0 | 20 | 0 20", "78", true);
        row("free: written tick never asked", b, 99, {0, 0.3, 0.3, 0.3, 0.9}, "0 +18 | 6 | 6 18", "18", true);
        row("free: limit 19 starts at -1", b, 19, {0.5, 0, 0.5}, "-1 +10 | 0 | 0 10", "9", true);
        row("empty box on 0", b, 20, {0, 0.5, 0}, "0 +0 | 10 | 0 10", "", true);
        row("-1 below 0", b, 19, {0.5, 0.5, 0}, "-1 +0 | 10 | 0 10", "-1", true);
        row("counted from the left", d, 99, {0, 0.3}, sedici, "6", false);
        row("empty box", d, 99, {0, 0.3}, sedici, "", false);
        row("blanks and letters after", d, 99, {0, 0.3}, sedici, " 1 6abc", true);
        row("a decimal point", d, 99, {0, 0.3}, sedici, "16.5", false);
        row("a thousand digits", d, 99, {0, 0.3}, sedici, QString(1000, u'9'), false);
    }
    void risposta() {
        QFETCH(QString, form);
        QFETCH(int, limit);
        QFETCH(Draws, draws);
        QFETCH(QString, text);
        QFETCH(bool, right);
        Harness h;
        apri(h, form, limit, draws);
        QTEST(linea(h), "linea");
        QCOMPARE(h.dump().value("focus").toString(), "Text1");
        const QString prima = linea(h), tacca = QString::number(campo(h, "TaccaScelta"));
        h.answer("Text1", text);
        QCOMPARE(std::pair(h.global("Errati"), campo(h, "NumeroRisposte")),
                 std::pair(int(!right), int(right)));
        if (right)
            QVERIFY(linea(h).section(" | ", 1, 1).split(' ').contains(tacca) && h.text("Text1").isEmpty());
        else
            QVERIFY(linea(h) == prima && h.text("Text1") == text);
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
        auto conta = [&h](int parte) { return int(linea(h).section(" | ", parte, parte).split(' ').size()); };
        const int scritte = conta(1);
        for (int r = 0; r < 5; ++r) {
            const int tacca = campo(h, "TaccaScelta"), numero = campo(h, "NumeroIniziale") + tacca;
            QVERIFY(!linea(h).section(" | ", 1, 1).split(' ').contains(QString::number(tacca)));
            QCOMPARE(std::pair(conta(1), conta(2)), std::pair(scritte + r, scritte + r + 1));
            QCOMPARE(campo(h, "NumeroRisposte"), r);
            // Every other tick a wrong answer first: the count from the left, or one too many.
            if (r % 2 == 0) h.answer("Text1", QString::number(tacca == numero ? numero + 1 : tacca));
            h.answer("Text1", QString::number(numero));
        }
        QCOMPARE(std::pair(h.global("Esatti"), h.global("Errati")), std::pair(5, 3));
        if (avanti) {
            QVERIFY(conta(1) == scritte + 5 && h.enabled("BottoneAvanti") && !h.enabled("Text1"));
            h.run(R"j({"click": "BottoneAvanti"})j");
            QVERIFY(!h.enabled("BottoneAvanti") && h.enabled("Text1"));
        }
        QCOMPARE(std::pair(conta(1), conta(2)), std::pair(scritte, scritte + 1));
        QCOMPARE(campo(h, "NumeroRisposte"), 0);
    }
};

QTEST_MAIN(NumberLineTest)
#include "numberline.moc"
