// The driver as others use it: each script in tests/scripts goes through the real driver program,
// line by line. A line {"expect": {...}} checks the answer to the command before it; what it names
// must be there with that value, what it leaves out may be anything.

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>

namespace {

// Whether every part of expected stands in actual; arrays must match element by element.
QString mismatch(const QJsonValue& expected, const QJsonValue& actual, const QString& path) {
    if (expected.isObject()) {
        if (!actual.isObject()) return path + " is not an object";
        const QJsonObject e = expected.toObject(), a = actual.toObject();
        for (auto it = e.begin(); it != e.end(); ++it) {
            if (!a.contains(it.key())) return path + "." + it.key() + " is missing";
            const QString m = mismatch(it.value(), a.value(it.key()), path + "." + it.key());
            if (!m.isEmpty()) return m;
        }
        return {};
    }
    if (expected.isArray()) {
        const QJsonArray e = expected.toArray(), a = actual.toArray();
        if (!actual.isArray() || e.size() != a.size()) return path + " has another length";
        for (int i = 0; i < e.size(); ++i) {
            const QString m = mismatch(e[i], a[i], path + "[" + QString::number(i) + "]");
            if (!m.isEmpty()) return m;
        }
        return {};
    }
    if (expected != actual)
        return path + ": expected " + QJsonDocument(QJsonArray{expected}).toJson(QJsonDocument::Compact) +
               " got " + QJsonDocument(QJsonArray{actual}).toJson(QJsonDocument::Compact);
    return {};
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
            if (o.contains(QStringLiteral("expect")))
                expectations.append({int(commands.size()) - 1, o.value(QStringLiteral("expect")).toObject()});
            else
                commands.append(line);
        }
        QProcess driver;
        driver.start(QCoreApplication::applicationDirPath() + QStringLiteral("/contarello-driver"), {});
        QVERIFY(driver.waitForStarted());
        for (const QByteArray& c : commands)
            driver.write(c + '\n');
        driver.closeWriteChannel();
        QVERIFY(driver.waitForFinished(60000));
        QCOMPARE(driver.exitCode(), 0);
        const QList<QByteArray> answers = driver.readAllStandardOutput().trimmed().split('\n');
        QCOMPARE(answers.size(), commands.size()); // one answer a line, in order
        for (const auto& [index, expected] : expectations) {
            QVERIFY(index >= 0);
            const QString m = mismatch(expected, QJsonDocument::fromJson(answers[index]).object(),
                                       QStringLiteral("answer"));
            if (!m.isEmpty())
                QFAIL(qPrintable(QStringLiteral("after ") + QString::fromUtf8(commands[index]) + ": " + m));
        }
    }
};

QTEST_MAIN(ScriptsTest)
#include "scripts.moc"
