// How quick the screens are, offscreen: the first screen against a bare Qt window, the way from the
// main menu to the first question of "più 1", and one question answered and the next one drawn.
// Run: QT_QPA_PLATFORM=offscreen build/contarello-bench

#include "driver/engine.h"
#include "shell/form.h"
#include "shell/qtservices.h"
#include "worksheets/generators/generators.h"

#include <QApplication>
#include <QJsonDocument>
#include <QProcess>
#include <benchmark/benchmark.h>

using namespace contarello;

namespace {

QJsonObject cmd(const char* json) {
    return QJsonDocument::fromJson(json).object();
}

void settle() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// Whole processes, from launch to the first window painted: a bare Qt window against the program's
// start screen. The program quits there when CONTARELLO_EXIT_AFTER_FIRST_PAINT is "paint".
void runToFirstPaint(benchmark::State& state, const QString& program) {
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("CONTARELLO_EXIT_AFTER_FIRST_PAINT"), QStringLiteral("paint"));
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    const QString path = QCoreApplication::applicationDirPath() + u'/' + program;
    for (auto _ : state) {
        QProcess p;
        p.setProcessEnvironment(env);
        p.start(path, {});
        if (!p.waitForFinished(10000) || p.exitCode() != 0) state.SkipWithError("the program did not finish");
    }
}
void BM_ProcessBareQtWindow(benchmark::State& state) {
    runToFirstPaint(state, QStringLiteral("contarello-bare-window"));
}
void BM_ProcessToFormAvvio(benchmark::State& state) {
    runToFirstPaint(state, QStringLiteral("contarello"));
}
BENCHMARK(BM_ProcessBareQtWindow)->Unit(benchmark::kMillisecond)->Iterations(20);
BENCHMARK(BM_ProcessToFormAvvio)->Unit(benchmark::kMillisecond)->Iterations(20);

// A window the size of an exercise screen, shown and painted once.
void BM_BareQtWindow(benchmark::State& state) {
    for (auto _ : state) {
        QWidget w(nullptr, Qt::Window | Qt::FramelessWindowHint);
        w.setFixedSize(633, 434);
        w.show();
        w.repaint();
        settle();
    }
}
BENCHMARK(BM_BareQtWindow)->Unit(benchmark::kMicrosecond);

// Main: the random sequence seeded, the settings, the start screen made, shown and painted.
void BM_StartToFormAvvio(benchmark::State& state) {
    for (auto _ : state) {
        auto engine = std::make_unique<DriverEngine>();
        Main(engine->program());
        engine->program().nav.active()->repaint();
        settle();
        state.PauseTiming();
        engine.reset();
        settle();
        state.ResumeTiming();
    }
}

void BM_MenuToFirstQuestion(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        auto engine = std::make_unique<DriverEngine>();
        engine->execute(cmd(R"({"click": "BottoneAvvio"})"));
        state.ResumeTiming();
        engine->execute(cmd(R"({"click": "Command3"})"));
        engine->execute(cmd(R"({"click": "Command37"})"));
        engine->program().nav.active()->repaint();
        state.PauseTiming();
        engine.reset();
        settle();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_MenuToFirstQuestion)->Unit(benchmark::kMicrosecond);

void BM_AnsweredQuestion(benchmark::State& state) {
    DriverEngine engine;
    engine.execute(cmd(R"({"click": "BottoneAvvio"})"));
    engine.execute(cmd(R"({"click": "Command3"})"));
    engine.execute(cmd(R"({"click": "Command37"})"));
    Form* form1 = engine.program().nav.active();
    for (auto _ : state) {
        const QString answer = QString::number(engine.program().g.NumeroEsatto);
        engine.execute({{"settext", "Text1"}, {"text", answer}});
        engine.execute(cmd(R"({"key": "Text1", "code": 13})"));
        engine.execute(cmd(R"({"click": "BottoneAvanti"})"));
        form1->repaint();
        state.PauseTiming();
        engine.execute(cmd(R"({"dump": true})")); // drops the events kept for the driver
        state.ResumeTiming();
    }
}
BENCHMARK(BM_AnsweredQuestion)->Unit(benchmark::kMicrosecond);

// One tick named and the next one marked; the fifth answer of a line draws a new line at once.
void BM_AnsweredTick(benchmark::State& state) {
    DriverEngine engine;
    engine.execute(cmd(R"({"click": "BottoneAvvio"})"));
    engine.execute(cmd(R"j({"click": "Option1(0)"})j"));
    engine.execute(cmd(R"({"click": "Command2"})"));
    engine.execute(cmd(R"({"click": "Command12"})"));
    Form* linea = engine.program().nav.active();
    for (auto _ : state) {
        const QJsonObject f = linea->fields();
        const int numero = f.value("NumeroIniziale").toInt() + f.value("TaccaScelta").toInt();
        engine.execute({{"settext", "Text1"}, {"text", QString::number(numero)}});
        engine.execute(cmd(R"({"key": "Text1", "code": 13})"));
        linea->repaint();
        state.PauseTiming();
        engine.execute(cmd(R"({"dump": true})"));
        state.ResumeTiming();
    }
}
BENCHMARK(BM_AnsweredTick)->Unit(benchmark::kMicrosecond);

