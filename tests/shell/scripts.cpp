// Each script in tests/scripts through the real driver program, line by line. A line
// {"expect": {...}} checks the answer to the command before it: what it names must be there with
// that value, what it leaves out may be anything; arrays match element by element.

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>

namespace {

QString mismatch(const QJsonValue& expected, const QJsonValue& actual, const QString& path) {
    if (expected.isObject() || expected.isArray()) {
        const bool array = expected.isArray();
        if (actual.type() != expected.type() ||
            (array && actual.toArray().size() != expected.toArray().size()))
            return path + " has another kind or length";
        const QStringList keys = array ? QStringList() : expected.toObject().keys();
        for (qsizetype i = 0; i < (array ? expected.toArray().size() : keys.size()); ++i) {
            const QString m = array ? mismatch(expected[i], actual[i], path + '[' + QString::number(i) + ']')
                                    : mismatch(expected[keys[i]], actual[keys[i]], path + '.' + keys[i]);
            if (!m.isEmpty()) return m;
        }
        return {};
    }
    const auto json = [](const QJsonValue& v) {
        return QJsonDocument(QJsonArray{v}).toJson(QJsonDocument::Compact);
    };
    return expected == actual ? QString() : path + ": expected " + json(expected) + " got " + json(actual);
}

} // namespace

class ScriptsTest : public QObject {
    Q_OBJECT
private slots:
    void script_data() {
        QTest::addColumn<QString>("file");
        const QDir dir(QStringLiteral(CONTARELLO_SOURCE_DIR "/tests/scripts"));
        for (const QString& f : dir.entryList({QStringLiteral("*.jsonl")}, QDir::Files, QDir::Name))
            QTest::newRow(qPrintable(f)) << dir.filePath(f);
    }
    void script() {
        QFETCH(QString, file);
        QFile in(file);
        QVERIFY(in.open(QIODevice::ReadOnly));
        QList<QByteArray> commands;
        QList<QPair<int, QJsonObject>> expectations; // (index of the command, what its answer holds)
        for (const QByteArray& raw : in.readAll().split('\n')) {
            const QByteArray line = raw.trimmed();
            if (line.isEmpty() || line.startsWith("//")) continue;
            const QJsonObject o = QJsonDocument::fromJson(line).object();
            if (o.contains("expect"))
                expectations.append({int(commands.size()) - 1, o.value("expect").toObject()});
            else
                commands.append(line);
        }
        QProcess driver;
        driver.start(QCoreApplication::applicationDirPath() + QStringLiteral("/contarello-driver"), {});
        QVERIFY(driver.waitForStarted());
        driver.write(commands.join('\n') + '\n');
        driver.closeWriteChannel();
        QVERIFY(driver.waitForFinished(60000));
        QCOMPARE(driver.exitCode(), 0);
        const QList<QByteArray> answers = driver.readAllStandardOutput().trimmed().split('\n');
        QCOMPARE(answers.size(), commands.size()); // one answer a line, in order
        for (const auto& [index, expected] : expectations) {
            QVERIFY(index >= 0);
            const QString m = mismatch(expected, QJsonDocument::fromJson(answers[index]).object(), "answer");
            QVERIFY2(m.isEmpty(), qPrintable("after " + QString::fromUtf8(commands[index]) + ": " + m));
        }
    }
};

QTEST_MAIN(ScriptsTest)
#include "scripts.moc"
