// How the program's memory holds over a long day, offscreen: screens made and unloaded, then
// questions answered, with the resident memory and the heap in use printed against the number of
// actions. Not a timing: what matters is the slope after the warm-up, which must stay near zero.
// Run: build/contarello-soak [actions per part, 50000] [warm-up screen changes, 2000]

#include "driver/engine.h"
#include "shell/fonts/fonts.h"
#include "shell/qtservices.h"
#include "support/memory.h"

#include <QApplication>
#include <cstdio>
#include <vector>

using namespace contarello;

namespace {

struct Sample {
    long actions;
    double rss, heap;
};

// Least squares over the samples, in MB per 10,000 actions.
double slope(const std::vector<Sample>& s, double Sample::*of) {
    double n = double(s.size()), sx = 0, sy = 0, sxx = 0, sxy = 0;
    for (const Sample& p : s) {
        sx += double(p.actions);
        sy += p.*of;
        sxx += double(p.actions) * double(p.actions);
        sxy += double(p.actions) * (p.*of);
    }
    const double d = n * sxx - sx * sx;
    return d == 0 ? 0 : (n * sxy - sx * sy) / d * 10000;
}

// The screens a tester cycles through: numbers only, pictures, tables and columns, one after another,
// each made anew and the one before it unloaded.
const char* const kScreens[] = {"Form1",       "Form99c",  "Form100Ricon", "FormGraf",
                                "FormGradi20", "FormCol1", "Form10"};

class Soak {
public:
    explicit Soak(long every) : every_(every) {}

    void changeScreens(long n) {
        for (long i = 0; i < n; ++i) {
            engine_.execute({{"show", QLatin1String(kScreens[shown_++ % std::size(kScreens)])}});
            if (shown_ % 20 == 0) engine_.execute({{"dump", true}});
            tick();
        }
    }

    // On "più 1": the answer typed and confirmed, right three times in four, then "avanti".
    void answer(long n) {
        engine_.execute({{"show", "Form1"}});
        for (long i = 0; i < n; ++i) {
            const int esatto = engine_.program().g.NumeroEsatto;
            const int typed = i % 4 == 3 ? esatto + 1 : esatto;
            engine_.execute({{"settext", "Text1"}, {"text", QString()}});
            engine_.execute({{"type", "Text1"}, {"text", QString::number(typed)}});
            engine_.execute({{"key", "Text1"}, {"code", 13}});
            engine_.execute({{"click", "BottoneAvanti"}});
            if (i % 20 == 19) engine_.execute({{"dump", true}}); // takes the events kept for the driver
            tick();
        }
    }

    void start(const char* part) {
        recording_ = true;
        std::printf("\n%s\n%10s %10s %10s\n", part, "actions", "RSS MB", "heap MB");
        samples_.clear();
        record();
    }

    // The part's slope, in MB per 10,000 actions.
    void finish() {
        std::printf("slope: %+.2f MB resident, %+.2f MB heap per 10,000 actions\n",
                    slope(samples_, &Sample::rss), slope(samples_, &Sample::heap));
    }

private:
    void tick() {
        ++actions_;
        if (recording_ && actions_ % every_ == 0) record();
    }
    void record() {
        samples_.push_back({actions_, test::ResidentMB(), test::HeapInUse() / (1024.0 * 1024)});
        std::printf("%10ld %10.1f %10.2f\n", actions_, samples_.back().rss, samples_.back().heap);
        std::fflush(stdout);
    }

    DriverEngine engine_{QCoreApplication::applicationDirPath()};
    std::vector<Sample> samples_;
    long every_;
    long actions_ = 0;
    bool recording_ = false;
    std::size_t shown_ = 0;
};

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    UseProgramFonts();
    QApplication app(argc, argv);
    PrepareToolkit(app);
    InstallItalianTexts(app);
    const QStringList args = QCoreApplication::arguments();
    const long n = std::max(10L, args.value(1, QStringLiteral("50000")).toLong());
    const long warmUp = std::max(0L, args.value(2, QStringLiteral("2000")).toLong());

    Soak soak(std::max(1L, n / 10));
    soak.changeScreens(warmUp);
    const double before = test::ResidentMB();
    std::printf("after %ld screen changes to warm up: %.1f MB resident, %.2f MB heap\n", warmUp, before,
                test::HeapInUse() / (1024.0 * 1024));
    soak.start("screens made and unloaded");
    soak.changeScreens(n);
    soak.finish();
    soak.start("questions answered on one screen");
    soak.answer(n);
    soak.finish();
    std::printf("\n%ld screen changes and %ld answers after the warm-up: %+.1f MB resident\n", n, n,
                test::ResidentMB() - before);
    return 0;
}
