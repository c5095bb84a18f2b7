// Form99c and Form99c1: an addition on the abacus. The first addend threaded, the second added on,
// ten units changed into a ten where there are ten or more, then the result written.

#include "core/lang.h"
#include "graphics/abacus_ops.h"
#include "shell/pictures.h"
#include "shell/program.h"

namespace contarello {

namespace {

// The counters, the faces, "Ricomincia" and "avanti" in a column right of the abacus, under the
// instruction.
FrameLayout LayoutSomma() {
    FrameLayout l;
    l.label1 = {6600, 1800, 1095, 375};
    l.esatti = {7740, 1740, 1095, 495};
    l.label2 = {6600, 2400, 1095, 375};
    l.errati = {7740, 2340, 1095, 495};
    l.facce = {8760, 1860, 855, 750};
    l.avanti = {8160, 3480, 1455, 1215};
    return l;
}

} // namespace

AbacusSumForm::AbacusSumForm(Program& program, const AbacusOpMember& member)
    : AbacusOpForm(program, member, 9720, 7080, LayoutSomma()) {
    CreaDomanda(3420, 3600);

    CreaAbaco({1260, 5700, 5355, 5310, 1470, 0, true});

    Bot_da = button(QStringLiteral("Bot_da"), QStringLiteral("+ da"), 1470, 5760, 975, 615, Arial(18));
    Bot_u = button(QStringLiteral("Bot_u"), QStringLiteral("+ u"), 4800, 5760, 975, 615, Arial(18));
    // The left button threads a bead, any other takes the last one off (Enter and Delete from the
    // keyboard).
    Bot_da->MouseDown = [this](int b, int, int, int) {
        if (b == 1 ? AggiungiDecina() : TogliDecina()) Controlla();
    };
    Bot_u->MouseDown = [this](int b, int, int, int) {
        if (b == 1 ? AggiungiUnita() : TogliUnita()) Controlla();
    };
    SiComincia({Bot_da, Bot_u});
    Label4 = label(QStringLiteral("Label4"), QString(), 2520, 5820, 735, 495, Arial(18));
    Label3 = label(QStringLiteral("Label3"), QString(), 5850, 5820, 735, 495, Arial(18));
    Label6 = label(QStringLiteral("Label6"),
                   QStringLiteral("Click sinistro per inserire le palline, click destro per toglierle."), 120,
                   6480, 9480, 375, SansSerif(9.75));

    Label5 = label(QStringLiteral("Label5"), QString(), 6600, 240, 2640, 1275, SansSerif(12, true));
    Label5->setBackColor(Qt::white);
    Label5->setAlignment(Qt::AlignCenter);

    Bot_ricomincia = button(QStringLiteral("Bot_ricomincia"), QStringLiteral("Ricomincia"), 6600, 3480, 1455,
                            1215, Arial(12));
    Bot_ricomincia->setPicture(pictures::FrecciaCircolare());
    Bot_ricomincia->Click = [this] { Ricomincia(); };
}

void AbacusSumForm::Consegna() {
    Label5->setCaption(QStringLiteral("inserisci il numero ") + Str(g.Termine1) +
                       QStringLiteral(" nell'abaco"));
    Annuncia();
}

void AbacusSumForm::NuovaDomanda() {
    Text1->setEnabled(true);
    Text1->setVisible(false);
    Fase = 1;
    BottoneAvanti->setEnabled(false);
    CaricaColori();
    AzzeraAbaco();
    const Operazione op =
        member_.cambio ? TiraConCambio(app.rnd, g.NumeroMassimo) : OperazioneSenzaCambio(app.rnd);
    g.Meta = op.Meta;
    g.Termine1 = op.Termine1;
    g.Termine2 = op.Termine2;
    EtichettaNumero->setCaption(Str(g.Termine1) + QStringLiteral(" + ") + Str(g.Termine2) +
                                QStringLiteral(" = "));
    Consegna();
}

void AbacusSumForm::Controlla() {
    // One call may pass several steps: with no change due, the sum reached goes straight to the result.
    const int n = Valore();
    if (Fase == 1 && n == g.Termine1) {
        Fase = 2;
        suona(app);
        Label5->setCaption(QStringLiteral("aggiungi il numero ") + Str(g.Termine2) +
                           QStringLiteral(" nell'abaco"));
        Annuncia();
    }
    if (Fase == 2 && n == g.Meta) {
        Fase = 3;
        suona(app);
        Label5->setCaption(QStringLiteral("Esegui il cambio"));
        Annuncia();
    }
    if (Fase == 3 && NumeroUnita < 10) {
        Fase = 4;
        suona(app);
        Label5->setCaption(QStringLiteral("Scrivi il risultato"));
        Annuncia();
    }
    if (Fase == 4 && n == g.Meta) ApriRisultato();
}

void AbacusSumForm::BottoneCambio_Click() {
    // Nine tens are all the wire holds: with them up there is no tens bead to change the units into.
    if (NumeroUnita < 10 || NumeroDecine >= 9) {
        RispostaErrata();
        return;
    }
    NumeroDecine += 1;
    BottoneCambio->setEnabled(false);
    NumeroUnita -= 10;
    MostraPalline();
    Controlla();
}

void AbacusSumForm::Ricomincia() {
    Text1->setEnabled(true);
    AzzeraAbaco();
    Text1->setText(QString());
    Text1->setVisible(false);
    Consegna();
}

} // namespace contarello
