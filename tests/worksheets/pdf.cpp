// "Salva PDF" on the worksheet screen: the file holds the sheet and then its correction as text,
// broken into the very lines the printer gets; Cancel writes nothing; a file that can't be written
// is told in a box and costs nothing. The pages are read back with poppler's tools.

#include "shell/printout.h"
#include "support/harness.h"

#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QLabel>
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
    if (!p.waitForFinished(30000) || p.exitCode() != 0)
        qWarning("%s failed: %s", qPrintable(program), p.readAllStandardError().constData());
    return QString::fromUtf8(p.readAllStandardOutput());
}

// The lines of a text as they read on paper: a proportional font keeps no run of blanks, so runs
// collapse to one; empty lines leave no trace in the PDF's text.
QStringList words(const QString& text) {
    QStringList lines;
    for (const QString& line : text.split(QRegularExpression(QStringLiteral("[\r\n]+")))) {
        const QString s = line.simplified();
        if (!s.isEmpty()) lines << s;
    }
    return lines;
}

QString page(const QString& pdf, int n) {
    const QString p = QString::number(n);
    return tool(QStringLiteral("pdftotext"), {"-raw", "-nopgbrk", "-f", p, "-l", p, pdf, "-"});
}

QString info(const QString& pdf, const QString& field) {
    const QRegularExpression re(u'^' + field + QStringLiteral(":\\s*(.*)$"),
                                QRegularExpression::MultilineOption);
    return re.match(tool(QStringLiteral("pdfinfo"), {pdf})).captured(1).trimmed();
}

// The sheet of "più 1" on screen, in six columns so that its rows are broken for print.
void openWideSheet(Harness& h, int size) {
    h.rnd({11.5 / 99, 0.0});
    h.run(R"({"show": "Form1"})");
    h.run(R"({"menu": "mnuStampa"})");
    act(h, {{"click", "OptionColonne(5)"}});
    act(h, {{"click", QStringLiteral("OptionCarattere(%1)").arg(size)}});
    h.events();
}

} // namespace

class PdfTest : public QObject {
    Q_OBJECT
private slots:
    // Page 1 the sheet, page 2 the correction, line for line as the two print buttons send them,
    // in real text. In a large font a line wider than the paper runs off its edge, as on the
    // printer: it is cut, never broken again.
    void theSheetThenItsCorrection_data() {
        QTest::addColumn<int>("size");
        QTest::addColumn<bool>("fits");
        QTest::newRow("piccolo") << 0 << true;
        QTest::newRow("grande") << 2 << false;
    }
    void theSheetThenItsCorrection() {
        QFETCH(int, size);
        QFETCH(bool, fits);
        QTemporaryDir dir;
        const QString pdf = dir.filePath(QStringLiteral("scheda.pdf"));
        Harness h;
        openWideSheet(h, size);
        h.run(R"({"click": "btnCD"})");
        h.run(R"({"click": "Command1"})");
        const QJsonArray printed = h.events("print");
        QCOMPARE(printed.size(), 2);
        act(h, {{"savefile", QJsonArray{pdf}}});
        h.run(R"({"click": "btnPDF"})");

        const QJsonArray asked = h.events(); // the dialog, and no message box
        QCOMPARE(asked.size(), 1);
        QCOMPARE(asked[0]["event"].toString() + '|' + asked[0]["title"].toString() + '|' +
                     asked[0]["default"].toString(),
                 "savefile|Salva PDF|Contarello - scheda 9 - " + QDate::currentDate().toString(Qt::ISODate) +
                     ".pdf");
        QCOMPARE(info(pdf, "Pages"), QStringLiteral("2"));
        QCOMPARE(info(pdf, "Title"), QStringLiteral("Contarello - scheda 9"));
        for (int p = 0; p < 2; ++p) {
            const QStringList expected = words(printed[p].toObject().value("text").toString());
            const QStringList actual = words(page(pdf, p + 1));
            QVERIFY(expected.size() > 10); // five rows of two printed lines each, and the heading
            if (fits) {
                QCOMPARE(actual, expected);
            } else {
                QCOMPARE(actual.size(), expected.size());
                for (int i = 0; i < actual.size(); ++i)
                    QVERIFY2(expected[i].startsWith(actual[i]), qPrintable(actual[i] + " / " + expected[i]));
            }
        }
        // Text in an embedded font, and no picture anywhere.
        QVERIFY(tool(QStringLiteral("pdffonts"), {pdf}).split(u'\n', Qt::SkipEmptyParts).size() > 2);
        QCOMPARE(tool(QStringLiteral("pdfimages"), {"-list", pdf}).split(u'\n', Qt::SkipEmptyParts).size(),
                 2);
    }

