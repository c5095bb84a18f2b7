#include "support/harness.h"

#include <QJsonDocument>
#include <QTest>

namespace contarello::test {

Harness::Harness() : engine(QStringLiteral("/app")) {}

QJsonObject Harness::run(const QString& json) {
    const QJsonDocument doc = QJsonDocument::fromJson(json.toUtf8());
    if (!doc.isObject()) {
        QTest::qFail(qPrintable(QStringLiteral("not a command: ") + json), __FILE__, __LINE__);
        return {};
    }
    const QJsonObject answer = engine.execute(doc.object());
    if (!answer.value(QStringLiteral("ok")).toBool())
        QTest::qFail(
            qPrintable(json + QStringLiteral(" -> ") + answer.value(QStringLiteral("error")).toString()),
            __FILE__, __LINE__);
    if (answer.contains(QStringLiteral("events")))
        for (const QJsonValue& e : answer.value(QStringLiteral("events")).toArray())
            pending_.append(e);
    return answer;
}

void Harness::script(const QString& lines) {
    for (const QString& line : lines.split(u'\n', Qt::SkipEmptyParts))
        if (!line.trimmed().isEmpty()) run(line.trimmed());
}

void Harness::rnd(std::initializer_list<double> values) {
    QJsonArray a;
    for (double v : values)
        a.append(v);
    engine.execute({{"rnd", a}});
}

QJsonObject Harness::dump() {
    last_ = run(QStringLiteral(R"({"dump": true})"));
    return last_;
}

QJsonObject Harness::control(const QString& name) {
    const QJsonObject c = dump().value(QStringLiteral("controls")).toObject().value(name).toObject();
    if (c.isEmpty()) QTest::qFail(qPrintable(QStringLiteral("no control ") + name), __FILE__, __LINE__);
    return c;
}

QString Harness::caption(const QString& name) {
    return control(name).value(QStringLiteral("caption")).toString();
}
QString Harness::text(const QString& name) {
    return control(name).value(QStringLiteral("text")).toString();
}
bool Harness::visible(const QString& name) {
    return control(name).value(QStringLiteral("visible")).toBool();
}
bool Harness::enabled(const QString& name) {
    return control(name).value(QStringLiteral("enabled")).toBool();
}

int Harness::global(const QString& name) {
    return dump().value(QStringLiteral("globals")).toObject().value(name).toInt(-99999);
}

QString Harness::form() {
    return dump().value(QStringLiteral("form")).toString();
}

QJsonArray Harness::events(const QString& kind) {
    dump();
    QJsonArray out;
    for (const QJsonValue& e : std::exchange(pending_, {}))
        if (kind.isEmpty() || e.toObject().value(QStringLiteral("event")).toString() == kind) out.append(e);
    return out;
}

QStringList Harness::sounds() {
    QStringList out;
    for (const QJsonValue& e : events(QStringLiteral("sound")))
        out << e.toObject().value(QStringLiteral("file")).toString();
    return out;
}

void Harness::openFromMenu(const QString& menuButton, const QString& exerciseButton) {
    run(QStringLiteral(R"({"click": "BottoneAvvio"})"));
    run(QStringLiteral(R"({"click": "%1"})").arg(menuButton));
    run(QStringLiteral(R"({"click": "%1"})").arg(exerciseButton));
}

void Harness::setLimit(int n) {
    run(QString::fromUtf8(QJsonDocument(QJsonObject{{"inputbox", QJsonArray{QString::number(n)}}}).toJson()));
    run(QStringLiteral(R"J({"show": "FormMenu"})J"));
    run(QStringLiteral(R"J({"click": "Command4"})J"));
}

void Harness::answer(const QString& box, const QString& text) {
    run(QString::fromUtf8(QJsonDocument(QJsonObject{{"settext", box}, {"text", text}}).toJson()));
    run(QStringLiteral(R"J({"key": "%1", "code": 13})J").arg(box));
}

} // namespace contarello::test
