#include "numbers/expressions.h"
#include "core/lang.h"
#include "shell/program.h"

namespace contarello {

QString Espressione(int numero) {
    const int d = int(Int(numero / 10.0));
    const int u = numero - 10 * d;
    // Each factor comes through Str, so it keeps its blank: two blanks stand after each x.
    QString s;
    if (d > 0) {
        s += QStringLiteral("(10 x ") + Str(d) + QStringLiteral(")");
        if (u >= 1) s += QStringLiteral(" + ");
    }
    if (u > 0) s += QStringLiteral("(1 x ") + Str(u) + QStringLiteral(")");
    return s + QStringLiteral(" = ");
}

namespace {
QuestionLook EspLook() {
    QuestionLook look;
    look.testo = Arial(36);
    return look;
}
} // namespace

Formesp::Formesp(Program& program) : QuestionForm(program, Variante::A, 8, EspLook()) {
    Consegna(QStringLiteral("Scrivi il numero in cifre"));
}

// Here the colour comes first and the number after it.
void Formesp::NuovaDomanda() {
    CaricaColori();
    g.NumeroEsatto = int16_t(Draw(app.rnd, g.NumeroMassimo, 1));
    ScriviDomanda(Espressione(g.NumeroEsatto));
}

FormList ExpressionForms() {
    return {Screen<Formesp>("Formesp")};
}

} // namespace contarello
