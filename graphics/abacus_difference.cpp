// Form99d and Form99d1: a subtraction on the abacus. The first number threaded, the second taken
// off, a ten changed into ten units where the units run short, then the result written.

#include "core/lang.h"
#include "graphics/abacus_ops.h"
#include "shell/pictures.h"
#include "shell/program.h"

namespace contarello {

namespace {

// The counters and the faces at the top right, "Ricomincia" and "avanti" under the instruction.
FrameLayout LayoutDifferenza() {
    FrameLayout l;
    l.label1 = {6600, 960, 1095, 375};
    l.esatti = {7620, 900, 975, 495};
    l.label2 = {6600, 1560, 1095, 375};
    l.errati = {7620, 1500, 975, 495};
    l.facce = {8640, 1020, 855, 750};
    l.avanti = {7845, 4860, 1455, 1215};
    return l;
}

} // namespace

AbacusDifferenceForm::AbacusDifferenceForm(Program& program, const AbacusOpMember& member)
    : AbacusOpForm(program, member, 9600, 6960, LayoutDifferenza()) {
    CreaDomanda(2940, 3120);

    CreaAbaco({1365, 5805, 5460, 5415, 1680, 2100, false});

    auto bottone = [this](const char* name, const char* caption, int left) {
        return button(QLatin1String(name), QLatin1String(caption), left, 5880, 975, 615, Arial(20.25));
    };
    Bot_da = bottone("Bot_da", "+ da", 945);
    Command1 = bottone("Command1", "- da", 1995);
    Bot_u = bottone("Bot_u", "+ u", 4200);
    Command2 = bottone("Command2", "- u", 5355);
    Bot_da->Click = [this] {
        if (AggiungiDecina()) Controlla();
    };
    Command1->Click = [this] {
        if (TogliDecina()) Controlla();
    };
    Bot_u->Click = [this] {
        if (AggiungiUnita()) Controlla();
    };
    Command2->Click = [this] {
        if (TogliUnita()) Controlla();
    };
    SiComincia({Bot_da, Command1, Bot_u, Command2});
    Label4 = label(QStringLiteral("Label4"), QString(), 2400, 1365, 735, 495, Arial(18));
    Label3 = label(QStringLiteral("Label3"), QString(), 5760, 1365, 735, 495, Arial(18));

    Label5 = label(QStringLiteral("Label5"), QString(), 6195, 2730, 3105, 1905, Arial(11.25));
    Label5->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    Bot_ricomincia = button(QStringLiteral("Bot_ricomincia"), QStringLiteral("Ricomincia"), 6195, 4860, 1455,
                            1215, Arial(12));
    Bot_ricomincia->setPicture(pictures::FrecciaCircolare());
    Bot_ricomincia->Click = [this] { Ricomincia(); };
}

void AbacusDifferenceForm::Consegna() {
    Label5->setCaption(QStringLiteral("inserisci il numero ") + Str(g.Meta) +
                       QStringLiteral(" premendo i bottoni +da  e +u"));
    Annuncia();
}

void AbacusDifferenceForm::NuovaDomanda() {
    CaricaColori();
    Text1->setVisible(false);
    AzzeraAbaco();
    const Operazione op =
        member_.cambio ? TiraConCambio(app.rnd, g.NumeroMassimo) : OperazioneSenzaCambio(app.rnd);
    g.Meta = op.Meta;
    g.Termine1 = op.Termine1;
    g.Termine2 = op.Termine2;
    EtichettaNumero->setCaption(Str(g.Meta) + QStringLiteral(" - ") + Str(g.Termine2) +
                                QStringLiteral(" = "));
    Consegna();
}

void AbacusDifferenceForm::Controlla() {
    // Fase stays 2 once the first number stood: the beads moved away and back open the box anew.
    const int n = Valore();
    if (Fase == 1 && n == g.Meta) {
        Fase = 2;
        suona(app);
        Label5->setCaption(QStringLiteral("togli il numero ") + Str(g.Termine2) +
                           (member_.cambio
                                ? QStringLiteral(" con i bottoni  -da  e -u. Esegui il cambio se necessario")
                                : QStringLiteral(" con i bottoni  -da  e -u. ")));
        Annuncia();
    } else if (Fase == 2 && n == g.Termine1) {
        Label5->setCaption(QStringLiteral("scrivi il risultato"));
        Annuncia();
        suona(app);
        ApriRisultato();
    }
}

void AbacusDifferenceForm::BottoneCambio_Click() {
    if (NumeroUnita > 9 || NumeroDecine == 0) {
        RispostaErrata();
        return;
    }
    // Ten unit beads come on top of those on the wire; the count, not the wires, holds the number.
    NumeroDecine -= 1;
    NumeroUnita += 10;
    BottoneCambio->setEnabled(false);
    MostraPalline();
}

void AbacusDifferenceForm::Ricomincia() {
    AzzeraAbaco();
    Consegna();
}

} // namespace contarello
