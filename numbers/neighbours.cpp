#include "numbers/neighbours.h"
#include "core/lang.h"
#include "shell/program.h"

#include <array>

namespace contarello {

namespace {

// The number after the blank line keeps its leading blank, so two blanks stand before it.
int PrimaDraw(Random& r, int n) {
    return int(Int(r.Rnd() * n + 1));
}
QString PrimaDomanda(int e) {
    return QStringLiteral("  ___ ") + Str(e + 1);
}
QString PrimaRiga(int e) {
    return Str(e) + QStringLiteral("  ") + Str(e + 1);
}

// The number before can be 0, so the lowest answer is 1.
int DopoDraw(Random& r, int n) {
    return Draw(r, n, 1);
}
QString DopoDomanda(int e) {
    return Str(e - 1) + QStringLiteral(" ___");
}
QString DopoRiga(int e) {
    return Str(e - 1) + QStringLiteral("  ") + QString::number(e);
}

// Both ends of the row stay below the limit: with 99 the highest row is 96, 97, 98.
int MezzoDraw(Random& r, int n) {
    return Draw(r, n - 2, 1);
}
QString MezzoDomanda(int e) {
    return Str(e - 1) + QStringLiteral(" _______") + Str(e + 1);
}
QString MezzoRiga(int e) {
    return Str(e - 1) + QStringLiteral("  ") + Str(e) + QStringLiteral("  ") + QString::number(e + 1);
}

constexpr std::array<NeighbourMember, 3> kMembers = {{
    {"Formpri", "Scrivi il numero precedente", Variante::D, 7, PrimaDraw, PrimaDomanda, PrimaRiga},
    {"Formdopo", "Scrivi il numero seguente", Variante::A, 6, DopoDraw, DopoDomanda, DopoRiga},
    {"Formmez", "Scrivi il numero in mezzo", Variante::D, 5, MezzoDraw, MezzoDomanda, MezzoRiga},
}};

QuestionLook VicinoLook() {
    QuestionLook look;
    look.numero = Arial(26.25);
    look.testo = Arial(36);
    return look;
}

} // namespace

FormList NeighbourForms() {
    return Members<NeighbourForm>(kMembers);
}

NeighbourForm::NeighbourForm(Program& program, const NeighbourMember& member)
    : QuestionForm(program, member.variante, member.numeroScheda, VicinoLook()), member_(member) {
    Consegna(QLatin1String(member.prompt));
}

void NeighbourForm::NuovaDomanda() {
    g.NumeroEsatto = int16_t(member_.draw(app.rnd, g.NumeroMassimo));
    CaricaColori();
    ScriviDomanda(member_.domanda(g.NumeroEsatto));
}

void NeighbourForm::MostraRispostaEsatta() {
    EtichettaNumero->setCaption(member_.riga(g.NumeroEsatto));
}

} // namespace contarello
