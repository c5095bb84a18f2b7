// The printouts of the worksheets and "Salva PDF", read back with poppler's tools: the lines of the
// worksheet screen, and the pictures of the drawn worksheets with their texts still text.

#include "support/harness.h"
#include "worksheets/generators/generators.h"

#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace contarello;
using namespace contarello::test;

namespace {

void act(Harness& h, const QJsonObject& command) {
    h.run(QString::fromUtf8(QJsonDocument(command).toJson(QJsonDocument::Compact)));
}

QString tool(const QString& program, const QStringList& args) {
    QProcess p;
    p.start(program, args);
    p.waitForFinished(30000);
    return QString::fromUtf8(p.readAllStandardOutput() + p.readAllStandardError());
}

// The lines of a text as they read on paper, in a proportional font: no runs of blanks, no empty lines.
QStringList words(const QString& text) {
    QStringList lines;
    for (const QString& line : text.split(QRegularExpression(QStringLiteral("[\r\n]+"))))
        if (!line.simplified().isEmpty()) lines << line.simplified();
    return lines;
}

QStringList page(const QString& pdf, int n) {
    const QString p = QString::number(n);
    return words(tool(QStringLiteral("pdftotext"), {"-raw", "-nopgbrk", "-f", p, "-l", p, pdf, "-"}));
}

// The title and the number of pages.
QString info(const QString& pdf) {
    static const QRegularExpression re(QStringLiteral("^Title: *(.*)$[\\s\\S]*^Pages: *(\\d+)$"),
                                       QRegularExpression::MultilineOption);
    const QRegularExpressionMatch m = re.match(tool(QStringLiteral("pdfinfo"), {pdf}));
    return m.captured(1).trimmed() + '|' + m.captured(2);
}

// One document in MS Sans Serif, named for the print queue after what it is.
QJsonValue printed(int size, const QString& text, const QString& name) {
    return QJsonObject{
        {"event", "print"}, {"font", "MS Sans Serif"}, {"size", size}, {"text", text}, {"name", name}};
}

} // namespace

