// Form99b and Form99b1: the abacus shows a number drawn, the child writes it in digits or in words.

#include "core/lang.h"
#include "core/numberwords.h"
#include "graphics/abacus.h"
#include "shell/program.h"

#include <array>

namespace contarello {

namespace {

// Val reads the number at the start of the text: an empty box is 0.
bool CifreGiuste(const QString& testo, int numero, Modulo1&) {
    return Val(testo) == numero;
}

// One spelling per number, in capitals and with no accent; blanks around it are forgiven.
bool ParolaGiusta(const QString& testo, int numero, Modulo1& g) {
    return Trim(testo) == InParole(numero, g);
}

constexpr std::array<AbacusReaderMember, 2> kMembers = {{
    {"Form99b", "scrivi il numero in cifre", false, false, CifreGiuste, nullptr},
    {"Form99b1", "scrivi il numero in lettere", true, true, ParolaGiusta, FiltroMaiuscole},
}};

// The abacus on the left from the top of the screen down; the counters, the faces and "avanti" in
// the right column, clear of the wires.
FrameLayout Layout() {
    FrameLayout l;
    l.label1 = {6240, 480, 1095, 375};
    l.esatti = {7380, 420, 1095, 495};
    l.label2 = {6240, 1080, 1095, 375};
    l.errati = {7380, 1020, 1095, 495};
    l.facce = {8280, 600, 855, 750};
    l.avanti = {6960, 2880, 1575, 1215};
    return l;
}

constexpr AbacoGeometria kGeometria{2685, 315, 4755, 4425, 315, 4755, 4410, 4365};

FrameOptions Opzioni() {
    FrameOptions o;
    o.captions = {"Azzera conteggio         ", "Stampa scheda        ", "Informazioni          "};
    o.scheda = "formSt99b";
    o.layout = Layout();
    return o;
}

} // namespace

FormList AbacusForms() {
    return Join({{Screen<Form99a>("Form99a")}, Members<AbacusReaderForm>(kMembers)});
}

AbacusReaderForm::AbacusReaderForm(Program& program, const AbacusReaderMember& member)
    : AbacusForm(program, 9495, 6510, Opzioni(), kGeometria), member_(member) {
    Label3 = label(QStringLiteral("Label3"), QString::fromLatin1(member.consegna), 240, 5280, 3855, 375,
                   Arial(12));
    Label3->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    // A wrong text stays in the box, for the child to put right.
    TestoNumero =
        CasellaRisposta(QStringLiteral("TestoNumero"), {4215, 5160, 4800, 615}, Arial(18),
                        [this](const QString& testo) { return member_.giusta(testo, g.NumeroEsatto, g); },
                        {.alRilascio = member.invioAlRilascio, .filtro = member.filtro});
    AggiungiCorniceNumeroMassimo(QStringLiteral("mnuMassimo"), QStringLiteral("Numero massimo        "),
                                 mnuStampa);
}

void AbacusReaderForm::Prepara() {
    if (member_.randomize) app.rnd.Randomize();
    NumeroUnita = NumeroDecine = 0;
}

void AbacusReaderForm::NuovaDomanda() {
    CaricaColori();
    TestoNumero->setText(QString());
    NumeroUnita = NumeroDecine = 0;
    NascondiPalline();
    // 0, the bare abacus, can come; the limit itself can't.
    g.NumeroEsatto = int16_t(Draw(app.rnd, g.NumeroMassimo));
    NumeroDecine = int16_t(g.NumeroEsatto / 10);
    NumeroUnita = int16_t(g.NumeroEsatto - 10 * NumeroDecine);
    MostraPalline(pal_da, NumeroDecine);
    MostraPalline(pal_u, NumeroUnita);
    if (TestoNumero->isEnabled()) TestoNumero->SetFocus();
}

} // namespace contarello
