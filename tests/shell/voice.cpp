// The voice through the program's own screens: with it turned on from the main menu, one screen of
// every family says its first question as the child sees it; with it off, nothing is said. Cells and
// ticks that answer nothing say their number; F2 and a click on the question say it again.

#include "shell/form.h"
#include "shell/speech.h"
#include "support/harness.h"

#include <QApplication>
#include <QtTest>
#include <mutex>
#include <thread>

using namespace contarello;
using contarello::test::Harness;

namespace {

// Every draw of the run at the middle of its range, so that each screen asks a known question.
void DrawsAtHalf(Harness& h) {
    QJsonArray a;
    for (int i = 0; i < 400; ++i)
        a.append(0.5);
    h.engine.execute({{"rnd", a}});
}

// From the start screen to an exercise, the voice chosen on the way.
void Open(Harness& h, bool voce, const QString& menu, const QString& exercise) {
    DrawsAtHalf(h);
    h.run(QStringLiteral(R"({"click": "BottoneAvvio"})"));
    h.run(QStringLiteral(R"J({"click": "OpzioneVoce(%1)"})J").arg(voce ? 1 : 0));
    h.run(QStringLiteral(R"({"click": "%1"})").arg(menu));
    h.run(QStringLiteral(R"({"click": "%1"})").arg(exercise));
}

QStringList Said(Harness& h) {
    h.dump();
    QStringList said;
    for (const QJsonValue& e : h.events(QStringLiteral("speak")))
        said << e.toObject().value(QStringLiteral("text")).toString();
    return said;
}

// A voice that only writes down what it is given, from whatever thread speaks through it.
struct Heard {
    std::mutex lock;
    QStringList texts;
    QStringList all() {
        std::lock_guard l(lock);
        return texts;
    }
};
class WritingVoice : public Speech {
public:
    explicit WritingVoice(Heard& heard) : heard_(heard) {}
    void say(const QString& text) override {
        std::lock_guard l(heard_.lock);
        heard_.texts << text;
    }

private:
    Heard& heard_;
};

} // namespace

class VoiceTest : public QObject {
    Q_OBJECT
private slots:
    void firstQuestion_data() {
        QTest::addColumn<QString>("menu");
        QTest::addColumn<QString>("exercise");
        QTest::addColumn<QString>("said");
        // clang-format off
        const char* const rows[][3] = {
            {"Command3", "Command37", "quarantanove più uno"},                                    // Form1
            {"Command3", "Command11", "cinquantuno. Scrivi il numero precedente"},               // Formpri
            {"Command3", "Command8", "cinque unità. Scrivi il numero in cifre"},                 // FormSimb
            {"Command3", "Command7", "cinquanta, cinquanta"},                                     // FormMM
            {"Command3", "Command10", "dieci per cinque. Scrivi il numero in cifre"},            // Formesp
            {"Command3", "Command9",
             "Ordina i numeri dal minore al maggiore. cinquanta, cinquanta, cinquanta, cinquanta, cinquanta, "
             "cinquanta, cinquanta"},                                                  // FormOrd
            {"Command3", "Command6", "cinquanta. Scrivi il numero in cifre"},                    // FormScri
            {"Command3", "Command21",
             "ventidue più trentatré. Incolonna il primo addendo trascinando le cifre con il mouse."}, // FormCol1
            {"Command2", "Command2", "cinquanta"},                                                // Form999x
            {"Command2", "Command34", "Scrivi il numero in cifre"},                               // Form999y
            {"Command2", "Command4",
             "cinquanta. Click sinistro per inserire le palline, click destro per toglierle."},  // Form99a
            {"Command2", "Command10", "ventidue più trentatré. Forma il primo addendo"},          // FormGraf1
            {"Command2", "Command8",
             "ventidue più trentatré. inserisci il numero ventidue nell'abaco"},                  // Form99c1
            {"Command2", "Command30", "cinquantaquattro più quattro. clicca sul numero"},               // Form100a
            {"Command2", "Command7", "quale numero è rosso?"},                                   // Form100Ricon
            {"Command2", "Command12", "quaranta, cinquanta, sessanta"},                          // FormGradi20
        };
        // clang-format on
        for (const auto& [menu, exercise, said] : rows)
            QTest::newRow(said) << QString::fromLatin1(menu) << QString::fromLatin1(exercise)
                                << QString::fromUtf8(said);
    }
    void firstQuestion() {
        QFETCH(QString, menu);
        QFETCH(QString, exercise);
        QFETCH(QString, said);
        {
            Harness h;
            Open(h, true, menu, exercise);
            QCOMPARE(Said(h), QStringList{said});
        }
        Harness h;
        Open(h, false, menu, exercise);
        QCOMPARE(Said(h), QStringList());
        // Off, neither F2 nor a click on the question says anything.
        h.run(R"({"press": "F2"})");
        QCOMPARE(Said(h), QStringList());
    }

