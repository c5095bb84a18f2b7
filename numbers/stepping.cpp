#include "numbers/stepping.h"
#include "core/lang.h"
#include "shell/program.h"

#include <algorithm>
#include <array>

namespace contarello {

namespace {

Domanda piu(int esatto, int passo) {
    return {esatto, Str(esatto - passo) + QStringLiteral(" + ") + Str(passo) + QStringLiteral(" = ")};
}
Domanda meno(int esatto, int passo) {
    return {esatto, Str(esatto + passo) + QStringLiteral(" - ") + Str(passo) + QStringLiteral(" = ")};
}

// Tens from 10 to 90, drawn as the other screens draw them. Under a low limit a ten can pass
// "fino", the highest step that still leaves a question with a result from 0 up: that ten is drawn
// again, a few times at most, and then only the tens that fit are drawn, so the question always
// has an answer and never waits on luck. From 90 up (91 on Form10ma, whose result stays below
// N - 1 - x) every ten fits at the first draw.
constexpr int kRedrawsOfTens = 3;
int Decine(Random& rnd, int fino) {
    for (int i = 0; i < kRedrawsOfTens; ++i) {
        const int x = (Draw(rnd, 9) + 1) * 10;
        if (x <= fino) return x;
    }
    return (Draw(rnd, std::clamp(fino / 10, 1, 9)) + 1) * 10;
}

Domanda Form1(Random& r, int n) {
    const int e = Draw(r, n, 1);
    return {e, Str(e - 1) + QStringLiteral(" + 1 = ")};
}
Domanda Form10(Random& r, int n) {
    const int e = Draw(r, n - 10, 10);
    return {e, Str(e - 10) + QStringLiteral(" + 10 = ")};
}
Domanda Form100(Random& r, int n) {
    return Draw(r, 2, 1) == 1 ? Form1(r, n) : Form10(r, n);
}
Domanda Form1a(Random& r, int n) {
    const int e = Draw(r, n - 11, 10);
    return piu(e, Draw(r, 10));
}
Domanda Form10a(Random& r, int n) {
    const int x = Decine(r, n);
    return piu(int(Int((n - x) * r.Rnd())) + x, x);
}
Domanda Form100bis(Random& r, int n) {
    if (Draw(r, 2, 1) == 1) {
        const int e = Draw(r, n - 10, 10);
        return piu(e, Draw(r, 10));
    }
    return Form10a(r, n);
}
Domanda Form1ma(Random& r, int n) {
    const int e = Draw(r, n - 1, 1);
    return {e, Str(e + 1) + QStringLiteral(" - 1 = ")};
}
Domanda Form10m(Random& r, int n) {
    return meno(Draw(r, n - 11, 10), 10);
}
Domanda Form100m(Random& r, int n) {
    if (Draw(r, 2, 1) == 1) {
        const int e = Draw(r, n - 3, 1);
        return {e, Str(e + 1) + QStringLiteral(" - 1 = ")};
    }
    const int e = Draw(r, n - 12, 10);
    return {e, Str(e + 10) + QStringLiteral(" - 10 = ")};
}
Domanda Form1m(Random& r, int n) {
    const int e = Draw(r, n - 11, 10);
    return meno(e, Draw(r, 10));
}
Domanda Form10ma(Random& r, int n) {
    const int x = Decine(r, n - 1);
    return meno(int(Int((n - 1 - x) * r.Rnd())), x);
}
Domanda Form100ma(Random& r, int n) {
    const int x = Draw(r, 2, 1) == 1 ? Draw(r, 9, 1) : Decine(r, n);
    return meno(int(Int((n - x) * r.Rnd())) + 1, x);
}

constexpr std::array<StepMember, 12> kMembers = {{
    {"Form1", 9, Form1},
    {"Form10", 10, Form10},
    {"Form100", 11, Form100},
    {"Form1a", 19, Form1a},
    {"Form10a", 20, Form10a},
    {"Form100bis", 23, Form100bis},
    {"Form1ma", 14, Form1ma},
    {"Form10m", 12, Form10m},
    {"Form100m", 13, Form100m},
    {"Form1m", 21, Form1m},
    {"Form10ma", 22, Form10ma},
    {"Form100ma", 24, Form100ma},
}};

} // namespace

FormList StepForms() {
    return Members<StepForm>(kMembers);
}

StepForm::StepForm(Program& program, const StepMember& member)
    : QuestionForm(program, Variante::A, member.numeroScheda), member_(member) {}

void StepForm::NuovaDomanda() {
    const Domanda d = member_.draw(app.rnd, g.NumeroMassimo);
    g.NumeroEsatto = int16_t(d.esatto);
    CaricaColori();
    ScriviDomanda(d.caption);
}

} // namespace contarello