    // Cancel writes nothing; a path that can't take the file gets a box naming it, and the sheet,
    // the correction and whatever stood at that path are as before.
    void cancelAndFailures_data() {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("why");
        QTest::newRow("Cancel") << QString() << QString();
        QTest::newRow("no such folder")
            << QStringLiteral("manca/scheda.pdf") << QStringLiteral("La cartella non esiste");
        QTest::newRow("a folder by that name")
            << QStringLiteral("cartella") << QStringLiteral("c'è già una cartella");
    }
    void cancelAndFailures() {
        QFETCH(QString, path);
        QFETCH(QString, why);
        QTemporaryDir dir;
        QDir(dir.path()).mkdir(QStringLiteral("cartella"));
        const QString full = path.isEmpty() ? QString() : dir.filePath(path);
        Harness h;
        openWideSheet(h, 1);
        const QString prima = h.text("txtCD") + h.text("TextCor");
        act(h, {{"savefile", QJsonArray{full}}});
        h.run(R"({"click": "btnPDF"})");
        const QJsonArray boxes = h.events("msgbox");
        QCOMPARE(boxes.size(), why.isEmpty() ? 0 : 1);
        for (const QJsonValue& b : boxes) {
            const QString text = b["text"].toString();
            QCOMPARE(b["style"].toInt(), 16);
            QCOMPARE(b["title"].toString(), "Contarello");
            QVERIFY2(text.contains(full) && text.contains(why), qPrintable(text));
        }
        QCOMPARE(QDir(dir.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 QStringList{"cartella"});
        QVERIFY(QFileInfo(dir.filePath("cartella")).isDir()); // not replaced by a file
        QCOMPARE(h.text("txtCD") + h.text("TextCor"), prima);
        QCOMPARE(h.form(), QStringLiteral("formStampa"));
    }

    // The drawn worksheets save the picture of their page, its texts still text, under the name their
    // print job takes too.
    void drawnSheetsKeepTheirTextsAsText_data() {
        QTest::addColumn<QString>("exercise");
        QTest::addColumn<QString>("sheet");
        for (const auto& [exercise, sheet] : {std::pair{"Form999x", "formStampa1"},
                                              {"Form999y", "formStampa4"},
                                              {"Form99a", "formSt99a"},
                                              {"Form99b", "formSt99b"},
                                              {"Form100Trova", "formStampa2"},
                                              {"Form100Ricon", "formStampa3"}})
            QTest::newRow(sheet) << QString(exercise) << QString(sheet);
    }
    void drawnSheetsKeepTheirTextsAsText() {
        QFETCH(QString, exercise);
        QFETCH(QString, sheet);
        QTemporaryDir dir;
        const QString pdf = dir.filePath(QStringLiteral("disegno.pdf"));
        Harness h;
        h.run(QStringLiteral(R"({"show": "%1"})").arg(exercise));
        h.run(R"({"menu": "mnuStampa"})");
        QCOMPARE(h.form(), sheet);
        const QString heading = h.text("Text2").simplified();
        act(h, {{"savefile", QJsonArray{pdf}}});
        h.run(R"({"menu": "mnuPdf"})");
        h.run(R"({"menu": "mnustampa"})");
        const QString name = QStringLiteral("Contarello - scheda ") + sheet;
        QCOMPARE(info(pdf, "Title"), name);
        QCOMPARE(info(pdf, "Pages"), QStringLiteral("1"));
        QVERIFY2(words(page(pdf, 1)).join(u' ').contains(heading), qPrintable(heading));
        QCOMPARE(h.events("printform").at(0).toObject().value("name").toString(), name);
    }
};

QTEST_MAIN(PdfTest)
#include "pdf.moc"