// A right click on the table, "avanti", and the next question painted.
void BM_TableAnswered(benchmark::State& state) {
    DriverEngine engine;
    engine.execute(cmd(R"({"click": "BottoneAvvio"})"));
    engine.execute(cmd(R"({"click": "Command2"})"));
    engine.execute(cmd(R"({"click": "Command30"})"));
    Form* form = engine.program().nav.active();
    for (auto _ : state) {
        const QString cella = QStringLiteral("Numero(%1)").arg(engine.program().g.Meta);
        engine.execute({{"click", cella}});
        engine.execute(cmd(R"({"click": "BottoneAvanti"})"));
        form->repaint();
        state.PauseTiming();
        engine.execute(cmd(R"({"dump": true})"));
        state.ResumeTiming();
    }
}
BENCHMARK(BM_TableAnswered)->Unit(benchmark::kMicrosecond);

// The largest worksheet of each kind, 25 rows of 6 exercises, built with its correction and both
// broken into lines for the printer.
void BM_LargestSheet(benchmark::State& state) {
    const int numero = int(state.range(0));
    Modulo1 g;
    g.NumeroMassimo = 99;
    ScriptedRandom rnd(nullptr, 7);
    const SchedaInput in{25, 6, QStringLiteral("8"),
                         QStringLiteral("Ordina i numeri dal minore al maggiore ")};
    for (auto _ : state) {
        const Scheda s = FaiScheda(numero, in, g, rnd);
        benchmark::DoNotOptimize(AndaACapo(s.txtCD, 100));
        benchmark::DoNotOptimize(AndaACapo(s.TextCor, 90));
    }
}
BENCHMARK(BM_LargestSheet)->DenseRange(1, 24)->Unit(benchmark::kMicrosecond);

} // namespace

// Every graphic exercise: opened from its menu and painted, then its buttons and material clicked in
// turn, each click answered and painted.
std::unique_ptr<DriverEngine> OnGraphicMenu() {
    auto engine = std::make_unique<DriverEngine>();
    engine->execute(cmd(R"({"click": "BottoneAvvio"})"));
    engine->execute(cmd(R"({"click": "Command2"})"));
    return engine;
}

void BM_OpenGraphic(benchmark::State& state, QString button) {
    for (auto _ : state) {
        state.PauseTiming();
        auto engine = OnGraphicMenu();
        state.ResumeTiming();
        engine->execute({{"click", button}});
        engine->program().nav.active()->repaint();
        state.PauseTiming();
        engine.reset();
        settle();
        state.ResumeTiming();
    }
}

void BM_ClickGraphic(benchmark::State& state, QString button) {
    auto engine = OnGraphicMenu();
    engine->execute({{"click", button}});
    const QString screen = engine->program().nav.active()->name();
    QStringList targets;
    const QJsonObject controls = engine->execute(cmd(R"({"dump": true})")).value("controls").toObject();
    for (auto it = controls.begin(); it != controls.end(); ++it) {
        const QString kind = it.value().toObject().value("kind").toString();
        if ((kind == "button" || kind == "shape" || kind == "label") &&
            it.value().toObject().value("visible").toBool())
            targets << it.key();
    }
    qsizetype next = 0;
    for (auto _ : state) {
        if (targets.isEmpty()) break;
        engine->execute({{"click", targets[next++ % targets.size()]}});
        engine->program().nav.active()->repaint();
        state.PauseTiming();
        if (engine->program().nav.active()->name() != screen) { // a message box or a worksheet took over
            engine = OnGraphicMenu();
            engine->execute({{"click", button}});
        }
        state.ResumeTiming();
    }
}

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    PrepareToolkit(app);
    InstallItalianTexts(app);
    benchmark::RegisterBenchmark("BM_StartToFormAvvio", BM_StartToFormAvvio)->Unit(benchmark::kMicrosecond);
    {
        auto engine = OnGraphicMenu();
        const QJsonObject controls = engine->execute(cmd(R"({"dump": true})")).value("controls").toObject();
        for (const QString& b : controls.keys()) {
            if (!b.startsWith("Command") || b == "Command1") continue;
            auto probe = OnGraphicMenu();
            probe->execute({{"click", b}});
            const std::string screen = probe->program().nav.active()->name().toStdString();
            benchmark::RegisterBenchmark(("BM_OpenGraphic/" + screen).c_str(), BM_OpenGraphic, b)
                ->Unit(benchmark::kMicrosecond);
            benchmark::RegisterBenchmark(("BM_ClickGraphic/" + screen).c_str(), BM_ClickGraphic, b)
                ->Unit(benchmark::kMicrosecond);
        }
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
