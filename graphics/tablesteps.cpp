#include "graphics/tablesteps.h"
#include "core/lang.h"
#include "shell/program.h"

#include <algorithm>
#include <array>

namespace contarello {

namespace {

DomandaTabella somma(int t1, int t2) {
    return {int16_t(t1), int16_t(t2), int16_t(t1 + t2), int16_t(t1 + t2),
            Str(t1) + QStringLiteral(" + ") + Str(t2) + QStringLiteral(" = ")};
}
// The result of a difference is drawn as a sum: Meta less Termine2 is Termine1.
DomandaTabella differenzaDaMeta(int t1, int t2) {
    const int meta = t1 + t2;
    return {int16_t(t1), int16_t(t2), int16_t(meta), int16_t(t1),
            Str(meta) + QStringLiteral(" - ") + Str(t2) + QStringLiteral(" = ")};
}

// Never a range of nothing, whatever limit is in force.
int almeno1(int n) {
    return std::max(n, 1);
}

// Units added to a number from 10 up. Near the top of the table the units are only those that
// still reach a cell: 97 can take 0, 1 or 2, so every question has its answer among the hundred.
DomandaTabella Form100a(Random& r, int n) {
    const int t1 = Draw(r, almeno1(n - 10), 10);
    return somma(t1, Draw(r, std::min(9, 100 - t1)));
}
// Tens added: the result drawn first, then a number of whole tens no larger than it.
DomandaTabella Form100b(Random& r, int n) {
    const int meta = Draw(r, almeno1(n), 1);
    const int t2 = Draw(r, meta) / 10 * 10;
    return somma(meta - t2, t2);
}
// Any sum up to 99, whatever the limit.
DomandaTabella Form100f(Random& r, int) {
    const int meta = Draw(r, 99, 1);
    const int t1 = Draw(r, meta);
    return somma(t1, meta - t1);
}
// Units taken from a number from 10 up, which leaves 2 at least.
DomandaTabella Form100c(Random& r, int n) {
    const int t1 = Draw(r, almeno1(n - 18), 10);
    const int t2 = Draw(r, 9);
    return {int16_t(t1), int16_t(t2), int16_t(t1 - t2), int16_t(t1 - t2),
            Str(t1) + QStringLiteral(" - ") + Str(t2) + QStringLiteral(" = ")};
}
DomandaTabella Form100d(Random& r, int n) {
    const int meta = Draw(r, almeno1(n), 1);
    const int t2 = Draw(r, meta) / 10 * 10;
    return differenzaDaMeta(meta - t2, t2);
}
DomandaTabella Form100e(Random& r, int n) {
    const int meta = Draw(r, almeno1(n), 1);
    const int t1 = Draw(r, meta);
    return differenzaDaMeta(t1, meta - t1);
}

constexpr std::array<TableStepMember, 6> kMembers = {{
    {"Form100a", 19, false, true, Form100a},
    {"Form100b", 20, false, true, Form100b},
    {"Form100f", 15, false, true, Form100f},
    {"Form100c", 21, true, false, Form100c},
    {"Form100d", 22, true, false, Form100d},
    {"Form100e", 17, true, false, Form100e},
}};

} // namespace

FormList TableStepForms() {
    return Members<TableStepForm>(kMembers);
}

TableStepForm::TableStepForm(Program& program, const TableStepMember& member)
    : TabellaForm(program, member.numeroScheda,
                  [&member] {
                      FrameOptions o;
                      o.setUp = member.suLoad ? SetUp::OnLoad : SetUp::OnActivate;
                      return o;
                  }()),
      member_(member) {
    constexpr int x = ColonnaTabella::left, w = ColonnaTabella::width;
    if (member.consegna) {
        Label3 =
            label(QStringLiteral("Label3"), QStringLiteral("clicca sul numero"), x, 2640, w, 375, Arial(12));
        Label3->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    }
    EtichettaNumero = label(QStringLiteral("EtichettaNumero"), QString(), x, 3120, w, 735,
                            member.consegna ? Arial(18) : Arial(13.5));
    EtichettaNumero->setAlignment(Qt::AlignCenter);
}

void TableStepForm::Prepara() {
    // Coming back to a screen that was waiting for "avanti", it still waits: the button stays live
    // and its click draws the next question. The cell greyed by the old answer is a cell like the
    // others again.
    AbilitaTutte();
    ScriviTutti();
}

void TableStepForm::NuovaDomanda() {
    CaricaColori();
    const DomandaTabella d = member_.draw(app.rnd, g.NumeroMassimo);
    g.Termine1 = d.termine1;
    g.Termine2 = d.termine2;
    g.Meta = d.meta;
    esatto_ = d.esatto;
    EtichettaNumero->setCaption(d.caption);
}

void TableStepForm::Numero_Click(int i) {
    Rispondi(i == esatto_);
}

// The question stands complete, and its cell greyed as the answer.
void TableStepForm::InAttesa() {
    EtichettaNumero->setCaption(EtichettaNumero->Caption() + Numero(esatto_)->Caption());
    Numero(esatto_)->setEnabled(false);
}

QJsonObject TableStepForm::fields() const {
    return {{"esatto", esatto_}};
}

} // namespace contarello
