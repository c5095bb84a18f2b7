#include "graphics/longs.h"
#include "core/lang.h"
#include "shell/pictures.h"
#include "shell/program.h"

#include <array>

namespace contarello {

namespace {

constexpr std::array kAddizioni{
    LongsMember{"FormGraf", 15, true, 120},
    LongsMember{"FormGraf1", 16, false, 105},
};
constexpr std::array kSottrazioni{
    LongsMember{"FormGrafMeno", 17, true, 120},
    LongsMember{"FormGrafMeno1", 18, false, 120},
};

// The counters, the faces, "Ricomincia" and "avanti" in a column right of the material.
FrameOptions Opzioni() {
    FrameOptions o;
    o.captions = kMenuLargo;
    o.layout.label1 = {7440, 1500, 1095, 375};
    o.layout.esatti = {8520, 1440, 1095, 495};
    o.layout.label2 = {7440, 2100, 1095, 375};
    o.layout.errati = {8520, 2040, 1095, 495};
    o.layout.facce = {8160, 2640, 855, 750};
    o.layout.avanti = {7680, 4800, 1575, 1215};
    o.avvisoErrata = "Controlla esattamente il risultato";
    return o;
}

} // namespace

FormList LongsForms() {
    return Join({Members<LongsAddForm>(kAddizioni), Members<LongsSubForm>(kSottrazioni)});
}

LongsOpForm::LongsOpForm(Program& program, const LongsMember& member, int label3Width, int label3Height,
                         int risultatoHeight)
    : ExerciseForm(program, Variante::B, member.numeroScheda, 9840, 6360, Opzioni()), member_(member) {
    EtNumero = label(QStringLiteral("EtNumero"), QString(), 360, 240, 2655, 735, Arial(24));
    // Only the typed result counts. Only Enter judges; what stands in the box is read as a number, so
    // an empty box or letters are 0.
    Risultato = CasellaRisposta(
        QStringLiteral("Risultato"), {3120, member.risultatoTop, 1455, risultatoHeight}, Arial(24),
        [this](const QString& testo) { return Val(testo) == RisultatoAtteso(); }, {.ancheVuota = true});
    Risultato->setVisible(false);

    Label3 = label(QStringLiteral("Label3"), QString(), 5040, 120, label3Width, label3Height, Arial(12));
    Label3->setBackColor(kCiano);

    BottoneRicomincia = button(QStringLiteral("BottoneRicomincia"), QStringLiteral("Ricomincia"), 7680, 3540,
                               1575, 1095, Arial(9.75));
    BottoneRicomincia->setPicture(pictures::FrecciaCircolare());
    BottoneRicomincia->Click = [this] { BottoneRicomincia_Click(); };
}

Label* LongsOpForm::Pezzo(const QString& name, int left, int top, int width, QColor colour) {
    Label* l = label(name, QString(), left, top, width, 255, Arial(8));
    l->setBackColor(colour);
    l->setFrameShape(QFrame::Box); // an edge, so that pieces side by side are told apart
    l->setVisible(false);
    return l;
}

CommandButton* LongsOpForm::BottoneMateriale(const char* name, const char* caption, int left, int top,
                                             QColor colour) {
    CommandButton* b =
        button(QString::fromUtf8(name), QString::fromUtf8(caption), left, top, 975, 495, Arial(9.75));
    b->setBackColor(colour);
    // The caption reads on the button's own colour, live or off.
    b->setForeColor(colour.blue() > colour.red() ? Qt::white : Qt::black);
    return b;
}

void LongsOpForm::EstraiOperazione() {
    const Operazione o =
        member_.cambio ? OperazioneLibera(app.rnd, g.NumeroMassimo) : OperazioneSenzaCambio(app.rnd);
    g.Meta = o.Meta;
    g.Termine1 = o.Termine1;
    g.Termine2 = o.Termine2;
}

void LongsOpForm::InRisultato() {
    Consegna("Inserisci il risultato.");
    Risultato->setVisible(true);
    Risultato->setText(QString());
    if (Risultato->isEnabled()) Risultato->SetFocus();
}

} // namespace contarello
