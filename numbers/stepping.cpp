#include "numbers/stepping.h"
#include "shell/lang.h"
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

// Tens from 10 to 90. Under a low limit the tens must stay where the question still has a result
// from 0 up, and no more than the limit: so only the tens that fit are drawn, still with one draw.
// "fino" is the highest step that fits; from 90 up all nine tens come. Form10ma draws its result
// below N - 1 - x, so there a ten fits only up to N - 1: at the limit 90 the ten 90 would leave a
// question with no answer.
int Decine(Random& rnd, int fino) {
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

const StepMember* FindStepMember(const QString& form) {
    for (const StepMember& m : kMembers)
        if (form == QLatin1String(m.form)) return &m;
    return nullptr;
}

StepForm::StepForm(Program& program, const StepMember& member)
    : QuestionForm(program, QLatin1String(member.form), Variante::A, member.numeroScheda), member_(member) {}

void StepForm::NuovaDomanda() {
    const Domanda d = member_.draw(app.rnd, g.NumeroMassimo);
    g.NumeroEsatto = int16_t(d.esatto);
    CaricaColori();
    ScriviDomanda(d.caption);
}

template <int I> std::unique_ptr<Form> MakeStepForm(Program& app) {
    return std::make_unique<StepForm>(app, kMembers[I]);
}
template std::unique_ptr<Form> MakeStepForm<0>(Program&);
template std::unique_ptr<Form> MakeStepForm<1>(Program&);
template std::unique_ptr<Form> MakeStepForm<2>(Program&);
template std::unique_ptr<Form> MakeStepForm<3>(Program&);
template std::unique_ptr<Form> MakeStepForm<4>(Program&);
template std::unique_ptr<Form> MakeStepForm<5>(Program&);
template std::unique_ptr<Form> MakeStepForm<6>(Program&);
template std::unique_ptr<Form> MakeStepForm<7>(Program&);
template std::unique_ptr<Form> MakeStepForm<8>(Program&);
template std::unique_ptr<Form> MakeStepForm<9>(Program&);
template std::unique_ptr<Form> MakeStepForm<10>(Program&);
template std::unique_ptr<Form> MakeStepForm<11>(Program&);

} // namespace contarello
