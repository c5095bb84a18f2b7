#include "core/lang.h"
#include "graphics/longs.h"
#include "shell/program.h"

#include <QJsonObject>

namespace contarello {

LongsSubForm::LongsSubForm(Program& program, const LongsMember& member)
    : LongsOpForm(program, member, 4455, 1215, 975) {
    BotDecine1 = BottoneMateriale("BotDecine1", "Decine", 6240, 2400, kRosso);
    BotUnita1 = BottoneMateriale("BotUnita1", "Unità", 6240, 3120, kBlu);
    BotDecine1->Click = [this] { Aggiungi(Decina1, NumeroDecine); };
    BotUnita1->Click = [this] { Aggiungi(Unita1, NumeroUnita); };
    if (member.cambio) {
        Cambio = BottoneMateriale("Cambio", "Cambio", 6240, 4080, kRosso);
        Cambio->Click = [this] { Cambio_Click(); };
    }

    for (int i = 0; i < 9; ++i) {
        Label* l = Pezzo(indexed(QStringLiteral("Decina1"), i), i < 5 ? 360 : 2880,
                         2160 + 360 * (i < 5 ? i : i - 5), 2415, kRosso);
        l->Click = [this, i] { Decina1_Click(i); };
        Decina1.set(i, l);
        Label* u = Pezzo(indexed(QStringLiteral("Unita1"), i), 5400 + 360 * (i % 2), 2160 + 360 * (i / 2),
                         255, kBlu);
        u->Click = [this, u] { Unita_Click(u); };
        Unita1.set(i, u);
    }
    // The ten squares a long turns into, in a row in the strip under the number.
    if (member.cambio) {
        for (int i = 0; i < 10; ++i) {
            Label* u = Pezzo(indexed(QStringLiteral("Unita2"), i), 600 + 480 * i, 4200, 255, kBlu);
            u->Click = [this, u] { Unita_Click(u); };
            Unita2.set(i, u);
        }
    }

    const int fondo = member.cambio ? 4560 : 4080;
    line(QStringLiteral("Line1"), 240, 2040, 6240, 2040, Qt::black, 2);
    line(QStringLiteral("Line2"), 240, 4080, 6240, 4080, Qt::black, 2);
    line(QStringLiteral("Line3"), 240, 2040, 240, fondo, Qt::black, 2);
    line(QStringLiteral("Line4"), 6240, 2040, 6240, fondo, Qt::black, 2);
    if (member.cambio) line(QStringLiteral("Line5"), 240, fondo, 6240, fondo, Qt::black, 2);
}

void LongsSubForm::UnitaCliccabili(bool on) {
    for (auto* row : {&Unita1, &Unita2})
        for (auto& [i, l] : *row)
            l->setEnabled(on);
}

void LongsSubForm::DecineCliccabili(bool on) {
    for (auto& [i, l] : Decina1)
        l->setEnabled(on);
}

// The shapes are also made still: a long or a square clicked away while the number is being built
// again would leave a gap that the next click of a button could not fill.
void LongsSubForm::Azzera() {
    Risultato->setVisible(false);
    NumeroUnita = NumeroDecine = 0;
    for (auto* row : {&Decina1, &Unita1, &Unita2})
        for (auto& [i, l] : *row)
            l->setVisible(false);
    UnitaCliccabili(false);
    DecineCliccabili(false);
    BotDecine1->setEnabled(true);
    BotUnita1->setEnabled(true);
    if (Cambio) Cambio->setEnabled(false);
}

void LongsSubForm::NuovaDomanda() {
    CaricaColori();
    Azzera();
    EstraiOperazione();
    UnitaMeta = int16_t(g.Meta - 10 * Int(g.Meta / 10.0));
    DecineRisultato = int16_t(Int(g.Termine2 / 10.0));
    UnitaRisultato = int16_t(g.Termine2 - 10 * DecineRisultato);
    EtNumero->setCaption(Str(g.Meta) + QStringLiteral(" - ") + Str(g.Termine1) + QStringLiteral(" ="));
    Consegna("Forma il primo numero");
}

void LongsSubForm::BottoneRicomincia_Click() {
    Azzera();
    Consegna("Forma il primo numero.");
}

void LongsSubForm::Aggiungi(ControlArray<Label>& row, int16_t& counter) {
    if (counter == 9) return;
    row(counter)->setVisible(true);
    ++counter;
    Controlla1();
}

void LongsSubForm::Controlla1() {
    if (10 * NumeroDecine + NumeroUnita != g.Meta) return;
    BotDecine1->setEnabled(false);
    BotUnita1->setEnabled(false);
    suona(app);
    if (UnitaRisultato <= UnitaMeta)
        TogliLeUnita();
    else
        FaiIlCambio();
    suona(app);
}

void LongsSubForm::FaiIlCambio() {
    if (!Cambio) return; // the numbers of the screen without the change never ask for it
    Consegna("Non hai unità sufficienti. Premi il bottone cambio per cambiare una decina in unità.");
    Cambio->setEnabled(true);
    suona(app);
}

// The last long becomes the ten squares of the strip. The button goes off at once: one long only
// is ever changed, so the shapes and the counters never part.
void LongsSubForm::Cambio_Click() {
    if (NumeroDecine == 0) return;
    Cambio->setEnabled(false);
    Decina1(NumeroDecine - 1)->setVisible(false);
    for (auto& [i, l] : Unita2)
        l->setVisible(true);
    NumeroUnita += 10;
    --NumeroDecine;
    TogliLeUnita();
}

void LongsSubForm::TogliLeUnita() {
    if (UnitaRisultato == NumeroUnita) {
        togliledecine();
        return;
    }
    BotDecine1->setEnabled(false);
    BotUnita1->setEnabled(false);
    if (Cambio) Cambio->setEnabled(false);
    Consegna("Clicca con il mouse sulle unità da eliminare.");
    UnitaCliccabili(true);
    suona(app);
}

// Any square, in any order.
void LongsSubForm::Unita_Click(Label* square) {
    if (NumeroUnita == 0 || !square->Visible()) return;
    square->setVisible(false);
    --NumeroUnita;
    Controlla3();
}

void LongsSubForm::Controlla3() {
    if (NumeroUnita != UnitaRisultato) return;
    togliledecine();
    suona(app);
}

void LongsSubForm::togliledecine() {
    if (NumeroDecine == DecineRisultato) {
        InRisultato();
        return;
    }
    DecineCliccabili(true);
    UnitaCliccabili(false);
    suona(app);
    Consegna("Clicca con il mouse sulle decine da eliminare.");
}

void LongsSubForm::Decina1_Click(int index) {
    if (NumeroDecine == 0 || !Decina1(index)->Visible()) return;
    Decina1(index)->setVisible(false);
    --NumeroDecine;
    Controlla2();
}

void LongsSubForm::Controlla2() {
    if (10 * NumeroDecine + NumeroUnita != g.Termine2) return;
    InRisultato();
    suona(app);
}

int16_t LongsSubForm::RisultatoAtteso() const {
    return g.Termine2;
}

QJsonObject LongsSubForm::fields() const {
    return {{"NumeroUnita", NumeroUnita},
            {"NumeroDecine", NumeroDecine},
            {"UnitaMeta", UnitaMeta},
            {"UnitaRisultato", UnitaRisultato},
            {"DecineRisultato", DecineRisultato}};
}

} // namespace contarello