class PdfTest : public QObject {
    Q_OBJECT
private slots:
    // The sheet of "più 1" in six columns (rows wider than a printout), edited by hand, in each size:
    // "Stampa scheda" prints the edit broken at 100 characters, "Stampa correzione" the correction at
    // 90, "Salva PDF" the two on pages 1 and 2, where a line too wide runs off the paper, as printed.
    // Cancel writes nothing; a path that can't take the file gets a box naming it, nothing changes.
    void printAndSave_data() {
        QTest::addColumn<int>("option");
        QTest::addColumn<int>("size");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("why");
        QTest::newRow("piccolo") << 0 << 10 << "scheda.pdf" << QString();
        QTest::newRow("grande, cut at the edge") << 2 << 14 << "scheda.pdf" << QString();
        QTest::newRow("medio, Cancel") << 1 << 12 << QString() << QString();
        QTest::newRow("no such folder") << 1 << 12 << "manca/scheda.pdf" << QString("La cartella non esiste");
        QTest::newRow("a folder by that name") << 0 << 10 << "cartella" << QString("c'è già una cartella");
    }
    void printAndSave() {
        QFETCH(int, option);
        QFETCH(int, size);
        QFETCH(QString, path);
        QFETCH(QString, why);
        QTemporaryDir dir;
        QDir(dir.path()).mkdir(QStringLiteral("cartella"));
        const QString pdf = path.isEmpty() ? QString() : dir.filePath(path);
        Harness h;
        h.rnd({11.5 / 99, 0.0});
        h.script(R"J({"show": "Form1"}
                     {"menu": "mnuStampa"}
                     {"click": "OptionColonne(5)"})J");
        const QString correzione = h.text("TextCor");
        const QString edited = h.text("txtCD") + QStringLiteral("    Nome: ____________\r\n");
        act(h, {{"settext", "txtCD"}, {"text", edited}});
        // A size never draws new numbers, and the edit survives it.
        for (int o : {(option + 1) % 3, option})
            h.run(QStringLiteral(R"J({"click": "OptionCarattere(%1)"})J").arg(o));
        QCOMPARE(h.control("txtCD")["fontsize"].toDouble(), double(size));
        h.events();
        h.script(R"J({"click": "btnCD"}
                     {"click": "Command1"})J");
        const QJsonArray stampe = h.events("print");
        QCOMPARE(stampe, (QJsonArray{printed(size, AndaACapo(edited, 100), "Contarello - scheda 9"),
                                     printed(size, AndaACapo(correzione, 90), "Contarello - correzione 9")}));
        act(h, {{"savefile", QJsonArray{pdf}}});
        h.run(R"({"click": "btnPDF"})");

        const QJsonArray asked = h.events(); // the dialog, then a box only for a file not written
        QCOMPARE(asked.size(), why.isEmpty() ? 1 : 2);
        QCOMPARE(asked[0]["title"].toString() + '|' + asked[0]["default"].toString(),
                 "Salva PDF|Contarello - scheda 9 - " + QDate::currentDate().toString(Qt::ISODate) + ".pdf");
        const QJsonValue box = asked.last();
        if (!why.isEmpty())
            QVERIFY2(box["event"] == "msgbox" && box["style"] == 16 && box["title"] == "Contarello" &&
                         box["text"].toString().contains(pdf) && box["text"].toString().contains(why),
                     qPrintable(box["text"].toString()));
        QCOMPARE(h.form() + h.text("txtCD") + h.text("TextCor"), "formStampa" + edited + correzione);
        QVERIFY(QFileInfo(dir.filePath("cartella")).isDir()); // not replaced by a file
        const bool written = !pdf.isEmpty() && why.isEmpty();
        QCOMPARE(QDir(dir.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 (written ? QStringList{"cartella", "scheda.pdf"} : QStringList{"cartella"}));
        if (!written) return;
        QCOMPARE(info(pdf), QStringLiteral("Contarello - scheda 9|2"));
        for (int p = 0; p < 2; ++p) {
            const QStringList expected = words(stampe[p]["text"].toString()), actual = page(pdf, p + 1);
            QVERIFY(expected.size() > 10 && actual.size() == expected.size()); // five rows of two lines
            for (int i = 0; i < actual.size(); ++i)
                QVERIFY2(option < 2 ? actual[i] == expected[i] : expected[i].startsWith(actual[i]),
                         qPrintable(actual[i]));
        }
    }

    // A drawn worksheet is printed and saved as it shows, a hand edit included, under one name; shown
    // again it is the same page, or a new one if drawn on each showing; "Esci" unloads it.
    void drawnSheets_data() {
        QTest::addColumn<QString>("exercise");
        QTest::addColumn<QString>("sheet");
        QTest::addColumn<bool>("kept");
        for (const char* row :
             {"Form999x formStampa1 kept", "Form999y formStampa4 new", "Form99a formSt99a kept",
              "Form99b formSt99b kept", "Form100Trova formStampa2 new", "Form100Ricon formStampa3 new"}) {
            const QStringList p = QString(row).split(u' ');
            QTest::newRow(qPrintable(p[1])) << p[0] << p[1] << (p[2] == "kept");
        }
    }
    void drawnSheets() {
        QFETCH(QString, exercise);
        QFETCH(QString, sheet);
        QFETCH(bool, kept);
        QTemporaryDir dir;
        const QString pdf = dir.filePath(QStringLiteral("disegno.pdf"));
        const QString name = QStringLiteral("Contarello - scheda ") + sheet;
        Harness h;
        h.run(QStringLiteral(R"({"show": "%1"})").arg(exercise));
        h.run(R"({"menu": "mnuStampa"})");
        act(h, {{"settext", "Text1(0)"}, {"text", "scritto a mano"}});
        act(h, {{"savefile", QJsonArray{pdf}}});
        h.script(R"({"menu": "mnuPdf"}
                    {"menu": "mnustampa"})");
        QCOMPARE(info(pdf), name + "|1");
        const QString text = page(pdf, 1).join(u' ');
        QVERIFY2(text.contains(h.text("Text2").simplified()) && text.contains("scritto a mano"),
                 qPrintable(text));
        const QJsonValue printed = h.events("printform").at(0);
        QCOMPARE(printed["name"].toString() + '|' + printed["form"].toString(), name + '|' + sheet);
        const QJsonValue shown = h.dump()["controls"];
        QCOMPARE(shown["Text1(0)"]["text"].toString(), QStringLiteral("scritto a mano"));
        h.run(QStringLiteral(R"({"activate": "%1"})").arg(exercise));
        h.run(R"({"menu": "mnuStampa"})");
        QCOMPARE(h.form(), sheet);
        QCOMPARE(h.dump()["controls"] == shown, kept);
        h.run(R"({"menu": "mnuesci"})");
        QCOMPARE(h.form(), exercise);
        QVERIFY(!h.dump()["loaded"].toArray().contains(sheet));
    }
};

QTEST_MAIN(PdfTest)
#include "pdf.moc"