    // What is said after the first question, one action at a time.
    void afterwards_data() {
        QTest::addColumn<QString>("menu");
        QTest::addColumn<QString>("exercise");
        QTest::addColumn<QStringList>("actions");
        QTest::addColumn<QStringList>("said");
        const auto row = [](const char* name, const char* menu, const char* exercise, QStringList actions,
                            QStringList said) {
            QTest::newRow(name) << QString::fromLatin1(menu) << QString::fromLatin1(exercise) << actions
                                << said;
        };
        const QString click = QStringLiteral(R"({"click": "%1"})");
        const QString answer = QStringLiteral(R"({"settext": "Text1", "text": "%1"})");
        const QString enter = QStringLiteral(R"({"key": "Text1", "code": 13})");
        const QString bead = QStringLiteral(R"({"mousedown": "%1", "button": 1})");
        const QString f2 = QStringLiteral(R"({"press": "F2"})");
        row("F2 says the question again", "Command3", "Command37", {f2, f2},
            {"quarantanove più uno", "quarantanove più uno"});
        row("a click on the question says it again", "Command3", "Command37", {click.arg("EtichettaNumero")},
            {"quarantanove più uno"});
        // The voice never tells right from wrong: the answer added to the question is not said.
        row("a wrong answer and a right one say nothing", "Command3", "Command37",
            {answer.arg("7"), enter, answer.arg("50"), enter}, {});
        // The next question is said even when it reads as the last one did.
        row("avanti says the next question", "Command3", "Command37",
            {answer.arg("50"), enter, click.arg("BottoneAvanti")}, {"quarantanove più uno"});
        row("a cell that answers nothing says its number", "Command2", "Command7",
            {click.arg("Numero(5)"), click.arg("Numero(50)")}, {"cinque", "cinquanta"});
        row("a blank cell says nothing", "Command2", "Command7",
            {click.arg("Numero(49)"), click.arg("Numero(51)")}, {});
        row("a number on the line says itself", "Command2", "Command12", {click.arg("Label3(10)")},
            {"cinquanta"});
        // The step of the moment is said as it comes: a bead too many is no step.
        row("the next step of an abacus sum", "Command2", "Command8",
            {bead.arg("Bot_da"), bead.arg("Bot_da"), bead.arg("Bot_u"), bead.arg("Bot_u")},
            {"ventidue più trentatré. aggiungi il numero trentatré nell'abaco"});
    }
    void afterwards() {
        QFETCH(QString, menu);
        QFETCH(QString, exercise);
        QFETCH(QStringList, actions);
        QFETCH(QStringList, said);
        Harness h;
        Open(h, true, menu, exercise);
        Said(h);
        for (const QString& a : actions)
            h.run(a);
        QCOMPARE(Said(h), said);
    }

    // The real voice's thread: whatever the engine does, turning the voice on and speaking return at
    // once; a voice made late, or none, is silence for the run.
    void background_data() {
        QTest::addColumn<int>("makingMs");
        QTest::addColumn<bool>("engine");
        QTest::addColumn<bool>("heard");
        QTest::newRow("made in time") << 50 << true << true;
        QTest::newRow("no engine, or no Italian voice") << 50 << false << false;
        QTest::newRow("an engine stuck past the limit") << 600 << true << false;
    }
    void background() {
        QFETCH(int, makingMs);
        QFETCH(bool, engine);
        QFETCH(bool, heard);
        Heard voice;
        {
            BackgroundSpeech speech(
                [&]() -> Speech* {
                    std::this_thread::sleep_for(std::chrono::milliseconds(makingMs));
                    return engine ? new WritingVoice(voice) : nullptr;
                },
                300);
            QElapsedTimer t;
            t.start();
            speech.say(QStringLiteral("prima")); // before the voice is turned on: nothing
            speech.prepare();
            speech.say(QStringLiteral("uno"));
            QVERIFY(t.elapsed() < 40);
            QTRY_VERIFY_WITH_TIMEOUT(speech.ready() || speech.silent(), 2000);
            QCOMPARE(speech.ready(), heard);
            speech.say(QStringLiteral("due"));
            QTest::qWait(makingMs + 100); // the slow engine is done before the voice closes
        }
        QCOMPARE(voice.all(), heard ? QStringList({"uno", "due"}) : QStringList());
    }
};

QTEST_MAIN(VoiceTest)
#include "voice.moc"
